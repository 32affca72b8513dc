#pragma once
// VideoCapture.cfg: the capture settings of every subscene, one row per capture
// device, and whether the subscene's rules use capture at all. VideoEvents.cfg:
// a fixed shell kept for the run-time engine. Also the comma field scanner that
// the capture, exoskeleton and Arduino readers share.
#include <QString>

// Collects the characters from the 1-based `position` up to the next comma or
// the end of the line, passes over the comma and leaves `position` behind it.
// An empty field, or a position past the end, gives the empty text.
QString GetNextCommaField(const QString& line, int& position);

// Create or replace the file at the full path; false after any failure.
bool WriteVideoCaptureFile(const QString& path);
// Sets the capture settings of the subscenes already in gScenes; false after any failure.
bool ReadVideoCaptureFile(const QString& path);
// Writes the fixed shell; nobody looks at the result.
bool WriteVideoEventsFile(const QString& path);
