// What a save and open cannot show: devices named beyond the counts and tables
// configured now, robot rules, COM ports and OSC connections given twice, and
// minimums above their maximums.
#include "check/ModuleCheck.h"
#include <map>
#include <QStringList>
#include "files/CBotEvent.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/Convert.h"

namespace {

CFinding finding(const CFinding& place, Severity severity, FindingKind kind, const QString& field, const QString& text)
{
    CFinding f = place;
    f.m_severity = severity;
    f.m_kind = kind;
    f.m_strField = field;
    f.m_strText = text;
    return f;
}

// What one rule names beyond what is configured: a phrase each, put together
// into one finding per rule (a performance can have one for every action).
struct Problems {
    struct Problem {
        QString field;
        QString phrase;
        bool device;   // a device beyond the count, else an item beyond its device
    };
    std::vector<Problem> list;

    // `number` (0-based) not below `count`: "action 1 names Arduino 3, but the performance has 2".
    void Device(const QString& who, const QString& field, const QString& device, int number, int count)
    {
        if (number >= 0 && number < count)
            return;
        list.push_back({field,
                        who + QStringLiteral(" names ") + device + u' ' + QString::number(number + 1)
                            + QStringLiteral(", but the performance has ") + QString::number(std::max(count, 0)),
                        true});
    }
    // `item` not from 0 to `count` - 1: "source names pin 12, but they run from 0 to 11".
    void Item(const QString& who, const QString& field, const QString& what, int item, int count)
    {
        if (item >= 0 && item < count)
            return;
        list.push_back({field,
                        who + QStringLiteral(" names ") + what + u' ' + QString::number(item) + QStringLiteral(", but ")
                            + (count > 0 ? QStringLiteral("they run from 0 to ") + QString::number(count - 1)
                                         : QStringLiteral("there are none")),
                        false});
    }

    void Report(std::vector<CFinding>& out, const CFinding& place) const
    {
        if (list.empty())
            return;
        QString text = QStringLiteral("The ") + list.front().phrase;
        for (size_t i = 1; i < list.size(); ++i)
            text += QStringLiteral("; the ") + list[i].phrase;
        if (list.size() > 1)
            text += QStringLiteral(". Choose them again in the rule editor, or raise the counts in the device panel.");
        else if (list.front().device)
            text += QStringLiteral(". Choose another in the rule editor, or raise the count in the device panel.");
        else
            text += QStringLiteral(". Choose it again in the rule editor, or set the device up again.");
        out.push_back(finding(place, Severity::Breaks, FindingKind::Device, list.front().field, text));
    }
};

// A number in text, or nothing.
bool numberIn(const QString& text, double& value)
{
    bool ok = false;
    value = text.trimmed().toDouble(&ok);
    return ok && !text.trimmed().isEmpty();
}

void checkRange(std::vector<CFinding>& out, const CFinding& place, const QString& who, const QString& field,
                const QString& min, const QString& max)
{
    double lo = 0, hi = 0;
    if (numberIn(min, lo) && numberIn(max, hi) && lo > hi)
        out.push_back(finding(place, Severity::Look, FindingKind::MinMax, field,
                              QStringLiteral("The %1 minimum %2 is above its maximum %3. Swap them if that is not meant.")
                                  .arg(who, min.trimmed(), max.trimmed())));
}

void checkRuleDevices(std::vector<CFinding>& out, const CEvent& rule, const CFinding& place)
{
    Problems problems;
    const CMainConfig& c = gMainConfig;
    const QString source = QStringLiteral("source");
    const qint16 src = rule.m_iSource;
    switch (rule.m_iSourceType) {
    case 1:
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("exoskeleton"), src,
                     std::min<int>(c.m_iNExos, 2));
        problems.Item(source, QStringLiteral("m_iItem"), QStringLiteral("suit item"), rule.m_iItem, 37);
        break;
    case 2:
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("joystick"), src,
                     std::min<int>(c.m_iNTotems, 4));
        if (src >= 0 && src < std::min<int>(c.m_iNTotems, 4))
            problems.Item(source, QStringLiteral("m_iItem"), QStringLiteral("axis or button item"), rule.m_iItem,
                       gTotemAxes(src) + gTotemButtons(src));
        break;
    case 3:
        // The number of players itself stands for all players.
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("Flash player"), src,
                     std::min<int>(c.m_iNFlash, 16) + 1);
        break;
    case 5:
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("digital IO card"), src,
                     std::min<int>(gNDigitalIO, 4));
        if (src >= 0 && src < std::min<int>(gNDigitalIO, 4))
            problems.Item(source, QStringLiteral("m_iItem"), QStringLiteral("input"), rule.m_iItem,
                       gDigitalIONIn(src));
        break;
    case 6:
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("MIDI device"), src,
                     std::min<int>(c.m_iNMIDIs, 8));
        break;
    case 7:
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("Arduino"), src,
                     std::min<int>(c.m_iNArduinos, 16));
        if (src >= 0 && src < std::min<int>(c.m_iNArduinos, 16)) {
            const CArduinoData& a = gArduinoData(src);
            problems.Item(source, QStringLiteral("m_iItem"), QStringLiteral("pin"), rule.m_iItem,
                       a.m_iNumAnalogInputs + a.m_iNumDigitalIOs);
        }
        break;
    case 8:
        problems.Device(source, QStringLiteral("m_iSource"), QStringLiteral("OSC connection"), src,
                     std::min<int>(c.m_iNOSCs, 16));
        break;
    default:
        break;
    }
    checkRange(out, place, QStringLiteral("source"), QStringLiteral("m_strMin"), rule.m_strMin, rule.m_strMax);
    if (!rule.m_MsgOut) {
        problems.Report(out, place);
        return;
    }
    int n = 0;
    for (const auto& action : *rule.m_MsgOut) {
        ++n;
        const QString who = QStringLiteral("action ") + QString::number(n);
        const QString field = QStringLiteral("m_MsgOut(") + QString::number(n) + QStringLiteral(").m_iTarget");
        const qint16 t = action->m_iTarget;
        switch (action->m_iTargetType) {
        case 3:
            problems.Device(who, field, QStringLiteral("Flash player"), t, std::min<int>(c.m_iNFlash, 16) + 1);
            break;
        case 6:
            problems.Device(who, field, QStringLiteral("MIDI device"), t, std::min<int>(c.m_iNMIDIs, 8));
            break;
        case 7:
            problems.Device(who, field, QStringLiteral("Arduino"), t, std::min<int>(c.m_iNArduinos, 16));
            if (t >= 0 && t < std::min<int>(c.m_iNArduinos, 16)) {
                const CArduinoData& a = gArduinoData(t);
                problems.Item(who, QStringLiteral("m_MsgOut(%1).m_iCommand").arg(n), QStringLiteral("pin"),
                           action->m_iCommand, a.m_iNumAnalogInputs + a.m_iNumDigitalIOs);
            }
            break;
        case 8:
            problems.Device(who, field, QStringLiteral("OSC connection"), t, std::min<int>(c.m_iNOSCs, 16));
            break;
        case 9:
            // "Switch Player To App": the command is the display manager, the
            // manager count itself stands for all of them; the first value the application.
            if (t == 2) {
                const int managers = std::min<int>(c.m_iNQDMs, 8);
                problems.Device(who, QStringLiteral("m_MsgOut(%1).m_iCommand").arg(n),
                             QStringLiteral("display manager"), action->m_iCommand, managers + 1);
                double app = 0;
                if (action->m_iCommand >= 0 && action->m_iCommand < managers && numberIn(action->m_strVal1, app))
                    problems.Item(who, QStringLiteral("m_MsgOut(%1).m_strVal1").arg(n),
                               QStringLiteral("video application"), static_cast<int>(app),
                               std::min<int>(c.m_iNAppPerQDM(action->m_iCommand), 8));
            }
            break;
        case 10:
            problems.Device(who, field, QStringLiteral("capture device"), t, std::min<int>(c.m_iNVideoCaps, 4));
            break;
        default:
            break;
        }
        if (!action->m_strMin.isEmpty() && !action->m_strMax.isEmpty())
            checkRange(out, place, who + QStringLiteral("'s"), QStringLiteral("m_MsgOut(%1).m_strMin").arg(n),
                       action->m_strMin, action->m_strMax);
    }
    problems.Report(out, place);
}

CFinding devicePlace(const QString& device)
{
    CFinding f;
    f.m_strDevice = device;
    return f;
}

void countBeyond(std::vector<CFinding>& out, const QString& what, const QString& field, int count, int most)
{
    if (count <= most)
        return;
    out.push_back(finding(CFinding(), Severity::Breaks, FindingKind::Device, field,
                          QStringLiteral("The performance counts %1 %2, but there is room for %3: the files cannot hold "
                                         "them. Lower the count in the device panel.")
                              .arg(count)
                              .arg(what)
                              .arg(most)));
}

} // namespace

void CheckDevices(std::vector<CFinding>& findings)
{
    const CMainConfig& c = gMainConfig;
    countBeyond(findings, QStringLiteral("exoskeletons"), QStringLiteral("m_iNExos"), c.m_iNExos, 2);
    countBeyond(findings, QStringLiteral("joysticks"), QStringLiteral("m_iNTotems"), c.m_iNTotems, 4);
    countBeyond(findings, QStringLiteral("OSC connections"), QStringLiteral("m_iNOSCs"), c.m_iNOSCs, 16);
    countBeyond(findings, QStringLiteral("Arduinos"), QStringLiteral("m_iNArduinos"), c.m_iNArduinos, 16);
    countBeyond(findings, QStringLiteral("display managers"), QStringLiteral("m_iNQDMs"), c.m_iNQDMs, 8);
    countBeyond(findings, QStringLiteral("MIDI devices"), QStringLiteral("m_iNMIDIs"), c.m_iNMIDIs, 8);
    countBeyond(findings, QStringLiteral("Flash players"), QStringLiteral("m_iNFlash"), c.m_iNFlash, 16);
    countBeyond(findings, QStringLiteral("capture devices"), QStringLiteral("m_iNVideoCaps"), c.m_iNVideoCaps, 4);
    countBeyond(findings, QStringLiteral("digital IO cards"), QStringLiteral("gNDigitalIO"), gNDigitalIO, 4);
    for (int i = 0; i < std::clamp<int>(c.m_iNQDMs, 0, 8); ++i)
        if (c.m_iNAppPerQDM(i) > 8)
            findings.push_back(finding(devicePlace(QStringLiteral("Display manager %1").arg(i + 1)), Severity::Breaks,
                                       FindingKind::Device, QStringLiteral("m_iNAppPerQDM"),
                                       QStringLiteral("It counts %1 video applications, but there is room for 8. Set "
                                                      "the display manager up again.")
                                           .arg(c.m_iNAppPerQDM(i))));

    // Rules, and the robot rules that Open does not bring back.
    qint16 s = 0;
    bool talpor = false;
    for (const auto& scene : gScenes) {
        qint16 p = 0;
        for (const auto& part : scene->PartList) {
            int r = 0;
            for (const auto& rule : part->AudioEvents) {
                CFinding place;
                place.m_iScene = s;
                place.m_iPart = p;
                place.m_iRule = ++r;
                checkRuleDevices(findings, *rule, place);
            }
            if (part->BotEvents.Count() > 0) {
                CFinding place;
                place.m_iScene = s;
                place.m_iPart = p;
                findings.push_back(finding(place, Severity::Lost, FindingKind::RobotRules, QStringLiteral("BotEvents"),
                                           QStringLiteral("This subscene has %1 robot rules: a save writes them for the "
                                                          "show, but an Open does not bring them back, and the next save "
                                                          "after an Open writes the robot files empty. Save the show "
                                                          "from this session, or enter them again after every Open.")
                                               .arg(part->BotEvents.Count())));
                for (const auto& bot : part->BotEvents)
                    talpor = talpor || bot->m_iRukaBot == 5;
            }
            ++p;
        }
        ++s;
    }
    int r = 0;
    for (const auto& rule : gGlobalEvents) {
        CFinding place;
        place.m_bGlobal = true;
        place.m_iRule = ++r;
        checkRuleDevices(findings, *rule, place);
    }

    // One COM port, one device.
    std::map<int, QStringList> ports;
    if (c.m_iNExos > 0)
        ports[c.m_iExo1Port] << QStringLiteral("exoskeleton 1");
    if (c.m_iNExos > 1)
        ports[c.m_iExo2Port] << QStringLiteral("exoskeleton 2");
    for (int i = 0; i < std::clamp<int>(c.m_iNArduinos, 0, 16); ++i)
        ports[gArduinoData(i).m_iCOMPort] << QStringLiteral("Arduino %1").arg(i + 1);
    if (talpor)
        ports[c.m_iTalporPort] << QStringLiteral("the Talpor robot");
    for (const auto& [port, devices] : ports)
        if (devices.size() > 1)
            findings.push_back(finding(devicePlace(QStringLiteral("COM%1").arg(port)), Severity::Breaks,
                                       FindingKind::ComPort, QStringLiteral("m_iCOMPort"),
                                       QStringLiteral("COM%1 is given to %2: only one of them can open it at the show. "
                                                      "Give each device its own port.")
                                           .arg(port)
                                           .arg(devices.join(QStringLiteral(" and ")))));

    // One OSC port and address, one connection.
    const int oscs = std::clamp<int>(c.m_iNOSCs, 0, 16);
    for (int i = 0; i < oscs; ++i)
        for (int j = i + 1; j < oscs; ++j)
            if (c.m_iOSCPort(i) >= 0 && c.m_iOSCPort(i) == c.m_iOSCPort(j)
                && c.m_strOSCIP(i).trimmed() == c.m_strOSCIP(j).trimmed())
                findings.push_back(finding(devicePlace(QStringLiteral("OSC connection %1").arg(j + 1)), Severity::Breaks,
                                           FindingKind::OscPort, QStringLiteral("m_iOSCPort"),
                                           QStringLiteral("OSC connections %1 and %2 both use port %3 at %4: the show "
                                                          "cannot tell them apart. Give one another port or address.")
                                               .arg(i + 1)
                                               .arg(j + 1)
                                               .arg(c.m_iOSCPort(i))
                                               .arg(c.m_strOSCIP(i))));

    // Minimums above their maximums in the device tables.
    for (int e = 0; e < std::clamp<int>(c.m_iNExos, 0, 2); ++e)
        for (int row = 0; row < kExoRows; ++row)
            if (gExoData(e).m_iMin(row) > gExoData(e).m_iMax(row))
                findings.push_back(finding(devicePlace(QStringLiteral("Exoskeleton %1").arg(e + 1)), Severity::Look,
                                           FindingKind::MinMax, QStringLiteral("m_iMin"),
                                           QStringLiteral("Sensor row %1 (%2) has its minimum %3 above its maximum %4. "
                                                          "Calibrate the suit again.")
                                               .arg(row)
                                               .arg(gExoSensorLabels(row))
                                               .arg(gExoData(e).m_iMin(row))
                                               .arg(gExoData(e).m_iMax(row))));
    for (int a = 0; a < std::clamp<int>(c.m_iNArduinos, 0, 16); ++a) {
        const CArduinoData& d = gArduinoData(a);
        for (int i = 0; i < std::clamp<int>(d.m_iNumAnalogInputs, 0, 32); ++i)
            if (d.m_iMin(i) > d.m_iMax(i))
                findings.push_back(finding(devicePlace(QStringLiteral("Arduino %1").arg(a + 1)), Severity::Look,
                                           FindingKind::MinMax, QStringLiteral("m_iMin"),
                                           QStringLiteral("Analog input %1 has its minimum %2 above its maximum %3. Set "
                                                          "the board up again.")
                                               .arg(i)
                                               .arg(d.m_iMin(i))
                                               .arg(d.m_iMax(i))));
    }
}
