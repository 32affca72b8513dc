// The exoskeleton records, their factory defaults and their tables.
#include <QtTest>
#include "model/CExoData.h"
#include "support/RuntimeError.h"

namespace {
struct Row {
    const char* label;
    int type;
    const char* item;
};
// The rows of a suit as the data file and the calibration dialog know them.
const Row kExpected[29] = {
    {"CI", 0, "0"},    {"CD", 0, "1"},    {"HI", 0, "2"},    {"HD", 0, "3"},    {"RI", 0, "4"},
    {"RD", 0, "5"},    {"II", 0, "6"},    {"ID", 0, "7"},    {"FCI", 1, "8"},   {"FCD", 1, "9"},
    {"P1", 1, "10"},   {"P2", 1, "11"},   {"P3", 1, "12"},   {"P4", 1, "13"},   {"P5", 1, "14"},
    {"P6", 1, "15"},   {"DI1", 1, "16"},  {"DI2", 1, "17"},  {"DD1", 1, "18"},  {"DD2", 1, "19"},
    {"IMI", 1, "20"},  {"IMD", 1, "21"},  {"IPI", 1, "22"},  {"IPD", 1, "23"},  {"IC", 1, "24"},
    {"C1yC2", 2, "25y26"}, {"C3yC4", 2, "27y28"}, {"C5yC6", 2, "29y30"}, {"SEL", 3, "31"},
};

void scramble(CExoData& d)
{
    for (int r = 0; r <= 31; ++r) {
        d.m_iChannel(r) = 99;
        d.m_iMin(r) = -7;
        d.m_iMax(r) = 7;
        d.m_iType(r) = 9;
        d.m_strItem(r) = QStringLiteral("junk");
    }
}
} // namespace

class TestExoData : public QObject {
    Q_OBJECT
private slots:
    void firstRowDefaults()
    {
        InitExoData();
        InitExoTypeNames();
        InitExoSensorLabels();
        const CExoData& d = gExoData(0);
        QCOMPARE(gExoSensorLabels(0), QStringLiteral("CI"));
        QCOMPARE(d.m_iType(0), qint16(0));
        QCOMPARE(gExoTypeNames(d.m_iType(0)), QStringLiteral("RANGO"));
        QCOMPARE(d.m_strItem(0), QStringLiteral("0"));
        QCOMPARE(d.m_iChannel(0), qint16(1));
        QCOMPARE(d.m_iMin(0), qint16(0));
        QCOMPARE(d.m_iMax(0), qint16(255));
    }

    void doubleRowDefaults()
    {
        InitExoData();
        InitExoSensorLabels();
        const CExoData& d = gExoData(1);
        QCOMPARE(gExoSensorLabels(25), QStringLiteral("C1yC2"));
        QCOMPARE(d.m_iType(25), qint16(2));
        QCOMPARE(d.m_strItem(25), QStringLiteral("25y26"));
        QCOMPARE(d.m_iChannel(25), qint16(26));
        QCOMPARE(d.m_strItem(26), QStringLiteral("27y28"));
        QCOMPARE(d.m_strItem(27), QStringLiteral("29y30"));
    }

    void selectorRowDefaults()
    {
        InitExoData();
        InitExoSensorLabels();
        const CExoData& d = gExoData(0);
        QCOMPARE(gExoSensorLabels(28), QStringLiteral("SEL"));
        QCOMPARE(d.m_iType(28), qint16(3));
        QCOMPARE(d.m_strItem(28), QStringLiteral("31"));
        QCOMPARE(d.m_iChannel(28), qint16(29));
        QCOMPARE(d.m_iMin(28), qint16(0));
        QCOMPARE(d.m_iMax(28), qint16(255));
    }

    void everyRowOfBothSuitsHasItsDefaults()
    {
        scramble(gExoData(0));
        scramble(gExoData(1));
        InitExoData();
        for (int exo = 0; exo <= 1; ++exo) {
            const CExoData& d = gExoData(exo);
            for (int r = 0; r < 29; ++r) {
                QCOMPARE(d.m_iChannel(r), qint16(r + 1));
                QCOMPARE(d.m_iMin(r), qint16(0));
                QCOMPARE(d.m_iMax(r), qint16(255));
                QCOMPARE(int(d.m_iType(r)), kExpected[r].type);
                QCOMPARE(d.m_strItem(r), QString::fromLatin1(kExpected[r].item));
            }
        }
    }

    void rowsBeyondTheSuitAreNotFilled()
    {
        scramble(gExoData(0));
        InitExoData();
        for (int r = 29; r <= 31; ++r) {
            QCOMPARE(gExoData(0).m_iChannel(r), qint16(99));
            QCOMPARE(gExoData(0).m_iMax(r), qint16(7));
            QCOMPARE(gExoData(0).m_strItem(r), QStringLiteral("junk"));
        }
    }

    void initExoDataLeavesTheWorkingCopiesAlone()
    {
        scramble(gExoDataEdit(0));
        scramble(gExoDataEdit(1));
        InitExoData();
        QCOMPARE(gExoDataEdit(0).m_iMax(0), qint16(7));
        QCOMPARE(gExoDataEdit(1).m_strItem(28), QStringLiteral("junk"));
    }

    void sensorLabelsHave29EntriesAndThreeEmpty()
    {
        for (int r = 0; r <= 31; ++r)
            gExoSensorLabels(r) = QStringLiteral("old");
        InitExoSensorLabels();
        for (int r = 0; r < 29; ++r)
            QCOMPARE(gExoSensorLabels(r), QString::fromLatin1(kExpected[r].label));
        for (int r = 29; r <= 31; ++r)
            QVERIFY(gExoSensorLabels(r).isEmpty());
        QVERIFY_THROWS_EXCEPTION(RangeError, gExoSensorLabels(32));
    }

    void typeNames()
    {
        InitExoTypeNames();
        QCOMPARE(gExoTypeNames(0), QStringLiteral("RANGO"));
        QCOMPARE(gExoTypeNames(1), QStringLiteral("ONOFF"));
        QCOMPARE(gExoTypeNames(2), QStringLiteral("DOBLE"));
        QCOMPARE(gExoTypeNames(3), QStringLiteral("SELEC"));
        QVERIFY_THROWS_EXCEPTION(RangeError, gExoTypeNames(4));
        QVERIFY_THROWS_EXCEPTION(RangeError, gExoTypeNames(-1));
    }

    void twoSuitsOnly()
    {
        gExoData(0);
        gExoData(1);
        QVERIFY_THROWS_EXCEPTION(RangeError, gExoData(2));
        QVERIFY_THROWS_EXCEPTION(RangeError, gExoData(-1));
        QVERIFY_THROWS_EXCEPTION(RangeError, gExoDataEdit(2));
    }

    void rowIndexOutsideZeroTo31Raises()
    {
        CExoData d;
        d.m_iMax(31) = 1;
        d.m_strItem(31) = QStringLiteral("x");
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iMax(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iMin(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_strItem(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iType(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iChannel(32));
        QVERIFY_THROWS_EXCEPTION(RangeError, d.m_iChannel(-1));
    }

    void newRecordIsEmpty()
    {
        const CExoData d;
        QCOMPARE(d.m_iID, qint16(0));
        for (int r = 0; r <= 31; ++r) {
            QCOMPARE(d.m_iMax(r), qint16(0));
            QCOMPARE(d.m_iChannel(r), qint16(0));
            QVERIFY(d.m_strItem(r).isEmpty());
        }
    }
};

QTEST_MAIN(TestExoData)
#include "test_exodata.moc"
