// The rule list of the main window: which scene it shows, the filter boxes,
// the label search, the global rules row, a click on a row and the column sort.
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/DialogDriver.h"
#include "mainwindow/MainWindowSession.h"

namespace {

std::shared_ptr<CEvent> rule(qint16 sourceType, std::initializer_list<qint16> targets, const QString& label = QString(),
                             const QString& remarks = QString())
{
    auto r = std::make_shared<CEvent>();
    r->m_iSourceType = sourceType;
    r->m_strGroup = label;
    r->m_strRemarks = remarks;
    r->m_MsgOut = std::make_shared<Collection<CAction>>();
    for (qint16 t : targets) {
        auto a = std::make_shared<CAction>();
        a->m_iTargetType = t;
        r->m_MsgOut->Add(a);
    }
    return r;
}

// Source types of the list tokens used here.
constexpr qint16 kMIDI = 6, kOSC = 8, kQEL = 9, kVCAP = 10;

} // namespace

class TestRuleList : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    std::unique_ptr<FormInitial>& form = session.form;

    QTreeWidget* rules() { return form->ListEvents; }
    QStringList rows(int column = 0)
    {
        QStringList texts;
        for (int i = 0; i < rules()->topLevelItemCount(); ++i)
            texts << rules()->topLevelItem(i)->text(column);
        return texts;
    }
    void click(const QString& name) { DialogDriver::click(form.get(), name); }
    QCheckBox* box(const QString& array, const QString& caption)
    {
        for (int i = 0; i < 9; ++i)
            if (auto* b = form->findChild<QCheckBox*>(QStringLiteral("%1(%2)").arg(array).arg(i)); b && b->isVisible()
                && b->text() == caption)
                return b;
        return nullptr;
    }
    void clickSceneRow(int row)
    {
        QTreeWidget* list = form->ListMain2;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->topLevelItem(row)).center());
    }
    void clickRuleRow(int row)
    {
        QTest::mouseClick(rules()->viewport(), Qt::LeftButton, {}, rules()->visualItemRect(rules()->topLevelItem(row)).center());
    }
    void clickHeader(int column)
    {
        QHeaderView* header = rules()->header();
        const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }
    std::shared_ptr<CPart> firstPart() { return gScenes.Item(1)->PartList.Item(1); }

private slots:
    void initTestCase() { session.start(); }
    void init()
    {
        gDirty = false;
        for (int i = 0; i <= 10; ++i) {
            gSourceFilter(i) = true;
            gTargetFilter(i) = true;
        }
        gCurrentGroup.clear();
        form->TextSearched->setEditText(QString());
        // New from the device view: no scene is selected.
        form->CommandRules_Click();
        form->New_Click();
        for (QCheckBox* b : form->CheckSource)
            b->setChecked(true);
        for (QCheckBox* b : form->CheckTarget)
            b->setChecked(true);
    }
    void cleanupTestCase() { session.stop(); }

    void newFromTheDeviceViewLeavesNoSceneSelected()
    {
        QCOMPARE(gCurrentScene, qint16(-1));
        QCOMPARE(gCurrentPart, qint16(-1));
        QCOMPARE(form->iSelectedRow, qint16(0));
        click(QStringLiteral("CommandConn"));
        QCOMPARE(form->Label5->text(), QStringLiteral("No scene selected"));
        QVERIFY(!form->LabelNumScene->isVisible());
        QVERIFY(!form->LabelName->isVisible());
        QCOMPARE(gCurrentScene, qint16(-1));
    }

    void withNoSceneSelectedAFilterClickChangesNothingVisible()
    {
        gMainConfig.m_iNMIDIs = 1;
        firstPart()->AddAudioEvent(rule(kMIDI, {kMIDI}), 1);
        firstPart()->AddAudioEvent(rule(kQEL, {kQEL}), 2);
        click(QStringLiteral("CommandConn"));
        QCOMPARE(rows(), (QStringList{""}));
        QCheckBox* midi = box(QStringLiteral("CheckSource"), QStringLiteral("MIDI"));
        QVERIFY(midi);
        QTest::mouseClick(midi, Qt::LeftButton);
        QCOMPARE(gSourceFilter(6), false);
        QCOMPARE(rows(), (QStringList{""}));
        QCOMPARE(form->Label5->text(), QStringLiteral("No scene selected"));
        QTest::mouseClick(midi, Qt::LeftButton);
        QCOMPARE(rows(), (QStringList{""}));
        // A click on the scene row selects it, and then the rules show.
        clickSceneRow(0);
        QCOMPARE(rows(), (QStringList{"1", "2", ""}));
        QCOMPARE(form->Label5->text(), QStringLiteral("Scene"));
        QCOMPARE(form->LabelNumScene->text(), QStringLiteral("0"));
    }

    void aSearchSelectsTheRowsSceneWithoutAClick()
    {
        firstPart()->AddAudioEvent(rule(kQEL, {kQEL}, QStringLiteral("intro")), 1);
        click(QStringLiteral("CommandConn"));
        // The search runs SyncSelectedScene: row 0 is the remembered row.
        DialogDriver::type(form.get(), QStringLiteral("TextSearched"), QStringLiteral("in"));
        QCOMPARE(gCurrentScene, qint16(0));
        QCOMPARE(gCurrentPart, qint16(0));
        QCOMPARE(rows(), (QStringList{"1", ""}));
    }

    void globalRulesClickedTwiceDoNotRefreshTheSecondTime()
    {
        click(QStringLiteral("CommandConn"));
        DialogDriver::pick(form.get(), QStringLiteral("ListGlobalRules"), QStringLiteral("GLOBAL RULES"));
        QCOMPARE(gGlobalRuleView, true);
        QCOMPARE(rows(), (QStringList{""}));
        AddGlobalEvent(rule(kQEL, {kQEL}), 0);
        DialogDriver::pick(form.get(), QStringLiteral("ListGlobalRules"), QStringLiteral("GLOBAL RULES"));
        QCOMPARE(rows(), (QStringList{""}));   // not refreshed
        clickSceneRow(0);
        QCOMPARE(gGlobalRuleView, false);
        DialogDriver::pick(form.get(), QStringLiteral("ListGlobalRules"), QStringLiteral("GLOBAL RULES"));
        QCOMPARE(rows(), (QStringList{"1", ""}));
        clickSceneRow(0);
        QCOMPARE(rows(), (QStringList{""}));
        QCOMPARE(form->CommandAdd->text(), QStringLiteral("Add rule"));
    }

    void theVideoCaptureBoxUntickedStillShowsVideoCaptureRules()
    {
        gMainConfig.m_iNVideoCaps = 1;
        firstPart()->AddAudioEvent(rule(kQEL, {kVCAP}), 1);
        click(QStringLiteral("CommandConn"));
        clickSceneRow(0);
        QCheckBox* vcap = box(QStringLiteral("CheckTarget"), QStringLiteral("VCAP"));
        QVERIFY(vcap);
        QTest::mouseClick(vcap, Qt::LeftButton);
        QVERIFY(!vcap->isChecked());
        QCOMPARE(gTargetFilter(10), true);
        QCOMPARE(rows(), (QStringList{"1", ""}));
    }

    void aSearchTextWithNoMatchLeavesOnlyTheTrailingRow()
    {
        firstPart()->AddAudioEvent(rule(kQEL, {kQEL}, QStringLiteral("intro")), 1);
        click(QStringLiteral("CommandConn"));
        clickSceneRow(0);
        DialogDriver::type(form.get(), QStringLiteral("TextSearched"), QStringLiteral("finale"));
        QCOMPARE(rows(), (QStringList{""}));
    }

    void filtersAndSearchCombine()
    {
        gMainConfig.m_iNMIDIs = 1;
        gMainConfig.m_iNOSCs = 1;
        auto part = firstPart();
        part->AddAudioEvent(rule(kMIDI, {kMIDI}, QStringLiteral("drums")), 1);
        part->AddAudioEvent(rule(kOSC, {kOSC}, QStringLiteral("drums")), 2);
        part->AddAudioEvent(rule(kMIDI, {kOSC}, QStringLiteral("voice")), 3);
        part->AddAudioEvent(rule(kOSC, {kMIDI}, QStringLiteral("drums 2")), 4);
        FillGroups(form->TextSearched);
        click(QStringLiteral("CommandConn"));
        clickSceneRow(0);
        DialogDriver::pick(form.get(), QStringLiteral("TextSearched"), QStringLiteral("drums"));
        QCOMPARE(gCurrentGroup, QStringLiteral("drums"));
        QCOMPARE(rows(), (QStringList{"1", "2", "4", ""}));
        QTest::mouseClick(box(QStringLiteral("CheckSource"), QStringLiteral("OSC")), Qt::LeftButton);
        QCOMPARE(rows(), (QStringList{"1", ""}));
        QTest::mouseClick(box(QStringLiteral("CheckTarget"), QStringLiteral("MIDI")), Qt::LeftButton);
        QCOMPARE(rows(), (QStringList{""}));
        DialogDriver::type(form.get(), QStringLiteral("TextSearched"), QString());
        QCOMPARE(rows(), (QStringList{"3", ""}));
    }

    void aClickOnARuleRowTakesItsNumberAndTheTrailingRowNone()
    {
        gMainConfig.m_iNMIDIs = 1;
        auto part = firstPart();
        part->AddAudioEvent(rule(kMIDI, {kMIDI}), 1);
        part->AddAudioEvent(rule(kQEL, {kQEL}), 2);
        part->AddAudioEvent(rule(kQEL, {kQEL}), 3);
        click(QStringLiteral("CommandConn"));
        clickSceneRow(0);
        QTest::mouseClick(box(QStringLiteral("CheckSource"), QStringLiteral("MIDI")), Qt::LeftButton);
        QCOMPARE(rows(), (QStringList{"2", "3", ""}));
        clickRuleRow(1);   // the row of rule 3
        QCOMPARE(form->iSelectedRule, qint16(2));
        const QRect r = rules()->visualItemRect(rules()->topLevelItem(1));
        QCOMPARE(form->fMouseX, float(r.center().x()));
        QCOMPARE(form->fMouseY, float(r.center().y()));
        clickRuleRow(2);   // the trailing empty row
        QCOMPARE(form->iSelectedRule, qint16(-1));
        clickRuleRow(0);
        QCOMPARE(form->iSelectedRule, qint16(1));
        // Below the rows: no row, no rule.
        QTest::mouseClick(rules()->viewport(), Qt::LeftButton, {}, QPoint(20, rules()->viewport()->height() - 4));
        QCOMPARE(form->iSelectedRule, qint16(-1));
    }

    // Runs last but one: the sort order is the window's, flipping for the whole run.
    void sortingByNumberTwiceGivesDescendingThenAscending()
    {
        auto part = firstPart();
        for (int i = 1; i <= 12; ++i)
            part->AddAudioEvent(rule(kQEL, {kQEL}), i);
        click(QStringLiteral("CommandConn"));
        clickSceneRow(0);
        QStringList ascending;
        for (int i = 1; i <= 12; ++i)
            ascending << QString::number(i);
        QStringList descending = ascending;
        std::reverse(descending.begin(), descending.end());
        clickHeader(0);   // the run's first header click
        QCOMPARE(rows(), descending + QStringList{""});
        clickHeader(0);
        QCOMPARE(rows(), ascending + QStringList{""});
        QCOMPARE(part->AudioEvents.Count(), 12);
    }

    void sortingByEachColumnFlipsTheOrderAndKeepsTheRules()
    {
        gMainConfig.m_iNMIDIs = 1;
        gMainConfig.m_iNOSCs = 1;
        auto part = firstPart();
        auto first = rule(kQEL, {kMIDI}, QStringLiteral("b"), QStringLiteral("middle"));
        first->m_iInterType = 1;
        first->m_strEvent = QStringLiteral("C");
        auto second = rule(kMIDI, {kOSC}, QStringLiteral("c"), QStringLiteral("last"));
        second->m_iInterType = 0;
        second->m_strEvent = QStringLiteral("A");
        auto third = rule(kOSC, {kQEL}, QStringLiteral("a"), QStringLiteral("first"));
        third->m_iInterType = 2;
        third->m_strEvent = QStringLiteral("B");
        part->AddAudioEvent(first, 1);
        part->AddAudioEvent(second, 2);
        part->AddAudioEvent(third, 3);
        click(QStringLiteral("CommandConn"));
        clickSceneRow(0);
        // The order flips on every click, whatever the column; the sort before left it at ascending.
        struct Case { int column; QStringList order; };
        const QList<Case> cases = {
            {1, {"1", "3", "2"}},   // Source, descending: QEL, OSC, MIDI
            {2, {"1", "2", "3"}},   // Target, ascending: MIDI, OSC, QEL
            {3, {"2", "3", "1"}},   // Type, descending: TRIG, RANG, GATE
            {4, {"3", "1", "2"}},   // Label, ascending
            {5, {"1", "2", "3"}},   // Remarks, descending: middle, last, first
            {6, {"2", "3", "1"}},   // Description, ascending
        };
        for (const Case& c : cases) {
            clickHeader(c.column);
            QCOMPARE(rows(), c.order + QStringList{""});
        }
        QCOMPARE(part->AudioEvents.Item(1), first);
        // The next refresh brings the rule order back.
        clickSceneRow(0);
        QCOMPARE(rows(), (QStringList{"1", "2", "3", ""}));
    }
};

QTEST_MAIN(TestRuleList)
#include "test_rulelist.moc"
