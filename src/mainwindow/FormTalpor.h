#pragma once
// "TalporMorax Configuration": the COM port of the Talpor robot.
#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class FormTalpor : public QDialog {
    Q_OBJECT
public:
    explicit FormTalpor(QWidget* owner = nullptr);

    QLabel* Label1;
    QLineEdit* TextTalporPort;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void CommandOK_Click();
    void CommandCancel_Click();
};
