#pragma once
// "Performance Ports Configuration": eight generic MIDI ports, each with a
// label, a system port number and its direction. OK rebuilds the packed input
// and output lists of the main record.
#include <QDialog>
#include <QList>
#include <QtGlobal>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

class FormMIDIPorts : public QDialog {
    Q_OBJECT
public:
    explicit FormMIDIPorts(QWidget* owner = nullptr);

    // The number of MIDI devices, set by the opener before the form is shown.
    qint16 iNumMIDIs = 0;

    QGroupBox* FramePorts;                  // "Generic MIDI Ports"
    QList<QLabel*> Label4;                  // 0-7, row captions
    QList<QLineEdit*> TextMIDIPortLabel;    // 0-7
    QList<QLineEdit*> TextPortNumber;       // 0-7; empty for no port
    QList<QRadioButton*> optIn;             // 0-7
    QList<QRadioButton*> optOut;            // 0-7
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
    qint16 iPortDirection[8] = {};          // 1 in, 2 out, as the option buttons stand
};
