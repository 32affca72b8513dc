// The rule blocks: each rule is built into its block of lines by the rules
// writer, read back by the rules reader, and compared field by field.
#include "check/ModuleCheck.h"
#include <QStringList>
#include "check/CheckTexts.h"
#include "model/CScene.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/Convert.h"
#include "support/RuntimeError.h"
#include "support/TextFile.h"
#include "support/Windows1252.h"

namespace {

QString blankToEmpty(const QString& text) { return text == QStringLiteral(" ") ? QString() : text; }
QString emptyToBlank(const QString& text) { return text.isEmpty() ? QStringLiteral(" ") : text; }

// The texts of a rule in the order in which they stand in its block.
std::vector<CheckedText> ruleTexts(const CEvent& rule, bool global)
{
    std::vector<CheckedText> texts;
    auto add = [&](const QString& name, const QString& field, const QString& value) {
        texts.push_back({name, field, value, u';', CFinding(), false});
    };
    add(QStringLiteral("remark"), QStringLiteral("m_strRemarks"), rule.m_strRemarks);
    const qint16 type = rule.m_iSourceType;
    if ((type == 0 && rule.m_iSource == 2 && !global) || type == 3 || type == 8)
        add(QStringLiteral("source variable"), QStringLiteral("m_strVariable"), rule.m_strVariable);
    add(QStringLiteral("first source value"), QStringLiteral("m_strVal1"), rule.m_strVal1);
    add(QStringLiteral("second source value"), QStringLiteral("m_strVal2"), rule.m_strVal2);
    add(QStringLiteral("source minimum"), QStringLiteral("m_strMin"), rule.m_strMin);
    add(QStringLiteral("source maximum"), QStringLiteral("m_strMax"), rule.m_strMax);
    add(QStringLiteral("label"), QStringLiteral("m_strGroup"), rule.m_strGroup);
    add(QStringLiteral("description"), QStringLiteral("m_strEvent"), rule.m_strEvent);
    if (!rule.m_MsgOut)
        return texts;
    int n = 0;
    for (const auto& action : *rule.m_MsgOut) {
        ++n;
        const QString who = QStringLiteral("action %1's ").arg(n);
        const QString field = QStringLiteral("m_MsgOut(%1).").arg(n);
        const qint16 t = action->m_iTargetType;
        if (t == 3 || t == 8 || (t == 9 && !action->m_strVariable.isEmpty()))
            add(who + QStringLiteral("variable"), field + QStringLiteral("m_strVariable"), action->m_strVariable);
        add(who + QStringLiteral("first value"), field + QStringLiteral("m_strVal1"), action->m_strVal1);
        add(who + QStringLiteral("second value"), field + QStringLiteral("m_strVal2"), action->m_strVal2);
        add(who + QStringLiteral("minimum"), field + QStringLiteral("m_strMin"), action->m_strMin);
        add(who + QStringLiteral("maximum"), field + QStringLiteral("m_strMax"), action->m_strMax);
        add(who + QStringLiteral("MIDI file"), field + QStringLiteral("m_strMIDIFile"), action->m_strMIDIFile);
        add(who + QStringLiteral("description"), field + QStringLiteral("m_strMessage"), action->m_strMessage);
    }
    return texts;
}

// What a rule's block is meant to carry, compared with what its reading gave.
// Names are only put together for a value that differs.
class RuleComparison {
public:
    std::vector<ValueDifference> differences;

    void Compare(const CEvent& meant, const CEvent& read, bool global)
    {
        m_action = 0;
        text("remark", "m_strRemarks", blankToEmpty(meant.m_strRemarks), read.m_strRemarks);
        number("source type", "m_iSourceType", meant.m_iSourceType, read.m_iSourceType);
        number("source", "m_iSource", meant.m_iSource, read.m_iSource);
        const qint16 type = meant.m_iSourceType;
        if (type == 1 || type == 2 || type == 5 || type == 6 || type == 7)
            number("item", "m_iItem", meant.m_iItem, read.m_iItem);
        if ((type == 0 && meant.m_iSource == 2 && !global) || type == 3 || type == 8)
            text("source variable", "m_strVariable", meant.m_strVariable, read.m_strVariable);
        number("interaction type", "m_iInterType", meant.m_iInterType, read.m_iInterType);
        number("sense", "m_iSense", meant.m_iSense, read.m_iSense);
        text("first source value", "m_strVal1", blankToEmpty(meant.m_strVal1), read.m_strVal1);
        text("second source value", "m_strVal2", blankToEmpty(meant.m_strVal2), read.m_strVal2);
        number("source channel", "m_iChannel", meant.m_iChannel, read.m_iChannel);
        text("source minimum", "m_strMin", blankToEmpty(meant.m_strMin), read.m_strMin);
        text("source maximum", "m_strMax", blankToEmpty(meant.m_strMax), read.m_strMax);
        number("clip", "m_bClip", meant.m_bClip, read.m_bClip);
        number("enabled", "m_bEnabled", meant.m_bEnabled, read.m_bEnabled);
        text("label", "m_strGroup", blankToEmpty(meant.m_strGroup), read.m_strGroup);
        text("description", "m_strEvent", blankToEmpty(meant.m_strEvent), read.m_strEvent);
        const int meantCount = meant.m_MsgOut ? meant.m_MsgOut->Count() : 0;
        const int readCount = read.m_MsgOut ? read.m_MsgOut->Count() : 0;
        number("number of actions", "m_MsgOut", meantCount, readCount);
        for (int n = 1; n <= std::min(meantCount, readCount); ++n) {
            m_action = n;
            compareAction(*meant.m_MsgOut->Item(n), *read.m_MsgOut->Item(n));
        }
    }

private:
    int m_action = 0;   // the action compared now, 1-based; 0 for the rule's own fields

    void differs(const char* name, const char* field, const QString& meant, const QString& read, bool isText)
    {
        QString who = QLatin1String(name), member = QLatin1String(field);
        if (m_action > 0) {
            who = QStringLiteral("action %1's ").arg(m_action) + who;
            member = QStringLiteral("m_MsgOut(%1).").arg(m_action) + member;
        }
        differences.push_back({who, member, meant, read, isText, QString(), FindingKind::Changed, CFinding(), false});
    }
    void text(const char* name, const char* field, const QString& meant, const QString& read)
    {
        if (meant != read)
            differs(name, field, meant, read, true);
    }
    void number(const char* name, const char* field, qint64 meant, qint64 read)
    {
        if (meant != read)
            differs(name, field, QString::number(meant), QString::number(read), false);
    }

    void compareAction(const CAction& meant, const CAction& read)
    {
        const qint16 t = meant.m_iTargetType;
        number("target type", "m_iTargetType", t, read.m_iTargetType);
        number("target", "m_iTarget", meant.m_iTarget, read.m_iTarget);
        if (t == 6 || t == 7 || (t == 9 && meant.m_strVariable.isEmpty()))
            number("command", "m_iCommand", meant.m_iCommand, read.m_iCommand);
        if (t == 3 || t == 8 || (t == 9 && !meant.m_strVariable.isEmpty()))
            text("variable", "m_strVariable", emptyToBlank(meant.m_strVariable), read.m_strVariable);
        number("channel", "m_iChannel", meant.m_iChannel, read.m_iChannel);
        text("first value", "m_strVal1", blankToEmpty(meant.m_strVal1), read.m_strVal1);
        text("second value", "m_strVal2", blankToEmpty(meant.m_strVal2), read.m_strVal2);
        text("minimum", "m_strMin", blankToEmpty(meant.m_strMin), read.m_strMin);
        text("maximum", "m_strMax", blankToEmpty(meant.m_strMax), read.m_strMax);
        text("MIDI file", "m_strMIDIFile", emptyToBlank(meant.m_strMIDIFile), read.m_strMIDIFile);
        number("action", "m_iAction", meant.m_iAction, read.m_iAction);
        text("description", "m_strMessage", meant.m_strMessage, read.m_strMessage);
    }
};

// The empty texts of a rule, which building its block fills with " " (the
// writer stores that " " back into the record); Restore empties them again.
class EmptyTexts {
public:
    explicit EmptyTexts(CEvent& rule)
    {
        for (QString* f : {&rule.m_strRemarks, &rule.m_strVal1, &rule.m_strVal2, &rule.m_strMin, &rule.m_strMax,
                           &rule.m_strGroup, &rule.m_strEvent})
            note(f);
        if (rule.m_MsgOut)
            for (const auto& a : *rule.m_MsgOut)
                for (QString* f : {&a->m_strVal1, &a->m_strVal2, &a->m_strMin, &a->m_strMax, &a->m_strMIDIFile})
                    note(f);
    }
    void Restore()
    {
        for (QString* f : m_fields)
            *f = QString();
    }

private:
    void note(QString* field)
    {
        if (field->isEmpty())
            m_fields.push_back(field);
    }
    std::vector<QString*> m_fields;
};

// Builds the block of `rule` as the writer does, reads it back as the reader
// does, and adds what went wrong to `findings` with `place` as their place.
void checkRule(CEvent& rule, bool global, const CFinding& place, std::vector<CFinding>& findings)
{
    const QString file = global ? QStringLiteral("global rules file") : QStringLiteral("rules file");
    if (!rule.m_MsgOut || rule.m_MsgOut->Count() == 0) {
        CFinding f = place;
        f.m_severity = Severity::Breaks;
        f.m_kind = FindingKind::NoAction;
        f.m_strField = QStringLiteral("m_MsgOut");
        f.m_strText = QStringLiteral("The rule has no action: the reading of the %1 fails at it, so this rule and every "
                                     "rule after it are missing at the next Open. Give it an action or delete it.")
                          .arg(file);
        findings.push_back(f);
        return;
    }
    // The block is built from the record itself, whose empty texts are put back
    // at once: cheaper than a copy of every rule.
    QString block;
    EmptyTexts emptyTexts(rule);
    try {
        AppendRuleBlock(block, rule, !global);
    } catch (const RuntimeError&) {
        emptyTexts.Restore();
        CFinding f = place;
        f.m_severity = Severity::Breaks;
        f.m_kind = FindingKind::WriteFails;
        f.m_strField = QStringLiteral("m_iSource");
        f.m_strText = QStringLiteral("The rule cannot be put into text, because it names a device beyond its table: "
                                     "the %1 is not written at all. Choose the device again in the rule editor.")
                          .arg(file);
        findings.push_back(f);
        return;
    }
    emptyTexts.Restore();
    block += QStringLiteral("\r\n");   // the empty line that ends a block
    TextFileReader reader = TextFileReader::FromBytes(ToWindows1252(block));
    CEvent read;
    bool readOk = false;
    try {
        readOk = ParseRuleBlock(reader, reader.LineInput(), 0, read, !global);
        if (readOk && reader.LineInput() != QString())
            readOk = false;   // lines left over: the block broke
    } catch (const std::exception&) {
        readOk = false;
    }
    RuleComparison comparison;
    comparison.Compare(rule, read, global);
    if (readOk && comparison.differences.empty())
        return;
    for (auto& d : comparison.differences)
        if (d.field == QStringLiteral("m_iItem") && (rule.m_iSourceType == 1 || rule.m_iSourceType == 2)) {
            d.kind = FindingKind::ItemCode;
            d.explanation = QStringLiteral("The item number %1 has no code in the rule text: it is written \"-\" and "
                                           "reads back as %2. Choose the item again in the rule editor.")
                                .arg(d.meant, d.read);
        }
    ReportDifferences(ruleTexts(rule, global), comparison.differences, readOk, place, file, findings);
}

} // namespace

void CheckRuleBlocks(std::vector<CFinding>& findings)
{
    int s = 0;
    for (const auto& scene : gScenes) {
        int p = 0;
        for (const auto& part : scene->PartList) {
            int r = 0;
            for (const auto& rule : part->AudioEvents) {
                ++r;
                if (r > gMaxEventsPerPart)
                    break;   // not written at all: reported with the rules file
                CFinding place;
                place.m_iScene = static_cast<qint16>(s);
                place.m_iPart = static_cast<qint16>(p);
                place.m_iRule = r;
                checkRule(*rule, false, place, findings);
            }
            ++p;
        }
        ++s;
    }
    int r = 0;
    for (const auto& rule : gGlobalEvents) {
        CFinding place;
        place.m_bGlobal = true;
        place.m_iRule = ++r;
        checkRule(*rule, true, place, findings);
    }
}
