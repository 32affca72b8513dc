#include "rules/ModuleEvents.h"
#include <array>
#include <memory>
#include "model/CArduinoData.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "support/Convert.h"
#include "support/ModuleGUI.h"
#include "support/NumberFormat.h"
#include "support/NumberText.h"
#include "support/RuntimeError.h"
#include "support/TextFile.h"

qint16 gMaxEventsPerPart = 0;

namespace {

const std::array<const char*, 37> kExoCodes = {
    "CI",  "CD",  "HI",  "HD",  "RI",  "RD",  "II",  "ID",  "FCI", "FCD",
    "P1",  "P2",  "P3",  "P4",  "P5",  "P6",  "DI1", "DI2", "DD1", "DD2",
    "IMI", "IMD", "IPI", "IPD", "IC",  "C1",  "C2",  "C3",  "C4",  "C5",
    "C6",  "SEL", "S1",  "S2",  "S3",  "S4",  "S5"};

const std::array<const char*, 6> kAxisCodes = {"AX", "AY", "AZ", "ARX", "ARY", "ARZ"};
const std::array<const char*, 6> kAxisNames = {"Eje X", "Eje Y", "Eje Z", "Eje RX", "Eje RY", "Eje RZ"};

const QString kBlank = QStringLiteral(" ");

// A text written into the file: the empty text becomes " ", and the record keeps that " ".
const QString& blankIfEmpty(QString& field)
{
    if (field.isEmpty())
        field = kBlank;
    return field;
}

// A text read from the file: " " stands for the empty text.
QString emptyIfBlank(const QString& field) { return field == kBlank ? QString() : field; }

QString boolText(bool value) { return value ? QStringLiteral("1") : QStringLiteral("0"); }

const std::shared_ptr<Collection<CAction>>& actionsOf(const CEvent& rule)
{
    if (!rule.m_MsgOut)
        throw RuntimeError(QStringLiteral("Object variable not set"));
    return rule.m_MsgOut;
}

QString recordItemText(const CEvent& rule)
{
    switch (rule.m_iSourceType) {
    case 0:
        return rule.m_iSource == 2 ? rule.m_strVariable : kBlank;
    case 1:
        return ExoItemToCode(rule.m_iItem);
    case 2:
        return TotemItemToCode(rule.m_iItem, rule.m_iSource);
    case 3:
    case 8:
        return rule.m_strVariable;
    case 5:
    case 6:
    case 7:
        return QString::number(rule.m_iItem);
    default:
        return QStringLiteral("ERROR");
    }
}

// Field 8: the item number, and for Automatic, Flash and OSC the variable.
void parseRecordItem(const QString& field, CEvent& event, bool variableOfAutomatic)
{
    if (event.m_iSourceType != 0) {
        event.m_iItem = TextToItem(field, event.m_iSourceType, event.m_iSource);
        if (event.m_iItem == -1 && IsNumberText(field))
            event.m_iItem = ToInteger(field);
    }
    const qint16 type = event.m_iSourceType;
    if ((type == 0 && variableOfAutomatic) || type == 3 || type == 8)
        event.m_strVariable = field;
}

} // namespace

// --- vocabulary -----------------------------------------------------------------

QString TypeToFileToken(qint16 type)
{
    switch (type) {
    case 0: return QStringLiteral("AUTO");
    case 1: return QStringLiteral("EXO");
    case 2: return QStringLiteral("TOT");
    case 3: return QStringLiteral("FLA");
    case 5: return QStringLiteral("DIO");
    case 6: return QStringLiteral("MIDI");
    case 7: return QStringLiteral("ARD");
    case 8: return QStringLiteral("OSC");
    case 9: return QStringLiteral("QEL");
    case 10: return QStringLiteral("VCAP");
    default: return QString();
    }
}

qint16 FileTokenToType(const QString& text)
{
    if (text == u"AUTO") return 0;
    if (text == u"EXO") return 1;
    if (text == u"TOT") return 2;
    if (text == u"FLA" || text == u"SYNC") return 3;
    if (text == u"DIO") return 5;
    if (text == u"MIDI") return 6;
    if (text == u"ARD") return 7;
    if (text == u"OSC") return 8;
    if (text == u"QEL") return 9;
    if (text == u"VCAP") return 10;
    return 4;
}

QString TypeToListToken(qint16 type)
{
    switch (type) {
    case 0: return QStringLiteral("AUTO");
    case 1: return QStringLiteral("EXO");
    case 2: return QStringLiteral("TOT");
    case 3: return QStringLiteral("FLA");
    case 5: return QStringLiteral("DIO");
    case 6: return QStringLiteral("MIDI");
    case 7: return QStringLiteral("ARD");
    case 8: return QStringLiteral("OSC");
    case 9: return QStringLiteral("QEL");
    case 10: return QStringLiteral("VCAP");
    default: return QStringLiteral("UND");
    }
}

QString InterTypeToListToken(qint16 interType)
{
    switch (interType) {
    case 0: return QStringLiteral("TRIG");
    case 1: return QStringLiteral("GATE");
    case 2: return QStringLiteral("RANG");
    case 3: return QStringLiteral("COPY");
    default: return QStringLiteral("ERR");
    }
}

QString DeviceToToken(qint16 device, qint16 type)
{
    if (type == 0) {
        switch (device) {
        case 0: return QStringLiteral("BEGIN");
        case 1: return QStringLiteral("END");
        case 2: return QStringLiteral("QEL_VAR");
        default: return QString();
        }
    }
    return QString::number(int(device) + 1);
}

qint16 TokenToDevice(const QString& text)
{
    if (text == u"BEGIN") return 0;
    if (text == u"END") return 1;
    if (text == u"QEL_VAR") return 2;
    if (IsNumber(text, false, false))
        return qint16(ToInteger(text) - 1);
    return 0;
}

QString ExoItemToCode(qint16 item)
{
    if (item < 0 || item >= qint16(kExoCodes.size()))
        return QStringLiteral("-");
    return QString::fromLatin1(kExoCodes[size_t(item)]);
}

QString TotemItemToCode(qint16 item, qint16 source)
{
    const qint16 axes = gTotemAxes(source);
    if (item < axes) {
        if (item < 0 || item > 5)
            return QStringLiteral("-");
        return QString::fromLatin1(kAxisCodes[size_t(item)]);
    }
    return QStringLiteral("S") + QString::number(item - axes + 1);
}

qint16 TextToItem(const QString& text, qint16 type, qint16 source)
{
    switch (type) {
    case 1:
        for (size_t i = 0; i < kExoCodes.size(); ++i)
            if (text == QLatin1String(kExoCodes[i]))
                return qint16(i);
        if (text == u"-")
            return 37;
        return -1;
    case 2: {
        for (size_t i = 0; i < kAxisCodes.size(); ++i)
            if (text == QLatin1String(kAxisCodes[i]) || text == QLatin1String(kAxisNames[i]))
                return qint16(i);
        // A button: a letter and its number ("S12"), or a name ending in its number ("Sensor 12").
        const qint16 number = text.size() < 5 ? ToInteger(text.mid(1)) : ToInteger(text.right(2).trimmed());
        return qint16(gTotemAxes(source) + number - 1);
    }
    case 5:
        return ParseInteger(text);
    case 6:
        if (text == u"Note On") return 0;
        if (text == u"Control Change") return 1;
        if (text == u"Program Change") return 2;
        if (text == u"MIDI File" || text == u"Any") return 3;
        return -1;
    case 7:
        if (text.left(2) == u"An")
            return ToInteger(text.mid(7));
        if (text.left(2) == u"Di")
            return qint16(ToInteger(text.mid(8)) + gArduinoData(source).m_iNumAnalogInputs);
        return -1;
    case 9:
        return -1;
    default:
        return 0;
    }
}

QString GetNextField(const QString& text, int& position)
{
    if (position < 1 || position > text.size())
        return QString();
    const qsizetype start = position - 1;
    const qsizetype end = text.indexOf(u';', start);
    if (end < 0) {
        position = int(text.size()) + 1;
        return text.mid(start);
    }
    position = int(end) + 2;
    return text.mid(start, end - start);
}

// --- building the text --------------------------------------------------------

QString BuildActionText(CAction& action)
{
    QString item;
    const qint16 type = action.m_iTargetType;
    if (type == 3 || type == 8)
        item = action.m_strVariable;
    else if (type == 9 && !action.m_strVariable.isEmpty())
        item = action.m_strVariable;
    else if (type == 6 || type == 7 || type == 9)
        item = QString::number(action.m_iCommand);
    if (item.isEmpty())
        item = kBlank;   // not stored back

    QString line;
    line += QStringLiteral("ttype;") + TypeToFileToken(type) + u';';
    line += QStringLiteral("target;") + DeviceToToken(action.m_iTarget, type) + u';';
    line += QStringLiteral("item;") + item + u';';
    line += QStringLiteral("channel;") + QString::number(action.m_iChannel) + u';';
    line += QStringLiteral("val1;") + blankIfEmpty(action.m_strVal1) + u';';
    line += QStringLiteral("val2;") + blankIfEmpty(action.m_strVal2) + u';';
    line += QStringLiteral("min;") + blankIfEmpty(action.m_strMin) + u';';
    line += QStringLiteral("max;") + blankIfEmpty(action.m_strMax) + u';';
    line += QStringLiteral("midifile;") + blankIfEmpty(action.m_strMIDIFile) + u';';
    line += QStringLiteral("action;") + QString::number(action.m_iAction) + u';';
    return line;
}

QString BuildRuleBlockTail(CEvent& rule)
{
    const QString crlf = QStringLiteral("\r\n");
    QString text;
    text += QStringLiteral("itype;") + QString::number(rule.m_iInterType) + u';';
    text += QStringLiteral("sense;") + QString::number(rule.m_iSense) + u';';
    text += QStringLiteral("val1;") + blankIfEmpty(rule.m_strVal1) + u';';
    text += QStringLiteral("val2;") + blankIfEmpty(rule.m_strVal2) + u';';
    text += QStringLiteral("channel;") + QString::number(rule.m_iChannel) + u';';
    text += QStringLiteral("min;") + blankIfEmpty(rule.m_strMin) + u';';
    text += QStringLiteral("max;") + blankIfEmpty(rule.m_strMax) + u';';
    text += QStringLiteral("clip;") + boolText(rule.m_bClip) + u';';
    text += QStringLiteral("enabled;") + boolText(rule.m_bEnabled) + u';';
    text += QStringLiteral("label;") + blankIfEmpty(rule.m_strGroup) + u';' + crlf;

    text += QStringLiteral("event;") + blankIfEmpty(rule.m_strEvent) + u';' + crlf;
    const auto& actions = actionsOf(rule);
    text += QStringLiteral("numMessages;") + QString::number(actions->Count()) + u';' + crlf;
    for (const auto& action : *actions) {
        text += BuildActionText(*action) + crlf;
        text += QStringLiteral("message;") + action->m_strMessage + u';' + crlf;
    }
    return text;
}

QString BuildEventText(int scene, int part, int rule, bool withPlace)
{
    CEvent& event = *gScenes.Item(scene)->PartList.Item(part)->AudioEvents.Item(rule);
    QString line;
    if (withPlace) {
        const qint64 sceneIndex = scene - 1, partIndex = part - 1;
        line += Format(rule - 1, QStringLiteral("##0")) + u';';
        line += Format(sceneIndex, QStringLiteral("##0")) + u';';
        line += Format(partIndex, QStringLiteral("##0")) + u';';
        line += Format(sceneIndex, QStringLiteral("#00")) + u'_' + Format(partIndex, QStringLiteral("#00")) + u';';
    }
    line += blankIfEmpty(event.m_strRemarks) + u';';
    line += TypeToFileToken(event.m_iSourceType) + u';';
    line += DeviceToToken(event.m_iSource, event.m_iSourceType) + u';';
    line += recordItemText(event) + u';';
    return line + BuildRuleBlockTail(event);
}

bool WriteEventsFile(const QString& path)
{
    try {
        TextFileWriter file(path);
        qint16 parts = 0;
        for (const auto& scene : gScenes) {
            const int sum = int(parts) + scene->m_iNumParts;
            if (sum > 32767 || sum < -32768)
                throw RangeError(QStringLiteral("Overflow"));
            parts = qint16(sum);
        }
        file.PrintNumber(parts);
        file.PrintNumber(gMaxEventsPerPart);
        for (int s = 1; s <= gScenes.Count(); ++s) {
            const auto& scene = gScenes.Item(s);
            for (int p = 1; p <= scene->m_iNumParts; ++p) {
                for (int i = 1; i <= gMaxEventsPerPart; ++i) {
                    if (i <= scene->PartList.Item(p)->AudioEvents.Count())
                        file.PrintLine(BuildEventText(s, p, i, true));
                }
            }
        }
        file.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

// --- reading ------------------------------------------------------------------

bool ParseAction(CAction& action, const QString& line)
{
    if (line.isEmpty())
        return true;
    try {
        int pos = 1;
        GetNextField(line, pos);
        action.m_iTargetType = FileTokenToType(GetNextField(line, pos));
        GetNextField(line, pos);
        action.m_iTarget = TokenToDevice(GetNextField(line, pos));
        GetNextField(line, pos);
        const QString item = GetNextField(line, pos);
        action.m_iCommand = TextToItem(item, action.m_iTargetType, action.m_iTarget);
        if (action.m_iCommand == -1 && IsNumberText(item))
            action.m_iCommand = ToInteger(item);
        if (action.m_iTargetType == 3 || action.m_iTargetType == 8 || action.m_iTargetType == 9)
            action.m_strVariable = item;
        GetNextField(line, pos);
        action.m_iChannel = ToInteger(GetNextField(line, pos));
        GetNextField(line, pos);
        action.m_strVal1 = emptyIfBlank(GetNextField(line, pos));
        GetNextField(line, pos);
        action.m_strVal2 = emptyIfBlank(GetNextField(line, pos));
        GetNextField(line, pos);
        action.m_strMin = emptyIfBlank(GetNextField(line, pos));
        GetNextField(line, pos);
        action.m_strMax = emptyIfBlank(GetNextField(line, pos));
        GetNextField(line, pos);
        action.m_strMIDIFile = GetNextField(line, pos);
        GetNextField(line, pos);
        action.m_iAction = ToInteger(GetNextField(line, pos));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ParseRuleBlockTail(TextFileReader& file, const QString& line, int& position, CEvent& event)
{
    int& pos = position;
    GetNextField(line, pos);
    event.m_iInterType = ToInteger(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_iSense = ToInteger(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_strVal1 = emptyIfBlank(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_strVal2 = emptyIfBlank(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_iChannel = ToInteger(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_strMin = emptyIfBlank(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_strMax = emptyIfBlank(GetNextField(line, pos));
    GetNextField(line, pos);
    event.m_bClip = ToInteger(GetNextField(line, pos)) != 0;
    GetNextField(line, pos);
    event.m_bEnabled = ToInteger(GetNextField(line, pos)) != 0;
    GetNextField(line, pos);
    event.m_strGroup = emptyIfBlank(GetNextField(line, pos));

    const QString eventLine = file.LineInput();
    int p = 1;
    GetNextField(eventLine, p);
    event.m_strEvent = emptyIfBlank(GetNextField(eventLine, p));

    const QString countLine = file.LineInput();
    p = 1;
    GetNextField(countLine, p);
    const qint16 count = ToInteger(GetNextField(countLine, p));
    event.m_MsgOut = std::make_shared<Collection<CAction>>();
    for (int i = 1; i <= count; ++i) {
        auto action = std::make_shared<CAction>();
        if (!ParseAction(*action, file.LineInput()))
            return false;
        const QString messageLine = file.LineInput();
        p = 1;
        GetNextField(messageLine, p);
        action->m_strMessage = GetNextField(messageLine, p);
        event.m_MsgOut->Add(action);
    }
    return count != 0;
}

bool ParseEvent(qint16& scene, qint16& part, TextFileReader& file, const QString& line, CEvent& event)
{
    try {
        if (line.size() < 4) {
            scene = -1;
            part = -1;
            return true;
        }
        int pos = 1;
        GetNextField(line, pos);
        scene = ParseInteger(GetNextField(line, pos));
        part = ParseInteger(GetNextField(line, pos));
        GetNextField(line, pos);
        event.m_strRemarks = emptyIfBlank(GetNextField(line, pos));
        event.m_bEnabled = true;
        event.m_iSourceType = FileTokenToType(GetNextField(line, pos));
        event.m_iSource = TokenToDevice(GetNextField(line, pos));
        parseRecordItem(GetNextField(line, pos), event, true);
        return ParseRuleBlockTail(file, line, pos, event);
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadEventsFile(const QString& path)
{
    qint16 scene = 0, part = 0;
    try {
        TextFileReader file(path);
        ParseInteger(file.LineInput());   // number of subscenes: not used
        const qint16 maxEvents = ParseInteger(file.LineInput());
        while (!file.AtEnd()) {
            QString line;
            do {
                line = file.LineInput();
            } while (line.isEmpty() && !file.AtEnd());
            if (file.AtEnd())
                break;   // a last line that nothing follows is dropped
            auto event = std::make_shared<CEvent>();
            if (!ParseEvent(scene, part, file, line, *event))
                throw RuntimeError(QStringLiteral("Bad rule"));
            if (scene < 0 || part < 0)
                continue;
            if (scene >= gScenes.Count())
                throw RangeError();
            const auto& owner = gScenes.Item(scene + 1);
            if (part >= owner->PartList.Count())
                throw RangeError();
            const auto& target = owner->PartList.Item(part + 1);
            target->AddAudioEvent(event, target->AudioEvents.Count() + 1);
        }
        file.Close();
        gMaxEventsPerPart = maxEvents;
        return true;
    } catch (const std::exception&) {
        MsgBoxExclamation(QStringLiteral("Error opening events configuration file!") + QStringLiteral("\r\n")
                          + QStringLiteral("Scene: ") + QString::number(scene + 1)
                          + QStringLiteral(" Part: ") + QString::number(part + 1));
        gMaxEventsPerPart = 0;
        return false;
    }
}
