#pragma once
// "QEL Components & Ports": a read-only summary of the device counts and
// ports. A click on the form or on its frame closes it.
#include <QDialog>

class QGroupBox;
class QLabel;

class FormComponentsAndPorts : public QDialog {
    Q_OBJECT
public:
    explicit FormComponentsAndPorts(QWidget* owner = nullptr);

    QGroupBox* Frame1;
    QLabel* LabelNExos;
    QLabel* LabelNTotems;
    QLabel* LabelNFlash;
    QLabel* LabelNOSCs;
    QLabel* LabelNArduinos;
    QLabel* LabelNQDMs;
    QLabel* LabelExo1Port;
    QLabel* LabelCOM1;
    QLabel* LabelPort1;
    QLabel* LabelExo2Port;
    QLabel* LabelCOM2;
    QLabel* LabelPort2;
    QLabel* LabelTalporPort;
    QLabel* LabelQDMPort;
    QLabel* LabelFlashPort;

    void Form_Load();
    void Form_Click();
    void Frame1_Click();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
