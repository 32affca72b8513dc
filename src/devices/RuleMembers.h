#pragma once
// Integer members of the rule records reached by their names, as the rule
// passes of the MIDI and joystick dialogs reach them. A record that has no
// member of that name raises a run-time error, which the passes skip.
#include <QString>
#include <QtGlobal>

class CBotEvent;
class CEvent;
class CLightsEvent;

qint16& IntegerMember(CEvent& rule, const QString& name);
qint16& IntegerMember(CBotEvent& rule, const QString& name);
qint16& IntegerMember(CLightsEvent& rule, const QString& name);

// Adds two Integers; a sum outside the 16-bit range raises the overflow error.
qint16 AddIntegers(qint16 a, qint16 b);
