// Bad input for every reader: truncated files, random bytes, empty files,
// numbers where texts belong and texts where numbers belong, and a bounded
// seeded mutation run over the fixtures. No reader may crash or hang.
#include <functional>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include "files/FileTestHelpers.h"
#include "files/ModuleArduinoData.h"
#include "files/ModuleConfig.h"
#include "files/ModuleExoData.h"
#include "files/ModuleScenes.h"
#include "files/ModuleVideoCapture.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "support/TestData.h"
#include "support/Windows1252.h"

namespace {

// The state each reader expects from the files read before it.
void PrepareScenesReader() { gMainConfig.m_iNFlash = 2; }

void PrepareCaptureReader()
{
    gMainConfig.m_iNVideoCaps = 2;
    gScenes.Clear();
    AddTestScene(QStringLiteral("INTRO"), 1);
    AddTestScene(QStringLiteral("DANCE"), 2);
}

struct Reader {
    const char* name;
    const char* fixture;
    std::function<void()> prepare;
    std::function<bool(const QString&)> read;
};

QList<Reader> Readers()
{
    return {
        {"main", "main_max.qel", [] {}, [](const QString& p) { return ReadMainConfigFile(p); }},
        {"scenes", "scenes_three.cfg", PrepareScenesReader, [](const QString& p) { return ReadScenesFile(p); }},
        {"exo", "exo_new_suit.cfg", [] {}, [](const QString& p) { return ReadExoDataFile(1, p); }},
        {"arduino", "arduino_2_10.cfg", [] {}, [](const QString& p) { return ReadArduinoDataFile(2, p); }},
        {"capture", "videocapture_two_scenes.cfg", PrepareCaptureReader,
         [](const QString& p) { return ReadVideoCaptureFile(p); }},
    };
}

QStringList FixtureLines(const char* fixture)
{
    QStringList lines;
    for (const QByteArray& l : ReadBytes(TestDataPath(QStringLiteral("files/") + fixture)).split('\n'))
        lines << FromWindows1252(l).remove(u'\r');
    lines.removeLast();
    return lines;
}

} // namespace

class TestBadInput : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

    bool readBytes(const Reader& r, const QByteArray& bytes)
    {
        const QString file = path(QStringLiteral("bad-%1.cfg").arg(r.name));
        WriteBytes(file, bytes);
        r.prepare();
        return r.read(file);
    }
    bool readLines(const Reader& r, const QStringList& lines) { return readBytes(r, Lines1252(lines)); }
    Reader reader(const char* name)
    {
        for (const Reader& r : Readers())
            if (qstrcmp(r.name, name) == 0)
                return r;
        return Readers().first();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        InitExoSensorLabels();
        InitExoTypeNames();
        InitExoData();
        InitArduinoData();
    }

    void fixturesReadAsTheyStand()
    {
        for (const Reader& r : Readers())
            QVERIFY2(readBytes(r, ReadBytes(TestDataPath(QStringLiteral("files/") + r.fixture))), r.name);
    }

    void emptyFileFailsEveryReader()
    {
        for (const Reader& r : Readers())
            QVERIFY2(!readBytes(r, QByteArray()), r.name);
    }

    void missingFileFailsEveryReader()
    {
        for (const Reader& r : Readers()) {
            r.prepare();
            QVERIFY2(!r.read(path("does-not-exist.cfg")), r.name);
        }
    }

    void truncatedFileFailsEveryReader()
    {
        for (const Reader& r : Readers()) {
            const QByteArray bytes = ReadBytes(TestDataPath(QStringLiteral("files/") + r.fixture));
            QVERIFY2(!readBytes(r, bytes.left(bytes.size() / 3)), r.name);
            QVERIFY2(!readBytes(r, bytes.left(20)), r.name);
        }
        // The main file cut in its tolerant tail opens all the same.
        const QByteArray main = ReadBytes(TestDataPath("files/main_max.qel"));
        QVERIFY(readBytes(reader("main"), main.left(main.indexOf("; QDM Video app paths:") + 30)));
    }

    void randomBytesFailEveryReader()
    {
        QRandomGenerator rng(20240601);
        for (int round = 0; round < 40; ++round) {
            // Even rounds hold no line end at all; odd rounds any byte.
            const bool oneLine = round % 2 == 0;
            QByteArray bytes(static_cast<qsizetype>(rng.bounded(1, 4000)), '\0');
            for (char& c : bytes) {
                c = static_cast<char>(rng.bounded(256));
                if (oneLine && (c == '\r' || c == '\n'))
                    c = 'x';
            }
            for (const Reader& r : Readers()) {
                const bool ok = readBytes(r, bytes);
                // The data files read a bad number as 0, so random lines enough
                // for their rows are read as zeros and empty rows.
                const bool lenient = qstrcmp(r.name, "exo") == 0 || qstrcmp(r.name, "arduino") == 0;
                if (oneLine || !lenient)
                    QVERIFY2(!ok, qPrintable(QStringLiteral("%1, round %2").arg(r.name).arg(round)));
            }
        }
    }

    void numberWhereTextBelongsIsTakenAsText()
    {
        QStringList main = FixtureLines("main_max.qel");
        main[6] = QStringLiteral(" 42 ");
        QVERIFY(readLines(reader("main"), main));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral(" 42 "));

        QStringList scenes = FixtureLines("scenes_three.cfg");
        scenes[scenes.indexOf(QStringLiteral("INTRO"))] = QStringLiteral("17");
        QVERIFY(readLines(reader("scenes"), scenes));
        QCOMPARE(gScenes.Item(1)->m_strName, QStringLiteral("17"));

        QStringList exo = FixtureLines("exo_new_suit.cfg");
        exo[5] = QStringLiteral("CI,1,7,0,0,255"); // a number as type: no error, type kept
        gExoData(1).m_iType(0) = 2;
        QVERIFY(readLines(reader("exo"), exo));
        QCOMPARE(gExoData(1).m_iType(0), qint16(2));

        QStringList arduino = FixtureLines("arduino_2_10.cfg");
        arduino[1] = QStringLiteral("12");
        arduino[13] = QStringLiteral("0,12");
        gArduinoData(2).m_iDigitalType(0) = 0;
        QVERIFY(readLines(reader("arduino"), arduino));
        QCOMPARE(gArduinoData(2).m_strLabel, QStringLiteral("12"));
        QCOMPARE(gArduinoData(2).m_iDigitalType(0), qint16(0));

        QStringList capture = FixtureLines("videocapture_two_scenes.cfg");
        capture.replaceInStrings(QStringLiteral(",G:\\shots,"), QStringLiteral(",123,"));
        QVERIFY(readLines(reader("capture"), capture));
        QCOMPARE(gScenes.Item(2)->PartList.Item(2)->m_VideoCapture(0)->m_strRootFolder, QStringLiteral("123"));
    }

    void textWhereNumberBelongs()
    {
        QStringList main = FixtureLines("main_max.qel");
        main[9] = QStringLiteral("two");
        QVERIFY(!readLines(reader("main"), main));
        main = FixtureLines("main_max.qel");
        main[main.indexOf(QStringLiteral("; Number of Digital IO Cards:")) + 1] = QStringLiteral("four");
        QVERIFY(readLines(reader("main"), main)); // the tolerant tail

        QStringList scenes = FixtureLines("scenes_three.cfg");
        scenes[9] = QStringLiteral("three");
        QVERIFY(!readLines(reader("scenes"), scenes));
        scenes = FixtureLines("scenes_three.cfg");
        scenes[scenes.indexOf(QStringLiteral("; Color:")) + 1] = QStringLiteral("blue");
        QVERIFY(!readLines(reader("scenes"), scenes));

        // The data files read bad numbers as 0.
        QStringList exo = FixtureLines("exo_new_suit.cfg");
        exo[5] = QStringLiteral("CI,one,RANGO,0,low,high");
        QVERIFY(readLines(reader("exo"), exo));
        QCOMPARE(gExoData(1).m_iChannel(0), qint16(0));
        QCOMPARE(gExoData(1).m_iMax(0), qint16(0));

        QStringList arduino = FixtureLines("arduino_2_10.cfg");
        arduino[4] = QStringLiteral("five,two,ten");
        QVERIFY(readLines(reader("arduino"), arduino));
        QCOMPARE(gArduinoData(2).m_iNumAnalogInputs, qint16(0));
        QCOMPARE(gArduinoData(2).m_iNumDigitalIOs, qint16(0));

        QStringList capture = FixtureLines("videocapture_two_scenes.cfg");
        capture.replaceInStrings(QStringLiteral("1,1,1,30,"), QStringLiteral("1,1,1,fast,"));
        QVERIFY(!readLines(reader("capture"), capture));
    }

    // A few hundred seeded changes to the fixtures: lines dropped, doubled,
    // swapped or replaced, bytes flipped, files cut. Whatever the result, each
    // read must come back, and soon.
    void seededMutationsNeitherCrashNorHang()
    {
        const QList<Reader> readers = Readers();
        QList<QByteArray> originals;
        for (const Reader& r : readers)
            originals << ReadBytes(TestDataPath(QStringLiteral("files/") + r.fixture));
        const QList<QByteArray> fillers = {"", " 0 ", "-1 ", " 32767 ", " 99999 ", "x", "; Color:", "TD_BEGIN",
                                           "; Number of MIDI devices:", "A", "A9", ".", ",,,,,,,", "1,1,1,1,1,1,1,1",
                                           "0,0,0,0,0,0,0,0", "---", "\xE9\x80", "CI,1,RANGO,0,0,255"};
        QRandomGenerator rng(4242);
        QElapsedTimer timer;
        timer.start();
        int successes = 0;
        for (int m = 0; m < 400; ++m) {
            const int which = static_cast<int>(rng.bounded(static_cast<quint32>(readers.size())));
            QList<QByteArray> lines = originals[which].split('\n');
            const int kind = static_cast<int>(rng.bounded(7));
            const int n = static_cast<int>(lines.size());
            const int a = static_cast<int>(rng.bounded(static_cast<quint32>(n)));
            const int b = static_cast<int>(rng.bounded(static_cast<quint32>(n)));
            QByteArray bytes;
            switch (kind) {
            case 0: lines.removeAt(a); break;
            case 1: lines.insert(a, lines[a]); break;
            case 2: lines.swapItemsAt(a, b); break;
            case 3: lines[a] = fillers[static_cast<int>(rng.bounded(static_cast<quint32>(fillers.size())))] + '\r'; break;
            default: break;
            }
            bytes = lines.join('\n');
            if (kind == 4 && !bytes.isEmpty())
                bytes[static_cast<int>(rng.bounded(static_cast<quint32>(bytes.size())))] = static_cast<char>(rng.bounded(256));
            if (kind == 5)
                bytes.truncate(static_cast<int>(rng.bounded(static_cast<quint32>(bytes.size() + 1))));
            if (kind == 6)
                bytes.insert(static_cast<int>(rng.bounded(static_cast<quint32>(bytes.size() + 1))), "\r\n,,\r\n");
            if (readBytes(readers[which], bytes))
                ++successes;
        }
        QVERIFY(successes > 0);
        QVERIFY2(timer.elapsed() < 20000, "the mutation run took too long");
    }
};

QTEST_MAIN(TestBadInput)
#include "test_badinput.moc"
