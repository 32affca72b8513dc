// The scene list fills and the colours of the scene rows.
#include <QtTest>
#include <QListWidget>
#include <QTreeWidget>
#include "model/CScene.h"
#include "model/SceneColors.h"
#include "model/SceneLists.h"

namespace {
std::shared_ptr<CScene> scene(qint16 id, const QString& name, qint16 color = 0)
{
    auto s = std::make_shared<CScene>();
    s->m_iID = id;
    s->m_strName = name;
    s->m_iColor = color;
    s->InitPartList();
    return s;
}

QStringList rows(const QTreeWidget& list)
{
    QStringList out;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        out << list.topLevelItem(i)->text(0);
    return out;
}

QStringList rows(const QListWidget& list)
{
    QStringList out;
    for (int i = 0; i < list.count(); ++i)
        out << list.item(i)->text();
    return out;
}

QRgb rowColor(const QTreeWidget& list, int row)
{
    return list.topLevelItem(row)->foreground(0).color().rgb() & 0xFFFFFF;
}
} // namespace

class TestSceneLists : public QObject {
    Q_OBJECT
private slots:
    void init() { gScenes.Clear(); }
    void cleanupTestCase() { gScenes.Clear(); }

    void listViewShowsOneRowPerSceneAndTheEndRow()
    {
        gScenes.Add(scene(0, "SCENE 1"));
        gScenes.Add(scene(1, "INTRO"));
        gScenes.Add(scene(2, "FINALE"));
        QTreeWidget list;
        FillSceneListView(&list);
        QCOMPARE(rows(list), (QStringList{"000  SCENE 1", "001  INTRO", "002  FINALE", ""}));
    }

    void endRowIsThereEvenWithNoScenes()
    {
        QTreeWidget list;
        FillSceneListView(&list);
        QCOMPARE(list.topLevelItemCount(), 1);
        QCOMPARE(list.topLevelItem(0)->text(0), QString());
    }

    void listViewRenumbersTheScenes()
    {
        gScenes.Add(scene(7, "A"));
        gScenes.Add(scene(-1, "B"));
        gScenes.Add(scene(7, "C"));
        QTreeWidget list;
        FillSceneListView(&list);
        for (int i = 1; i <= 3; ++i)
            QCOMPARE(gScenes.Item(i)->m_iID, qint16(i - 1));
        QCOMPARE(rows(list), (QStringList{"000  A", "001  B", "002  C", ""}));
    }

    void renumberingLeavesTheSubscenesSceneNumber()
    {
        gScenes.Add(scene(5, "A"));
        QTreeWidget list;
        FillSceneListView(&list);
        QCOMPARE(gScenes.Item(1)->m_iID, qint16(0));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_iScene, qint16(5));
    }

    void listViewIsClearedBeforeItIsFilled()
    {
        gScenes.Add(scene(0, "A"));
        QTreeWidget list;
        new QTreeWidgetItem(&list, QStringList{QStringLiteral("stale")});
        FillSceneListView(&list);
        FillSceneListView(&list);
        QCOMPARE(rows(list), (QStringList{"000  A", ""}));
    }

    void listViewColoursTheRows()
    {
        const QList<QPair<qint16, QRgb>> colours = {
            {0, 0xDDDDDD}, {8, 0x000000}, {9, 0x0000FF}, {10, 0x00FF00},
            {11, 0x00FFFF}, {12, 0xFF0000}, {13, 0xFF00FF}, {14, 0xFFFF00},
        };
        for (const auto& c : colours)
            gScenes.Add(scene(0, QStringLiteral("S%1").arg(c.first), c.first));
        QTreeWidget list;
        FillSceneListView(&list);
        QCOMPARE(list.topLevelItemCount(), colours.size() + 1);
        for (int i = 0; i < colours.size(); ++i)
            QCOMPARE(rowColor(list, i), colours[i].second);
    }

    void defaultColourIsLightGrey()
    {
        gScenes.Add(scene(0, "A", 0));
        QTreeWidget list;
        FillSceneListView(&list);
        QCOMPARE(list.topLevelItem(0)->foreground(0).color(), QColor(0xDD, 0xDD, 0xDD));
    }

    void colourCodeEightIsBlack()
    {
        gScenes.Add(scene(0, "A", 8));
        QTreeWidget list;
        FillSceneListView(&list);
        QCOMPARE(list.topLevelItem(0)->foreground(0).color(), QColor(Qt::black));
    }

    void paletteCodes()
    {
        QCOMPARE(SceneColor(0).value(), QColor(0xDDDDDD));
        QCOMPARE(SceneColor(8).value(), QColor(0, 0, 0));
        QCOMPARE(SceneColor(9).value(), QColor(0, 0, 0xFF));
        QCOMPARE(SceneColor(10).value(), QColor(0, 0xFF, 0));
        QCOMPARE(SceneColor(11).value(), QColor(0, 0xFF, 0xFF));
        QCOMPARE(SceneColor(12).value(), QColor(0xFF, 0, 0));
        QCOMPARE(SceneColor(13).value(), QColor(0xFF, 0, 0xFF));
        QCOMPARE(SceneColor(14).value(), QColor(0xFF, 0xFF, 0));
        QCOMPARE(SceneColor(15).value(), QColor(0xFF, 0xFF, 0xFF));
        QCOMPARE(SceneColor(1).value(), QColor(0, 0, 0x80));
        QCOMPARE(SceneColor(7).value(), QColor(0xC0, 0xC0, 0xC0));
    }

    void codeOutsideThePaletteHasNoColour()
    {
        QVERIFY(!SceneColor(16).has_value());
        QVERIFY(!SceneColor(-1).has_value());
        QVERIFY(!SceneColor(255).has_value());
    }

    void listBoxShowsOneRowPerSceneWithoutEndRow()
    {
        gScenes.Add(scene(3, "SCENE 1"));
        gScenes.Add(scene(3, "INTRO"));
        QListWidget list;
        list.addItem(QStringLiteral("stale"));
        FillSceneListBox(&list);
        QCOMPARE(rows(list), (QStringList{"000  SCENE 1", "001  INTRO"}));
        QCOMPARE(gScenes.Item(1)->m_iID, qint16(0));
        QCOMPARE(gScenes.Item(2)->m_iID, qint16(1));
    }

    void listBoxWithNoScenesIsEmpty()
    {
        QListWidget list;
        list.addItem(QStringLiteral("stale"));
        FillSceneListBox(&list);
        QCOMPARE(list.count(), 0);
    }

    void manyScenesNumberPast999()
    {
        for (int i = 0; i < 1001; ++i)
            gScenes.Add(std::make_shared<CScene>());
        QListWidget list;
        FillSceneListBox(&list);
        QCOMPARE(list.count(), 1001);
        QCOMPARE(list.item(999)->text(), QStringLiteral("999  "));
        QCOMPARE(list.item(1000)->text(), QStringLiteral("1000  "));
        QCOMPARE(gScenes.Item(1001)->m_iID, qint16(1000));
    }
};

QTEST_MAIN(TestSceneLists)
#include "test_scenelists.moc"
