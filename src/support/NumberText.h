#pragma once
// The number checks of the rule vocabulary and the data file readers.
#include <QString>
#include <QtGlobal>

// The empty text gives 0 with failed false. Any other text goes through the
// 16-bit conversion; if that fails the result is 0 and failed is true.
qint16 ParseInteger(const QString& text, bool& failed);
qint16 ParseInteger(const QString& text);

// True if the text converts to a 32-bit integer.
bool IsNumberText(const QString& text);

// The check for a number in an editor field: false for the empty text; the
// first character a digit, or "-" if allowNegative (a lone "-" is false);
// every further character a digit, with one "." if allowDecimal.
bool IsNumber(const QString& text, bool allowDecimal, bool allowNegative);
