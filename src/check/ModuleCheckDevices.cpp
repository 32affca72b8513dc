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

// Who in a rule: "source", or "action 2".
QString whoIn(int action)
{
    return action == 0 ? QStringLiteral("source") : QStringLiteral("action ") + QString::number(action);
}

// The record field of the rule or of its action `action` (1-based; 0 for the rule).
QString fieldIn(int action, const char* member)
{
    if (action == 0)
        return QLatin1String(member);
    return QStringLiteral("m_MsgOut(") + QString::number(action) + QStringLiteral(").") + QLatin1String(member);
}

// What one rule names beyond what is configured, put together into one finding
// per rule (a performance can have one for every action). The texts are only
// made for what is reported.
struct Problems {
    struct Problem {
        int action;           // 1-based; 0 for the source
        const char* member;   // the record field
        const char* what;     // "MIDI device", "pin"
        int number;
        int count;
        bool device;          // a device beyond the count, else an item beyond its device
    };
    std::vector<Problem> list;

    // `number` (0-based) not below `count`: "action 1 names Arduino 3, but the performance has 2".
    void Device(int action, const char* member, const char* device, int number, int count)
    {
        if (number < 0 || number >= count)
            list.push_back({action, member, device, number, count, true});
    }
    // `item` not from 0 to `count` - 1: "source names pin 12, but they run from 0 to 11".
    void Item(int action, const char* member, const char* what, int item, int count)
    {
        if (item < 0 || item >= count)
            list.push_back({action, member, what, item, count, false});
    }

    static QString phrase(const Problem& p)
    {
        if (p.device)
            return whoIn(p.action) + QStringLiteral(" names ") + QLatin1String(p.what) + u' '
                + QString::number(p.number + 1) + QStringLiteral(", but the performance has ")
                + QString::number(std::max(p.count, 0));
        return whoIn(p.action) + QStringLiteral(" names ") + QLatin1String(p.what) + u' ' + QString::number(p.number)
            + QStringLiteral(", but ")
            + (p.count > 0 ? QStringLiteral("they run from 0 to ") + QString::number(p.count - 1)
                           : QStringLiteral("there are none"));
    }

    void Report(std::vector<CFinding>& out, const CFinding& place) const
    {
        if (list.empty())
            return;
        QString text = QStringLiteral("The ") + phrase(list.front());
        for (size_t i = 1; i < list.size(); ++i)
            text += QStringLiteral("; the ") + phrase(list[i]);
        if (list.size() > 1)
            text += QStringLiteral(". Choose them again in the rule editor, or raise the counts in the device panel.");
        else if (list.front().device)
            text += QStringLiteral(". Choose another in the rule editor, or raise the count in the device panel.");
        else
            text += QStringLiteral(". Choose it again in the rule editor, or set the device up again.");
        out.push_back(finding(place, Severity::Breaks, FindingKind::Device,
                              fieldIn(list.front().action, list.front().member), text));
    }
};

// A number in text, or nothing.
bool numberIn(const QString& text, double& value)
{
    const QStringView trimmed = QStringView(text).trimmed();
    bool ok = false;
    value = trimmed.isEmpty() ? 0 : trimmed.toDouble(&ok);
    return ok;
}

void checkRange(std::vector<CFinding>& out, const CFinding& place, int action, const QString& min, const QString& max)
{
    double lo = 0, hi = 0;
    if (numberIn(min, lo) && numberIn(max, hi) && lo > hi)
        out.push_back(finding(place, Severity::Look, FindingKind::MinMax, fieldIn(action, "m_strMin"),
                              QStringLiteral("The %1 minimum %2 is above its maximum %3. Swap them if that is not meant.")
                                  .arg(action == 0 ? whoIn(0) : whoIn(action) + QStringLiteral("'s"), min.trimmed(),
                                       max.trimmed())));
}

void checkRuleDevices(std::vector<CFinding>& out, const CEvent& rule, const CFinding& place)
{
    const CMainConfig& c = gMainConfig;
    Problems problems;
    const qint16 src = rule.m_iSource;
    switch (rule.m_iSourceType) {
    case 1:
        problems.Device(0, "m_iSource", "exoskeleton", src, std::min<int>(c.m_iNExos, 2));
        problems.Item(0, "m_iItem", "suit item", rule.m_iItem, 37);
        break;
    case 2:
        problems.Device(0, "m_iSource", "joystick", src, std::min<int>(c.m_iNTotems, 4));
        if (src >= 0 && src < std::min<int>(c.m_iNTotems, 4))
            problems.Item(0, "m_iItem", "axis or button item", rule.m_iItem, gTotemAxes(src) + gTotemButtons(src));
        break;
    case 3:
        // The number of players itself stands for all players.
        problems.Device(0, "m_iSource", "Flash player", src, std::min<int>(c.m_iNFlash, 16) + 1);
        break;
    case 5:
        problems.Device(0, "m_iSource", "digital IO card", src, std::min<int>(gNDigitalIO, 4));
        if (src >= 0 && src < std::min<int>(gNDigitalIO, 4))
            problems.Item(0, "m_iItem", "input", rule.m_iItem, gDigitalIONIn(src));
        break;
    case 6:
        problems.Device(0, "m_iSource", "MIDI device", src, std::min<int>(c.m_iNMIDIs, 8));
        break;
    case 7:
        problems.Device(0, "m_iSource", "Arduino", src, std::min<int>(c.m_iNArduinos, 16));
        if (src >= 0 && src < std::min<int>(c.m_iNArduinos, 16)) {
            const CArduinoData& a = gArduinoData(src);
            problems.Item(0, "m_iItem", "pin", rule.m_iItem, a.m_iNumAnalogInputs + a.m_iNumDigitalIOs);
        }
        break;
    case 8:
        problems.Device(0, "m_iSource", "OSC connection", src, std::min<int>(c.m_iNOSCs, 16));
        break;
    default:
        break;
    }
    checkRange(out, place, 0, rule.m_strMin, rule.m_strMax);
    int n = 0;
    if (rule.m_MsgOut)
        for (const auto& action : *rule.m_MsgOut) {
            ++n;
            const qint16 t = action->m_iTarget;
            switch (action->m_iTargetType) {
            case 3:
                problems.Device(n, "m_iTarget", "Flash player", t, std::min<int>(c.m_iNFlash, 16) + 1);
                break;
            case 6:
                problems.Device(n, "m_iTarget", "MIDI device", t, std::min<int>(c.m_iNMIDIs, 8));
                break;
            case 7:
                problems.Device(n, "m_iTarget", "Arduino", t, std::min<int>(c.m_iNArduinos, 16));
                if (t >= 0 && t < std::min<int>(c.m_iNArduinos, 16)) {
                    const CArduinoData& a = gArduinoData(t);
                    problems.Item(n, "m_iCommand", "pin", action->m_iCommand, a.m_iNumAnalogInputs + a.m_iNumDigitalIOs);
                }
                break;
            case 8:
                problems.Device(n, "m_iTarget", "OSC connection", t, std::min<int>(c.m_iNOSCs, 16));
                break;
            case 9:
                // "Switch Player To App": the command is the display manager, the
                // manager count itself stands for all of them; the first value the application.
                if (t == 2) {
                    const int managers = std::min<int>(c.m_iNQDMs, 8);
                    problems.Device(n, "m_iCommand", "display manager", action->m_iCommand, managers + 1);
                    double app = 0;
                    if (action->m_iCommand >= 0 && action->m_iCommand < managers && numberIn(action->m_strVal1, app))
                        problems.Item(n, "m_strVal1", "video application", static_cast<int>(app),
                                      std::min<int>(c.m_iNAppPerQDM(action->m_iCommand), 8));
                }
                break;
            case 10:
                problems.Device(n, "m_iTarget", "capture device", t, std::min<int>(c.m_iNVideoCaps, 4));
                break;
            default:
                break;
            }
            checkRange(out, place, n, action->m_strMin, action->m_strMax);
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
