#pragma once
// The main configuration record of a performance: its title, how many devices
// of each kind it has, how each is reached, and the names of its data files.
// Exactly one instance exists, gMainConfig; New and Open overwrite its fields.
#include <QString>
#include <QtGlobal>
#include "support/CheckedArray.h"

class CMainConfig {
public:
    QString m_strName;
    bool m_bUpdate = false;          // a dialog has just changed something; the opener refreshes
    qint16 m_iNExos = 0;
    qint16 m_iNTotems = 0;           // joysticks, "Totems" in the file
    qint16 m_iNOSCs = 0;
    qint16 m_iNArduinos = 0;
    qint16 m_iNQDMs = 0;             // display managers
    qint16 m_iNMIDIs = 0;            // -1 after reading an older file with no count line
    qint16 m_iNFlash = 0;
    qint16 m_iNVideoCaps = 0;
    CheckedArray<qint16, 0, 8> m_iNAppPerQDM;      // index 8 exists and is never used
    qint16 m_iTalporPort = 0;
    CheckedArray<qint16, 0, 7> m_iMIDIPort;        // -1 for none
    CheckedArray<QString, 0, 7> m_strMIDIPortLabel;
    CheckedArray<qint16, 0, 7> m_iPortInOut;       // 0 unset, 1 input, 2 output
    qint16 m_iFlashPort = 0;
    qint16 m_iFlashUDPPort = 0;
    bool m_bFlashUDPEnabled = false;
    QString m_strFlashBroadcastIP;
    QString m_strFlashPerformanceInfo;
    CheckedArray<bool, 0, 15> m_bFlashCopyCfg;
    qint16 m_iQDMPort = 0;
    QString m_strScenesFile;
    QString m_strMovieEventsFile;
    QString m_strScenesFilenames;
    QString m_strMovieLoadsFile;
    QString m_strMoviesRoot;
    QString m_strRukaBotsFile;
    QString m_strTalporFile;
    QString m_strVilnaFile;
    QString m_strAudioEventsFile;
    QString m_strAudioEventsInFile;
    CheckedArray<QString, 0, 1> m_strExoDataFile;
    CheckedArray<QString, 0, 15> m_strArdDataFile;
    QString m_strLightsSetupFile;
    QString m_strLightsEventsFile;
    QString m_strEventsFile;
    qint16 m_iExo1Port = 0;
    qint16 m_iExo2Port = 0;
    QString m_strLocalIPAddress;
    qint16 m_iMovieWidth = 0;
    qint16 m_iMovieHeight = 0;
    qint32 m_lBkColor = 0;
    CheckedArray<QString, 0, 15> m_strFlashFolderPath;
    CheckedArray<QString, 0, 7> m_strDisplayManagerPath;
    CheckedArray2<QString, 0, 7, 0, 7> m_strVideoAppLabel;   // (display manager, application)
    CheckedArray2<QString, 0, 7, 0, 7> m_strVideoAppWindow;
    CheckedArray2<QString, 0, 7, 0, 7> m_strVideoAppPath;
    CheckedArray2<bool, 0, 7, 0, 7> m_bVideoAppLaunch;
    CheckedArray<qint16, 0, 4> m_iTotemDevice;     // index 4 exists and is never used
    qint16 m_iEventsPerSec = 0;
    // Packed lists of the input and output MIDI devices, rebuilt on open and by the MIDI dialog.
    CheckedArray<qint16, 0, 7> m_iInMIDIPort;
    CheckedArray<qint16, 0, 7> m_iOutMIDIPort;
    CheckedArray<QString, 0, 7> m_strInMIDIPortLabel;
    CheckedArray<QString, 0, 7> m_strOutMIDIPortLabel;
    CheckedArray<qint16, 0, 15> m_iOSCPortInOut;
    CheckedArray<qint16, 0, 15> m_iOSCPort;        // -1 when unset
    CheckedArray<QString, 0, 15> m_strOSCPortLabel;
    CheckedArray<QString, 0, 15> m_strOSCIP;
};

extern CMainConfig gMainConfig;
