// The rule operations of the main window: add and edit through the rule
// editor, copy, cut, paste and remove, with their position arithmetic.
#include "MainWindowSession.h"
#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include "../ruleeditor/EditorTestHelpers.h"
#include "files/ModuleClipboard.h"
#include "rules/ModuleEvents.h"

using namespace edtest;

namespace {
// Rule n of the subscene carries the remark "r<n>" and an action of the given target type.
void MakeRules(int count, const QList<int>& oscRules = {})
{
    for (int n = 1; n <= count; ++n) {
        auto rule = MakeRule(0, 0, 0, -1, oscRules.contains(n) ? 8 : 6, 0);
        rule->m_strRemarks = QStringLiteral("r%1").arg(n);
        Part().AddAudioEvent(rule, 0);
    }
    gMaxEventsPerPart = qint16(count);
}

QStringList Order(const Collection<CEvent>& rules)
{
    QStringList remarks;
    for (const auto& r : rules)
        remarks << r->m_strRemarks;
    return remarks;
}
QStringList Order() { return Order(Part().AudioEvents); }
}

class TestRuleOperations : public QObject {
    Q_OBJECT
    MainWindowSession session;
    FormInitial* w = nullptr;

    void refill() { FillRuleList(gCurrentScene + 1, gCurrentPart + 1, w->ListEvents); }
    QStringList rowTexts()
    {
        QStringList t;
        for (int i = 0; i < w->ListEvents->topLevelItemCount(); ++i)
            t << w->ListEvents->topLevelItem(i)->text(0);
        return t;
    }
    QList<int> selectedRows()
    {
        QList<int> rows;
        for (int i = 0; i < w->ListEvents->topLevelItemCount(); ++i)
            if (w->ListEvents->topLevelItem(i)->isSelected())
                rows << i;
        return rows;
    }
    // The rule list is on show, and the window active, so that rows can be clicked and focused.
    void showList()
    {
        if (!w->ListEvents->isVisible())
            w->CommandConn->click();
        QVERIFY(w->ListEvents->isVisible());
        w->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w));
    }
    // A click on a row with the mouse, as a person selects a rule; Ctrl adds it to the selection.
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTreeWidgetItem* item = w->ListEvents->topLevelItem(row);
        QVERIFY(item);
        w->ListEvents->scrollToItem(item);
        QTest::mouseClick(w->ListEvents->viewport(), Qt::LeftButton, modifiers,
                          w->ListEvents->visualItemRect(item).center());
    }
    // A click in the empty part of the list, below the rows: no row is under the pointer.
    void clickBelowTheRows()
    {
        QTreeWidgetItem* last = w->ListEvents->topLevelItem(w->ListEvents->topLevelItemCount() - 1);
        const QRect r = w->ListEvents->visualItemRect(last);
        const QPoint at(r.center().x(), r.bottom() + 3 * r.height());
        QVERIFY(w->ListEvents->viewport()->rect().contains(at));
        QVERIFY(!w->ListEvents->itemAt(at));
        QTest::mouseClick(w->ListEvents->viewport(), Qt::LeftButton, {}, at);
    }
    // Rows picked by a click on the first and Ctrl-clicks on the others.
    void selectRows(const QList<int>& rows)
    {
        for (int i = 0; i < rows.size(); ++i)
            clickRow(rows[i], i == 0 ? Qt::KeyboardModifiers() : Qt::KeyboardModifiers(Qt::ControlModifier));
        QCOMPARE(selectedRows(), rows);
    }
    // The Remove menu entry with the rule list holding the focus; the question answered.
    QString removeFromTheMenu(QMessageBox::StandardButton answer)
    {
        w->activateWindow();
        [&] { QVERIFY(QTest::qWaitForWindowActive(w)); }();
        w->ListEvents->setFocus();
        [&] { QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(w->ListEvents)); }();
        return Box([&] { session.menu("Remove")->trigger(); }, answer);
    }

private slots:
    void initTestCase()
    {
        session.start();
        w = session.form.get();
        showList();
    }
    void cleanupTestCase() { session.stop(); }
    void init()
    {
        ResetAll();
        gSourceFilter.Fill(true);
        gTargetFilter.Fill(true);
        gClipboard.Clear();
        gMaxEventsPerPart = 0;
        refill();
        clickBelowTheRows();
        QCOMPARE(w->iSelectedRule, qint16(-1));
    }

    void pasteAheadOfTheSelectedRule()
    {
        MakeRules(5);
        refill();
        selectRows({2, 3});
        session.menu("Copy")->trigger();
        QCOMPARE(gClipboard.Count(), 2);
        clickRow(1);
        session.menu("Paste")->trigger();
        QCOMPARE(Order(), (QStringList{"r1", "r3", "r4", "r2", "r3", "r4", "r5"}));
        QCOMPARE(selectedRows(), (QList<int>{1, 2}));
        QVERIFY(!gDirty);
        QCOMPARE(gMaxEventsPerPart, qint16(7));
    }

    void pasteTwiceGivesIndependentCopies()
    {
        MakeRules(2);
        refill();
        selectRows({0});
        session.menu("Copy")->trigger();
        clickRow(2);   // the trailing row: the copies go to the end
        session.menu("Paste")->trigger();
        session.menu("Paste")->trigger();
        QCOMPARE(Order(), (QStringList{"r1", "r2", "r1", "r1"}));
        QVERIFY(Part().AudioEvents(3) != Part().AudioEvents(4));
        QVERIFY(Part().AudioEvents(3)->m_MsgOut->Item(1) != Part().AudioEvents(4)->m_MsgOut->Item(1));
        Part().AudioEvents(3)->m_strRemarks = "changed";
        Part().AudioEvents(3)->m_MsgOut->Item(1)->m_strVal1 = "99";
        QCOMPARE(Part().AudioEvents(4)->m_strRemarks, QString("r1"));
        QCOMPARE(Part().AudioEvents(4)->m_MsgOut->Item(1)->m_strVal1, QString("1"));
        QCOMPARE(gClipboard(1)->Event->m_strRemarks, QString("r1"));
        QCOMPARE(gClipboard(1)->Event->m_MsgOut->Item(1)->m_strVal1, QString("1"));
        QCOMPARE(Part().AudioEvents(1)->m_strRemarks, QString("r1"));
    }

    void cutThenPasteWithNoRowSelectedMovesToTheEnd()
    {
        MakeRules(4);
        refill();
        selectRows({0, 1});
        session.menu("Cut")->trigger();
        QCOMPARE(Order(), (QStringList{"r3", "r4"}));
        QCOMPARE(rowTexts(), (QStringList{"1", "2", ""}));
        clickBelowTheRows();
        QCOMPARE(w->iSelectedRule, qint16(-1));
        session.menu("Paste")->trigger();
        QCOMPARE(Order(), (QStringList{"r3", "r4", "r1", "r2"}));
        QCOMPARE(selectedRows(), (QList<int>{2, 3}));
        QVERIFY(!gDirty);
    }

    void cutOfRowsTwoAndFour()
    {
        MakeRules(5);
        refill();
        selectRows({1, 3});
        session.menu("Cut")->trigger();
        QCOMPARE(Order(), (QStringList{"r1", "r3", "r5"}));
        QCOMPARE(gClipboard.Count(), 2);
        QCOMPARE(gClipboard(1)->Event->m_strRemarks, QString("r2"));
        QCOMPARE(gClipboard(2)->Event->m_strRemarks, QString("r4"));
        QVERIFY(!gDirty);
    }

    void cutOnADescendingListTakesOtherRules()
    {
        MakeRules(5);
        refill();
        // A click on the number column's header sorts; the order flips on each click.
        QHeaderView* header = w->ListEvents->header();
        const QPoint numberColumn(header->sectionViewportPosition(0) + header->sectionSize(0) / 2, header->height() / 2);
        for (int i = 0; i < 2 && rowTexts() != QStringList{"5", "4", "3", "2", "1", ""}; ++i)
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, numberColumn);
        QCOMPARE(rowTexts(), (QStringList{"5", "4", "3", "2", "1", ""}));
        selectRows({0, 1});
        session.menu("Cut")->trigger();
        QCOMPARE(gClipboard(1)->Event->m_strRemarks, QString("r5"));
        QCOMPARE(gClipboard(2)->Event->m_strRemarks, QString("r4"));
        QCOMPARE(Order(), (QStringList{"r1", "r2", "r4"}));
    }

    void removeWithNoChangesNothing()
    {
        MakeRules(3);
        refill();
        selectRows({1});
        w->ListEvents->setFocus();
        QCOMPARE(removeFromTheMenu(QMessageBox::No),
                 QString("QEL Setup|Delete events?|%1").arg(int(QMessageBox::NoIcon)));
        QCOMPARE(Order(), (QStringList{"r1", "r2", "r3"}));
        QVERIFY(!gDirty);
        QCOMPARE(selectedRows(), QList<int>{1});
    }

    void removeOfRowsTwoAndFour()
    {
        MakeRules(5);
        refill();
        selectRows({1, 3});
        w->ListEvents->setFocus();
        QCOMPARE(removeFromTheMenu(QMessageBox::Yes),
                 QString("QEL Setup|Delete events?|%1").arg(int(QMessageBox::NoIcon)));
        QCOMPARE(Order(), (QStringList{"r1", "r3", "r5"}));
        QVERIFY(gDirty);
        QCOMPARE(rowTexts(), (QStringList{"1", "2", "3", ""}));
        QCOMPARE(gMaxEventsPerPart, qint16(5));   // never lowered
    }

    void removeOnAFilteredListTakesANeighbour()
    {
        MakeRules(7, {2, 5, 7});
        gTargetFilter(6) = false;
        refill();
        QCOMPARE(rowTexts(), (QStringList{"2", "5", "7", ""}));
        selectRows({1, 2});
        w->ListEvents->setFocus();
        removeFromTheMenu(QMessageBox::Yes);
        gTargetFilter(6) = true;
        QCOMPARE(Order(), (QStringList{"r1", "r2", "r3", "r4", "r7"}));
    }

    void removeOfTheEmptyRowAsksAndRemovesNothing()
    {
        MakeRules(2);
        refill();
        selectRows({2});
        removeFromTheMenu(QMessageBox::Yes);
        QCOMPARE(Order(), (QStringList{"r1", "r2"}));
        QVERIFY(gDirty);
    }

    void pasteRaisesTheMaximumSoNoRuleIsLost()
    {
        MakeRules(2);
        gMaxEventsPerPart = 2;
        refill();
        selectRows({0, 1});
        session.menu("Copy")->trigger();
        session.menu("Paste")->trigger();
        QCOMPARE(Part().AudioEvents.Count(), 4);
        QCOMPARE(gMaxEventsPerPart, qint16(4));
        selectRows({0, 1, 2});
        removeFromTheMenu(QMessageBox::Yes);
        QCOMPARE(Part().AudioEvents.Count(), 1);
        QCOMPARE(gMaxEventsPerPart, qint16(4));
    }

    void robotRulesOnTheClipboardAreSkipped()
    {
        MakeRules(1);
        refill();
        auto robot = std::make_shared<CClipboardItem>();
        robot->BotEvent = std::make_shared<CBotEvent>();
        gClipboard.Add(robot);
        auto rule = std::make_shared<CClipboardItem>();
        rule->Event = MakeRule(0, 0, 1, -1);
        rule->Event->m_strRemarks = "pasted";
        gClipboard.Add(rule);
        clickBelowTheRows();
        session.menu("Paste")->trigger();
        QCOMPARE(Order(), (QStringList{"r1", "pasted"}));
        QCOMPARE(selectedRows(), QList<int>{1});
    }

    void pasteOfAnEmptyClipboardRefillsOnly()
    {
        MakeRules(2);
        w->ListEvents->clear();
        session.menu("Paste")->trigger();
        QCOMPARE(rowTexts(), (QStringList{"1", "2", ""}));
        QCOMPARE(Order(), (QStringList{"r1", "r2"}));
    }

    void clickOnTheTrailingEmptyRowGivesNoRuleAndAddAppends()
    {
        MakeRules(2);
        refill();
        clickRow(1);
        QCOMPARE(w->iSelectedRule, qint16(1));
        clickRow(2);
        QCOMPARE(w->iSelectedRule, qint16(-1));
        DialogDriver driver;
        driver.next([](QWidget* d) {
            QCOMPARE(d->objectName(), QString("FormAddEditAudioInter"));
            QCOMPARE(d->findChild<QLabel*>("LabelNumEvent")->text(), QString("0"));
            DialogDriver::type(d, "TextRemarks", "new");
            DialogDriver::click(d, "CommandOK");
        });
        w->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(Order(), (QStringList{"r1", "r2", "new"}));
        QCOMPARE(rowTexts(), (QStringList{"1", "2", "3", ""}));
        QCOMPARE(selectedRows(), QList<int>{2});
        QCOMPARE(gMaxEventsPerPart, qint16(3));
        QVERIFY(!gRuleAccepted);
        QVERIFY(gDirty);
        QCOMPARE(Part().AudioEvents(3)->m_strEvent, QString("Automatic -> QEL | Trigger: Up |  || Begin * || QEL: Next Part - "));
    }

    void addGoesAheadOfTheSelectedRule()
    {
        MakeRules(3);
        refill();
        clickRow(1);
        DialogDriver driver;
        driver.next([](QWidget* d) {
            QCOMPARE(d->findChild<QLabel*>("LabelNumEvent")->text(), QString("2"));
            DialogDriver::type(d, "TextRemarks", "new");
            DialogDriver::type(d, "TextGroup", "fresh");
            DialogDriver::click(d, "CommandOK");
        });
        w->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(Order(), (QStringList{"r1", "new", "r2", "r3"}));
        QCOMPARE(selectedRows(), QList<int>{1});
        QVERIFY(items(w->TextSearched).contains("fresh"));
    }

    void addWithAFilterGoesIntoTheMiddle()
    {
        MakeRules(5, {2, 4});
        gTargetFilter(6) = false;
        refill();
        QCOMPARE(rowTexts(), (QStringList{"2", "4", ""}));
        clickRow(2);
        DialogDriver driver;
        driver.next([](QWidget* d) {
            DialogDriver::type(d, "TextRemarks", "new");
            DialogDriver::click(d, "CommandOK");
        });
        w->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(Order(), (QStringList{"r1", "r2", "new", "r3", "r4", "r5"}));
    }

    void addWithAClickedRuleBeyondTheFilteredRowsKeepsTheLastRuleIndex()
    {
        MakeRules(5, {2, 4});
        gTargetFilter(6) = false;
        refill();
        QCOMPARE(rowTexts(), (QStringList{"2", "4", ""}));
        clickRow(1);
        QCOMPARE(w->iSelectedRule, qint16(3));
        // The list has no fourth row: the look-up fails and the rule index stays as it was.
        const qint16 before = gRuleIndex;
        DialogDriver driver;
        driver.next([](QWidget* d) {
            DialogDriver::type(d, "TextRemarks", "new");
            DialogDriver::click(d, "CommandOK");
        });
        w->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gRuleIndex, before);
        const int position = (before + 1 < 1 || before + 1 > 5) ? 6 : before + 1;
        QCOMPARE(Part().AudioEvents.Count(), 6);
        QCOMPARE(Part().AudioEvents(position)->m_strRemarks, QString("new"));
        QCOMPARE(gMaxEventsPerPart, qint16(6));
    }

    void cancelledAddChangesNothing()
    {
        MakeRules(2);
        refill();
        clickRow(0);
        DialogDriver driver;
        driver.next([](QWidget* d) { DialogDriver::click(d, "CommandCancel"); });
        w->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(Order(), (QStringList{"r1", "r2"}));
        QCOMPARE(selectedRows(), QList<int>{0});
        QVERIFY(!gDirty);
    }

    void addToTheGlobalRules()
    {
        gGlobalRuleView = true;
        auto existing = MakeRule(0, 0, 0, -1);
        existing->m_strRemarks = "g1";
        AddGlobalEvent(existing, 0);
        refill();
        clickRow(0);
        DialogDriver driver;
        driver.next([](QWidget* d) {
            QCOMPARE(d->findChild<QLabel*>("Label4")->text(), QString("Global Rule"));
            DialogDriver::type(d, "TextRemarks", "g0");
            DialogDriver::click(d, "CommandOK");
        });
        w->CommandAdd->click();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(Order(gGlobalEvents), (QStringList{"g0", "g1"}));
        QCOMPARE(Part().AudioEvents.Count(), 0);
        QCOMPARE(gMaxEventsPerPart, qint16(0));
    }

    void doubleClickEditsTheRuleInPlace()
    {
        MakeRules(3);
        refill();
        DialogDriver driver;
        driver.next([](QWidget* d) {
            QCOMPARE(d->findChild<QLineEdit*>("TextRemarks")->text(), QString("r2"));
            DialogDriver::type(d, "TextRemarks", "edited");
            DialogDriver::click(d, "CommandOK");
        });
        if (!w->ListEvents->isVisible())
            w->CommandConn->click();
        QVERIFY(w->ListEvents->isVisible());
        QTreeWidgetItem* row = w->ListEvents->topLevelItem(1);
        const QPoint at = w->ListEvents->visualItemRect(row).center();
        QTest::mouseClick(w->ListEvents->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(w->ListEvents->viewport(), Qt::LeftButton, {}, at);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(Order(), (QStringList{"r1", "edited", "r3"}));
        QCOMPARE(selectedRows(), QList<int>{1});
        QVERIFY(w->ListEvents->hasFocus() || !w->isActiveWindow());
        QVERIFY(!gRuleAccepted);
    }

    void doubleClickOnTheEmptyRowDoesNothing()
    {
        MakeRules(1);
        refill();
        DialogDriver none(1500);
        w->ListEvents_DblClick(w->ListEvents->topLevelItem(1));
        w->ListEvents_DblClick(nullptr);
        QVERIFY2(none.finished(), qPrintable(none.error()));
    }

    void copyDoesNotSetDirty()
    {
        MakeRules(2);
        refill();
        selectRows({0, 1, 2});
        session.menu("Copy")->trigger();
        QCOMPARE(gClipboard.Count(), 2);
        QVERIFY(!gDirty);
        QVERIFY(gClipboard(1)->Event != Part().AudioEvents(1));
    }

    void globalCutLeavesTheCounter()
    {
        gGlobalRuleView = true;
        for (int i = 1; i <= 3; ++i) {
            auto r = MakeRule(0, 0, 0, -1);
            r->m_strRemarks = QStringLiteral("g%1").arg(i);
            AddGlobalEvent(r, 0);
        }
        const qint16 counter = gGlobalEventCount;
        refill();
        selectRows({0, 2});
        session.menu("Cut")->trigger();
        QCOMPARE(Order(gGlobalEvents), QStringList{"g2"});
        QCOMPARE(gGlobalEventCount, counter);
        clickRow(0);
        session.menu("Paste")->trigger();
        QCOMPARE(Order(gGlobalEvents), (QStringList{"g1", "g3", "g2"}));
    }
};

QTEST_MAIN(TestRuleOperations)
#include "test_ruleoperations.moc"
