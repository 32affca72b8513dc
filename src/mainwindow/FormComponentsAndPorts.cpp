#include "mainwindow/FormComponentsAndPorts.h"
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include "model/CMainConfig.h"
#include "support/Controls.h"

FormComponentsAndPorts::FormComponentsAndPorts(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormComponentsAndPorts"));
    setWindowTitle(QStringLiteral("QEL Components & Ports"));
    Frame1 = named(new QGroupBox(this), QStringLiteral("Frame1"));
    auto* grid = new QGridLayout(Frame1);
    int row = 0;
    // A caption, then the value label; the port rows have "COM" between them.
    auto line = [&](const QString& caption, const QString& name, QLabel** captionLabel = nullptr,
                    QLabel** comLabel = nullptr, const QString& comName = QString()) {
        auto* c = new QLabel(caption, Frame1);
        grid->addWidget(c, row, 0);
        if (captionLabel)
            *captionLabel = c;
        if (comLabel) {
            *comLabel = named(new QLabel(QStringLiteral("COM"), Frame1), comName);
            grid->addWidget(*comLabel, row, 1);
        }
        auto* value = named(new QLabel(Frame1), name);
        grid->addWidget(value, row, 2);
        ++row;
        return value;
    };
    LabelNExos = line(QStringLiteral("Exoskeletons:"), QStringLiteral("LabelNExos"));
    LabelNTotems = line(QStringLiteral("Joysticks:"), QStringLiteral("LabelNTotems"));
    LabelNFlash = line(QStringLiteral("Flash players:"), QStringLiteral("LabelNFlash"));
    LabelNOSCs = line(QStringLiteral("OSC connections:"), QStringLiteral("LabelNOSCs"));
    LabelNArduinos = line(QStringLiteral("Arduinos:"), QStringLiteral("LabelNArduinos"));
    LabelNQDMs = line(QStringLiteral("QEL Display Managers:"), QStringLiteral("LabelNQDMs"));
    LabelPort1 = line(QStringLiteral("Exoskeleton 1 Port:"), QStringLiteral("LabelPort1"), &LabelExo1Port, &LabelCOM1,
                      QStringLiteral("LabelCOM1"));
    LabelExo1Port->setObjectName(QStringLiteral("LabelExo1Port"));
    LabelPort2 = line(QStringLiteral("Exoskeleton 2 Port:"), QStringLiteral("LabelPort2"), &LabelExo2Port, &LabelCOM2,
                      QStringLiteral("LabelCOM2"));
    LabelExo2Port->setObjectName(QStringLiteral("LabelExo2Port"));
    LabelTalporPort = line(QStringLiteral("TalporMor\u00E1x COM Port:"), QStringLiteral("LabelTalporPort"));
    LabelQDMPort = line(QStringLiteral("QDM TCP Port:"), QStringLiteral("LabelQDMPort"));
    LabelFlashPort = line(QStringLiteral("Flash TCP Port:"), QStringLiteral("LabelFlashPort"));
    auto* top = new QVBoxLayout(this);
    top->addWidget(Frame1);
    Frame1->installEventFilter(this);
    Form_Load();
}

void FormComponentsAndPorts::Form_Load()
{
    const CMainConfig& c = gMainConfig;
    LabelNExos->setText(QString::number(c.m_iNExos));
    LabelNTotems->setText(QString::number(c.m_iNTotems));
    LabelNFlash->setText(QString::number(c.m_iNFlash));
    LabelNOSCs->setText(QString::number(c.m_iNOSCs));
    LabelNArduinos->setText(QString::number(c.m_iNArduinos));
    LabelNQDMs->setText(QString::number(c.m_iNQDMs));
    if (c.m_iNExos >= 1)
        LabelPort1->setText(QString::number(c.m_iExo1Port));
    if (c.m_iNExos >= 2)
        LabelPort2->setText(QString::number(c.m_iExo2Port));
    LabelTalporPort->setText(QString::number(c.m_iTalporPort));
    LabelQDMPort->setText(QString::number(c.m_iQDMPort));
    LabelFlashPort->setText(QString::number(c.m_iFlashPort));
    const bool first = c.m_iNExos >= 1;
    const bool second = c.m_iNExos >= 2;
    for (QLabel* l : {LabelExo1Port, LabelCOM1, LabelPort1})
        l->setVisible(first);
    for (QLabel* l : {LabelExo2Port, LabelCOM2, LabelPort2})
        l->setVisible(second);
}

void FormComponentsAndPorts::Form_Click() { accept(); }
void FormComponentsAndPorts::Frame1_Click() { accept(); }

void FormComponentsAndPorts::mouseReleaseEvent(QMouseEvent* event)
{
    QDialog::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        Form_Click();
}

bool FormComponentsAndPorts::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Frame1 && event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        Frame1_Click();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
