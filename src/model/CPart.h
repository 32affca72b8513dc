#pragma once
// A subscene ("part" in the files): it owns the rules and the capture settings.
#include <memory>
#include <QString>
#include <QtGlobal>
#include "model/CVideoCapture.h"
#include "support/CheckedArray.h"
#include "support/Collection.h"

class CEvent;
class CBotEvent;
class CMovieEvent;
class CLightsEvent;

class CPart {
public:
    qint16 m_iID = 0;          // number of the subscene inside its scene, from 0
    QString m_strName;
    QString m_strRemarks;
    qint16 m_iScene = 0;       // m_iID of the owning scene when the subscene was made or last moved
    Collection<CMovieEvent> MovieEvents;
    Collection<CBotEvent> BotEvents;
    Collection<CEvent> AudioEvents;    // every rule of the subscene, whatever its devices
    Collection<CLightsEvent> LightsEvents;
    CheckedArray<std::shared_ptr<CVideoCapture>, 0, 3> m_VideoCapture;

    // Drops the collections and capture settings and makes new ones; zeroes the shared counters.
    void InitEventList();

    // Insert before a position from 1 to Count, append at Count + 1, otherwise do nothing.
    void AddMovieEvent(std::shared_ptr<CMovieEvent> event, int position);
    void AddBotEvent(std::shared_ptr<CBotEvent> event, int position);
    void AddLightsEvent(std::shared_ptr<CLightsEvent> event, int position);
    // Insert before a position from 1 to Count, append for any other position: a rule is never refused.
    void AddAudioEvent(std::shared_ptr<CEvent> event, int position);

    // Remove at a position from 1 to Count, otherwise do nothing.
    void RemoveMovieEvent(int position);
    void RemoveAudioEvent(int position);
    void RemoveBotEvent(int position);
    void RemoveLightsEvent(int position);
};

// Events added minus events removed, one count per kind, shared by all
// subscenes and zeroed by every InitEventList. Nothing reads them.
extern qint16 gMovieEventCount;
extern qint16 gAudioEventCount;
extern qint16 gBotEventCount;
extern qint16 gLightsEventCount;
