#include "files/ModuleSaveOpen.h"
#include <functional>
#include <QFileInfo>
#include "files/ModuleArduinoData.h"
#include "files/ModuleBotEvents.h"
#include "files/ModuleConfig.h"
#include "files/ModuleExoData.h"
#include "files/ModuleScenes.h"
#include "files/ModuleVideoCapture.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/ModuleGUI.h"
#include "support/Platform.h"
#include "support/RuntimeError.h"

QString PerformanceFilePath(const QString& name)
{
    return gConfigFolder + gConfigName + PathSeparator() + name;
}

void DeriveConfigPaths(const QString& chosenPath)
{
    gConfigFilePath = chosenPath;
    gConfigName = QFileInfo(chosenPath).fileName();
    gConfigName.chop(4);
    gConfigFolder = gConfigFilePath.left(gConfigFilePath.size() - (gConfigName.size() + 4));
}

namespace {

// One step of the sequence: a step whose file name cannot even be composed (a
// device count beyond its table) fails like a step whose writer fails.
bool stepSucceeds(const std::function<bool()>& step)
{
    try {
        return step();
    } catch (const RuntimeError&) {
        return false;
    }
}

// A save step: on failure its message, and the save goes on.
void saveStep(const std::function<bool()>& step, const char* message)
{
    if (!stepSucceeds(step))
        MsgBoxExclamation(QString::fromLatin1(message));
}

// An open step: on failure its message (if it has one), and the open ends.
bool openStep(const std::function<bool()>& step, const char* message)
{
    if (stepSucceeds(step))
        return true;
    if (message)
        MsgBoxExclamation(QString::fromLatin1(message));
    return false;
}

} // namespace

void SaveConfiguration(const QString& path)
{
    if (path.isEmpty())
        return;
    gDirty = false;
    MakeDirectory(gConfigFolder + gConfigName);
    CMainConfig& cfg = gMainConfig;

    saveStep([&] { return WriteMainConfigFile(path); }, "Error saving main configuration!");
    saveStep([&] { return WriteScenesFile(PerformanceFilePath(cfg.m_strScenesFile)); },
             "Error saving scenes configuration!");
    saveStep([&] { return WriteSceneNamesFile(PerformanceFilePath(cfg.m_strScenesFilenames)); },
             "Error saving movies filenames!");
    saveStep([&] { return WriteEventsFile(PerformanceFilePath(cfg.m_strEventsFile)); },
             "Error saving events configuration!");
    saveStep([&] {
        return WriteBotEventsFile(PerformanceFilePath(cfg.m_strRukaBotsFile), PerformanceFilePath(cfg.m_strTalporFile),
                                  PerformanceFilePath(cfg.m_strVilnaFile));
    }, "Error saving rukaBots events configuration!");
    for (int i = 1; i <= cfg.m_iNExos; ++i)
        saveStep([&] { return WriteExoDataFile(qint16(i - 1), PerformanceFilePath(cfg.m_strExoDataFile(i - 1))); },
                 "Error saving exoskeleton data configuration!");
    for (int i = 1; i <= cfg.m_iNArduinos; ++i)
        saveStep([&] { return WriteArduinoDataFile(qint16(i - 1), PerformanceFilePath(cfg.m_strArdDataFile(i - 1))); },
                 "Error saving Arduino data configuration!");
    WriteVideoEventsFile(PerformanceFilePath(QStringLiteral("VideoEvents.cfg")));
    saveStep([&] { return WriteVideoCaptureFile(PerformanceFilePath(QStringLiteral("VideoCapture.cfg"))); },
             "Error saving video capture configuration!");
    saveStep([&] { return WriteGlobalEventsFile(PerformanceFilePath(QStringLiteral("GlobalEvents.cfg"))); },
             "Error saving global events configuration!");
}

void OpenConfiguration(const QString& path)
{
    CMainConfig& cfg = gMainConfig;
    if (!openStep([&] { return ReadMainConfigFile(path); }, "Error opening main configuration!"))
        return;
    for (int i = 1; i <= cfg.m_iNArduinos; ++i)
        if (!openStep([&] { return ReadArduinoDataFile(qint16(i - 1), PerformanceFilePath(cfg.m_strArdDataFile(i - 1))); },
                      "Error opening Arduino data configuration!"))
            return;
    gLastScene = -1;
    gScenes.Clear();
    if (!openStep([&] { return ReadScenesFile(PerformanceFilePath(cfg.m_strScenesFile)); },
                  "Error opening scenes configuration!"))
        return;
    // The rules reader shows its own message.
    if (!openStep([&] { return ReadEventsFile(PerformanceFilePath(cfg.m_strEventsFile)); }, nullptr))
        return;
    if (!openStep([&] { return ReadGlobalEventsFile(PerformanceFilePath(QStringLiteral("GlobalEvents.cfg"))); },
                  "Error opening global events configuration!"))
        return;
    for (int i = 1; i <= cfg.m_iNExos; ++i)
        if (!openStep([&] { return ReadExoDataFile(qint16(i - 1), PerformanceFilePath(cfg.m_strExoDataFile(i - 1))); },
                      "Error opening exoskeleton data configuration!"))
            return;
    openStep([&] { return ReadVideoCaptureFile(PerformanceFilePath(QStringLiteral("VideoCapture.cfg"))); },
             "Error opening video capture configuration!");
}
