// A performance's rules from end to end: written through "Add rule" and the
// rule editor, listed, edited, saved, and read back in a fresh start.
#include "MainWindowSession.h"
#include <QHeaderView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include "../files/FileTestHelpers.h"
#include "../ruleeditor/EditorTestHelpers.h"
#include "files/ModuleSaveOpen.h"
#include "model/SceneLists.h"

using namespace edtest;
using Steps = std::function<void(QWidget*)>;

namespace {
void pick(QWidget* d, const char* name, const QString& entry) { DialogDriver::pick(d, QString::fromLatin1(name), entry); }
void type(QWidget* d, const char* name, const QString& text) { DialogDriver::type(d, QString::fromLatin1(name), text); }
void click(QWidget* d, const char* name) { DialogDriver::click(d, QString::fromLatin1(name)); }

QByteArray ruleBlock(const QByteArray& file, int index)
{
    // Blocks follow the two number lines and each ends with an empty line.
    QList<QByteArray> lines = file.split('\n');
    QByteArray block;
    int found = 0;
    for (int i = 2; i < lines.size(); ++i) {
        if (found == index)
            block += lines[i] + '\n';
        if (lines[i] == "\r")
            ++found;
    }
    return block;
}
}

class TestRuleEndToEnd : public QObject {
    Q_OBJECT
    MainWindowSession session;
    QTemporaryDir dir;

    FormInitial* w() { return session.form.get(); }

    void startWithDevices()
    {
        session.start();
        ConfigureEveryKind();
        gExoData(0).m_iChannel(0) = 3;
        if (gScenes.Count() == 0) {
            auto scene = std::make_shared<CScene>();
            scene->m_strName = QStringLiteral("Opening");
            scene->InitPartList();
            gScenes.Add(scene);
            gLastScene = 0;
        }
        FillSceneListView(w()->ListMain2);
        gCurrentScene = 0;
        gCurrentPart = 0;
        gGlobalRuleView = false;
        w()->RefreshRuleView();
        if (!w()->ListEvents->isVisible())
            w()->CommandConn->click();
        QVERIFY(w()->ListEvents->isVisible());
    }

    // A click on a row of the rule list with the mouse, as a person selects a rule.
    void clickRow(int row)
    {
        QTreeWidgetItem* item = w()->ListEvents->topLevelItem(row);
        QVERIFY(item);
        w()->ListEvents->scrollToItem(item);
        QTest::mouseClick(w()->ListEvents->viewport(), Qt::LeftButton, {},
                          w()->ListEvents->visualItemRect(item).center());
    }

    // "Add rule" with the trailing row selected, the editor driven by `steps`, then OK.
    void addRule(const Steps& steps)
    {
        clickRow(w()->ListEvents->topLevelItemCount() - 1);
        QCOMPARE(w()->iSelectedRule, qint16(-1));
        DialogDriver driver;
        driver.next([&](QWidget* d) {
            steps(d);
            click(d, "CommandOK");
        });
        w()->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }

    QStringList row(int index)
    {
        QStringList cols;
        QTreeWidgetItem* item = w()->ListEvents->topLevelItem(index);
        for (int c = 0; c < 4; ++c)
            cols << item->text(c);
        return cols;
    }

private slots:
    void cleanup() { session.stop(); }

    void rulesOfEveryKindSurviveSaveAndOpen()
    {
        startWithDevices();
        // 1: Automatic "Begin" to a QEL command.
        addRule([](QWidget* d) {
            pick(d, "ComboTargetType", "QEL");
            pick(d, "ComboTarget", "Next Part");
        });
        // 2: a gate on the exoskeleton's left elbow to a MIDI note.
        addRule([](QWidget* d) {
            pick(d, "ComboTargetType", "MIDI");
            pick(d, "ComboSourceType", "Exoskeleton");
            pick(d, "ComboInterType", "Gate");
            type(d, "TextMinSource", "10");
            type(d, "TextMaxSource", "200");
            type(d, "TextMax", "127");
        });
        // 3: a MIDI control change to three actions, reordered.
        addRule([](QWidget* d) {
            pick(d, "ComboSourceType", "MIDI");
            pick(d, "ComboItem", "Control Change");
            pick(d, "ComboTargetType", "OSC");
            type(d, "TextVarTarget", "/level");
            click(d, "CommandAdd");
            auto* list = DialogDriver::find<QListWidget>(d, "ListCommands");
            list->clearSelection();
            list->setCurrentRow(-1);
            pick(d, "ComboTargetType", "Flash Player");
            pick(d, "ComboTarget", "All Flash Players");
            type(d, "TextVarTarget", "fader");
            click(d, "CommandAdd");
            list->clearSelection();
            list->setCurrentRow(-1);
            pick(d, "ComboTargetType", "Arduino");
            pick(d, "ComboCommand", "Digital 2");
            click(d, "CommandAdd");
            click(d, "CommandUp");     // Arduino ahead of Flash
            pick(d, "ListCommands", list->item(0)->text());
            click(d, "CommandDown");   // OSC after Arduino
            type(d, "TextRemarks", "three actions");
            type(d, "TextGroup", "mix");
        });
        // 4 to 8: the other source kinds.
        addRule([](QWidget* d) {
            pick(d, "ComboSourceType", "Joystick");
            pick(d, "ComboItem", "Sensor 3");
            pick(d, "ComboSense", "Down");
            pick(d, "ComboTargetType", "Video Capture");
            pick(d, "ComboTarget", "1");
        });
        addRule([](QWidget* d) {
            pick(d, "ComboInterType", "Range");
            pick(d, "ComboSourceType", "Arduino");
            pick(d, "ComboItem", "Analog 1");
            pick(d, "ComboTargetType", "Arduino");
        });
        addRule([](QWidget* d) {
            pick(d, "ComboSourceType", "Digital Input Card");
            pick(d, "ComboItem", "5");
            pick(d, "ComboTargetType", "QEL");
            pick(d, "ComboTarget", "Assign Value To Variable");
            type(d, "TextVarTarget", "counter");
        });
        addRule([](QWidget* d) {
            pick(d, "ComboInterType", "Copy");
            pick(d, "ComboSourceType", "OSC");
            pick(d, "ComboSource", "OscIn");
            type(d, "TextVarSource", "/fader");
            pick(d, "ComboTargetType", "OSC");
            type(d, "TextVarTarget", "/out");
        });
        addRule([](QWidget* d) {
            pick(d, "ComboSourceType", "Flash Player");
            pick(d, "ComboSource", "Flash Player 2");
            type(d, "TextVarSource", "score");
            pick(d, "ComboTargetType", "Flash Player");
            pick(d, "ComboTarget", "Flash Player 1");
            type(d, "TextVarTarget", "shown");
        });
        QCOMPARE(Part().AudioEvents.Count(), 8);
        QCOMPARE(row(0), (QStringList{"1", "AUTO", "QEL", "TRIG"}));
        QCOMPARE(row(1), (QStringList{"2", "EXO", "MIDI", "GATE"}));
        QCOMPARE(row(2), (QStringList{"3", "MIDI", "+++", "TRIG"}));
        QCOMPARE(row(3), (QStringList{"4", "TOT", "VCAP", "TRIG"}));
        QCOMPARE(row(4), (QStringList{"5", "ARD", "ARD", "RANG"}));
        QCOMPARE(row(5), (QStringList{"6", "DIO", "QEL", "TRIG"}));
        QCOMPARE(row(6), (QStringList{"7", "OSC", "OSC", "COPY"}));
        QCOMPARE(row(7), (QStringList{"8", "FLA", "FLA", "TRIG"}));

        // An edit that changes the source kind of rule 4 to the exoskeleton.
        {
            DialogDriver driver;
            driver.next([](QWidget* d) {
                pick(d, "ComboSourceType", "Exoskeleton");
                pick(d, "ComboItem", DialogDriver::find<QComboBox>(d, "ComboItem")->itemText(1));
                click(d, "CommandOK");
            });
            w()->ListEvents_DblClick(w()->ListEvents->topLevelItem(3));
            QVERIFY2(driver.finished(), qPrintable(driver.error()));
        }
        QCOMPARE(row(3), (QStringList{"4", "EXO", "VCAP", "TRIG"}));

        // A global rule on a variable.
        w()->ListGlobalRules_Click();
        addRule([](QWidget* d) {
            pick(d, "ComboSource", "QEL Variable");
            type(d, "TextVarSource", "x");
            pick(d, "ComboTargetType", "QEL");
            pick(d, "ComboTarget", "Previous Part");
        });
        QCOMPARE(gGlobalEvents.Count(), 1);

        const QString path = dir.filePath("show.qel");
        session.saveAs(native(path));
        QFile events(PerformanceFilePath(gMainConfig.m_strEventsFile));
        QVERIFY(events.open(QIODevice::ReadOnly));
        const QByteArray file = events.readAll();
        QVERIFY2(file.startsWith(" 1 \r\n 8 \r\n"), file.left(300).constData());
        QCOMPARE(ruleBlock(file, 0),
                 Lines1252({"0;0;0;00_00; ;AUTO;BEGIN; ;itype;0;sense;0;val1; ;val2; ;channel;1;min; ;max; ;clip;0;"
                            "enabled;1;label; ;",
                            "event;Automatic -> QEL | Trigger: Up |  || Begin * || QEL: Next Part - ;",
                            "numMessages;1;",
                            "ttype;QEL;target;5;item;-1;channel;0;val1; ;val2; ;min; ;max; ;midifile; ;action;-1;",
                            "message;QEL: Next Part - ;", ""}));
        QCOMPARE(ruleBlock(file, 1),
                 Lines1252({"1;0;0;00_00; ;EXO;1;CI;itype;1;sense;0;val1;VAR;val2; ;channel;1;min;10;max;200;clip;0;"
                            "enabled;1;label; ;",
                            "event;Exoskeleton -> MIDI | Gate || Exoskeleton 1 | Item: [3] Codo Izquierdo | Low Th: 10 "
                            "| High Th: 200 * || MIDI: Out1 - Command: Note On | Channel: 1 | Note: VAR | Velocity: 0 "
                            "| Low Val: 0 | High Val: 127;",
                            "numMessages;1;",
                            "ttype;MIDI;target;1;item;0;channel;0;val1;VAR;val2;0;min;0;max;127;midifile; ;action;-1;",
                            "message;MIDI: Out1 - Command: Note On | Channel: 1 | Note: VAR | Velocity: 0 | Low Val: 0 "
                            "| High Val: 127;",
                            ""}));
        const QByteArray third = ruleBlock(file, 2);
        QVERIFY2(third.startsWith("2;0;0;00_00;three actions;MIDI;1;1;itype;0;sense;0;val1;VAR;val2;0;channel;1;"
                                  "min;0;max;127;clip;0;enabled;1;label;mix;\r\n"),
                 third.constData());
        const QList<QByteArray> thirdLines = third.split('\n');
        QCOMPARE(thirdLines[2], QByteArray("numMessages;3;\r"));
        QCOMPARE(thirdLines[3], QByteArray("ttype;ARD;target;1;item;4;channel;0;val1;VAR;val2; ;min; ;max; ;midifile; "
                                           ";action;-1;\r"));
        QVERIFY(thirdLines[5].startsWith("ttype;OSC;target;1;item;/level;"));
        QVERIFY(thirdLines[7].startsWith("ttype;FLA;target;3;item;fader;"));
        QFile global(PerformanceFilePath("GlobalEvents.cfg"));
        QVERIFY(global.open(QIODevice::ReadOnly));
        const QList<QByteArray> globalLines = global.readAll().split('\n');
        QCOMPARE(globalLines[4], QByteArray(" ;AUTO;QEL_VAR; ;itype;0;sense;0;val1; ;val2; ;channel;1;min;0;max;0;"
                                            "clip;0;enabled;1;label; ;\r"));

        // A fresh start, then Open.
        session.stop();
        session.start();
        session.open(native(path));
        QCOMPARE(gScenes.Count(), 1);
        QCOMPARE(Part().AudioEvents.Count(), 8);
        gGlobalRuleView = false;
        gCurrentScene = 0;
        gCurrentPart = 0;
        w()->RefreshRuleView();
        QCOMPARE(row(2), (QStringList{"3", "MIDI", "+++", "TRIG"}));
        QCOMPARE(row(3), (QStringList{"4", "EXO", "VCAP", "TRIG"}));
        const CEvent& begin = *Part().AudioEvents(1);
        QCOMPARE(begin.m_iItem, qint16(0));             // not in the file
        QCOMPARE(begin.m_strVariable, QString(" "));    // written " ", read " "
        QVERIFY(begin.m_strVal1.isEmpty());
        const CAction& next = *begin.m_MsgOut->Item(1);
        QCOMPARE(next.m_iTarget, qint16(4));
        QCOMPARE(next.m_iCommand, qint16(-1));
        QCOMPARE(next.m_strVariable, QString("-1"));    // a QEL target with no variable reads its command
        QCOMPARE(next.m_strMIDIFile, QString(" "));
        const CEvent& mix = *Part().AudioEvents(3);
        QCOMPARE(mix.m_iItem, qint16(1));
        QCOMPARE(mix.m_strGroup, QString("mix"));
        QCOMPARE(mix.m_MsgOut->Count(), 3);
        QCOMPARE(mix.m_MsgOut->Item(1)->m_iTargetType, qint16(7));
        QCOMPARE(mix.m_MsgOut->Item(1)->m_iCommand, qint16(4));
        QCOMPARE(mix.m_MsgOut->Item(2)->m_iTargetType, qint16(8));
        QCOMPARE(mix.m_MsgOut->Item(2)->m_strVariable, QString("/level"));
        QCOMPARE(mix.m_MsgOut->Item(2)->m_iCommand, qint16(0));   // not in the file
        QCOMPARE(mix.m_MsgOut->Item(3)->m_iTarget, qint16(2));    // all Flash players
        const CEvent& edited = *Part().AudioEvents(4);
        QCOMPARE(edited.m_iSourceType, qint16(1));
        QCOMPARE(edited.m_iItem, qint16(1));
        QCOMPARE(edited.m_MsgOut->Item(1)->m_iTarget, qint16(1));
        QCOMPARE(edited.m_MsgOut->Item(1)->m_iCommand, qint16(0));   // video capture: not in the file
        QCOMPARE(Part().AudioEvents(5)->m_iItem, qint16(1));
        QCOMPARE(Part().AudioEvents(6)->m_iItem, qint16(5));
        QCOMPARE(Part().AudioEvents(6)->m_MsgOut->Item(1)->m_strVariable, QString("counter"));
        QCOMPARE(Part().AudioEvents(7)->m_strVariable, QString("/fader"));
        QCOMPARE(Part().AudioEvents(7)->m_iItem, qint16(0));
        QCOMPARE(Part().AudioEvents(8)->m_iSource, qint16(1));
        QCOMPARE(Part().AudioEvents(8)->m_strVariable, QString("score"));
        QCOMPARE(gGlobalEvents.Count(), 1);
        QCOMPARE(gGlobalEvents(1)->m_iSource, qint16(2));
        QVERIFY(gGlobalEvents(1)->m_strVariable.isEmpty());   // not saved for a global rule
    }

    void clipboardOnAFilteredListReachesTheFile()
    {
        startWithDevices();
        for (const char* target : {"QEL", "OSC", "QEL", "OSC", "QEL"})
            addRule([target](QWidget* d) {
                pick(d, "ComboTargetType", target);
                type(d, "TextRemarks", QString::fromLatin1(target));
            });
        for (int i = 1; i <= 5; ++i)
            Part().AudioEvents(i)->m_strRemarks = QStringLiteral("r%1").arg(i);
        gTargetFilter(9) = false;
        w()->RefreshRuleView();
        QCOMPARE(w()->ListEvents->topLevelItemCount(), 3);   // rules 2, 4 and the empty row
        clickRow(1);
        session.menu("Cut")->trigger();
        clickRow(0);
        QCOMPARE(w()->iSelectedRule, qint16(1));   // the row of rule 2
        session.menu("Paste")->trigger();
        gTargetFilter(9) = true;
        w()->RefreshRuleView();
        QStringList order;
        for (const auto& r : Part().AudioEvents)
            order << r->m_strRemarks;
        QCOMPARE(order, (QStringList{"r1", "r4", "r2", "r3", "r5"}));
        const QString path = dir.filePath("moved.qel");
        session.saveAs(native(path));
        QFile events(PerformanceFilePath(gMainConfig.m_strEventsFile));
        QVERIFY(events.open(QIODevice::ReadOnly));
        const QByteArray file = events.readAll();
        QVERIFY(ruleBlock(file, 1).startsWith("1;0;0;00_00;r4;"));
        QVERIFY(ruleBlock(file, 2).startsWith("2;0;0;00_00;r2;"));
    }

    void clipboardOnADescendingListReachesTheFile()
    {
        startWithDevices();
        for (int i = 1; i <= 3; ++i)
            addRule([i](QWidget* d) {
                pick(d, "ComboTargetType", "QEL");
                type(d, "TextRemarks", QStringLiteral("r%1").arg(i));
            });
        QHeaderView* header = w()->ListEvents->header();
        const QPoint numberColumn(header->sectionViewportPosition(0) + header->sectionSize(0) / 2, header->height() / 2);
        auto firstRow = [&] { return w()->ListEvents->topLevelItem(0)->text(0); };
        for (int i = 0; i < 2 && firstRow() != QLatin1String("3"); ++i)
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, numberColumn);
        QCOMPARE(firstRow(), QString("3"));
        // Rows 3 and 2 picked; the cut counts as if the rows ascended, and so takes rules 3 and 1.
        clickRow(0);
        QTest::mouseClick(w()->ListEvents->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          w()->ListEvents->visualItemRect(w()->ListEvents->topLevelItem(1)).center());
        session.menu("Cut")->trigger();
        clickRow(w()->ListEvents->topLevelItemCount() - 1);
        session.menu("Paste")->trigger();
        QStringList order;
        for (const auto& r : Part().AudioEvents)
            order << r->m_strRemarks;
        QCOMPARE(order, (QStringList{"r2", "r3", "r2"}));
        QStringList rows;
        for (int i = 0; i < w()->ListEvents->topLevelItemCount(); ++i)
            rows << w()->ListEvents->topLevelItem(i)->text(0);
        QCOMPARE(rows, (QStringList{"1", "2", "3", ""}));
        session.saveAs(native(dir.filePath("sorted.qel")));
        QFile events(PerformanceFilePath(gMainConfig.m_strEventsFile));
        QVERIFY(events.open(QIODevice::ReadOnly));
        const QByteArray file = events.readAll();
        QVERIFY(ruleBlock(file, 0).startsWith("0;0;0;00_00;r2;"));
        QVERIFY(ruleBlock(file, 1).startsWith("1;0;0;00_00;r3;"));
        QVERIFY(ruleBlock(file, 2).startsWith("2;0;0;00_00;r2;"));
    }
};

QTEST_MAIN(TestRuleEndToEnd)
#include "test_ruleendtoend.moc"
