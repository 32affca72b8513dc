// BotsEvents.cfg, Talpor.cfg and Vilna.cfg: the three files of one walk over
// the robot rules, with and without rules.
#include <QTemporaryDir>
#include <QtTest>
#include "files/CBotEvent.h"
#include "files/FileTestHelpers.h"
#include "files/ModuleBotEvents.h"
#include "files/ModuleScenes.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "support/TestData.h"

namespace {

std::shared_ptr<CBotEvent> Bot(int robot, const QString& remarks)
{
    auto bot = std::make_shared<CBotEvent>();
    bot->m_iRukaBot = static_cast<qint16>(robot);
    bot->m_strRemarks = remarks;
    return bot;
}

void SetScenesWithoutRules()
{
    gMainConfig.m_iTalporPort = 7;
    gScenes.Clear();
    AddTestScene(QStringLiteral("INTRO"), 1);
    AddTestScene(QStringLiteral("DANCE"), 2);
}

void SetScenesWithRules()
{
    SetScenesWithoutRules();
    CPart& intro = *gScenes.Item(1)->PartList.Item(1);
    intro.AddBotEvent(Bot(5, QStringLiteral("talpor one")), 1);
    intro.AddBotEvent(Bot(1, QStringLiteral("arm, left \u00e9 \u20ac")), 2);
    intro.AddBotEvent(Bot(3, QStringLiteral("vilna")), 3);
    CPart& dance = *gScenes.Item(2)->PartList.Item(2);
    dance.AddBotEvent(Bot(3, QStringLiteral("v2")), 1);
    dance.AddBotEvent(Bot(3, QStringLiteral("v2")), 2);
    dance.AddBotEvent(Bot(5, QStringLiteral("t2")), 3);
    dance.AddBotEvent(Bot(0, QString()), 4);
}

} // namespace

class TestBotEvents : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }
    bool writeAll(const QString& prefix)
    {
        return WriteBotEventsFile(path(prefix + "BotsEvents.cfg"), path(prefix + "Talpor.cfg"), path(prefix + "Vilna.cfg"));
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void rowIdentifierRightAlignsThreeNumbers()
    {
        QCOMPARE(BuildBotEventID(3, 1, 1, true), QStringLiteral(" 0, 2, 0,"));
        QCOMPARE(BuildBotEventID(12, 11, 100, true), QStringLiteral("99,11,10,"));
        QCOMPARE(BuildBotEventID(3, 1, 1, false), QString());
    }

    void copyAssignsEveryField()
    {
        CBotEvent source;
        source.m_iType = 1;
        source.m_iSource = 2;
        source.m_iRukaBot = 3;
        source.m_iSelectItem = 4;
        source.m_iEmbragueItem = 5;
        source.m_iItem1 = 6;
        source.m_iItem2 = 7;
        source.m_iItem3 = 8;
        source.m_iItem4 = 9;
        source.m_iItem5 = 10;
        source.m_iItem6 = 11;
        source.m_strMIDIFile1 = QStringLiteral("1.mid");
        source.m_strMIDIFile2 = QStringLiteral("2.mid");
        source.m_strMIDIFile3 = QStringLiteral("3.mid");
        source.m_strMIDIFile4 = QStringLiteral("4.mid");
        source.m_strMIDIFile5 = QStringLiteral("5.mid");
        source.m_strMIDIFile6 = QStringLiteral("6.mid");
        source.m_strRemarks = QStringLiteral("r");
        source.m_bLoop = true;
        CBotEvent target;
        CopyBotEvent(target, source);
        QCOMPARE(target.m_iType, qint16(1));
        QCOMPARE(target.m_iSource, qint16(2));
        QCOMPARE(target.m_iRukaBot, qint16(3));
        QCOMPARE(target.m_iSelectItem, qint16(4));
        QCOMPARE(target.m_iEmbragueItem, qint16(5));
        QCOMPARE(target.m_iItem1, qint16(6));
        QCOMPARE(target.m_iItem2, qint16(7));
        QCOMPARE(target.m_iItem3, qint16(8));
        QCOMPARE(target.m_iItem4, qint16(9));
        QCOMPARE(target.m_iItem5, qint16(10));
        QCOMPARE(target.m_iItem6, qint16(11));
        QCOMPARE(target.m_strMIDIFile1, QStringLiteral("1.mid"));
        QCOMPARE(target.m_strMIDIFile2, QStringLiteral("2.mid"));
        QCOMPARE(target.m_strMIDIFile3, QStringLiteral("3.mid"));
        QCOMPARE(target.m_strMIDIFile4, QStringLiteral("4.mid"));
        QCOMPARE(target.m_strMIDIFile5, QStringLiteral("5.mid"));
        QCOMPARE(target.m_strMIDIFile6, QStringLiteral("6.mid"));
        QCOMPARE(target.m_strRemarks, QStringLiteral("r"));
        QCOMPARE(target.m_bLoop, true);
    }

    void writesThreeFilesWithRulesByteForByte()
    {
        SetScenesWithRules();
        QVERIFY(writeAll("rules-"));
        QCOMPARE_FILE_WITH_FIXTURE(path("rules-BotsEvents.cfg"), QStringLiteral("bots_rules_index.cfg"));
        QCOMPARE_FILE_WITH_FIXTURE(path("rules-Talpor.cfg"), QStringLiteral("bots_rules_talpor.cfg"));
        QCOMPARE_FILE_WITH_FIXTURE(path("rules-Vilna.cfg"), QStringLiteral("bots_rules_vilna.cfg"));
        QVERIFY(ReadBytes(path("rules-BotsEvents.cfg")).contains(" 1, 0, 0,,arm, left \xE9 \x80\r\n"));
    }

    void noRobotRulesStillWritesTheThreeFiles()
    {
        SetScenesWithoutRules();
        QVERIFY(writeAll("none-"));
        QCOMPARE_FILE_WITH_FIXTURE(path("none-BotsEvents.cfg"), QStringLiteral("bots_none_index.cfg"));
        QCOMPARE_FILE_WITH_FIXTURE(path("none-Talpor.cfg"), QStringLiteral("bots_none_talpor.cfg"));
        QCOMPARE_FILE_WITH_FIXTURE(path("none-Vilna.cfg"), QStringLiteral("bots_none_vilna.cfg"));
        QCOMPARE(ReadBytes(path("none-Vilna.cfg")), QByteArray("\r\n"));
        QVERIFY(ReadBytes(path("none-Talpor.cfg")).startsWith(" 7 \r\n"));
    }

    void filesHoldNoRowsAfterReadingTheScenesBack()
    {
        SetScenesWithRules();
        gMainConfig.m_iNFlash = 0;
        QVERIFY(WriteScenesFile(path("Scenes.cfg")));
        QVERIFY(ReadScenesFile(path("Scenes.cfg")));
        QVERIFY(writeAll("reopened-"));
        QCOMPARE_FILE_WITH_FIXTURE(path("reopened-BotsEvents.cfg"), QStringLiteral("bots_none_index.cfg"));
        QCOMPARE_FILE_WITH_FIXTURE(path("reopened-Talpor.cfg"), QStringLiteral("bots_none_talpor.cfg"));
        QCOMPARE_FILE_WITH_FIXTURE(path("reopened-Vilna.cfg"), QStringLiteral("bots_none_vilna.cfg"));
    }

    void longRemarkStaysOnOneLineAndCommaIsWrittenAsItIs()
    {
        SetScenesWithoutRules();
        const QString longRemark = QString(5000, u'x') + QStringLiteral(", and more, é");
        gScenes.Item(1)->PartList.Item(1)->AddBotEvent(Bot(1, longRemark), 1);
        QVERIFY(writeAll("long-"));
        const QByteArray bytes = ReadBytes(path("long-BotsEvents.cfg"));
        QVERIFY(bytes.contains("\r\n 0, 0, 0,,xxxx"));
        QVERIFY(bytes.contains(QByteArray(4990, 'x') + ", and more, \xE9\r\n"));
    }

    void failureLeavesTheFilesWrittenSoFar()
    {
        SetScenesWithRules();
        QVERIFY(!WriteBotEventsFile(path("fail-BotsEvents.cfg"), path("no-folder/Talpor.cfg"), path("fail-Vilna.cfg")));
        QVERIFY(QFile::exists(path("fail-BotsEvents.cfg")));
        QVERIFY(!QFile::exists(path("fail-Vilna.cfg")));
        gScenes.Item(2)->m_iNumParts = 3;
        QVERIFY(!writeAll("parts-"));
        QVERIFY(ReadBytes(path("parts-Vilna.cfg")).startsWith("0,0\r\n1,1\r\n1,1\r\n"));
    }
};

QTEST_MAIN(TestBotEvents)
#include "test_botevents.moc"
