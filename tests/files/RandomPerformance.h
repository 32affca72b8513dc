#pragma once
// A seeded generator of whole performances for the file tests: the main record
// and its module tables, scenes with subscenes and capture settings, the
// exoskeleton and Arduino records, and optionally rules and robot rules.
//
// Every value it makes can be written and read back by the file layer, with
// these exceptions left out on purpose because they do not survive a reading:
// subscene names, subscene remarks and capture root folders have no blanks at
// either end; exoskeleton items and capture root folders hold no comma; the
// digital IO table stays within 16 bits, as the reader converts to Integer.
// Rules and robot rules are not read back by the readers of the scenes file.
#include <memory>
#include <QRandomGenerator>
#include <QString>
#include "files/CBotEvent.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CAction.h"
#include "rules/CEvent.h"

struct RandomPerformanceOptions {
    int maxScenes = 8;          // 1 to maxScenes scenes
    int maxParts = 3;           // 1 to maxParts subscenes per scene
    bool withRules = false;     // CEvent records with CAction lists in AudioEvents
    bool withBotRules = false;  // CBotEvent records in BotEvents
    bool maxCounts = false;     // every device count at its maximum
};

class RandomPerformance {
public:
    explicit RandomPerformance(quint32 seed) : m_rng(seed) {}

    int Int(int lo, int hi) { return lo + static_cast<int>(m_rng.bounded(static_cast<quint32>(hi - lo + 1))); }
    qint16 Int16() { return static_cast<qint16>(Int(-32768, 32767)); }
    bool Chance(int percent) { return Int(1, 100) <= percent; }

    // A text of up to maxLength characters drawn from letters, digits, blanks,
    // punctuation with commas and semicolons, and accented Windows-1252 letters.
    QString Text(int maxLength, bool allowComma = true, bool trimmedEnds = false)
    {
        static const QString alphabet = QStringLiteral(
            "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ,;.:-_\\/()'\"!?\u00e9\u00e1\u00f1\u00dc\u00e7\u20ac\u00bf");
        const int length = Int(0, maxLength);
        QString text;
        for (int i = 0; i < length; ++i) {
            QChar c = alphabet[Int(0, static_cast<int>(alphabet.size()) - 1)];
            if (!allowComma && c == u',')
                c = u'.';
            text += c;
        }
        if (trimmedEnds) {
            while (text.startsWith(u' ')) text.remove(0, 1);
            while (text.endsWith(u' ')) text.chop(1);
        }
        return text;
    }

    void FillMainConfig(const RandomPerformanceOptions& o = {})
    {
        CMainConfig& c = gMainConfig;
        c.m_strName = Text(30);
        c.m_iNExos = static_cast<qint16>(o.maxCounts ? 2 : Int(0, 2));
        c.m_iNTotems = static_cast<qint16>(o.maxCounts ? 4 : Int(0, 4));
        c.m_iNOSCs = static_cast<qint16>(o.maxCounts ? 16 : Int(0, 16));
        c.m_iNArduinos = static_cast<qint16>(o.maxCounts ? 16 : Int(0, 16));
        c.m_iNQDMs = static_cast<qint16>(o.maxCounts ? 8 : Int(0, 8));
        c.m_iNMIDIs = static_cast<qint16>(o.maxCounts ? 8 : Int(-1, 8));
        c.m_iNFlash = static_cast<qint16>(o.maxCounts ? 16 : Int(0, 16));
        c.m_iNVideoCaps = static_cast<qint16>(o.maxCounts ? 4 : Int(0, 4));
        for (int i = 0; i <= 8; ++i)
            c.m_iNAppPerQDM(i) = static_cast<qint16>(o.maxCounts ? 8 : Int(0, 8));
        c.m_iTalporPort = Int16();
        for (int i = 0; i <= 7; ++i) {
            c.m_iMIDIPort(i) = static_cast<qint16>(Chance(20) ? -1 : Int(0, 127));
            c.m_iPortInOut(i) = static_cast<qint16>(Int(0, 2));
            c.m_strMIDIPortLabel(i) = Chance(15) ? QString() : Text(20);
        }
        c.m_iFlashPort = Int16();
        c.m_iQDMPort = Int16();
        c.m_iExo1Port = Int16();
        c.m_iExo2Port = Int16();
        c.m_strLocalIPAddress = QStringLiteral("%1.%2.%3.%4").arg(Int(0, 255)).arg(Int(0, 255)).arg(Int(0, 255)).arg(Int(0, 255));
        c.m_iMovieWidth = Int16();
        c.m_iMovieHeight = Int16();
        c.m_lBkColor = static_cast<qint32>(Int(0, 0xFFFFFF));
        for (int i = 0; i <= 15; ++i)
            c.m_strFlashFolderPath(i) = Text(30);
        for (int i = 0; i <= 7; ++i) {
            c.m_strDisplayManagerPath(i) = Text(30);
            for (int j = 0; j <= 7; ++j) {
                c.m_strVideoAppLabel(i, j) = Text(20);
                c.m_strVideoAppWindow(i, j) = Text(20);
                c.m_strVideoAppPath(i, j) = Text(20);
                c.m_bVideoAppLaunch(i, j) = Chance(50);
            }
        }
        for (int i = 0; i <= 4; ++i)
            c.m_iTotemDevice(i) = static_cast<qint16>(Int(0, 16));
        c.m_iEventsPerSec = Int16();
        for (int i = 0; i <= 15; ++i) {
            c.m_iOSCPortInOut(i) = static_cast<qint16>(Int(0, 2));
            c.m_iOSCPort(i) = static_cast<qint16>(Int(-1, 32767));
            c.m_strOSCPortLabel(i) = Text(20);
            c.m_strOSCIP(i) = Text(15);
        }
        for (int i = 0; i <= 3; ++i) {
            gTotemAxes(i) = static_cast<qint16>(Int(0, 32));
            gTotemButtons(i) = static_cast<qint16>(Int(0, 32));
            gDigitalIOCardID(i) = Int(0, 32767);
            gDigitalIONIn(i) = Int(0, 32767);
            gDigitalIONOut(i) = Int(0, 32767);
        }
        gNDigitalIO = o.maxCounts ? 4 : Int(0, 4);
    }

    // Fills one capture setting with values that survive the capture file.
    void FillCapture(CVideoCapture& cap)
    {
        cap.m_iFPS = Int16();
        cap.m_iQuality = Int16();
        cap.m_strRootFolder = Text(25, false, true);
        cap.m_iNumFolders = Int16();
        cap.m_iMaxTime = Int16();
    }

    std::shared_ptr<CEvent> MakeRule()
    {
        auto rule = std::make_shared<CEvent>();
        rule->m_iInterType = static_cast<qint16>(Int(0, 3));
        rule->m_iSense = static_cast<qint16>(Int(0, 2));
        rule->m_iSourceType = static_cast<qint16>(Int(0, 10));
        rule->m_iSource = static_cast<qint16>(Int(0, 15));
        rule->m_iItem = static_cast<qint16>(Int(-1, 40));
        rule->m_strVariable = Text(10);
        rule->m_strVal1 = Text(5);
        rule->m_strVal2 = Text(5);
        rule->m_iChannel = static_cast<qint16>(Int(-1, 15));
        rule->m_strMin = QString::number(Int(0, 100));
        rule->m_strMax = QString::number(Int(100, 1000));
        rule->m_bClip = Chance(50);
        rule->m_bEnabled = Chance(80);
        rule->m_strRemarks = Text(20);
        rule->m_strGroup = Text(8);
        if (!Chance(10)) {
            rule->m_MsgOut = std::make_shared<Collection<CAction>>();
            const int actions = Int(0, 3);
            for (int a = 0; a < actions; ++a)
                rule->m_MsgOut->Add(MakeAction());
        }
        rule->m_strEvent = Text(30);
        return rule;
    }

    std::shared_ptr<CAction> MakeAction()
    {
        auto action = std::make_shared<CAction>();
        action->m_iTargetType = static_cast<qint16>(Int(0, 10));
        action->m_iTarget = static_cast<qint16>(Int(0, 15));
        action->m_iChannel = static_cast<qint16>(Int(-1, 15));
        action->m_iCommand = static_cast<qint16>(Int(-1, 20));
        action->m_strVariable = Text(10);
        action->m_strVal1 = Text(5);
        action->m_strVal2 = Text(5);
        action->m_strMax = QString::number(Int(0, 127));
        action->m_strMin = QString::number(Int(0, 127));
        action->m_iAction = static_cast<qint16>(Int(0, 2));
        action->m_strMIDIFile = Text(15);
        action->m_strMessage = Text(30);
        return action;
    }

    std::shared_ptr<CBotEvent> MakeBotRule()
    {
        static const qint16 robots[] = {0, 1, 3, 5};
        auto bot = std::make_shared<CBotEvent>();
        bot->m_iType = static_cast<qint16>(Int(0, 3));
        bot->m_iSource = static_cast<qint16>(Int(0, 5));
        bot->m_iRukaBot = robots[Int(0, 3)];
        bot->m_iSelectItem = static_cast<qint16>(Int(0, 36));
        bot->m_iEmbragueItem = static_cast<qint16>(Int(0, 36));
        bot->m_iItem1 = static_cast<qint16>(Int(0, 36));
        bot->m_iItem6 = static_cast<qint16>(Int(0, 36));
        bot->m_strMIDIFile1 = Text(12);
        bot->m_strRemarks = Text(40);
        bot->m_bLoop = Chance(50);
        return bot;
    }

    // Replaces gScenes with 1 to maxScenes scenes, each with 1 to maxParts
    // subscenes whose capture settings are random.
    void FillScenes(const RandomPerformanceOptions& o = {})
    {
        static const qint16 colours[] = {0, 8, 9, 10, 11, 12, 13, 14};
        gScenes.Clear();
        const int scenes = Int(1, o.maxScenes);
        for (int s = 0; s < scenes; ++s) {
            auto scene = std::make_shared<CScene>();
            scene->m_iID = static_cast<qint16>(s);
            scene->m_strName = Text(25).toUpper();
            scene->m_strRemarks = Text(40);
            scene->m_iColor = colours[Int(0, 7)];
            for (int j = 0; j <= 15; ++j)
                scene->m_strMovie(j) = Text(30);
            scene->InitPartList();
            const int parts = Int(1, o.maxParts);
            for (int k = 1; k < parts; ++k) {
                auto part = std::make_shared<CPart>();
                part->m_iID = static_cast<qint16>(k);
                part->m_iScene = scene->m_iID;
                part->InitEventList();
                scene->AddPart(part, k + 1);
            }
            for (const auto& part : scene->PartList) {
                part->m_strName = Text(20, true, true);
                part->m_strRemarks = Text(30, true, true);
                for (int d = 0; d <= 3; ++d)
                    FillCapture(*part->m_VideoCapture(d));
                if (o.withRules) {
                    const int rules = Int(0, 4);
                    for (int r = 0; r < rules; ++r)
                        part->AddAudioEvent(MakeRule(), part->AudioEvents.Count() + 1);
                }
                if (o.withBotRules) {
                    const int bots = Int(0, 4);
                    for (int r = 0; r < bots; ++r)
                        part->AddBotEvent(MakeBotRule(), part->BotEvents.Count() + 1);
                }
            }
            gScenes.Add(scene);
        }
        gLastScene = static_cast<qint16>(gScenes.Count() - 1);
    }

    void FillExoData()
    {
        for (int e = 0; e <= 1; ++e) {
            CExoData& data = gExoData(e);
            data.m_iID = static_cast<qint16>(Int(1, 2));
            for (int row = 0; row < kExoRows; ++row) {
                data.m_iChannel(row) = static_cast<qint16>(Int(1, 32));
                data.m_iType(row) = static_cast<qint16>(Int(0, 3));
                data.m_strItem(row) = Chance(30) ? QStringLiteral("%1y%2").arg(Int(0, 36)).arg(Int(0, 36))
                                                 : Text(6, false);
                data.m_iMin(row) = Int16();
                data.m_iMax(row) = Int16();
            }
        }
    }

    void FillArduinoData()
    {
        for (int a = 0; a <= 15; ++a) {
            CArduinoData& data = gArduinoData(a);
            data.m_strLabel = Text(25);
            data.m_iCOMPort = static_cast<qint16>(Int(0, 32));
            data.m_iNumAnalogInputs = static_cast<qint16>(Int(0, 32));
            data.m_iNumDigitalIOs = static_cast<qint16>(Int(0, 96));
            for (int i = 0; i <= 31; ++i) {
                data.m_iMin(i) = Int16();
                data.m_iMax(i) = Int16();
            }
            for (int i = 0; i <= 95; ++i)
                data.m_iDigitalType(i) = static_cast<qint16>(Int(0, 2));
        }
    }

    // Everything at once; the sensor labels and type names are filled too.
    void FillAll(const RandomPerformanceOptions& o = {})
    {
        InitExoSensorLabels();
        InitExoTypeNames();
        FillMainConfig(o);
        FillScenes(o);
        FillExoData();
        FillArduinoData();
    }

private:
    QRandomGenerator m_rng;
};
