// The Arduino records and their defaults.
#include <QtTest>
#include "model/CArduinoData.h"
#include "support/RuntimeError.h"

class TestArduinoData : public QObject {
    Q_OBJECT
private slots:
    void labelsAreArduino1ToArduino16()
    {
        InitArduinoData();
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("Arduino 1"));
        QCOMPARE(gArduinoData(9).m_strLabel, QStringLiteral("Arduino 10"));
        QCOMPARE(gArduinoData(15).m_strLabel, QStringLiteral("Arduino 16"));
        for (int i = 0; i <= 15; ++i)
            QCOMPARE(gArduinoData(i).m_strLabel, QStringLiteral("Arduino %1").arg(i + 1));
    }

    void everyBoardHasItsDefaults()
    {
        for (int i = 0; i <= 15; ++i) {
            CArduinoData& d = gArduinoData(i);
            d.m_strLabel = QStringLiteral("old");
            d.m_iCOMPort = 9;
            d.m_iNumDigitalIOs = 10;
            d.m_iNumAnalogInputs = 2;
            d.m_iDigitalType.Fill(2);
            d.m_iMin.Fill(-1);
            d.m_iMax.Fill(5);
        }
        InitArduinoData();
        for (int i = 0; i <= 15; ++i) {
            const CArduinoData& d = gArduinoData(i);
            QCOMPARE(d.m_iCOMPort, qint16(1));
            QCOMPARE(d.m_iNumDigitalIOs, qint16(96));
            QCOMPARE(d.m_iNumAnalogInputs, qint16(32));
            for (int j = 0; j <= 95; ++j)
                QCOMPARE(d.m_iDigitalType(j), qint16(1));
            for (int j = 0; j <= 31; ++j) {
                QCOMPARE(d.m_iMin(j), qint16(0));
                QCOMPARE(d.m_iMax(j), qint16(1023));
            }
        }
    }

    void sixteenBoardsOnly()
    {
        gArduinoData(0);
        gArduinoData(15);
        QVERIFY_THROWS_EXCEPTION(RangeError, gArduinoData(16));
        QVERIFY_THROWS_EXCEPTION(RangeError, gArduinoData(-1));
    }

    void indexOutsideTheArraysRaises()
    {
        CArduinoData d;
        d.m_iMax(31) = 1;
        d.m_iMin(0) = 1;
        d.m_iDigitalType(95) = 2;
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iMax(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iMin(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iMin(-1));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iDigitalType(96));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iDigitalType(-1));
    }

    void newRecordIsEmpty()
    {
        const CArduinoData d;
        QCOMPARE(d.m_iNumAnalogInputs, qint16(0));
        QCOMPARE(d.m_iNumDigitalIOs, qint16(0));
        QCOMPARE(d.m_iCOMPort, qint16(0));
        QVERIFY(d.m_strLabel.isEmpty());
        QCOMPARE(d.m_iDigitalType(0), qint16(0));
        QCOMPARE(d.m_iMax(0), qint16(0));
    }
};

QTEST_MAIN(TestArduinoData)
#include "test_arduinodata.moc"
