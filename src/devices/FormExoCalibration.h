#pragma once
// "Exoskeleton Calibration": assigns each of the 29 sensor rows of a suit to a
// byte of its sample frame, sets the suit's identity and COM port, and finds
// each row's range, by hand or live over the serial line. Works on the copies
// in gExoDataEdit; the opener writes them back when m_bUpdate is set.
#include <QDialog>
#include <QtGlobal>
#include "model/CExoData.h"
#include "support/CheckedArray.h"
#include "support/CommPort.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FormExoCalibration : public QDialog {
    Q_OBJECT
public:
    explicit FormExoCalibration(QWidget* owner = nullptr);
    ~FormExoCalibration() override;

    // A form that unloaded itself on load (no suits) does not show.
    int exec() override;

    QLabel* Label2;
    QComboBox* ComboExo;
    QLabel* Label14;
    QComboBox* ComboID;
    QLabel* LabelExoPort;
    QLineEdit* TextExoPort;
    QGroupBox* Frame1;
    CheckedArray<QLabel*, 0, 28> Label3;
    CheckedArray<QComboBox*, 0, 28> ComboChannel;
    CheckedArray<QLabel*, 0, 28> LabelType;
    CheckedArray<QLineEdit*, 0, 28> TextMin;
    CheckedArray<QLineEdit*, 0, 28> TextMax;
    QPushButton* CommandAuto;
    QLabel* Label13;
    QLabel* LabelErrors;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;
    CommPort MSComm1;

    void Form_Load();
    void ComboExo_Click();
    // Typing in the edit part of a channel box writes the model at once.
    void ComboChannel_Change(int index);
    // Starts the live calibration, or, entered again while it runs, stops it.
    void CommandAuto_Click();
    void CommandOK_Click();
    void CommandCancel_Click();

    // Closing the window while sampling ends the run first.
    void reject() override;

private:
    void loadRecord(int exo);
    void storeRecord();
    void stopSampling();
    void waitAfterStop();
    void updateRows(const QByteArray& frame);

    qint16 iCurrentExo = 0;
    bool bSampling = false;
    qint16 iErrors = 0;
    CheckedArray<qint16, 0, 1> iPortEdit;
    CheckedArray<qint16, 0, 31> iSampleMin;
    CheckedArray<qint16, 0, 31> iSampleMax;
    bool m_unloaded = false;
};
