// A subscene: its rule collections, capture settings and the shared counters.
#include <QtTest>
#include "files/CBotEvent.h"
#include "model/CLightsEvent.h"
#include "model/CMovieEvent.h"
#include "model/CPart.h"
#include "rules/CEvent.h"
#include "support/RuntimeError.h"

namespace {
std::shared_ptr<CEvent> rule(const QString& tag)
{
    auto e = std::make_shared<CEvent>();
    e->m_strRemarks = tag;
    return e;
}

std::shared_ptr<CBotEvent> botRule(const QString& tag)
{
    auto e = std::make_shared<CBotEvent>();
    e->m_strRemarks = tag;
    return e;
}

QStringList tags(const Collection<CEvent>& c)
{
    QStringList out;
    for (const auto& e : c)
        out << e->m_strRemarks;
    return out;
}

QStringList tags(const Collection<CBotEvent>& c)
{
    QStringList out;
    for (const auto& e : c)
        out << e->m_strRemarks;
    return out;
}

void setCounters(qint16 v)
{
    gMovieEventCount = v;
    gAudioEventCount = v;
    gBotEventCount = v;
    gLightsEventCount = v;
}
} // namespace

class TestPart : public QObject {
    Q_OBJECT
private slots:
    void init() { setCounters(0); }

    void captureSettingsHaveTheirDefaults()
    {
        const CVideoCapture capture;
        QCOMPARE(capture.m_iFPS, qint16(5));
        QCOMPARE(capture.m_iQuality, qint16(50));
        QCOMPARE(capture.m_strRootFolder, QStringLiteral("C:\\"));
        QCOMPARE(capture.m_iNumFolders, qint16(8));
        QCOMPARE(capture.m_iMaxTime, qint16(3));
    }

    void newPartIsEmpty()
    {
        const CPart part;
        QCOMPARE(part.m_iID, qint16(0));
        QCOMPARE(part.m_iScene, qint16(0));
        QVERIFY(part.m_strName.isEmpty());
        QVERIFY(part.m_strRemarks.isEmpty());
        QCOMPARE(part.AudioEvents.Count(), 0);
    }

    void initEventListMakesFourCaptureSettings()
    {
        CPart part;
        part.InitEventList();
        for (int i = 0; i <= 3; ++i) {
            const auto& capture = part.m_VideoCapture(i);
            QVERIFY(capture);
            QCOMPARE(capture->m_iFPS, qint16(5));
            QCOMPARE(capture->m_iQuality, qint16(50));
            QCOMPARE(capture->m_strRootFolder, QStringLiteral("C:\\"));
            QCOMPARE(capture->m_iNumFolders, qint16(8));
            QCOMPARE(capture->m_iMaxTime, qint16(3));
            for (int j = 0; j < i; ++j)
                QVERIFY(part.m_VideoCapture(j).get() != capture.get());
        }
    }

    void initEventListMakesEmptyCollections()
    {
        CPart part;
        part.InitEventList();
        QCOMPARE(part.MovieEvents.Count(), 0);
        QCOMPARE(part.BotEvents.Count(), 0);
        QCOMPARE(part.AudioEvents.Count(), 0);
        QCOMPARE(part.LightsEvents.Count(), 0);
    }

    void initEventListDropsWhatThePartHad()
    {
        CPart part;
        part.InitEventList();
        part.AddAudioEvent(rule("a"), 1);
        part.AddBotEvent(botRule("b"), 1);
        part.AddMovieEvent(std::make_shared<CMovieEvent>(), 1);
        part.AddLightsEvent(std::make_shared<CLightsEvent>(), 1);
        part.m_VideoCapture(2)->m_iFPS = 25;
        const CVideoCapture* old = part.m_VideoCapture(2).get();
        part.InitEventList();
        QCOMPARE(part.AudioEvents.Count(), 0);
        QCOMPARE(part.BotEvents.Count(), 0);
        QCOMPARE(part.MovieEvents.Count(), 0);
        QCOMPARE(part.LightsEvents.Count(), 0);
        QVERIFY(part.m_VideoCapture(2).get() != old);
        QCOMPARE(part.m_VideoCapture(2)->m_iFPS, qint16(5));
    }

    void initEventListZeroesTheCounters()
    {
        setCounters(9);
        CPart part;
        part.InitEventList();
        QCOMPARE(gMovieEventCount, qint16(0));
        QCOMPARE(gAudioEventCount, qint16(0));
        QCOMPARE(gBotEventCount, qint16(0));
        QCOMPARE(gLightsEventCount, qint16(0));
    }

    void initEventListOfANewPartZeroesTheOtherPartsTotals()
    {
        CPart first;
        first.InitEventList();
        first.AddAudioEvent(rule("a"), 1);
        first.AddAudioEvent(rule("b"), 2);
        first.AddBotEvent(botRule("c"), 1);
        first.AddMovieEvent(std::make_shared<CMovieEvent>(), 1);
        first.AddLightsEvent(std::make_shared<CLightsEvent>(), 1);
        QCOMPARE(gAudioEventCount, qint16(2));
        QCOMPARE(gBotEventCount, qint16(1));
        QCOMPARE(gMovieEventCount, qint16(1));
        QCOMPARE(gLightsEventCount, qint16(1));

        CPart second;
        second.InitEventList();
        QCOMPARE(gAudioEventCount, qint16(0));
        QCOMPARE(gBotEventCount, qint16(0));
        QCOMPARE(gMovieEventCount, qint16(0));
        QCOMPARE(gLightsEventCount, qint16(0));
        // The first part keeps its rules; only the shared totals are gone.
        QCOMPARE(first.AudioEvents.Count(), 2);
        QCOMPARE(first.BotEvents.Count(), 1);
        // Removing from the first part now takes the shared total below zero.
        first.RemoveAudioEvent(1);
        QCOMPARE(gAudioEventCount, qint16(-1));
    }

    void captureIndexOutsideZeroToThreeRaises()
    {
        CPart part;
        part.InitEventList();
        QVERIFY_THROWS_EXCEPTION(RangeError, part.m_VideoCapture(4));
        QVERIFY_THROWS_EXCEPTION(RangeError, part.m_VideoCapture(-1));
        auto replacement = std::make_shared<CVideoCapture>();
        replacement->m_iQuality = 90;
        part.m_VideoCapture(3) = replacement;
        QCOMPARE(part.m_VideoCapture(3)->m_iQuality, qint16(90));
    }

    void addAudioEventInsertsBeforeAPositionInRange()
    {
        CPart part;
        part.InitEventList();
        part.AddAudioEvent(rule("c"), 1);         // count + 1 on an empty list: appended
        part.AddAudioEvent(rule("a"), 1);
        part.AddAudioEvent(rule("b"), 2);
        part.AddAudioEvent(rule("d"), 4);
        QCOMPARE(tags(part.AudioEvents), (QStringList{"a", "b", "c", "d"}));
        QCOMPARE(gAudioEventCount, qint16(4));
    }

    void addMovieEventTwoBeyondTheCountDoesNothingWhileAddAudioEventAppends()
    {
        CPart part;
        part.InitEventList();
        part.AddMovieEvent(std::make_shared<CMovieEvent>(), 1);
        part.AddAudioEvent(rule("a"), 1);
        QCOMPARE(gMovieEventCount, qint16(1));
        QCOMPARE(gAudioEventCount, qint16(1));

        part.AddMovieEvent(std::make_shared<CMovieEvent>(), part.MovieEvents.Count() + 2);
        QCOMPARE(part.MovieEvents.Count(), 1);
        QCOMPARE(gMovieEventCount, qint16(1));

        part.AddAudioEvent(rule("b"), part.AudioEvents.Count() + 2);
        QCOMPARE(tags(part.AudioEvents), (QStringList{"a", "b"}));
        QCOMPARE(gAudioEventCount, qint16(2));
    }

    void addAudioEventNeverRefusesARule()
    {
        CPart part;
        part.InitEventList();
        part.AddAudioEvent(rule("a"), 0);
        part.AddAudioEvent(rule("b"), -3);
        part.AddAudioEvent(rule("c"), 100);
        part.AddAudioEvent(rule("d"), 32767);
        QCOMPARE(tags(part.AudioEvents), (QStringList{"a", "b", "c", "d"}));
        QCOMPARE(gAudioEventCount, qint16(4));
    }

    void addMovieEventFollowsThePositionRule()
    {
        CPart part;
        part.InitEventList();
        auto first = std::make_shared<CMovieEvent>();
        auto second = std::make_shared<CMovieEvent>();
        auto third = std::make_shared<CMovieEvent>();
        part.AddMovieEvent(first, 0);
        QCOMPARE(part.MovieEvents.Count(), 0);
        part.AddMovieEvent(first, 2);
        QCOMPARE(part.MovieEvents.Count(), 0);
        QCOMPARE(gMovieEventCount, qint16(0));
        part.AddMovieEvent(first, 1);
        part.AddMovieEvent(third, 2);
        part.AddMovieEvent(second, 2);
        QCOMPARE(part.MovieEvents.Count(), 3);
        QCOMPARE(part.MovieEvents.Item(1).get(), first.get());
        QCOMPARE(part.MovieEvents.Item(2).get(), second.get());
        QCOMPARE(part.MovieEvents.Item(3).get(), third.get());
        part.AddMovieEvent(std::make_shared<CMovieEvent>(), -1);
        QCOMPARE(part.MovieEvents.Count(), 3);
        QCOMPARE(gMovieEventCount, qint16(3));
    }

    void addBotEventFollowsThePositionRule()
    {
        CPart part;
        part.InitEventList();
        part.AddBotEvent(botRule("b"), 1);
        part.AddBotEvent(botRule("a"), 1);
        part.AddBotEvent(botRule("c"), 3);
        part.AddBotEvent(botRule("x"), 5);
        part.AddBotEvent(botRule("y"), 0);
        QCOMPARE(tags(part.BotEvents), (QStringList{"a", "b", "c"}));
        QCOMPARE(gBotEventCount, qint16(3));
    }

    void addLightsEventFollowsThePositionRule()
    {
        CPart part;
        part.InitEventList();
        part.AddLightsEvent(std::make_shared<CLightsEvent>(), 1);
        part.AddLightsEvent(std::make_shared<CLightsEvent>(), 2);
        part.AddLightsEvent(std::make_shared<CLightsEvent>(), 4);
        part.AddLightsEvent(std::make_shared<CLightsEvent>(), 0);
        QCOMPARE(part.LightsEvents.Count(), 2);
        QCOMPARE(gLightsEventCount, qint16(2));
    }

    void removeAudioEventAtPositionZeroDoesNothing()
    {
        CPart part;
        part.InitEventList();
        part.AddAudioEvent(rule("a"), 1);
        part.AddAudioEvent(rule("b"), 2);
        part.RemoveAudioEvent(0);
        QCOMPARE(tags(part.AudioEvents), (QStringList{"a", "b"}));
        QCOMPARE(gAudioEventCount, qint16(2));
    }

    void removeAudioEventRemovesInRangeOnly()
    {
        CPart part;
        part.InitEventList();
        for (const char* t : {"a", "b", "c"})
            part.AddAudioEvent(rule(t), 99);
        part.RemoveAudioEvent(4);
        part.RemoveAudioEvent(-1);
        QCOMPARE(part.AudioEvents.Count(), 3);
        part.RemoveAudioEvent(2);
        QCOMPARE(tags(part.AudioEvents), (QStringList{"a", "c"}));
        QCOMPARE(gAudioEventCount, qint16(2));
        part.RemoveAudioEvent(2);
        part.RemoveAudioEvent(1);
        QCOMPARE(part.AudioEvents.Count(), 0);
        QCOMPARE(gAudioEventCount, qint16(0));
        part.RemoveAudioEvent(1);
        QCOMPARE(gAudioEventCount, qint16(0));
    }

    void removeOtherKindsRemovesInRangeOnly()
    {
        CPart part;
        part.InitEventList();
        part.AddMovieEvent(std::make_shared<CMovieEvent>(), 1);
        part.AddBotEvent(botRule("a"), 1);
        part.AddBotEvent(botRule("b"), 2);
        part.AddLightsEvent(std::make_shared<CLightsEvent>(), 1);

        part.RemoveMovieEvent(2);
        part.RemoveMovieEvent(0);
        QCOMPARE(part.MovieEvents.Count(), 1);
        part.RemoveMovieEvent(1);
        QCOMPARE(part.MovieEvents.Count(), 0);
        QCOMPARE(gMovieEventCount, qint16(0));

        part.RemoveBotEvent(3);
        QCOMPARE(part.BotEvents.Count(), 2);
        part.RemoveBotEvent(1);
        QCOMPARE(tags(part.BotEvents), (QStringList{"b"}));
        QCOMPARE(gBotEventCount, qint16(1));

        part.RemoveLightsEvent(0);
        QCOMPARE(part.LightsEvents.Count(), 1);
        part.RemoveLightsEvent(1);
        QCOMPARE(part.LightsEvents.Count(), 0);
        QCOMPARE(gLightsEventCount, qint16(0));
    }

    void aRuleCanBeInTwoPartsAtOnce()
    {
        CPart a, b;
        a.InitEventList();
        b.InitEventList();
        auto shared = rule("shared");
        a.AddAudioEvent(shared, 1);
        b.AddAudioEvent(shared, 1);
        a.AudioEvents.Item(1)->m_strGroup = QStringLiteral("G");
        QCOMPARE(b.AudioEvents.Item(1)->m_strGroup, QStringLiteral("G"));
        a.RemoveAudioEvent(1);
        QCOMPARE(b.AudioEvents.Count(), 1);
    }
};

QTEST_MAIN(TestPart)
#include "test_part.moc"
