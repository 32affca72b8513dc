#pragma once
// The data of one Arduino board: label, COM port, and the ranges and
// directions of its inputs. The arrays always hold their full size; the
// counts say how much of them is in use and saved.
#include <QString>
#include <QtGlobal>
#include "support/CheckedArray.h"

class CArduinoData {
public:
    qint16 m_iNumAnalogInputs = 0;
    qint16 m_iNumDigitalIOs = 0;
    QString m_strLabel;
    qint16 m_iCOMPort = 0;
    CheckedArray<qint16, 0, 31> m_iMax;
    CheckedArray<qint16, 0, 31> m_iMin;
    CheckedArray<qint16, 0, 95> m_iDigitalType;   // 0 PWM, 1 input, 2 output
};

extern CheckedArray<CArduinoData, 0, 15> gArduinoData;

// Sets all sixteen records to their defaults.
void InitArduinoData();
