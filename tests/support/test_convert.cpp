// The plain text-to-number conversions.
#include <QtTest>
#include <limits>
#include "support/Convert.h"
#include "support/RuntimeError.h"

class TestConvert : public QObject {
    Q_OBJECT
private slots:
    void integerConverts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        QTest::newRow("plain") << "16" << 16;
        QTest::newRow("zero") << "0" << 0;
        QTest::newRow("negative") << "-1" << -1;
        QTest::newRow("plus sign") << "+7" << 7;
        QTest::newRow("number line") << " 16 " << 16;
        QTest::newRow("negative number line") << "-1 " << -1;
        QTest::newRow("many blanks") << "   42      " << 42;
        QTest::newRow("tab") << "\t5\t" << 5;
        QTest::newRow("leading zeros") << "007" << 7;
        QTest::newRow("upper bound") << "32767" << 32767;
        QTest::newRow("lower bound") << "-32768" << -32768;
        QTest::newRow("2.5 to even") << "2.5" << 2;
        QTest::newRow("3.5 to even") << "3.5" << 4;
        QTest::newRow("-2.5 to even") << "-2.5" << -2;
        QTest::newRow("-3.5 to even") << "-3.5" << -4;
        QTest::newRow("0.5 to even") << "0.5" << 0;
        QTest::newRow("1.5 to even") << "1.5" << 2;
        QTest::newRow("2.6 up") << "2.6" << 3;
        QTest::newRow("2.4 down") << "2.4" << 2;
        QTest::newRow("-2.6") << "-2.6" << -3;
        QTest::newRow("leading point") << ".7" << 1;
        QTest::newRow("trailing point") << "5." << 5;
        QTest::newRow("exponent") << "1E3" << 1000;
        QTest::newRow("32767.4 fits") << "32767.4" << 32767;
        QTest::newRow("-32768.5 to even fits") << "-32768.5" << -32768;
        QTest::newRow("blanks around fraction") << "  2.5  " << 2;
    }
    void integerConverts()
    {
        QFETCH(QString, text);
        QFETCH(int, expected);
        QCOMPARE(int(ToInteger(text)), expected);
    }

    void integerRefuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << "";
        QTest::newRow("blanks only") << "   ";
        QTest::newRow("letters") << "abc";
        QTest::newRow("digits then letters") << "12abc";
        QTest::newRow("letters then digits") << "x12";
        QTest::newRow("lone minus") << "-";
        QTest::newRow("lone point") << ".";
        QTest::newRow("two points") << "1.2.3";
        QTest::newRow("blank inside") << "1 2";
        QTest::newRow("32768 overflow") << "32768";
        QTest::newRow("-32769 overflow") << "-32769";
        QTest::newRow("100000 overflow") << "100000";
        QTest::newRow("32767.5 rounds over") << "32767.5";
        QTest::newRow("comma") << "1,5";
        QTest::newRow("exponent without digits") << "1E";
    }
    void integerRefuses()
    {
        QFETCH(QString, text);
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToInteger(text));
    }

    void longConverts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("expected");
        QTest::newRow("plain") << "70000" << qint32(70000);
        QTest::newRow("blanks") << " -70000 " << qint32(-70000);
        QTest::newRow("32768 fits a Long") << "32768" << qint32(32768);
        QTest::newRow("upper bound") << "2147483647" << std::numeric_limits<qint32>::max();
        QTest::newRow("lower bound") << "-2147483648" << std::numeric_limits<qint32>::min();
        QTest::newRow("2.5 to even") << "2.5" << qint32(2);
        QTest::newRow("3.5 to even") << "3.5" << qint32(4);
        QTest::newRow("-2.5 to even") << "-2.5" << qint32(-2);
        QTest::newRow("100000.5 to even") << "100000.5" << qint32(100000);
    }
    void longConverts()
    {
        QFETCH(QString, text);
        QFETCH(qint32, expected);
        QCOMPARE(ToLong(text), expected);
    }

    void longRefuses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << "";
        QTest::newRow("letters") << "QEL_VAR";
        QTest::newRow("above upper bound") << "2147483648";
        QTest::newRow("below lower bound") << "-2147483649";
        QTest::newRow("huge") << "99999999999999999999";
        QTest::newRow("upper bound .5 rounds over") << "2147483647.5";
    }
    void longRefuses()
    {
        QFETCH(QString, text);
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToLong(text));
    }

    void convertsToLongAnswersWithoutRaising()
    {
        QVERIFY(ConvertsToLong(QStringLiteral(" 12 ")));
        QVERIFY(ConvertsToLong(QStringLiteral("2147483647")));
        QVERIFY(!ConvertsToLong(QStringLiteral("2147483648")));
        QVERIFY(!ConvertsToLong(QString()));
        QVERIFY(!ConvertsToLong(QStringLiteral("abc")));
    }

    void doubleConverts()
    {
        QCOMPARE(ToDouble(QStringLiteral("1.5")), 1.5);
        QCOMPARE(ToDouble(QStringLiteral("  -0.25  ")), -0.25);
        QCOMPARE(ToDouble(QStringLiteral("2.5")), 2.5);   // no rounding for a Double
        QCOMPARE(ToDouble(QStringLiteral("100000")), 100000.0);
        QCOMPARE(ToDouble(QStringLiteral("1E3")), 1000.0);
        QCOMPARE(ToDouble(QStringLiteral("1.5e-1")), 0.15);
    }

    void doubleRefuses()
    {
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToDouble(QString()));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToDouble(QStringLiteral(" ")));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToDouble(QStringLiteral("abc")));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToDouble(QStringLiteral("1.5.2")));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToDouble(QStringLiteral("1e999")));
    }

    void singleConverts()
    {
        QCOMPARE(ToSingle(QStringLiteral("1.5")), 1.5f);
        QCOMPARE(ToSingle(QStringLiteral(" -3.25 ")), -3.25f);
        QCOMPARE(ToSingle(QStringLiteral("0.1")), 0.1f);
        QCOMPARE(ToSingle(QStringLiteral("2.5")), 2.5f);
    }

    void singleRefuses()
    {
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToSingle(QString()));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToSingle(QStringLiteral("x")));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToSingle(QStringLiteral("1e39")));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToSingle(QStringLiteral("-1e39")));
    }

    void conversionErrorIsARuntimeError()
    {
        bool caught = false;
        try {
            ToInteger(QStringLiteral("32768"));
        } catch (const RuntimeError&) {
            caught = true;
        }
        QVERIFY(caught);
    }
};

QTEST_MAIN(TestConvert)
#include "test_convert.moc"
