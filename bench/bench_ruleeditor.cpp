// Times the rule editor and the rule list as an operator meets them: the
// opening of the editor on rules of every kind, from the click to a dialog
// ready for input, and the refill of the rule list for subscenes of 100,
// 1,000 and 5,000 rules. Prints medians in milliseconds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>
#include <QApplication>
#include <QTreeWidget>
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

namespace {

double medianMs(int runs, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void configureDevices()
{
    CMainConfig& c = gMainConfig;
    for (int i = 0; i <= 7; ++i)
        c.m_iMIDIPort(i) = -1;
    c.m_iNExos = 2;
    c.m_iNTotems = 4;
    for (int i = 0; i < 4; ++i) {
        gTotemAxes(i) = 6;
        gTotemButtons(i) = 12;
    }
    c.m_iNArduinos = 16;
    for (int i = 0; i < 16; ++i) {
        gArduinoData(i).m_strLabel = QStringLiteral("Arduino %1").arg(i + 1);
        gArduinoData(i).m_iNumAnalogInputs = 6;
        gArduinoData(i).m_iNumDigitalIOs = 14;
        for (int p = 0; p < 14; ++p)
            gArduinoData(i).m_iDigitalType(p) = qint16(p % 3);
    }
    for (int i = 0; i <= 7; ++i) {
        c.m_iMIDIPort(i) = qint16(i);
        c.m_iPortInOut(i) = qint16(i < 4 ? 1 : 2);
        c.m_strMIDIPortLabel(i) = QStringLiteral("MIDI %1").arg(i);
        if (i < 4)
            c.m_strInMIDIPortLabel(i) = c.m_strMIDIPortLabel(i);
        else
            c.m_strOutMIDIPortLabel(i - 4) = c.m_strMIDIPortLabel(i);
    }
    c.m_iNOSCs = 16;
    for (int i = 0; i < 16; ++i) {
        c.m_iOSCPortInOut(i) = qint16(i % 2 + 1);
        c.m_strOSCPortLabel(i) = QStringLiteral("OSC %1").arg(i);
    }
    c.m_iNFlash = 16;
    gNDigitalIO = 4;
    for (int i = 0; i < 4; ++i)
        gDigitalIONIn(i) = 16;
    c.m_iNQDMs = 8;
    for (int d = 0; d < 8; ++d) {
        c.m_strDisplayManagerPath(d) = QStringLiteral("DM %1").arg(d);
        c.m_iNAppPerQDM(d) = 8;
        for (int a = 0; a < 8; ++a)
            c.m_strVideoAppLabel(d, a) = QStringLiteral("App %1").arg(a);
    }
    c.m_iNVideoCaps = 4;
}

std::shared_ptr<CEvent> makeRule(int n, qint16 interType, qint16 sourceType, qint16 item, qint16 targetType,
                                 qint16 target, qint16 command)
{
    auto rule = std::make_shared<CEvent>();
    rule->m_iInterType = interType;
    rule->m_iSourceType = sourceType;
    rule->m_iItem = item;
    rule->m_iChannel = 1;
    rule->m_strVal1 = QStringLiteral("VAR");
    rule->m_strMin = QStringLiteral("0");
    rule->m_strMax = QStringLiteral("127");
    rule->m_bEnabled = true;
    rule->m_strGroup = QStringLiteral("group %1").arg(n % 7);
    rule->m_strRemarks = QStringLiteral("rule %1").arg(n);
    rule->m_strEvent = QStringLiteral("description of rule %1").arg(n);
    rule->m_MsgOut = std::make_shared<Collection<CAction>>();
    for (int a = 0; a < 3; ++a) {
        auto action = std::make_shared<CAction>();
        action->m_iTargetType = targetType;
        action->m_iTarget = target;
        action->m_iCommand = command;
        action->m_strVal1 = QStringLiteral("VAR");
        action->m_strVal2 = QStringLiteral("100");
        action->m_strVariable = QStringLiteral("v");
        action->m_strMessage = QStringLiteral("action %1").arg(a);
        rule->m_MsgOut->Add(action);
    }
    return rule;
}

CPart& part() { return *gScenes(1)->PartList(1); }

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    configureDevices();
    auto scene = std::make_shared<CScene>();
    scene->InitPartList();
    gScenes.Add(scene);
    gCurrentScene = 0;
    gCurrentPart = 0;
    gGlobalRuleView = false;

    // Rules of every source kind, with targets of every kind.
    struct Kind {
        const char* name;
        qint16 inter, source, item, target, targetNumber, command;
    };
    const Kind kinds[] = {
        {"Automatic -> QEL", 0, 0, -1, 9, 6, -1},  {"Exoskeleton -> MIDI", 1, 1, 3, 6, 0, 0},
        {"Joystick -> OSC", 2, 2, 1, 8, 0, -1},    {"Flash -> Flash", 3, 3, 0, 3, 16, -1},
        {"Digital in -> VCAP", 0, 5, 4, 10, 1, 0}, {"MIDI -> Arduino", 1, 6, 1, 7, 2, 4},
        {"Arduino -> MIDI", 2, 7, 2, 6, 1, 1},     {"OSC -> OSC", 3, 8, 0, 8, 1, -1},
    };
    int n = 0;
    for (const Kind& k : kinds)
        part().AddAudioEvent(makeRule(++n, k.inter, k.source, k.item, k.target, k.targetNumber, k.command), 0);

    const int openings = 60;
    std::printf("Rule editor, from the click to a dialog ready for input (median of %d openings):\n", openings);
    auto open = [&](qint16 mode, qint16 index) {
        gRuleEditMode = mode;
        gRuleIndex = index;
        FormAddEditAudioInter editor;
        editor.show();
        QApplication::processEvents();
        editor.hide();
    };
    open(1, -1);   // warm-up
    std::printf("  %-24s %7.2f ms\n", "new rule", medianMs(openings, [&] { open(1, -1); }));
    for (int i = 0; i < n; ++i)
        std::printf("  %-24s %7.2f ms\n", kinds[i].name, medianMs(openings, [&] { open(2, qint16(i)); }));

    std::printf("Rule list refill (FillRuleList, median of 15):\n");
    QTreeWidget list;
    SetupRuleListColumns(&list);
    list.resize(1000, 600);
    list.show();
    for (int size : {100, 1000, 5000}) {
        part().InitEventList();
        for (int i = 0; i < size; ++i) {
            const Kind& k = kinds[i % 8];
            part().AddAudioEvent(makeRule(i, k.inter, k.source, k.item, k.target, k.targetNumber, k.command), 0);
        }
        const double ms = medianMs(15, [&] {
            FillRuleList(1, 1, &list);
            QApplication::processEvents();
        });
        std::printf("  %5d rules %9.2f ms\n", size, ms);
    }
    return 0;
}
