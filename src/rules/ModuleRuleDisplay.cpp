#include "rules/ModuleRuleDisplay.h"
#include <QComboBox>
#include <QSignalBlocker>
#include <QStringList>
#include <QTreeWidget>
#include "model/CScene.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"

namespace {
CheckedArray<bool, 0, 10> allOn()
{
    CheckedArray<bool, 0, 10> filter;
    filter.Fill(true);
    return filter;
}

constexpr int kColumns = 7;

// The rule's actions, none when it has no collection.
int actionCount(const CEvent& rule) { return rule.m_MsgOut ? rule.m_MsgOut->Count() : 0; }

bool ruleShows(const CEvent& rule)
{
    if (!rule.m_MsgOut)
        return false;
    for (const auto& action : *rule.m_MsgOut) {
        try {
            if (gTargetFilter(action->m_iTargetType) && gSourceFilter(rule.m_iSourceType)
                && (gCurrentGroup.isEmpty() || rule.m_strGroup.contains(gCurrentGroup, Qt::CaseSensitive)))
                return true;
        } catch (const RangeError&) {
            // a type number that no filter entry covers does not show
        }
    }
    return false;
}
} // namespace

CheckedArray<bool, 0, 10> gSourceFilter = allOn();
CheckedArray<bool, 0, 10> gTargetFilter = allOn();
QString gCurrentGroup;
bool gGlobalRuleView = false;

void SetupRuleListColumns(QTreeWidget* list)
{
    list->setColumnCount(kColumns);
    list->setHeaderLabels({QStringLiteral("#"), QStringLiteral("Source"), QStringLiteral("Target"),
                           QStringLiteral("Type"), QStringLiteral("Label"), QStringLiteral("Remarks"),
                           QStringLiteral("Description")});
}

void AddRuleRow(int number, const CEvent& rule, QTreeWidget* list)
{
    QString source = QStringLiteral("ERR");
    QString target = QStringLiteral("ERR");
    QString type = QStringLiteral("ERR");
    source = TypeToListToken(rule.m_iSourceType);
    if (rule.m_MsgOut) {
        int i = 0;
        for (const auto& action : *rule.m_MsgOut) {
            const QString token = TypeToListToken(action->m_iTargetType);
            if (++i == 1)
                target = token;
            else if (token != target) {
                target = QStringLiteral("+++");
                break;
            }
        }
    }
    type = InterTypeToListToken(rule.m_iInterType);

    auto* row = new QTreeWidgetItem();
    row->setText(0, QString::number(number));
    row->setText(1, source);
    row->setText(2, target);
    row->setText(3, type);
    row->setText(4, rule.m_strGroup);
    row->setText(5, rule.m_strRemarks);
    row->setText(6, rule.m_strEvent);
    list->addTopLevelItem(row);
}

void FillRuleList(int scene, int part, QTreeWidget* list)
{
    const Collection<CEvent>* rules = nullptr;
    try {
        rules = gGlobalRuleView ? &gGlobalEvents : &gScenes.Item(scene)->PartList.Item(part)->AudioEvents;
    } catch (const RuntimeError&) {
        rules = nullptr;   // no such scene or subscene: an empty list
    }
    list->clear();
    if (rules) {
        for (int i = 1; i <= rules->Count(); ++i) {
            const CEvent& rule = *rules->Item(i);
            if (actionCount(rule) > 0 && ruleShows(rule))
                AddRuleRow(i, rule, list);
        }
    }
    auto* trailing = new QTreeWidgetItem();
    for (int c = 0; c < kColumns; ++c)
        trailing->setText(c, QString());
    list->addTopLevelItem(trailing);
}

void FillGroups(QComboBox* combo)
{
    QStringList labels;
    for (const auto& rule : gGlobalEvents)
        labels << rule->m_strGroup;
    for (const auto& scene : gScenes)
        for (const auto& part : scene->PartList)
            for (const auto& rule : part->AudioEvents)
                labels << rule->m_strGroup;

    QStringList kept;
    for (const QString& label : labels)
        if (!kept.contains(label, Qt::CaseSensitive))
            kept << label;

    const QString wanted = gCurrentGroup;
    int selected = -1;
    {
        // Refilling is not a choice of the operator: no change is signalled on the way.
        const QSignalBlocker blocker(combo);
        combo->clear();
        combo->addItems(kept);
        combo->setCurrentIndex(-1);
        if (combo->isEditable())
            combo->setEditText(QString());
        selected = int(kept.indexOf(wanted));
    }
    if (selected >= 0)
        combo->setCurrentIndex(selected);
}

void StoreRule(CEvent& rule, qint16 interType, qint16 sense, qint16 sourceType, qint16 source, qint16 item,
               const QString& variable, const QString& val1, const QString& val2, qint16 channel,
               const QString& min, const QString& max, bool clip, bool enabled, const QString& remarks,
               const QString& group, const Collection<CAction>& editActions, const QString& event)
{
    rule.m_iInterType = interType;
    rule.m_iSense = sense;
    rule.m_iSourceType = sourceType;
    rule.m_iSource = source;
    rule.m_iItem = item;
    rule.m_strVariable = variable;
    rule.m_strVal1 = val1;
    rule.m_strVal2 = val2;
    rule.m_iChannel = channel;
    rule.m_strMin = min;
    rule.m_strMax = max;
    rule.m_bClip = clip;
    rule.m_bEnabled = enabled;
    rule.m_strRemarks = remarks;
    rule.m_strGroup = group;
    auto actions = std::make_shared<Collection<CAction>>();
    for (const auto& action : editActions)
        actions->Add(std::make_shared<CAction>(*action));
    rule.m_MsgOut = actions;
    rule.m_strEvent = event;
}
