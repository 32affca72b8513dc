#pragma once
// The system code page of the performance machines. Bytes 0x80 to 0x9F map
// to their Windows-1252 characters; the five unassigned ones map to the C1
// control of the same number, so that every byte survives a round trip.
// A character with no Windows-1252 code is written as "?".
#include <QByteArray>
#include <QString>

QByteArray ToWindows1252(QStringView text);
// Appends the encoded text to `out`.
void AppendWindows1252(QByteArray& out, QStringView text);
QString FromWindows1252(const char* data, qsizetype size);
inline QString FromWindows1252(const QByteArray& bytes) { return FromWindows1252(bytes.constData(), bytes.size()); }
