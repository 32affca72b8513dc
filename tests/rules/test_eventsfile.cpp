// Events.cfg: the rules of every subscene as text, written and read back.
#include <QtTest>
#include <QTemporaryDir>
#include "model/CArduinoData.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "support/TextFile.h"
#include "rules/RuleTestHelpers.h"

using namespace ruletest;

namespace {
QList<QByteArray> linesOf(const QByteArray& bytes) { return bytes.split('\n'); }

QByteArray crlf(std::initializer_list<const char*> lines)
{
    QByteArray out;
    for (const char* l : lines)
        out += QByteArray(l) + "\r\n";
    return out;
}
} // namespace

class TestEventsFile : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString path(const QString& name = QStringLiteral("Events.cfg")) const { return m_dir.filePath(name); }

    // A performance of one scene with one subscene holding the given rule.
    QByteArray writeOne(std::shared_ptr<CEvent> rule)
    {
        ResetScenes({1});
        AddRule(0, 0, std::move(rule));
        gMaxEventsPerPart = 1;
        if (!WriteEventsFile(path()))
            return QByteArray();
        return ReadBytes(path());
    }

    // The record line (line 3) and the first action line (line 6) of a one-rule file.
    static QString recordLine(const QByteArray& bytes) { return QString::fromLatin1(linesOf(bytes).value(2)).chopped(1); }
    static QString actionLine(const QByteArray& bytes) { return QString::fromLatin1(linesOf(bytes).value(5)).chopped(1); }

    // Reads the file back into a fresh one-scene performance; true when it read without a message.
    bool readBack(const QList<int>& parts = {1})
    {
        ResetScenes(parts);
        DialogDriver driver(3000);
        const bool ok = ReadEventsFile(path());
        return driver.finished() && ok;
    }

    std::shared_ptr<CEvent> roundTrip(std::shared_ptr<CEvent> rule, QByteArray* bytes = nullptr)
    {
        const QByteArray written = writeOne(std::move(rule));
        if (bytes)
            *bytes = written;
        if (written.isEmpty() || !readBack() || RulesOf(0, 0).Count() != 1)
            return nullptr;
        return RulesOf(0, 0).Item(1);
    }

    // Reads a file that must fail; gives the text of the one message box.
    QString readFailing(const QList<int>& parts, bool* result)
    {
        ResetScenes(parts);
        return FailureMessage([this] { return ReadEventsFile(path()); }, result);
    }

    static std::shared_ptr<CEvent> midiRule(const CEvent& fields)
    {
        return MakeRule(fields, {{.m_iTargetType = 6, .m_iTarget = 0, .m_iChannel = 0, .m_iCommand = 0,
                                  .m_strVal1 = QStringLiteral("60"), .m_strMessage = QStringLiteral("MIDI")}});
    }
    static CEvent exoFields()
    {
        return {.m_iSourceType = 1, .m_iSource = 0, .m_iItem = 0, .m_strVal1 = QStringLiteral("VAR"),
                .m_iChannel = -1, .m_bEnabled = true, .m_strEvent = QStringLiteral("e")};
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init()
    {
        gTotemAxes(0) = 4;
        gTotemAxes(1) = 2;
        gMaxEventsPerPart = 0;
        InitArduinoData();
    }

    // --- the worked example and the golden files ---

    void workedExampleBlockLineForLine()
    {
        ResetScenes({1});
        AddRule(0, 0, WorkedExampleRule());
        QCOMPARE(BuildEventText(1, 1, 1, true),
                 QStringLiteral("0;0;0;00_00;Cue;EXO;1;CI;itype;0;sense;0;val1;VAR;val2; ;channel;-1;min;0;max;255;clip;0;enabled;1;label; ;\r\n"
                                "event;Exoskeleton -> MIDI;\r\n"
                                "numMessages;1;\r\n"
                                "ttype;MIDI;target;1;item;0;channel;0;val1;60;val2;100;min; ;max; ;midifile; ;action;0;\r\n"
                                "message;MIDI;\r\n"));
    }

    void workedExampleFileIsWrittenByteForByte()
    {
        ResetScenes({1});
        AddRule(0, 0, WorkedExampleRule());
        gMaxEventsPerPart = 1;
        QVERIFY(WriteEventsFile(path()));
        QCOMPARE(ReadBytes(path()), ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg"))));
    }

    void workedExampleFileReadsBackItsRule()
    {
        ResetScenes({1});
        DialogDriver driver(3000);
        QVERIFY(ReadEventsFile(TestDataPath(QStringLiteral("rules/WorkedExample.cfg"))));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMaxEventsPerPart, qint16(1));
        QCOMPARE(RulesOf(0, 0).Count(), 1);
        auto expected = WorkedExampleRule();
        expected->m_MsgOut->Item(1)->m_strMIDIFile = QStringLiteral(" ");
        QCOMPARE(DiffRules(*RulesOf(0, 0).Item(1), *expected), QString());
    }

    void blockWithoutPlaceLeavesTheFirstFourFieldsOut()
    {
        ResetScenes({1});
        AddRule(0, 0, WorkedExampleRule());
        const QString text = BuildEventText(1, 1, 1, false);
        QVERIFY(text.startsWith(QStringLiteral("Cue;EXO;1;CI;itype;0;")));
    }

    void goldenEventsFileIsWrittenByteForByte()
    {
        BuildEventsPerformance();
        QVERIFY(WriteEventsFile(path()));
        const QByteArray expected = ReadBytes(TestDataPath(QStringLiteral("rules/Events.cfg")));
        QVERIFY(!expected.isEmpty());
        const QByteArray actual = ReadBytes(path());
        const QList<QByteArray> a = linesOf(actual), e = linesOf(expected);
        for (int i = 0; i < std::min(a.size(), e.size()); ++i)
            QVERIFY2(a[i] == e[i], qPrintable(QStringLiteral("line %1: '%2' != '%3'").arg(i + 1)
                                                  .arg(QString::fromLatin1(a[i]), QString::fromLatin1(e[i]))));
        QCOMPARE(actual, expected);
    }

    void goldenEventsFileReadsBackEveryRule()
    {
        ResetScenes({2, 1, 3});
        DialogDriver driver(3000);
        QVERIFY(ReadEventsFile(TestDataPath(QStringLiteral("rules/Events.cfg"))));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMaxEventsPerPart, qint16(3));
        // Keep what was read, then build the performance as it was before saving.
        QList<QList<std::shared_ptr<CEvent>>> read;
        for (int s = 0; s < 3; ++s)
            for (int p = 0; p < gScenes.Item(s + 1)->PartList.Count(); ++p) {
                QList<std::shared_ptr<CEvent>> rules;
                for (const auto& r : RulesOf(s, p))
                    rules << r;
                read << rules;
            }
        BuildEventsPerformance();
        QList<QList<std::shared_ptr<CEvent>>> built;
        for (int s = 0; s < 3; ++s)
            for (int p = 0; p < gScenes.Item(s + 1)->PartList.Count(); ++p) {
                QList<std::shared_ptr<CEvent>> rules;
                for (const auto& r : RulesOf(s, p))
                    rules << r;
                built << rules;
            }
        QCOMPARE(read.size(), built.size());
        // What the file does not carry, as the format has it:
        for (const auto& rules : built)
            for (const auto& r : rules) {
                if (r->m_iSourceType == 0 || r->m_iSourceType == 3 || r->m_iSourceType == 8)
                    r->m_iItem = 0;
                if (r->m_iSourceType == 0 && r->m_iSource != 2)
                    r->m_strVariable = QStringLiteral(" ");
                for (const auto& a : *r->m_MsgOut) {
                    if (a->m_strMIDIFile.isEmpty())
                        a->m_strMIDIFile = QStringLiteral(" ");
                    if (a->m_iTargetType == 10)
                        a->m_iCommand = 0;
                    if (a->m_iTargetType == 9 && a->m_strVariable.isEmpty())
                        a->m_strVariable = QString::number(a->m_iCommand);
                }
            }
        for (int i = 0; i < built.size(); ++i) {
            QCOMPARE(read[i].size(), built[i].size());
            for (int j = 0; j < built[i].size(); ++j) {
                const QString diff = DiffRules(*read[i][j], *built[i][j]);
                QVERIFY2(diff.isEmpty(), qPrintable(QStringLiteral("subscene %1 rule %2: %3").arg(i).arg(j + 1).arg(diff)));
            }
        }
    }

    void goldenEventsFileWrittenAgainAfterReadingIsUnchanged()
    {
        ResetScenes({2, 1, 3});
        DialogDriver driver(3000);
        QVERIFY(ReadEventsFile(TestDataPath(QStringLiteral("rules/Events.cfg"))));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(WriteEventsFile(path()));
        QCOMPARE(ReadBytes(path()), ReadBytes(TestDataPath(QStringLiteral("rules/Events.cfg"))));
    }

    void writingStoresBlankBackIntoTheEmptyFields()
    {
        auto rule = MakeRule({.m_iSourceType = 0, .m_iSource = 0, .m_iChannel = -1},
                             {{.m_iTargetType = 9, .m_iTarget = 3, .m_iCommand = 1}});
        writeOne(rule);
        const QString blank = QStringLiteral(" ");
        QCOMPARE(rule->m_strRemarks, blank);
        QCOMPARE(rule->m_strVal1, blank);
        QCOMPARE(rule->m_strVal2, blank);
        QCOMPARE(rule->m_strMin, blank);
        QCOMPARE(rule->m_strMax, blank);
        QCOMPARE(rule->m_strGroup, blank);
        QCOMPARE(rule->m_strEvent, blank);
        QCOMPARE(rule->m_strVariable, QString());   // the item is not stored back
        const CAction& a = *rule->m_MsgOut->Item(1);
        QCOMPARE(a.m_strVal1, blank);
        QCOMPARE(a.m_strVal2, blank);
        QCOMPARE(a.m_strMin, blank);
        QCOMPARE(a.m_strMax, blank);
        QCOMPARE(a.m_strMIDIFile, blank);
        QCOMPARE(a.m_strVariable, QString());
        QCOMPARE(a.m_strMessage, QString());
    }

    void writerFailsWithoutMessageWhenTheFileCannotBeMade()
    {
        ResetScenes({1});
        DialogDriver driver(1000);
        QVERIFY(!WriteEventsFile(m_dir.filePath(QStringLiteral("no/such/folder/Events.cfg"))));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }

    void missingFileShowsTheMessageWithSceneOneAndPartOne()
    {
        QFile::remove(path());
        gMaxEventsPerPart = 5;
        bool result = true;
        QCOMPARE(readFailing({1}, &result),
                 QStringLiteral("Error opening events configuration file!\r\nScene: 1 Part: 1"));
        QVERIFY(!result);
        QCOMPARE(gMaxEventsPerPart, qint16(0));
    }

    // --- what survives a round trip ---

    void itemOfAutomaticFlashAndOscIsNotWrittenAndReadsZero()
    {
        for (qint16 type : {0, 3, 8}) {
            QByteArray bytes;
            auto read = roundTrip(midiRule({.m_iSourceType = type, .m_iSource = 2, .m_iItem = 9,
                                            .m_strVariable = QStringLiteral("v"), .m_iChannel = -1}), &bytes);
            QVERIFY(read);
            QVERIFY(!recordLine(bytes).contains(QStringLiteral(";9;")));
            QCOMPARE(read->m_iItem, qint16(0));
            QCOMPARE(read->m_strVariable, QStringLiteral("v"));
        }
    }

    void exoskeletonItemOutsideTableIsWrittenDashAndReads37()
    {
        CEvent fields = exoFields();
        fields.m_iItem = 40;
        QByteArray bytes;
        auto read = roundTrip(midiRule(fields), &bytes);
        QVERIFY(read);
        QVERIFY(recordLine(bytes).startsWith(QStringLiteral("0;0;0;00_00; ;EXO;1;-;itype;")));
        QCOMPARE(read->m_iItem, qint16(37));
    }

    void automaticBeginVariableIsWrittenBlankAndReadsBlank()
    {
        QByteArray bytes;
        auto read = roundTrip(midiRule({.m_iSourceType = 0, .m_iSource = 0, .m_strVariable = QStringLiteral("lost"),
                                        .m_iChannel = -1}), &bytes);
        QVERIFY(read);
        QVERIFY(recordLine(bytes).contains(QStringLiteral(";AUTO;BEGIN; ;itype;")));
        QCOMPARE(read->m_strVariable, QStringLiteral(" "));
    }

    void variableOfOtherSourceTypesIsNotWrittenAndReadsEmpty()
    {
        for (qint16 type : {1, 2, 5, 6, 7}) {
            CEvent fields = exoFields();
            fields.m_iSourceType = type;
            fields.m_iItem = 1;
            fields.m_strVariable = QStringLiteral("hidden");
            QByteArray bytes;
            auto read = roundTrip(midiRule(fields), &bytes);
            QVERIFY(read);
            QVERIFY(!bytes.contains("hidden"));
            QCOMPARE(read->m_strVariable, QString());
        }
    }

    void commandOfFlashAndOscTargetsIsNotWrittenAndReadsZero()
    {
        for (qint16 type : {3, 8}) {
            QByteArray bytes;
            auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = type, .m_iTarget = 0, .m_iCommand = 5,
                                                          .m_strVariable = QStringLiteral("/x")}}), &bytes);
            QVERIFY(read);
            QVERIFY(actionLine(bytes).contains(QStringLiteral(";item;/x;")));
            QCOMPARE(read->m_MsgOut->Item(1)->m_iCommand, qint16(0));
            QCOMPARE(read->m_MsgOut->Item(1)->m_strVariable, QStringLiteral("/x"));
        }
    }

    void commandOfVideoCaptureTargetsIsNotWrittenAndReadsZero()
    {
        QByteArray bytes;
        auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = 10, .m_iTarget = 1, .m_iCommand = 2}}), &bytes);
        QVERIFY(read);
        QCOMPARE(actionLine(bytes),
                 QStringLiteral("ttype;VCAP;target;2;item; ;channel;0;val1; ;val2; ;min; ;max; ;midifile; ;action;0;"));
        QCOMPARE(read->m_MsgOut->Item(1)->m_iCommand, qint16(0));
    }

    void commandOfQelTargetWithNonNumericVariableReadsMinusOne()
    {
        QByteArray bytes;
        auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = 9, .m_iTarget = 6, .m_iCommand = 4,
                                                      .m_strVariable = QStringLiteral("score")}}), &bytes);
        QVERIFY(read);
        QVERIFY(actionLine(bytes).contains(QStringLiteral(";item;score;")));
        QCOMPARE(read->m_MsgOut->Item(1)->m_iCommand, qint16(-1));
        QCOMPARE(read->m_MsgOut->Item(1)->m_strVariable, QStringLiteral("score"));
    }

    void commandOfQelTargetWithNumericVariableIsReplacedByIt()
    {
        auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = 9, .m_iTarget = 3, .m_iCommand = 4,
                                                      .m_strVariable = QStringLiteral("7")}}));
        QVERIFY(read);
        QCOMPARE(read->m_MsgOut->Item(1)->m_iCommand, qint16(7));
        QCOMPARE(read->m_MsgOut->Item(1)->m_strVariable, QStringLiteral("7"));
    }

    void variableOfQelTargetWithEmptyVariableReadsAsTheCommandText()
    {
        QByteArray bytes;
        auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = 9, .m_iTarget = 4, .m_iCommand = 12}}), &bytes);
        QVERIFY(read);
        QVERIFY(actionLine(bytes).contains(QStringLiteral(";item;12;")));
        QCOMPARE(read->m_MsgOut->Item(1)->m_strVariable, QStringLiteral("12"));
        QCOMPARE(read->m_MsgOut->Item(1)->m_iCommand, qint16(12));
    }

    void variableOfArduinoMidiAndOtherTargetsIsNotWrittenAndReadsEmpty()
    {
        for (qint16 type : {0, 5, 6, 7, 10}) {
            QByteArray bytes;
            auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = type, .m_iTarget = 0, .m_iCommand = 1,
                                                          .m_strVariable = QStringLiteral("hidden")}}), &bytes);
            QVERIFY2(read, qPrintable(QString::number(type)));
            QVERIFY(!bytes.contains("hidden"));
            QCOMPARE(read->m_MsgOut->Item(1)->m_strVariable, QString());
        }
    }

    void emptyMidiFileIsWrittenBlankAndReadsBlank()
    {
        QByteArray bytes;
        auto read = roundTrip(MakeRule(exoFields(), {{.m_iTargetType = 6, .m_iCommand = 3}}), &bytes);
        QVERIFY(read);
        QVERIFY(actionLine(bytes).contains(QStringLiteral(";midifile; ;")));
        QCOMPARE(read->m_MsgOut->Item(1)->m_strMIDIFile, QStringLiteral(" "));
    }

    void blankTextFieldsReadEmptyExceptMessageMidiFileAndVariable()
    {
        const QString b = QStringLiteral(" ");
        auto read = roundTrip(MakeRule({.m_iSourceType = 8, .m_iSource = 0, .m_strVariable = b, .m_strVal1 = b,
                                        .m_strVal2 = b, .m_strMin = b, .m_strMax = b, .m_strRemarks = b,
                                        .m_strGroup = b, .m_strEvent = b},
                                       {{.m_iTargetType = 8, .m_strVariable = b, .m_strVal1 = b, .m_strVal2 = b,
                                         .m_strMax = b, .m_strMin = b, .m_strMIDIFile = b, .m_strMessage = b}}));
        QVERIFY(read);
        QCOMPARE(read->m_strVal1, QString());
        QCOMPARE(read->m_strVal2, QString());
        QCOMPARE(read->m_strMin, QString());
        QCOMPARE(read->m_strMax, QString());
        QCOMPARE(read->m_strRemarks, QString());
        QCOMPARE(read->m_strGroup, QString());
        QCOMPARE(read->m_strEvent, QString());
        QCOMPARE(read->m_strVariable, b);
        const CAction& a = *read->m_MsgOut->Item(1);
        QCOMPARE(a.m_strVal1, QString());
        QCOMPARE(a.m_strVal2, QString());
        QCOMPARE(a.m_strMin, QString());
        QCOMPARE(a.m_strMax, QString());
        QCOMPARE(a.m_strMessage, b);
        QCOMPARE(a.m_strMIDIFile, b);
        QCOMPARE(a.m_strVariable, b);
    }

    void semicolonInATextShiftsTheRestOfItsLine()
    {
        CEvent fields = exoFields();
        fields.m_strGroup = QStringLiteral("a;b");
        fields.m_strEvent = QStringLiteral("x;y");
        auto rule = MakeRule(fields, {{.m_iTargetType = 6, .m_strMessage = QStringLiteral("one;two")}});
        QByteArray bytes;
        auto read = roundTrip(rule, &bytes);
        QVERIFY(read);
        QVERIFY(recordLine(bytes).endsWith(QStringLiteral(";label;a;b;")));
        QCOMPARE(read->m_strGroup, QStringLiteral("a"));
        QCOMPARE(read->m_strEvent, QStringLiteral("x"));
        QCOMPARE(read->m_MsgOut->Item(1)->m_strMessage, QStringLiteral("one"));
    }

    void semicolonInTheRemarksMakesTheReadingFail()
    {
        CEvent fields = exoFields();
        fields.m_strRemarks = QStringLiteral("a;b");
        writeOne(midiRule(fields));
        bool result = true;
        QCOMPARE(readFailing({1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 1 Part: 1"));
        QVERIFY(!result);
    }

    void lineBreakInATextBreaksTheBlock()
    {
        CEvent fields = exoFields();
        fields.m_strEvent = QStringLiteral("first\r\nsecond");
        const QByteArray bytes = writeOne(midiRule(fields));
        QVERIFY(bytes.contains("event;first\r\nsecond;\r\n"));
        bool result = true;
        QCOMPARE(readFailing({1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 1 Part: 1"));
        QVERIFY(!result);
        QCOMPARE(RulesOf(0, 0).Count(), 0);
    }

    void ruleWithNoActionMakesTheWholeReadingFail()
    {
        ResetScenes({1, 1});
        AddRule(0, 0, WorkedExampleRule());
        AddRule(1, 0, MakeRule(exoFields(), {}));
        AddRule(1, 0, WorkedExampleRule());
        gMaxEventsPerPart = 2;
        QVERIFY(WriteEventsFile(path()));
        QVERIFY(ReadBytes(path()).contains("numMessages;0;"));
        bool result = true;
        QCOMPARE(readFailing({1, 1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 2 Part: 1"));
        QVERIFY(!result);
        QCOMPARE(RulesOf(0, 0).Count(), 1);   // read before the failure: it stays
        QCOMPARE(RulesOf(1, 0).Count(), 0);
        QCOMPARE(gMaxEventsPerPart, qint16(0));
    }

    void rulesBeyondTheMaximumPerSubsceneAreDropped()
    {
        ResetScenes({1});
        for (int i = 0; i < 4; ++i) {
            auto r = WorkedExampleRule();
            r->m_strRemarks = QStringLiteral("R%1").arg(i + 1);
            AddRule(0, 0, r);
        }
        gMaxEventsPerPart = 2;
        QVERIFY(WriteEventsFile(path()));
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Count(), 2);
        QCOMPARE(RulesOf(0, 0).Item(2)->m_strRemarks, QStringLiteral("R2"));
    }

    // --- edge cases ---

    void performanceWithNoRulesHasTwoNumberLinesOnly()
    {
        ResetScenes({2, 1});
        gMaxEventsPerPart = 0;
        QVERIFY(WriteEventsFile(path()));
        QCOMPARE(ReadBytes(path()), QByteArray(" 3 \r\n 0 \r\n"));
        gMaxEventsPerPart = 9;
        QVERIFY(readBack({2, 1}));
        QCOMPARE(gMaxEventsPerPart, qint16(0));
    }

    void shortRecordLineIsSkippedAndTheEventLineIsTakenAsARecordLine()
    {
        WriteBytes(path(), crlf({" 1 ", " 1 ", "abc", "event;Exoskeleton -> MIDI;", "numMessages;1;",
                                 "ttype;MIDI;target;1;item;0;channel;0;val1;60;val2;100;min; ;max; ;midifile; ;action;0;",
                                 "message;MIDI;", ""}));
        bool result = true;
        // "event;..." as a record line has no number where the interaction type should be.
        QCOMPARE(readFailing({1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 1 Part: 1"));
        QVERIFY(!result);
        QCOMPARE(RulesOf(0, 0).Count(), 0);
    }

    void shortRecordLineIsSkippedWithoutReadingFurther()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.insert(bytes.indexOf("0;0;0;00_00"), "abc\r\n");
        WriteBytes(path(), bytes);
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Count(), 1);
        QCOMPARE(RulesOf(0, 0).Item(1)->m_strRemarks, QStringLiteral("Cue"));
    }

    void sceneIndexBeyondTheScenesNamesThatSceneAndStopsReading()
    {
        QByteArray bytes = crlf({" 3 ", " 1 "});
        QByteArray block = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg"))).mid(10);
        QVERIFY(block.startsWith("0;0;0;00_00"));
        QByteArray bad = block;
        bad.replace(0, 11, "0;5;1;05_01");
        bytes += block + bad + block;
        WriteBytes(path(), bytes);
        bool result = true;
        QCOMPARE(readFailing({1, 1, 1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 6 Part: 2"));
        QVERIFY(!result);
        QCOMPARE(RulesOf(0, 0).Count(), 1);   // the first rule stays, the third is not read
        QCOMPARE(gMaxEventsPerPart, qint16(0));
    }

    void subsceneIndexBeyondTheSubscenesFails()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.replace("0;0;0;00_00", "0;1;2;01_02");
        WriteBytes(path(), bytes);
        bool result = true;
        QCOMPARE(readFailing({1, 2}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 2 Part: 3"));
        QVERIFY(!result);
    }

    void countOfZeroActionsShowsTheMessageAndFails()
    {
        WriteBytes(path(), crlf({" 1 ", " 1 ",
                                 "0;0;0;00_00;Cue;EXO;1;CI;itype;0;sense;0;val1;VAR;val2; ;channel;-1;min;0;max;255;clip;0;enabled;1;label; ;",
                                 "event;Exoskeleton -> MIDI;", "numMessages;0;", "", ""}));
        bool result = true;
        QCOMPARE(readFailing({1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 1 Part: 1"));
        QVERIFY(!result);
    }

    void remarkOfABlankReadsEmpty()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.replace(";Cue;", "; ;");
        WriteBytes(path(), bytes);
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Item(1)->m_strRemarks, QString());
    }

    void thirdRuleIsNotWrittenWhenTheMaximumIsTwo()
    {
        ResetScenes({1});
        for (int i = 0; i < 3; ++i)
            AddRule(0, 0, WorkedExampleRule());
        gMaxEventsPerPart = 2;
        QVERIFY(WriteEventsFile(path()));
        const QByteArray bytes = ReadBytes(path());
        QVERIFY(bytes.startsWith(" 1 \r\n 2 \r\n0;0;0;00_00;"));
        QVERIFY(bytes.contains("\r\n1;0;0;00_00;"));
        QVERIFY(!bytes.contains("\r\n2;0;0;00_00;"));
        QCOMPARE(bytes.count("numMessages;"), 2);
    }

    void secondLineWithOrWithoutBlanksReadsAlike()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.replace(0, 10, " 1 \r\n 7 \r\n");
        WriteBytes(path(), bytes);
        QVERIFY(readBack());
        QCOMPARE(gMaxEventsPerPart, qint16(7));
        bytes.replace(0, 10, " 1 \r\n7\r\n");
        WriteBytes(path(), bytes);
        gMaxEventsPerPart = 0;
        QVERIFY(readBack());
        QCOMPARE(gMaxEventsPerPart, qint16(7));
        QCOMPARE(RulesOf(0, 0).Count(), 1);
    }

    void automaticBeginWritesABlankItemFieldAndNoItemNumber()
    {
        const QByteArray bytes = writeOne(midiRule({.m_iSourceType = 0, .m_iSource = 0, .m_iItem = 23, .m_iChannel = -1}));
        QCOMPARE(recordLine(bytes).left(30), QStringLiteral("0;0;0;00_00; ;AUTO;BEGIN; ;ity"));
        QVERIFY(!recordLine(bytes).contains(QStringLiteral("23")));
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Item(1)->m_iItem, qint16(0));
    }

    // --- more of the reader's grammar ---

    void lastLineThatNothingFollowsIsDropped()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes += "0;0;0;00_00;Dropped";   // no line end: the file ends right after it
        WriteBytes(path(), bytes);
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Count(), 1);
    }

    void placeFieldAndRuleNumberAreIgnoredOnReading()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.replace("0;0;0;00_00", "9;0;0;zz");
        WriteBytes(path(), bytes);
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Count(), 1);
    }

    void readRulesAreAppendedAfterThoseAlreadyThere()
    {
        ResetScenes({1});
        auto first = WorkedExampleRule();
        first->m_strRemarks = QStringLiteral("already");
        AddRule(0, 0, first);
        DialogDriver driver(3000);
        QVERIFY(ReadEventsFile(TestDataPath(QStringLiteral("rules/WorkedExample.cfg"))));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(RulesOf(0, 0).Count(), 2);
        QCOMPARE(RulesOf(0, 0).Item(1)->m_strRemarks, QStringLiteral("already"));
        QCOMPARE(RulesOf(0, 0).Item(2)->m_strRemarks, QStringLiteral("Cue"));
    }

    void parseActionOfAnEmptyLineKeepsTheDefaults()
    {
        CAction action;
        action.m_iCommand = 42;
        QVERIFY(ParseAction(action, QString()));
        QCOMPARE(action.m_iCommand, qint16(42));
    }

    void parseActionFailsOnALineThatEndsEarly()
    {
        CAction action;
        QVERIFY(!ParseAction(action, QStringLiteral("ttype;MIDI;target;1;item;0;")));
        QVERIFY(!ParseAction(action, QStringLiteral("ttype;MIDI;target;1;item;0;channel;0;val1;60;val2;100;min; ;max; ;midifile; ;action;x;")));
        QVERIFY(ParseAction(action, QStringLiteral("ttype;MIDI;target;1;item;0;channel;0;val1;60;val2;100;min; ;max; ;midifile; ;action;2;")));
        QCOMPARE(action.m_iAction, qint16(2));
    }

    void parseEventGivesMinusOneForAShortLine()
    {
        WriteBytes(path(), QByteArray("next\r\n"));
        TextFileReader file(path());
        qint16 scene = 3, part = 3;
        CEvent event;
        QVERIFY(ParseEvent(scene, part, file, QStringLiteral("ab;"), event));
        QCOMPARE(scene, qint16(-1));
        QCOMPARE(part, qint16(-1));
        QCOMPARE(file.LineInput(), QStringLiteral("next"));   // nothing more was read
    }

    void arduinoItemBeyondTheIntegerRangeMakesTheReadingFail()
    {
        gArduinoData(0).m_iNumAnalogInputs = 8;
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.replace(";EXO;1;CI;", ";ARD;1;Digital 32760;");
        WriteBytes(path(), bytes);
        bool result = true;
        QCOMPARE(readFailing({1}, &result), QStringLiteral("Error opening events configuration file!\r\nScene: 1 Part: 1"));
        QVERIFY(!result);
        QCOMPARE(RulesOf(0, 0).Count(), 0);
    }

    void booleansAreTrueForAnyNonZeroNumber()
    {
        QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")));
        bytes.replace("clip;0;enabled;1;", "clip;-1;enabled;0;");
        WriteBytes(path(), bytes);
        QVERIFY(readBack());
        QCOMPARE(RulesOf(0, 0).Item(1)->m_bClip, true);
        QCOMPARE(RulesOf(0, 0).Item(1)->m_bEnabled, false);
    }
};

QTEST_MAIN(TestEventsFile)
#include "test_eventsfile.moc"
