#include "rules/ModuleEvents.h"
#include <array>
#include <memory>
#include <QLatin1StringView>
#include <QStringView>
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

using namespace Qt::Literals::StringLiterals;

namespace {

const std::array<const char*, 37> kExoCodes = {
    "CI",  "CD",  "HI",  "HD",  "RI",  "RD",  "II",  "ID",  "FCI", "FCD",
    "P1",  "P2",  "P3",  "P4",  "P5",  "P6",  "DI1", "DI2", "DD1", "DD2",
    "IMI", "IMD", "IPI", "IPD", "IC",  "C1",  "C2",  "C3",  "C4",  "C5",
    "C6",  "SEL", "S1",  "S2",  "S3",  "S4",  "S5"};

const std::array<const char*, 6> kAxisCodes = {"AX", "AY", "AZ", "ARX", "ARY", "ARZ"};
const std::array<const char*, 6> kAxisNames = {"Eje X", "Eje Y", "Eje Z", "Eje RX", "Eje RY", "Eje RZ"};

const QString kBlank = QStringLiteral(" ");

// A 16-bit result of Integer arithmetic; outside the range it is an overflow.
qint16 integerResult(int value)
{
    if (value < -32768 || value > 32767)
        throw ConversionError(QStringLiteral("Overflow"));
    return qint16(value);
}

// --- scanning a line ---------------------------------------------------------------

// Walks a line field by field as GetNextField does, handing out views into
// the line, so that a field that is only looked at or dropped costs nothing.
class FieldScanner {
public:
    explicit FieldScanner(QStringView text, qsizetype offset = 0) : m_text(text), m_pos(offset) {}

    // The text up to the next ";" or the end, without the ";"; empty past the end.
    QStringView Next()
    {
        if (m_pos >= m_text.size())
            return {};
        const qsizetype start = m_pos;
        const qsizetype end = m_text.indexOf(u';', start);
        if (end < 0) {
            m_pos = m_text.size();
            return m_text.sliced(start);
        }
        m_pos = end + 1;
        return m_text.sliced(start, end - start);
    }
    void Skip() { Next(); }
    // 0-based offset of the next field.
    qsizetype Offset() const { return m_pos; }

private:
    QStringView m_text;
    qsizetype m_pos;
};

// A whole number in its plainest form: an optional "-" and 1 to `maxDigits`
// digits, nothing else. Every such text converts to exactly this value.
bool plainDigits(QStringView text, int maxDigits, qint32& value)
{
    qsizetype i = 0;
    const bool negative = !text.isEmpty() && text[0] == u'-';
    if (negative)
        i = 1;
    const qsizetype digits = text.size() - i;
    if (digits < 1 || digits > maxDigits)
        return false;
    qint32 n = 0;
    for (; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return false;
        n = n * 10 + (c - u'0');
    }
    value = negative ? -n : n;
    return true;
}

// ToInteger of a field; the plainest numbers are converted in place.
qint16 toInteger(QStringView field)
{
    qint32 n = 0;
    if (plainDigits(field, 5, n) && n >= -32768 && n <= 32767)
        return qint16(n);
    return ToInteger(field.toString());
}

// ParseInteger of a field; the plainest numbers are converted in place.
qint16 parseInteger(QStringView field)
{
    qint32 n = 0;
    if (plainDigits(field, 5, n) && n >= -32768 && n <= 32767)
        return qint16(n);
    return ParseInteger(field.toString());
}

// IsNumberText of a field; the plainest numbers are answered in place.
bool isNumberText(QStringView field)
{
    qint32 n = 0;
    if (plainDigits(field, 9, n))
        return true;
    return IsNumberText(field.toString());
}

// A text read from the file: " " stands for the empty text.
QString emptyIfBlank(QStringView field) { return field == u" " ? QString() : field.toString(); }

// The text of a field read as it stands.
QString fieldText(QStringView field) { return field.toString(); }

qint16 fileTokenToType(QStringView text)
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

bool digitsOnly(QStringView text)
{
    if (text.isEmpty())
        return false;
    for (QChar c : text)
        if (c < u'0' || c > u'9')
            return false;
    return true;
}

qint16 tokenToDevice(QStringView text)
{
    if (text == u"BEGIN") return 0;
    if (text == u"END") return 1;
    if (text == u"QEL_VAR") return 2;
    if (digitsOnly(text))   // IsNumber without sign or decimal point
        return qint16(toInteger(text) - 1);
    return 0;
}

// The part of a text after its first `count` characters; empty when it is shorter.
QStringView after(QStringView text, qsizetype count)
{
    return text.size() > count ? text.sliced(count) : QStringView();
}

qint16 textToItem(QStringView text, qint16 type, qint16 source)
{
    switch (type) {
    case 1:
        for (size_t i = 0; i < kExoCodes.size(); ++i)
            if (text == QLatin1StringView(kExoCodes[i]))
                return qint16(i);
        if (text == u"-")
            return 37;
        return -1;
    case 2: {
        for (size_t i = 0; i < kAxisCodes.size(); ++i)
            if (text == QLatin1StringView(kAxisCodes[i]) || text == QLatin1StringView(kAxisNames[i]))
                return qint16(i);
        // A button: a letter and its number ("S12"), or a name ending in its number ("Sensor 12").
        const qint16 number = text.size() < 5 ? toInteger(after(text, 1)) : toInteger(text.right(2).trimmed());
        return integerResult(gTotemAxes(source) + number - 1);
    }
    case 5:
        return parseInteger(text);
    case 6:
        if (text == u"Note On") return 0;
        if (text == u"Control Change") return 1;
        if (text == u"Program Change") return 2;
        if (text == u"MIDI File" || text == u"Any") return 3;
        return -1;
    case 7:
        if (text.left(2) == u"An")
            return toInteger(after(text, 7));
        if (text.left(2) == u"Di")
            return integerResult(toInteger(after(text, 8)) + gArduinoData(source).m_iNumAnalogInputs);
        return -1;
    case 9:
        return -1;
    default:
        return 0;
    }
}

// --- building a text -----------------------------------------------------------------

void appendNumber(QString& out, qint64 n)
{
    char digits[24];
    char* const end = digits + sizeof digits;
    char* p = end;
    quint64 magnitude = n < 0 ? quint64(-(n + 1)) + 1 : quint64(n);
    do {
        *--p = char('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    if (n < 0)
        *--p = '-';
    out.append(QLatin1StringView(p, end - p));
}

// A number in the pattern "#00": at least two digits.
void appendTwoDigits(QString& out, qint64 n)
{
    if (n >= 0 && n < 10)
        out.append(u'0');
    if (n < 0)
        out.append(Format(n, QStringLiteral("#00")));
    else
        appendNumber(out, n);
}

// A text written into the file: the empty text becomes " ", and the record keeps that " ".
void appendBlankIfEmpty(QString& out, QString& field)
{
    if (field.isEmpty())
        field = kBlank;
    out.append(field);
}

void appendBool(QString& out, bool value) { out.append(value ? u'1' : u'0'); }

void appendFileToken(QString& out, qint16 type)
{
    static const std::array<const char*, 11> tokens = {"AUTO", "EXO", "TOT", "FLA", "", "DIO",
                                                       "MIDI", "ARD", "OSC", "QEL", "VCAP"};
    if (type >= 0 && type <= 10)
        out.append(QLatin1StringView(tokens[size_t(type)]));
}

void appendDevice(QString& out, qint16 device, qint16 type)
{
    if (type == 0) {
        switch (device) {
        case 0: out.append("BEGIN"_L1); break;
        case 1: out.append("END"_L1); break;
        case 2: out.append("QEL_VAR"_L1); break;
        default: break;
        }
        return;
    }
    appendNumber(out, int(device) + 1);
}

void appendExoCode(QString& out, qint16 item)
{
    if (item < 0 || item >= qint16(kExoCodes.size()))
        out.append(u'-');
    else
        out.append(QLatin1StringView(kExoCodes[size_t(item)]));
}

void appendTotemCode(QString& out, qint16 item, qint16 source)
{
    const qint16 axes = gTotemAxes(source);
    if (item < axes) {
        if (item < 0 || item > 5)
            out.append(u'-');
        else
            out.append(QLatin1StringView(kAxisCodes[size_t(item)]));
        return;
    }
    out.append(u'S');
    appendNumber(out, item - axes + 1);
}

const std::shared_ptr<Collection<CAction>>& actionsOf(const CEvent& rule)
{
    if (!rule.m_MsgOut)
        throw RuntimeError(QStringLiteral("Object variable not set"));
    return rule.m_MsgOut;
}

// Field 8 of the record line.
void appendRecordItem(QString& out, const CEvent& rule, bool automaticVariable)
{
    switch (rule.m_iSourceType) {
    case 0:
        out.append(automaticVariable && rule.m_iSource == 2 ? rule.m_strVariable : kBlank);
        break;
    case 1:
        appendExoCode(out, rule.m_iItem);
        break;
    case 2:
        appendTotemCode(out, rule.m_iItem, rule.m_iSource);
        break;
    case 3:
    case 8:
        out.append(rule.m_strVariable);
        break;
    case 5:
    case 6:
    case 7:
        appendNumber(out, rule.m_iItem);
        break;
    default:
        out.append("ERROR"_L1);
        break;
    }
}

void appendActionText(QString& out, CAction& action)
{
    const qint16 type = action.m_iTargetType;
    out.append("ttype;"_L1);
    appendFileToken(out, type);
    out.append(";target;"_L1);
    appendDevice(out, action.m_iTarget, type);
    out.append(";item;"_L1);
    if (type == 3 || type == 8 || (type == 9 && !action.m_strVariable.isEmpty()))
        out.append(action.m_strVariable.isEmpty() ? kBlank : action.m_strVariable);   // not stored back
    else if (type == 6 || type == 7 || type == 9)
        appendNumber(out, action.m_iCommand);
    else
        out.append(kBlank);
    out.append(";channel;"_L1);
    appendNumber(out, action.m_iChannel);
    out.append(";val1;"_L1);
    appendBlankIfEmpty(out, action.m_strVal1);
    out.append(";val2;"_L1);
    appendBlankIfEmpty(out, action.m_strVal2);
    out.append(";min;"_L1);
    appendBlankIfEmpty(out, action.m_strMin);
    out.append(";max;"_L1);
    appendBlankIfEmpty(out, action.m_strMax);
    out.append(";midifile;"_L1);
    appendBlankIfEmpty(out, action.m_strMIDIFile);
    out.append(";action;"_L1);
    appendNumber(out, action.m_iAction);
    out.append(u';');
}

// Room for the text of a rule block, enough for most blocks to be built
// without growing: the rule's own texts and a typical size per action.
qsizetype blockSize(const CEvent& rule)
{
    const qsizetype actions = rule.m_MsgOut ? rule.m_MsgOut->Count() : 0;
    return 256 + rule.m_strRemarks.size() + rule.m_strVariable.size() + rule.m_strVal1.size()
           + rule.m_strVal2.size() + rule.m_strMin.size() + rule.m_strMax.size() + rule.m_strGroup.size()
           + rule.m_strEvent.size() + 192 * actions;
}

// The block of rule `rule` of subscene `part` of scene `scene` (1-based), appended to `out`.
void appendEventText(QString& out, int scene, int part, int rule, bool withPlace)
{
    CEvent& event = *gScenes.Item(scene)->PartList.Item(part)->AudioEvents.Item(rule);
    out.reserve(out.size() + blockSize(event));
    if (withPlace) {
        const qint64 sceneIndex = scene - 1, partIndex = part - 1;
        appendNumber(out, rule - 1);   // "##0"
        out.append(u';');
        appendNumber(out, sceneIndex);
        out.append(u';');
        appendNumber(out, partIndex);
        out.append(u';');
        appendTwoDigits(out, sceneIndex);
        out.append(u'_');
        appendTwoDigits(out, partIndex);
        out.append(u';');
    }
    AppendRuleBlock(out, event, true);
}

// Fills `action` from the fields of an action line.
void parseActionFields(CAction& action, QStringView line)
{
    FieldScanner fields(line);
    fields.Skip();
    action.m_iTargetType = fileTokenToType(fields.Next());
    fields.Skip();
    action.m_iTarget = tokenToDevice(fields.Next());
    fields.Skip();
    const QStringView item = fields.Next();
    action.m_iCommand = textToItem(item, action.m_iTargetType, action.m_iTarget);
    if (action.m_iCommand == -1 && isNumberText(item))
        action.m_iCommand = toInteger(item);
    if (action.m_iTargetType == 3 || action.m_iTargetType == 8 || action.m_iTargetType == 9)
        action.m_strVariable = fieldText(item);
    fields.Skip();
    action.m_iChannel = toInteger(fields.Next());
    fields.Skip();
    action.m_strVal1 = emptyIfBlank(fields.Next());
    fields.Skip();
    action.m_strVal2 = emptyIfBlank(fields.Next());
    fields.Skip();
    action.m_strMin = emptyIfBlank(fields.Next());
    fields.Skip();
    action.m_strMax = emptyIfBlank(fields.Next());
    fields.Skip();
    action.m_strMIDIFile = fieldText(fields.Next());
    fields.Skip();
    action.m_iAction = toInteger(fields.Next());
}

// Field 2 of a line ("event;...;", "numMessages;...;", "message;...;").
QStringView secondField(QStringView line)
{
    FieldScanner fields(line);
    fields.Skip();
    return fields.Next();
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

qint16 FileTokenToType(const QString& text) { return fileTokenToType(text); }

QString TypeToListToken(qint16 type)
{
    // The list says "UND" where the file writes nothing: for 4 and for any unknown number.
    const QString token = TypeToFileToken(type);
    return token.isEmpty() ? QStringLiteral("UND") : token;
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
    QString token;
    appendDevice(token, device, type);
    return token;
}

qint16 TokenToDevice(const QString& text) { return tokenToDevice(text); }

QString ExoItemToCode(qint16 item)
{
    QString code;
    appendExoCode(code, item);
    return code;
}

QString TotemItemToCode(qint16 item, qint16 source)
{
    QString code;
    appendTotemCode(code, item, source);
    return code;
}

qint16 TextToItem(const QString& text, qint16 type, qint16 source) { return textToItem(text, type, source); }

QString GetNextField(const QString& text, int& position)
{
    if (position < 1 || position > text.size())
        return QString();
    FieldScanner fields(text, position - 1);
    const QString field = fields.Next().toString();
    position = int(fields.Offset()) + 1;
    return field;
}

// --- building the text --------------------------------------------------------

QString BuildActionText(CAction& action)
{
    QString line;
    line.reserve(160 + action.m_strVariable.size() + action.m_strVal1.size() + action.m_strVal2.size()
                 + action.m_strMin.size() + action.m_strMax.size() + action.m_strMIDIFile.size());
    appendActionText(line, action);
    return line;
}

void AppendRuleBlock(QString& text, CEvent& rule, bool automaticVariable)
{
    appendBlankIfEmpty(text, rule.m_strRemarks);
    text.append(u';');
    appendFileToken(text, rule.m_iSourceType);
    text.append(u';');
    appendDevice(text, rule.m_iSource, rule.m_iSourceType);
    text.append(u';');
    appendRecordItem(text, rule, automaticVariable);
    text.append(";itype;"_L1);
    appendNumber(text, rule.m_iInterType);
    text.append(";sense;"_L1);
    appendNumber(text, rule.m_iSense);
    text.append(";val1;"_L1);
    appendBlankIfEmpty(text, rule.m_strVal1);
    text.append(";val2;"_L1);
    appendBlankIfEmpty(text, rule.m_strVal2);
    text.append(";channel;"_L1);
    appendNumber(text, rule.m_iChannel);
    text.append(";min;"_L1);
    appendBlankIfEmpty(text, rule.m_strMin);
    text.append(";max;"_L1);
    appendBlankIfEmpty(text, rule.m_strMax);
    text.append(";clip;"_L1);
    appendBool(text, rule.m_bClip);
    text.append(";enabled;"_L1);
    appendBool(text, rule.m_bEnabled);
    text.append(";label;"_L1);
    appendBlankIfEmpty(text, rule.m_strGroup);
    text.append(";\r\n"_L1);

    text.append("event;"_L1);
    appendBlankIfEmpty(text, rule.m_strEvent);
    text.append(";\r\n"_L1);
    const auto& actions = actionsOf(rule);
    text.append("numMessages;"_L1);
    appendNumber(text, actions->Count());
    text.append(";\r\n"_L1);
    for (const auto& action : *actions) {
        appendActionText(text, *action);
        text.append("\r\nmessage;"_L1);
        text.append(action->m_strMessage);
        text.append(";\r\n"_L1);
    }
}

QString BuildEventText(int scene, int part, int rule, bool withPlace)
{
    QString text;
    appendEventText(text, scene, part, rule, withPlace);
    return text;
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
        QString block;   // one buffer for every block, kept at its largest size
        for (int s = 1; s <= gScenes.Count(); ++s) {
            const auto& scene = gScenes.Item(s);
            for (int p = 1; p <= scene->m_iNumParts; ++p) {
                for (int i = 1; i <= gMaxEventsPerPart; ++i) {
                    if (i <= scene->PartList.Item(p)->AudioEvents.Count()) {
                        block.resize(0);
                        appendEventText(block, s, p, i, true);
                        file.PrintLine(block);
                    }
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
        parseActionFields(action, line);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ParseRuleBlock(TextFileReader& file, QStringView line, qsizetype offset, CEvent& event, bool automaticVariable)
{
    FieldScanner fields(line, offset);
    event.m_strRemarks = emptyIfBlank(fields.Next());
    event.m_bEnabled = true;
    event.m_iSourceType = fileTokenToType(fields.Next());
    event.m_iSource = tokenToDevice(fields.Next());

    // Field 8: the item number, and for Automatic, Flash and OSC the variable.
    const QStringView item = fields.Next();
    const qint16 type = event.m_iSourceType;
    if (type != 0) {
        event.m_iItem = textToItem(item, type, event.m_iSource);
        if (event.m_iItem == -1 && isNumberText(item))
            event.m_iItem = toInteger(item);
    }
    if ((type == 0 && automaticVariable) || type == 3 || type == 8)
        event.m_strVariable = fieldText(item);

    fields.Skip();
    event.m_iInterType = toInteger(fields.Next());
    fields.Skip();
    event.m_iSense = toInteger(fields.Next());
    fields.Skip();
    event.m_strVal1 = emptyIfBlank(fields.Next());
    fields.Skip();
    event.m_strVal2 = emptyIfBlank(fields.Next());
    fields.Skip();
    event.m_iChannel = toInteger(fields.Next());
    fields.Skip();
    event.m_strMin = emptyIfBlank(fields.Next());
    fields.Skip();
    event.m_strMax = emptyIfBlank(fields.Next());
    fields.Skip();
    event.m_bClip = toInteger(fields.Next()) != 0;
    fields.Skip();
    event.m_bEnabled = toInteger(fields.Next()) != 0;
    fields.Skip();
    event.m_strGroup = emptyIfBlank(fields.Next());

    event.m_strEvent = emptyIfBlank(secondField(file.LineInput()));

    const qint16 count = toInteger(secondField(file.LineInput()));
    event.m_MsgOut = std::make_shared<Collection<CAction>>();
    for (int i = 1; i <= count; ++i) {
        auto action = std::make_shared<CAction>();
        if (!ParseAction(*action, file.LineInput()))
            return false;
        action->m_strMessage = fieldText(secondField(file.LineInput()));
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
        FieldScanner fields(line);
        fields.Skip();
        scene = parseInteger(fields.Next());
        part = parseInteger(fields.Next());
        fields.Skip();
        return ParseRuleBlock(file, line, fields.Offset(), event, true);
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
