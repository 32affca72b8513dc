#include "devices/FormFlashConfig.h"
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "devices/DeviceRows.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/OnError.h"

FormFlashConfig::FormFlashConfig(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormFlashConfig"));
    setWindowTitle(QStringLiteral("Flash Configuration"));
    auto label = [this](const char* name, const char* caption, int left, int top, int width) {
        PlaceTwips(named(new QLabel(QString::fromLatin1(caption), this), QString::fromLatin1(name)), left, top, width, 315);
    };
    auto text = [this](const char* name, int left, int top, int width) {
        auto* box = named(new QLineEdit(this), QString::fromLatin1(name));
        PlaceTwips(box, left, top, width, 315);
        return box;
    };
    label("LabelFlashPort", "Flash port", 240, 240, 1800);
    TextFlashPort = text("TextFlashPort", 2160, 240, 1200);
    TextFlashPort->setText(QStringLiteral("1122"));
    label("LabelUDPEnabled", "UDP broadcast enabled", 240, 720, 1800);
    CheckUDPEnabled = named(new QCheckBox(this), QStringLiteral("CheckUDPEnabled"));
    PlaceTwips(CheckUDPEnabled, 2160, 720, 300, 315);
    label("LabelUDPPort", "UDP port", 3600, 720, 1000);
    TextUDPPort = text("TextUDPPort", 4680, 720, 1200);
    TextUDPPort->setText(QStringLiteral("9991"));
    label("LabelBroadcastIP", "Broadcast IP", 240, 1200, 1800);
    TextBroadcastIP = text("TextBroadcastIP", 2160, 1200, 3720);
    label("LabelPerformanceInfo", "Performance info", 240, 1680, 1800);
    TextPerformanceInfo = text("TextPerformanceInfo", 2160, 1680, 3720);
    label("LabelPaths", "Path for Flash Players", 240, 2280, 3000);

    for (int i = 0; i < 16; ++i) {
        ControlRow row(this, i, 2760 + i * 480);
        LabelN << row.label(QStringLiteral("LabelN"), QStringLiteral("Flash %1:").arg(i + 1), 240, 1100);
        TextFlashPlayer << row.text(QStringLiteral("TextFlashPlayer"), 1440, 4200);
        CheckCopyCfg << row.check(QStringLiteral("CheckCopyCfg"), QStringLiteral("Copy movieplayer.cfg"), 5760, 2400);
    }
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    CommandOK->setDefault(true);
    connect(CheckUDPEnabled, &QCheckBox::clicked, this, &FormFlashConfig::CheckUDPEnabled_Click);
    connect(CommandOK, &QPushButton::clicked, this, &FormFlashConfig::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormFlashConfig::CommandCancel_Click);
    PlaceTwips(CommandOK, 3000, 3 * 480 + 3240, 1200, 375);
    PlaceTwips(CommandCancel, 4440, 3 * 480 + 3240, 1200, 375);
    resize(Twips(8400), Twips(3 * 480 + 4200));
}

void FormFlashConfig::showEvent(QShowEvent* event)
{
    if (!m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    QDialog::showEvent(event);
}

void FormFlashConfig::Form_Load()
{
    const CMainConfig& cfg = gMainConfig;
    TextFlashPort->setText(QString::number(cfg.m_iFlashPort));
    TextUDPPort->setText(QString::number(cfg.m_iFlashUDPPort));
    CheckUDPEnabled->setChecked(cfg.m_bFlashUDPEnabled);
    TextBroadcastIP->setText(cfg.m_strFlashBroadcastIP);
    TextPerformanceInfo->setText(cfg.m_strFlashPerformanceInfo);
    gMainConfig.m_bUpdate = false;
    for (int i = 0; i <= 15; ++i) {
        const bool inUse = i < iNumFlash;
        LabelN[i]->setVisible(inUse);
        TextFlashPlayer[i]->setVisible(inUse);
        CheckCopyCfg[i]->setVisible(inUse);
    }
    // The buttons never stand higher than three rows would put them.
    const int rows = iNumFlash < 3 ? 3 : iNumFlash;
    PlaceTwips(CommandOK, 3000, rows * 480 + 3240, 1200, 375);
    PlaceTwips(CommandCancel, 4440, rows * 480 + 3240, 1200, 375);
    resize(width(), Twips(rows * 480 + 4200));
    for (int i = 0; i < iNumFlash; ++i) {
        Skip([&] { At(CheckCopyCfg, i)->setChecked(cfg.m_bFlashCopyCfg(i)); });
        Skip([&] { At(TextFlashPlayer, i)->setText(cfg.m_strFlashFolderPath(i)); });
    }
}

// A disabled box keeps its text, and OK stores it all the same.
void FormFlashConfig::CheckUDPEnabled_Click()
{
    const bool on = CheckUDPEnabled->isChecked();
    TextUDPPort->setEnabled(on);
    TextBroadcastIP->setEnabled(on);
    TextPerformanceInfo->setEnabled(on);
}

void FormFlashConfig::CommandOK_Click()
{
    CMainConfig& cfg = gMainConfig;
    gDirty = true;
    for (int i = 0; i < iNumFlash; ++i) {
        Skip([&] { cfg.m_strFlashFolderPath(i) = At(TextFlashPlayer, i)->text(); });
        Skip([&] { cfg.m_bFlashCopyCfg(i) = At(CheckCopyCfg, i)->isChecked(); });
        // A folder gets its closing backslash; a slash is no backslash.
        Skip([&] {
            QString& path = cfg.m_strFlashFolderPath(i);
            if (!path.isEmpty() && !path.endsWith(u'\\'))
                path += u'\\';
        });
    }
    // A port box that holds no number leaves its field as it was.
    Skip([&] { cfg.m_iFlashPort = ToInteger(TextFlashPort->text()); });
    Skip([&] { cfg.m_iFlashUDPPort = ToInteger(TextUDPPort->text()); });
    cfg.m_bFlashUDPEnabled = CheckUDPEnabled->isChecked();
    cfg.m_strFlashBroadcastIP = TextBroadcastIP->text();
    cfg.m_strFlashPerformanceInfo = TextPerformanceInfo->text();
    cfg.m_bUpdate = true;
    accept();
}

void FormFlashConfig::CommandCancel_Click() { reject(); }
