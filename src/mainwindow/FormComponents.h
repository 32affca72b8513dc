#pragma once
// "Performance Components Configuration": the device counts and the events per
// second as one dialog, with the same device buttons as the panel.
#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;

class FormComponents : public QDialog {
    Q_OBJECT
public:
    explicit FormComponents(QWidget* owner = nullptr);

    QComboBox* ComboNExos;
    QComboBox* ComboNTotems;
    QComboBox* ComboNOSCs;
    QComboBox* ComboNArduinos;
    QComboBox* ComboNScreens;
    QComboBox* ComboNFlash;
    QLineEdit* txtEvPerSec;
    QPushButton* ExoskeletonsCalibration;
    QPushButton* CommandItems;
    QPushButton* CommandOSC;
    QPushButton* ArduinoConfig;
    QPushButton* CommandScreen;
    QPushButton* CommandFlash;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void CommandOK_Click();
    void CommandCancel_Click();
    // The device buttons, as on the panel: each takes its count from this form's
    // list, says so when there is no device and otherwise opens its dialog. The
    // calibration is the panel's own handler.
    void ExoskeletonsCalibration_Click();
    void CommandItems_Click();
    void CommandOSC_Click();
    void ArduinoConfig_Click();
    void CommandScreen_Click();
    void CommandFlash_Click();

private:
    // Shows a device dialog modally with the m_bUpdate hand-over around it.
    void runDeviceDialog(QDialog& dialog);
};
