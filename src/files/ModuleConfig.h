#pragma once
// The main configuration file (.qel): the stored fields of gMainConfig, the
// joystick and digital IO tables and the names of the data files, in a fixed
// order of lines that the reader follows by position.
#include <QString>

// Assigns the fixed data file names to gMainConfig, then creates or replaces
// the file. False after any failure; what was written stays on disk.
bool WriteMainConfigFile(const QString& path);

// Reads the file into gMainConfig and the module tables, accepting the older
// forms of the file. False after a failure up to the control machine's address;
// from the digital IO section on, a failure or the end of the file gives true.
bool ReadMainConfigFile(const QString& path);
