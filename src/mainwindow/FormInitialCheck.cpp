// The File menu's check of the performance, and showing the place of a finding.
#include "mainwindow/FormInitial.h"
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include "check/ModuleCheck.h"
#include "mainwindow/FormCheck.h"
#include "rules/ModuleRuleDisplay.h"

namespace {

// Selects the row of rule `number` in the rule list, if the filters show it.
void selectRuleRow(QTreeWidget* list, int number)
{
    const QString text = QString::number(number);
    for (int r = 0; r < list->topLevelItemCount(); ++r) {
        QTreeWidgetItem* item = list->topLevelItem(r);
        if (item->text(0) == text) {
            list->clearSelection();
            list->setCurrentItem(item);
            item->setSelected(true);
            list->scrollToItem(item);
            return;
        }
    }
}

// Shows the scene (or the global rules) of a finding and selects its rule.
void showPlace(FormInitial& form, const CFinding& finding)
{
    if (!finding.m_bGlobal && finding.m_iScene < 0)
        return;   // a device or the whole performance: no row to show
    if (form.ListMain2->isHidden())
        form.CommandConn_Click();
    if (finding.m_bGlobal) {
        if (form.ListGlobalRules->count() == 0)
            return;
        form.ListGlobalRules->setCurrentRow(0);
        form.ListGlobalRules->item(0)->setSelected(true);
        form.ListGlobalRules_Click();
    } else {
        QTreeWidgetItem* row = form.ListMain2->topLevelItem(finding.m_iScene);
        if (!row)
            return;
        form.ListMain2->clearSelection();
        form.ListMain2->setCurrentItem(row);
        row->setSelected(true);
        form.ListMain2->scrollToItem(row);
        form.ListMain2_Click();
        if (finding.m_iPart != 0)
            return;   // the rule list shows the first subscene of a scene
    }
    if (finding.m_iRule > 0)
        selectRuleRow(form.ListEvents, finding.m_iRule);
}

} // namespace

void FormInitial::CheckPerformance_Click()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::vector<CFinding> findings = ::CheckPerformance();
    QApplication::restoreOverrideCursor();
    FormCheck form(std::move(findings), this);
    form.ShowPlace = [this](const CFinding& finding) { showPlace(*this, finding); };
    form.exec();
}
