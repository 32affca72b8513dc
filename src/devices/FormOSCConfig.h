#pragma once
// "OSC Configuration": one row for each OSC connection, at most sixteen,
// written straight into the main record.
#include <QDialog>
#include <QList>
#include <QtGlobal>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

class FormOSCConfig : public QDialog {
    Q_OBJECT
public:
    explicit FormOSCConfig(QWidget* owner = nullptr);

    // The number of connections, set by the opener before the form is shown.
    qint16 iNumOSCs = 0;

    QList<QLabel*> Label;              // 0-15, row captions
    QList<QLineEdit*> TextLabel;       // 0-15
    QList<QLineEdit*> TextIP;          // 0-15
    QList<QLineEdit*> TextPort;        // 0-15
    QList<QGroupBox*> FrameOpt;        // 0-15, each holding the row's two option buttons
    QList<QRadioButton*> optIn;        // 0-15
    QList<QRadioButton*> optOut;       // 0-15
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void optIn_Click(int index);
    void optOut_Click(int index);
    void CommandOK_Click();
    void CommandCancel_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool m_loaded = false;
};
