#pragma once
// A robot rule of a subscene. Only written for the run-time engine; never read back.
#include <QString>
#include <QtGlobal>

class CBotEvent {
public:
    qint16 m_iType = 0;        // interaction type, index in the robot form's combo
    qint16 m_iSource = 0;
    qint16 m_iRukaBot = 0;     // which robot: 3 Vilna, 5 Talpor
    qint16 m_iSelectItem = 0;
    qint16 m_iEmbragueItem = 0;
    qint16 m_iItem1 = 0;
    qint16 m_iItem2 = 0;
    qint16 m_iItem3 = 0;
    qint16 m_iItem4 = 0;
    qint16 m_iItem5 = 0;
    qint16 m_iItem6 = 0;
    QString m_strMIDIFile1;
    QString m_strMIDIFile2;
    QString m_strMIDIFile3;
    QString m_strMIDIFile4;
    QString m_strMIDIFile5;
    QString m_strMIDIFile6;
    QString m_strRemarks;
    bool m_bLoop = false;
};
