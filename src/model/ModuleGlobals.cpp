#include "model/ModuleGlobals.h"

QString gConfigFilePath;
QString gConfigName;
QString gConfigFolder;
bool gDirty = false;
bool gAutoSaved = false;
qint16 gLastScene = 0;
qint16 gCurrentScene = 0;
qint16 gCurrentPart = 0;

CheckedArray<qint16, 0, 3> gTotemAxes;
CheckedArray<qint16, 0, 3> gTotemButtons;

qint32 gNDigitalIO = 0;
CheckedArray<qint32, 0, 3> gDigitalIOCardID;
CheckedArray<qint32, 0, 3> gDigitalIONIn;
CheckedArray<qint32, 0, 3> gDigitalIONOut;

bool gSuppressComboEvents = false;
