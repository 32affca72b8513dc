#include "files/ModuleSaveOpen.h"
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

void SaveConfiguration(const QString& path)
{
    if (path.isEmpty())
        return;
    gDirty = false;
    MakeDirectory(gConfigFolder + gConfigName);
    CMainConfig& cfg = gMainConfig;

    auto step = [](bool written, const char* message) {
        if (!written)
            MsgBoxExclamation(QString::fromLatin1(message));
    };
    step(WriteMainConfigFile(path), "Error saving main configuration!");
    step(WriteScenesFile(PerformanceFilePath(cfg.m_strScenesFile)), "Error saving scenes configuration!");
    step(WriteSceneNamesFile(PerformanceFilePath(cfg.m_strScenesFilenames)), "Error saving movies filenames!");
    step(WriteEventsFile(PerformanceFilePath(cfg.m_strEventsFile)), "Error saving events configuration!");
    step(WriteBotEventsFile(PerformanceFilePath(cfg.m_strRukaBotsFile), PerformanceFilePath(cfg.m_strTalporFile),
                            PerformanceFilePath(cfg.m_strVilnaFile)),
         "Error saving rukaBots events configuration!");
    for (int i = 1; i <= cfg.m_iNExos; ++i)
        step(WriteExoDataFile(static_cast<qint16>(i - 1), PerformanceFilePath(cfg.m_strExoDataFile(i - 1))),
             "Error saving exoskeleton data configuration!");
    for (int i = 1; i <= cfg.m_iNArduinos; ++i)
        step(WriteArduinoDataFile(static_cast<qint16>(i - 1), PerformanceFilePath(cfg.m_strArdDataFile(i - 1))),
             "Error saving Arduino data configuration!");
    WriteVideoEventsFile(PerformanceFilePath(QStringLiteral("VideoEvents.cfg")));
    step(WriteVideoCaptureFile(PerformanceFilePath(QStringLiteral("VideoCapture.cfg"))),
         "Error saving video capture configuration!");
    step(WriteGlobalEventsFile(PerformanceFilePath(QStringLiteral("GlobalEvents.cfg"))),
         "Error saving global events configuration!");
}

void OpenConfiguration(const QString& path)
{
    CMainConfig& cfg = gMainConfig;
    if (!ReadMainConfigFile(path)) {
        MsgBoxExclamation(QStringLiteral("Error opening main configuration!"));
        return;
    }
    for (int i = 1; i <= cfg.m_iNArduinos; ++i) {
        if (!ReadArduinoDataFile(static_cast<qint16>(i - 1), PerformanceFilePath(cfg.m_strArdDataFile(i - 1)))) {
            MsgBoxExclamation(QStringLiteral("Error opening Arduino data configuration!"));
            return;
        }
    }
    gLastScene = -1;
    gScenes.Clear();
    if (!ReadScenesFile(PerformanceFilePath(cfg.m_strScenesFile))) {
        MsgBoxExclamation(QStringLiteral("Error opening scenes configuration!"));
        return;
    }
    if (!ReadEventsFile(PerformanceFilePath(cfg.m_strEventsFile)))
        return;   // the rules reader has shown its own message
    if (!ReadGlobalEventsFile(PerformanceFilePath(QStringLiteral("GlobalEvents.cfg")))) {
        MsgBoxExclamation(QStringLiteral("Error opening global events configuration!"));
        return;
    }
    for (int i = 1; i <= cfg.m_iNExos; ++i) {
        if (!ReadExoDataFile(static_cast<qint16>(i - 1), PerformanceFilePath(cfg.m_strExoDataFile(i - 1)))) {
            MsgBoxExclamation(QStringLiteral("Error opening exoskeleton data configuration!"));
            return;
        }
    }
    if (!ReadVideoCaptureFile(PerformanceFilePath(QStringLiteral("VideoCapture.cfg"))))
        MsgBoxExclamation(QStringLiteral("Error opening video capture configuration!"));
}
