// Damaged rule files: a fixed-seed series of mutations of the golden files is fed
// to both readers, which must answer true or false, never crash or hang, and show
// exactly one message box for each false.
#include <QtTest>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <random>
#include "model/ModuleGlobals.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/TestData.h"
#include "rules/RuleTestHelpers.h"

using namespace ruletest;

namespace {

class Mutator {
public:
    explicit Mutator(quint32 seed) : m_engine(seed) {}

    QByteArray mutate(QByteArray bytes)
    {
        const int steps = 1 + int(next(3));
        for (int i = 0; i < steps; ++i)
            bytes = step(bytes);
        return bytes;
    }

private:
    quint32 next(quint32 bound) { return bound == 0 ? 0 : quint32(m_engine() % bound); }

    static QList<QByteArray> lines(const QByteArray& bytes) { return bytes.split('\n'); }
    static QByteArray join(const QList<QByteArray>& lines) { return lines.join('\n'); }

    QByteArray step(QByteArray bytes)
    {
        static const char kInteresting[] = {';', '\r', '\n', ' ', '-', '0', '9', '.', 'A', '\0', char(0xFF), char(0x80)};
        const quint32 size = quint32(bytes.size());
        switch (next(8)) {
        case 0:   // flip one bit
            if (size)
                bytes[next(size)] ^= char(1u << next(8));
            break;
        case 1:   // a byte of a kind the grammar cares about
            if (size)
                bytes[next(size)] = kInteresting[next(sizeof kInteresting)];
            break;
        case 2:   // cut the file short
            bytes.truncate(qsizetype(next(size + 1)));
            break;
        case 3: { // drop a line
            auto l = lines(bytes);
            if (!l.isEmpty())
                l.removeAt(qsizetype(next(quint32(l.size()))));
            bytes = join(l);
            break;
        }
        case 4: { // duplicate a line
            auto l = lines(bytes);
            if (!l.isEmpty()) {
                const qsizetype at = qsizetype(next(quint32(l.size())));
                l.insert(at, l[at]);
            }
            bytes = join(l);
            break;
        }
        case 5: { // swap two lines
            auto l = lines(bytes);
            if (l.size() > 1)
                l.swapItemsAt(qsizetype(next(quint32(l.size()))), qsizetype(next(quint32(l.size()))));
            bytes = join(l);
            break;
        }
        case 6:   // insert a byte
            bytes.insert(qsizetype(next(size + 1)), kInteresting[next(sizeof kInteresting)]);
            break;
        default: { // replace a number by a large or odd one
            static const char* kNumbers[] = {"99999", "-32769", "32767", "-1", "1e9", "2.5", "", "x"};
            qsizetype at = size ? qsizetype(next(size)) : 0;
            while (at < bytes.size() && !(bytes[at] >= '0' && bytes[at] <= '9'))
                ++at;
            qsizetype end = at;
            while (end < bytes.size() && bytes[end] >= '0' && bytes[end] <= '9')
                ++end;
            if (at < bytes.size())
                bytes.replace(at, end - at, kNumbers[next(8)]);
            break;
        }
        }
        return bytes;
    }

    std::mt19937 m_engine;
};

constexpr int kMutations = 300;

} // namespace

class TestRuleFileMutation : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        gTotemAxes.Fill(4);
    }

    void damagedEventsFilesReadTrueOrFalseWithOneBoxPerFailure()
    {
        const QList<QByteArray> seeds = {ReadBytes(TestDataPath(QStringLiteral("rules/Events.cfg"))),
                                         ReadBytes(TestDataPath(QStringLiteral("rules/WorkedExample.cfg")))};
        QVERIFY(!seeds[0].isEmpty() && !seeds[1].isEmpty());
        Mutator mutator(20240611u);
        BoxCloser closer;
        const QString file = m_dir.filePath(QStringLiteral("Events.cfg"));
        int failures = 0;
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < kMutations; ++i) {
            const QByteArray bytes = mutator.mutate(seeds[i % 2]);
            QVERIFY(WriteBytes(file, bytes));
            ResetScenes({2, 1, 3});
            closer.reset();
            const bool ok = ReadEventsFile(file);
            QVERIFY2(closer.count() == (ok ? 0 : 1),
                     qPrintable(QStringLiteral("mutation %1: result %2 with %3 boxes").arg(i).arg(ok).arg(closer.count())));
            if (ok) {
                for (const auto& scene : gScenes)
                    for (const auto& part : scene->PartList)
                        for (const auto& rule : part->AudioEvents)
                            QVERIFY(rule->m_MsgOut);
            } else {
                ++failures;
                QVERIFY(closer.texts().first().startsWith(QStringLiteral("Error opening events configuration file!\r\nScene: ")));
                QCOMPARE(gMaxEventsPerPart, qint16(0));
            }
        }
        // The mutations must reach both outcomes to mean anything.
        QVERIFY(failures > 0);
        QVERIFY(failures < kMutations);
        QVERIFY2(clock.elapsed() < 60000, "the readers took too long");
    }

    void damagedGlobalEventsFilesReadTrueOrFalseWithOneBoxPerFailure()
    {
        const QByteArray seed = ReadBytes(TestDataPath(QStringLiteral("rules/GlobalEvents.cfg")));
        QVERIFY(!seed.isEmpty());
        Mutator mutator(771u);
        BoxCloser closer;
        const QString file = m_dir.filePath(QStringLiteral("GlobalEvents.cfg"));
        int failures = 0;
        for (int i = 0; i < kMutations; ++i) {
            QVERIFY(WriteBytes(file, mutator.mutate(seed)));
            closer.reset();
            const bool ok = ReadGlobalEventsFile(file);
            QVERIFY2(closer.count() == (ok ? 0 : 1),
                     qPrintable(QStringLiteral("mutation %1: result %2 with %3 boxes").arg(i).arg(ok).arg(closer.count())));
            if (!ok) {
                ++failures;
                QCOMPARE(closer.texts().first(), QStringLiteral("Error opening global events configuration file!"));
            }
            // Whatever was read can be written again or fails cleanly.
            WriteGlobalEventsFile(m_dir.filePath(QStringLiteral("again.cfg")));
        }
        QVERIFY(failures > 0);
        QVERIFY(failures < kMutations);
    }
};

QTEST_MAIN(TestRuleFileMutation)
#include "test_rulefilemutation.moc"
