// The rule list: the filter boxes, the label search, the global rules row and
// the heading over the list.
#include "mainwindow/FormInitial.h"
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "files/ModuleClipboard.h"
#include "model/CPart.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleEdit.h"
#include "ruleeditor/FormAddEditAudioInter.h"
#include "support/NumberText.h"
#include "support/OnError.h"
#include "support/RuntimeError.h"

namespace {

// Filter entry of a check box caption; -1 for a caption with no entry.
int sourceFilterEntry(const QString& caption)
{
    static const QHash<QString, int> entries = {{"AUT", 0}, {"EXO", 1}, {"TOT", 2}, {"FLA", 3}, {"DIO", 5},
                                                {"MIDI", 6}, {"ARD", 7}, {"OSC", 8}, {"QEL", 9}};
    return entries.value(caption, -1);
}

int targetFilterEntry(const QString& caption)
{
    static const QHash<QString, int> entries = {{"FLA", 3}, {"MIDI", 6}, {"ARD", 7}, {"OSC", 8}, {"QEL", 9}};
    return entries.value(caption, -1);
}

// Captions a row of boxes in order and places each right of the one before,
// the first right of its heading. A box keeps its checked state.
void arrangeRow(QLabel* heading, const QList<QCheckBox*>& boxes, const QStringList& captions)
{
    int left = heading->x() + heading->width();
    for (int i = 0; i < boxes.size(); ++i) {
        QCheckBox* box = boxes[i];
        if (i < captions.size()) {
            box->setText(captions[i]);
            box->setGeometry(left, heading->y(), 62, heading->height());
            left = box->x() + box->width();
            box->show();
        } else {
            box->hide();
        }
    }
    heading->show();
}

} // namespace

void FormInitial::ArrangeFilterChecks()
{
    const CMainConfig& c = gMainConfig;
    QStringList sources = {QStringLiteral("AUT"), QStringLiteral("QEL")};
    if (c.m_iNExos > 0) sources << QStringLiteral("EXO");
    if (c.m_iNTotems > 0) sources << QStringLiteral("TOT");
    if (c.m_iNFlash > 0) sources << QStringLiteral("FLA");
    sources << QStringLiteral("DIO");
    if (c.m_iNMIDIs > 0) sources << QStringLiteral("MIDI");
    if (c.m_iNArduinos > 0) sources << QStringLiteral("ARD");
    if (c.m_iNOSCs > 0) sources << QStringLiteral("OSC");
    arrangeRow(Label1, CheckSource, sources);

    QStringList targets = {QStringLiteral("QEL")};
    if (c.m_iNFlash > 0) targets << QStringLiteral("FLA");
    if (c.m_iNMIDIs > 0) targets << QStringLiteral("MIDI");
    if (c.m_iNArduinos > 0) targets << QStringLiteral("ARD");
    if (c.m_iNOSCs > 0) targets << QStringLiteral("OSC");
    if (c.m_iNVideoCaps > 0) targets << QStringLiteral("VCAP");
    arrangeRow(Label3, CheckTarget, targets);
}

void FormInitial::CheckSource_Click(int index)
{
    QCheckBox* box = CheckSource[index];
    if (const int entry = sourceFilterEntry(box->text()); entry >= 0)
        gSourceFilter(entry) = box->isChecked();
    refillRuleList();
}

void FormInitial::CheckTarget_Click(int index)
{
    QCheckBox* box = CheckTarget[index];
    if (const int entry = targetFilterEntry(box->text()); entry >= 0)
        gTargetFilter(entry) = box->isChecked();
    refillRuleList();
}

void FormInitial::refillRuleList()
{
    try {
        FillRuleList(gCurrentScene + 1, gCurrentPart + 1, ListEvents);
    } catch (const RuntimeError&) {
        // No such scene or subscene: the list stays as it was.
    }
}

void FormInitial::ListGlobalRules_Click()
{
    SyncSelectedScene();
    if (gGlobalRuleView)
        return;
    CommandAdd->setText(QStringLiteral("Add global rule"));
    ListMain2->clearSelection();
    gGlobalRuleView = true;
    RefreshRuleView();
}

void FormInitial::SyncSelectedScene()
{
    if (iSelectedRow != -1 && iSelectedRow != ListMain2->topLevelItemCount())
        gCurrentScene = iSelectedRow;
    gCurrentPart = 0;
}

void FormInitial::TextSearched_Change()
{
    SyncSelectedScene();
    gCurrentGroup = TextSearched->currentText();
    RefreshRuleView();
}

void FormInitial::RefreshRuleView()
{
    if (gGlobalRuleView) {
        Label5->setText(QStringLiteral("Global Rules"));
        LabelNumScene->hide();
        LabelName->hide();
    } else if (gCurrentScene < 0) {
        Label5->setText(QStringLiteral("No scene selected"));
        LabelNumScene->setText(QString::number(gCurrentScene));
        LabelName->clear();
        LabelNumScene->hide();
        LabelName->hide();
    } else {
        Label5->setText(QStringLiteral("Scene"));
        LabelNumScene->setText(QString::number(gCurrentScene));
        LabelNumScene->show();
        if (gCurrentPart >= 0) {
            try {
                LabelName->setText(gScenes.Item(gCurrentScene + 1)->PartList.Item(gCurrentPart + 1)->m_strName);
            } catch (const RuntimeError&) {
                // No such scene or subscene: the label keeps its text.
            }
            LabelName->show();
        } else {
            LabelName->hide();
        }
    }
    refillRuleList();
}

void FormInitial::ListEvents_MouseUp(float x, float y)
{
    fMouseX = x;
    fMouseY = y;
}

// The rule of the row under the pointer; none for the trailing empty row or no row.
void FormInitial::ListEvents_Click()
{
    QTreeWidgetItem* row = ListEvents->itemAt(QPoint(int(fMouseX), int(fMouseY)));
    const int count = ListEvents->topLevelItemCount();
    if (!row || ListEvents->indexOfTopLevelItem(row) == count - 1)
        iSelectedRule = -1;
    else
        iSelectedRule = static_cast<qint16>(row->text(0).toInt() - 1);
}

// Sorts the rows by the column clicked; the order flips on every click. The
// rules keep their order: the next refill brings it back.
void FormInitial::ListEvents_ColumnClick(int column)
{
    const int count = ListEvents->topLevelItemCount();
    if (count > 0 && ListEvents->topLevelItem(count - 1)->text(0).isEmpty())
        delete ListEvents->takeTopLevelItem(count - 1);
    m_sortDescending = !m_sortDescending;
    const Qt::SortOrder order = m_sortDescending ? Qt::DescendingOrder : Qt::AscendingOrder;
    if (column != 0) {
        ListEvents->sortItems(column, order);
    } else {
        // Numbers as texts sort badly: padded with zeros to 20 characters while sorting.
        for (int i = 0; i < ListEvents->topLevelItemCount(); ++i) {
            QTreeWidgetItem* row = ListEvents->topLevelItem(i);
            row->setText(0, row->text(0).rightJustified(20, u'0'));
        }
        ListEvents->sortItems(0, order);
        for (int i = 0; i < ListEvents->topLevelItemCount(); ++i) {
            QTreeWidgetItem* row = ListEvents->topLevelItem(i);
            row->setText(0, QString::number(row->text(0).toLongLong()));
        }
    }
    if (ListEvents->topLevelItemCount() > 0)
        ListEvents->scrollToItem(ListEvents->topLevelItem(0));
    auto* trailing = new QTreeWidgetItem();
    for (int c = 0; c < ListEvents->columnCount(); ++c)
        trailing->setText(c, QString());
    ListEvents->addTopLevelItem(trailing);
}

// ---------------------------------------------------------------- rule clipboard and ordering

namespace {

// The subscene whose rules the list shows.
CPart& currentPart() { return *gScenes(gCurrentScene + 1)->PartList(gCurrentPart + 1); }

// The number in a row's text; an empty text is 0. A row that isn't there is a run-time error.
qint16 rowNumber(QTreeWidget* list, int row)
{
    QTreeWidgetItem* item = list->topLevelItem(row);
    if (!item)
        throw RangeError();
    return ParseInteger(item->text(0));
}

// The rule at a 1-based position of the list on show.
std::shared_ptr<CEvent> ruleAt(int position)
{
    return gGlobalRuleView ? gGlobalEvents(position) : currentPart().AudioEvents(position);
}

void storeAcceptedRule(CEvent& rule)
{
    StoreRule(rule, gRuleInterType, gRuleSense, gRuleSourceType, gRuleSource, gRuleItem, gRuleVariable, gRuleVal1,
              gRuleVal2, gRuleChannel, gRuleMin, gRuleMax, gRuleClip, gRuleEnabled, gRuleRemarks, gRuleGroup,
              gEditActions, gRuleEvent);
}

// A subscene never holds more rules than the file writes.
void raiseMaxEventsPerPart()
{
    Skip([&] {
        if (currentPart().AudioEvents.Count() > gMaxEventsPerPart)
            gMaxEventsPerPart = static_cast<qint16>(currentPart().AudioEvents.Count());
    });
}

void selectRow(QTreeWidget* list, int row, bool selected = true)
{
    if (QTreeWidgetItem* item = list->topLevelItem(row))
        item->setSelected(selected);
}

} // namespace

void FormInitial::CommandAdd_Click()
{
    const qint16 selected = iSelectedRule;
    if (selected == -1)
        gRuleIndex = -1;
    else
        Skip([&] { gRuleIndex = static_cast<qint16>(rowNumber(ListEvents, selected) - 1); });
    gRuleEditMode = 1;
    {
        FormAddEditAudioInter editor(this);
        editor.exec();
    }
    if (gRuleAccepted) {
        auto rule = std::make_shared<CEvent>();
        storeAcceptedRule(*rule);
        if (gGlobalRuleView) {
            AddGlobalEvent(rule, selected == -1 ? 0 : gRuleIndex + 1);
        } else {
            // With a filter on, the row count can be below the rule count: the rule then goes mid-list.
            const int position = selected == -1 ? ListEvents->topLevelItemCount() : gRuleIndex + 1;
            Skip([&] { currentPart().AddAudioEvent(rule, position); });
        }
        refillRuleList();
        FillGroups(TextSearched);
        if (!gGlobalRuleView)
            raiseMaxEventsPerPart();
        gRuleAccepted = false;
    }
    selectRow(ListEvents, 0, false);
    selectRow(ListEvents, selected == -1 ? ListEvents->topLevelItemCount() - 2 : selected);
}

void FormInitial::ListEvents_DblClick(QTreeWidgetItem* row)
{
    if (!row || row->text(0).isEmpty())
        return;
    gRuleIndex = static_cast<qint16>(ParseInteger(row->text(0)) - 1);
    gRuleEditMode = 2;
    {
        FormAddEditAudioInter editor(this);
        editor.exec();
    }
    if (gRuleAccepted) {
        Skip([&] { storeAcceptedRule(*ruleAt(gRuleIndex + 1)); });
        refillRuleList();
        FillGroups(TextSearched);
        gRuleAccepted = false;
    }
    selectRow(ListEvents, 0, false);
    selectRow(ListEvents, gRuleIndex);
    ListEvents->setFocus();
}

void FormInitial::Copy_Click()
{
    gClipboard.Clear();
    for (int row = 0; row < ListEvents->topLevelItemCount() - 1; ++row) {
        if (!ListEvents->topLevelItem(row)->isSelected())
            continue;
        Skip([&] {
            auto copy = std::make_shared<CEvent>();
            CopyEvent(*copy, *ruleAt(rowNumber(ListEvents, row)));
            auto item = std::make_shared<CClipboardItem>();
            item->Event = copy;
            gClipboard.Add(item);
        });
    }
}

void FormInitial::Cut_Click()
{
    Copy_Click();
    int removed = 0;
    for (int row = 0; row < ListEvents->topLevelItemCount(); ++row) {
        if (!ListEvents->topLevelItem(row)->isSelected())
            continue;
        const int position = rowNumber(ListEvents, row) - removed;
        if (gGlobalRuleView)
            Skip([&] { gGlobalEvents.Remove(position); });   // directly: the global counter stays
        else
            Skip([&] { currentPart().RemoveAudioEvent(position); });
        ++removed;
    }
    refillRuleList();
}

void FormInitial::Paste_Click()
{
    // The robot forms share the clipboard; an entry that holds a robot rule is
    // no rule of this list and is skipped.
    int pasted = 0;
    for (const auto& entry : gClipboard) {
        if (!entry->Event)
            continue;
        ++pasted;
        auto copy = std::make_shared<CEvent>();
        CopyEvent(*copy, *entry->Event);
        const int position = iSelectedRule == -1 ? 0 : iSelectedRule + pasted;
        if (gGlobalRuleView)
            AddGlobalEvent(copy, static_cast<qint16>(position));
        else
            Skip([&] { currentPart().AddAudioEvent(copy, position); });
    }
    if (!gGlobalRuleView)
        raiseMaxEventsPerPart();
    refillRuleList();
    const int rows = ListEvents->topLevelItemCount();
    for (int i = 0; i < pasted; ++i)
        selectRow(ListEvents, iSelectedRule == -1 ? rows - 2 - i : iSelectedRule + i);
}

void FormInitial::RemoveSelectedRules()
{
    const int rows = ListEvents->topLevelItemCount();
    int row = 0;
    int kept = 0;
    bool asked = false;
    while (row <= rows - 1) {
        if (!ListEvents->topLevelItem(row)->isSelected()) {
            ++row;
            ++kept;
            continue;
        }
        // The rows are not refreshed meanwhile: the row at `kept` holds the next rule's number.
        Skip([&] { gRuleIndex = static_cast<qint16>(rowNumber(ListEvents, kept) - 1); });
        if (!asked) {
            asked = true;
            if (MsgBox(QStringLiteral("Delete events?"), MsgButtons::YesNo) == MsgAnswer::No)
                return;
        }
        gDirty = true;
        if (gGlobalRuleView)
            RemoveGlobalEvent(static_cast<qint16>(gRuleIndex + 1));
        else
            Skip([&] { currentPart().RemoveAudioEvent(gRuleIndex + 1); });
        ++row;
    }
    refillRuleList();
}
