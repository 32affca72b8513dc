// Scenes.cfg and Scenes.txt: golden files, the older form without colours and
// the edge cases of reading by line position.
#include <QTemporaryDir>
#include <QtTest>
#include "files/FileTestHelpers.h"
#include "files/ModuleScenes.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "support/TestData.h"
#include "support/Windows1252.h"

namespace {

struct PartValues {
    int id;
    QString name;
    QString remarks;
};

void AddScene(int id, const QString& name, int colour, const QString& remarks, const QStringList& movies,
              const QList<PartValues>& parts)
{
    auto scene = std::make_shared<CScene>();
    scene->m_iID = static_cast<qint16>(id);
    scene->m_strName = name;
    scene->m_iColor = static_cast<qint16>(colour);
    scene->m_strRemarks = remarks;
    for (int j = 0; j < movies.size(); ++j)
        scene->m_strMovie(j) = movies[j];
    scene->PartList = Collection<CPart>();
    scene->m_iNumParts = 0;
    for (const PartValues& v : parts) {
        auto part = std::make_shared<CPart>();
        part->m_iID = static_cast<qint16>(v.id);
        part->m_strName = v.name;
        part->m_strRemarks = v.remarks;
        part->m_iScene = scene->m_iID;
        part->InitEventList();
        scene->AddPart(part, scene->PartList.Count() + 1);
    }
    gScenes.Add(scene);
}

// The three scenes of scenes_three.cfg, with two Flash players.
void SetThreeScenes()
{
    gMainConfig.m_strName = QStringLiteral("Gala \u00e9 \u20ac Noche");
    gMainConfig.m_iNFlash = 2;
    gScenes.Clear();
    AddScene(0, QStringLiteral("INTRO"), 9, QStringLiteral("Opening \u00e9 \u20ac"),
             {QStringLiteral("c:\\m\\intro1.swf"), QStringLiteral("c:\\m\\intro2.swf")}, {{0, QString(), QString()}});
    AddScene(1, QStringLiteral("DANCE, PART ONE"), 0, QString(), {QString(), QStringLiteral("x.swf")},
             {{0, QStringLiteral("Part A"), QStringLiteral("first")},
              {1, QStringLiteral("B"), QStringLiteral("second, with comma")},
              {2, QString(), QStringLiteral("r")}});
    AddScene(2, QStringLiteral("FINALE"), 14, QStringLiteral("The end"), {QStringLiteral("a"), QStringLiteral("b")},
             {{0, QStringLiteral("End 1"), QStringLiteral("x")}, {1, QStringLiteral("End 2"), QStringLiteral("y")}});
    gLastScene = 2;
}

QStringList FileLines(const QString& path)
{
    QStringList lines;
    for (const QByteArray& l : ReadBytes(path).split('\n'))
        lines << FromWindows1252(l).remove(u'\r');
    return lines;
}

// Checks the three scenes as read back; colours are checked when `colours`.
void VerifyThreeScenes(bool colours)
{
    QCOMPARE(gScenes.Count(), 3);
    QCOMPARE(gLastScene, qint16(2));
    const CScene& s0 = *gScenes.Item(1);
    QCOMPARE(s0.m_iID, qint16(0));
    QCOMPARE(s0.m_strName, QStringLiteral("INTRO"));
    QCOMPARE(s0.m_iColor, qint16(colours ? 9 : 0));
    QCOMPARE(s0.m_strRemarks, QStringLiteral("Opening \u00e9 \u20ac"));
    QCOMPARE(s0.m_strMovie(0), QStringLiteral("c:\\m\\intro1.swf"));
    QCOMPARE(s0.m_strMovie(1), QStringLiteral("c:\\m\\intro2.swf"));
    QCOMPARE(s0.m_iNumParts, qint16(1));
    QCOMPARE(s0.PartList.Count(), 1);
    QCOMPARE(s0.PartList.Item(1)->m_strName, QString());
    const CScene& s1 = *gScenes.Item(2);
    QCOMPARE(s1.m_strName, QStringLiteral("DANCE, PART ONE"));
    QCOMPARE(s1.m_iColor, qint16(0));
    QCOMPARE(s1.m_strRemarks, QString());
    QCOMPARE(s1.m_strMovie(0), QString());
    QCOMPARE(s1.m_strMovie(1), QStringLiteral("x.swf"));
    QCOMPARE(s1.m_iNumParts, qint16(3));
    QCOMPARE(s1.PartList.Count(), 3);
    QCOMPARE(s1.PartList.Item(2)->m_iID, qint16(1));
    QCOMPARE(s1.PartList.Item(2)->m_strName, QStringLiteral("B"));
    QCOMPARE(s1.PartList.Item(2)->m_strRemarks, QStringLiteral("second, with comma"));
    QCOMPARE(s1.PartList.Item(3)->m_iScene, qint16(1));
    QCOMPARE(s1.PartList.Item(3)->m_VideoCapture(3)->m_iFPS, qint16(5)); // fresh capture defaults
    QCOMPARE(s1.PartList.Item(3)->AudioEvents.Count(), 0);
    const CScene& s2 = *gScenes.Item(3);
    QCOMPARE(s2.m_strName, QStringLiteral("FINALE"));
    QCOMPARE(s2.m_iColor, qint16(colours ? 14 : 0));
    QCOMPARE(s2.m_strRemarks, QStringLiteral("The end"));
    QCOMPARE(s2.PartList.Item(2)->m_strName, QStringLiteral("End 2"));
    QCOMPARE(s2.PartList.Item(2)->m_strRemarks, QStringLiteral("y"));
}

} // namespace

class TestScenes : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void writesScenesFileByteForByte()
    {
        SetThreeScenes();
        QVERIFY(WriteScenesFile(path("Scenes.cfg")));
        QCOMPARE_FILE_WITH_FIXTURE(path("Scenes.cfg"), QStringLiteral("scenes_three.cfg"));
    }

    void writesSceneNamesFileByteForByte()
    {
        SetThreeScenes();
        gScenes.Item(2)->m_iID = 7; // the first column is the position, not the number
        QVERIFY(WriteSceneNamesFile(path("Scenes.txt")));
        QCOMPARE_FILE_WITH_FIXTURE(path("Scenes.txt"), QStringLiteral("scenes_three.txt"));
    }

    void accentsAreSingleWindows1252Bytes()
    {
        SetThreeScenes();
        QVERIFY(WriteScenesFile(path("accent.cfg")));
        QVERIFY(ReadBytes(path("accent.cfg")).contains("; Remarks:\r\nOpening \xE9 \x80\r\n"));
    }

    void readsScenesFile()
    {
        gMainConfig.m_iNFlash = 2;
        AddTestScene(QStringLiteral("OLD"), 1);
        QVERIFY(ReadScenesFile(TestDataPath("files/scenes_three.cfg")));
        VerifyThreeScenes(true);
    }

    void olderFileWithoutColoursReadsWithColourZero()
    {
        gMainConfig.m_iNFlash = 2;
        QVERIFY(ReadScenesFile(TestDataPath("files/scenes_three_no_colours.cfg")));
        VerifyThreeScenes(false);
    }

    void subsceneNameLosesItsOwnBlanksSceneTextsDoNot()
    {
        gMainConfig.m_iNFlash = 0;
        gScenes.Clear();
        auto scene = AddTestScene(QStringLiteral("  SPACED  "), 1);
        scene->m_strRemarks = QStringLiteral(" remarks ");
        scene->PartList.Item(1)->m_strName = QStringLiteral("  inner  ");
        scene->PartList.Item(1)->m_strRemarks = QStringLiteral(" note ");
        QVERIFY(WriteScenesFile(path("blanks.cfg")));
        QVERIFY(ReadBytes(path("blanks.cfg")).contains(";      Name:\r\n         inner  \r\n"));
        QVERIFY(ReadScenesFile(path("blanks.cfg")));
        QCOMPARE(gScenes.Item(1)->m_strName, QStringLiteral("  SPACED  "));
        QCOMPARE(gScenes.Item(1)->m_strRemarks, QStringLiteral(" remarks "));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_strName, QStringLiteral("inner"));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_strRemarks, QStringLiteral("note"));
    }

    void noFlashPlayersPutsBlankRightAfterSwfPath()
    {
        SetThreeScenes();
        gMainConfig.m_iNFlash = 0;
        QVERIFY(WriteScenesFile(path("noflash.cfg")));
        const QByteArray bytes = ReadBytes(path("noflash.cfg"));
        QVERIFY(bytes.contains("; SWF Path:\r\n\r\n; Number of Parts:\r\n"));
        QVERIFY(!bytes.contains("intro1.swf"));
        QVERIFY(ReadScenesFile(path("noflash.cfg")));
        QCOMPARE(gScenes.Count(), 3);
        QCOMPARE(gScenes.Item(2)->m_iNumParts, qint16(3));
    }

    void changedFlashCountShiftsEveryLaterLine()
    {
        // One player more than the file holds: the blank after the movies is
        // taken as a movie, and the count of parts lands on the blank after it.
        gMainConfig.m_iNFlash = 3;
        QVERIFY(!ReadScenesFile(TestDataPath("files/scenes_three.cfg")));
        QCOMPARE(gScenes.Count(), 0);
        // One player fewer: the second movie path is skipped as the blank and
        // the comment above the count is read as the count.
        gMainConfig.m_iNFlash = 1;
        QVERIFY(!ReadScenesFile(TestDataPath("files/scenes_three.cfg")));
        QCOMPARE(gScenes.Count(), 0);
        // With no player at all the text lines shift: the reader fails on a number.
        gMainConfig.m_iNFlash = 0;
        QVERIFY(!ReadScenesFile(TestDataPath("files/scenes_three.cfg")));
    }

    void sceneWithZeroPartsReadsEmptyPartList()
    {
        QStringList lines = FileLines(TestDataPath("files/scenes_three.cfg"));
        // Scene 0's single part block: change its count to 0 and drop its 12 lines.
        const qsizetype count = lines.indexOf(QStringLiteral("; Number of Parts:")) + 1;
        QCOMPARE(lines[count], QStringLiteral(" 1 "));
        lines[count] = QStringLiteral(" 0 ");
        lines.remove(count + 2, 12);
        QVERIFY(WriteBytes(path("zero.cfg"), Lines1252(lines.mid(0, lines.size() - 1))));
        gMainConfig.m_iNFlash = 2;
        QVERIFY(ReadScenesFile(path("zero.cfg")));
        QCOMPARE(gScenes.Count(), 3);
        QCOMPARE(gScenes.Item(1)->m_iNumParts, qint16(0));
        QCOMPARE(gScenes.Item(1)->PartList.Count(), 0);
        QCOMPARE(gScenes.Item(2)->PartList.Count(), 3);
    }

    void missingFileFailsWithScenesRemoved()
    {
        SetThreeScenes();
        QVERIFY(!ReadScenesFile(path("missing.cfg")));
        QCOMPARE(gScenes.Count(), 0);
        QCOMPARE(gLastScene, qint16(-1));
    }

    void truncatedFileKeepsScenesReadSoFar()
    {
        const QByteArray bytes = ReadBytes(TestDataPath("files/scenes_three.cfg"));
        const qsizetype cut = bytes.indexOf("; Scene 2:");
        QVERIFY(WriteBytes(path("cut.cfg"), bytes.left(cut + 5)));
        gMainConfig.m_iNFlash = 2;
        QVERIFY(!ReadScenesFile(path("cut.cfg")));
        QCOMPARE(gScenes.Count(), 2);
        QCOMPARE(gLastScene, qint16(1));
    }

    void writerFailsOnMoreCountedPartsThanListed()
    {
        SetThreeScenes();
        gScenes.Item(2)->m_iNumParts = 4;
        QVERIFY(!WriteScenesFile(path("bad.cfg")));
        const QByteArray bytes = ReadBytes(path("bad.cfg"));
        QVERIFY(bytes.contains(";      Part 2:"));
        QVERIFY(!bytes.contains("; Scene 2:"));
        SetThreeScenes();
        QVERIFY(!WriteScenesFile(path("no-folder/Scenes.cfg")));
        QVERIFY(!WriteSceneNamesFile(path("no-folder/Scenes.txt")));
    }
};

QTEST_MAIN(TestScenes)
#include "test_scenes.moc"
