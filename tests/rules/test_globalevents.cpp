// The global rules and GlobalEvents.cfg.
#include <QtTest>
#include <QTemporaryDir>
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "rules/RuleTestHelpers.h"

using namespace ruletest;

namespace {
const QByteArray kHeader = ";-----------------------------------------------------\r\n"
                           "; QEL Global Events Configuration File\r\n"
                           ";-----------------------------------------------------\r\n"
                           "\r\n";

std::shared_ptr<CEvent> namedRule(const QString& remarks)
{
    return MakeRule({.m_iSourceType = 6, .m_iItem = 0, .m_iChannel = 0, .m_strRemarks = remarks},
                    {{.m_iTargetType = 9, .m_iTarget = 4}});
}
} // namespace

class TestGlobalEvents : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString path(const QString& name = QStringLiteral("GlobalEvents.cfg")) const { return m_dir.filePath(name); }

    bool readQuietly(const QString& file)
    {
        DialogDriver driver(3000);
        const bool ok = ReadGlobalEventsFile(file);
        return driver.finished() && ok;
    }

    // Reads a file that must fail; gives the text of the one message box.
    QString readFailing(const QString& file, bool* result)
    {
        return FailureMessage([&file] { return ReadGlobalEventsFile(file); }, result);
    }

    QStringList remarks() const
    {
        QStringList out;
        for (const auto& r : gGlobalEvents)
            out << r->m_strRemarks;
        return out;
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init()
    {
        ClearGlobalEvents();
        gTotemAxes(0) = 4;
    }

    // --- the collection ---

    void clearGivesAnEmptyCollectionAndZeroCount()
    {
        AddGlobalEvent(namedRule(QStringLiteral("a")), 0);
        QCOMPARE(gGlobalEventCount, qint16(1));
        ClearGlobalEvents();
        QCOMPARE(gGlobalEvents.Count(), 0);
        QCOMPARE(gGlobalEventCount, qint16(0));
    }

    void addAppendsOutsideTheListAndInsertsBeforeInside()
    {
        AddGlobalEvent(namedRule(QStringLiteral("a")), 0);
        AddGlobalEvent(namedRule(QStringLiteral("b")), 5);
        AddGlobalEvent(namedRule(QStringLiteral("c")), -3);
        AddGlobalEvent(namedRule(QStringLiteral("x")), 1);
        AddGlobalEvent(namedRule(QStringLiteral("y")), 4);
        QCOMPARE(remarks(), QStringList({"x", "a", "b", "y", "c"}));
        QCOMPARE(gGlobalEventCount, qint16(5));
    }

    void removeIgnoresPositionsOutsideTheList()
    {
        for (const char* r : {"a", "b", "c"})
            AddGlobalEvent(namedRule(QString::fromLatin1(r)), 0);
        RemoveGlobalEvent(0);
        RemoveGlobalEvent(4);
        QCOMPARE(gGlobalEventCount, qint16(3));
        RemoveGlobalEvent(2);
        QCOMPARE(remarks(), QStringList({"a", "c"}));
        QCOMPARE(gGlobalEventCount, qint16(2));
    }

    void copyGlobalEventIsADeepCopy()
    {
        auto source = namedRule(QStringLiteral("src"));
        CEvent target;
        CopyGlobalEvent(target, *source);
        QCOMPARE(DiffRules(target, *source), QString());
        target.m_MsgOut->Item(1)->m_iTarget = 7;
        QCOMPARE(source->m_MsgOut->Item(1)->m_iTarget, qint16(4));
    }

    // --- the golden file ---

    void goldenGlobalEventsFileIsWrittenByteForByte()
    {
        BuildGlobalRules();
        QVERIFY(WriteGlobalEventsFile(path()));
        QCOMPARE(ReadBytes(path()), ReadBytes(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg"))));
    }

    void goldenGlobalEventsFileReadsBackEveryRule()
    {
        QVERIFY(readQuietly(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg"))));
        QList<std::shared_ptr<CEvent>> read;
        for (const auto& r : gGlobalEvents)
            read << r;
        BuildGlobalRules();
        QCOMPARE(read.size(), gGlobalEvents.Count());
        for (int i = 1; i <= gGlobalEvents.Count(); ++i) {
            CEvent& expected = *gGlobalEvents.Item(i);
            if (expected.m_iSourceType == 0) {
                expected.m_iItem = 0;
                expected.m_strVariable.clear();
            }
            for (const auto& a : *expected.m_MsgOut)
                if (a->m_strMIDIFile.isEmpty())
                    a->m_strMIDIFile = QStringLiteral(" ");
            const QString diff = DiffRules(*read[i - 1], expected);
            QVERIFY2(diff.isEmpty(), qPrintable(QStringLiteral("rule %1: %2").arg(i).arg(diff)));
        }
    }

    void goldenGlobalEventsFileWrittenAgainAfterReadingIsUnchanged()
    {
        QVERIFY(readQuietly(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg"))));
        QVERIFY(WriteGlobalEventsFile(path()));
        QCOMPARE(ReadBytes(path()), ReadBytes(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg"))));
    }

    void buildingTheTextStoresBlankBackIntoEmptyFields()
    {
        AddGlobalEvent(MakeRule({.m_iSourceType = 8, .m_iSource = 0, .m_iChannel = -1},
                                {{.m_iTargetType = 6, .m_iCommand = 0}}),
                       0);
        const QString text = BuildGlobalEventText(1);
        QVERIFY(text.startsWith(QStringLiteral(" ;OSC;1;;itype;0;sense;0;val1; ;val2; ;channel;-1;min; ;max; ;clip;0;enabled;0;label; ;\r\n")));
        const CEvent& r = *gGlobalEvents.Item(1);
        QCOMPARE(r.m_strRemarks, QStringLiteral(" "));
        QCOMPARE(r.m_strGroup, QStringLiteral(" "));
        QCOMPARE(r.m_strEvent, QStringLiteral(" "));
        QCOMPARE(r.m_strVariable, QString());
        QCOMPARE(r.m_MsgOut->Item(1)->m_strMIDIFile, QStringLiteral(" "));
    }

    void everyRuleIsWrittenWithNoLimit()
    {
        gMaxEventsPerPart = 1;
        for (int i = 0; i < 5; ++i)
            AddGlobalEvent(namedRule(QStringLiteral("r%1").arg(i)), 0);
        QVERIFY(WriteGlobalEventsFile(path()));
        QCOMPARE(ReadBytes(path()).count("numMessages;1;"), 5);
    }

    // --- edge cases ---

    void noGlobalRulesGivesFourLinesAndReadsEmpty()
    {
        QVERIFY(WriteGlobalEventsFile(path()));
        QCOMPARE(ReadBytes(path()), kHeader);
        AddGlobalEvent(namedRule(QStringLiteral("old")), 0);
        QVERIFY(readQuietly(path()));
        QCOMPARE(gGlobalEvents.Count(), 0);
    }

    void qelVariableRuleKeepsABlankItemAndLosesItsVariable()
    {
        AddGlobalEvent(MakeRule({.m_iSourceType = 0, .m_iSource = 2, .m_strVariable = QStringLiteral("x"),
                                 .m_iChannel = -1},
                                {{.m_iTargetType = 9, .m_iTarget = 3, .m_strVariable = QStringLiteral("1")}}),
                       0);
        QVERIFY(WriteGlobalEventsFile(path()));
        const QByteArray bytes = ReadBytes(path());
        QVERIFY(bytes.contains("\r\n\r\n ;AUTO;QEL_VAR; ;itype;"));
        QVERIFY(readQuietly(path()));
        QCOMPARE(gGlobalEvents.Count(), 1);
        QCOMPARE(gGlobalEvents.Item(1)->m_iSourceType, qint16(0));
        QCOMPARE(gGlobalEvents.Item(1)->m_iSource, qint16(2));
        QCOMPARE(gGlobalEvents.Item(1)->m_strVariable, QString());
    }

    void fileWithOnlyTheThreeHeaderLinesReadsTrue()
    {
        WriteBytes(path(), kHeader.left(kHeader.size() - 2));
        AddGlobalEvent(namedRule(QStringLiteral("old")), 0);
        QVERIFY(readQuietly(path()));
        QCOMPARE(gGlobalEvents.Count(), 0);
    }

    void automaticBeginRuleReadsWithAnEmptyVariable()
    {
        WriteBytes(path(), kHeader + "Inicio;AUTO;BEGIN; ;itype;0;sense;0;val1; ;val2; ;channel;-1;min; ;max; ;clip;0;enabled;1;label; ;\r\n"
                                     "event;Begin -> VCAP;\r\nnumMessages;1;\r\n"
                                     "ttype;VCAP;target;2;item; ;channel;-1;val1;0;val2; ;min; ;max; ;midifile; ;action;0;\r\n"
                                     "message;Capture 2 off;\r\n\r\n");
        QVERIFY(readQuietly(path()));
        QCOMPARE(gGlobalEvents.Count(), 1);
        QCOMPARE(gGlobalEvents.Item(1)->m_strVariable, QString());
        QCOMPARE(gGlobalEvents.Item(1)->m_iSource, qint16(0));
        QCOMPARE(gGlobalEvents.Item(1)->m_strRemarks, QStringLiteral("Inicio"));
    }

    // --- more of the reader ---

    void shortLineAddsARuleWithoutActionsAndTheNextLineIsARecordLine()
    {
        const QByteArray golden = ReadBytes(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg")));
        QByteArray bytes = golden;
        bytes.insert(kHeader.size(), "ab\r\n");
        WriteBytes(path(), bytes);
        QVERIFY(readQuietly(path()));
        QCOMPARE(gGlobalEvents.Count(), 5);
        const CEvent& shortRule = *gGlobalEvents.Item(1);
        QVERIFY(!shortRule.m_MsgOut);
        QCOMPARE(shortRule.m_bEnabled, false);
        QCOMPARE(shortRule.m_strRemarks, QString());
        QCOMPARE(gGlobalEvents.Item(2)->m_strEvent, QStringLiteral("QEL Variable x -> Go To Scene"));
    }

    void countOfZeroShowsTheMessageAndFails()
    {
        WriteBytes(path(), kHeader + " ;MIDI;1;0;itype;0;sense;0;val1; ;val2; ;channel;0;min; ;max; ;clip;0;enabled;1;label; ;\r\n"
                                     "event; ;\r\nnumMessages;0;\r\n\r\n");
        bool result = true;
        QCOMPARE(readFailing(path(), &result), QStringLiteral("Error opening global events configuration file!"));
        QVERIFY(!result);
    }

    void missingFileShowsTheMessage()
    {
        AddGlobalEvent(namedRule(QStringLiteral("old")), 0);
        bool result = true;
        QCOMPARE(readFailing(path(QStringLiteral("none.cfg")), &result),
                 QStringLiteral("Error opening global events configuration file!"));
        QVERIFY(!result);
        QCOMPARE(gGlobalEvents.Count(), 0);   // emptied before the file was opened
    }

    void fileShorterThanTheHeaderShowsTheMessage()
    {
        WriteBytes(path(), QByteArray(";---\r\n; QEL\r\n"));
        bool result = true;
        QCOMPARE(readFailing(path(), &result), QStringLiteral("Error opening global events configuration file!"));
        QVERIFY(!result);
    }

    void rulesReadBeforeAFailureStay()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg")));
        bytes.replace("numMessages;2;", "numMessages;x;");
        WriteBytes(path(), bytes);
        bool result = true;
        QCOMPARE(readFailing(path(), &result), QStringLiteral("Error opening global events configuration file!"));
        QVERIFY(!result);
        QCOMPARE(gGlobalEvents.Count(), 1);
    }

    void flashAndOscTakeTheirVariableFromTheItemField()
    {
        WriteBytes(path(), kHeader + " ;FLA;1;cue;itype;3;sense;0;val1;VAR;val2; ;channel;-1;min; ;max; ;clip;1;enabled;1;label; ;\r\n"
                                     "event; ;\r\nnumMessages;1;\r\n"
                                     "ttype;OSC;target;1;item;/a;channel;-1;val1;VAR;val2; ;min; ;max; ;midifile; ;action;0;\r\n"
                                     "message;m;\r\n\r\n");
        QVERIFY(readQuietly(path()));
        QCOMPARE(gGlobalEvents.Item(1)->m_strVariable, QStringLiteral("cue"));
        QCOMPARE(gGlobalEvents.Item(1)->m_iItem, qint16(0));
        QCOMPARE(gGlobalEvents.Item(1)->m_MsgOut->Item(1)->m_strVariable, QStringLiteral("/a"));
    }
};

QTEST_MAIN(TestGlobalEvents)
#include "test_globalevents.moc"
