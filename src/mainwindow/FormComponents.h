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
    // The device buttons: with no device of the kind, a message; the dialogs are opened from the panel.
    void ExoskeletonsCalibration_Click();
    void CommandOSC_Click();
    void ArduinoConfig_Click();
    void CommandScreen_Click();
    void CommandFlash_Click();
};
