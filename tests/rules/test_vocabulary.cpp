// The rule vocabulary: type tokens, devices, item codes, fields, and the deep copy of a rule.
#include <QtTest>
#include "model/CArduinoData.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "support/NumberText.h"
#include "support/RuntimeError.h"
#include "rules/RuleTestHelpers.h"

class TestVocabulary : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        for (int i = 0; i <= 3; ++i)
            gTotemAxes(i) = 4;
        InitArduinoData();
    }

    // --- type tokens ---

    void fileTokensOfEveryType()
    {
        const QStringList tokens = {"AUTO", "EXO", "TOT", "FLA", "", "DIO", "MIDI", "ARD", "OSC", "QEL", "VCAP"};
        for (int t = 0; t <= 10; ++t) {
            QCOMPARE(TypeToFileToken(qint16(t)), tokens[t]);
            QCOMPARE(FileTokenToType(tokens[t]), qint16(t));
        }
        QCOMPARE(TypeToFileToken(11), QString());
        QCOMPARE(TypeToFileToken(-1), QString());
    }

    void listTokensOfEveryType()
    {
        const QStringList tokens = {"AUTO", "EXO", "TOT", "FLA", "UND", "DIO", "MIDI", "ARD", "OSC", "QEL", "VCAP"};
        for (int t = 0; t <= 10; ++t)
            QCOMPARE(TypeToListToken(qint16(t)), tokens[t]);
        QCOMPARE(TypeToListToken(11), QStringLiteral("UND"));
        QCOMPARE(TypeToListToken(-3), QStringLiteral("UND"));
    }

    void fileTokenComparisonIsExactAndSyncReadsAsFlash()
    {
        QCOMPARE(FileTokenToType(QStringLiteral("SYNC")), qint16(3));
        QCOMPARE(FileTokenToType(QStringLiteral("auto")), qint16(4));
        QCOMPARE(FileTokenToType(QStringLiteral(" AUTO")), qint16(4));
        QCOMPARE(FileTokenToType(QString()), qint16(4));
    }

    void interactionTypeListTokens()
    {
        QCOMPARE(InterTypeToListToken(0), QStringLiteral("TRIG"));
        QCOMPARE(InterTypeToListToken(1), QStringLiteral("GATE"));
        QCOMPARE(InterTypeToListToken(2), QStringLiteral("RANG"));
        QCOMPARE(InterTypeToListToken(3), QStringLiteral("COPY"));
        QCOMPARE(InterTypeToListToken(4), QStringLiteral("ERR"));
        QCOMPARE(InterTypeToListToken(-1), QStringLiteral("ERR"));
    }

    // --- devices ---

    void automaticMomentsAndDeviceNumbers()
    {
        QCOMPARE(DeviceToToken(0, 0), QStringLiteral("BEGIN"));
        QCOMPARE(DeviceToToken(1, 0), QStringLiteral("END"));
        QCOMPARE(DeviceToToken(2, 0), QStringLiteral("QEL_VAR"));
        QCOMPARE(DeviceToToken(0, 6), QStringLiteral("1"));
        QCOMPARE(DeviceToToken(15, 3), QStringLiteral("16"));
        QCOMPARE(DeviceToToken(-1, 7), QStringLiteral("0"));
        QCOMPARE(TokenToDevice(QStringLiteral("BEGIN")), qint16(0));
        QCOMPARE(TokenToDevice(QStringLiteral("END")), qint16(1));
        QCOMPARE(TokenToDevice(QStringLiteral("QEL_VAR")), qint16(2));
        QCOMPARE(TokenToDevice(QStringLiteral("16")), qint16(15));
        QCOMPARE(TokenToDevice(QStringLiteral("begin")), qint16(0));
        QCOMPARE(TokenToDevice(QString()), qint16(0));
    }

    void tokenToDeviceTakesDigitsOnly()
    {
        QCOMPARE(TokenToDevice(QStringLiteral("3")), qint16(2));
        QCOMPARE(TokenToDevice(QStringLiteral("0")), qint16(-1));
        QCOMPARE(TokenToDevice(QStringLiteral("1.5")), qint16(0));
        QCOMPARE(TokenToDevice(QStringLiteral("-1")), qint16(0));
    }

    void unknownAutomaticMomentWritesEmptyAndReadsZero()
    {
        const QString token = DeviceToToken(5, 0);
        QCOMPARE(token, QString());
        QCOMPARE(TokenToDevice(token), qint16(0));
    }

    // --- exoskeleton items ---

    void exoskeletonCodesBothWays()
    {
        const QStringList codes = {"CI",  "CD",  "HI",  "HD",  "RI",  "RD", "II", "ID", "FCI", "FCD",
                                   "P1",  "P2",  "P3",  "P4",  "P5",  "P6", "DI1", "DI2", "DD1", "DD2",
                                   "IMI", "IMD", "IPI", "IPD", "IC",  "C1", "C2", "C3", "C4", "C5",
                                   "C6",  "SEL", "S1",  "S2",  "S3",  "S4", "S5"};
        QCOMPARE(codes.size(), 37);
        for (int i = 0; i < 37; ++i) {
            QCOMPARE(ExoItemToCode(qint16(i)), codes[i]);
            QCOMPARE(TextToItem(codes[i], 1, 0), qint16(i));
        }
        QCOMPARE(ExoItemToCode(-1), QStringLiteral("-"));
    }

    void exoskeletonItemOutsideTableWritesDashAndReads37()
    {
        QCOMPARE(ExoItemToCode(37), QStringLiteral("-"));
        QCOMPARE(TextToItem(QStringLiteral("-"), 1, 0), qint16(37));
        QCOMPARE(TextToItem(QStringLiteral("Xx"), 1, 0), qint16(-1));
    }

    // --- joystick items ---

    void joystickItemsWithFourAxes()
    {
        gTotemAxes(0) = 4;
        QCOMPARE(TotemItemToCode(3, 0), QStringLiteral("ARX"));
        QCOMPARE(TotemItemToCode(4, 0), QStringLiteral("S1"));
        QCOMPARE(TotemItemToCode(15, 0), QStringLiteral("S12"));
        QCOMPARE(TextToItem(QStringLiteral("S12"), 2, 0), qint16(15));
    }

    void joystickItemsWithSixAndWithTwoAxes()
    {
        gTotemAxes(0) = 6;
        QCOMPARE(TotemItemToCode(6, 0), QStringLiteral("S1"));
        QCOMPARE(TotemItemToCode(5, 0), QStringLiteral("ARZ"));
        gTotemAxes(0) = 2;
        QCOMPARE(TotemItemToCode(1, 0), QStringLiteral("AY"));
        QCOMPARE(TotemItemToCode(2, 0), QStringLiteral("S1"));
    }

    void joystickAxisCodesAndEditorNamesRead()
    {
        const QStringList codes = {"AX", "AY", "AZ", "ARX", "ARY", "ARZ"};
        const QStringList names = {"Eje X", "Eje Y", "Eje Z", "Eje RX", "Eje RY", "Eje RZ"};
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(TextToItem(codes[i], 2, 1), qint16(i));
            QCOMPARE(TextToItem(names[i], 2, 1), qint16(i));
        }
    }

    void joystickButtonNameTakesItsLastTwoCharacters()
    {
        gTotemAxes(2) = 3;
        QCOMPARE(TextToItem(QStringLiteral("Sensor 12"), 2, 2), qint16(3 + 12 - 1));
        QCOMPARE(TextToItem(QStringLiteral("Sensor 4"), 2, 2), qint16(3 + 4 - 1));
        QCOMPARE(TextToItem(QStringLiteral("S1"), 2, 2), qint16(3));
        // the joystick is the source's own: another joystick counts other axes
        gTotemAxes(1) = 5;
        QCOMPARE(TextToItem(QStringLiteral("S1"), 2, 1), qint16(5));
    }

    void joystickAxisIndexAboveFiveWritesDash()
    {
        gTotemAxes(0) = 6;
        QCOMPARE(TotemItemToCode(-1, 0), QStringLiteral("-"));
        // more axes than there are axis codes: the items between 6 and the axis count have no code
        gTotemAxes(0) = 8;
        QCOMPARE(TotemItemToCode(5, 0), QStringLiteral("ARZ"));
        QCOMPARE(TotemItemToCode(6, 0), QStringLiteral("-"));
        QCOMPARE(TotemItemToCode(7, 0), QStringLiteral("-"));
        QCOMPARE(TotemItemToCode(8, 0), QStringLiteral("S1"));
    }

    void joystickButtonBeyondTheIntegerRangeIsAnOverflow()
    {
        gTotemAxes(0) = 32766;
        QCOMPARE(TextToItem(QStringLiteral("S2"), 2, 0), qint16(32767));
        QVERIFY_THROWS_EXCEPTION(ConversionError, TextToItem(QStringLiteral("S3"), 2, 0));
        QVERIFY_THROWS_EXCEPTION(ConversionError, TextToItem(QStringLiteral("Sensor 12"), 2, 0));
    }

    void arduinoDigitalLineBeyondTheIntegerRangeIsAnOverflow()
    {
        gArduinoData(0).m_iNumAnalogInputs = 8;
        QCOMPARE(TextToItem(QStringLiteral("Digital 32759"), 7, 0), qint16(32767));
        QVERIFY_THROWS_EXCEPTION(ConversionError, TextToItem(QStringLiteral("Digital 32760"), 7, 0));
        CAction action;
        QVERIFY(!ParseAction(action, QStringLiteral("ttype;ARD;target;1;item;Digital 32760;channel;-1;val1; ;val2; ;min; ;max; ;midifile; ;action;0;")));
    }

    // --- MIDI, Arduino, digital input, others ---

    void midiItems()
    {
        QCOMPARE(TextToItem(QStringLiteral("Note On"), 6, 0), qint16(0));
        QCOMPARE(TextToItem(QStringLiteral("Control Change"), 6, 0), qint16(1));
        QCOMPARE(TextToItem(QStringLiteral("Program Change"), 6, 0), qint16(2));
        QCOMPARE(TextToItem(QStringLiteral("note on"), 6, 0), qint16(-1));
        QCOMPARE(TextToItem(QStringLiteral("2"), 6, 0), qint16(-1));
    }

    void midiAnyAndMidiFileAreBothThree()
    {
        QCOMPARE(TextToItem(QStringLiteral("Any"), 6, 0), qint16(3));
        QCOMPARE(TextToItem(QStringLiteral("MIDI File"), 6, 0), qint16(3));
    }

    void arduinoAnalogAndDigitalItems()
    {
        gArduinoData(0).m_iNumAnalogInputs = 8;
        QCOMPARE(TextToItem(QStringLiteral("Analog 3"), 7, 0), qint16(3));
        QCOMPARE(TextToItem(QStringLiteral("Digital 2"), 7, 0), qint16(10));
        QCOMPARE(TextToItem(QStringLiteral("Pin 2"), 7, 0), qint16(-1));
        gArduinoData(4).m_iNumAnalogInputs = 2;
        QCOMPARE(TextToItem(QStringLiteral("Digital 12"), 7, 4), qint16(14));
    }

    void digitalInputItemIsItsInteger()
    {
        QCOMPARE(TextToItem(QStringLiteral("7"), 5, 0), qint16(7));
        QCOMPARE(TextToItem(QStringLiteral(" 7 "), 5, 0), qint16(7));
        QCOMPARE(TextToItem(QStringLiteral("x"), 5, 0), qint16(0));
        QCOMPARE(TextToItem(QString(), 5, 0), qint16(0));
    }

    void qelItemIsAlwaysMinusOneAndOthersZero()
    {
        QCOMPARE(TextToItem(QStringLiteral("3"), 9, 0), qint16(-1));
        QCOMPARE(TextToItem(QStringLiteral("CI"), 9, 0), qint16(-1));
        for (qint16 type : {0, 3, 4, 8, 10, 11})
            QCOMPARE(TextToItem(QStringLiteral("CI"), type, 0), qint16(0));
    }

    // --- number checks used by the readers and the editor ---

    void isNumberChecksSignAndDecimalPoint()
    {
        QCOMPARE(IsNumber(QStringLiteral("-"), false, true), false);
        QCOMPARE(IsNumber(QStringLiteral("-4"), false, true), true);
        QCOMPARE(IsNumber(QStringLiteral("-4"), false, false), false);
        QCOMPARE(IsNumber(QStringLiteral("1.5"), true, false), true);
        QCOMPARE(IsNumber(QStringLiteral("1.5.2"), true, false), false);
        QCOMPARE(IsNumber(QStringLiteral("1.5"), false, false), false);
    }

    // --- fields ---

    void getNextFieldWalksTheLine()
    {
        const QString line = QStringLiteral("a;bc;;d");
        int pos = 1;
        QCOMPARE(GetNextField(line, pos), QStringLiteral("a"));
        QCOMPARE(pos, 3);
        QCOMPARE(GetNextField(line, pos), QStringLiteral("bc"));
        QCOMPARE(pos, 6);
        QCOMPARE(GetNextField(line, pos), QString());
        QCOMPARE(pos, 7);
        QCOMPARE(GetNextField(line, pos), QStringLiteral("d"));
        QCOMPARE(GetNextField(line, pos), QString());
        QCOMPARE(GetNextField(line, pos), QString());
    }

    void getNextFieldAtTheEndAndOutsideGivesEmpty()
    {
        const QString line = QStringLiteral("x;");
        int pos = 3;
        QCOMPARE(GetNextField(line, pos), QString());
        pos = 0;
        QCOMPARE(GetNextField(line, pos), QString());
        pos = -5;
        QCOMPARE(GetNextField(line, pos), QString());
        pos = 1;
        QCOMPARE(GetNextField(QString(), pos), QString());
    }

    // --- deep copy ---

    void copyEventCopiesEveryFieldAndNewActions()
    {
        auto source = ruletest::MakeRule(
            {.m_iInterType = 2, .m_iSense = 1, .m_iSourceType = 8, .m_iSource = 3, .m_iItem = 7,
             .m_strVariable = QStringLiteral("/a"), .m_strVal1 = QStringLiteral("1"), .m_strVal2 = QStringLiteral("2"),
             .m_iChannel = 4, .m_strMin = QStringLiteral("0"), .m_strMax = QStringLiteral("9"), .m_bClip = true,
             .m_bEnabled = true, .m_strRemarks = QStringLiteral("r"), .m_strGroup = QStringLiteral("g"),
             .m_strEvent = QStringLiteral("e")},
            {{.m_iTargetType = 6, .m_iTarget = 1, .m_iChannel = 2, .m_iCommand = 3, .m_strVariable = QStringLiteral("v"),
              .m_strVal1 = QStringLiteral("a"), .m_strVal2 = QStringLiteral("b"), .m_strMax = QStringLiteral("c"),
              .m_strMin = QStringLiteral("d"), .m_iAction = 2, .m_strMIDIFile = QStringLiteral("f.mid"),
              .m_strMessage = QStringLiteral("m")},
             {.m_iTargetType = 8, .m_strMessage = QStringLiteral("second")}});
        CEvent target;
        CopyEvent(target, *source);
        QCOMPARE(ruletest::DiffRules(target, *source), QString());
        QVERIFY(target.m_MsgOut != source->m_MsgOut);
        QVERIFY(target.m_MsgOut->Item(1) != source->m_MsgOut->Item(1));
        target.m_MsgOut->Item(1)->m_strVal1 = QStringLiteral("changed");
        target.m_MsgOut->Remove(2);
        QCOMPARE(source->m_MsgOut->Item(1)->m_strVal1, QStringLiteral("a"));
        QCOMPARE(source->m_MsgOut->Count(), 2);
    }

    void copyEventOfARuleWithoutActionsGivesAnEmptyList()
    {
        CEvent source;
        source.m_strRemarks = QStringLiteral("short");
        CEvent target;
        CopyEvent(target, source);
        QVERIFY(target.m_MsgOut);
        QCOMPARE(target.m_MsgOut->Count(), 0);
        QCOMPARE(target.m_strRemarks, QStringLiteral("short"));
    }
};

QTEST_MAIN(TestVocabulary)
#include "test_vocabulary.moc"
