#pragma once
// Scenes.cfg: the scenes and subscenes of the performance, read by line
// position. Scenes.txt: a numbered list of the scene names for the run-time
// engine, never read back.
#include <QString>

// Create or replace the file at the full path; false after any failure.
bool WriteScenesFile(const QString& path);
// Empties gScenes and fills it from the file; false after any failure, scenes read so far stay.
bool ReadScenesFile(const QString& path);
// Create or replace Scenes.txt at the full path; false after any failure.
bool WriteSceneNamesFile(const QString& path);
