#pragma once
// Text-to-number conversions as the old runtime did them: blanks around the
// number are ignored, fractions are rounded half to even, and a text that is
// no number or a number that does not fit raises ConversionError.
#include <QString>
#include <QtGlobal>

qint16 ToInteger(const QString& text);   // 16-bit Integer
qint32 ToLong(const QString& text);      // 32-bit Long
double ToDouble(const QString& text);
float ToSingle(const QString& text);

// True when the text converts to a 32-bit Long.
bool ConvertsToLong(const QString& text);
