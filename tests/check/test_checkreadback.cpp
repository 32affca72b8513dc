// The check changes nothing of the performance, and on the seeded random
// performances of the file tests it gives only findings that a real save and
// open (or the model itself, for devices and ports) confirms.
#include <QtTest>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include "check/CheckTestHelpers.h"
#include "files/ModuleSaveOpen.h"
#include "files/RandomPerformance.h"
#include "support/ModuleGUI.h"

namespace {

QMap<QString, QByteArray> filesUnder(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile f(path);
        if (f.open(QIODevice::ReadOnly))
            files.insert(QDir(folder).relativeFilePath(path), f.readAll());
    }
    return files;
}

QString blankToEmpty(const QString& text) { return text == QStringLiteral(" ") ? QString() : text; }

// A field of a rule by its record name, as text.
QString fieldOf(const CEvent& rule, const QString& field)
{
    if (field.startsWith(QStringLiteral("m_MsgOut("))) {
        const int close = field.indexOf(u')');
        const int n = field.mid(9, close - 9).toInt();
        if (!rule.m_MsgOut || n > rule.m_MsgOut->Count())
            return QStringLiteral("<no action %1>").arg(n);
        const CAction& a = *rule.m_MsgOut->Item(n);
        const QString f = field.mid(close + 2);
        const QMap<QString, QString> values = {
            {"m_iTargetType", QString::number(a.m_iTargetType)}, {"m_iTarget", QString::number(a.m_iTarget)},
            {"m_iChannel", QString::number(a.m_iChannel)},       {"m_iCommand", QString::number(a.m_iCommand)},
            {"m_strVariable", blankToEmpty(a.m_strVariable)},    {"m_strVal1", blankToEmpty(a.m_strVal1)},
            {"m_strVal2", blankToEmpty(a.m_strVal2)},            {"m_strMin", blankToEmpty(a.m_strMin)},
            {"m_strMax", blankToEmpty(a.m_strMax)},              {"m_iAction", QString::number(a.m_iAction)},
            {"m_strMIDIFile", blankToEmpty(a.m_strMIDIFile)},    {"m_strMessage", a.m_strMessage}};
        return values.value(f, QStringLiteral("<unknown %1>").arg(f));
    }
    const QMap<QString, QString> values = {
        {"m_iInterType", QString::number(rule.m_iInterType)}, {"m_iSense", QString::number(rule.m_iSense)},
        {"m_iSourceType", QString::number(rule.m_iSourceType)}, {"m_iSource", QString::number(rule.m_iSource)},
        {"m_iItem", QString::number(rule.m_iItem)},           {"m_strVariable", blankToEmpty(rule.m_strVariable)},
        {"m_strVal1", blankToEmpty(rule.m_strVal1)},          {"m_strVal2", blankToEmpty(rule.m_strVal2)},
        {"m_iChannel", QString::number(rule.m_iChannel)},     {"m_strMin", blankToEmpty(rule.m_strMin)},
        {"m_strMax", blankToEmpty(rule.m_strMax)},            {"m_bClip", QString::number(rule.m_bClip)},
        {"m_bEnabled", QString::number(rule.m_bEnabled)},     {"m_strRemarks", blankToEmpty(rule.m_strRemarks)},
        {"m_strGroup", blankToEmpty(rule.m_strGroup)},        {"m_strEvent", blankToEmpty(rule.m_strEvent)},
        {"m_MsgOut", QString::number(rule.m_MsgOut ? rule.m_MsgOut->Count() : 0)}};
    return values.value(field, QStringLiteral("<unknown %1>").arg(field));
}

bool isRoundTripKind(FindingKind kind)
{
    switch (kind) {
    case FindingKind::Shifted:
    case FindingKind::LineBreak:
    case FindingKind::NoAction:
    case FindingKind::ItemCode:
    case FindingKind::CodePage:
    case FindingKind::Changed:
    case FindingKind::ReadFails:
    case FindingKind::WriteFails:
        return true;
    default:
        return false;
    }
}

} // namespace

class TestCheckReadBack : public QObject {
    Q_OBJECT
private:
    QTemporaryDir dir;
    int serial = 0;

    QString saveShow()
    {
        const QString path = QDir::toNativeSeparators(dir.filePath(QStringLiteral("Show%1.qel").arg(++serial)));
        DeriveConfigPaths(path);
        MessageCapture quiet;
        SaveConfiguration(path);
        return path;
    }

    // Saves a performance holding only `rule` (in a subscene, or as the only
    // global rule) and opens it again. False when the open failed; otherwise
    // `back` is the rule that came back.
    bool saveAndOpenOne(const CEvent& rule, bool global, CEvent& back)
    {
        gScenes.Clear();
        gLastScene = -1;
        auto scene = AddTestScene(QStringLiteral("ONE"), 1);
        ClearGlobalEvents();
        auto copy = std::make_shared<CEvent>();
        CopyEvent(*copy, rule);
        if (!rule.m_MsgOut)
            copy->m_MsgOut.reset();
        if (global)
            AddGlobalEvent(copy, 0);
        else
            scene->PartList.Item(1)->AddAudioEvent(copy, 1);
        gMaxEventsPerPart = 1;
        const QString path = saveShow();
        MessageCapture messages;
        OpenConfiguration(path);
        if (!messages.texts.isEmpty())
            return false;
        const Collection<CEvent>& rules = global ? gGlobalEvents : gScenes.Item(1)->PartList.Item(1)->AudioEvents;
        if (rules.Count() != 1)
            return false;
        back = *rules.Item(1);
        return true;
    }

private slots:
    // A performance with empty fields that a save fills with " ", and damage for many kinds of finding.
    static CEvent& spoiledPerformance()
    {
        BuildCleanPerformance();
        CEvent& rule = *gScenes.Item(2)->PartList.Item(1)->AudioEvents.Item(1);
        rule.m_strGroup.clear();
        rule.m_strRemarks = QStringLiteral("a;b \u0141");
        gArduinoData(0).m_iCOMPort = 3;
        gScenes.Item(1)->PartList.Item(1)->AddBotEvent(std::make_shared<CBotEvent>(), 1);
        gMaxEventsPerPart = 1;
        return rule;
    }

    // Saves the performance into `folder` and puts the paths and gDirty back.
    static void saveInto(const QString& folder)
    {
        const QString keptPath = gConfigFilePath, keptName = gConfigName, keptFolder = gConfigFolder;
        const bool keptDirty = gDirty;
        const QString path = QDir::toNativeSeparators(folder + QStringLiteral("/Show.qel"));
        DeriveConfigPaths(path);
        SaveConfiguration(path);
        gConfigFilePath = keptPath;
        gConfigName = keptName;
        gConfigFolder = keptFolder;
        gDirty = keptDirty;
    }

    void checkChangesNothing_data()
    {
        QTest::addColumn<bool>("dirty");
        QTest::newRow("saved") << false;
        QTest::newRow("unsaved changes") << true;
    }

    void checkChangesNothing()
    {
        QFETCH(bool, dirty);
        CEvent& rule = spoiledPerformance();
        gDirty = dirty;
        gConfigFilePath = QStringLiteral("/shows/kept.qel");
        gConfigName = QStringLiteral("kept");
        gConfigFolder = QStringLiteral("/shows/");
        gCurrentScene = 1;
        gCurrentPart = 0;
        const CEvent* ruleObject = &rule;
        const QString remark = rule.m_strRemarks;
        const int globals = gGlobalEvents.Count();

        const auto findings = CheckPerformance();
        QVERIFY(findings.size() >= 4);
        QCOMPARE(gDirty, dirty);
        QCOMPARE(gConfigFilePath, QStringLiteral("/shows/kept.qel"));
        QCOMPARE(gConfigName, QStringLiteral("kept"));
        QCOMPARE(gConfigFolder, QStringLiteral("/shows/"));
        QCOMPARE(gCurrentScene, qint16(1));
        QCOMPARE(gCurrentPart, qint16(0));
        QCOMPARE(gMaxEventsPerPart, qint16(1));
        QCOMPARE(gGlobalEvents.Count(), globals);
        // The very objects of the performance, with their empty texts still empty.
        QCOMPARE(&*gScenes.Item(2)->PartList.Item(1)->AudioEvents.Item(1), ruleObject);
        QVERIFY(rule.m_strGroup.isEmpty());
        QCOMPARE(rule.m_strRemarks, remark);
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->BotEvents.Count(), 1);
        QCOMPARE(gScenes.Item(2)->PartList.Count(), 2);
        QCOMPARE(gMainConfig.m_strScenesFile, QString());   // the names the writer gives were not kept either
    }

    void filesSavedBeforeAndAfterACheckAreTheSame()
    {
        spoiledPerformance();
        const QTemporaryDir before, after;
        saveInto(before.path());
        const bool dirty = gDirty;
        CheckPerformance();
        QCOMPARE(gDirty, dirty);
        saveInto(after.path());
        const auto a = filesUnder(before.path()), b = filesUnder(after.path());
        QCOMPARE(a.keys(), b.keys());
        QVERIFY(a.size() > 8);
        for (const QString& name : a.keys())
            QVERIFY2(a[name] == b[name], qPrintable(name));
    }

    void randomPerformancesGiveOnlyConfirmedFindings_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed : {3u, 11u, 29u, 47u, 101u, 2024u})
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }

    void randomPerformancesGiveOnlyConfirmedFindings()
    {
        QFETCH(quint32, seed);
        RandomPerformance gen(seed);
        RandomPerformanceOptions options;
        options.maxScenes = 5;
        options.withRules = true;
        options.withBotRules = true;
        gen.FillAll(options);
        qint16 most = 0;
        for (const auto& scene : gScenes)
            for (const auto& part : scene->PartList)
                most = std::max<qint16>(most, static_cast<qint16>(part->AudioEvents.Count()));
        gMaxEventsPerPart = gen.Chance(30) ? std::max<qint16>(0, most - 1) : most;
        ClearGlobalEvents();
        for (int g = 0; g < 3; ++g)
            AddGlobalEvent(gen.MakeRule(), 0);

        const auto findings = CheckPerformance();
        QVERIFY(!findings.empty());

        // The rules each finding names, copied before the confirmations replace the scenes.
        struct Named {
            CFinding finding;
            std::shared_ptr<CEvent> rule;
            int rulesInPart = 0;
            int bots = 0;
        };
        std::vector<Named> named;
        for (const CFinding& f : findings) {
            Named n{f, nullptr, 0, 0};
            std::shared_ptr<CEvent> original;
            if (f.m_bGlobal) {
                original = gGlobalEvents.Item(f.m_iRule);
            } else if (f.m_iScene >= 0) {
                const auto& part = gScenes.Item(f.m_iScene + 1)->PartList.Item(f.m_iPart + 1);
                n.rulesInPart = part->AudioEvents.Count();
                n.bots = part->BotEvents.Count();
                if (f.m_iRule > 0 && f.m_iRule <= part->AudioEvents.Count())
                    original = part->AudioEvents.Item(f.m_iRule);
            }
            if (original) {
                n.rule = std::make_shared<CEvent>();
                CopyEvent(*n.rule, *original);
                if (!original->m_MsgOut)
                    n.rule->m_MsgOut.reset();
            }
            named.push_back(n);
        }
        const qint16 maxEvents = gMaxEventsPerPart;

        int confirmedByReading = 0;
        for (const Named& n : named) {
            const CFinding& f = n.finding;
            const QString line = FindingLine(f);
            switch (f.m_kind) {
            case FindingKind::Dropped:
                QVERIFY2(n.rulesInPart > maxEvents && f.m_iRule == maxEvents + 1, qPrintable(line));
                break;
            case FindingKind::RobotRules:
                QVERIFY2(n.bots > 0 && f.m_strText.contains(QString::number(n.bots)), qPrintable(line));
                break;
            case FindingKind::ComPort: {
                const int port = f.m_strDevice.mid(3).toInt();
                int devices = 0;
                if (gMainConfig.m_iNExos > 0 && gMainConfig.m_iExo1Port == port) ++devices;
                if (gMainConfig.m_iNExos > 1 && gMainConfig.m_iExo2Port == port) ++devices;
                for (int a = 0; a < std::min<int>(gMainConfig.m_iNArduinos, 16); ++a)
                    if (gArduinoData(a).m_iCOMPort == port) ++devices;
                if (gMainConfig.m_iTalporPort == port) ++devices;
                QVERIFY2(devices >= 2, qPrintable(line));
                break;
            }
            case FindingKind::OscPort: {
                const int j = f.m_strDevice.mid(15).toInt() - 1;
                bool shared = false;
                for (int i = 0; i < j; ++i)
                    shared = shared || (gMainConfig.m_iOSCPort(i) == gMainConfig.m_iOSCPort(j)
                                        && gMainConfig.m_strOSCIP(i).trimmed() == gMainConfig.m_strOSCIP(j).trimmed());
                QVERIFY2(shared, qPrintable(line));
                break;
            }
            case FindingKind::MinMax:
            case FindingKind::Device:
                // The value the sentence names is the value of the record.
                if (n.rule)
                    QVERIFY2(f.m_strText.contains(fieldOf(*n.rule, f.m_strField))
                                 || f.m_strText.contains(QString::number(fieldOf(*n.rule, f.m_strField).toInt() + 1)),
                             qPrintable(line));
                else
                    QVERIFY2(!f.m_strDevice.isEmpty() || f.m_strText.startsWith(QStringLiteral("The performance counts")),
                             qPrintable(line));
                break;
            default: {
                QVERIFY2(isRoundTripKind(f.m_kind), qPrintable(line));
                // A rule's finding is confirmed by saving and opening that rule alone.
                QVERIFY2(n.rule, qPrintable(QStringLiteral("not placed on a rule: ") + line));
                CEvent back;
                const bool opened = saveAndOpenOne(*n.rule, f.m_bGlobal, back);
                if (opened)
                    QVERIFY2(fieldOf(back, f.m_strField) != fieldOf(*n.rule, f.m_strField)
                                 || fieldOf(back, QStringLiteral("m_MsgOut")) != fieldOf(*n.rule, QStringLiteral("m_MsgOut")),
                             qPrintable(QStringLiteral("reads back unchanged: ") + line));
                else
                    QVERIFY2(f.m_severity == Severity::Breaks, qPrintable(QStringLiteral("open failed: ") + line));
                ++confirmedByReading;
                break;
            }
            }
        }
        QVERIFY(confirmedByReading > 0);
    }
};

QTEST_MAIN(TestCheckReadBack)
#include "test_checkreadback.moc"
