// Whole performances through the save and open sequence: save, open in a
// scrambled state, save again under another name: every file comes out the
// same, byte for byte.
#include <QtTest>
#include <QDir>
#include <QTemporaryDir>
#include "files/ModuleSaveOpen.h"
#include "files/RandomPerformance.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"

namespace {

// Texts that the rule files keep: no ";" and no line break.
QString ruleText(RandomPerformance& gen, int maxLength)
{
    return gen.Text(maxLength).replace(u';', u',');
}

// A rule made only of values that read back as they were written.
std::shared_ptr<CEvent> readableRule(RandomPerformance& gen)
{
    static const qint16 sources[] = {0, 1, 3, 5, 6, 7, 8};
    auto rule = std::make_shared<CEvent>();
    rule->m_iInterType = static_cast<qint16>(gen.Int(0, 3));
    rule->m_iSense = static_cast<qint16>(gen.Int(0, 2));
    rule->m_iSourceType = sources[gen.Int(0, 6)];
    rule->m_iSource = static_cast<qint16>(rule->m_iSourceType == 0 ? gen.Int(0, 2) : gen.Int(0, 15));
    rule->m_iItem = static_cast<qint16>(gen.Int(0, 40));
    rule->m_strVariable = ruleText(gen, 10);
    rule->m_strVal1 = ruleText(gen, 5);
    rule->m_strVal2 = ruleText(gen, 5);
    rule->m_iChannel = static_cast<qint16>(gen.Int(-1, 15));
    rule->m_strMin = gen.Chance(20) ? QString() : QString::number(gen.Int(0, 100));
    rule->m_strMax = QString::number(gen.Int(100, 1000));
    rule->m_bClip = gen.Chance(50);
    rule->m_bEnabled = gen.Chance(80);
    rule->m_strRemarks = ruleText(gen, 20);
    rule->m_strGroup = ruleText(gen, 8);
    rule->m_MsgOut = std::make_shared<Collection<CAction>>();
    const int actions = gen.Int(1, 4);
    for (int a = 0; a < actions; ++a) {
        auto action = std::make_shared<CAction>();
        // Every target type but the joystick, which is a source only: its empty item
        // text does not convert on reading.
        static const qint16 targets[] = {0, 1, 3, 4, 5, 6, 7, 8, 9, 10};
        action->m_iTargetType = targets[gen.Int(0, 9)];
        action->m_iTarget = static_cast<qint16>(action->m_iTargetType == 0 ? gen.Int(0, 2) : gen.Int(0, 15));
        action->m_iChannel = static_cast<qint16>(gen.Int(-1, 15));
        action->m_iCommand = static_cast<qint16>(gen.Int(-1, 20));
        action->m_strVariable = ruleText(gen, 10);
        action->m_strVal1 = ruleText(gen, 5);
        action->m_strVal2 = ruleText(gen, 5);
        action->m_strMax = QString::number(gen.Int(0, 127));
        action->m_strMin = gen.Chance(30) ? QString() : QString::number(gen.Int(0, 127));
        action->m_iAction = static_cast<qint16>(gen.Int(0, 2));
        action->m_strMIDIFile = ruleText(gen, 15);
        action->m_strMessage = ruleText(gen, 30);
        rule->m_MsgOut->Add(action);
    }
    rule->m_strEvent = ruleText(gen, 30);
    return rule;
}

void fillPerformance(quint32 seed)
{
    RandomPerformance gen(seed);
    RandomPerformanceOptions options;
    options.maxScenes = 6;
    gen.FillAll(options);
    qint16 most = 0;
    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList) {
            const int rules = gen.Int(0, 5);
            for (int r = 0; r < rules; ++r)
                part->AddAudioEvent(readableRule(gen), part->AudioEvents.Count() + 1);
            most = std::max<qint16>(most, static_cast<qint16>(part->AudioEvents.Count()));
        }
    // Now and then a limit below the largest subscene: the surplus is not saved either time.
    gMaxEventsPerPart = gen.Chance(25) ? std::max<qint16>(0, most - 1) : most;
    ClearGlobalEvents();
    const int globals = gen.Int(0, 4);
    for (int g = 0; g < globals; ++g)
        AddGlobalEvent(readableRule(gen), 0);
}

QStringList filesOf(const QString& folder) { return QDir(folder).entryList(QDir::Files, QDir::Name); }

} // namespace

class TestPerformanceRoundTrip : public QObject {
    Q_OBJECT
private slots:
    void saveOpenSaveGivesTheSameFiles_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 12; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void saveOpenSaveGivesTheSameFiles()
    {
        QFETCH(quint32, seed);
        QTemporaryDir dir;
        const QString first = QDir::toNativeSeparators(dir.filePath(QStringLiteral("First.qel")));
        const QString second = QDir::toNativeSeparators(dir.filePath(QStringLiteral("Second.qel")));
        DialogDriver noMessages(3000);   // any message box fails the test

        fillPerformance(seed);
        DeriveConfigPaths(first);
        SaveConfiguration(gConfigFilePath);

        fillPerformance(seed + 1000);   // a different performance in memory before the open
        DeriveConfigPaths(first);
        OpenConfiguration(gConfigFilePath);
        DeriveConfigPaths(second);
        SaveConfiguration(gConfigFilePath);
        QVERIFY2(noMessages.finished(), qPrintable(noMessages.error()));

        QCOMPARE(ReadBytes(second), ReadBytes(first));
        const QString firstFolder = dir.filePath(QStringLiteral("First"));
        const QString secondFolder = dir.filePath(QStringLiteral("Second"));
        const QStringList names = filesOf(firstFolder);
        QCOMPARE(filesOf(secondFolder), names);
        for (const QString& name : names)
            QVERIFY2(ReadBytes(secondFolder + u'/' + name) == ReadBytes(firstFolder + u'/' + name), qPrintable(name));
    }

    void robotRulesDoNotSurviveAnOpen()
    {
        QTemporaryDir dir;
        RandomPerformance gen(77);
        RandomPerformanceOptions options;
        options.withBotRules = true;
        gen.FillAll(options);
        gMaxEventsPerPart = 0;
        ClearGlobalEvents();
        DeriveConfigPaths(QDir::toNativeSeparators(dir.filePath(QStringLiteral("Bots.qel"))));
        SaveConfiguration(gConfigFilePath);
        OpenConfiguration(gConfigFilePath);
        for (const auto& scene : gScenes)
            for (const auto& part : scene->PartList)
                QCOMPARE(part->BotEvents.Count(), 0);
        SaveConfiguration(gConfigFilePath);
        const QByteArray talpor = ReadBytes(dir.filePath(QStringLiteral("Bots/Talpor.cfg")));
        QVERIFY(talpor.endsWith("\r\n\r\n\r\n.\r\n\r\n\r\n"));
        QCOMPARE(ReadBytes(dir.filePath(QStringLiteral("Bots/Vilna.cfg"))), QByteArray("\r\n"));
    }
};

QTEST_MAIN(TestPerformanceRoundTrip)
#include "test_performance_roundtrip.moc"
