#pragma once
// Numbers as the old runtime printed them.
#include <QString>
#include <QtGlobal>

// A number as text: a blank or a minus sign, then the digits: " 16", "-1".
QString Str(qint64 n);

// A number printed on its own line of a text file: Str plus a trailing blank, " 16 ", "-1 ".
QString NumberLine(qint64 n);

// A whole number in a digit pattern: "0" a digit always written, "#" a digit
// written only when needed ("0", "00", "000", "#", "#0", "##0", "#00", "###0").
// A pattern of "@" right-aligns the number's digits in that many columns.
QString Format(qint64 n, const QString& pattern);

// A text in a pattern of "@": right-aligned in that many columns ("@@").
QString Format(const QString& text, const QString& pattern);
