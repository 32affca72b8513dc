#pragma once
// Exo1.cfg and Exo2.cfg: one exoskeleton record of gExoData per file, read by
// line position, one comma-separated line per sensor row.
#include <QString>
#include <QtGlobal>

// Writes record `index` (0 or 1) of gExoData to the full path; false after any failure.
bool WriteExoDataFile(qint16 index, const QString& path);
// Fills record `index` of gExoData from the file; false after any failure, rows read so far stay.
bool ReadExoDataFile(qint16 index, const QString& path);
