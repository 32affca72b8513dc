#pragma once
// The data of one exoskeleton sensor suit: for each of its 29 sensor rows,
// the byte of the sample frame, the kind of sensor, the rule items it feeds
// and the calibrated range. Entries 29 to 31 exist and are never used.
#include <QString>
#include <QtGlobal>
#include "support/CheckedArray.h"

class CExoData {
public:
    qint16 m_iID = 0;                          // bus identity sent in the request frame
    CheckedArray<qint16, 0, 31> m_iMax;
    CheckedArray<qint16, 0, 31> m_iMin;
    CheckedArray<QString, 0, 31> m_strItem;    // item number, or two joined by "y"
    CheckedArray<qint16, 0, 31> m_iType;       // index into gExoTypeNames
    CheckedArray<qint16, 0, 31> m_iChannel;    // 1-based byte of the 32-byte frame
};

// Number of sensor rows in use.
inline constexpr int kExoRows = 29;

extern CheckedArray<CExoData, 0, 1> gExoData;       // the model
extern CheckedArray<CExoData, 0, 1> gExoDataEdit;   // working copies of the calibration dialog
extern CheckedArray<QString, 0, 31> gExoSensorLabels;
extern CheckedArray<QString, 0, 3> gExoTypeNames;

// Sets both records of gExoData to the factory defaults.
void InitExoData();
void InitExoSensorLabels();
void InitExoTypeNames();
