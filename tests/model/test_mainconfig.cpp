// The main configuration record and the module-level state beside it.
#include <QtTest>
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/RuntimeError.h"

namespace {
// Both ends of an indexed field are accepted, one step beyond either end raises.
template <typename Array>
bool acceptsOnly(Array& a, int lo, int hi)
{
    try {
        a(lo);
        a(hi);
    } catch (const RangeError&) {
        return false;
    }
    for (int bad : {lo - 1, hi + 1}) {
        try {
            a(bad);
            return false;
        } catch (const RangeError&) {
        }
    }
    return true;
}

template <typename Table>
bool tableAcceptsOnly(Table& t, int hi1, int hi2)
{
    try {
        t(0, 0);
        t(hi1, hi2);
        t(0, hi2);
        t(hi1, 0);
    } catch (const RangeError&) {
        return false;
    }
    const int bad[][2] = {{-1, 0}, {0, -1}, {hi1 + 1, 0}, {0, hi2 + 1}};
    for (const auto& b : bad) {
        try {
            t(b[0], b[1]);
            return false;
        } catch (const RangeError&) {
        }
    }
    return true;
}
} // namespace

class TestMainConfig : public QObject {
    Q_OBJECT
private slots:
    void midiCountOfMinusOneLoopsZeroTimes()
    {
        CMainConfig config;
        config.m_iNMIDIs = -1;
        QCOMPARE(config.m_iNMIDIs, qint16(-1));
        int turns = 0;
        for (int i = 0; i <= config.m_iNMIDIs - 1; ++i) {
            config.m_iMIDIPort(i);   // would be fine anyway, but must not even run
            ++turns;
        }
        QCOMPARE(turns, 0);
    }

    void appPerQdmAcceptsIndexEightAndRaisesAtNine()
    {
        CMainConfig config;
        config.m_iNAppPerQDM(8) = 3;
        QCOMPARE(config.m_iNAppPerQDM(8), qint16(3));
        QVERIFY_THROWS_EXCEPTION(RangeError, config.m_iNAppPerQDM(9));
        QVERIFY_THROWS_EXCEPTION(RangeError, config.m_iNAppPerQDM(-1));
    }

    void totemDeviceAcceptsIndexFourAndRaisesAtFive()
    {
        CMainConfig config;
        config.m_iTotemDevice(4) = 7;
        QCOMPARE(config.m_iTotemDevice(4), qint16(7));
        QVERIFY_THROWS_EXCEPTION(RangeError, config.m_iTotemDevice(5));
        QVERIFY_THROWS_EXCEPTION(RangeError, config.m_iTotemDevice(-1));
    }

    void exoDataFileAcceptsIndicesZeroAndOneOnly()
    {
        CMainConfig config;
        config.m_strExoDataFile(0) = QStringLiteral("Exo1.cfg");
        config.m_strExoDataFile(1) = QStringLiteral("Exo2.cfg");
        QCOMPARE(config.m_strExoDataFile(0), QStringLiteral("Exo1.cfg"));
        QCOMPARE(config.m_strExoDataFile(1), QStringLiteral("Exo2.cfg"));
        QVERIFY_THROWS_EXCEPTION(RangeError, config.m_strExoDataFile(2));
        QVERIFY_THROWS_EXCEPTION(RangeError, config.m_strExoDataFile(-1));
    }

    void booleanFieldStoresTheValueItReceives()
    {
        CMainConfig config;
        config.m_bUpdate = true;
        config.m_bFlashUDPEnabled = true;
        config.m_bFlashCopyCfg(15) = true;
        config.m_bVideoAppLaunch(7, 7) = true;
        QCOMPARE(config.m_bUpdate, true);
        QCOMPARE(config.m_bFlashUDPEnabled, true);
        QCOMPARE(config.m_bFlashCopyCfg(15), true);
        QCOMPARE(config.m_bVideoAppLaunch(7, 7), true);
        QCOMPARE(config.m_bFlashCopyCfg(14), false);
        QCOMPARE(config.m_bVideoAppLaunch(7, 6), false);
        config.m_bUpdate = false;
        config.m_bVideoAppLaunch(7, 7) = false;
        QCOMPARE(config.m_bUpdate, false);
        QCOMPARE(config.m_bVideoAppLaunch(7, 7), false);
    }

    void fieldsStartAtZeroFalseOrEmpty()
    {
        const CMainConfig config;
        QVERIFY(config.m_strName.isEmpty());
        QCOMPARE(config.m_bUpdate, false);
        QCOMPARE(config.m_iNExos, qint16(0));
        QCOMPARE(config.m_iNTotems, qint16(0));
        QCOMPARE(config.m_iNOSCs, qint16(0));
        QCOMPARE(config.m_iNArduinos, qint16(0));
        QCOMPARE(config.m_iNQDMs, qint16(0));
        QCOMPARE(config.m_iNMIDIs, qint16(0));
        QCOMPARE(config.m_iNFlash, qint16(0));
        QCOMPARE(config.m_iNVideoCaps, qint16(0));
        QCOMPARE(config.m_iTalporPort, qint16(0));
        QCOMPARE(config.m_iFlashPort, qint16(0));
        QCOMPARE(config.m_iFlashUDPPort, qint16(0));
        QCOMPARE(config.m_bFlashUDPEnabled, false);
        QCOMPARE(config.m_iQDMPort, qint16(0));
        QCOMPARE(config.m_iExo1Port, qint16(0));
        QCOMPARE(config.m_iExo2Port, qint16(0));
        QCOMPARE(config.m_iMovieWidth, qint16(0));
        QCOMPARE(config.m_iMovieHeight, qint16(0));
        QCOMPARE(config.m_lBkColor, qint32(0));
        QCOMPARE(config.m_iEventsPerSec, qint16(0));
        QVERIFY(config.m_strScenesFile.isEmpty());
        QVERIFY(config.m_strEventsFile.isEmpty());
        QVERIFY(config.m_strLocalIPAddress.isEmpty());
        for (int i = 0; i <= 8; ++i)
            QCOMPARE(config.m_iNAppPerQDM(i), qint16(0));
        for (int i = 0; i <= 7; ++i) {
            QCOMPARE(config.m_iMIDIPort(i), qint16(0));
            QVERIFY(config.m_strMIDIPortLabel(i).isEmpty());
            for (int j = 0; j <= 7; ++j) {
                QVERIFY(config.m_strVideoAppLabel(i, j).isEmpty());
                QCOMPARE(config.m_bVideoAppLaunch(i, j), false);
            }
        }
        for (int i = 0; i <= 15; ++i) {
            QCOMPARE(config.m_iOSCPort(i), qint16(0));
            QVERIFY(config.m_strOSCIP(i).isEmpty());
            QCOMPARE(config.m_bFlashCopyCfg(i), false);
        }
    }

    void negativePortsAndEmptyTextsAreNotRefused()
    {
        CMainConfig config;
        config.m_iQDMPort = -5;
        config.m_iOSCPort(0) = -1;
        config.m_strName = QString();
        QCOMPARE(config.m_iQDMPort, qint16(-5));
        QCOMPARE(config.m_iOSCPort(0), qint16(-1));
        QVERIFY(config.m_strName.isEmpty());
    }

    void everyIndexedFieldChecksItsBounds()
    {
        CMainConfig c;
        QVERIFY(acceptsOnly(c.m_iNAppPerQDM, 0, 8));
        QVERIFY(acceptsOnly(c.m_iMIDIPort, 0, 7));
        QVERIFY(acceptsOnly(c.m_strMIDIPortLabel, 0, 7));
        QVERIFY(acceptsOnly(c.m_iPortInOut, 0, 7));
        QVERIFY(acceptsOnly(c.m_bFlashCopyCfg, 0, 15));
        QVERIFY(acceptsOnly(c.m_strExoDataFile, 0, 1));
        QVERIFY(acceptsOnly(c.m_strArdDataFile, 0, 15));
        QVERIFY(acceptsOnly(c.m_strFlashFolderPath, 0, 15));
        QVERIFY(acceptsOnly(c.m_strDisplayManagerPath, 0, 7));
        QVERIFY(tableAcceptsOnly(c.m_strVideoAppLabel, 7, 7));
        QVERIFY(tableAcceptsOnly(c.m_strVideoAppWindow, 7, 7));
        QVERIFY(tableAcceptsOnly(c.m_strVideoAppPath, 7, 7));
        QVERIFY(tableAcceptsOnly(c.m_bVideoAppLaunch, 7, 7));
        QVERIFY(acceptsOnly(c.m_iTotemDevice, 0, 4));
        QVERIFY(acceptsOnly(c.m_iInMIDIPort, 0, 7));
        QVERIFY(acceptsOnly(c.m_iOutMIDIPort, 0, 7));
        QVERIFY(acceptsOnly(c.m_strInMIDIPortLabel, 0, 7));
        QVERIFY(acceptsOnly(c.m_strOutMIDIPortLabel, 0, 7));
        QVERIFY(acceptsOnly(c.m_iOSCPortInOut, 0, 15));
        QVERIFY(acceptsOnly(c.m_iOSCPort, 0, 15));
        QVERIFY(acceptsOnly(c.m_strOSCPortLabel, 0, 15));
        QVERIFY(acceptsOnly(c.m_strOSCIP, 0, 15));
    }

    void applicationTablesAreIndexedByManagerThenApplication()
    {
        CMainConfig c;
        c.m_strVideoAppLabel(1, 2) = QStringLiteral("QDM 2 | Video App Label 3");
        c.m_strVideoAppWindow(2, 1) = QStringLiteral("other");
        QCOMPARE(c.m_strVideoAppLabel(1, 2), QStringLiteral("QDM 2 | Video App Label 3"));
        QVERIFY(c.m_strVideoAppLabel(2, 1).isEmpty());
        QCOMPARE(c.m_strVideoAppWindow(2, 1), QStringLiteral("other"));
        QVERIFY(c.m_strVideoAppWindow(1, 2).isEmpty());
    }

    void globalRecordIsOneObjectForTheWholeRun()
    {
        CMainConfig* first = &gMainConfig;
        gMainConfig.m_strName = QStringLiteral("QEL New");
        QCOMPARE(first, &gMainConfig);
        QCOMPARE(first->m_strName, QStringLiteral("QEL New"));
    }

    void moduleTablesCheckTheirBounds()
    {
        QVERIFY(acceptsOnly(gTotemAxes, 0, 3));
        QVERIFY(acceptsOnly(gTotemButtons, 0, 3));
        QVERIFY(acceptsOnly(gDigitalIOCardID, 0, 3));
        QVERIFY(acceptsOnly(gDigitalIONIn, 0, 3));
        QVERIFY(acceptsOnly(gDigitalIONOut, 0, 3));
    }

    void moduleVariablesHaveTheirTypes()
    {
        static_assert(std::is_same_v<decltype(gLastScene), qint16>);
        static_assert(std::is_same_v<decltype(gCurrentScene), qint16>);
        static_assert(std::is_same_v<decltype(gCurrentPart), qint16>);
        static_assert(std::is_same_v<decltype(gNDigitalIO), qint32>);
        static_assert(std::is_same_v<decltype(gDirty), bool>);
        static_assert(std::is_same_v<decltype(CMainConfig::m_lBkColor), qint32>);
        static_assert(std::is_same_v<decltype(CMainConfig::m_iNMIDIs), qint16>);
        gNDigitalIO = 70000;   // a Long holds more than an Integer
        QCOMPARE(gNDigitalIO, qint32(70000));
        gNDigitalIO = 0;
    }
};

QTEST_MAIN(TestMainConfig)
#include "test_mainconfig.moc"
