#pragma once
// A small performance that the check finds clean, which each test then spoils
// in one place, and helpers to look for a finding.
#include <algorithm>
#include <memory>
#include <vector>
#include <QString>
#include "check/ModuleCheck.h"
#include "files/FileTestHelpers.h"
#include "files/CBotEvent.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"

inline std::shared_ptr<CAction> MidiNote(qint16 device)
{
    auto action = std::make_shared<CAction>();
    action->m_iTargetType = 6;
    action->m_iTarget = device;
    action->m_iChannel = 0;
    action->m_iCommand = 0;
    action->m_strVal1 = QStringLiteral("60");
    action->m_strVal2 = QStringLiteral("100");
    action->m_strMessage = QStringLiteral("MIDI");
    return action;
}

// A rule on the left elbow of suit 1 that plays a note on MIDI device 1.
inline std::shared_ptr<CEvent> ElbowRule(const QString& remark = QStringLiteral("Cue"))
{
    auto rule = std::make_shared<CEvent>();
    rule->m_iSourceType = 1;
    rule->m_iSource = 0;
    rule->m_iItem = 0;
    rule->m_strVal1 = QStringLiteral("VAR");
    rule->m_iChannel = -1;
    rule->m_strMin = QStringLiteral("0");
    rule->m_strMax = QStringLiteral("255");
    rule->m_bEnabled = true;
    rule->m_strRemarks = remark;
    rule->m_strEvent = QStringLiteral("Exoskeleton -> MIDI");
    rule->m_MsgOut = std::make_shared<Collection<CAction>>();
    rule->m_MsgOut->Add(MidiNote(0));
    return rule;
}

// One suit on COM3, one joystick, two OSC connections, one Arduino on COM4, one
// MIDI device, one Flash player, one display manager, one capture device; two
// scenes with rules and one global rule.
inline void BuildCleanPerformance()
{
    gMainConfig = CMainConfig();
    CMainConfig& c = gMainConfig;
    c.m_strName = QStringLiteral("Opening night");
    c.m_iNExos = 1;
    c.m_iExo1Port = 3;
    c.m_iNTotems = 1;
    c.m_iTotemDevice(0) = 1;
    c.m_iNOSCs = 2;
    for (int i = 0; i <= 15; ++i)
        c.m_iOSCPort(i) = -1;
    c.m_strOSCPortLabel(0) = QStringLiteral("Lights");
    c.m_strOSCIP(0) = QStringLiteral("192.168.1.20");
    c.m_iOSCPort(0) = 9000;
    c.m_iOSCPortInOut(0) = 2;
    c.m_strOSCPortLabel(1) = QStringLiteral("Sound");
    c.m_strOSCIP(1) = QStringLiteral("192.168.1.20");
    c.m_iOSCPort(1) = 9001;
    c.m_iOSCPortInOut(1) = 2;
    c.m_iNArduinos = 1;
    c.m_iNQDMs = 1;
    c.m_iNAppPerQDM(0) = 1;
    c.m_strDisplayManagerPath(0) = QStringLiteral("\\\\QDM1\\qdm\\");
    c.m_strVideoAppLabel(0, 0) = QStringLiteral("Player");
    c.m_strVideoAppWindow(0, 0) = QStringLiteral("Player Window");
    c.m_strVideoAppPath(0, 0) = QStringLiteral("c:\\player.exe");
    c.m_iNMIDIs = 1;
    for (int i = 0; i <= 7; ++i) {
        c.m_iMIDIPort(i) = -1;
        c.m_iInMIDIPort(i) = -1;
        c.m_iOutMIDIPort(i) = -1;
    }
    c.m_iMIDIPort(0) = 0;
    c.m_iPortInOut(0) = 2;
    c.m_strMIDIPortLabel(0) = QStringLiteral("Synth");
    c.m_iNFlash = 1;
    c.m_strFlashFolderPath(0) = QStringLiteral("\\\\flash1\\folder\\");
    c.m_iNVideoCaps = 1;
    c.m_iFlashPort = 1122;
    c.m_iQDMPort = 1111;
    c.m_iTalporPort = 9;
    c.m_iMovieWidth = 800;
    c.m_iMovieHeight = 600;
    c.m_strLocalIPAddress = QStringLiteral("192.168.1.10");
    c.m_iEventsPerSec = 16;
    for (int i = 0; i <= 3; ++i) {
        gTotemAxes(i) = 2;
        gTotemButtons(i) = 5;
    }
    gNDigitalIO = 0;
    InitExoSensorLabels();
    InitExoTypeNames();
    InitExoData();
    InitArduinoData();
    gArduinoData(0).m_iCOMPort = 4;
    gArduinoData(0).m_iNumAnalogInputs = 2;
    gArduinoData(0).m_iNumDigitalIOs = 10;

    gScenes.Clear();
    gLastScene = -1;
    auto intro = AddTestScene(QStringLiteral("INTRO"), 1);
    intro->m_strRemarks = QStringLiteral("House lights down");
    intro->m_strMovie(0) = QStringLiteral("intro.swf");
    intro->PartList.Item(1)->m_strName = QStringLiteral("Start");
    intro->PartList.Item(1)->AddAudioEvent(ElbowRule(), 1);
    intro->PartList.Item(1)->AddAudioEvent(ElbowRule(QStringLiteral("Second")), 2);
    auto finale = AddTestScene(QStringLiteral("FINALE"), 2);
    finale->m_strMovie(0) = QStringLiteral("finale.swf");
    finale->PartList.Item(1)->AddAudioEvent(ElbowRule(QStringLiteral("Bow")), 1);
    finale->PartList.Item(2)->AddAudioEvent(ElbowRule(QStringLiteral("Curtain")), 1);
    gMaxEventsPerPart = 2;

    ClearGlobalEvents();
    auto begin = std::make_shared<CEvent>();
    begin->m_iSourceType = 0;
    begin->m_iSource = 0;
    begin->m_bEnabled = true;
    begin->m_strVal1 = QStringLiteral("VAR");
    begin->m_strEvent = QStringLiteral("Begin -> MIDI");
    begin->m_MsgOut = std::make_shared<Collection<CAction>>();
    begin->m_MsgOut->Add(MidiNote(0));
    AddGlobalEvent(begin, 0);

    gConfigFilePath.clear();
    gConfigName.clear();
    gConfigFolder.clear();
    gDirty = false;
    gCurrentScene = 0;
    gCurrentPart = 0;
}

inline const CFinding* FindKind(const std::vector<CFinding>& findings, FindingKind kind)
{
    auto it = std::find_if(findings.begin(), findings.end(), [kind](const CFinding& f) { return f.m_kind == kind; });
    return it == findings.end() ? nullptr : &*it;
}

inline QString AllLines(const std::vector<CFinding>& findings)
{
    QString out;
    for (const auto& f : findings)
        out += FindingLine(f) + u'\n';
    return out;
}
