#include "files/ModuleConfig.h"
#include <exception>
#include <memory>
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Convert.h"
#include "support/NumberFormat.h"
#include "support/NumberText.h"
#include "support/TextFile.h"

namespace {

// A forward-only cursor over the lines of the main file. Besides whole lines it
// offers the field read that stops at a comma: the rest of such a line is what
// the next read returns.
class LineCursor {
public:
    explicit LineCursor(const QString& path) : m_file(path) {}

    QString line()
    {
        if (m_hasRest) {
            m_hasRest = false;
            return m_rest;
        }
        return m_file.LineInput();
    }
    void skip(int n)
    {
        for (int i = 0; i < n; ++i)
            line();
    }
    qint16 integer() { return ToInteger(line()); }
    QString field()
    {
        const QString text = line();
        const qsizetype comma = text.indexOf(u',');
        if (comma < 0)
            return text;
        m_rest = text.mid(comma + 1);
        m_hasRest = true;
        return text.left(comma);
    }

private:
    TextFileReader m_file;
    QString m_rest;
    bool m_hasRest = false;
};

QString blanksTrimmed(const QString& text)
{
    qsizetype b = 0, e = text.size();
    while (b < e && text[b] == u' ') ++b;
    while (e > b && text[e - 1] == u' ') --e;
    return text.mid(b, e - b);
}

QString digits(qint64 n) { return QString::number(n); }

void assignFileNames(CMainConfig& c)
{
    c.m_strScenesFile = QStringLiteral("Scenes.cfg");
    c.m_strScenesFilenames = QStringLiteral("Scenes.txt");
    c.m_strMovieLoadsFile = QStringLiteral("Movies.cfg");
    c.m_strMovieEventsFile = QStringLiteral("FlashEvents.cfg");
    c.m_strAudioEventsFile = QStringLiteral("MIDIEvents.cfg");
    c.m_strAudioEventsInFile = QStringLiteral("MIDIEventsIn.cfg");
    c.m_strLightsEventsFile = QStringLiteral("LightsEvents.cfg");
    c.m_strRukaBotsFile = QStringLiteral("BotsEvents.cfg");
    c.m_strEventsFile = QStringLiteral("Events.cfg");
    c.m_strTalporFile = QStringLiteral("Talpor.cfg");
    c.m_strVilnaFile = QStringLiteral("Vilna.cfg");
    c.m_strLightsSetupFile = QStringLiteral("LightsSetup.cfg");
    for (int i = 1; i <= c.m_iNExos; ++i)
        c.m_strExoDataFile(i - 1) = QStringLiteral("Exo") + Format(i, QStringLiteral("#")) + QStringLiteral(".cfg");
    for (int i = 1; i <= c.m_iNArduinos; ++i)
        c.m_strArdDataFile(i - 1) = QStringLiteral("Arduino") + Format(i, QStringLiteral("#")) + QStringLiteral(".cfg");
}

void writeBody(TextFileWriter& f, const CMainConfig& c)
{
    const QString rule = QStringLiteral(";-----------------------------");
    f.PrintLine(rule);
    f.PrintLine(QStringLiteral("; QEL Main Configuration File"));
    f.PrintLine(rule);
    f.PrintLine();
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Title:"));
    f.PrintLine(c.m_strName);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of Exoskeletons:"));
    f.PrintNumber(c.m_iNExos);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of Totems:"));
    f.PrintNumber(c.m_iNTotems);
    for (int i = 0; i < c.m_iNTotems; ++i) {
        f.PrintLine(QStringLiteral("A") + digits(gTotemAxes(i)));
        f.PrintLine(QStringLiteral("B") + digits(gTotemButtons(i)));
    }
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of OSC connections:"));
    f.PrintNumber(c.m_iNOSCs);
    f.PrintLine();
    for (int i = 0; i < c.m_iNOSCs; ++i) {
        f.PrintLine(c.m_strOSCPortLabel(i));
        f.PrintLine(c.m_strOSCIP(i));
        f.PrintNumber(c.m_iOSCPort(i));
        f.PrintNumber(c.m_iOSCPortInOut(i));
    }
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of Arduinos:"));
    f.PrintNumber(c.m_iNArduinos);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of QEL Display Manager:"));
    f.PrintNumber(c.m_iNQDMs);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of MIDI devices:"));
    f.PrintNumber(c.m_iNMIDIs);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of Flash apps:"));
    f.PrintNumber(c.m_iNFlash);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of video capture devices:"));
    f.PrintNumber(c.m_iNVideoCaps);
    f.PrintLine();
    if (c.m_iNExos > 0) {
        f.PrintLine(QStringLiteral("; Exoskeleton 1 COM Port:"));
        f.PrintNumber(c.m_iExo1Port);
        f.PrintLine();
    }
    if (c.m_iNExos > 1) {
        f.PrintLine(QStringLiteral("; Exoskeleton 2 COM Port:"));
        f.PrintNumber(c.m_iExo2Port);
        f.PrintLine();
    }
    f.PrintLine(QStringLiteral("; TalporMorax COM Port:"));
    f.PrintNumber(c.m_iTalporPort);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Audio MIDI Ports:"));
    for (int i = 0; i < c.m_iNMIDIs; ++i) {
        if (c.m_iMIDIPort(i) < 0) {
            f.PrintLine(QStringLiteral("-1"));
            f.PrintLine(QStringLiteral("0"));
            f.PrintLine(QStringLiteral("---"));
        } else {
            f.PrintNumber(c.m_iMIDIPort(i));
            f.PrintNumber(c.m_iPortInOut(i));
            f.PrintLine(c.m_strMIDIPortLabel(i).isEmpty() ? QStringLiteral("---") : c.m_strMIDIPortLabel(i));
        }
    }
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Flash Port:"));
    f.PrintNumber(c.m_iFlashPort);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QEL Display Manager Port:"));
    f.PrintNumber(c.m_iQDMPort);
    f.PrintLine();
    if (c.m_iNTotems > 0) {
        f.PrintLine(QStringLiteral("; Totem Devices:"));
        f.PrintLine(QStringLiteral("TD_BEGIN"));
        for (int i = 0; i < c.m_iNTotems; ++i)
            f.PrintNumber(c.m_iTotemDevice(i));
        f.PrintLine(QStringLiteral("TD_END"));
        f.PrintLine();
    }
    f.PrintLine(QStringLiteral("; Scenes & Subscenes File:"));
    f.PrintLine(c.m_strScenesFile);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Movies Filenames:"));
    f.PrintLine(c.m_strScenesFilenames);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Loads Configuration:"));
    f.PrintLine(c.m_strMovieLoadsFile);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Events File:"));
    f.PrintLine(c.m_strEventsFile);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Talpor Events File:"));
    f.PrintLine(c.m_strTalporFile);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Exoskeletons Calibration Files:"));
    for (int i = 0; i < c.m_iNExos; ++i)
        f.PrintLine(c.m_strExoDataFile(i));
    f.PrintLine();
    if (c.m_iNArduinos > 0) {
        f.PrintLine(QStringLiteral("; Arduinos Configuration Files:"));
        for (int i = 0; i < c.m_iNArduinos; ++i)
            f.PrintLine(c.m_strArdDataFile(i));
        f.PrintLine();
    }
    f.PrintLine(QStringLiteral("; Movies Width:"));
    f.PrintNumber(c.m_iMovieWidth);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Movies Height:"));
    f.PrintNumber(c.m_iMovieHeight);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Control Machine IP Address:"));
    f.PrintLine(c.m_strLocalIPAddress);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Number of Digital IO Cards:"));
    f.PrintNumber(gNDigitalIO);
    f.PrintLine();
    for (int i = 0; i < gNDigitalIO; ++i) {
        f.PrintLine(QStringLiteral("; Digital IO Card ") + digits(i + 1) + QStringLiteral(": "));
        f.PrintNumber(gDigitalIOCardID(i));
        f.PrintNumber(gDigitalIONIn(i));
        f.PrintNumber(gDigitalIONOut(i));
        f.PrintLine();
    }
    f.PrintLine(QStringLiteral("; Background Color:"));
    f.PrintNumber(c.m_lBkColor);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Flash Player Folder:"));
    for (int i = 0; i < c.m_iNFlash; ++i)
        f.PrintLine(c.m_strFlashFolderPath(i));
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QDM Remote Paths:"));
    for (int i = 0; i < c.m_iNQDMs; ++i)
        f.PrintLine(c.m_strDisplayManagerPath(i));
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QDM Number of video apps:"));
    for (int i = 0; i < c.m_iNQDMs; ++i)
        f.PrintNumber(c.m_iNAppPerQDM(i));
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QDM Video app labels:"));
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            f.PrintLine(c.m_strVideoAppLabel(i, j));
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QDM Video app window names:"));
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            f.PrintLine(c.m_strVideoAppWindow(i, j));
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QDM Video app paths:"));
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            f.PrintLine(c.m_strVideoAppPath(i, j));
    f.PrintLine();
    f.PrintLine(QStringLiteral("; QDM Video app launch on startup:"));
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            f.PrintNumber(c.m_bVideoAppLaunch(i, j) ? 1 : 0);
    f.PrintLine();
    f.PrintLine(QStringLiteral("; Value Events per Second:"));
    f.PrintNumber(c.m_iEventsPerSec);
    f.PrintLine();
    f.PrintLine();
    f.PrintLine();
}

// Up to and including the blank after the control machine's address. Any
// failure here fails the whole read.
void readHead(LineCursor& r, CMainConfig& c)
{
    r.skip(6);
    c.m_strName = r.line();
    r.skip(2);
    c.m_iNExos = r.integer();
    r.skip(2);
    c.m_iNTotems = r.integer();

    for (int i = 0; i <= 3; ++i) {
        gTotemAxes(i) = 2;
        gTotemButtons(i) = 5;
    }
    QString line = r.line();
    if (line.startsWith(u'A')) {
        for (int i = 0; i < c.m_iNTotems; ++i) {
            gTotemAxes(i) = ToInteger(line.mid(1));
            line = r.line();
            gTotemButtons(i) = ToInteger(line.mid(1));
            line = r.line();
        }
    }

    c.m_iNOSCs = 0;
    c.m_iNArduinos = 0;
    line = r.line();
    if (line.mid(12, 3) == QStringLiteral("OSC")) {
        c.m_iNOSCs = r.integer();
        r.skip(1);
        for (int i = 0; i < c.m_iNOSCs; ++i) {
            c.m_strOSCPortLabel(i) = r.line();
            c.m_strOSCIP(i) = r.line();
            c.m_iOSCPort(i) = r.integer();
            c.m_iOSCPortInOut(i) = r.integer();
        }
        r.skip(2);
        c.m_iNArduinos = r.integer();
        r.skip(2);
    }

    c.m_iNQDMs = r.integer();
    r.skip(1);
    line = r.line();
    if (line != QStringLiteral("; Number of MIDI devices:")) {
        c.m_iNMIDIs = -1;
    } else {
        c.m_iNMIDIs = r.integer();
        r.skip(2);
    }

    c.m_iNFlash = r.integer();
    r.skip(2);
    c.m_iNVideoCaps = r.integer();
    r.skip(1);

    if (c.m_iNExos > 0) {
        r.skip(1);
        c.m_iExo1Port = r.integer();
        r.skip(1);
    }
    if (c.m_iNExos > 1) {
        r.skip(1);
        c.m_iExo2Port = r.integer();
        r.skip(1);
    }

    r.skip(1);
    c.m_iTalporPort = r.integer();
    r.skip(1);

    for (int i = 0; i <= 7; ++i) {
        c.m_iMIDIPort(i) = -1;
        c.m_iInMIDIPort(i) = -1;
        c.m_iOutMIDIPort(i) = -1;
        c.m_strMIDIPortLabel(i).clear();
        c.m_strInMIDIPortLabel(i).clear();
        c.m_strOutMIDIPortLabel(i).clear();
        c.m_iPortInOut(i) = 0;
    }
    int nIn = 0;
    int nOut = 0;
    r.skip(1);

    bool endedByBlank = false;
    for (int i = 0; i <= 7; ++i) {
        if (!(c.m_iNMIDIs == -1 || i < c.m_iNMIDIs))
            continue;
        line = r.line();
        if (line.isEmpty()) {
            endedByBlank = true;
            break;
        }
        if (IsNumberText(line) && ToLong(line) >= 0)
            c.m_iMIDIPort(i) = ToInteger(line);
        line = r.line();
        if (line.isEmpty()) {
            endedByBlank = true;
            break;
        }
        if (line == QStringLiteral("---")) {
            c.m_strMIDIPortLabel(i).clear();
            c.m_iPortInOut(i) = 2;
            continue;
        }
        if (IsNumberText(line)) {
            c.m_iPortInOut(i) = ToInteger(line);
            const QString label = r.line();
            c.m_strMIDIPortLabel(i) = label == QStringLiteral("---") ? QString() : label;
        } else {
            c.m_strMIDIPortLabel(i) = line;
            c.m_iPortInOut(i) = 2;
        }
        if (c.m_iPortInOut(i) == 1) {
            c.m_iInMIDIPort(nIn) = c.m_iMIDIPort(i);
            c.m_strInMIDIPortLabel(nIn) = c.m_strMIDIPortLabel(i);
            ++nIn;
        } else {
            c.m_iOutMIDIPort(nOut) = c.m_iMIDIPort(i);
            c.m_strOutMIDIPortLabel(nOut) = c.m_strMIDIPortLabel(i);
            ++nOut;
        }
    }
    if (!endedByBlank)
        r.skip(1);

    r.skip(1);
    c.m_iFlashPort = r.integer();
    r.skip(2);
    c.m_iQDMPort = r.integer();

    r.skip(2);
    line = r.line();
    if (line == QStringLiteral("TD_BEGIN")) {
        for (int i = 0; i < c.m_iNTotems; ++i)
            c.m_iTotemDevice(i) = r.integer();
        r.skip(3);
        c.m_strScenesFile = r.line();
    } else {
        c.m_strScenesFile = line;
    }

    r.skip(2);
    c.m_strScenesFilenames = r.line();
    r.skip(2);
    c.m_strMovieLoadsFile = r.line();
    r.skip(2);
    c.m_strEventsFile = r.line();
    r.skip(2);
    c.m_strTalporFile = r.line();

    r.skip(2);
    for (int i = 1; i <= c.m_iNExos; ++i)
        c.m_strExoDataFile(i - 1) = r.line();
    r.skip(1);

    if (c.m_iNArduinos > 0) {
        r.field();
        for (int i = 1; i <= c.m_iNArduinos; ++i)
            c.m_strArdDataFile(i - 1) = r.line();
        r.skip(1);
    }

    r.skip(1);
    c.m_iMovieWidth = r.integer();
    r.skip(2);
    c.m_iMovieHeight = r.integer();
    r.skip(2);
    c.m_strLocalIPAddress = r.line();
    r.skip(1);
}

// From the digital IO section to the end. The caller treats any failure here,
// above all the end of an older file, as a normal end.
void readTail(LineCursor& r, CMainConfig& c)
{
    r.skip(1);
    gNDigitalIO = r.integer();
    r.skip(1);
    for (int i = 0; i < gNDigitalIO; ++i) {
        r.skip(1);
        gDigitalIOCardID(i) = r.integer();
        gDigitalIONIn(i) = r.integer();
        gDigitalIONOut(i) = r.integer();
        r.skip(1);
    }

    r.skip(1);
    c.m_lBkColor = ToLong(r.line());
    r.skip(2);
    for (int i = 0; i < c.m_iNFlash; ++i)
        c.m_strFlashFolderPath(i) = r.line();

    r.skip(2);
    for (int i = 0; i < c.m_iNQDMs; ++i)
        c.m_strDisplayManagerPath(i) = r.line();
    r.skip(2);
    for (int i = 0; i < c.m_iNQDMs; ++i)
        c.m_iNAppPerQDM(i) = r.integer();
    r.skip(2);
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            c.m_strVideoAppLabel(i, j) = r.line();
    r.skip(2);
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            c.m_strVideoAppWindow(i, j) = r.line();
    r.skip(2);
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            c.m_strVideoAppPath(i, j) = r.line();
    r.skip(2);
    for (int i = 0; i < c.m_iNQDMs; ++i)
        for (int j = 0; j < c.m_iNAppPerQDM(i); ++j)
            c.m_bVideoAppLaunch(i, j) = blanksTrimmed(r.line()) == QStringLiteral("1");

    r.skip(2);
    const QString events = r.line();
    if (events.isEmpty()) {
        c.m_iEventsPerSec = 16;
        return;
    }
    c.m_iEventsPerSec = ToInteger(events);
    r.skip(3);
}

} // namespace

bool WriteMainConfigFile(const QString& path)
{
    try {
        CMainConfig& c = gMainConfig;
        assignFileNames(c);
        TextFileWriter f(path);
        writeBody(f, c);
        f.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadMainConfigFile(const QString& path)
{
    CMainConfig& c = gMainConfig;
    std::unique_ptr<LineCursor> reader;
    try {
        reader = std::make_unique<LineCursor>(path);
        readHead(*reader, c);
    } catch (const std::exception&) {
        return false;
    }
    try {
        readTail(*reader, c);
    } catch (const std::exception&) {
        return true;
    }
    return true;
}
