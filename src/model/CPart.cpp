#include "model/CPart.h"

qint16 gMovieEventCount = 0;
qint16 gAudioEventCount = 0;
qint16 gBotEventCount = 0;
qint16 gLightsEventCount = 0;

namespace {

template <typename T>
void addIfInRange(Collection<T>& list, std::shared_ptr<T> event, int position, qint16& counter)
{
    if (position >= 1 && position <= list.Count())
        list.Add(std::move(event), position);
    else if (position == list.Count() + 1)
        list.Add(std::move(event));
    else
        return;
    ++counter;
}

template <typename T>
void removeIfInRange(Collection<T>& list, int position, qint16& counter)
{
    if (position >= 1 && position <= list.Count()) {
        list.Remove(position);
        --counter;
    }
}

} // namespace

void CPart::InitEventList()
{
    for (int i = 0; i <= 3; ++i)
        m_VideoCapture(i) = std::make_shared<CVideoCapture>();
    MovieEvents = Collection<CMovieEvent>();
    BotEvents = Collection<CBotEvent>();
    AudioEvents = Collection<CEvent>();
    LightsEvents = Collection<CLightsEvent>();
    gMovieEventCount = 0;
    gAudioEventCount = 0;
    gBotEventCount = 0;
    gLightsEventCount = 0;
}

void CPart::AddMovieEvent(std::shared_ptr<CMovieEvent> event, int position)
{
    addIfInRange(MovieEvents, std::move(event), position, gMovieEventCount);
}

void CPart::AddBotEvent(std::shared_ptr<CBotEvent> event, int position)
{
    addIfInRange(BotEvents, std::move(event), position, gBotEventCount);
}

void CPart::AddLightsEvent(std::shared_ptr<CLightsEvent> event, int position)
{
    addIfInRange(LightsEvents, std::move(event), position, gLightsEventCount);
}

void CPart::AddAudioEvent(std::shared_ptr<CEvent> event, int position)
{
    if (position >= 1 && position <= AudioEvents.Count())
        AudioEvents.Add(std::move(event), position);
    else
        AudioEvents.Add(std::move(event));
    ++gAudioEventCount;
}

void CPart::RemoveMovieEvent(int position) { removeIfInRange(MovieEvents, position, gMovieEventCount); }
void CPart::RemoveAudioEvent(int position) { removeIfInRange(AudioEvents, position, gAudioEventCount); }
void CPart::RemoveBotEvent(int position) { removeIfInRange(BotEvents, position, gBotEventCount); }
void CPart::RemoveLightsEvent(int position) { removeIfInRange(LightsEvents, position, gLightsEventCount); }
