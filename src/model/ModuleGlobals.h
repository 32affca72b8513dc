#pragma once
// Module-level state shared by the whole program.
#include <QString>
#include <QtGlobal>
#include "support/CheckedArray.h"

extern QString gConfigFilePath;   // full path of the main file; empty if never saved
extern QString gConfigName;       // file name of the main file without its last four characters
extern QString gConfigFolder;     // folder of the main file, with its trailing separator
extern bool gDirty;               // there are unsaved changes
extern bool gAutoSaved;           // set just before the auto-save on closing; read by nothing
extern qint16 gLastScene;         // number of scenes minus 1; -1 when there are none
extern qint16 gCurrentScene;      // 0-based index of the scene selected in the scene list
extern qint16 gCurrentPart;       // 0-based index of the subscene worked on; -1 from New to the first selection

extern CheckedArray<qint16, 0, 3> gTotemAxes;      // axes of joystick i+1
extern CheckedArray<qint16, 0, 3> gTotemButtons;   // buttons of joystick i+1

extern qint32 gNDigitalIO;                          // digital IO cards, 0 to 4
extern CheckedArray<qint32, 0, 3> gDigitalIOCardID;
extern CheckedArray<qint32, 0, 3> gDigitalIONIn;
extern CheckedArray<qint32, 0, 3> gDigitalIONOut;

// While true, the handlers of combo boxes return at once: raised around
// selections made by code that must not cascade.
extern bool gSuppressComboEvents;
