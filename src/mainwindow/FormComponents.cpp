#include "mainwindow/FormComponents.h"
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "devices/FormArduinoConfig.h"
#include "devices/FormDisplayConfig.h"
#include "devices/FormFlashConfig.h"
#include "devices/FormOSCConfig.h"
#include "devices/FormTotemsConfig.h"
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

FormComponents::FormComponents(QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("FormComponents"));
    setWindowTitle(QStringLiteral("Performance Components Configuration"));
    auto* grid = new QGridLayout(this);
    int row = 0;
    auto line = [&](const QString& caption, const QString& comboName, const QString& buttonName, const QString& buttonCaption,
                    QPushButton** button) {
        grid->addWidget(new QLabel(caption, this), row, 0);
        auto* combo = named(new QComboBox(this), comboName);
        grid->addWidget(combo, row, 1);
        *button = named(new QPushButton(buttonCaption, this), buttonName);
        grid->addWidget(*button, row, 2);
        ++row;
        return combo;
    };
    ComboNExos = line(QStringLiteral("Number of Exoskeletons:"), QStringLiteral("ComboNExos"),
                      QStringLiteral("ExoskeletonsCalibration"), QStringLiteral("Exos Config."), &ExoskeletonsCalibration);
    ComboNTotems = line(QStringLiteral("Number of Joysticks:"), QStringLiteral("ComboNTotems"), QStringLiteral("CommandItems"),
                        QStringLiteral("Joysticks Config."), &CommandItems);
    ComboNOSCs = line(QStringLiteral("Number of OSC connections:"), QStringLiteral("ComboNOSCs"), QStringLiteral("CommandOSC"),
                      QStringLiteral("OSC Config."), &CommandOSC);
    ComboNArduinos = line(QStringLiteral("Number of Arduinos:"), QStringLiteral("ComboNArduinos"),
                          QStringLiteral("ArduinoConfig"), QStringLiteral("Arduino Config."), &ArduinoConfig);
    ComboNScreens = line(QStringLiteral("Number of QEL Display Managers:"), QStringLiteral("ComboNScreens"),
                         QStringLiteral("CommandScreen"), QStringLiteral("QDM Config."), &CommandScreen);
    ComboNFlash = line(QStringLiteral("Number of Flash players:"), QStringLiteral("ComboNFlash"), QStringLiteral("CommandFlash"),
                       QStringLiteral("Flash Config."), &CommandFlash);
    grid->addWidget(new QLabel(QStringLiteral("Value Events per second:"), this), row, 0);
    txtEvPerSec = named(new QLineEdit(this), QStringLiteral("txtEvPerSec"));
    grid->addWidget(txtEvPerSec, row++, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    CommandOK = named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("CommandOK"));
    CommandOK->setDefault(true);
    CommandCancel = named(new QPushButton(QStringLiteral("Cancel"), this), QStringLiteral("CommandCancel"));
    buttons->addWidget(CommandOK);
    buttons->addWidget(CommandCancel);
    grid->addLayout(buttons, row, 0, 1, 3);

    connect(CommandOK, &QPushButton::clicked, this, &FormComponents::CommandOK_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &FormComponents::CommandCancel_Click);
    connect(ExoskeletonsCalibration, &QPushButton::clicked, this, &FormComponents::ExoskeletonsCalibration_Click);
    connect(CommandItems, &QPushButton::clicked, this, &FormComponents::CommandItems_Click);
    connect(CommandOSC, &QPushButton::clicked, this, &FormComponents::CommandOSC_Click);
    connect(ArduinoConfig, &QPushButton::clicked, this, &FormComponents::ArduinoConfig_Click);
    connect(CommandScreen, &QPushButton::clicked, this, &FormComponents::CommandScreen_Click);
    connect(CommandFlash, &QPushButton::clicked, this, &FormComponents::CommandFlash_Click);
    Form_Load();
}

void FormComponents::Form_Load()
{
    const CMainConfig& c = gMainConfig;
    gMainConfig.m_bUpdate = false;
    const struct { QComboBox* combo; int max; qint16 count; } rows[] = {
        {ComboNExos, 2, c.m_iNExos},       {ComboNTotems, 4, c.m_iNTotems},   {ComboNOSCs, 16, c.m_iNOSCs},
        {ComboNArduinos, 16, c.m_iNArduinos}, {ComboNScreens, 8, c.m_iNQDMs}, {ComboNFlash, 16, c.m_iNFlash}};
    for (const auto& r : rows) {
        r.combo->clear();
        for (int n = 0; n <= r.max; ++n)
            r.combo->addItem(QString::number(n));
        r.combo->setCurrentIndex(r.count >= 0 && r.count <= r.max ? r.count : -1);
    }
    txtEvPerSec->setText(QString::number(c.m_iEventsPerSec));
}

void FormComponents::CommandOK_Click()
{
    CMainConfig& c = gMainConfig;
    gDirty = true;
    c.m_iNExos = static_cast<qint16>(ComboNExos->currentIndex());
    c.m_iNTotems = static_cast<qint16>(ComboNTotems->currentIndex());
    c.m_iNOSCs = static_cast<qint16>(ComboNOSCs->currentIndex());
    c.m_iNArduinos = static_cast<qint16>(ComboNArduinos->currentIndex());
    c.m_iNQDMs = static_cast<qint16>(ComboNScreens->currentIndex());
    c.m_iNFlash = static_cast<qint16>(ComboNFlash->currentIndex());
    c.m_bUpdate = true;
    Skip([&] { c.m_iEventsPerSec = ToInteger(txtEvPerSec->text()); });
    accept();
}

void FormComponents::CommandCancel_Click() { reject(); }

namespace {
// False, after the message, when there is no device to configure.
bool devicesToConfigure(int count, const char* message)
{
    if (count == 0) {
        MsgBoxExclamation(QString::fromLatin1(message));
        return false;
    }
    return true;
}
} // namespace

void FormComponents::runDeviceDialog(QDialog& dialog)
{
    gMainConfig.m_bUpdate = false;
    dialog.exec();
    if (gMainConfig.m_bUpdate)
        gMainConfig.m_bUpdate = false;
}

void FormComponents::ExoskeletonsCalibration_Click()
{
    if (auto* panel = qobject_cast<FormInitial*>(parentWidget()))
        panel->ExoskeletonsCalibration_Click();
}

void FormComponents::CommandItems_Click()
{
    // Opens with no joysticks as well: the dialog then shows no rows.
    FormTotemsConfig dialog(this);
    dialog.iNumTotems = static_cast<qint16>(ComboNTotems->currentIndex());
    runDeviceDialog(dialog);
}

void FormComponents::CommandOSC_Click()
{
    const int count = ComboNOSCs->currentIndex();
    if (!devicesToConfigure(count, "No OSC connections!"))
        return;
    FormOSCConfig dialog(this);
    dialog.iNumOSCs = static_cast<qint16>(count);
    runDeviceDialog(dialog);
}

void FormComponents::ArduinoConfig_Click()
{
    const int count = ComboNArduinos->currentIndex();
    if (!devicesToConfigure(count, "No Arduinos!"))
        return;
    FormArduinoConfig dialog(this);
    dialog.iNumArduinos = static_cast<qint16>(count);
    runDeviceDialog(dialog);
}

void FormComponents::CommandScreen_Click()
{
    const int count = ComboNScreens->currentIndex();
    if (!devicesToConfigure(count, "No QEL Screen Managers to configure!"))
        return;
    FormDisplayConfig dialog(this);
    dialog.iNumQDMs = static_cast<qint16>(count);
    runDeviceDialog(dialog);
}

void FormComponents::CommandFlash_Click()
{
    const int count = ComboNFlash->currentIndex();
    if (!devicesToConfigure(count, "No Flash players!"))
        return;
    FormFlashConfig dialog(this);
    dialog.iNumFlash = static_cast<qint16>(count);
    runDeviceDialog(dialog);
}
