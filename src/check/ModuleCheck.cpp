#include "check/ModuleCheck.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"

namespace {

// Every global that writing and reading a performance touches, kept aside so
// that the check can put it back as it was. The collections keep the very
// objects of the performance: the readers only replace the collections.
class ModelState {
public:
    ModelState()
        : config(gMainConfig), scenes(gScenes), globals(gGlobalEvents), globalCount(gGlobalEventCount),
          exo(gExoData), arduino(gArduinoData), axes(gTotemAxes), buttons(gTotemButtons), cards(gNDigitalIO),
          cardIDs(gDigitalIOCardID), cardIns(gDigitalIONIn), cardOuts(gDigitalIONOut), maxEvents(gMaxEventsPerPart),
          lastScene(gLastScene), currentScene(gCurrentScene), currentPart(gCurrentPart), dirty(gDirty),
          path(gConfigFilePath), name(gConfigName), folder(gConfigFolder), movieCount(gMovieEventCount),
          audioCount(gAudioEventCount), botCount(gBotEventCount), lightsCount(gLightsEventCount)
    {
    }

    void Restore() const
    {
        gMainConfig = config;
        gScenes = scenes;
        gGlobalEvents = globals;
        gGlobalEventCount = globalCount;
        gExoData = exo;
        gArduinoData = arduino;
        gTotemAxes = axes;
        gTotemButtons = buttons;
        gNDigitalIO = cards;
        gDigitalIOCardID = cardIDs;
        gDigitalIONIn = cardIns;
        gDigitalIONOut = cardOuts;
        gMaxEventsPerPart = maxEvents;
        gLastScene = lastScene;
        gCurrentScene = currentScene;
        gCurrentPart = currentPart;
        gDirty = dirty;
        gConfigFilePath = path;
        gConfigName = name;
        gConfigFolder = folder;
        gMovieEventCount = movieCount;
        gAudioEventCount = audioCount;
        gBotEventCount = botCount;
        gLightsEventCount = lightsCount;
    }

private:
    CMainConfig config;
    Collection<CScene> scenes;
    Collection<CEvent> globals;
    qint16 globalCount;
    CheckedArray<CExoData, 0, 1> exo;
    CheckedArray<CArduinoData, 0, 15> arduino;
    CheckedArray<qint16, 0, 3> axes, buttons;
    qint32 cards;
    CheckedArray<qint32, 0, 3> cardIDs, cardIns, cardOuts;
    qint16 maxEvents, lastScene, currentScene, currentPart;
    bool dirty;
    QString path, name, folder;
    qint16 movieCount, audioCount, botCount, lightsCount;
};

// Copies of the rules, which the writer changes (it stores " " into empty texts).
Collection<CEvent> copyRules(const Collection<CEvent>& rules)
{
    Collection<CEvent> out;
    for (const auto& rule : rules) {
        auto r = std::make_shared<CEvent>();
        CopyEvent(*r, *rule);
        if (!rule->m_MsgOut)
            r->m_MsgOut.reset();
        out.Add(r);
    }
    return out;
}

} // namespace

std::vector<CFinding> CheckPerformance()
{
    std::vector<CFinding> findings;
    const ModelState state;
    CheckRuleBlocks(findings);
    bool rulesBreak = false;
    for (const auto& f : findings)
        rulesBreak = rulesBreak || f.m_severity == Severity::Breaks;
    try {
        gGlobalEvents = copyRules(gGlobalEvents);
        CheckFilesRoundTrip(findings, rulesBreak);
    } catch (...) {
        state.Restore();
        throw;
    }
    state.Restore();
    CheckDevices(findings);
    return findings;
}
