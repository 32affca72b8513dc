// VideoCapture.cfg and VideoEvents.cfg: golden files, the capture flag that
// follows from the rules, and the reader's rows by device count.
#include <QTemporaryDir>
#include <QtTest>
#include "files/FileTestHelpers.h"
#include "files/ModuleVideoCapture.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "rules/CAction.h"
#include "rules/CEvent.h"
#include "support/TestData.h"
#include "support/Windows1252.h"

namespace {

void SetCapture(CVideoCapture& cap, int fps, int quality, const QString& root, int folders, int maxTime)
{
    cap.m_iFPS = static_cast<qint16>(fps);
    cap.m_iQuality = static_cast<qint16>(quality);
    cap.m_strRootFolder = root;
    cap.m_iNumFolders = static_cast<qint16>(folders);
    cap.m_iMaxTime = static_cast<qint16>(maxTime);
}

std::shared_ptr<CEvent> RuleWithTargets(std::initializer_list<int> targetTypes)
{
    auto rule = std::make_shared<CEvent>();
    rule->m_MsgOut = std::make_shared<Collection<CAction>>();
    for (int t : targetTypes) {
        auto action = std::make_shared<CAction>();
        action->m_iTargetType = static_cast<qint16>(t);
        rule->m_MsgOut->Add(action);
    }
    return rule;
}

// The performance of videocapture_two_scenes.cfg: two capture devices; only
// subscene 1 of scene 1 has a rule with a Video Capture action.
void SetTwoScenes()
{
    gMainConfig.m_iNVideoCaps = 2;
    gScenes.Clear();
    auto intro = AddTestScene(QStringLiteral("INTRO"), 1);
    auto dance = AddTestScene(QStringLiteral("DANCE \u00e9 \u20ac"), 2);
    CPart& p00 = *intro->PartList.Item(1);
    SetCapture(*p00.m_VideoCapture(1), 10, 75, QStringLiteral("  D:\\cap\\  "), 4, 6);
    p00.AddAudioEvent(RuleWithTargets({0, 3, 9}), 1);
    p00.AddAudioEvent(std::make_shared<CEvent>(), 2); // a rule with no action list
    CPart& p10 = *dance->PartList.Item(1);
    SetCapture(*p10.m_VideoCapture(0), 25, 90, QStringLiteral("E:\\a"), 2, 9);
    SetCapture(*p10.m_VideoCapture(1), 1, 1, QStringLiteral("F:\\b"), 1, 1);
    CPart& p11 = *dance->PartList.Item(2);
    SetCapture(*p11.m_VideoCapture(0), 30, 100, QStringLiteral("G:\\shots"), 16, 60);
    p11.AddAudioEvent(RuleWithTargets({2}), 1);
    p11.AddAudioEvent(RuleWithTargets({1, 10}), 2); // the Video Capture action
    SetCapture(*p11.m_VideoCapture(3), 99, 99, QStringLiteral("not written"), 99, 99);
}

QStringList FixtureLines()
{
    QStringList lines;
    for (const QByteArray& l : ReadBytes(TestDataPath("files/videocapture_two_scenes.cfg")).split('\n'))
        lines << FromWindows1252(l).remove(u'\r');
    lines.removeLast();
    return lines;
}

} // namespace

class TestVideoCapture : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

    // Fresh subscenes with default capture settings, in the shape of the fixture.
    void freshScenes()
    {
        gMainConfig.m_iNVideoCaps = 2;
        gScenes.Clear();
        AddTestScene(QStringLiteral("INTRO"), 1);
        AddTestScene(QStringLiteral("DANCE"), 2);
    }

    bool readLines(const QStringList& lines)
    {
        WriteBytes(path("in.cfg"), Lines1252(lines));
        return ReadVideoCaptureFile(path("in.cfg"));
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void commaFieldScanner()
    {
        int position = 1;
        const QString line = QStringLiteral("a,,bc,");
        QCOMPARE(GetNextCommaField(line, position), QStringLiteral("a"));
        QCOMPARE(position, 3);
        QCOMPARE(GetNextCommaField(line, position), QString());
        QCOMPARE(GetNextCommaField(line, position), QStringLiteral("bc"));
        QCOMPARE(position, 7);
        QCOMPARE(GetNextCommaField(line, position), QString());
        QCOMPARE(GetNextCommaField(line, position), QString());
        position = 3;
        QCOMPARE(GetNextCommaField(QStringLiteral("ab cd"), position), QStringLiteral(" cd"));
    }

    void writesCaptureFileByteForByte()
    {
        SetTwoScenes();
        QVERIFY(WriteVideoCaptureFile(path("VideoCapture.cfg")));
        QCOMPARE_FILE_WITH_FIXTURE(path("VideoCapture.cfg"), QStringLiteral("videocapture_two_scenes.cfg"));
    }

    void writesVideoEventsFileByteForByte()
    {
        SetTwoScenes();
        QVERIFY(WriteVideoEventsFile(path("VideoEvents.cfg")));
        QCOMPARE_FILE_WITH_FIXTURE(path("VideoEvents.cfg"), QStringLiteral("videoevents.cfg"));
    }

    void readsCaptureFile()
    {
        freshScenes();
        QVERIFY(ReadVideoCaptureFile(TestDataPath("files/videocapture_two_scenes.cfg")));
        const CVideoCapture& a = *gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(1);
        QCOMPARE(a.m_iFPS, qint16(10));
        QCOMPARE(a.m_iQuality, qint16(75));
        QCOMPARE(a.m_strRootFolder, QStringLiteral("D:\\cap\\"));
        QCOMPARE(a.m_iNumFolders, qint16(4));
        QCOMPARE(a.m_iMaxTime, qint16(6));
        const CVideoCapture& b = *gScenes.Item(2)->PartList.Item(2)->m_VideoCapture(0);
        QCOMPARE(b.m_iFPS, qint16(30));
        QCOMPARE(b.m_iQuality, qint16(100));
        QCOMPARE(b.m_strRootFolder, QStringLiteral("G:\\shots"));
        QCOMPARE(b.m_iNumFolders, qint16(16));
        QCOMPARE(b.m_iMaxTime, qint16(60));
        QCOMPARE(gScenes.Item(2)->PartList.Item(2)->m_VideoCapture(2)->m_iFPS, qint16(5));
    }

    void noCaptureDevicesGiveHeadingsOnlyAndNoRows()
    {
        SetTwoScenes();
        gMainConfig.m_iNVideoCaps = 0;
        QVERIFY(WriteVideoCaptureFile(path("none.cfg")));
        const QByteArray bytes = ReadBytes(path("none.cfg"));
        QVERIFY(bytes.contains("; Scene 1 - Part 1. \r\n\r\n\r\n\r\n\r\n\r\n\r\n.\r\n"));
        QVERIFY(!bytes.contains(",")); // no row anywhere
        freshScenes();
        gMainConfig.m_iNVideoCaps = 0;
        QVERIFY(ReadVideoCaptureFile(path("none.cfg")));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(5));
    }

    void rootFolderWithCommaMakesTheReadFail()
    {
        SetTwoScenes();
        SetCapture(*gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0), 7, 8, QStringLiteral("C:\\a,b"), 9, 10);
        QVERIFY(WriteVideoCaptureFile(path("comma.cfg")));
        QVERIFY(ReadBytes(path("comma.cfg")).contains("0,0,0,7,8,C:\\a,b,9,10\r\n"));
        freshScenes();
        QVERIFY(!ReadVideoCaptureFile(path("comma.cfg")));
    }

    void rowForMissingSceneFailsAndLaterRowsStayUnread()
    {
        QStringList lines = FixtureLines();
        const qsizetype first = lines.indexOf(QStringLiteral("0,0,0,5,50,C:\\,8,3"));
        QVERIFY(first > 0);
        lines[first] = QStringLiteral("2,0,0,5,50,C:\\,8,3");
        freshScenes();
        QVERIFY(!readLines(lines));
        QCOMPARE(gScenes.Item(2)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(5));

        lines = FixtureLines();
        lines[first + 1] = QStringLiteral("0,1,0,10,75,D:\\cap\\,4,6"); // scene 0 has one subscene only
        freshScenes();
        QVERIFY(!readLines(lines));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(5));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(1)->m_iFPS, qint16(5));   // the bad row sets nothing
        QCOMPARE(gScenes.Item(2)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(5));   // later rows unread
    }

    void captureFlagFollowsTheRulesOnEverySave()
    {
        SetTwoScenes();
        QVERIFY(WriteVideoCaptureFile(path("flag.cfg")));
        QVERIFY(ReadBytes(path("flag.cfg")).contains("1,1,1,30,100,G:\\shots,16,60\r\n"));
        QVERIFY(ReadBytes(path("flag.cfg")).contains("1,0,0,25,90,E:\\a,2,9\r\n"));
        // The flag is not read: a file claiming capture leaves nothing behind,
        // and the next save writes what the rules say.
        QStringList lines = FixtureLines();
        lines.replaceInStrings(QStringLiteral("0,0,0,"), QStringLiteral("0,0,1,"));
        freshScenes();
        QVERIFY(readLines(lines));
        QVERIFY(WriteVideoCaptureFile(path("again.cfg")));
        for (const QByteArray& row : ReadBytes(path("again.cfg")).split('\n'))
            if (row.contains(','))
                QCOMPARE(row.split(',').value(2), QByteArray("0"));
        // Removing the Video Capture action clears the flag.
        SetTwoScenes();
        gScenes.Item(2)->PartList.Item(2)->AudioEvents.Item(2)->m_MsgOut->Remove(2);
        QVERIFY(WriteVideoCaptureFile(path("cleared.cfg")));
        QVERIFY(ReadBytes(path("cleared.cfg")).contains("1,1,0,30,100,G:\\shots,16,60\r\n"));
    }

    void dataLineWithoutCaptureDevicesIsPassedOver()
    {
        freshScenes();
        gMainConfig.m_iNVideoCaps = 0;
        QVERIFY(ReadVideoCaptureFile(TestDataPath("files/videocapture_two_scenes.cfg")));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(1)->m_iFPS, qint16(5));
    }

    void fileWithoutEndMarkFails()
    {
        QStringList lines = FixtureLines();
        lines = lines.mid(0, lines.indexOf(QStringLiteral(".")));
        freshScenes();
        QVERIFY(!readLines(lines));
        QCOMPARE(gScenes.Item(2)->PartList.Item(2)->m_VideoCapture(0)->m_iFPS, qint16(30)); // read before the end
    }

    void writerFailuresReturnFalse()
    {
        SetTwoScenes();
        gMainConfig.m_iNVideoCaps = 5;
        QVERIFY(!WriteVideoCaptureFile(path("five.cfg")));
        QVERIFY(ReadBytes(path("five.cfg")).endsWith("; Scene 0 - Part 0. \r\n\r\n0,0,0,5,50,C:\\,8,3\r\n"
                                                      "0,0,0,10,75,D:\\cap\\,4,6\r\n0,0,0,5,50,C:\\,8,3\r\n"
                                                      "0,0,0,5,50,C:\\,8,3\r\n"));
        QVERIFY(!WriteVideoCaptureFile(path("no-folder/x.cfg")));
        QVERIFY(!WriteVideoEventsFile(path("no-folder/y.cfg")));
        QVERIFY(!ReadVideoCaptureFile(path("missing.cfg")));
    }
};

QTEST_MAIN(TestVideoCapture)
#include "test_videocapture.moc"
