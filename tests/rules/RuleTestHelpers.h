#pragma once
// Shared helpers of the rule tests: building scenes and rules, comparing
// records field by field, and the hand-built performance behind the
// Events.cfg and GlobalEvents.cfg fixtures.
// Rules are written with designated initializers that name only the fields that matter.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#include <functional>
#include <initializer_list>
#include <memory>
#include <QApplication>
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include "model/CScene.h"
#include "support/DialogDriver.h"
#include "model/ModuleGlobals.h"
#include "rules/CAction.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"

namespace ruletest {

// Replaces gScenes by scenes with the given numbers of subscenes, all without rules.
// Runs a reading that must fail and gives the text of its one message box, or a
// description of what was wrong with the box (none, wrong title or icon).
inline QString FailureMessage(const std::function<bool()>& read, bool* result)
{
    DialogDriver driver(3000);
    QString text, title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    driver.next([&](QWidget* w) {
        text = DialogDriver::text(w);
        title = w->windowTitle();
        icon = qobject_cast<QMessageBox*>(w)->icon();
        DialogDriver::press(w, QMessageBox::Ok);
    });
    *result = read();
    if (!driver.finished())
        return QStringLiteral("<no box: %1>").arg(driver.error());
    if (title != QStringLiteral("QEL Setup") || icon != QMessageBox::Warning)
        return QStringLiteral("<box titled %1, icon %2>").arg(title).arg(int(icon));
    return text;
}

inline void ResetScenes(const QList<int>& partsPerScene)
{
    gScenes = Collection<CScene>();
    for (int s = 0; s < partsPerScene.size(); ++s) {
        auto scene = std::make_shared<CScene>();
        scene->m_iID = qint16(s);
        scene->m_strName = QStringLiteral("Scene %1").arg(s);
        scene->InitPartList();
        for (int p = 1; p < partsPerScene[s]; ++p) {
            auto part = std::make_shared<CPart>();
            part->m_iID = qint16(p);
            part->m_iScene = qint16(s);
            part->InitEventList();
            scene->AddPart(part, scene->PartList.Count() + 1);
        }
        gScenes.Add(scene);
    }
}

inline Collection<CEvent>& RulesOf(int sceneIndex, int partIndex)
{
    return gScenes.Item(sceneIndex + 1)->PartList.Item(partIndex + 1)->AudioEvents;
}

// A rule with its own copies of the given actions.
inline std::shared_ptr<CEvent> MakeRule(const CEvent& fields, std::initializer_list<CAction> actions)
{
    auto rule = std::make_shared<CEvent>(fields);
    rule->m_MsgOut = std::make_shared<Collection<CAction>>();
    for (const CAction& action : actions)
        rule->m_MsgOut->Add(std::make_shared<CAction>(action));
    return rule;
}

inline void AddRule(int sceneIndex, int partIndex, std::shared_ptr<CEvent> rule)
{
    RulesOf(sceneIndex, partIndex).Add(std::move(rule));
}

// The first field that differs, "" when the actions are equal.
inline QString DiffActions(const CAction& a, const CAction& b)
{
    QStringList d;
    auto num = [&](const char* name, int x, int y) { if (x != y) d << QStringLiteral("%1: %2 != %3").arg(QLatin1String(name)).arg(x).arg(y); };
    auto txt = [&](const char* name, const QString& x, const QString& y) { if (x != y) d << QStringLiteral("%1: '%2' != '%3'").arg(QLatin1String(name), x, y); };
    num("m_iTargetType", a.m_iTargetType, b.m_iTargetType);
    num("m_iTarget", a.m_iTarget, b.m_iTarget);
    num("m_iChannel", a.m_iChannel, b.m_iChannel);
    num("m_iCommand", a.m_iCommand, b.m_iCommand);
    txt("m_strVariable", a.m_strVariable, b.m_strVariable);
    txt("m_strVal1", a.m_strVal1, b.m_strVal1);
    txt("m_strVal2", a.m_strVal2, b.m_strVal2);
    txt("m_strMax", a.m_strMax, b.m_strMax);
    txt("m_strMin", a.m_strMin, b.m_strMin);
    num("m_iAction", a.m_iAction, b.m_iAction);
    txt("m_strMIDIFile", a.m_strMIDIFile, b.m_strMIDIFile);
    txt("m_strMessage", a.m_strMessage, b.m_strMessage);
    return d.join(QStringLiteral(", "));
}

// Every field that differs, "" when the rules are equal (actions compared by value).
inline QString DiffRules(const CEvent& a, const CEvent& b)
{
    QStringList d;
    auto num = [&](const char* name, int x, int y) { if (x != y) d << QStringLiteral("%1: %2 != %3").arg(QLatin1String(name)).arg(x).arg(y); };
    auto txt = [&](const char* name, const QString& x, const QString& y) { if (x != y) d << QStringLiteral("%1: '%2' != '%3'").arg(QLatin1String(name), x, y); };
    num("m_iInterType", a.m_iInterType, b.m_iInterType);
    num("m_iSense", a.m_iSense, b.m_iSense);
    num("m_iSourceType", a.m_iSourceType, b.m_iSourceType);
    num("m_iSource", a.m_iSource, b.m_iSource);
    num("m_iItem", a.m_iItem, b.m_iItem);
    txt("m_strVariable", a.m_strVariable, b.m_strVariable);
    txt("m_strVal1", a.m_strVal1, b.m_strVal1);
    txt("m_strVal2", a.m_strVal2, b.m_strVal2);
    num("m_iChannel", a.m_iChannel, b.m_iChannel);
    txt("m_strMin", a.m_strMin, b.m_strMin);
    txt("m_strMax", a.m_strMax, b.m_strMax);
    num("m_bClip", a.m_bClip, b.m_bClip);
    num("m_bEnabled", a.m_bEnabled, b.m_bEnabled);
    txt("m_strRemarks", a.m_strRemarks, b.m_strRemarks);
    txt("m_strGroup", a.m_strGroup, b.m_strGroup);
    txt("m_strEvent", a.m_strEvent, b.m_strEvent);
    const int na = a.m_MsgOut ? a.m_MsgOut->Count() : -1;
    const int nb = b.m_MsgOut ? b.m_MsgOut->Count() : -1;
    num("actions", na, nb);
    for (int i = 1; i <= na && i <= nb; ++i) {
        const QString da = DiffActions(*a.m_MsgOut->Item(i), *b.m_MsgOut->Item(i));
        if (!da.isEmpty())
            d << QStringLiteral("action %1: %2").arg(i).arg(da);
    }
    return d.join(QStringLiteral("; "));
}

// The worked example: the first rule of the first subscene, on an exoskeleton's
// left elbow, with one MIDI note as its action.
inline std::shared_ptr<CEvent> WorkedExampleRule()
{
    return MakeRule({.m_iInterType = 0, .m_iSense = 0, .m_iSourceType = 1, .m_iSource = 0, .m_iItem = 0,
                     .m_strVal1 = QStringLiteral("VAR"), .m_iChannel = -1, .m_strMin = QStringLiteral("0"),
                     .m_strMax = QStringLiteral("255"), .m_bClip = false, .m_bEnabled = true,
                     .m_strRemarks = QStringLiteral("Cue"), .m_strEvent = QStringLiteral("Exoskeleton -> MIDI")},
                    {{.m_iTargetType = 6, .m_iTarget = 0, .m_iChannel = 0, .m_iCommand = 0,
                      .m_strVal1 = QStringLiteral("60"), .m_strVal2 = QStringLiteral("100"), .m_iAction = 0,
                      .m_strMessage = QStringLiteral("MIDI")}});
}

// The performance of tests/data/rules/Events.cfg: three scenes of 2, 1 and 3
// subscenes, eleven rules over every kind of source, gMaxEventsPerPart 3.
inline void BuildEventsPerformance()
{
    ResetScenes({2, 1, 3});
    gTotemAxes(0) = 4;
    gTotemAxes(1) = 2;
    gMaxEventsPerPart = 3;
    auto Q = [](const char* t) { return QString::fromUtf8(t); };

    AddRule(0, 0, WorkedExampleRule());
    AddRule(0, 0, MakeRule({.m_iInterType = 0, .m_iSense = 2, .m_iSourceType = 0, .m_iSource = 0, .m_iItem = -1,
                            .m_iChannel = -1, .m_bEnabled = true, .m_strGroup = Q("Intro"),
                            .m_strEvent = Q("Begin -> Go To Scene 2")},
                           {{.m_iTargetType = 9, .m_iTarget = 3, .m_iChannel = -1, .m_iCommand = 2,
                             .m_strVariable = Q("2"), .m_strMessage = Q("Go To Scene 2")},
                            {.m_iTargetType = 10, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = -1,
                             .m_strVal1 = Q("1"), .m_strMessage = Q("Capture 1 on")}}));
    AddRule(0, 0, MakeRule({.m_iInterType = 0, .m_iSense = 0, .m_iSourceType = 0, .m_iSource = 1, .m_iItem = -1,
                            .m_iChannel = -1, .m_bEnabled = false, .m_strRemarks = Q("Salida"),
                            .m_strGroup = Q("Intro"), .m_strEvent = Q("End -> several")},
                           {{.m_iTargetType = 0, .m_iTarget = 1, .m_iChannel = -1, .m_iCommand = 0},
                            {.m_iTargetType = 1, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = -1,
                             .m_strVal1 = Q("5"), .m_strMessage = Q("Exo")},
                            {.m_iTargetType = 4, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 0,
                             .m_strMessage = Q("Unknown")},
                            {.m_iTargetType = 5, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 0,
                             .m_strVal1 = Q("1"), .m_strMessage = Q("Output 1")}}));

    AddRule(0, 1, MakeRule({.m_iInterType = 1, .m_iSense = 0, .m_iSourceType = 0, .m_iSource = 2, .m_iItem = -1,
                            .m_strVariable = Q("score"), .m_strVal1 = Q("10"), .m_iChannel = -1,
                            .m_strMin = Q("0"), .m_strMax = Q("100"), .m_bClip = true, .m_bEnabled = true,
                            .m_strRemarks = Q("Umbral se\u00f1al"), .m_strGroup = Q("Vars"),
                            .m_strEvent = Q("QEL Variable score -> Increment")},
                           {{.m_iTargetType = 9, .m_iTarget = 6, .m_iChannel = -1, .m_iCommand = -1,
                             .m_strVariable = Q("score"), .m_strVal1 = Q("1"), .m_strMessage = Q("Increment score")}}));
    AddRule(0, 1, MakeRule({.m_iInterType = 2, .m_iSense = 0, .m_iSourceType = 2, .m_iSource = 0, .m_iItem = 3,
                            .m_strVal1 = Q("VAR"), .m_iChannel = -1, .m_strMin = Q("-1000"), .m_strMax = Q("1000"),
                            .m_bClip = true, .m_bEnabled = true, .m_strGroup = Q("Joy"),
                            .m_strEvent = Q("Joystick 1 Eje RX -> MIDI CC")},
                           {{.m_iTargetType = 6, .m_iTarget = 1, .m_iChannel = 2, .m_iCommand = 1,
                             .m_strVal1 = Q("7"), .m_strVal2 = Q("VAR"), .m_strMax = Q("127"), .m_strMin = Q("0"),
                             .m_strMessage = Q("Control Change 7")}}));
    AddRule(0, 1, MakeRule({.m_iInterType = 0, .m_iSense = 1, .m_iSourceType = 2, .m_iSource = 1, .m_iItem = 13,
                            .m_strVal1 = Q("VAR"), .m_iChannel = -1, .m_bEnabled = true, .m_strGroup = Q("Joy"),
                            .m_strEvent = Q("Joystick 2 Sensor 12 -> Flash")},
                           {{.m_iTargetType = 3, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 0,
                             .m_strVariable = Q("scene"), .m_strVal1 = Q("2"), .m_strMessage = Q("Flash scene = 2")}}));

    AddRule(2, 0, MakeRule({.m_iInterType = 3, .m_iSense = 0, .m_iSourceType = 3, .m_iSource = 1, .m_iItem = -1,
                            .m_strVariable = Q("cue"), .m_strVal1 = Q("VAR"), .m_iChannel = -1, .m_bClip = true,
                            .m_bEnabled = true, .m_strEvent = Q("Flash Player 2 cue -> OSC")},
                           {{.m_iTargetType = 8, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 0,
                             .m_strVariable = Q("/light/1"), .m_strVal1 = Q("VAR"), .m_strMax = Q("1"),
                             .m_strMin = Q("0"), .m_strMessage = Q("OSC /light/1")}}));
    AddRule(2, 0, MakeRule({.m_iInterType = 0, .m_iSense = 1, .m_iSourceType = 5, .m_iSource = 0, .m_iItem = 3,
                            .m_strVal1 = Q("VAR"), .m_iChannel = -1, .m_bEnabled = true,
                            .m_strRemarks = Q("Puerta 3"), .m_strGroup = Q("Puertas"),
                            .m_strEvent = Q("Digital Input Card 1 -> Arduino")},
                           {{.m_iTargetType = 7, .m_iTarget = 1, .m_iChannel = -1, .m_iCommand = 4,
                             .m_strVal1 = Q("255"), .m_strMessage = Q("Arduino 2 pin 4")}}));

    AddRule(2, 2, MakeRule({.m_iInterType = 0, .m_iSense = 2, .m_iSourceType = 6, .m_iSource = 0, .m_iItem = 0,
                            .m_strVal1 = Q("60"), .m_strVal2 = Q("Any"), .m_iChannel = 0, .m_bEnabled = true,
                            .m_strGroup = Q("M\u00fasica"), .m_strEvent = Q("MIDI In -> Play intro.mid")},
                           {{.m_iTargetType = 6, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 3, .m_iAction = 1,
                             .m_strMIDIFile = Q("intro.mid"), .m_strMessage = Q("Play intro.mid")}}));
    AddRule(2, 2, MakeRule({.m_iInterType = 2, .m_iSense = 0, .m_iSourceType = 7, .m_iSource = 0, .m_iItem = 2,
                            .m_strVal1 = Q("VAR"), .m_iChannel = -1, .m_strMin = Q("100"), .m_strMax = Q("900"),
                            .m_bClip = true, .m_bEnabled = true, .m_strRemarks = Q("Sensor luz"),
                            .m_strEvent = Q("Arduino Analog 2 -> Next Part")},
                           {{.m_iTargetType = 9, .m_iTarget = 4, .m_iChannel = -1, .m_iCommand = -1,
                             .m_strMessage = Q("Next Part")}}));
    AddRule(2, 2, MakeRule({.m_iInterType = 2, .m_iSense = 0, .m_iSourceType = 8, .m_iSource = 0, .m_iItem = -1,
                            .m_strVariable = Q("/fader/1"), .m_strVal1 = Q("VAR"), .m_iChannel = -1,
                            .m_strMin = Q("0.5"), .m_strMax = Q("1"), .m_bEnabled = true,
                            .m_strGroup = Q("Final \u20ac"), .m_strEvent = Q("OSC /fader/1 -> several")},
                           {{.m_iTargetType = 9, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 3,
                             .m_strVariable = Q("3"), .m_strMessage = Q("Enable Event 3")},
                            {.m_iTargetType = 3, .m_iTarget = 2, .m_iChannel = -1, .m_iCommand = 0,
                             .m_strVariable = Q("volume"), .m_strVal1 = Q("VAR"),
                             .m_strMessage = Q("All Flash Players volume")}}));
}

// The global rules of tests/data/rules/GlobalEvents.cfg.
inline void BuildGlobalRules()
{
    auto Q = [](const char* t) { return QString::fromUtf8(t); };
    ClearGlobalEvents();
    AddGlobalEvent(MakeRule({.m_iInterType = 1, .m_iSense = 0, .m_iSourceType = 0, .m_iSource = 2, .m_iItem = -1,
                             .m_strVariable = Q("x"), .m_strVal1 = Q("5"), .m_iChannel = -1, .m_bEnabled = true,
                             .m_strGroup = Q("Global"), .m_strEvent = Q("QEL Variable x -> Go To Scene")},
                            {{.m_iTargetType = 9, .m_iTarget = 3, .m_iChannel = -1, .m_iCommand = 1,
                              .m_strVariable = Q("1"), .m_strMessage = Q("Go To Scene 1")}}),
                   0);
    AddGlobalEvent(MakeRule({.m_iInterType = 0, .m_iSense = 0, .m_iSourceType = 6, .m_iSource = 1, .m_iItem = 2,
                             .m_strVal1 = Q("Any"), .m_iChannel = 15, .m_bEnabled = true,
                             .m_strRemarks = Q("Pedal"), .m_strEvent = Q("MIDI 2 Program -> Flash + MIDI")},
                            {{.m_iTargetType = 3, .m_iTarget = 0, .m_iChannel = -1, .m_iCommand = 0,
                              .m_strVariable = Q("prog"), .m_strVal1 = Q("VAR"), .m_strMessage = Q("Flash prog")},
                             {.m_iTargetType = 6, .m_iTarget = 0, .m_iChannel = 1, .m_iCommand = 2,
                              .m_strVal1 = Q("VAR")}}),
                   0);
    AddGlobalEvent(MakeRule({.m_iInterType = 2, .m_iSense = 0, .m_iSourceType = 1, .m_iSource = 1, .m_iItem = 36,
                             .m_strVal1 = Q("VAR"), .m_iChannel = -1, .m_strMin = Q("0"), .m_strMax = Q("1023"),
                             .m_bClip = true, .m_bEnabled = false, .m_strGroup = Q("Global"),
                             .m_strEvent = Q("Exoskeleton 2 S5 -> OSC")},
                            {{.m_iTargetType = 8, .m_iTarget = 1, .m_iChannel = -1, .m_iCommand = 0,
                              .m_strVariable = Q("/exo/s5"), .m_strVal1 = Q("VAR"), .m_strMax = Q("1"),
                              .m_strMin = Q("0"), .m_strMessage = Q("OSC 2 /exo/s5")}}),
                   0);
    AddGlobalEvent(MakeRule({.m_iInterType = 0, .m_iSense = 0, .m_iSourceType = 0, .m_iSource = 0, .m_iItem = -1,
                             .m_iChannel = -1, .m_bEnabled = true, .m_strRemarks = Q("Inicio"),
                             .m_strEvent = Q("Begin -> VCAP")},
                            {{.m_iTargetType = 10, .m_iTarget = 1, .m_iChannel = -1, .m_iCommand = 0,
                              .m_strVal1 = Q("0"), .m_strMessage = Q("Capture 2 off")}}),
                   0);
}

// Closes every message box as soon as it shows, pressing OK, and counts them.
// For the tests that feed the readers damaged files, where a box may or may not come.
class BoxCloser : public QObject {
public:
    BoxCloser()
    {
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                auto* box = qobject_cast<QMessageBox*>(w);
                if (box && box->isVisible()) {
                    m_texts << box->text();
                    box->done(QMessageBox::Ok);
                }
            }
        });
        m_timer.start();
    }
    int count() const { return int(m_texts.size()); }
    QStringList texts() const { return m_texts; }
    void reset() { m_texts.clear(); }

private:
    QTimer m_timer;
    QStringList m_texts;
};

} // namespace ruletest
