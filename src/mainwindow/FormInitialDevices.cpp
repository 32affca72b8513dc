// The device panel: the device counts, the buttons that open the device
// dialogs, the events per second, and the lock.
#include "mainwindow/FormInitial.h"
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include "devices/FormArduinoConfig.h"
#include "devices/FormDigitalIOSetup.h"
#include "devices/FormDisplayConfig.h"
#include "devices/FormExoCalibration.h"
#include "devices/FormFlashConfig.h"
#include "devices/FormMIDIPorts.h"
#include "devices/FormOSCConfig.h"
#include "devices/FormTotemsConfig.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/RuntimeError.h"
// The panel's own small dialogs.
#include "mainwindow/FormComponentsAndPorts.h"
#include "mainwindow/FormTalpor.h"

// A click in a count's list: the count takes the list index when it differs
// (always, for MIDI and video capture), and the performance counts as changed.
void FormInitial::ComboNExos_Click() { deviceCountActivated(ComboNExos, gMainConfig.m_iNExos, false); }
void FormInitial::ComboNTotems_Click() { deviceCountActivated(ComboNTotems, gMainConfig.m_iNTotems, false); }
void FormInitial::ComboNOSCs_Click() { deviceCountActivated(ComboNOSCs, gMainConfig.m_iNOSCs, false); }
void FormInitial::ComboNArduinos_Click() { deviceCountActivated(ComboNArduinos, gMainConfig.m_iNArduinos, false); }
void FormInitial::ComboNScreens_Click() { deviceCountActivated(ComboNScreens, gMainConfig.m_iNQDMs, false); }
void FormInitial::ComboNFlash_Click() { deviceCountActivated(ComboNFlash, gMainConfig.m_iNFlash, false); }
void FormInitial::ComboNMIDI_Click() { deviceCountActivated(ComboNMIDI, gMainConfig.m_iNMIDIs, true); }
void FormInitial::ComboNVideoCaps_Click() { deviceCountActivated(ComboNVideoCaps, gMainConfig.m_iNVideoCaps, true); }

bool FormInitial::devicesToConfigure(int count, const char* message)
{
    if (count == 0) {
        MsgBoxExclamation(QString::fromLatin1(message));
        return false;
    }
    return true;
}

// The panel's hand-over around a device dialog: m_bUpdate is cleared, the
// dialog shown modally, and m_bUpdate cleared again if the dialog set it.
void FormInitial::runDeviceDialog(QDialog& dialog)
{
    gMainConfig.m_bUpdate = false;
    dialog.exec();
    if (gMainConfig.m_bUpdate)
        gMainConfig.m_bUpdate = false;
}

// Each dialog button takes its count and opens its dialog; with no devices it
// only says so. A dialog not built yet opens nothing.

void FormInitial::ExoskeletonsCalibration_Click()
{
    if (gMainConfig.m_iNExos < 1) {
        MsgBoxExclamation(QStringLiteral("No Exoskeletons!"));
        return;
    }
    // The dialog works on copies of both suits; m_strItem is not among the fields copied.
    const auto copyExo = [](const CExoData& from, CExoData& to) {
        to.m_iID = from.m_iID;
        for (int row = 0; row < kExoRows; ++row) {
            to.m_iChannel(row) = from.m_iChannel(row);
            to.m_iType(row) = from.m_iType(row);
            to.m_iMin(row) = from.m_iMin(row);
            to.m_iMax(row) = from.m_iMax(row);
        }
    };
    for (int exo = 0; exo <= 1; ++exo)
        copyExo(gExoData(exo), gExoDataEdit(exo));
    gMainConfig.m_bUpdate = false;
    FormExoCalibration dialog(this);
    dialog.exec();
    // Accepted, the dialog has set m_bUpdate: the copies go back.
    if (gMainConfig.m_bUpdate) {
        for (int exo = 0; exo <= 1; ++exo)
            copyExo(gExoDataEdit(exo), gExoData(exo));
        gMainConfig.m_bUpdate = false;
    }
}

void FormInitial::ArduinoConfig_Click()
{
    FormArduinoConfig dialog(this);
    dialog.iNumArduinos = static_cast<qint16>(ComboNArduinos->currentIndex());
    // Below 1: a count list with no entry chosen says "No Arduinos!" as well.
    if (dialog.iNumArduinos < 1) {
        MsgBoxExclamation(QStringLiteral("No Arduinos!"));
        return;
    }
    runDeviceDialog(dialog);
}

void FormInitial::CommandOSC_Click()
{
    if (!devicesToConfigure(ComboNOSCs->currentIndex(), "No OSC connections!"))
        return;
    FormOSCConfig dialog(this);
    dialog.iNumOSCs = static_cast<qint16>(ComboNOSCs->currentIndex());
    runDeviceDialog(dialog);
}

void FormInitial::CommandFlash_Click()
{
    if (!devicesToConfigure(ComboNFlash->currentIndex(), "No Flash players!"))
        return;
    FormFlashConfig dialog(this);
    dialog.iNumFlash = static_cast<qint16>(ComboNFlash->currentIndex());
    runDeviceDialog(dialog);
}

void FormInitial::CommandPorts_Click()
{
    if (!devicesToConfigure(ComboNMIDI->currentIndex(), "No MIDI devices to configure!"))
        return;
    FormMIDIPorts dialog(this);
    dialog.iNumMIDIs = static_cast<qint16>(ComboNMIDI->currentIndex());
    runDeviceDialog(dialog);
}

void FormInitial::CommandScreen_Click()
{
    const int count = ComboNScreens->currentIndex();
    if (!devicesToConfigure(count, "No QEL Display Managers to configure!"))
        return;
    FormDisplayConfig dialog(this);
    dialog.iNumQDMs = static_cast<qint16>(count);
    runDeviceDialog(dialog);
}

void FormInitial::CommandItems_Click()
{
    // Opens with no joysticks as well: the dialog then shows no rows.
    FormTotemsConfig dialog(this);
    dialog.iNumTotems = static_cast<qint16>(ComboNTotems->currentIndex());
    runDeviceDialog(dialog);
}

void FormInitial::CommandTalpor_Click()
{
    FormTalpor dialog(this);
    dialog.exec();
}

void FormInitial::CommandShowConfig_Click()
{
    FormComponentsAndPorts dialog(this);
    dialog.exec();
}

void FormInitial::deviceCountActivated(QComboBox* combo, qint16& member, bool always)
{
    if (gSuppressComboEvents)
        return;
    const auto index = static_cast<qint16>(combo->currentIndex());
    if (always || member != index) {
        member = index;
        gDirty = true;
    }
}


void FormInitial::CommandRules_Click()
{
    setRuleViewVisible(false);
    setDevicePanelVisible(true);
}

void FormInitial::setDevicePanelEnabled(bool enabled)
{
    for (auto* c : m_countCombos)
        c->setEnabled(enabled);
    for (auto* b : m_dialogButtons)
        b->setEnabled(enabled);
    txtEvPerSec->setEnabled(enabled);
    CommandTalpor->setEnabled(enabled);
}

void FormInitial::CommandUnlock_Click()
{
    bPanelLocked = true;
    setDevicePanelEnabled(false);
    CommandUnlock->hide();
    CommandLock->show();
}

void FormInitial::CommandLock_Click()
{
    bPanelLocked = false;
    setDevicePanelEnabled(true);
    CommandLock->hide();
    CommandUnlock->show();
}

void FormInitial::ShowDeviceCounts()
{
    const qint16 counts[8] = {gMainConfig.m_iNExos, gMainConfig.m_iNTotems, gMainConfig.m_iNOSCs,
                              gMainConfig.m_iNArduinos, gMainConfig.m_iNQDMs, gMainConfig.m_iNFlash,
                              gMainConfig.m_iNMIDIs, gMainConfig.m_iNVideoCaps};
    const int lists[8] = {2, 4, 16, 16, 8, 16, 8, 4};
    for (int i = 0; i < 8; ++i) {
        QComboBox* combo = m_countCombos[i];
        combo->clear();
        for (int n = 0; n <= lists[i]; ++n)
            combo->addItem(QString::number(n));
        combo->setCurrentIndex(counts[i] >= 0 && counts[i] <= lists[i] ? counts[i] : -1);
    }
    txtEvPerSec->setText(QString::number(gMainConfig.m_iEventsPerSec));
}

void FormInitial::txtEvPerSec_Change()
{
    if (ConvertsToLong(txtEvPerSec->text())) {
        try {
            gMainConfig.m_iEventsPerSec = ToInteger(txtEvPerSec->text());
        } catch (const RuntimeError&) {
            // Above 32767: the number check passes and the conversion fails; the member stays.
        }
    } else {
        txtEvPerSec->setText(QStringLiteral("16"));
    }
    gDirty = true;
}

// The digital IO cards, offered from the Setup menu.
void FormInitial::DigitalIO_Click()
{
    FormDigitalIOSetup dialog(this);
    runDeviceDialog(dialog);
}
