#pragma once
// Saving and opening a whole performance: the main file and the folder of
// data files of the same name beside it. Both read gConfigFolder and
// gConfigName, which the caller sets first, and report failures themselves.
#include <QString>

// Writes every file; a failed step shows its message and the next file is
// still written. Clears gDirty before anything is written.
void SaveConfiguration(const QString& path);

// Reads the files back; the first failure shows its message and ends the open,
// leaving what was read so far.
void OpenConfiguration(const QString& path);

// gConfigFolder + gConfigName + separator + name: where a data file of the performance lives.
QString PerformanceFilePath(const QString& name);

// Sets gConfigFilePath, gConfigName and gConfigFolder from a main file chosen in a
// file dialog. The name loses its last 4 characters, taken as the ".qel" extension.
void DeriveConfigPaths(const QString& chosenPath);
