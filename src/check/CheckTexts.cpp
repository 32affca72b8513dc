#include "check/CheckTexts.h"
#include "support/Windows1252.h"

QString CharactersOutsideCodePage(const QString& text)
{
    QString out;
    for (const QChar c : text) {
        if (c == u'?')
            continue;
        if (ToWindows1252(QString(c)) == "?" && !out.contains(c))
            out += c;
    }
    return out;
}

QString Quoted(const QString& text)
{
    QString shown = text;
    shown.replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
    if (shown.size() > 40)
        shown = shown.left(37) + QStringLiteral("...");
    return u'"' + shown + u'"';
}

namespace {

CFinding at(const CFinding& place, bool hasPlace, const CFinding& fallback)
{
    return hasPlace ? place : fallback;
}

} // namespace

void ReportDifferences(const std::vector<CheckedText>& texts, const std::vector<ValueDifference>& differences,
                       bool readOk, const CFinding& place, const QString& file, std::vector<CFinding>& findings)
{
    const CheckedText* cause = nullptr;
    bool lineBreak = false;
    for (const auto& t : texts)
        if (t.value.contains(u'\r') || t.value.contains(u'\n')) {
            cause = &t;
            lineBreak = true;
            break;
        }
    if (!cause)
        for (const auto& t : texts)
            if (!t.separator.isNull() && t.value.contains(t.separator)) {
                cause = &t;
                break;
            }
    if (cause && (!readOk || !differences.empty())) {
        const ValueDifference* spoiled = nullptr;
        for (const auto& d : differences)
            if (d.field != cause->field) {
                spoiled = &d;
                break;
            }
        if (!spoiled && !differences.empty())
            spoiled = &differences.front();
        CFinding f = at(cause->place, cause->hasPlace, place);
        f.m_severity = readOk ? Severity::Lost : Severity::Breaks;
        f.m_kind = lineBreak ? FindingKind::LineBreak : FindingKind::Shifted;
        f.m_strField = cause->field;
        QString effect;
        if (spoiled)
            effect = QStringLiteral("%1 reads back as %2 instead of %3").arg(spoiled->name, Quoted(spoiled->read),
                                                                             Quoted(spoiled->meant));
        if (!readOk)
            effect += (effect.isEmpty() ? QString() : QStringLiteral(", and "))
                + QStringLiteral("the reading of the %1 fails here").arg(file);
        if (lineBreak)
            f.m_strText = QStringLiteral("The %1 holds a line break: the lines after it in the %2 are read in the wrong "
                                         "places, so %3. Remove the line break.")
                              .arg(cause->name, file, effect);
        else
            f.m_strText = QStringLiteral("The %1 %2 holds \"%3\", which ends a field of its line: the rest of the line "
                                         "shifts by one field, so %4. Remove the \"%3\".")
                              .arg(cause->name, Quoted(cause->value), QString(cause->separator), effect);
        findings.push_back(f);
        return;
    }
    if (!readOk) {
        // Nothing in the texts explains it: the first value that came back
        // otherwise is where the reading went wrong.
        const ValueDifference* first = differences.empty() ? nullptr : &differences.front();
        CFinding f = first ? at(first->place, first->hasPlace, place) : place;
        f.m_severity = Severity::Breaks;
        f.m_kind = FindingKind::ReadFails;
        if (first) {
            f.m_strField = first->field;
            f.m_strText = QStringLiteral("The %1 cannot be read back: its reading fails at the %2 (written as %3), and "
                                         "the Open stops there.")
                              .arg(file, first->name, Quoted(first->meant));
        } else {
            f.m_strText = QStringLiteral("The %1 cannot be read back here: its reading fails, and what comes after is "
                                         "missing at the next Open.")
                              .arg(file);
        }
        findings.push_back(f);
        return;
    }
    for (const auto& d : differences) {
        CFinding f = at(d.place, d.hasPlace, place);
        f.m_severity = Severity::Lost;
        f.m_strField = d.field;
        const QString outside = d.text ? CharactersOutsideCodePage(d.meant) : QString();
        if (!outside.isEmpty() && FromWindows1252(ToWindows1252(d.meant)) == d.read) {
            f.m_kind = FindingKind::CodePage;
            f.m_strText = QStringLiteral("The %1 holds characters that the code page of the show machines cannot hold "
                                         "(%2): they are written as \"?\" and come back as %3. Replace them.")
                              .arg(d.name, outside, Quoted(d.read));
        } else if (!d.explanation.isEmpty()) {
            f.m_kind = d.kind;
            f.m_strText = d.explanation;
        } else {
            f.m_kind = FindingKind::Changed;
            f.m_strText = QStringLiteral("The %1 is written as %2 but reads back as %3 at the next Open.")
                              .arg(d.name, Quoted(d.meant), Quoted(d.read));
        }
        findings.push_back(f);
    }
}
