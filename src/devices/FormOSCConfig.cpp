#include "devices/FormOSCConfig.h"
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include "devices/DeviceRows.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

FormOSCConfig::FormOSCConfig(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormOSCConfig"));
    setWindowTitle(QStringLiteral("OSC Configuration"));
    const QStringList heads = {QStringLiteral("Label:"), QStringLiteral("IP Address or hostname:"),
                               QStringLiteral("Port:"), QStringLiteral("In / Out:")};
    const int headLeft[4] = {1440, 3600, 5760, 6840};
    for (int c = 0; c < heads.size(); ++c)
        PlaceTwips(named(new QLabel(heads[c], this), arrayName(QStringLiteral("LabelHead"), c)),
                   headLeft[c], 240, 2000, 315);
    for (int i = 0; i < 16; ++i) {
        ControlRow row(this, i, 720 + i * 480);
        Label << row.label(QStringLiteral("Label"), QStringLiteral("OSC %1:").arg(i + 1), 240, 1100);
        TextLabel << row.text(QStringLiteral("TextLabel"), 1440, 2040);
        TextIP << row.text(QStringLiteral("TextIP"), 3600, 2040);
        TextPort << row.text(QStringLiteral("TextPort"), 5760, 960);
        const InOutButtons pair = row.inOut(QStringLiteral("FrameOpt"), 6840, 1560);
        FrameOpt << findChild<QGroupBox*>(arrayName(QStringLiteral("FrameOpt"), i));
        optIn << pair.in;
        optOut << pair.out;
        // Rows come into view only for the connections in use.
        row.setVisible(false);
        connect(pair.in, &QRadioButton::clicked, this, [this, i] { optIn_Click(i); });
        connect(pair.out, &QRadioButton::clicked, this, [this, i] { optOut_Click(i); });
    }
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setDefault(true);
    connect(CommandOK, &QPushButton::clicked, this, &FormOSCConfig::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormOSCConfig::CommandCancel_Click);
    PlaceTwips(CommandOK, 3000, 1050, 1200, 375);
    PlaceTwips(CommandCancel, 4440, 1050, 1200, 375);
    resize(Twips(8700), Twips(2000));
}

void FormOSCConfig::showEvent(QShowEvent* event)
{
    if (!m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::showEvent(event);
}

void FormOSCConfig::Form_Load()
{
    CMainConfig& cfg = gMainConfig;
    cfg.m_bUpdate = false;
    for (int i = 0; i < iNumOSCs; ++i) {
        Skip([&] { At(Label, i)->show(); });
        Skip([&] { At(TextLabel, i)->show(); });
        Skip([&] { At(TextIP, i)->show(); });
        Skip([&] { At(TextPort, i)->show(); });
        Skip([&] { At(FrameOpt, i)->show(); });
        Skip([&] { At(TextLabel, i)->setText(cfg.m_strOSCPortLabel(i)); });
        Skip([&] { At(TextIP, i)->setText(cfg.m_strOSCIP(i)); });
        Skip([&] { At(TextPort, i)->setText(QString::number(cfg.m_iOSCPort(i))); });
        Skip([&] {
            if (cfg.m_iOSCPortInOut(i) == 1)
                At(optIn, i)->setChecked(true);
            else
                At(optOut, i)->setChecked(true);
        });
    }
    PlaceTwips(CommandOK, 3000, iNumOSCs * 480 + 1050, 1200, 375);
    PlaceTwips(CommandCancel, 4440, iNumOSCs * 480 + 1050, 1200, 375);
    resize(width(), Twips(iNumOSCs * 480 + 2000));
}

// An incoming connection needs no address.
void FormOSCConfig::optIn_Click(int index) { At(TextIP, index)->setEnabled(false); }

void FormOSCConfig::optOut_Click(int index) { At(TextIP, index)->setEnabled(true); }

// Row by row: a row that fails stops the dialog, and the rows before it, with
// the fields of the failing row already passed, stay stored.
void FormOSCConfig::CommandOK_Click()
{
    CMainConfig& cfg = gMainConfig;
    for (int i = 0; i < iNumOSCs; ++i) {
        const QString n = QString::number(i + 1);
        if (At(TextLabel, i)->text().trimmed().isEmpty()) {
            MsgBox(QStringLiteral("You have to enter a label for OSC connection ") + n);
            return;
        }
        Skip([&] { cfg.m_strOSCPortLabel(i) = At(TextLabel, i)->text(); });
        // An incoming connection too needs an address in its box, enabled or not.
        if (At(TextIP, i)->text().trimmed().isEmpty()) {
            MsgBox(QStringLiteral("You have to enter an IP Address or hostname for OSC connection ") + n);
            return;
        }
        Skip([&] { cfg.m_strOSCIP(i) = At(TextIP, i)->text(); });
        // A port that is no number fails the test and so gets this message too.
        if (Holds([&] { return At(TextPort, i)->text().trimmed().isEmpty() || ToInteger(At(TextPort, i)->text()) < 1; })) {
            MsgBox(QStringLiteral("You have to enter a valid port for OSC connection ") + n);
            return;
        }
        Skip([&] { cfg.m_iOSCPortInOut(i) = At(optIn, i)->isChecked() ? 1 : 2; });
        Skip([&] { cfg.m_iOSCPort(i) = ToInteger(At(TextPort, i)->text()); });
    }
    // The connections given up are reset.
    for (int i = iNumOSCs; i <= 15; ++i) {
        Skip([&] { cfg.m_iOSCPortInOut(i) = 0; });
        Skip([&] { cfg.m_strOSCPortLabel(i) = QStringLiteral("OSC ") + QString::number(i + 1); });
    }
    gDirty = true;
    cfg.m_bUpdate = true;
    accept();
}

void FormOSCConfig::CommandCancel_Click() { reject(); }
