// A scene: its subscene list, movies and row texts.
#include <QtTest>
#include "model/CScene.h"
#include "support/RuntimeError.h"

namespace {
std::shared_ptr<CPart> part(qint16 id, const QString& name = QString())
{
    auto p = std::make_shared<CPart>();
    p->m_iID = id;
    p->m_strName = name;
    p->InitEventList();
    return p;
}

QStringList names(const CScene& s)
{
    QStringList out;
    for (const auto& p : s.PartList)
        out << p->m_strName;
    return out;
}
} // namespace

class TestScene : public QObject {
    Q_OBJECT
private slots:
    void newSceneIsEmpty()
    {
        const CScene scene;
        QCOMPARE(scene.m_iID, qint16(0));
        QCOMPARE(scene.m_iNumParts, qint16(0));
        QCOMPARE(scene.m_iColor, qint16(0));
        QCOMPARE(scene.PartList.Count(), 0);
        for (int i = 0; i <= 15; ++i)
            QVERIFY(scene.m_strMovie(i).isEmpty());
    }

    void movieIndexOutsideZeroToFifteenRaises()
    {
        CScene scene;
        scene.m_strMovie(0) = QStringLiteral("intro.swf");
        scene.m_strMovie(15) = QStringLiteral("last.swf");
        QCOMPARE(scene.m_strMovie(0), QStringLiteral("intro.swf"));
        QCOMPARE(scene.m_strMovie(15), QStringLiteral("last.swf"));
        QVERIFY_THROWS_EXCEPTION(RangeError, scene.m_strMovie(16));
        QVERIFY_THROWS_EXCEPTION(RangeError, scene.m_strMovie(-1));
    }

    void initPartListGivesOneEmptySubsceneZero()
    {
        CScene scene;
        scene.m_iID = 4;
        scene.InitPartList();
        QCOMPARE(scene.PartList.Count(), 1);
        QCOMPARE(scene.m_iNumParts, qint16(1));
        const auto& p = scene.PartList.Item(1);
        QCOMPARE(p->m_iID, qint16(0));
        QCOMPARE(p->m_iScene, qint16(4));
        QVERIFY(p->m_strName.isEmpty());
        QVERIFY(p->m_strRemarks.isEmpty());
        QCOMPARE(p->AudioEvents.Count(), 0);
        for (int i = 0; i <= 3; ++i) {
            QVERIFY(p->m_VideoCapture(i));
            QCOMPARE(p->m_VideoCapture(i)->m_iFPS, qint16(5));
        }
    }

    void initPartListOfASceneNumberedMinusOneGivesSubsceneOfSceneMinusOne()
    {
        CScene scene;
        scene.m_iID = -1;
        scene.InitPartList();
        QCOMPARE(scene.PartList.Item(1)->m_iScene, qint16(-1));
    }

    void initPartListReplacesTheOldList()
    {
        CScene scene;
        scene.InitPartList();
        scene.AddPart(part(1, "one"), 2);
        scene.AddPart(part(2, "two"), 3);
        QCOMPARE(scene.m_iNumParts, qint16(3));
        const CPart* old = scene.PartList.Item(1).get();
        scene.InitPartList();
        QCOMPARE(scene.PartList.Count(), 1);
        QCOMPARE(scene.m_iNumParts, qint16(1));
        QVERIFY(scene.PartList.Item(1).get() != old);
    }

    void initPartListZeroesTheSharedCounters()
    {
        gAudioEventCount = 5;
        gBotEventCount = 5;
        CScene scene;
        scene.InitPartList();
        QCOMPARE(gAudioEventCount, qint16(0));
        QCOMPARE(gBotEventCount, qint16(0));
    }

    void addPartInsertsBeforeOrAppendsAtCountPlusOne()
    {
        CScene scene;
        scene.AddPart(part(0, "c"), 1);     // count + 1 of an empty list
        scene.AddPart(part(1, "a"), 1);
        scene.AddPart(part(2, "b"), 2);
        scene.AddPart(part(3, "d"), 4);
        QCOMPARE(names(scene), (QStringList{"a", "b", "c", "d"}));
        QCOMPARE(scene.m_iNumParts, qint16(4));
    }

    void addPartOutsideTheRangeDoesNothing()
    {
        CScene scene;
        scene.InitPartList();
        scene.AddPart(part(1, "x"), 0);
        scene.AddPart(part(1, "x"), 3);
        scene.AddPart(part(1, "x"), -1);
        QCOMPARE(scene.PartList.Count(), 1);
        QCOMPARE(scene.m_iNumParts, qint16(1));
    }

    void removePartRemovesInRangeOnly()
    {
        CScene scene;
        scene.AddPart(part(0, "a"), 1);
        scene.AddPart(part(1, "b"), 2);
        scene.AddPart(part(2, "c"), 3);
        scene.RemovePart(0);
        scene.RemovePart(4);
        QCOMPARE(scene.m_iNumParts, qint16(3));
        scene.RemovePart(2);
        QCOMPARE(names(scene), (QStringList{"a", "c"}));
        QCOMPARE(scene.m_iNumParts, qint16(2));
        scene.RemovePart(2);
        scene.RemovePart(1);
        QCOMPARE(scene.PartList.Count(), 0);
        QCOMPARE(scene.m_iNumParts, qint16(0));
        scene.RemovePart(1);
        QCOMPARE(scene.m_iNumParts, qint16(0));
    }

    void partCountFollowsOnlyTheOperations()
    {
        // m_iNumParts is kept by AddPart and RemovePart; a direct change of the list does not move it.
        CScene scene;
        scene.InitPartList();
        scene.PartList.Add(part(1));
        QCOMPARE(scene.m_iNumParts, qint16(1));
        QCOMPARE(scene.PartList.Count(), 2);
    }

    void listItemIsNumberTwoBlanksAndName()
    {
        CScene scene;
        scene.m_iID = 2;
        scene.m_strName = QStringLiteral("INTRO");
        QCOMPARE(scene.BuildListItem(), QStringLiteral("002  INTRO"));
        scene.m_iID = 0;
        scene.m_strName = QStringLiteral("SCENE 1");
        QCOMPARE(scene.BuildListItem(), QStringLiteral("000  SCENE 1"));
        scene.m_iID = 45;
        QCOMPARE(scene.BuildListItem(), QStringLiteral("045  SCENE 1"));
    }

    void listItemOfAnUnnamedScene()
    {
        CScene scene;
        scene.m_iID = 7;
        QCOMPARE(scene.BuildListItem(), QStringLiteral("007  "));
    }

    void sceneNumberAbove999FormatsInFull()
    {
        CScene scene;
        scene.m_iID = 1000;
        scene.m_strName = QStringLiteral("LONG");
        QCOMPARE(scene.BuildListItem(), QStringLiteral("1000  LONG"));
        scene.m_iID = 12345;
        QCOMPARE(scene.BuildListItem(), QStringLiteral("12345  LONG"));
        scene.m_iID = 999;
        QCOMPARE(scene.BuildListItem(), QStringLiteral("999  LONG"));
    }

    void listItemOfANegativeNumber()
    {
        CScene scene;
        scene.m_iID = -1;
        scene.m_strName = QStringLiteral("SCENE 1");
        QCOMPARE(scene.BuildListItem(), QStringLiteral("-001  SCENE 1"));
    }

    void partListItemIsBlanksNumberBlanksName()
    {
        CScene scene;
        scene.AddPart(part(0, "FIRST"), 1);
        scene.AddPart(part(3, "DANCE"), 2);
        QCOMPARE(scene.BuildPartListItem(1), QString(14, u' ') + "00" + QString(13, u' ') + "FIRST");
        QCOMPARE(scene.BuildPartListItem(2), QStringLiteral("              03             DANCE"));
    }

    void unnamedSubsceneShowsBlanksAndNumberOnly()
    {
        CScene scene;
        scene.InitPartList();
        const QString item = scene.BuildPartListItem(1);
        QCOMPARE(item, QString(14, u' ') + QStringLiteral("00") + QString(13, u' '));
        QCOMPARE(item.size(), 29);
    }

    void partListItemOfALargeNumber()
    {
        CScene scene;
        scene.AddPart(part(123, "X"), 1);
        QCOMPARE(scene.BuildPartListItem(1), QString(14, u' ') + "123" + QString(13, u' ') + "X");
    }

    void partListItemAtABadPositionRaises()
    {
        CScene scene;
        scene.InitPartList();
        QVERIFY_THROWS_EXCEPTION(RangeError, scene.BuildPartListItem(0));
        QVERIFY_THROWS_EXCEPTION(RangeError, scene.BuildPartListItem(2));
    }
};

QTEST_MAIN(TestScene)
#include "test_scene.moc"
