#pragma once
// How rules become rows of the rule list (ListEvents), the list of labels in
// use, the filters over the list, and how an accepted editor result becomes a record.
#include <QString>
#include <QtGlobal>
#include "rules/CAction.h"
#include "rules/CEvent.h"
#include "support/CheckedArray.h"
#include "support/Collection.h"

class QComboBox;
class QTreeWidget;

// By source type number: true when rules of that source type may show. All true at start.
extern CheckedArray<bool, 0, 10> gSourceFilter;
// By target type number: true when actions of that target type may show. All true at start.
extern CheckedArray<bool, 0, 10> gTargetFilter;
// The label searched for; empty: any label.
extern QString gCurrentGroup;
// The rule list shows the global rules instead of a subscene's. False at start.
extern bool gGlobalRuleView;

// Gives a report-style list the seven columns of the rule list.
void SetupRuleListColumns(QTreeWidget* list);

// Fills the list with the rules of subscene `part` of scene `scene` (both 1-based),
// or with the global rules in the global view, that pass the filters, then the
// trailing empty row. A row's text is its rule's 1-based position.
void FillRuleList(int scene, int part, QTreeWidget* list);
// Appends the row of one rule, numbered `number`.
void AddRuleRow(int number, const CEvent& rule, QTreeWidget* list);
// Fills the combo with every label in use, each once, in order of first use;
// the entry equal to gCurrentGroup becomes the selection.
void FillGroups(QComboBox* combo);

// Copies the rule editor's accepted result into `rule`; the actions are copied
// into new objects, so the record and `editActions` share none.
void StoreRule(CEvent& rule, qint16 interType, qint16 sense, qint16 sourceType, qint16 source, qint16 item,
               const QString& variable, const QString& val1, const QString& val2, qint16 channel,
               const QString& min, const QString& max, bool clip, bool enabled, const QString& remarks,
               const QString& group, const Collection<CAction>& editActions, const QString& event);
