// The main configuration file: golden files, the older forms the reader
// accepts, its two error regions and its edge cases.
#include <QTemporaryDir>
#include <QtTest>
#include "files/FileTestHelpers.h"
#include "files/ModuleConfig.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/TestData.h"

namespace {

// The values a New command gives the stored fields, with a fixed local address.
void SetNewPerformance()
{
    CMainConfig& c = gMainConfig;
    c.m_strName = QStringLiteral("QEL New");
    c.m_iNExos = c.m_iNTotems = c.m_iNOSCs = c.m_iNArduinos = c.m_iNQDMs = c.m_iNMIDIs = c.m_iNFlash = c.m_iNVideoCaps = 0;
    c.m_iExo1Port = c.m_iExo2Port = 1;
    c.m_iTalporPort = 0;
    for (int i = 0; i <= 7; ++i) {
        c.m_iMIDIPort(i) = c.m_iInMIDIPort(i) = c.m_iOutMIDIPort(i) = -1;
        c.m_strMIDIPortLabel(i).clear();
        c.m_strInMIDIPortLabel(i).clear();
        c.m_strOutMIDIPortLabel(i).clear();
    }
    c.m_iQDMPort = 1111;
    c.m_iFlashPort = 1122;
    c.m_strScenesFile.clear();
    c.m_strMoviesRoot = QStringLiteral("C:\\QEL\\MOVIES\\");
    c.m_iMovieWidth = 800;
    c.m_iMovieHeight = 600;
    c.m_strLocalIPAddress = QStringLiteral("192.168.1.10");
    c.m_lBkColor = 0;
    c.m_iEventsPerSec = 16;
    gNDigitalIO = 1;
    for (int i = 0; i <= 3; ++i) {
        gDigitalIOCardID(i) = i;
        gDigitalIONIn(i) = gDigitalIONOut(i) = 32;
        gTotemAxes(i) = 2;
        gTotemButtons(i) = 5;
        c.m_iTotemDevice(i) = static_cast<qint16>(i + 1);
    }
    for (int i = 0; i <= 15; ++i) {
        c.m_iOSCPort(i) = -1;
        c.m_iOSCPortInOut(i) = 0;
        c.m_strOSCIP(i) = QStringLiteral("0.0.0.0");
        c.m_strOSCPortLabel(i) = QStringLiteral("OSC %1").arg(i + 1);
    }
}

// Every device count at its maximum; the same values as main_max.qel.
void SetFullPerformance()
{
    SetNewPerformance();
    CMainConfig& c = gMainConfig;
    c.m_strName = QStringLiteral("Gala \u00e9 \u20ac Noche");
    c.m_iNExos = 2;
    c.m_iNTotems = 4;
    c.m_iNOSCs = 16;
    c.m_iNArduinos = 16;
    c.m_iNQDMs = 8;
    c.m_iNMIDIs = 8;
    c.m_iNFlash = 16;
    c.m_iNVideoCaps = 4;
    c.m_iExo1Port = 3;
    c.m_iExo2Port = 4;
    c.m_iTalporPort = 7;
    for (int i = 0; i <= 3; ++i) {
        gTotemAxes(i) = static_cast<qint16>(2 + i);
        gTotemButtons(i) = static_cast<qint16>(10 + i);
        c.m_iTotemDevice(i) = static_cast<qint16>(4 - i);
        gDigitalIOCardID(i) = 10 + i;
        gDigitalIONIn(i) = 16;
        gDigitalIONOut(i) = 8 + i;
    }
    gNDigitalIO = 4;
    for (int i = 0; i <= 15; ++i) {
        c.m_strOSCPortLabel(i) = QStringLiteral("OSC %1, \u00e9").arg(i + 1);
        c.m_strOSCIP(i) = QStringLiteral("10.0.0.%1").arg(i + 1);
        c.m_iOSCPort(i) = static_cast<qint16>(8000 + i);
        c.m_iOSCPortInOut(i) = static_cast<qint16>(i % 3);
        c.m_strFlashFolderPath(i) = QStringLiteral("\\\\flash%1\\folder\\").arg(i + 1);
    }
    for (int i = 0; i <= 7; ++i) {
        if (i == 0) {
            c.m_iMIDIPort(i) = -1;
            c.m_iPortInOut(i) = 1;
            c.m_strMIDIPortLabel(i) = QStringLiteral("ignored");
        } else if (i == 1) {
            c.m_iMIDIPort(i) = 3;
            c.m_iPortInOut(i) = 1;
            c.m_strMIDIPortLabel(i).clear();
        } else {
            c.m_iMIDIPort(i) = static_cast<qint16>(i);
            c.m_iPortInOut(i) = static_cast<qint16>((i % 2) + 1);
            c.m_strMIDIPortLabel(i) = QStringLiteral("MIDI \u00e9\u20ac %1").arg(i);
        }
        c.m_strDisplayManagerPath(i) = QStringLiteral("\\\\QDM%1\\path\\").arg(i + 1);
        c.m_iNAppPerQDM(i) = 8;
        for (int j = 0; j <= 7; ++j) {
            c.m_strVideoAppLabel(i, j) = QStringLiteral("Label %1-%2").arg(i).arg(j);
            c.m_strVideoAppWindow(i, j) = QStringLiteral("Win %1-%2").arg(i).arg(j);
            c.m_strVideoAppPath(i, j) = QStringLiteral("c:\\apps\\%1\\%2.exe").arg(i).arg(j);
            c.m_bVideoAppLaunch(i, j) = (i + j) % 2 == 0;
        }
    }
    c.m_iMovieWidth = 1024;
    c.m_iMovieHeight = 768;
    c.m_strLocalIPAddress = QStringLiteral("10.0.0.1");
    c.m_lBkColor = 16777215;
    c.m_iEventsPerSec = 25;
}

// Values no file holds, so that a test can see which fields a read reached.
void FillSentinels()
{
    CMainConfig& c = gMainConfig;
    c.m_strName = QStringLiteral("sentinel");
    c.m_iNExos = c.m_iNTotems = c.m_iNOSCs = c.m_iNArduinos = c.m_iNQDMs = c.m_iNMIDIs = c.m_iNFlash = c.m_iNVideoCaps = 77;
    c.m_iExo1Port = c.m_iExo2Port = c.m_iTalporPort = c.m_iFlashPort = c.m_iQDMPort = 77;
    c.m_iMovieWidth = c.m_iMovieHeight = c.m_iEventsPerSec = 77;
    c.m_lBkColor = 77;
    c.m_strLocalIPAddress = c.m_strScenesFile = c.m_strScenesFilenames = c.m_strMovieLoadsFile = QStringLiteral("sentinel");
    c.m_strEventsFile = c.m_strTalporFile = QStringLiteral("sentinel");
    for (int i = 0; i <= 4; ++i)
        c.m_iTotemDevice(i) = 77;
    for (int i = 0; i <= 15; ++i) {
        c.m_strOSCPortLabel(i) = c.m_strOSCIP(i) = c.m_strFlashFolderPath(i) = c.m_strArdDataFile(i) = QStringLiteral("sentinel");
        c.m_iOSCPort(i) = c.m_iOSCPortInOut(i) = 77;
    }
    for (int i = 0; i <= 7; ++i) {
        c.m_iMIDIPort(i) = c.m_iPortInOut(i) = c.m_iInMIDIPort(i) = c.m_iOutMIDIPort(i) = 77;
        c.m_strMIDIPortLabel(i) = c.m_strInMIDIPortLabel(i) = c.m_strOutMIDIPortLabel(i) = QStringLiteral("sentinel");
        c.m_strDisplayManagerPath(i) = QStringLiteral("sentinel");
        c.m_iNAppPerQDM(i) = 77;
        for (int j = 0; j <= 7; ++j) {
            c.m_strVideoAppLabel(i, j) = c.m_strVideoAppWindow(i, j) = c.m_strVideoAppPath(i, j) = QStringLiteral("sentinel");
            c.m_bVideoAppLaunch(i, j) = false;
        }
    }
    c.m_strExoDataFile(0) = c.m_strExoDataFile(1) = QStringLiteral("sentinel");
    for (int i = 0; i <= 3; ++i) {
        gTotemAxes(i) = gTotemButtons(i) = 77;
        gDigitalIOCardID(i) = gDigitalIONIn(i) = gDigitalIONOut(i) = 77;
    }
    gNDigitalIO = 3;
}

// Checks the values of the older-form fixtures' performance up to the address.
void VerifyOlderBaseHead()
{
    const CMainConfig& c = gMainConfig;
    QCOMPARE(c.m_strName, QStringLiteral("Old Show"));
    QCOMPARE(c.m_iNExos, qint16(1));
    QCOMPARE(c.m_iNTotems, qint16(2));
    QCOMPARE(c.m_iNQDMs, qint16(1));
    QCOMPARE(c.m_iNFlash, qint16(1));
    QCOMPARE(c.m_iNVideoCaps, qint16(1));
    QCOMPARE(c.m_iExo1Port, qint16(5));
    QCOMPARE(c.m_iExo2Port, qint16(77));
    QCOMPARE(c.m_iTalporPort, qint16(2));
    QCOMPARE(c.m_iFlashPort, qint16(1122));
    QCOMPARE(c.m_iQDMPort, qint16(1111));
    QCOMPARE(c.m_strScenesFile, QStringLiteral("Scenes.cfg"));
    QCOMPARE(c.m_strScenesFilenames, QStringLiteral("Scenes.txt"));
    QCOMPARE(c.m_strMovieLoadsFile, QStringLiteral("Movies.cfg"));
    QCOMPARE(c.m_strEventsFile, QStringLiteral("Events.cfg"));
    QCOMPARE(c.m_strTalporFile, QStringLiteral("Talpor.cfg"));
    QCOMPARE(c.m_strExoDataFile(0), QStringLiteral("Exo1.cfg"));
    QCOMPARE(c.m_strExoDataFile(1), QStringLiteral("sentinel"));
    QCOMPARE(c.m_iMovieWidth, qint16(800));
    QCOMPARE(c.m_iMovieHeight, qint16(600));
    QCOMPARE(c.m_strLocalIPAddress, QStringLiteral("192.168.1.10"));
}

void VerifyOlderBaseTail()
{
    const CMainConfig& c = gMainConfig;
    QCOMPARE(gNDigitalIO, 1);
    QCOMPARE(gDigitalIOCardID(0), 0);
    QCOMPARE(gDigitalIONIn(0), 32);
    QCOMPARE(gDigitalIONOut(0), 32);
    QCOMPARE(gDigitalIOCardID(1), 77);
    QCOMPARE(c.m_lBkColor, 255);
    QCOMPARE(c.m_strFlashFolderPath(0), QStringLiteral("\\\\flash1\\f\\"));
    QCOMPARE(c.m_strFlashFolderPath(1), QStringLiteral("sentinel"));
    QCOMPARE(c.m_strDisplayManagerPath(0), QStringLiteral("\\\\qdm1\\p\\"));
    QCOMPARE(c.m_iNAppPerQDM(0), qint16(2));
    QCOMPARE(c.m_strVideoAppLabel(0, 1), QStringLiteral("L1"));
    QCOMPARE(c.m_strVideoAppWindow(0, 0), QStringLiteral("W0"));
    QCOMPARE(c.m_strVideoAppPath(0, 1), QStringLiteral("P1"));
    QCOMPARE(c.m_strVideoAppLabel(0, 2), QStringLiteral("sentinel"));
    QCOMPARE(c.m_bVideoAppLaunch(0, 0), false);
    QCOMPARE(c.m_bVideoAppLaunch(0, 1), true);
}

void VerifyOlderBaseJoysticksAndOsc()
{
    const CMainConfig& c = gMainConfig;
    QCOMPARE(gTotemAxes(0), qint16(3));
    QCOMPARE(gTotemAxes(1), qint16(4));
    QCOMPARE(gTotemAxes(2), qint16(2));
    QCOMPARE(gTotemButtons(0), qint16(6));
    QCOMPARE(gTotemButtons(1), qint16(7));
    QCOMPARE(gTotemButtons(3), qint16(5));
    QCOMPARE(c.m_iTotemDevice(0), qint16(2));
    QCOMPARE(c.m_iTotemDevice(1), qint16(1));
    QCOMPARE(c.m_iTotemDevice(2), qint16(77));
    QCOMPARE(c.m_iNOSCs, qint16(2));
    QCOMPARE(c.m_strOSCPortLabel(0), QStringLiteral("Osc A"));
    QCOMPARE(c.m_strOSCIP(1), QStringLiteral("5.6.7.8"));
    QCOMPARE(c.m_iOSCPort(1), qint16(9001));
    QCOMPARE(c.m_iOSCPortInOut(0), qint16(1));
    QCOMPARE(c.m_iOSCPortInOut(1), qint16(2));
    QCOMPARE(c.m_iNArduinos, qint16(1));
    QCOMPARE(c.m_strArdDataFile(0), QStringLiteral("Arduino1.cfg"));
}

void VerifyMidiWithDirections()
{
    const CMainConfig& c = gMainConfig;
    QCOMPARE(c.m_iNMIDIs, qint16(2));
    QCOMPARE(c.m_iMIDIPort(0), qint16(3));
    QCOMPARE(c.m_iPortInOut(0), qint16(1));
    QCOMPARE(c.m_strMIDIPortLabel(0), QStringLiteral("Synth"));
    QCOMPARE(c.m_iMIDIPort(1), qint16(5));
    QCOMPARE(c.m_iPortInOut(1), qint16(2));
    QCOMPARE(c.m_strMIDIPortLabel(1), QStringLiteral("Drums"));
    QCOMPARE(c.m_iInMIDIPort(0), qint16(3));
    QCOMPARE(c.m_strInMIDIPortLabel(0), QStringLiteral("Synth"));
    QCOMPARE(c.m_iInMIDIPort(1), qint16(-1));
    QCOMPARE(c.m_iOutMIDIPort(0), qint16(5));
    QCOMPARE(c.m_strOutMIDIPortLabel(0), QStringLiteral("Drums"));
    QCOMPARE(c.m_iOutMIDIPort(1), qint16(-1));
    QCOMPARE(c.m_iMIDIPort(2), qint16(-1));
    QCOMPARE(c.m_strMIDIPortLabel(2), QString());
}

// Both devices of an older file without direction lines count as outputs.
void VerifyMidiWithoutDirections(qint16 count)
{
    const CMainConfig& c = gMainConfig;
    QCOMPARE(c.m_iNMIDIs, count);
    QCOMPARE(c.m_iMIDIPort(0), qint16(3));
    QCOMPARE(c.m_iPortInOut(0), qint16(2));
    QCOMPARE(c.m_strMIDIPortLabel(0), QStringLiteral("Synth"));
    QCOMPARE(c.m_iMIDIPort(1), qint16(5));
    QCOMPARE(c.m_iPortInOut(1), qint16(2));
    QCOMPARE(c.m_strMIDIPortLabel(1), QStringLiteral("Drums"));
    QCOMPARE(c.m_iInMIDIPort(0), qint16(-1));
    QCOMPARE(c.m_iOutMIDIPort(0), qint16(3));
    QCOMPARE(c.m_iOutMIDIPort(1), qint16(5));
    QCOMPARE(c.m_strOutMIDIPortLabel(1), QStringLiteral("Drums"));
    QCOMPARE(c.m_iOutMIDIPort(2), qint16(-1));
}

QStringList FileLines(const QString& path)
{
    QStringList lines;
    for (const QByteArray& l : ReadBytes(path).split('\n'))
        lines << FromWindows1252(l).remove(u'\r');
    return lines;
}

} // namespace

class TestMainConfig : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

    // Reads a fixture after filling the record with sentinels.
    bool readFixture(const QString& name)
    {
        FillSentinels();
        return ReadMainConfigFile(TestDataPath(QStringLiteral("files/") + name));
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    // ---- golden files

    void writesNewPerformanceByteForByte()
    {
        SetNewPerformance();
        QVERIFY(WriteMainConfigFile(path("new.qel")));
        QCOMPARE_FILE_WITH_FIXTURE(path("new.qel"), QStringLiteral("main_new.qel"));
    }

    void writesEveryCountAtMaximumByteForByte()
    {
        SetFullPerformance();
        QVERIFY(WriteMainConfigFile(path("max.qel")));
        QCOMPARE_FILE_WITH_FIXTURE(path("max.qel"), QStringLiteral("main_max.qel"));
    }

    void titleAccentsAreSingleWindows1252Bytes()
    {
        SetNewPerformance();
        gMainConfig.m_strName = QStringLiteral("\u00e9\u20ac");
        QVERIFY(WriteMainConfigFile(path("accent.qel")));
        const QByteArray bytes = ReadBytes(path("accent.qel"));
        QVERIFY(bytes.contains(QByteArray("; Title:\r\n\xE9\x80\r\n")));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("accent.qel")));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("\u00e9\u20ac"));
    }

    void writerAssignsTheFixedFileNames()
    {
        SetFullPerformance();
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNArduinos = 3;
        gMainConfig.m_strExoDataFile(1) = QStringLiteral("old");
        gMainConfig.m_strArdDataFile(3) = QStringLiteral("old");
        QVERIFY(WriteMainConfigFile(path("names.qel")));
        const CMainConfig& c = gMainConfig;
        QCOMPARE(c.m_strScenesFile, QStringLiteral("Scenes.cfg"));
        QCOMPARE(c.m_strScenesFilenames, QStringLiteral("Scenes.txt"));
        QCOMPARE(c.m_strMovieLoadsFile, QStringLiteral("Movies.cfg"));
        QCOMPARE(c.m_strMovieEventsFile, QStringLiteral("FlashEvents.cfg"));
        QCOMPARE(c.m_strAudioEventsFile, QStringLiteral("MIDIEvents.cfg"));
        QCOMPARE(c.m_strAudioEventsInFile, QStringLiteral("MIDIEventsIn.cfg"));
        QCOMPARE(c.m_strLightsEventsFile, QStringLiteral("LightsEvents.cfg"));
        QCOMPARE(c.m_strRukaBotsFile, QStringLiteral("BotsEvents.cfg"));
        QCOMPARE(c.m_strEventsFile, QStringLiteral("Events.cfg"));
        QCOMPARE(c.m_strTalporFile, QStringLiteral("Talpor.cfg"));
        QCOMPARE(c.m_strVilnaFile, QStringLiteral("Vilna.cfg"));
        QCOMPARE(c.m_strLightsSetupFile, QStringLiteral("LightsSetup.cfg"));
        QCOMPARE(c.m_strExoDataFile(0), QStringLiteral("Exo1.cfg"));
        QCOMPARE(c.m_strExoDataFile(1), QStringLiteral("old"));
        QCOMPARE(c.m_strArdDataFile(2), QStringLiteral("Arduino3.cfg"));
        QCOMPARE(c.m_strArdDataFile(3), QStringLiteral("old"));
    }

    void readsEveryCountAtMaximum()
    {
        FillSentinels();
        QVERIFY(ReadMainConfigFile(TestDataPath("files/main_max.qel")));
        const CMainConfig& c = gMainConfig;
        QCOMPARE(c.m_strName, QStringLiteral("Gala \u00e9 \u20ac Noche"));
        QCOMPARE(c.m_iNExos, qint16(2));
        QCOMPARE(c.m_iNTotems, qint16(4));
        QCOMPARE(c.m_iNOSCs, qint16(16));
        QCOMPARE(c.m_iNArduinos, qint16(16));
        QCOMPARE(c.m_iNQDMs, qint16(8));
        QCOMPARE(c.m_iNMIDIs, qint16(8));
        QCOMPARE(c.m_iNFlash, qint16(16));
        QCOMPARE(c.m_iNVideoCaps, qint16(4));
        QCOMPARE(gTotemAxes(3), qint16(5));
        QCOMPARE(gTotemButtons(2), qint16(12));
        QCOMPARE(c.m_iTotemDevice(0), qint16(4));
        QCOMPARE(c.m_strOSCPortLabel(15), QStringLiteral("OSC 16, \u00e9"));
        QCOMPARE(c.m_iOSCPort(15), qint16(8015));
        QCOMPARE(c.m_iOSCPortInOut(14), qint16(2));
        QCOMPARE(c.m_iExo1Port, qint16(3));
        QCOMPARE(c.m_iExo2Port, qint16(4));
        QCOMPARE(c.m_iTalporPort, qint16(7));
        // MIDI: device 0 absent (-1, 0, ---), device 1 input with no label, then alternating.
        QCOMPARE(c.m_iMIDIPort(0), qint16(-1));
        QCOMPARE(c.m_iPortInOut(0), qint16(0));
        QCOMPARE(c.m_strMIDIPortLabel(1), QString());
        QCOMPARE(c.m_iPortInOut(1), qint16(1));
        QCOMPARE(c.m_iInMIDIPort(0), qint16(3));
        QCOMPARE(c.m_iInMIDIPort(1), qint16(2)); // device 2 is an input, device 3 an output
        QCOMPARE(c.m_iOutMIDIPort(0), qint16(-1)); // device 0, absent
        QCOMPARE(c.m_iOutMIDIPort(1), qint16(3));
        QCOMPARE(c.m_strMIDIPortLabel(7), QStringLiteral("MIDI \u00e9\u20ac 7"));
        QCOMPARE(c.m_strArdDataFile(15), QStringLiteral("Arduino16.cfg"));
        QCOMPARE(c.m_strExoDataFile(1), QStringLiteral("Exo2.cfg"));
        QCOMPARE(gNDigitalIO, 4);
        QCOMPARE(gDigitalIONOut(3), 11);
        QCOMPARE(c.m_lBkColor, 16777215);
        QCOMPARE(c.m_strFlashFolderPath(15), QStringLiteral("\\\\flash16\\folder\\"));
        QCOMPARE(c.m_strVideoAppPath(7, 7), QStringLiteral("c:\\apps\\7\\7.exe"));
        QCOMPARE(c.m_bVideoAppLaunch(7, 7), true);
        QCOMPARE(c.m_bVideoAppLaunch(7, 6), false);
        QCOMPARE(c.m_iEventsPerSec, qint16(25));
    }

    // ---- older forms

    void readsTheCurrentFormOfTheOlderFixtures()
    {
        QVERIFY(readFixture(QStringLiteral("main_current_small.qel")));
        VerifyOlderBaseHead();
        VerifyOlderBaseJoysticksAndOsc();
        VerifyMidiWithDirections();
        VerifyOlderBaseTail();
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(30));
    }

    void readsFileWithoutJoystickAxesLines()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_no_totem_lines.qel")));
        VerifyOlderBaseHead();
        for (int i = 0; i <= 3; ++i) {
            QCOMPARE(gTotemAxes(i), qint16(2));
            QCOMPARE(gTotemButtons(i), qint16(5));
        }
        QCOMPARE(gMainConfig.m_iTotemDevice(1), qint16(1));
        QCOMPARE(gMainConfig.m_iNOSCs, qint16(2));
        VerifyMidiWithDirections();
        VerifyOlderBaseTail();
    }

    void readsFileWithoutOscSection()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_no_osc.qel")));
        VerifyOlderBaseHead();
        QCOMPARE(gMainConfig.m_iNOSCs, qint16(0));
        QCOMPARE(gMainConfig.m_iNArduinos, qint16(0));
        QCOMPARE(gMainConfig.m_strOSCPortLabel(0), QStringLiteral("sentinel"));
        QCOMPARE(gMainConfig.m_strArdDataFile(0), QStringLiteral("sentinel"));
        QCOMPARE(gTotemAxes(1), qint16(4));
        VerifyMidiWithDirections();
        VerifyOlderBaseTail();
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(30));
    }

    void readsFileWithoutMidiCountLine()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_no_midi_count.qel")));
        VerifyOlderBaseHead();
        VerifyOlderBaseJoysticksAndOsc();
        VerifyMidiWithoutDirections(-1);
        VerifyOlderBaseTail();
    }

    void readsFileWithoutMidiDirectionLines()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_no_direction.qel")));
        VerifyOlderBaseHead();
        VerifyOlderBaseJoysticksAndOsc();
        VerifyMidiWithoutDirections(2);
        VerifyOlderBaseTail();
    }

    void readsFileWithoutJoystickDeviceBlock()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_no_totem_block.qel")));
        VerifyOlderBaseHead();
        QCOMPARE(gMainConfig.m_iTotemDevice(0), qint16(77));
        QCOMPARE(gMainConfig.m_iTotemDevice(1), qint16(77));
        QCOMPARE(gTotemAxes(0), qint16(3));
        VerifyMidiWithDirections();
        VerifyOlderBaseTail();
    }

    void readsFileEndingAfterTheAddressAsSuccess()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_ends_after_ip.qel")));
        VerifyOlderBaseHead();
        VerifyOlderBaseJoysticksAndOsc();
        QCOMPARE(gNDigitalIO, 3);
        QCOMPARE(gMainConfig.m_lBkColor, 77);
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(77));
    }

    void readsFileEndingAfterBackgroundColourAsSuccess()
    {
        QVERIFY(readFixture(QStringLiteral("main_old_ends_after_bkcolor.qel")));
        VerifyOlderBaseHead();
        QCOMPARE(gNDigitalIO, 1);
        QCOMPARE(gMainConfig.m_lBkColor, 255);
        QCOMPARE(gMainConfig.m_strFlashFolderPath(0), QStringLiteral("sentinel"));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(77));
    }

    void readsOldestFormWithEveryOlderFeature()
    {
        QVERIFY(readFixture(QStringLiteral("main_oldest.qel")));
        VerifyOlderBaseHead();
        QCOMPARE(gMainConfig.m_iNOSCs, qint16(0));
        QCOMPARE(gMainConfig.m_iNArduinos, qint16(0));
        QCOMPARE(gTotemAxes(0), qint16(2));
        QCOMPARE(gTotemButtons(1), qint16(5));
        QCOMPARE(gMainConfig.m_iTotemDevice(0), qint16(77));
        VerifyMidiWithoutDirections(-1);
        QCOMPARE(gNDigitalIO, 3);
    }

    // ---- error regions

    void missingFileFails()
    {
        QVERIFY(!ReadMainConfigFile(path("does-not-exist.qel")));
    }

    void textWhereHeadNumberIsDueFails()
    {
        QStringList lines = FileLines(TestDataPath("files/main_current_small.qel"));
        QCOMPARE(lines[9], QStringLiteral(" 1 "));
        lines[9] = QStringLiteral("one");
        QVERIFY(WriteBytes(path("text.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(!ReadMainConfigFile(path("text.qel")));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("Old Show")); // what was read so far stays
        QCOMPARE(gMainConfig.m_iNTotems, qint16(77));
    }

    void fiveJoysticksWithAxesLinesFail()
    {
        SetFullPerformance();
        QVERIFY(WriteMainConfigFile(path("five.qel")));
        QStringList lines = FileLines(path("five.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; Number of Totems:")) + 1;
        lines[at] = QStringLiteral(" 5 ");
        lines.insert(lines.indexOf(QStringLiteral("B13")) + 1, QStringLiteral("A9"));
        lines.insert(lines.indexOf(QStringLiteral("A9")) + 1, QStringLiteral("B9"));
        QVERIFY(WriteBytes(path("five.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(!ReadMainConfigFile(path("five.qel")));
        QCOMPARE(gTotemAxes(3), qint16(5));
    }

    void fileEndingInTheHeadFails()
    {
        QStringList lines = FileLines(TestDataPath("files/main_current_small.qel"));
        const qsizetype ip = lines.indexOf(QStringLiteral("192.168.1.10"));
        QVERIFY(WriteBytes(path("short.qel"), Lines1252(lines.mid(0, ip + 1)))); // no blank after the address
        FillSentinels();
        QVERIFY(!ReadMainConfigFile(path("short.qel")));
        QCOMPARE(gMainConfig.m_strLocalIPAddress, QStringLiteral("192.168.1.10"));
    }

    void textWhereTailNumberIsDueStillSucceeds()
    {
        QStringList lines = FileLines(TestDataPath("files/main_current_small.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; Background Color:")) + 1;
        lines[at] = QStringLiteral("white");
        QVERIFY(WriteBytes(path("tail.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("tail.qel")));
        QCOMPARE(gNDigitalIO, 1);
        QCOMPARE(gMainConfig.m_lBkColor, 77);
        QCOMPARE(gMainConfig.m_strFlashFolderPath(0), QStringLiteral("sentinel"));
    }

    void writerFailureReturnsFalseAndKeepsWhatWasWritten()
    {
        SetNewPerformance();
        gNDigitalIO = 5;
        QVERIFY(!WriteMainConfigFile(path("partial.qel")));
        const QByteArray bytes = ReadBytes(path("partial.qel"));
        QVERIFY(bytes.contains("; Digital IO Card 4: \r\n"));
        QVERIFY(!bytes.contains("; Background Color:"));
        SetNewPerformance();
        QVERIFY(!WriteMainConfigFile(path("no-such-folder/x.qel")));
    }

    void midiPortThatIsNoNumberOrNegativeStaysMinusOne()
    {
        QStringList lines = FileLines(TestDataPath("files/main_current_small.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; Audio MIDI Ports:")) + 1;
        QCOMPARE(lines[at], QStringLiteral(" 3 "));
        QCOMPARE(lines[at + 3], QStringLiteral(" 5 "));
        lines[at] = QStringLiteral("none");
        lines[at + 3] = QStringLiteral("-7 ");
        QVERIFY(WriteBytes(path("badport.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("badport.qel")));
        const CMainConfig& c = gMainConfig;
        QCOMPARE(c.m_iMIDIPort(0), qint16(-1));
        QCOMPARE(c.m_iPortInOut(0), qint16(1));
        QCOMPARE(c.m_strMIDIPortLabel(0), QStringLiteral("Synth"));
        QCOMPARE(c.m_iInMIDIPort(0), qint16(-1));
        QCOMPARE(c.m_strInMIDIPortLabel(0), QStringLiteral("Synth"));
        QCOMPARE(c.m_iMIDIPort(1), qint16(-1));
        QCOMPARE(c.m_iOutMIDIPort(0), qint16(-1));
        QCOMPARE(c.m_strOutMIDIPortLabel(0), QStringLiteral("Drums"));
        QCOMPARE(c.m_iFlashPort, qint16(1122));
    }

    void arduinoCommentIsReadAsAFieldThatStopsAtAComma()
    {
        // Without a comma the comment line is used up whole (the fixtures read);
        // with one, what follows the comma is the first Arduino file name and
        // every later line shifts by one.
        QStringList lines = FileLines(TestDataPath("files/main_current_small.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; Arduinos Configuration Files:"));
        QVERIFY(at > 0);
        lines[at] = QStringLiteral("; Arduinos, Configuration Files:");
        QVERIFY(WriteBytes(path("ardcomma.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(!ReadMainConfigFile(path("ardcomma.qel")));
        QCOMPARE(gMainConfig.m_strArdDataFile(0), QStringLiteral(" Configuration Files:"));
        QCOMPARE(gMainConfig.m_iMovieWidth, qint16(77));
    }

    void scenesFileNamedLikeTheJoystickMarkerIsMisread()
    {
        // With no joysticks the line after the scenes comment is the scenes file
        // name, unless it reads "TD_BEGIN": then it opens an empty device block and
        // the reader lands three lines further on.
        SetNewPerformance();
        QVERIFY(WriteMainConfigFile(path("tdname.qel")));
        QStringList lines = FileLines(path("tdname.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; Scenes & Subscenes File:")) + 1;
        QCOMPARE(lines[at], QStringLiteral("Scenes.cfg"));
        lines[at] = QStringLiteral("TD_BEGIN");
        QVERIFY(WriteBytes(path("tdname.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(!ReadMainConfigFile(path("tdname.qel")));
        QCOMPARE(gMainConfig.m_strScenesFile, QString());
        QCOMPARE(gMainConfig.m_strScenesFilenames, QString());
        QCOMPARE(gMainConfig.m_strTalporFile, QStringLiteral("; Movies Width:"));
        QCOMPARE(gMainConfig.m_iMovieWidth, qint16(77));
    }

    // ---- edge cases

    void allCountsZeroWritesNoDeviceRowsAndReadsBackExactly()
    {
        SetNewPerformance();
        QVERIFY(WriteMainConfigFile(path("zero.qel")));
        const QStringList lines = FileLines(path("zero.qel"));
        auto follows = [&](const QString& comment, const QString& next) {
            const qsizetype i = lines.indexOf(comment);
            return i >= 0 && i + 1 < lines.size() && lines[i + 1] == next;
        };
        QVERIFY(follows(QStringLiteral("; Audio MIDI Ports:"), QString()));
        QVERIFY(follows(QStringLiteral("; Exoskeletons Calibration Files:"), QString()));
        QVERIFY(follows(QStringLiteral("; Flash Player Folder:"), QString()));
        QVERIFY(follows(QStringLiteral("; QDM Remote Paths:"), QString()));
        QVERIFY(follows(QStringLiteral("; QDM Video app launch on startup:"), QString()));
        QVERIFY(!lines.contains(QStringLiteral("; Arduinos Configuration Files:")));
        QVERIFY(!lines.contains(QStringLiteral("; Exoskeleton 1 COM Port:")));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("zero.qel")));
        const CMainConfig& c = gMainConfig;
        QCOMPARE(c.m_strName, QStringLiteral("QEL New"));
        QCOMPARE(c.m_iNExos, qint16(0));
        QCOMPARE(c.m_iNTotems, qint16(0));
        QCOMPARE(c.m_iNOSCs, qint16(0));
        QCOMPARE(c.m_iNArduinos, qint16(0));
        QCOMPARE(c.m_iNQDMs, qint16(0));
        QCOMPARE(c.m_iNMIDIs, qint16(0));
        QCOMPARE(c.m_iNFlash, qint16(0));
        QCOMPARE(c.m_iNVideoCaps, qint16(0));
        QCOMPARE(c.m_iTalporPort, qint16(0));
        QCOMPARE(c.m_iFlashPort, qint16(1122));
        QCOMPARE(c.m_iQDMPort, qint16(1111));
        QCOMPARE(c.m_iMovieWidth, qint16(800));
        QCOMPARE(c.m_iMovieHeight, qint16(600));
        QCOMPARE(c.m_strLocalIPAddress, QStringLiteral("192.168.1.10"));
        QCOMPARE(gNDigitalIO, 1);
        QCOMPARE(gDigitalIOCardID(0), 0);
        QCOMPARE(gDigitalIONIn(0), 32);
        QCOMPARE(c.m_lBkColor, 0);
        QCOMPARE(c.m_iEventsPerSec, qint16(16));
        QCOMPARE(c.m_iExo1Port, qint16(77)); // not in the file with no exoskeleton
        QVERIFY(WriteMainConfigFile(path("zero2.qel")));
        QCOMPARE(ReadBytes(path("zero2.qel")), ReadBytes(path("zero.qel")));
    }

    void noJoysticksMeansNoDeviceBlockAndScenesNameFound()
    {
        SetNewPerformance();
        QVERIFY(WriteMainConfigFile(path("nojoy.qel")));
        const QByteArray bytes = ReadBytes(path("nojoy.qel"));
        QVERIFY(!bytes.contains("; Totem Devices:"));
        QVERIFY(!bytes.contains("TD_BEGIN"));
        QVERIFY(bytes.contains(" 1111 \r\n\r\n; Scenes & Subscenes File:\r\nScenes.cfg\r\n"));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("nojoy.qel")));
        QCOMPARE(gMainConfig.m_strScenesFile, QStringLiteral("Scenes.cfg"));
        QCOMPARE(gMainConfig.m_iTotemDevice(0), qint16(77));
    }

    void absentMidiDeviceTakesAnOutputSlotAfterReading()
    {
        SetNewPerformance();
        CMainConfig& c = gMainConfig;
        c.m_iNMIDIs = 3;
        c.m_iMIDIPort(0) = -1;
        c.m_iPortInOut(0) = 1;
        c.m_strMIDIPortLabel(0) = QStringLiteral("gone");
        c.m_iMIDIPort(1) = 4;
        c.m_iPortInOut(1) = 1;
        c.m_strMIDIPortLabel(1) = QStringLiteral("Keys");
        c.m_iMIDIPort(2) = 6;
        c.m_iPortInOut(2) = 2;
        c.m_strMIDIPortLabel(2) = QStringLiteral("Lights");
        QVERIFY(WriteMainConfigFile(path("absent.qel")));
        QVERIFY(ReadBytes(path("absent.qel")).contains("; Audio MIDI Ports:\r\n-1\r\n0\r\n---\r\n 4 \r\n 1 \r\nKeys\r\n"));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("absent.qel")));
        QCOMPARE(c.m_iMIDIPort(0), qint16(-1));
        QCOMPARE(c.m_iPortInOut(0), qint16(0));
        QCOMPARE(c.m_strMIDIPortLabel(0), QString());
        QCOMPARE(c.m_iOutMIDIPort(0), qint16(-1));
        QCOMPARE(c.m_strOutMIDIPortLabel(0), QString());
        QCOMPARE(c.m_iOutMIDIPort(1), qint16(6));
        QCOMPARE(c.m_strOutMIDIPortLabel(1), QStringLiteral("Lights"));
        QCOMPARE(c.m_iInMIDIPort(0), qint16(4));
        QCOMPARE(c.m_iInMIDIPort(1), qint16(-1));
    }

    void midiCountMinusOneWritesNoDevicesAndReadsWithoutExtraSkip()
    {
        SetNewPerformance();
        gMainConfig.m_iNMIDIs = -1;
        gMainConfig.m_iMIDIPort(0) = 5;
        QVERIFY(WriteMainConfigFile(path("minus.qel")));
        const QByteArray bytes = ReadBytes(path("minus.qel"));
        QVERIFY(bytes.contains("; Number of MIDI devices:\r\n-1 \r\n"));
        QVERIFY(bytes.contains("; Audio MIDI Ports:\r\n\r\n; Flash Port:\r\n 1122 \r\n"));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("minus.qel")));
        QCOMPARE(gMainConfig.m_iNMIDIs, qint16(-1));
        QCOMPARE(gMainConfig.m_iMIDIPort(0), qint16(-1));
        QCOMPARE(gMainConfig.m_iFlashPort, qint16(1122));
        QCOMPARE(gMainConfig.m_iQDMPort, qint16(1111));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(16));
    }

    void emptyTitleAndTitleStartingWithSemicolonReadBack()
    {
        for (const QString& title : {QString(), QStringLiteral("; not a comment")}) {
            SetNewPerformance();
            gMainConfig.m_strName = title;
            QVERIFY(WriteMainConfigFile(path("title.qel")));
            FillSentinels();
            QVERIFY(ReadMainConfigFile(path("title.qel")));
            QCOMPARE(gMainConfig.m_strName, title);
            QCOMPARE(gMainConfig.m_iFlashPort, qint16(1122));
        }
    }

    void eventsPerSecondMissingKeepsValueBlankGivesSixteen()
    {
        // The line and its value missing: the end of the file ends the tail.
        FillSentinels();
        QVERIFY(ReadMainConfigFile(TestDataPath("files/main_old_no_events_per_sec.qel")));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(77));
        QCOMPARE(gMainConfig.m_bVideoAppLaunch(0, 1), true);
        // A blank where the value should be.
        QStringList lines = FileLines(TestDataPath("files/main_current_small.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; Value Events per Second:")) + 1;
        lines[at] = QString();
        QVERIFY(WriteBytes(path("blank-eps.qel"), Lines1252(lines.mid(0, at + 1))));
        FillSentinels();
        QVERIFY(ReadMainConfigFile(path("blank-eps.qel")));
        QCOMPARE(gMainConfig.m_iEventsPerSec, qint16(16));
    }

    void launchFlagOneIsTrueAnyOtherNumberFalse()
    {
        SetNewPerformance();
        CMainConfig& c = gMainConfig;
        c.m_iNQDMs = 1;
        c.m_iNAppPerQDM(0) = 4;
        for (int j = 0; j < 4; ++j)
            c.m_bVideoAppLaunch(0, j) = j == 0;
        QVERIFY(WriteMainConfigFile(path("launch.qel")));
        QStringList lines = FileLines(path("launch.qel"));
        const qsizetype at = lines.indexOf(QStringLiteral("; QDM Video app launch on startup:")) + 1;
        QCOMPARE(lines[at], QStringLiteral(" 1 "));
        QCOMPARE(lines[at + 1], QStringLiteral(" 0 "));
        lines[at + 1] = QStringLiteral(" 2 ");
        lines[at + 2] = QStringLiteral("-1 ");
        lines[at + 3] = QStringLiteral("1");
        QVERIFY(WriteBytes(path("launch.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        for (int j = 0; j < 4; ++j)
            c.m_bVideoAppLaunch(0, j) = true;
        QVERIFY(ReadMainConfigFile(path("launch.qel")));
        QCOMPARE(c.m_bVideoAppLaunch(0, 0), true);
        QCOMPARE(c.m_bVideoAppLaunch(0, 1), false);
        QCOMPARE(c.m_bVideoAppLaunch(0, 2), false);
        QCOMPARE(c.m_bVideoAppLaunch(0, 3), true);
    }

    void moreThanEightMidiDevicesSpillIntoTheFlashPort()
    {
        SetFullPerformance();
        QVERIFY(WriteMainConfigFile(path("nine.qel")));
        QStringList lines = FileLines(path("nine.qel"));
        lines[lines.indexOf(QStringLiteral("; Number of MIDI devices:")) + 1] = QStringLiteral(" 9 ");
        const qsizetype blank = lines.indexOf(QStringLiteral("; Flash Port:")) - 1;
        lines.insert(blank, QStringLiteral("77"));
        lines.insert(blank, QStringLiteral(" 2 "));
        lines.insert(blank, QStringLiteral(" 9 "));
        QVERIFY(WriteBytes(path("nine.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        ReadMainConfigFile(path("nine.qel"));
        QCOMPARE(gMainConfig.m_iNMIDIs, qint16(9));
        QCOMPARE(gMainConfig.m_strMIDIPortLabel(7), QStringLiteral("MIDI \u00e9\u20ac 7"));
        QCOMPARE(gMainConfig.m_iFlashPort, qint16(77));   // the ninth device's label
        QCOMPARE(gMainConfig.m_iQDMPort, qint16(1122));   // the real Flash port

        // With a label that is no number, the read fails at the Flash port.
        lines[lines.indexOf(QStringLiteral("77"))] = QStringLiteral("Ninth");
        QVERIFY(WriteBytes(path("nine.qel"), Lines1252(lines.mid(0, lines.size() - 1))));
        FillSentinels();
        QVERIFY(!ReadMainConfigFile(path("nine.qel")));
        QCOMPARE(gMainConfig.m_iFlashPort, qint16(77));
    }
};

QTEST_MAIN(TestMainConfig)
#include "test_mainconfig.moc"
