#pragma once
// "Arduino Configuration": one row a board, with its label, COM port and the
// numbers of analog inputs and digital connections, and a button that opens the
// board's I/O dialog. Edits gArduinoData in place.
#include <QDialog>
#include <QtGlobal>
#include "support/CheckedArray.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FormArduinoConfig : public QDialog {
    Q_OBJECT
public:
    explicit FormArduinoConfig(QWidget* owner = nullptr);

    // The number of rows in use; the opener sets it before the form loads.
    qint16 iNumArduinos = 0;

    QLabel* LabelLabel;       // the column heads
    QLabel* LabelCOMPort;
    QLabel* LabelAnalogIn;
    QLabel* LabelDigitalIO;
    CheckedArray<QLabel*, 0, 15> Label;
    CheckedArray<QLineEdit*, 0, 15> TextLabel;
    CheckedArray<QLineEdit*, 0, 15> TextCOMPort;
    CheckedArray<QComboBox*, 0, 15> NumberAnalogIn;
    CheckedArray<QComboBox*, 0, 15> NumberDigitalIO;
    CheckedArray<QPushButton*, 0, 15> ArduinoInOutConf;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    // Runs when the form is first shown.
    void Form_Load();
    void ArduinoInOutConf_Click(int index);
    void CommandOK_Click();
    void CommandCancel_Click();

    void setVisible(bool visible) override;

private:
    bool m_loaded = false;
};
