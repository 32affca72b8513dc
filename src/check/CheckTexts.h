#pragma once
// What the parts of the check share: the texts of a record in the order in
// which they stand in its file, the values that read back otherwise, and how
// such differences become findings with their cause.
#include <vector>
#include <QChar>
#include <QString>
#include "check/CFinding.h"

// A text of a record as it stands in its file.
struct CheckedText {
    QString name;        // for people: "remark", "action 2's first value"
    QString field;       // the record field: "m_strRemarks"
    QString value;
    QChar separator;     // what ends a field in its line: ';' or ','; null for a whole line
    CFinding place;      // where it belongs, when that differs from the record's place
    bool hasPlace = false;
};

// A value that reads back otherwise than its line was meant to carry it.
struct ValueDifference {
    QString name;
    QString field;
    QString meant;
    QString read;
    bool text = false;
    QString explanation;                 // a sentence of its own, if any
    FindingKind kind = FindingKind::Changed;
    CFinding place;                      // where it belongs, when that differs from the record's place
    bool hasPlace = false;
};

// The characters of `text` that the code page cannot hold; empty when it holds them all.
QString CharactersOutsideCodePage(const QString& text);
// The text shortened for a sentence, in quotes.
QString Quoted(const QString& text);

// Turns the differences of one record or file into findings. A text holding a
// line break, or the separator of its line, explains every difference after
// it: one finding names it and the first value it spoiled. Otherwise each
// difference is a finding of its own (characters outside the code page, or a
// value that reads back otherwise). A reading that failed with nothing to
// explain it gives one finding that the file cannot be read back.
void ReportDifferences(const std::vector<CheckedText>& texts, const std::vector<ValueDifference>& differences,
                       bool readOk, const CFinding& place, const QString& file, std::vector<CFinding>& findings);
