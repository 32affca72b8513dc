#pragma once
// Arduino1.cfg to Arduino16.cfg: one record of gArduinoData per file, read by
// line position; the counts on line 5 say how many rows follow.
#include <QString>
#include <QtGlobal>

// Writes record `index` (0 to 15) of gArduinoData to the full path; false after any failure.
bool WriteArduinoDataFile(qint16 index, const QString& path);
// Fills record `index` of gArduinoData from the file; false after any failure, what was read stays.
bool ReadArduinoDataFile(qint16 index, const QString& path);
