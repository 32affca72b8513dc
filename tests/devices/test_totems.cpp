// The joysticks dialog as an operator uses it from the device panel, and what a
// joystick that gains axes does to the rules of the performance.
#include "DeviceDialogSession.h"
#include "devices/FormTotemsConfig.h"
#include "files/CBotEvent.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"

namespace {

std::shared_ptr<CEvent> sourceRule(qint16 type, qint16 source, qint16 item, const QString& remark)
{
    auto r = std::make_shared<CEvent>();
    r->m_iSourceType = type;
    r->m_iSource = source;
    r->m_iItem = item;
    r->m_strRemarks = remark;
    r->m_bEnabled = true;
    r->m_MsgOut = std::make_shared<Collection<CAction>>();
    return r;
}

std::shared_ptr<CEvent> joystickRule(qint16 joystick, qint16 item, const QString& remark)
{
    return sourceRule(2, joystick, item, remark);
}

std::shared_ptr<CBotEvent> botRule(qint16 robot, std::initializer_list<qint16> items)
{
    auto b = std::make_shared<CBotEvent>();
    b->m_iRukaBot = robot;
    qint16* fields[6] = {&b->m_iItem1, &b->m_iItem2, &b->m_iItem3, &b->m_iItem4, &b->m_iItem5, &b->m_iItem6};
    int k = 0;
    for (qint16 item : items)
        *fields[k++] = item;
    return b;
}

std::shared_ptr<CPart> newPart(qint16 id)
{
    auto part = std::make_shared<CPart>();
    part->m_iID = id;
    part->InitEventList();
    return part;
}

// The record line of a subscene's rule as Events.cfg holds it.
QByteArray recordLine(int rule, int scene, int part, const QString& remark, const QString& type, int device,
                      const QString& item)
{
    const QString place = QStringLiteral("%1;%2;%3;%4_%5;").arg(rule).arg(scene).arg(part)
                              .arg(scene, 2, 10, QLatin1Char('0')).arg(part, 2, 10, QLatin1Char('0'));
    return (QStringLiteral("\r\n") + place + remark + u';' + type + u';' + QString::number(device) + u';' + item
            + QStringLiteral(";itype;0;sense;0;val1; ;val2; ;channel;0;min; ;max; ;clip;0;enabled;1;label; ;\r\n"))
        .toLatin1();
}

} // namespace

class TestTotemsConfig : public QObject {
    Q_OBJECT
private:
    DeviceDialogSession s;

    // Opens the dialog over `count` joysticks and runs `act` on it; message boxes answered by `boxes`.
    void openWith(int count, const std::function<void(QWidget*)>& act, QList<DialogDriver::Action> boxes = {})
    {
        s.pickCount("ComboNTotems", count);
        gDirty = false;   // the count's own change is not under test
        QList<DialogDriver::Action> actions{[&](QWidget* d) { act(d); }};
        actions += boxes;
        QString error;
        QVERIFY2(s.click("CommandItems", actions, &error), qPrintable(error));
    }
    void setAxes(int count, int joystick, const QString& axes)
    {
        openWith(count, [&](QWidget* d) {
            typeIn(d, QStringLiteral("TextAxis%1").arg(joystick), axes);
            clickOn(d, QStringLiteral("CommandOK"));
        });
    }

    // Rules of every kind in three subscenes of two scenes, and a global rule.
    void buildRules()
    {
        auto scene1 = gScenes(1);
        auto p11 = scene1->PartList(1);
        p11->AddAudioEvent(joystickRule(0, 2, QStringLiteral("j1 button1")), 1);
        p11->AddAudioEvent(joystickRule(0, 1, QStringLiteral("j1 axisY")), 2);
        p11->AddAudioEvent(joystickRule(1, 3, QStringLiteral("j2 button2")), 3);
        p11->AddAudioEvent(sourceRule(1, 0, 5, QStringLiteral("exo")), 4);
        p11->AddAudioEvent(sourceRule(6, 0, 3, QStringLiteral("midi")), 5);
        scene1->AddPart(newPart(1), 2);
        scene1->PartList(2)->AddAudioEvent(joystickRule(2, 6, QStringLiteral("j3 button5")), 1);
        auto scene2 = std::make_shared<CScene>();
        scene2->m_iID = 1;
        scene2->m_strName = QStringLiteral("SCENE 2");
        scene2->InitPartList();
        gScenes.Add(scene2);
        gLastScene = 1;
        auto p21 = scene2->PartList(1);
        p21->AddAudioEvent(joystickRule(0, 0, QStringLiteral("j1 axisX")), 1);
        p21->AddBotEvent(botRule(0, {2, 2, 1, 5, 7, 9}), 1);
        p21->AddBotEvent(botRule(5, {3, 3, 3, 3, 3, 3}), 2);
        scene1->PartList(2)->AddBotEvent(botRule(3, {0, 1, 2, 3, 4, 5}), 1);
        AddGlobalEvent(joystickRule(0, 2, QStringLiteral("global")), 1);
        gMaxEventsPerPart = 5;   // as adding the rules in the main window leaves it
    }
    static qint16 item(int scene, int part, int rule) { return gScenes(scene)->PartList(part)->AudioEvents(rule)->m_iItem; }
    static QList<qint16> botItems(int scene, int part, int rule)
    {
        const auto& b = gScenes(scene)->PartList(part)->BotEvents(rule);
        return {b->m_iItem1, b->m_iItem2, b->m_iItem3, b->m_iItem4, b->m_iItem5, b->m_iItem6};
    }

private slots:
    void initTestCase() { s.start(); }
    void init() { s.fresh(); }
    void cleanupTestCase() { s.stop(); }

    void withNoJoysticksTheDialogOpensWithNoRows()
    {
        QList<bool> visible, remapShown;
        QStringList remaps, heads;
        QString caption;
        gMainConfig.m_iTotemDevice(3) = 6;
        openWith(0, [&](QWidget* d) {
            caption = d->windowTitle();
            for (QLabel* label : d->findChildren<QLabel*>())
                heads << label->text();
            for (int i = 1; i <= 4; ++i) {
                visible << shown(d, QStringLiteral("Label%1").arg(i)) << shown(d, QStringLiteral("TextAxis%1").arg(i))
                        << shown(d, QStringLiteral("TextButton%1").arg(i));
                remapShown << shown(d, row("TextTotem", i - 1));
                remaps << textOf(d, row("TextTotem", i - 1));
            }
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(caption, QStringLiteral("Joysticks Configuration"));
        // The axes head admits 1, which the check on OK refuses.
        for (const char* head : {"Joystick remap", "No. of Axis (1 - 6)", "No. of Buttons (1 - 128)", "Joystick 4:"})
            QVERIFY2(heads.contains(QString::fromLatin1(head)), head);
        QCOMPARE(visible, QList<bool>(12, false));
        // The remap column stands for all four joysticks, filled from the record.
        QCOMPARE(remapShown, QList<bool>(4, true));
        QCOMPARE(remaps, (QStringList{"1", "2", "3", "6"}));
    }

    void withNoJoysticksOkTakesOnlyTheRemapBoxes()
    {
        gTotemAxes(0) = 1;   // would stop the dialog, were the axes checked
        openWith(0, [&](QWidget* d) {
            typeIn(d, row("TextTotem", 0), QStringLiteral("4"));
            typeIn(d, row("TextTotem", 3), QStringLiteral("9"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QVERIFY(gDirty);
        QCOMPARE(gMainConfig.m_iTotemDevice(0), qint16(4));
        QCOMPARE(gMainConfig.m_iTotemDevice(2), qint16(3));
        QCOMPARE(gMainConfig.m_iTotemDevice(3), qint16(9));
        QCOMPARE(gTotemAxes(0), qint16(1));
        QCOMPARE(gTotemButtons(0), qint16(5));
    }

    void theRemapBoxesOfJoysticksNotInUseAreTakenToo()
    {
        openWith(2, [&](QWidget* d) {
            typeIn(d, row("TextTotem", 1), QStringLiteral("7"));
            typeIn(d, row("TextTotem", 2), QStringLiteral("8"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QCOMPARE(gMainConfig.m_iTotemDevice(1), qint16(7));
        QCOMPARE(gMainConfig.m_iTotemDevice(2), qint16(8));
        QCOMPARE(gMainConfig.m_iTotemDevice(3), qint16(4));
    }

    void theRowsInUseShowTheTables()
    {
        gTotemAxes(1) = 3;
        gTotemButtons(1) = 12;
        QStringList texts;
        QList<bool> visible;
        openWith(2, [&](QWidget* d) {
            texts << textOf(d, row("TextTotem", 1)) << textOf(d, QStringLiteral("TextAxis2"))
                  << textOf(d, QStringLiteral("TextButton2")) << control<QLabel>(d, QStringLiteral("Label2"))->text();
            for (int i = 1; i <= 4; ++i)
                visible << shown(d, QStringLiteral("TextAxis%1").arg(i));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(texts, (QStringList{"2", "3", "12", "Joystick 2:"}));
        QCOMPARE(visible, (QList<bool>{true, true, false, false}));
    }

    void fromTwoAxesToFourTheFirstButtonStaysTheFirstButton()
    {
        auto part = gScenes(1)->PartList(1);
        part->AddAudioEvent(joystickRule(0, 2, QStringLiteral("button")), 1);
        part->AddAudioEvent(joystickRule(0, 1, QStringLiteral("axis")), 2);
        setAxes(1, 1, QStringLiteral("4"));
        QCOMPARE(gTotemAxes(0), qint16(4));
        QCOMPARE(item(1, 1, 1), qint16(4));
        QCOMPARE(item(1, 1, 2), qint16(1));
        QCOMPARE(TotemItemToCode(item(1, 1, 1), 0), QStringLiteral("S1"));
        QVERIFY(gDirty);
    }

    void fromFourAxesToTwoNoRuleChanges()
    {
        setAxes(1, 1, QStringLiteral("4"));
        auto part = gScenes(1)->PartList(1);
        part->AddAudioEvent(joystickRule(0, 4, QStringLiteral("button 1")), 1);
        setAxes(1, 1, QStringLiteral("2"));
        QCOMPARE(gTotemAxes(0), qint16(2));
        QCOMPARE(item(1, 1, 1), qint16(4));
        // The same item now reads as the third button.
        QCOMPARE(TotemItemToCode(item(1, 1, 1), 0), QStringLiteral("S3"));
    }

    void anAxisCountOfOneGivesTheMessage()
    {
        gScenes(1)->PartList(1)->AddAudioEvent(joystickRule(0, 2, QStringLiteral("button")), 1);
        SeenBox box;
        bool stillOpen = false;
        openWith(
            1,
            [&](QWidget* d) {
                typeIn(d, QStringLiteral("TextAxis1"), QStringLiteral("1"));
                clickOn(d, QStringLiteral("CommandOK"));
                stillOpen = d->isVisible();
                clickOn(d, QStringLiteral("CommandCancel"));
            },
            {noteBox(&box)});
        QCOMPARE(box.text, QStringLiteral("Number of Axis must be between 2 and 6"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QVERIFY(stillOpen);
        QCOMPARE(gTotemAxes(0), qint16(2));
        QCOMPARE(item(1, 1, 1), qint16(2));
        QVERIFY(!gDirty);
    }

    void buttonsOf129StopTheDialogAfterTheAxesWereTaken()
    {
        gScenes(1)->PartList(1)->AddAudioEvent(joystickRule(1, 2, QStringLiteral("j2 button")), 1);
        SeenBox box;
        openWith(
            2,
            [&](QWidget* d) {
                typeIn(d, QStringLiteral("TextAxis1"), QStringLiteral("3"));
                typeIn(d, QStringLiteral("TextButton1"), QStringLiteral("129"));
                typeIn(d, QStringLiteral("TextAxis2"), QStringLiteral("5"));
                clickOn(d, QStringLiteral("CommandOK"));
                clickOn(d, QStringLiteral("CommandCancel"));
            },
            {noteBox(&box)});
        QCOMPARE(box.text, QStringLiteral("Number of Buttons must be between 1 and 128"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(gTotemAxes(0), qint16(3));
        QCOMPARE(gTotemButtons(0), qint16(5));
        QCOMPARE(gTotemAxes(1), qint16(2));
        QCOMPARE(item(1, 1, 1), qint16(3));
        QVERIFY(!gDirty);

        // A second OK finds joystick 1 unchanged and rewrites nothing for it.
        openWith(2, [&](QWidget* d) {
            typeIn(d, QStringLiteral("TextButton1"), QStringLiteral("128"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QCOMPARE(gTotemButtons(0), qint16(128));
        QCOMPARE(item(1, 1, 1), qint16(3));
    }

    void moreAxesMoveTheItemsOfRulesOfEveryKindInEverySubscene()
    {
        buildRules();
        setAxes(2, 1, QStringLiteral("4"));
        QCOMPARE(gTotemAxes(0), qint16(4));
        QCOMPARE(gTotemAxes(1), qint16(2));
        QCOMPARE(item(1, 1, 1), qint16(4));   // joystick 1, first button
        QCOMPARE(item(1, 1, 2), qint16(1));   // an axis stays
        QCOMPARE(item(1, 1, 3), qint16(5));   // joystick 2 moves as well
        QCOMPARE(item(1, 1, 4), qint16(5));   // exoskeleton: not a joystick rule
        QCOMPARE(item(1, 1, 5), qint16(3));   // MIDI: not a joystick rule
        QCOMPARE(item(1, 2, 1), qint16(8));   // joystick 3, in another subscene
        QCOMPARE(item(2, 1, 1), qint16(0));   // another scene, an axis
        // Robot rules: items 2 to 4 at or above the old count are raised, whatever their source.
        QCOMPARE(botItems(2, 1, 1), (QList<qint16>{2, 4, 1, 7, 7, 9}));
        QCOMPARE(botItems(2, 1, 2), (QList<qint16>{3, 5, 5, 5, 3, 3}));
        QCOMPARE(botItems(1, 2, 1), (QList<qint16>{0, 1, 4, 5, 4, 5}));
        // The global rules are left alone.
        QCOMPARE(gGlobalEvents(1)->m_iItem, qint16(2));

        s.saveAsAndRead(QStringLiteral("joysticks.qel"));
        const QByteArray events = ReadBytes(s.performanceFile(QStringLiteral("joysticks.qel"), QStringLiteral("Events.cfg")));
        QVERIFY2(events.contains(recordLine(0, 0, 0, QStringLiteral("j1 button1"), QStringLiteral("TOT"), 1, QStringLiteral("S1"))),
                 events.constData());
        QVERIFY(events.contains(recordLine(1, 0, 0, QStringLiteral("j1 axisY"), QStringLiteral("TOT"), 1, QStringLiteral("AY"))));
        QVERIFY(events.contains(recordLine(2, 0, 0, QStringLiteral("j2 button2"), QStringLiteral("TOT"), 2, QStringLiteral("S4"))));
        QVERIFY(events.contains(recordLine(3, 0, 0, QStringLiteral("exo"), QStringLiteral("EXO"), 1, QStringLiteral("RD"))));
        QVERIFY(events.contains(recordLine(4, 0, 0, QStringLiteral("midi"), QStringLiteral("MIDI"), 1, QStringLiteral("3"))));
        QVERIFY(events.contains(recordLine(0, 0, 1, QStringLiteral("j3 button5"), QStringLiteral("TOT"), 3, QStringLiteral("S7"))));
        QVERIFY(events.contains(recordLine(0, 1, 0, QStringLiteral("j1 axisX"), QStringLiteral("TOT"), 1, QStringLiteral("AX"))));
        // The global rule, not moved, now reads as the third axis of joystick 1.
        const QByteArray globals = ReadBytes(s.performanceFile(QStringLiteral("joysticks.qel"), QStringLiteral("GlobalEvents.cfg")));
        QVERIFY2(globals.contains("\r\nglobal;TOT;1;AZ;itype;0;sense;0;"), globals.constData());
    }

    void twoJoysticksGainingAxesMoveTheItemsTwice()
    {
        buildRules();
        openWith(2, [&](QWidget* d) {
            typeIn(d, QStringLiteral("TextAxis1"), QStringLiteral("3"));
            typeIn(d, QStringLiteral("TextAxis2"), QStringLiteral("5"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        // Joystick 1: items from 2 up by 1; joystick 2: items from 2 up by 3, on every rule.
        QCOMPARE(item(1, 1, 1), qint16(6));
        QCOMPARE(item(1, 1, 2), qint16(1));
        QCOMPARE(item(1, 1, 3), qint16(7));
        QCOMPARE(item(1, 2, 1), qint16(10));
        QCOMPARE(botItems(2, 1, 1), (QList<qint16>{2, 6, 1, 9, 7, 9}));
        QCOMPARE(gGlobalEvents(1)->m_iItem, qint16(2));

        s.saveAsAndRead(QStringLiteral("twice.qel"));
        const QByteArray events = ReadBytes(s.performanceFile(QStringLiteral("twice.qel"), QStringLiteral("Events.cfg")));
        QVERIFY2(events.contains(recordLine(0, 0, 0, QStringLiteral("j1 button1"), QStringLiteral("TOT"), 1, QStringLiteral("S4"))),
                 events.constData());
        QVERIFY(events.contains(recordLine(2, 0, 0, QStringLiteral("j2 button2"), QStringLiteral("TOT"), 2, QStringLiteral("S3"))));
        QVERIFY(events.contains(recordLine(0, 0, 1, QStringLiteral("j3 button5"), QStringLiteral("TOT"), 3, QStringLiteral("S9"))));
    }

    void okStoresTheJoysticksAndSaveAsWritesThem()
    {
        openWith(2, [&](QWidget* d) {
            typeIn(d, row("TextTotem", 0), QStringLiteral("2"));
            typeIn(d, row("TextTotem", 1), QStringLiteral("1"));
            typeIn(d, QStringLiteral("TextAxis1"), QStringLiteral("3"));
            typeIn(d, QStringLiteral("TextButton1"), QStringLiteral("10"));
            typeIn(d, QStringLiteral("TextAxis2"), QStringLiteral("6"));
            typeIn(d, QStringLiteral("TextButton2"), QStringLiteral("128"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QVERIFY(gDirty);
        const QByteArray file = s.saveAsAndRead(QStringLiteral("totems.qel"));
        QVERIFY2(file.contains(fileLines({"; Number of Totems:", " 2 ", "A3", "B10", "A6", "B128", "", "; Number of OSC connections:"})),
                 file.constData());
        QVERIFY2(file.contains(fileLines({"; Totem Devices:", "TD_BEGIN", " 2 ", " 1 ", "TD_END", "", "; Scenes & Subscenes File:"})),
                 file.constData());

        s.reopen(QStringLiteral("totems.qel"));
        QCOMPARE(gMainConfig.m_iNTotems, qint16(2));
        QCOMPARE(gTotemAxes(1), qint16(6));
        QCOMPARE(gTotemButtons(1), qint16(128));
        QCOMPARE(gMainConfig.m_iTotemDevice(0), qint16(2));
        QCOMPARE(gMainConfig.m_iTotemDevice(1), qint16(1));
    }

    void loadClearsTheUpdateFlagAndOkSetsIt()
    {
        {
            FormTotemsConfig dialog(s.form.get());
            dialog.iNumTotems = 1;
            const UpdateFlag ok = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandOK")); });
            QVERIFY2(ok.error.isEmpty(), qPrintable(ok.error));
            QVERIFY(!ok.atLoad);
            QVERIFY(ok.atClose);
        }
        FormTotemsConfig dialog(s.form.get());
        dialog.iNumTotems = 1;
        const UpdateFlag cancel = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandCancel")); });
        QVERIFY2(cancel.error.isEmpty(), qPrintable(cancel.error));
        QVERIFY(!cancel.atLoad);
        QVERIFY(!cancel.atClose);
    }

    void cancelChangesNothing()
    {
        gScenes(1)->PartList(1)->AddAudioEvent(joystickRule(0, 2, QStringLiteral("button")), 1);
        openWith(1, [&](QWidget* d) {
            typeIn(d, row("TextTotem", 0), QStringLiteral("9"));
            typeIn(d, QStringLiteral("TextAxis1"), QStringLiteral("6"));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(gMainConfig.m_iTotemDevice(0), qint16(1));
        QCOMPARE(gTotemAxes(0), qint16(2));
        QCOMPARE(item(1, 1, 1), qint16(2));
        QVERIFY(!gDirty);
    }
};

QTEST_MAIN(TestTotemsConfig)
#include "test_totems.moc"
