// Arduino1.cfg to Arduino16.cfg: golden file, counts from line 5, short rows.
#include <QTemporaryDir>
#include <QtTest>
#include "files/FileTestHelpers.h"
#include "files/ModuleArduinoData.h"
#include "model/CArduinoData.h"
#include "support/TestData.h"
#include "support/Windows1252.h"

namespace {

// The board of arduino_2_10.cfg; entries beyond the counts are left at the defaults.
void SetTwoAnalogTenDigital(int index)
{
    CArduinoData& d = gArduinoData(index);
    d.m_strLabel = QStringLiteral("Stage Left, \u00e9 \u20ac");
    d.m_iCOMPort = 5;
    d.m_iNumAnalogInputs = 2;
    d.m_iNumDigitalIOs = 10;
    d.m_iMin(0) = 0;
    d.m_iMax(0) = 1023;
    d.m_iMin(1) = 12;
    d.m_iMax(1) = 900;
    const qint16 types[] = {1, 2, 0, 1, 1, 2, 2, 0, 1, 2};
    for (int i = 0; i < 10; ++i)
        d.m_iDigitalType(i) = types[i];
}

QStringList FixtureLines()
{
    QStringList lines;
    for (const QByteArray& l : ReadBytes(TestDataPath("files/arduino_2_10.cfg")).split('\n'))
        lines << FromWindows1252(l).remove(u'\r');
    lines.removeLast();
    return lines;
}

} // namespace

class TestArduinoData : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString& name) const { return m_dir.filePath(name); }

    bool readLines(const QStringList& lines, int index = 0)
    {
        WriteBytes(path("in.cfg"), Lines1252(lines));
        return ReadArduinoDataFile(static_cast<qint16>(index), path("in.cfg"));
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init() { InitArduinoData(); }

    void writesTwoAnalogTenDigitalByteForByte()
    {
        SetTwoAnalogTenDigital(3);
        QVERIFY(WriteArduinoDataFile(3, path("Arduino4.cfg")));
        QCOMPARE_FILE_WITH_FIXTURE(path("Arduino4.cfg"), QStringLiteral("arduino_2_10.cfg"));
    }

    void twoAnalogTenDigitalGiveTwelveRowsAndLaterEntriesStay()
    {
        SetTwoAnalogTenDigital(0);
        gArduinoData(0).m_iMax(2) = 555;
        QVERIFY(WriteArduinoDataFile(0, path("a.cfg")));
        QCOMPARE(FixtureLines().size(), 8 + 2 + 3 + 10 + 2);
        InitArduinoData();
        gArduinoData(0).m_iMax(2) = 444;
        gArduinoData(0).m_iDigitalType(10) = 0;
        QVERIFY(ReadArduinoDataFile(0, path("a.cfg")));
        const CArduinoData& d = gArduinoData(0);
        QCOMPARE(d.m_strLabel, QStringLiteral("Stage Left, \u00e9 \u20ac"));
        QCOMPARE(d.m_iCOMPort, qint16(5));
        QCOMPARE(d.m_iNumAnalogInputs, qint16(2));
        QCOMPARE(d.m_iNumDigitalIOs, qint16(10));
        QCOMPARE(d.m_iMin(1), qint16(12));
        QCOMPARE(d.m_iMax(1), qint16(900));
        QCOMPARE(d.m_iDigitalType(1), qint16(2));
        QCOMPARE(d.m_iDigitalType(2), qint16(0));
        QCOMPARE(d.m_iMax(2), qint16(444));
        QCOMPARE(d.m_iDigitalType(10), qint16(0));
    }

    void analogCountAbove32FailsAtIndex32()
    {
        QStringList lines = FixtureLines();
        lines[4] = QStringLiteral("5,33,10");
        QStringList rows;
        for (int i = 0; i < 33; ++i)
            rows << QStringLiteral("%1,%2,%3").arg(i).arg(i).arg(1000 + i);
        lines.remove(8, 2);
        for (int i = 32; i >= 0; --i)
            lines.insert(8, rows[i]);
        QVERIFY(!readLines(lines));
        const CArduinoData& d = gArduinoData(0);
        QCOMPARE(d.m_iNumAnalogInputs, qint16(33));
        QCOMPARE(d.m_iMin(31), qint16(31));
        QCOMPARE(d.m_iMax(31), qint16(1031));
        QCOMPARE(d.m_iDigitalType(0), qint16(1)); // the digital rows were never reached
    }

    void blankAndShortAnalogRowsAreSkipped()
    {
        QStringList lines = FixtureLines();
        lines.insert(8, QString());
        lines.insert(9, QStringLiteral("0,0"));
        lines.insert(11, QStringLiteral("abc"));
        QCOMPARE(lines[10], QStringLiteral("0,0,1023"));
        QCOMPARE(lines[12], QStringLiteral("1,12,900"));
        QVERIFY(readLines(lines));
        QCOMPARE(gArduinoData(0).m_iMin(1), qint16(12));
        QCOMPARE(gArduinoData(0).m_iDigitalType(1), qint16(2));
    }

    void labelWithCommasIsTakenWhole()
    {
        QStringList lines = FixtureLines();
        lines[1] = QStringLiteral("a,b,,c, d");
        QVERIFY(readLines(lines));
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("a,b,,c, d"));
    }

    void rowsAreReadByPositionNotByTheirIndex()
    {
        QStringList lines = FixtureLines();
        lines[8] = QStringLiteral("7,1,2");
        lines[9] = QStringLiteral("3,4,5");
        lines[13] = QStringLiteral("9,OUTPUT");
        QVERIFY(readLines(lines));
        const CArduinoData& d = gArduinoData(0);
        QCOMPARE(d.m_iMin(0), qint16(1));
        QCOMPARE(d.m_iMax(0), qint16(2));
        QCOMPARE(d.m_iMin(1), qint16(4));
        QCOMPARE(d.m_iDigitalType(0), qint16(2));
        QCOMPARE(d.m_iMin(7), qint16(0));
    }

    void unknownDirectionWordKeepsEntryAndBadNumbersReadAsZero()
    {
        QStringList lines = FixtureLines();
        lines[4] = QStringLiteral("x,2,10");
        lines[8] = QStringLiteral("0,,99999");
        lines[13] = QStringLiteral("0,input");
        gArduinoData(0).m_iDigitalType(0) = 0;
        QVERIFY(readLines(lines));
        const CArduinoData& d = gArduinoData(0);
        QCOMPARE(d.m_iCOMPort, qint16(0));
        QCOMPARE(d.m_iMin(0), qint16(0));
        QCOMPARE(d.m_iMax(0), qint16(0));
        QCOMPARE(d.m_iDigitalType(0), qint16(0));
    }

    void countsOfZeroKeepTheHeads()
    {
        CArduinoData& d = gArduinoData(1);
        d.m_iNumAnalogInputs = 0;
        d.m_iNumDigitalIOs = 0;
        d.m_iCOMPort = 12;
        QVERIFY(WriteArduinoDataFile(1, path("zero.cfg")));
        QCOMPARE(ReadBytes(path("zero.cfg")),
                 Lines1252({QStringLiteral("; Arduino Label."), QStringLiteral("Arduino 2"), QString(),
                            QStringLiteral("; COM Port, #Analog Inputs, #Digital IOs."), QStringLiteral("12,0,0"), QString(),
                            QStringLiteral("Analog Inputs: Index,Min,Max"), QString(44, u'-'), QString(),
                            QStringLiteral("Digital IOs: Index,DigType(IN, OUT or PWM)"), QString(44, u'-'), QString(),
                            QString()}));
        QVERIFY(ReadArduinoDataFile(1, path("zero.cfg")));
        QCOMPARE(gArduinoData(1).m_iCOMPort, qint16(12));
    }

    void badDirectionEndsTheWriteAtThatRow()
    {
        SetTwoAnalogTenDigital(0);
        gArduinoData(0).m_iDigitalType(4) = 3;
        QVERIFY(!WriteArduinoDataFile(0, path("bad.cfg")));
        const QByteArray bytes = ReadBytes(path("bad.cfg"));
        QVERIFY(bytes.endsWith("3,INPUT\r\n"));
    }

    void badIndexOrPathFails()
    {
        QVERIFY(!WriteArduinoDataFile(16, path("x.cfg")));
        QVERIFY(!ReadArduinoDataFile(16, TestDataPath("files/arduino_2_10.cfg")));
        QVERIFY(!WriteArduinoDataFile(0, path("no-folder/x.cfg")));
        QVERIFY(!ReadArduinoDataFile(0, path("missing.cfg")));
    }
};

QTEST_MAIN(TestArduinoData)
#include "test_arduinodata.moc"
