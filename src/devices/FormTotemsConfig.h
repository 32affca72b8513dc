#pragma once
// "Joysticks Configuration": four fixed rows giving each joystick its system
// device, its number of axes and its number of buttons. When a joystick gets
// more axes, the button items of the rules move up by the axes added.
#include <QDialog>
#include <QList>
#include <QtGlobal>

class QLabel;
class QLineEdit;
class QPushButton;

class FormTotemsConfig : public QDialog {
    Q_OBJECT
public:
    explicit FormTotemsConfig(QWidget* owner = nullptr);

    // The number of joysticks, set by the opener before the form is shown.
    qint16 iNumTotems = 0;

    QList<QLineEdit*> TextTotem;   // 0-3, "Joystick remap"
    QLineEdit* TextAxis1;
    QLineEdit* TextAxis2;
    QLineEdit* TextAxis3;
    QLineEdit* TextAxis4;
    QLineEdit* TextButton1;
    QLineEdit* TextButton2;
    QLineEdit* TextButton3;
    QLineEdit* TextButton4;
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    QLabel* Label4;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void CommandOK_Click();
    void CommandCancel_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool m_loaded = false;
    QList<QLabel*> m_labels;
    QList<QLineEdit*> m_axes;
    QList<QLineEdit*> m_buttons;
};

// Raises by `delta` every joystick item at or above `oldAxes` in the rules of
// every subscene, whichever joystick a rule names; the global rules stay.
void RaiseJoystickItems(qint16 oldAxes, qint16 delta);
