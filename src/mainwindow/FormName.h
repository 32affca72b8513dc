#pragma once
// "Performance Configuration Name": edits the title of the performance.
#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class FormName : public QDialog {
    Q_OBJECT
public:
    explicit FormName(QWidget* owner = nullptr);

    QLabel* Label1;
    QLineEdit* TextName;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    // Marks the performance changed in every case; an empty text keeps the old name.
    void CommandOK_Click();
    void CommandCancel_Click();
};
