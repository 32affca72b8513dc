#pragma once
// One finding of the check of a performance: how bad it is, where it is, and
// one sentence saying what will happen at the show and how to fix it.
#include <QString>
#include <QtGlobal>

enum class Severity {
    Breaks = 0,   // will break the show
    Lost = 1,     // will be lost
    Look = 2      // worth a look
};

enum class FindingKind {
    Shifted,      // a text holds a field separator: later fields of its line shift
    LineBreak,    // a text holds a line break: the lines after it are misread
    NoAction,     // a rule with no action: the reading of its file fails
    Dropped,      // rules beyond the highest count of the rules file
    ItemCode,     // an item with no code in the rule text
    CodePage,     // characters the code page cannot hold, written as "?"
    Changed,      // any other value that reads back otherwise
    WriteFails,   // a file of the performance cannot be written
    ReadFails,    // a file of the performance cannot be read back
    Device,       // a device, port, channel or item beyond what is configured
    RobotRules,   // robot rules, which Open does not bring back
    ComPort,      // one COM port given to two devices
    OscPort,      // two OSC connections on the same port and address
    MinMax        // a minimum above its maximum
};

class CFinding {
public:
    Severity m_severity = Severity::Look;
    FindingKind m_kind = FindingKind::Changed;
    qint16 m_iScene = -1;      // 0-based scene index, -1 for none
    qint16 m_iPart = -1;       // 0-based subscene index, -1 for none
    int m_iRule = 0;           // 1-based rule number, 0 for none
    bool m_bGlobal = false;    // the rule is a global rule
    QString m_strDevice;       // "Arduino 3", "OSC connection 2"...; empty for none
    QString m_strField;        // the record field concerned, e.g. "m_strRemarks"
    QString m_strText;         // the sentence
};

// "Will break the show", "Will be lost", "Worth a look".
QString SeverityText(Severity severity);
// "Scene 2, subscene 0, rule 5", "Global rule 3", "Arduino 2", "Performance".
QString PlaceText(const CFinding& finding);
// The finding on one line: severity, place and sentence separated by " | ".
QString FindingLine(const CFinding& finding);
