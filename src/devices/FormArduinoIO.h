#pragma once
// "Arduino IO Configuration": the range of each analog input and the direction
// of each digital connection of one board, in rows created when the form loads
// and reached through a vertical scroll bar.
#include <QDialog>
#include <QtGlobal>
#include "devices/cScrollBar.h"
#include "support/CheckedArray.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QResizeEvent;

class FormArduinoIO : public QDialog {
    Q_OBJECT
public:
    explicit FormArduinoIO(QWidget* owner = nullptr);

    // Set by the opener before the form loads.
    qint16 iArduino = 0;      // index in gArduinoData
    qint16 iNumAnalog = 0;    // analog rows
    qint16 iNumDigital = 0;   // digital rows

    QLabel* LabelAnalogInputs;
    QLabel* LabelDigitalIOs;
    QLabel* LabelMin;
    QLabel* LabelMax;
    QGroupBox* FrameOKCancel;   // caption "FrameOK": stays at the foot
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    // The rows made at load: "AnalogInput0", "TxtMin0", "TxtMax0", "DigitalIO0", "ComboDigital0", ...
    CheckedArray<QLabel*, 0, 31> AnalogInput;
    CheckedArray<QLineEdit*, 0, 31> TxtMin;
    CheckedArray<QLineEdit*, 0, 31> TxtMax;
    CheckedArray<QLabel*, 0, 95> DigitalIO;
    CheckedArray<QComboBox*, 0, 95> ComboDigital;

    // The form's scroll bar. Like the form's own variables it outlives an
    // unload; the form marks the bar as gone before it unloads.
    static cScrollBar cScroll;

    // Runs when the form is first shown: creates the rows.
    void Form_Load();
    // Runs on every resize, the first display included.
    void Form_Resize();
    void CommandOK_Click();
    void CommandCancel_Click();

    void setVisible(bool visible) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool m_loaded = false;
};
