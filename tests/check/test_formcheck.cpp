// The File menu's "Check Performance..." through the real main window: the
// findings listed, the line for a clean performance, and the double click that
// shows a finding's scene and rule.
#include <QtTest>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTemporaryDir>
#include <QTreeWidget>
#include "check/CheckTestHelpers.h"
#include "files/ModuleSaveOpen.h"
#include "mainwindow/MainWindowSession.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/Platform.h"

namespace {

QTreeWidgetItem* rowWithPlace(QTreeWidget* list, const QString& place)
{
    for (int r = 0; r < list->topLevelItemCount(); ++r)
        if (list->topLevelItem(r)->text(1) == place)
            return list->topLevelItem(r);
    return nullptr;
}

// A person's double click: the view sees the first click, then the second.
void doubleClick(QTreeWidget* list, QTreeWidgetItem* item)
{
    const QPoint point = list->visualItemRect(item).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, point);
}

QString selectedRuleNumber(QTreeWidget* rules)
{
    const auto selected = rules->selectedItems();
    return selected.size() == 1 ? selected.front()->text(0) : QStringLiteral("<%1 selected>").arg(selected.size());
}

} // namespace

class TestFormCheck : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    std::unique_ptr<FormInitial>& form = session.form;
    QTemporaryDir dir;

    // The clean performance saved to disk and opened through the File menu.
    void openCleanPerformance()
    {
        session.start();
        BuildCleanPerformance();
        const QString path = native(dir.filePath(QStringLiteral("Show.qel")));
        DeriveConfigPaths(path);
        SaveConfiguration(path);
        session.open(path);
        QCOMPARE(form->ListMain2->topLevelItemCount(), 3);   // two scenes and the end row
    }

private slots:
    void cleanup()
    {
        session.stop();
        QDir(AutoSaveRoot() + QStringLiteral("/AutoSave")).removeRecursively();
    }

    void theEntryIsInTheFileMenu()
    {
        session.start();
        QAction* entry = session.menu("CheckPerformance");
        QVERIFY(entry);
        QCOMPARE(entry->text(), QStringLiteral("&Check Performance..."));
        QVERIFY(form->File->actions().contains(entry));
        QVERIFY(entry->isEnabled());
    }

    void cleanPerformanceSaysNothingWasFound()
    {
        openCleanPerformance();
        int rows = -1;
        QString summary;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            QCOMPARE(w->objectName(), QStringLiteral("FormCheck"));
            rows = DialogDriver::find<QTreeWidget>(w, QStringLiteral("ListFindings"))->topLevelItemCount();
            summary = DialogDriver::find<QLabel>(w, QStringLiteral("LabelSummary"))->text();
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.menu("CheckPerformance")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(rows, 0);
        QVERIFY2(summary.startsWith(QStringLiteral("Nothing was found")), qPrintable(summary));
    }

    void findingsAreListedAndADoubleClickShowsTheirRule()
    {
        openCleanPerformance();
        // Spoiled after the open, as an operator might in the rule editor.
        gScenes.Item(2)->PartList.Item(1)->AudioEvents.Item(1)->m_strRemarks = QStringLiteral("Bow; then dark");
        gGlobalEvents.Item(1)->m_strGroup = QStringLiteral("a;b");
        gArduinoData(0).m_iCOMPort = 3;
        const bool dirtyBefore = gDirty;

        QStringList headers, severities, places;
        QString summary;
        QString sceneSelected, ruleSelected, globalRuleSelected, detail;
        bool globalView = false, globalRowSelected = false;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            auto* list = DialogDriver::find<QTreeWidget>(w, QStringLiteral("ListFindings"));
            for (int c = 0; c < list->columnCount(); ++c)
                headers << list->headerItem()->text(c);
            for (int r = 0; r < list->topLevelItemCount(); ++r) {
                severities << list->topLevelItem(r)->text(0);
                places << list->topLevelItem(r)->text(1);
            }
            summary = DialogDriver::find<QLabel>(w, QStringLiteral("LabelSummary"))->text();
            if (auto* item = rowWithPlace(list, QStringLiteral("Scene 1, subscene 0, rule 1"))) {
                doubleClick(list, item);
                detail = DialogDriver::find<QLabel>(w, QStringLiteral("LabelFinding"))->text();
                const auto rows = form->ListMain2->selectedItems();
                sceneSelected = rows.size() == 1 ? rows.front()->text(0) : QString();
                ruleSelected = selectedRuleNumber(form->ListEvents);
            }
            if (auto* item = rowWithPlace(list, QStringLiteral("Global rule 1"))) {
                doubleClick(list, item);
                globalView = gGlobalRuleView;
                globalRowSelected = form->ListGlobalRules->item(0)->isSelected();
                globalRuleSelected = selectedRuleNumber(form->ListEvents);
            }
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.menu("CheckPerformance")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));

        QCOMPARE(headers, (QStringList{"Severity", "Place", "Finding"}));
        QCOMPARE(places.size(), 3);
        QVERIFY(places.contains(QStringLiteral("Scene 1, subscene 0, rule 1")));
        QVERIFY(places.contains(QStringLiteral("Global rule 1")));
        QVERIFY(places.contains(QStringLiteral("COM3")));
        // The label is the last field of its line: the shift loses its tail, the rest reads.
        QCOMPARE(severities, (QStringList{"Will break the show", "Will break the show", "Will be lost"}));
        QVERIFY2(summary.startsWith(QStringLiteral("3 findings")), qPrintable(summary));
        QVERIFY2(sceneSelected.startsWith(QStringLiteral("001")), qPrintable(sceneSelected));
        QCOMPARE(ruleSelected, QStringLiteral("1"));
        QVERIFY2(detail.startsWith(QStringLiteral("Scene 1, subscene 0, rule 1: The remark \"Bow; then dark\" holds")),
                 qPrintable(detail));
        QVERIFY(globalView);
        QVERIFY(globalRowSelected);
        QCOMPARE(globalRuleSelected, QStringLiteral("1"));
        QCOMPARE(gDirty, dirtyBefore);
    }

    void theListSortsBySeverityAndByPlace()
    {
        openCleanPerformance();
        gExoData(0).m_iMin(0) = 900;   // worth a look
        gScenes.Item(1)->PartList.Item(1)->AudioEvents.Item(2)->m_MsgOut = std::make_shared<Collection<CAction>>();
        auto bot = std::make_shared<CBotEvent>();
        gScenes.Item(2)->PartList.Item(1)->AddBotEvent(bot, 1);   // will be lost
        QStringList bySeverity, byPlace;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            auto* list = DialogDriver::find<QTreeWidget>(w, QStringLiteral("ListFindings"));
            for (int r = 0; r < list->topLevelItemCount(); ++r)
                bySeverity << list->topLevelItem(r)->text(0);
            QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(list->header()->sectionViewportPosition(1) + 5, list->header()->height() / 2));
            for (int r = 0; r < list->topLevelItemCount(); ++r)
                byPlace << list->topLevelItem(r)->text(1);
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.menu("CheckPerformance")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(bySeverity, (QStringList{"Will break the show", "Will be lost", "Worth a look"}));
        QCOMPARE(byPlace, (QStringList{"Exoskeleton 1", "Scene 0, subscene 0, rule 2", "Scene 1, subscene 0"}));
    }
};

QTEST_MAIN(TestFormCheck)
#include "test_formcheck.moc"
