#pragma once
// Shared helpers of the rule editor tests: device configurations from none to
// full, a subscene to work in, and the editor opened the way the main window
// opens it.
#include <memory>
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CPart.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "rules/ModuleRuleEdit.h"
#include "ruleeditor/FormAddEditAudioInter.h"
#include "ruleeditor/ModuleSourcesTargets.h"
#include "support/DialogDriver.h"

namespace edtest {

inline QStringList items(const QComboBox* combo)
{
    QStringList list;
    for (int i = 0; i < combo->count(); ++i)
        list << combo->itemText(i);
    return list;
}

inline QStringList items(const QListWidget* list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}

// One scene with one subscene, no rules; no device at all; the subscene view.
inline void ResetAll()
{
    gMainConfig = CMainConfig();
    for (int i = 0; i <= 7; ++i)
        gMainConfig.m_iMIDIPort(i) = -1;
    InitArduinoData();
    InitExoData();
    gTotemAxes.Fill(0);
    gTotemButtons.Fill(0);
    gNDigitalIO = 0;
    gDigitalIONIn.Fill(0);
    gScenes = Collection<CScene>();
    auto scene = std::make_shared<CScene>();
    scene->m_strName = QStringLiteral("Opening");
    scene->InitPartList();
    scene->PartList(1)->m_strName = QStringLiteral("Intro");
    gScenes.Add(scene);
    ClearGlobalEvents();
    gGlobalRuleView = false;
    gCurrentScene = 0;
    gCurrentPart = 0;
    gCurrentGroup.clear();
    gRuleEditMode = 1;
    gRuleIndex = -1;
    gRuleAccepted = false;
    gEditActions.Clear();
    gSuppressComboEvents = false;
    gDirty = false;
}

inline void AddMidiPort(int port, int inOut, const QString& label)
{
    gMainConfig.m_iMIDIPort(port) = qint16(port);
    gMainConfig.m_iPortInOut(port) = qint16(inOut);
    gMainConfig.m_strMIDIPortLabel(port) = label;
    // The packed lists of inputs and outputs, in port order.
    int in = 0, out = 0;
    for (int i = 0; i <= 7; ++i) {
        if (gMainConfig.m_iMIDIPort(i) < 0)
            continue;
        if (gMainConfig.m_iPortInOut(i) == 1) {
            gMainConfig.m_iInMIDIPort(in) = qint16(i);
            gMainConfig.m_strInMIDIPortLabel(in++) = gMainConfig.m_strMIDIPortLabel(i);
        } else if (gMainConfig.m_iPortInOut(i) == 2) {
            gMainConfig.m_iOutMIDIPort(out) = qint16(i);
            gMainConfig.m_strOutMIDIPortLabel(out++) = gMainConfig.m_strMIDIPortLabel(i);
        }
    }
    gMainConfig.m_iNMIDIs = qint16(qMax<int>(gMainConfig.m_iNMIDIs, port + 1));
}

// Board i (0-based): `analog` analog inputs and pins of the given types.
inline void AddArduino(int i, const QString& label, int analog, const QList<int>& pinTypes)
{
    CArduinoData& b = gArduinoData(i);
    b.m_strLabel = label;
    b.m_iNumAnalogInputs = qint16(analog);
    b.m_iNumDigitalIOs = qint16(pinTypes.size());
    for (int p = 0; p < pinTypes.size(); ++p)
        b.m_iDigitalType(p) = qint16(pinTypes[p]);
    gMainConfig.m_iNArduinos = qint16(qMax(int(gMainConfig.m_iNArduinos), i + 1));
}

inline void AddOsc(int i, int inOut, const QString& label)
{
    gMainConfig.m_iOSCPortInOut(i) = qint16(inOut);
    gMainConfig.m_strOSCPortLabel(i) = label;
    gMainConfig.m_iNOSCs = qint16(qMax(int(gMainConfig.m_iNOSCs), i + 1));
}

// A performance with one device of every kind, inputs and outputs.
inline void ConfigureEveryKind()
{
    gMainConfig.m_iNExos = 1;
    gMainConfig.m_iNTotems = 1;
    gTotemAxes(0) = 4;
    gTotemButtons(0) = 12;
    AddArduino(0, QStringLiteral("Ard1"), 2, {1, 2, 0, 1});
    AddMidiPort(0, 1, QStringLiteral("In1"));
    AddMidiPort(1, 2, QStringLiteral("Out1"));
    AddOsc(0, 1, QStringLiteral("OscIn"));
    AddOsc(1, 2, QStringLiteral("OscOut"));
    gMainConfig.m_iNFlash = 2;
    gNDigitalIO = 1;
    gDigitalIONIn(0) = 8;
    gMainConfig.m_iNQDMs = 1;
    gMainConfig.m_strDisplayManagerPath(0) = QStringLiteral("DM1");
    gMainConfig.m_iNAppPerQDM(0) = 3;
    gMainConfig.m_strVideoAppLabel(0, 0) = QStringLiteral("AppA");
    gMainConfig.m_strVideoAppLabel(0, 1) = QStringLiteral("AppB");
    gMainConfig.m_strVideoAppLabel(0, 2) = QStringLiteral("AppC");
    gMainConfig.m_iNVideoCaps = 2;
}

inline CPart& Part() { return *gScenes(1)->PartList(1); }

// The editor as the main window opens it, shown so that a person can act on it.
inline std::unique_ptr<FormAddEditAudioInter> Open(qint16 mode, qint16 index = -1)
{
    gRuleEditMode = mode;
    gRuleIndex = index;
    auto form = std::make_unique<FormAddEditAudioInter>();
    form->show();
    return form;
}

inline void Pick(QWidget* form, const char* name, const QString& entry)
{
    DialogDriver::pick(form, QString::fromLatin1(name), entry);
}

inline void Type(QWidget* form, const char* name, const QString& text)
{
    DialogDriver::type(form, QString::fromLatin1(name), text);
}

inline void Click(QWidget* form, const char* name) { DialogDriver::click(form, QString::fromLatin1(name)); }

inline bool Shown(const QWidget* w) { return !w->isHidden(); }

// Runs `act`, which must bring one message box; gives "title|text|icon" and presses `button`.
inline QString Box(const std::function<void()>& act, QMessageBox::StandardButton button = QMessageBox::Ok)
{
    DialogDriver driver(5000);
    QString seen;
    driver.next([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        seen = w->windowTitle() + QLatin1Char('|') + DialogDriver::text(w) + QLatin1Char('|') +
               QString::number(box ? int(box->icon()) : -1);
        DialogDriver::press(w, button);
    });
    act();
    if (!driver.finished())
        return QStringLiteral("<no box: %1>").arg(driver.error());
    return seen;
}

// A rule of a given source with one action, built as a record.
inline std::shared_ptr<CEvent> MakeRule(qint16 interType, qint16 sourceType, qint16 source, qint16 item,
                                        qint16 targetType = 9, qint16 target = 6)
{
    auto rule = std::make_shared<CEvent>();
    rule->m_iInterType = interType;
    rule->m_iSourceType = sourceType;
    rule->m_iSource = source;
    rule->m_iItem = item;
    rule->m_iChannel = 1;
    rule->m_strVal1 = QStringLiteral("VAR");
    rule->m_strMin = QStringLiteral("0");
    rule->m_strMax = QStringLiteral("0");
    rule->m_bEnabled = true;
    rule->m_strEvent = QStringLiteral("rule");
    rule->m_MsgOut = std::make_shared<Collection<CAction>>();
    auto action = std::make_shared<CAction>();
    action->m_iTargetType = targetType;
    action->m_iTarget = target;
    action->m_iCommand = -1;
    action->m_strVariable = QStringLiteral("v");
    action->m_strVal1 = QStringLiteral("1");
    action->m_strMessage = QStringLiteral("QEL: Increment Variable - Var Name: v");
    rule->m_MsgOut->Add(action);
    return rule;
}

} // namespace edtest
