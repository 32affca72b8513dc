#pragma once
// One action of a rule: what to do on which target.
#include <QString>
#include <QtGlobal>

class CAction {
public:
    qint16 m_iTargetType = 0;  // target type number, 0 to 10
    qint16 m_iTarget = 0;      // device, 0-based; for QEL targets the command number
    qint16 m_iChannel = 0;     // MIDI channel as a list position, -1 when none
    qint16 m_iCommand = 0;     // MIDI message, Arduino output or other command; -1 when hidden
    QString m_strVariable;     // variable, OSC address or Flash variable
    QString m_strVal1;
    QString m_strVal2;
    QString m_strMax;
    QString m_strMin;
    qint16 m_iAction = 0;      // list position of the action combo: 0 Stop, 1 Play, 2 Play Loop
    QString m_strMIDIFile;
    QString m_strMessage;      // description for people, made when the rule is accepted
};
