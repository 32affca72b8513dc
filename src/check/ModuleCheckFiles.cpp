// The performance written into a scratch folder by the program's writers and
// read back by its readers, file by file, and compared with what each line was
// meant to carry. The rules file is the exception: each rule's block is read
// back on its own (ModuleCheckRules.cpp), which also tells which rule broke.
#include "check/ModuleCheck.h"
#include <algorithm>
#include <QTemporaryDir>
#include "check/CheckTexts.h"
#include "files/ModuleArduinoData.h"
#include "files/ModuleBotEvents.h"
#include "files/ModuleConfig.h"
#include "files/ModuleExoData.h"
#include "files/ModuleSaveOpen.h"
#include "files/ModuleScenes.h"
#include "files/ModuleVideoCapture.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/ModuleGUI.h"
#include "support/Platform.h"
#include "support/RuntimeError.h"

namespace {

// The values of one file in the order of its lines.
class Entries {
public:
    struct Entry {
        QString name;
        QString field;
        QString value;
        bool text;
        QChar separator;
        CFinding place;
    };
    std::vector<Entry> list;
    CFinding place;

    void Text(const QString& name, const QString& field, const QString& value, QChar separator = QChar())
    {
        list.push_back({name, field, value, true, separator, place});
    }
    void Number(const QString& name, const QString& field, qint64 value)
    {
        list.push_back({name, field, QString::number(value), false, QChar(), place});
    }
};

CFinding devicePlace(const QString& device)
{
    CFinding f;
    f.m_strDevice = device;
    return f;
}

int within(int count, int size) { return std::clamp(count, 0, size); }

// The stored fields of the main record and its tables. `meant` applies the
// changes the file makes by design.
Entries configEntries(bool meant)
{
    const CMainConfig& c = gMainConfig;
    Entries e;
    e.Text(QStringLiteral("title"), QStringLiteral("m_strName"), c.m_strName);
    e.Number(QStringLiteral("number of exoskeletons"), QStringLiteral("m_iNExos"), c.m_iNExos);
    e.Number(QStringLiteral("number of joysticks"), QStringLiteral("m_iNTotems"), c.m_iNTotems);
    for (int i = 0; i < within(c.m_iNTotems, 4); ++i) {
        e.place = devicePlace(QStringLiteral("Joystick %1").arg(i + 1));
        e.Number(QStringLiteral("number of axes"), QStringLiteral("gTotemAxes"), gTotemAxes(i));
        e.Number(QStringLiteral("number of buttons"), QStringLiteral("gTotemButtons"), gTotemButtons(i));
    }
    e.place = CFinding();
    e.Number(QStringLiteral("number of OSC connections"), QStringLiteral("m_iNOSCs"), c.m_iNOSCs);
    for (int i = 0; i < within(c.m_iNOSCs, 16); ++i) {
        e.place = devicePlace(QStringLiteral("OSC connection %1").arg(i + 1));
        e.Text(QStringLiteral("label"), QStringLiteral("m_strOSCPortLabel"), c.m_strOSCPortLabel(i));
        e.Text(QStringLiteral("address"), QStringLiteral("m_strOSCIP"), c.m_strOSCIP(i));
        e.Number(QStringLiteral("port"), QStringLiteral("m_iOSCPort"), c.m_iOSCPort(i));
        e.Number(QStringLiteral("direction"), QStringLiteral("m_iOSCPortInOut"), c.m_iOSCPortInOut(i));
    }
    e.place = CFinding();
    e.Number(QStringLiteral("number of Arduinos"), QStringLiteral("m_iNArduinos"), c.m_iNArduinos);
    e.Number(QStringLiteral("number of display managers"), QStringLiteral("m_iNQDMs"), c.m_iNQDMs);
    e.Number(QStringLiteral("number of MIDI devices"), QStringLiteral("m_iNMIDIs"), c.m_iNMIDIs);
    e.Number(QStringLiteral("number of Flash players"), QStringLiteral("m_iNFlash"), c.m_iNFlash);
    e.Number(QStringLiteral("number of capture devices"), QStringLiteral("m_iNVideoCaps"), c.m_iNVideoCaps);
    if (c.m_iNExos > 0)
        e.Number(QStringLiteral("COM port of exoskeleton 1"), QStringLiteral("m_iExo1Port"), c.m_iExo1Port);
    if (c.m_iNExos > 1)
        e.Number(QStringLiteral("COM port of exoskeleton 2"), QStringLiteral("m_iExo2Port"), c.m_iExo2Port);
    e.Number(QStringLiteral("COM port of the Talpor robot"), QStringLiteral("m_iTalporPort"), c.m_iTalporPort);
    for (int i = 0; i < within(c.m_iNMIDIs, 8); ++i) {
        if (c.m_iMIDIPort(i) < 0)
            continue;   // an absent device: written as "-1", "0", "---" by design
        e.place = devicePlace(QStringLiteral("MIDI device %1").arg(i + 1));
        e.Number(QStringLiteral("port"), QStringLiteral("m_iMIDIPort"), c.m_iMIDIPort(i));
        e.Number(QStringLiteral("direction"), QStringLiteral("m_iPortInOut"), c.m_iPortInOut(i));
        const QString label = c.m_strMIDIPortLabel(i);
        e.Text(QStringLiteral("label"), QStringLiteral("m_strMIDIPortLabel"),
               meant && label == QStringLiteral("---") ? QString() : label);
    }
    e.place = CFinding();
    e.Number(QStringLiteral("Flash port"), QStringLiteral("m_iFlashPort"), c.m_iFlashPort);
    e.Number(QStringLiteral("display manager port"), QStringLiteral("m_iQDMPort"), c.m_iQDMPort);
    for (int i = 0; i < within(c.m_iNTotems, 5); ++i)
        e.Number(QStringLiteral("system joystick of joystick %1").arg(i + 1), QStringLiteral("m_iTotemDevice"),
                 c.m_iTotemDevice(i));
    e.Number(QStringLiteral("movie width"), QStringLiteral("m_iMovieWidth"), c.m_iMovieWidth);
    e.Number(QStringLiteral("movie height"), QStringLiteral("m_iMovieHeight"), c.m_iMovieHeight);
    e.Text(QStringLiteral("control machine address"), QStringLiteral("m_strLocalIPAddress"), c.m_strLocalIPAddress);
    e.Number(QStringLiteral("number of digital IO cards"), QStringLiteral("gNDigitalIO"), gNDigitalIO);
    for (int i = 0; i < within(gNDigitalIO, 4); ++i) {
        e.place = devicePlace(QStringLiteral("Digital IO card %1").arg(i + 1));
        e.Number(QStringLiteral("card ID"), QStringLiteral("gDigitalIOCardID"), gDigitalIOCardID(i));
        e.Number(QStringLiteral("number of inputs"), QStringLiteral("gDigitalIONIn"), gDigitalIONIn(i));
        e.Number(QStringLiteral("number of outputs"), QStringLiteral("gDigitalIONOut"), gDigitalIONOut(i));
    }
    e.place = CFinding();
    e.Number(QStringLiteral("background colour"), QStringLiteral("m_lBkColor"), c.m_lBkColor);
    for (int i = 0; i < within(c.m_iNFlash, 16); ++i) {
        e.place = devicePlace(QStringLiteral("Flash player %1").arg(i + 1));
        e.Text(QStringLiteral("folder"), QStringLiteral("m_strFlashFolderPath"), c.m_strFlashFolderPath(i));
    }
    const int managers = within(c.m_iNQDMs, 8);
    for (int i = 0; i < managers; ++i) {
        e.place = devicePlace(QStringLiteral("Display manager %1").arg(i + 1));
        e.Text(QStringLiteral("remote path"), QStringLiteral("m_strDisplayManagerPath"), c.m_strDisplayManagerPath(i));
    }
    for (int i = 0; i < managers; ++i) {
        e.place = devicePlace(QStringLiteral("Display manager %1").arg(i + 1));
        e.Number(QStringLiteral("number of video applications"), QStringLiteral("m_iNAppPerQDM"), c.m_iNAppPerQDM(i));
    }
    const struct {
        const char* name;
        const char* field;
        const CheckedArray2<QString, 0, 7, 0, 7>* table;
    } tables[] = {{"label", "m_strVideoAppLabel", &c.m_strVideoAppLabel},
                  {"window name", "m_strVideoAppWindow", &c.m_strVideoAppWindow},
                  {"path", "m_strVideoAppPath", &c.m_strVideoAppPath}};
    for (const auto& t : tables)
        for (int i = 0; i < managers; ++i)
            for (int j = 0; j < within(c.m_iNAppPerQDM(i), 8); ++j) {
                e.place = devicePlace(QStringLiteral("Display manager %1").arg(i + 1));
                e.Text(QStringLiteral("video application %1's %2").arg(j + 1).arg(QLatin1String(t.name)),
                       QLatin1String(t.field), (*t.table)(i, j));
            }
    for (int i = 0; i < managers; ++i)
        for (int j = 0; j < within(c.m_iNAppPerQDM(i), 8); ++j) {
            e.place = devicePlace(QStringLiteral("Display manager %1").arg(i + 1));
            e.Number(QStringLiteral("video application %1's launch flag").arg(j + 1), QStringLiteral("m_bVideoAppLaunch"),
                     c.m_bVideoAppLaunch(i, j) ? 1 : 0);
        }
    e.place = CFinding();
    e.Number(QStringLiteral("value events per second"), QStringLiteral("m_iEventsPerSec"), c.m_iEventsPerSec);
    return e;
}

// Scenes and subscenes as Scenes.cfg holds them.
Entries sceneEntries(bool meant)
{
    Entries e;
    e.Number(QStringLiteral("number of scenes"), QStringLiteral("gScenes"), gScenes.Count());
    qint16 s = 0;
    for (const auto& scene : gScenes) {
        e.place = CFinding();
        e.place.m_iScene = s;
        e.Number(QStringLiteral("scene ID"), QStringLiteral("m_iID"), scene->m_iID);
        e.Text(QStringLiteral("scene name"), QStringLiteral("m_strName"), scene->m_strName);
        e.Number(QStringLiteral("scene colour"), QStringLiteral("m_iColor"), scene->m_iColor);
        e.Text(QStringLiteral("scene remarks"), QStringLiteral("m_strRemarks"), scene->m_strRemarks);
        for (int j = 0; j < within(gMainConfig.m_iNFlash, 16); ++j)
            e.Text(QStringLiteral("movie of Flash player %1").arg(j + 1), QStringLiteral("m_strMovie"), scene->m_strMovie(j));
        e.Number(QStringLiteral("number of subscenes"), QStringLiteral("m_iNumParts"), scene->m_iNumParts);
        qint16 p = 0;
        for (const auto& part : scene->PartList) {
            if (p >= scene->m_iNumParts)
                break;
            e.place.m_iPart = p++;
            e.Number(QStringLiteral("subscene ID"), QStringLiteral("m_iID"), part->m_iID);
            e.Text(QStringLiteral("subscene name"), QStringLiteral("m_strName"),
                   meant ? part->m_strName.trimmed() : part->m_strName);
            e.Text(QStringLiteral("subscene remarks"), QStringLiteral("m_strRemarks"),
                   meant ? part->m_strRemarks.trimmed() : part->m_strRemarks);
        }
        ++s;
    }
    return e;
}

Entries exoEntries(int index)
{
    const CExoData& d = gExoData(index);
    Entries e;
    e.place = devicePlace(QStringLiteral("Exoskeleton %1").arg(index + 1));
    e.Number(QStringLiteral("ID"), QStringLiteral("m_iID"), d.m_iID);
    for (int row = 0; row < kExoRows; ++row) {
        const QString who = QStringLiteral("row %1 (%2) ").arg(row).arg(gExoSensorLabels(row));
        e.Number(who + QStringLiteral("channel"), QStringLiteral("m_iChannel"), d.m_iChannel(row));
        e.Number(who + QStringLiteral("type"), QStringLiteral("m_iType"), d.m_iType(row));
        e.Text(who + QStringLiteral("item"), QStringLiteral("m_strItem"), d.m_strItem(row), u',');
        e.Number(who + QStringLiteral("minimum"), QStringLiteral("m_iMin"), d.m_iMin(row));
        e.Number(who + QStringLiteral("maximum"), QStringLiteral("m_iMax"), d.m_iMax(row));
    }
    return e;
}

Entries arduinoEntries(int index)
{
    const CArduinoData& d = gArduinoData(index);
    Entries e;
    e.place = devicePlace(QStringLiteral("Arduino %1").arg(index + 1));
    e.Text(QStringLiteral("label"), QStringLiteral("m_strLabel"), d.m_strLabel);
    e.Number(QStringLiteral("COM port"), QStringLiteral("m_iCOMPort"), d.m_iCOMPort);
    e.Number(QStringLiteral("number of analog inputs"), QStringLiteral("m_iNumAnalogInputs"), d.m_iNumAnalogInputs);
    e.Number(QStringLiteral("number of digital connections"), QStringLiteral("m_iNumDigitalIOs"), d.m_iNumDigitalIOs);
    for (int i = 0; i < within(d.m_iNumAnalogInputs, 32); ++i) {
        e.Number(QStringLiteral("analog input %1's minimum").arg(i), QStringLiteral("m_iMin"), d.m_iMin(i));
        e.Number(QStringLiteral("analog input %1's maximum").arg(i), QStringLiteral("m_iMax"), d.m_iMax(i));
    }
    for (int i = 0; i < within(d.m_iNumDigitalIOs, 96); ++i)
        e.Number(QStringLiteral("digital connection %1's direction").arg(i), QStringLiteral("m_iDigitalType"),
                 d.m_iDigitalType(i));
    return e;
}

Entries captureEntries(bool meant)
{
    Entries e;
    qint16 s = 0;
    for (const auto& scene : gScenes) {
        qint16 p = 0;
        for (const auto& part : scene->PartList) {
            if (p >= scene->m_iNumParts)
                break;
            for (int d = 0; d < within(gMainConfig.m_iNVideoCaps, 4); ++d) {
                e.place = devicePlace(QStringLiteral("Capture device %1").arg(d + 1));
                e.place.m_iScene = s;
                e.place.m_iPart = p;
                const auto& cap = part->m_VideoCapture(d);
                if (!cap)
                    continue;
                e.Number(QStringLiteral("frames per second"), QStringLiteral("m_iFPS"), cap->m_iFPS);
                e.Number(QStringLiteral("quality"), QStringLiteral("m_iQuality"), cap->m_iQuality);
                e.Text(QStringLiteral("root folder"), QStringLiteral("m_strRootFolder"),
                       meant ? cap->m_strRootFolder.trimmed() : cap->m_strRootFolder, u',');
                e.Number(QStringLiteral("number of folders"), QStringLiteral("m_iNumFolders"), cap->m_iNumFolders);
                e.Number(QStringLiteral("longest capture"), QStringLiteral("m_iMaxTime"), cap->m_iMaxTime);
            }
            ++p;
        }
        ++s;
    }
    return e;
}

void compareEntries(const Entries& meant, const Entries& read, bool readOk, const QString& file,
                    std::vector<CFinding>& findings)
{
    std::vector<CheckedText> texts;
    for (const auto& m : meant.list)
        if (m.text)
            texts.push_back({m.name, m.field, m.value, m.separator, m.place, true});
    std::vector<ValueDifference> differences;
    const size_t n = std::max(meant.list.size(), read.list.size());
    for (size_t i = 0; i < n; ++i) {
        const auto* m = i < meant.list.size() ? &meant.list[i] : nullptr;
        const auto* r = i < read.list.size() ? &read.list[i] : nullptr;
        if (!m)
            break;   // more came back than was meant: the first difference says why
        const QString back = r ? r->value : QString();
        if (r && r->field == m->field && back == m->value)
            continue;
        differences.push_back({m->name, m->field, m->value, back, m->text, QString(), FindingKind::Changed, m->place, true});
        if (!r || r->field != m->field)
            break;   // the lists no longer line up
    }
    if (!readOk && differences.size() > 1)
        differences.resize(1);   // what follows the first difference was never read
    ReportDifferences(texts, differences, readOk, meant.place, file, findings);
}

bool succeeds(const std::function<bool()>& step)
{
    try {
        return step();
    } catch (const RuntimeError&) {
        return false;
    }
}

void writeFails(std::vector<CFinding>& findings, const QString& device, const QString& file, const QString& why)
{
    CFinding f = devicePlace(device);
    f.m_severity = Severity::Breaks;
    f.m_kind = FindingKind::WriteFails;
    f.m_strText = QStringLiteral("%1 cannot be written: %2").arg(file, why);
    findings.push_back(f);
}

} // namespace

void CheckFilesRoundTrip(std::vector<CFinding>& findings, bool rulesAlreadyBreak)
{
    CMainConfig& cfg = gMainConfig;
    const int exos = within(cfg.m_iNExos, 2);
    const int arduinos = within(cfg.m_iNArduinos, 16);

    // What each file is meant to carry, taken before the writers run.
    const Entries meantConfig = configEntries(true);
    const Entries meantScenes = sceneEntries(true);
    const Entries meantCapture = captureEntries(true);
    std::vector<Entries> meantExo, meantArduino;
    for (int i = 0; i < exos; ++i)
        meantExo.push_back(exoEntries(i));
    for (int i = 0; i < arduinos; ++i)
        meantArduino.push_back(arduinoEntries(i));
    std::vector<std::vector<int>> meantCounts;
    for (const auto& scene : gScenes) {
        meantCounts.emplace_back();
        for (const auto& part : scene->PartList)
            meantCounts.back().push_back(part->AudioEvents.Count());
    }
    const int meantGlobals = gGlobalEvents.Count();
    const qint16 maxEvents = gMaxEventsPerPart;
    const auto axes = gTotemAxes;
    const auto buttons = gTotemButtons;
    const qint32 cards = gNDigitalIO;
    const auto cardIDs = gDigitalIOCardID;
    const auto cardIns = gDigitalIONIn;
    const auto cardOuts = gDigitalIONOut;

    QTemporaryDir scratch;
    if (!scratch.isValid())
        return;
    gConfigFolder = QDir::toNativeSeparators(scratch.path()) + PathSeparator();
    gConfigName = QStringLiteral("Check");
    MakeDirectory(gConfigFolder + gConfigName);
    const QString mainFile = gConfigFolder + gConfigName + QStringLiteral(".qel");

    // Writing, in the order of a save.
    const QString exoDevice = QStringLiteral("Exoskeleton %1"), ardDevice = QStringLiteral("Arduino %1");
    if (!succeeds([&] { return WriteMainConfigFile(mainFile); }))
        writeFails(findings, QString(), QStringLiteral("The main file"),
                   QStringLiteral("a device count is beyond its table. Lower the count."));
    const CMainConfig written = cfg;
    if (!succeeds([&] { return WriteScenesFile(PerformanceFilePath(cfg.m_strScenesFile)); }))
        writeFails(findings, QString(), QStringLiteral("The scenes file"),
                   QStringLiteral("a scene's subscene count disagrees with its subscenes."));
    std::vector<bool> exoWritten(exos, true), ardWritten(arduinos, true);
    for (int i = 0; i < exos; ++i)
        if (!(exoWritten[i] = succeeds([&] { return WriteExoDataFile(qint16(i), PerformanceFilePath(cfg.m_strExoDataFile(i))); })))
            writeFails(findings, exoDevice.arg(i + 1), QStringLiteral("Its data file"),
                       QStringLiteral("a sensor row has a type outside RANGO, ONOFF, DOBLE and SELEC. Calibrate the suit again."));
    for (int i = 0; i < arduinos; ++i)
        if (!(ardWritten[i] = succeeds([&] { return WriteArduinoDataFile(qint16(i), PerformanceFilePath(cfg.m_strArdDataFile(i))); })))
            writeFails(findings, ardDevice.arg(i + 1), QStringLiteral("Its data file"),
                       QStringLiteral("a digital connection has a direction other than PWM, input or output, or a count "
                                      "is beyond its table. Set the board up again."));
    if (!succeeds([&] { return WriteVideoCaptureFile(PerformanceFilePath(QStringLiteral("VideoCapture.cfg"))); }))
        writeFails(findings, QString(), QStringLiteral("The capture settings file"), QStringLiteral("a setting cannot be put into text."));
    if (!succeeds([&] { return WriteGlobalEventsFile(PerformanceFilePath(QStringLiteral("GlobalEvents.cfg"))); })
        && !rulesAlreadyBreak)
        writeFails(findings, QString(), QStringLiteral("The global rules file"), QStringLiteral("a rule cannot be put into text."));

    // Reading back, file by file; no message box is shown.
    MessageCapture messages;
    const bool configOk = succeeds([&] { return ReadMainConfigFile(mainFile); });
    compareEntries(meantConfig, configEntries(false), configOk, QStringLiteral("main file"), findings);
    // The rest is read with the counts and names as written.
    cfg = written;
    gTotemAxes = axes;
    gTotemButtons = buttons;
    gNDigitalIO = cards;
    gDigitalIOCardID = cardIDs;
    gDigitalIONIn = cardIns;
    gDigitalIONOut = cardOuts;

    for (int i = 0; i < arduinos; ++i) {
        if (!ardWritten[i])
            continue;
        const bool ok = succeeds([&] { return ReadArduinoDataFile(qint16(i), PerformanceFilePath(cfg.m_strArdDataFile(i))); });
        compareEntries(meantArduino[i], arduinoEntries(i), ok, QStringLiteral("data file of Arduino %1").arg(i + 1), findings);
    }
    for (int i = 0; i < exos; ++i) {
        if (!exoWritten[i])
            continue;
        const bool ok = succeeds([&] { return ReadExoDataFile(qint16(i), PerformanceFilePath(cfg.m_strExoDataFile(i))); });
        compareEntries(meantExo[i], exoEntries(i), ok, QStringLiteral("data file of exoskeleton %1").arg(i + 1), findings);
    }

    gLastScene = -1;
    gScenes.Clear();
    const bool scenesOk = succeeds([&] { return ReadScenesFile(PerformanceFilePath(cfg.m_strScenesFile)); });
    compareEntries(meantScenes, sceneEntries(false), scenesOk, QStringLiteral("scenes file"), findings);
    if (!scenesOk)
        return;

    // The rules of the subscenes: each block was read back on its own
    // (CheckRuleBlocks); what the rules file leaves out is what lies beyond
    // the highest count that it carries.
    for (size_t s = 0; s < meantCounts.size(); ++s)
        for (size_t p = 0; p < meantCounts[s].size(); ++p) {
            const int meant = meantCounts[s][p];
            if (meant <= std::max<int>(maxEvents, 0))
                continue;
            const int first = std::max<int>(maxEvents, 0) + 1;
            CFinding f;
            f.m_iScene = static_cast<qint16>(s);
            f.m_iPart = static_cast<qint16>(p);
            f.m_iRule = first;
            f.m_severity = Severity::Lost;
            f.m_kind = FindingKind::Dropped;
            f.m_strField = QStringLiteral("gMaxEventsPerPart");
            f.m_strText = QStringLiteral("Rules %1 to %2 of this subscene are beyond the %3 rules a subscene may have "
                                         "in the rules file: they are not written, and they are gone after the next "
                                         "Open. Adding a rule to this subscene raises that limit.")
                              .arg(first)
                              .arg(meant)
                              .arg(first - 1);
            findings.push_back(f);
        }
    const bool globalsOk = succeeds([&] { return ReadGlobalEventsFile(PerformanceFilePath(QStringLiteral("GlobalEvents.cfg"))); });
    if (globalsOk && gGlobalEvents.Count() != meantGlobals && !rulesAlreadyBreak) {
        CFinding f;
        f.m_severity = Severity::Lost;
        f.m_kind = FindingKind::Changed;
        f.m_strText = QStringLiteral("The global rules file holds %1 rules, and %2 come back at the next Open.")
                          .arg(meantGlobals)
                          .arg(gGlobalEvents.Count());
        findings.push_back(f);
    }
    if (!globalsOk && !rulesAlreadyBreak) {
        CFinding f;
        f.m_severity = Severity::Breaks;
        f.m_kind = FindingKind::ReadFails;
        f.m_strText = QStringLiteral("The global rules file cannot be read back, and the Open stops there.");
        findings.push_back(f);
    }

    const bool captureOk = succeeds([&] { return ReadVideoCaptureFile(PerformanceFilePath(QStringLiteral("VideoCapture.cfg"))); });
    compareEntries(meantCapture, captureEntries(false), captureOk, QStringLiteral("capture settings file"), findings);
}
