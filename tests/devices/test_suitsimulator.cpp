// The simulated suit on its own, spoken to over its pseudo-terminal as the
// dialog would: its answers, its options, its script and bounds.
#include <QtTest>
#include <QTemporaryDir>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>
#include "SuitSimulator.h"

namespace {

// The other end of the line: sends requests and reads what comes back within a time.
class Line {
public:
    explicit Line(const std::string& path) : m_fd(::open(path.c_str(), O_RDWR | O_NOCTTY))
    {
        termios raw{};
        tcgetattr(m_fd, &raw);
        cfmakeraw(&raw);
        tcsetattr(m_fd, TCSANOW, &raw);
    }
    ~Line() { ::close(m_fd); }
    bool ok() const { return m_fd >= 0; }
    void request(int id)
    {
        const std::uint8_t bytes[4] = {0x40, static_cast<std::uint8_t>(id), 0x20, 0x00};
        QCOMPARE(::write(m_fd, bytes, 4), ssize_t(4));
    }
    // What arrives within ms; with `enough`, stops as soon as that many bytes are in.
    std::vector<std::uint8_t> read(int ms, std::size_t enough = 0)
    {
        std::vector<std::uint8_t> got;
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < ms && (enough == 0 || got.size() < enough)) {
            pollfd p{m_fd, POLLIN, 0};
            if (poll(&p, 1, 5) > 0) {
                std::uint8_t buf[256];
                const ssize_t n = ::read(m_fd, buf, sizeof buf);
                if (n > 0)
                    got.insert(got.end(), buf, buf + n);
            }
        }
        return got;
    }

    // One answer: its 32 bytes, however slow the machine, and anything that comes straight after.
    std::vector<std::uint8_t> frame()
    {
        auto got = read(10000, 32);
        const auto more = read(20);
        got.insert(got.end(), more.begin(), more.end());
        return got;
    }

private:
    int m_fd;
};

}  // namespace

class TestSuitSimulator : public QObject {
    Q_OBJECT
private slots:
    void answersEachRequestWithThirtyTwoBytesWithinItsBounds()
    {
        SuitOptions o;
        QVERIFY(SuitSimulator::parseBounds("1-8:40-200", o));
        QVERIFY(SuitSimulator::parseBounds("29:0-3", o));
        SuitSimulator suit(o);
        QVERIFY(suit.start());
        Line line(suit.devicePath());
        QVERIFY(line.ok());
        for (int i = 0; i < 5; ++i) {
            line.request(1);
            const auto frame = line.frame();
            QCOMPARE(frame.size(), std::size_t(32));
            for (int c = 0; c < 8; ++c)
                QVERIFY(frame[c] >= 40 && frame[c] <= 200);
            QVERIFY(frame[28] <= 3);
        }
        QCOMPARE(suit.requestCount(), std::size_t(5));
        // The count goes up just after the answer is written.
        QTRY_COMPARE_WITH_TIMEOUT(suit.answerCount(), std::size_t(5), 10000);
    }

    void valuesMoveSmoothlyBetweenTheBounds()
    {
        SuitOptions o;
        o.periodMs = 1000;
        SuitSimulator suit(o);
        int lowest = 255, highest = 0, biggestStep = 0, last = suit.sampleAt(0)[0];
        for (int ms = 0; ms <= 1000; ms += 10) {
            const int v = suit.sampleAt(ms)[0];
            lowest = std::min(lowest, v);
            highest = std::max(highest, v);
            biggestStep = std::max(biggestStep, std::abs(v - last));
            last = v;
        }
        QCOMPARE(lowest, 0);
        QCOMPARE(highest, 255);
        QVERIFY(biggestStep <= 10);
    }

    void anotherIdentityGoesUnansweredUnlessAnyIsTaken()
    {
        SuitOptions o;
        o.id = 2;
        SuitSimulator strict(o);
        QVERIFY(strict.start());
        Line line(strict.devicePath());
        line.request(1);
        QVERIFY(line.read(40).empty());
        line.request(2);
        QCOMPARE(line.frame().size(), std::size_t(32));

        o.anyId = true;
        SuitSimulator loose(o);
        QVERIFY(loose.start());
        Line other(loose.devicePath());
        other.request(1);
        QCOMPARE(other.frame().size(), std::size_t(32));
    }

    void dropsEveryNthAnswerAndAnswersLate()
    {
        SuitOptions o;
        o.dropEvery = 2;
        o.lateMs = 60;
        SuitSimulator suit(o);
        QVERIFY(suit.start());
        Line line(suit.devicePath());
        line.request(1);
        QVERIFY(line.read(30).empty());
        QCOMPARE(line.frame().size(), std::size_t(32));
        line.request(1);
        QVERIFY(line.read(120).empty());
        QTRY_COMPARE_WITH_TIMEOUT(suit.requestCount(), std::size_t(2), 10000);
        const auto requests = suit.requests();
        QCOMPARE(requests.size(), std::size_t(2));
        QCOMPARE((std::vector<int>{requests[0][0], requests[0][1], requests[0][2], requests[0][3]}),
                 (std::vector<int>{0x40, 1, 0x20, 0}));
    }

    void pacesTheLineAtItsSpeed()
    {
        SuitOptions o;
        o.baud = 5600;   // 560 bytes a second: 36 bytes take about 64 ms
        SuitSimulator suit(o);
        QVERIFY(suit.start());
        Line line(suit.devicePath());
        line.request(1);
        QVERIFY(line.read(45).empty());
        QCOMPARE(line.frame().size(), std::size_t(32));
    }

    void aScriptIsAnsweredFrameByFrameOverAndOver()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath("frames.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QByteArray first, second;
        for (int c = 1; c <= 32; ++c) {
            first += QByteArray::number(c) + (c < 32 ? " " : "");
            second += QByteArray::number(255 - c) + (c < 32 ? "," : "");
        }
        file.write("# two frames\n" + first + "\n\n" + second + "\n");
        file.close();
        SuitOptions o;
        std::string error;
        QVERIFY2(SuitSimulator::readScript(file.fileName().toStdString(), o.script, &error), error.c_str());
        QCOMPARE(o.script.size(), std::size_t(2));
        SuitSimulator suit(o);
        QVERIFY(suit.start());
        Line line(suit.devicePath());
        std::vector<int> firstBytes;
        for (int i = 0; i < 3; ++i) {
            line.request(1);
            firstBytes.push_back(line.frame().at(0));
        }
        QCOMPARE(firstBytes, (std::vector<int>{1, 254, 1}));
    }

    void aBadScriptOrBoundsIsRefused()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath("short.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("1 2 3\n");
        file.close();
        std::vector<SuitFrame> frames;
        std::string error;
        QVERIFY(!SuitSimulator::readScript(file.fileName().toStdString(), frames, &error));
        QVERIFY(error.find("32 values") != std::string::npos);
        SuitOptions o;
        QVERIFY(!SuitSimulator::parseBounds("0-8:0-255", o));
        QVERIFY(!SuitSimulator::parseBounds("1-33:0-255", o));
        QVERIFY(!SuitSimulator::parseBounds("1:200-100", o));
        QVERIFY(!SuitSimulator::parseBounds("1:0-256", o));
    }
};

QTEST_MAIN(TestSuitSimulator)
#include "test_suitsimulator.moc"
