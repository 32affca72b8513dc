// Rules as rows of a real report-style list, the filters, the label list, and StoreRule.
#include <QtTest>
#include <QComboBox>
#include <QHeaderView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "rules/ModuleRuleDisplay.h"
#include "rules/RuleTestHelpers.h"

using namespace ruletest;

namespace {
CAction target(qint16 type) { return {.m_iTargetType = type, .m_iTarget = 0}; }

std::shared_ptr<CEvent> rule(qint16 sourceType, std::initializer_list<CAction> actions, const QString& group = QString(),
                             const QString& remarks = QString(), const QString& event = QString(), qint16 interType = 0)
{
    return MakeRule({.m_iInterType = interType, .m_iSourceType = sourceType, .m_strRemarks = remarks,
                     .m_strGroup = group, .m_strEvent = event},
                    actions);
}

QStringList rowTexts(const QTreeWidget& list)
{
    QStringList out;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        out << list.topLevelItem(i)->text(0);
    return out;
}

QStringList columns(const QTreeWidget& list, int row)
{
    QStringList out;
    for (int c = 0; c < 7; ++c)
        out << list.topLevelItem(row)->text(c);
    return out;
}

QStringList comboEntries(const QComboBox& combo)
{
    QStringList out;
    for (int i = 0; i < combo.count(); ++i)
        out << combo.itemText(i);
    return out;
}
} // namespace

class TestRuleDisplay : public QObject {
    Q_OBJECT

    QTreeWidget m_list;

private slots:
    void initTestCase()
    {
        // The state at program start, before any test changes it.
        for (int t = 0; t <= 10; ++t) {
            QVERIFY(gSourceFilter(t));
            QVERIFY(gTargetFilter(t));
        }
        QVERIFY(gCurrentGroup.isEmpty());
        QVERIFY(!gGlobalRuleView);
        SetupRuleListColumns(&m_list);
    }
    void init()
    {
        gSourceFilter.Fill(true);
        gTargetFilter.Fill(true);
        gCurrentGroup.clear();
        gGlobalRuleView = false;
        ClearGlobalEvents();
        ResetScenes({1, 2});
        m_list.clear();
    }

    void listHasTheSevenColumnHeaders()
    {
        QTreeWidget list;
        SetupRuleListColumns(&list);
        QCOMPARE(list.columnCount(), 7);
        QStringList headers;
        for (int c = 0; c < 7; ++c)
            headers << list.headerItem()->text(c);
        QCOMPARE(headers, QStringList({"#", "Source", "Target", "Type", "Label", "Remarks", "Description"}));
    }

    void emptySubsceneShowsTheTrailingRowOnly()
    {
        m_list.addTopLevelItem(new QTreeWidgetItem(QStringList{"old"}));
        FillRuleList(2, 2, &m_list);
        QCOMPARE(m_list.topLevelItemCount(), 1);
        QCOMPARE(columns(m_list, 0), QStringList(7, QString()));
    }

    void rowShowsNumberTokensLabelRemarksAndDescription()
    {
        AddRule(1, 1, rule(1, {target(6)}, QStringLiteral("Grupo"), QStringLiteral("Nota"),
                           QStringLiteral("Exoskeleton 1 CI -> MIDI"), 2));
        AddRule(1, 1, rule(7, {target(9)}, QString(), QString(), QStringLiteral("d"), 1));
        FillRuleList(2, 2, &m_list);
        QCOMPARE(m_list.topLevelItemCount(), 3);
        QCOMPARE(columns(m_list, 0),
                 QStringList({"1", "EXO", "MIDI", "RANG", "Grupo", "Nota", "Exoskeleton 1 CI -> MIDI"}));
        QCOMPARE(columns(m_list, 1), QStringList({"2", "ARD", "QEL", "GATE", "", "", "d"}));
        QCOMPARE(columns(m_list, 2), QStringList(7, QString()));
    }

    void differentTargetsShowPlusAndEqualTargetsTheirToken()
    {
        AddRule(0, 0, rule(6, {target(6), target(8)}));
        AddRule(0, 0, rule(6, {target(6), target(6)}));
        AddRule(0, 0, rule(6, {target(6), target(8), target(6)}));
        FillRuleList(1, 1, &m_list);
        QCOMPARE(m_list.topLevelItem(0)->text(2), QStringLiteral("+++"));
        QCOMPARE(m_list.topLevelItem(1)->text(2), QStringLiteral("MIDI"));
        QCOMPARE(m_list.topLevelItem(2)->text(2), QStringLiteral("+++"));
    }

    void targetFilterOffHidesOnlyRulesWithNoOtherTargetAndKeepsTheGaps()
    {
        AddRule(0, 0, rule(8, {target(6), target(8)}));
        AddRule(0, 0, rule(8, {target(6)}));
        AddRule(0, 0, rule(8, {target(3)}));
        AddRule(0, 0, rule(8, {target(6), target(6)}));
        AddRule(0, 0, rule(8, {target(7)}));
        gTargetFilter(6) = false;
        FillRuleList(1, 1, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({"1", "3", "5", ""}));
        QCOMPARE(m_list.topLevelItem(0)->text(2), QStringLiteral("+++"));
    }

    void sourceFilterOffHidesTheRulesOfThatSource()
    {
        AddRule(0, 0, rule(1, {target(6)}));
        AddRule(0, 0, rule(8, {target(6)}));
        AddRule(0, 0, rule(1, {target(8)}));
        gSourceFilter(1) = false;
        FillRuleList(1, 1, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({"2", ""}));
    }

    void labelSearchIsCaseSensitiveContainment()
    {
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("intro")));
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("INTRO")));
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("coda")));
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("tr")));
        gCurrentGroup = QStringLiteral("tr");
        FillRuleList(1, 1, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({"1", "4", ""}));
    }

    void searchWithNoMatchLeavesTheTrailingRowOnly()
    {
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("intro")));
        gCurrentGroup = QStringLiteral("zz");
        FillRuleList(1, 1, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({""}));
    }

    void ruleWithNoActionNeverShows()
    {
        AddRule(0, 0, rule(6, {}));
        auto noList = std::make_shared<CEvent>();
        AddRule(0, 0, noList);
        AddRule(0, 0, rule(6, {target(9)}));
        FillRuleList(1, 1, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({"3", ""}));
    }

    void interactionTypeSevenShowsErr()
    {
        AddRule(0, 0, rule(6, {target(6)}, QString(), QString(), QString(), 7));
        FillRuleList(1, 1, &m_list);
        QCOMPARE(m_list.topLevelItem(0)->text(3), QStringLiteral("ERR"));
    }

    void unknownSourceAndTargetTypesShowUnd()
    {
        AddRule(0, 0, rule(4, {target(4)}));
        FillRuleList(1, 1, &m_list);
        QCOMPARE(m_list.topLevelItem(0)->text(1), QStringLiteral("UND"));
        QCOMPARE(m_list.topLevelItem(0)->text(2), QStringLiteral("UND"));
    }

    void globalViewShowsTheGlobalRulesWhateverTheNumbers()
    {
        AddRule(0, 0, rule(6, {target(6)}));
        AddGlobalEvent(rule(8, {target(9)}, QString(), QStringLiteral("g1")), 0);
        AddGlobalEvent(rule(1, {target(3)}, QString(), QStringLiteral("g2")), 0);
        gGlobalRuleView = true;
        FillRuleList(0, 0, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({"1", "2", ""}));
        QCOMPARE(m_list.topLevelItem(1)->text(5), QStringLiteral("g2"));
    }

    void noValidSceneGivesTheTrailingRowOnly()
    {
        AddRule(0, 0, rule(6, {target(6)}));
        FillRuleList(0, 0, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({""}));
        FillRuleList(1, 5, &m_list);
        QCOMPARE(rowTexts(m_list), QStringList({""}));
    }

    void addRuleRowAppendsOneRowWithTheGivenNumber()
    {
        auto r = rule(5, {target(10), target(10)}, QStringLiteral("L"));
        AddRuleRow(42, *r, &m_list);
        QCOMPARE(m_list.topLevelItemCount(), 1);
        QCOMPARE(columns(m_list, 0), QStringList({"42", "DIO", "VCAP", "TRIG", "L", "", ""}));
    }

    // --- the label list ---

    void labelInUseTwiceAppearsOnceAndEmptyLabelsGiveOneEmptyEntry()
    {
        AddGlobalEvent(rule(6, {target(6)}, QStringLiteral("global")), 0);
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("b")));
        AddRule(0, 0, rule(6, {target(6)}, QString()));
        AddRule(1, 1, rule(6, {target(6)}, QStringLiteral("b")));
        AddRule(1, 0, rule(6, {target(6)}, QStringLiteral("a")));
        AddRule(1, 1, rule(6, {target(6)}, QString()));
        AddRule(1, 1, rule(6, {target(6)}, QStringLiteral("B")));
        QComboBox combo;
        FillGroups(&combo);
        QCOMPARE(comboEntries(combo), QStringList({"global", "b", "", "a", "B"}));
    }

    void labelListSelectsTheSearchedLabel()
    {
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("a")));
        AddRule(0, 0, rule(6, {target(6)}, QStringLiteral("b")));
        QComboBox combo;
        combo.setEditable(true);
        combo.addItem(QStringLiteral("stale"));
        gCurrentGroup = QStringLiteral("b");
        FillGroups(&combo);
        QCOMPARE(comboEntries(combo), QStringList({"a", "b"}));
        QCOMPARE(combo.currentIndex(), 1);
        QCOMPARE(combo.currentText(), QStringLiteral("b"));
        gCurrentGroup = QStringLiteral("x");
        FillGroups(&combo);
        QCOMPARE(combo.currentIndex(), -1);
        QCOMPARE(gCurrentGroup, QStringLiteral("x"));
    }

    void savedRuleListsBothTheEmptyLabelAndTheBlank()
    {
        QTemporaryDir dir;
        AddRule(0, 0, rule(6, {target(6)}));
        gMaxEventsPerPart = 1;
        QVERIFY(WriteEventsFile(dir.filePath(QStringLiteral("Events.cfg"))));
        AddRule(1, 0, rule(6, {target(6)}));
        QComboBox combo;
        FillGroups(&combo);
        QCOMPARE(comboEntries(combo), QStringList({" ", ""}));
    }

    // --- StoreRule ---

    void storeRuleCopiesTheFieldsAndNewActions()
    {
        Collection<CAction> editActions;
        editActions.Add(std::make_shared<CAction>(CAction{.m_iTargetType = 6, .m_iTarget = 1, .m_iChannel = 2,
                                                          .m_iCommand = 3, .m_strVal1 = QStringLiteral("60"),
                                                          .m_strMIDIFile = QStringLiteral("a.mid"),
                                                          .m_strMessage = QStringLiteral("m1")}));
        editActions.Add(std::make_shared<CAction>(CAction{.m_iTargetType = 8, .m_strVariable = QStringLiteral("/x"),
                                                          .m_strMessage = QStringLiteral("m2")}));
        CEvent r;
        r.m_MsgOut = std::make_shared<Collection<CAction>>();
        r.m_MsgOut->Add(std::make_shared<CAction>());
        StoreRule(r, 2, 1, 8, 3, -1, QStringLiteral("/in"), QStringLiteral("VAR"), QStringLiteral("v2"), 5,
                  QStringLiteral("0"), QStringLiteral("1"), true, false, QStringLiteral("rem"), QStringLiteral("grp"),
                  editActions, QStringLiteral("OSC -> MIDIm1"));
        CEvent expected{.m_iInterType = 2, .m_iSense = 1, .m_iSourceType = 8, .m_iSource = 3, .m_iItem = -1,
                        .m_strVariable = QStringLiteral("/in"), .m_strVal1 = QStringLiteral("VAR"),
                        .m_strVal2 = QStringLiteral("v2"), .m_iChannel = 5, .m_strMin = QStringLiteral("0"),
                        .m_strMax = QStringLiteral("1"), .m_bClip = true, .m_bEnabled = false,
                        .m_strRemarks = QStringLiteral("rem"), .m_strGroup = QStringLiteral("grp"),
                        .m_MsgOut = std::make_shared<Collection<CAction>>(),
                        .m_strEvent = QStringLiteral("OSC -> MIDIm1")};
        for (const auto& a : editActions)
            expected.m_MsgOut->Add(std::make_shared<CAction>(*a));
        QCOMPARE(DiffRules(r, expected), QString());
        QVERIFY(r.m_MsgOut->Item(1) != editActions.Item(1));
        editActions.Item(1)->m_strVal1 = QStringLiteral("changed");
        editActions.Remove(2);
        QCOMPARE(r.m_MsgOut->Item(1)->m_strVal1, QStringLiteral("60"));
        QCOMPARE(r.m_MsgOut->Count(), 2);
    }
};

QTEST_MAIN(TestRuleDisplay)
#include "test_ruledisplay.moc"
