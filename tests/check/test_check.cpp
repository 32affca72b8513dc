// The check of a performance, through the module: each kind of finding from a
// performance built to show it, and none from a clean one.
#include <QtTest>
#include "check/CheckTestHelpers.h"

class TestCheck : public QObject {
    Q_OBJECT
private:
    std::vector<CFinding> run() { return CheckPerformance(); }
    CEvent& rule(int scene, int part, int r) { return *gScenes.Item(scene)->PartList.Item(part)->AudioEvents.Item(r); }

    // Exactly one finding, of this kind; returns it.
    CFinding only(const std::vector<CFinding>& findings, FindingKind kind)
    {
        if (findings.size() != 1 || findings.front().m_kind != kind) {
            qWarning("%s", qPrintable(AllLines(findings)));
            return CFinding();
        }
        return findings.front();
    }

private slots:
    void init() { BuildCleanPerformance(); }

    void cleanPerformanceGivesNoFinding()
    {
        const auto findings = run();
        QVERIFY2(findings.empty(), qPrintable(AllLines(findings)));
    }

    void semicolonInARemarkShiftsTheLine()
    {
        rule(2, 1, 1).m_strRemarks = QStringLiteral("Bow; then dark");
        const auto findings = run();
        QCOMPARE(findings.size(), size_t(1));
        const CFinding& f = findings.front();
        QCOMPARE(f.m_kind, FindingKind::Shifted);
        QCOMPARE(f.m_severity, Severity::Breaks);
        QCOMPARE(f.m_iScene, qint16(1));
        QCOMPARE(f.m_iPart, qint16(0));
        QCOMPARE(f.m_iRule, 1);
        QCOMPARE(f.m_strField, QStringLiteral("m_strRemarks"));
        QVERIFY2(f.m_strText.contains(QStringLiteral("\"Bow; then dark\"")), qPrintable(f.m_strText));
        QVERIFY2(f.m_strText.contains(QStringLiteral("source type reads back as")), qPrintable(f.m_strText));
        QCOMPARE(PlaceText(f), QStringLiteral("Scene 1, subscene 0, rule 1"));
    }

    void semicolonInAnActionMessageShiftsItsLine()
    {
        rule(1, 1, 2).m_MsgOut->Item(1)->m_strVal2 = QStringLiteral("1;2");
        const CFinding f = only(run(), FindingKind::Shifted);
        QCOMPARE(f.m_strField, QStringLiteral("m_MsgOut(1).m_strVal2"));
        QCOMPARE(f.m_iRule, 2);
    }

    void semicolonInAGlobalRuleIsPlacedThere()
    {
        gGlobalEvents.Item(1)->m_strGroup = QStringLiteral("a;b");
        const CFinding f = only(run(), FindingKind::Shifted);
        QVERIFY(f.m_bGlobal);
        QCOMPARE(f.m_iRule, 1);
        QCOMPARE(PlaceText(f), QStringLiteral("Global rule 1"));
    }

    void lineBreakInALabelBreaksTheBlock()
    {
        rule(1, 1, 1).m_strGroup = QStringLiteral("first\r\nsecond");
        const CFinding f = only(run(), FindingKind::LineBreak);
        QCOMPARE(f.m_severity, Severity::Breaks);
        QCOMPARE(f.m_strField, QStringLiteral("m_strGroup"));
        QVERIFY(f.m_strText.contains(QStringLiteral("line break")));
    }

    void ruleWithNoActionFailsTheReading()
    {
        rule(1, 1, 2).m_MsgOut = std::make_shared<Collection<CAction>>();
        const CFinding f = only(run(), FindingKind::NoAction);
        QCOMPARE(f.m_severity, Severity::Breaks);
        QCOMPARE(f.m_iRule, 2);
    }

    void rulesBeyondTheHighestCountAreDropped()
    {
        gScenes.Item(1)->PartList.Item(1)->AddAudioEvent(ElbowRule(QStringLiteral("Third")), 3);
        gScenes.Item(1)->PartList.Item(1)->AddAudioEvent(ElbowRule(QStringLiteral("Fourth")), 4);
        const CFinding f = only(run(), FindingKind::Dropped);
        QCOMPARE(f.m_severity, Severity::Lost);
        QCOMPARE(f.m_iScene, qint16(0));
        QCOMPARE(f.m_iRule, 3);
        QVERIFY2(f.m_strText.startsWith(QStringLiteral("Rules 3 to 4 of this subscene")), qPrintable(f.m_strText));
    }

    void exoskeletonItemWithNoCodeIsWrittenAsMinus()
    {
        rule(1, 1, 1).m_iItem = 40;
        const auto findings = run();
        QCOMPARE(findings.size(), size_t(2));
        const CFinding f = findings[0];
        QCOMPARE(f.m_kind, FindingKind::ItemCode);
        QCOMPARE(f.m_strField, QStringLiteral("m_iItem"));
        QVERIFY2(f.m_strText.contains(QStringLiteral("reads back as 37")), qPrintable(f.m_strText));
        // No suit has such an item either.
        QCOMPARE(findings[1].m_kind, FindingKind::Device);
        QVERIFY2(findings[1].m_strText.contains(QStringLiteral("suit item 40")), qPrintable(findings[1].m_strText));
    }

    void charactersOutsideTheCodePageAreFound()
    {
        rule(2, 2, 1).m_strRemarks = QStringLiteral("\u0141\u00f3d\u017a");
        const CFinding f = only(run(), FindingKind::CodePage);
        QCOMPARE(f.m_strField, QStringLiteral("m_strRemarks"));
        QCOMPARE(f.m_iPart, qint16(1));
        QVERIFY2(f.m_strText.contains(QStringLiteral("\u0141\u017a")), qPrintable(f.m_strText));
    }

    void codePageInTheTitleIsFoundInTheMainFile()
    {
        gMainConfig.m_strName = QStringLiteral("\u0141ow");
        const CFinding f = only(run(), FindingKind::CodePage);
        QCOMPARE(f.m_strField, QStringLiteral("m_strName"));
        QCOMPARE(PlaceText(f), QStringLiteral("Performance"));
    }

    void lineBreakInTheTitleBreaksTheMainFile()
    {
        gMainConfig.m_strName = QStringLiteral("Two\nlines");
        const auto findings = run();
        const CFinding* f = FindKind(findings, FindingKind::LineBreak);
        QVERIFY2(f, qPrintable(AllLines(findings)));
        QCOMPARE(f->m_strField, QStringLiteral("m_strName"));
        QCOMPARE(f->m_severity, Severity::Breaks);
    }

    void commaInAnExoskeletonItemShiftsItsRow()
    {
        gExoData(0).m_strItem(3) = QStringLiteral("3,4");
        const CFinding f = only(run(), FindingKind::Shifted);
        QCOMPARE(f.m_strDevice, QStringLiteral("Exoskeleton 1"));
        QCOMPARE(f.m_strField, QStringLiteral("m_strItem"));
        QVERIFY2(f.m_strText.contains(QStringLiteral("row 3 (HD) minimum")), qPrintable(f.m_strText));
    }

    void commaInACaptureFolderFailsTheReading()
    {
        gScenes.Item(2)->PartList.Item(1)->m_VideoCapture(0)->m_strRootFolder = QStringLiteral("D:\\a,b");
        const CFinding f = only(run(), FindingKind::Shifted);
        QCOMPARE(f.m_severity, Severity::Breaks);
        QCOMPARE(f.m_iScene, qint16(1));
        QCOMPARE(f.m_strDevice, QStringLiteral("Capture device 1"));
    }

    void lineBreakInASceneNameShiftsTheScenesFile()
    {
        gScenes.Item(1)->m_strName = QStringLiteral("IN\nTRO");
        const auto findings = run();
        const CFinding* f = FindKind(findings, FindingKind::LineBreak);
        QVERIFY2(f, qPrintable(AllLines(findings)));
        QCOMPARE(f->m_iScene, qint16(0));
        QCOMPARE(f->m_strField, QStringLiteral("m_strName"));
    }

    void ruleNamingAnArduinoBeyondTheCount()
    {
        rule(1, 1, 1).m_MsgOut->Item(1)->m_iTargetType = 7;
        rule(1, 1, 1).m_MsgOut->Item(1)->m_iTarget = 2;
        rule(1, 1, 1).m_MsgOut->Item(1)->m_iCommand = 3;
        const CFinding f = only(run(), FindingKind::Device);
        QCOMPARE(f.m_severity, Severity::Breaks);
        QVERIFY2(f.m_strText.contains(QStringLiteral("names Arduino 3, but the performance has 1")), qPrintable(f.m_strText));
    }

    void ruleNamingASuitBeyondTheCount()
    {
        gMainConfig.m_iNExos = 0;
        const auto findings = run();
        QCOMPARE(std::count_if(findings.begin(), findings.end(),
                               [](const CFinding& f) { return f.m_kind == FindingKind::Device; }),
                 4);
    }

    void joystickButtonBeyondTheButtons()
    {
        auto& r = rule(1, 1, 1);
        r.m_iSourceType = 2;
        r.m_iItem = 7;   // 2 axes and 5 buttons: items 0 to 6
        const CFinding f = only(run(), FindingKind::Device);
        QCOMPARE(f.m_strField, QStringLiteral("m_iItem"));
    }

    void arduinoPinBeyondThePins()
    {
        auto& r = rule(1, 1, 1);
        r.m_iSourceType = 7;
        r.m_iItem = 12;   // 2 analog inputs and 10 digital connections: 0 to 11
        const CFinding f = only(run(), FindingKind::Device);
        QVERIFY2(f.m_strText.contains(QStringLiteral("pin 12")), qPrintable(f.m_strText));
    }

    void oscConnectionBeyondTheCount()
    {
        auto action = rule(1, 1, 1).m_MsgOut->Item(1);
        action->m_iTargetType = 8;
        action->m_iTarget = 5;
        action->m_strVariable = QStringLiteral("/cue");
        const CFinding f = only(run(), FindingKind::Device);
        QVERIFY2(f.m_strText.contains(QStringLiteral("OSC connection 6")), qPrintable(f.m_strText));
    }

    void captureDeviceAndDisplayManagerBeyondTheirCounts()
    {
        auto action = rule(1, 1, 1).m_MsgOut->Item(1);
        action->m_iTargetType = 10;
        action->m_iTarget = 1;
        auto second = rule(1, 1, 2).m_MsgOut->Item(1);
        second->m_iTargetType = 9;
        second->m_iTarget = 2;
        second->m_iCommand = 0;
        second->m_strVal1 = QStringLiteral("3");
        const auto findings = run();
        QCOMPARE(findings.size(), size_t(2));
        QVERIFY(findings[0].m_strText.contains(QStringLiteral("capture device 2")));
        QVERIFY2(findings[1].m_strText.contains(QStringLiteral("video application 3")), qPrintable(findings[1].m_strText));
    }

    void robotRulesAreLostAtOpen()
    {
        auto bot = std::make_shared<CBotEvent>();
        bot->m_iRukaBot = 3;
        gScenes.Item(2)->PartList.Item(2)->AddBotEvent(bot, 1);
        const CFinding f = only(run(), FindingKind::RobotRules);
        QCOMPARE(f.m_severity, Severity::Lost);
        QCOMPARE(f.m_iScene, qint16(1));
        QCOMPARE(f.m_iPart, qint16(1));
        QCOMPARE(f.m_iRule, 0);
    }

    void comPortGivenTwice()
    {
        gArduinoData(0).m_iCOMPort = 3;
        const CFinding f = only(run(), FindingKind::ComPort);
        QCOMPARE(f.m_strDevice, QStringLiteral("COM3"));
        QVERIFY2(f.m_strText.contains(QStringLiteral("exoskeleton 1 and Arduino 1")), qPrintable(f.m_strText));
    }

    void talporPortCountsOnlyWithTalporRules()
    {
        gMainConfig.m_iTalporPort = 4;
        QVERIFY(run().empty());
        auto bot = std::make_shared<CBotEvent>();
        bot->m_iRukaBot = 5;
        gScenes.Item(1)->PartList.Item(1)->AddBotEvent(bot, 1);
        const auto findings = run();
        QVERIFY(FindKind(findings, FindingKind::ComPort));
        QVERIFY(FindKind(findings, FindingKind::RobotRules));
    }

    void oscConnectionsOnOnePortAndAddress()
    {
        gMainConfig.m_iOSCPort(1) = 9000;
        const CFinding f = only(run(), FindingKind::OscPort);
        QCOMPARE(f.m_strDevice, QStringLiteral("OSC connection 2"));
        gMainConfig.m_strOSCIP(1) = QStringLiteral("192.168.1.21");
        QVERIFY(run().empty());
    }

    void minimumAboveMaximum()
    {
        rule(1, 1, 1).m_strMin = QStringLiteral("300");
        gExoData(0).m_iMin(0) = 500;
        gExoData(0).m_iMax(0) = 100;
        gArduinoData(0).m_iMin(1) = 900;
        gArduinoData(0).m_iMax(1) = 10;
        const auto findings = run();
        QCOMPARE(findings.size(), size_t(3));
        for (const auto& f : findings) {
            QCOMPARE(f.m_kind, FindingKind::MinMax);
            QCOMPARE(f.m_severity, Severity::Look);
        }
        QCOMPARE(findings[0].m_iRule, 1);
        QCOMPARE(findings[1].m_strDevice, QStringLiteral("Exoskeleton 1"));
        QCOMPARE(findings[2].m_strDevice, QStringLiteral("Arduino 1"));
    }

    void countBeyondItsTable()
    {
        gMainConfig.m_iNVideoCaps = 5;
        const auto findings = run();
        const CFinding* f = FindKind(findings, FindingKind::Device);
        QVERIFY2(f, qPrintable(AllLines(findings)));
        QVERIFY(f->m_strText.contains(QStringLiteral("5 capture devices")));
    }

    void exoskeletonTypeOutsideTheTableCannotBeWritten()
    {
        gExoData(0).m_iType(4) = 7;
        const CFinding f = only(run(), FindingKind::WriteFails);
        QCOMPARE(f.m_strDevice, QStringLiteral("Exoskeleton 1"));
    }

    void fieldsThatChangeByDesignAreNoFindings()
    {
        // Empty texts, " " texts, a MIDI label "---" and blanks around a subscene name.
        auto& r = rule(1, 1, 1);
        r.m_strRemarks.clear();
        r.m_strVal2 = QStringLiteral(" ");
        r.m_MsgOut->Item(1)->m_strMIDIFile.clear();
        r.m_iSourceType = 0;
        r.m_iSource = 1;   // END: its variable reads back as " "
        r.m_strVariable = QStringLiteral("gone");
        gMainConfig.m_strMIDIPortLabel(0) = QStringLiteral("---");
        gScenes.Item(2)->PartList.Item(2)->m_strName = QStringLiteral("  padded ");
        gGlobalEvents.Item(1)->m_iSource = 2;
        gGlobalEvents.Item(1)->m_strVariable = QStringLiteral("x");   // not kept by the global rules file
        const auto findings = run();
        QVERIFY2(findings.empty(), qPrintable(AllLines(findings)));
    }
};

QTEST_MAIN(TestCheck)
#include "test_check.moc"
