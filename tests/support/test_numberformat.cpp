// Numbers as they are printed into the files and lists.
#include <QtTest>
#include <limits>
#include "support/NumberFormat.h"

class TestNumberFormat : public QObject {
    Q_OBJECT
private slots:
    void strPutsABlankOrAMinusBeforeTheDigits()
    {
        QCOMPARE(Str(16), QStringLiteral(" 16"));
        QCOMPARE(Str(0), QStringLiteral(" 0"));
        QCOMPARE(Str(-1), QStringLiteral("-1"));
        QCOMPARE(Str(-32768), QStringLiteral("-32768"));
        QCOMPARE(Str(2147483648LL), QStringLiteral(" 2147483648"));
    }

    void numberLineEndsInABlank()
    {
        QCOMPARE(NumberLine(16), QStringLiteral(" 16 "));
        QCOMPARE(NumberLine(-1), QStringLiteral("-1 "));
        QCOMPARE(NumberLine(0), QStringLiteral(" 0 "));
        QCOMPARE(NumberLine(1111), QStringLiteral(" 1111 "));
    }

    void patterns_data()
    {
        QTest::addColumn<qint64>("n");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("expected");
        struct Row { qint64 n; const char* pattern; const char* expected; };
        const Row rows[] = {
            {0, "0", "0"}, {5, "0", "5"}, {42, "0", "42"}, {12345, "0", "12345"}, {-5, "0", "-5"}, {-42, "0", "-42"},
            {0, "00", "00"}, {5, "00", "05"}, {42, "00", "42"}, {123, "00", "123"}, {-5, "00", "-05"}, {-123, "00", "-123"},
            {0, "000", "000"}, {5, "000", "005"}, {42, "000", "042"}, {999, "000", "999"}, {1000, "000", "1000"},
            {1234, "000", "1234"}, {32767, "000", "32767"}, {-5, "000", "-005"}, {-1234, "000", "-1234"},
            {0, "#", ""}, {5, "#", "5"}, {42, "#", "42"}, {12345, "#", "12345"}, {-5, "#", "-5"},
            {0, "#0", "0"}, {5, "#0", "5"}, {16, "#0", "16"}, {1023, "#0", "1023"}, {-5, "#0", "-5"}, {-16, "#0", "-16"},
            {0, "##0", "0"}, {5, "##0", "5"}, {255, "##0", "255"}, {1234, "##0", "1234"}, {-5, "##0", "-5"},
            {0, "#00", "00"}, {5, "#00", "05"}, {42, "#00", "42"}, {123, "#00", "123"}, {4567, "#00", "4567"}, {-5, "#00", "-05"},
            {0, "###0", "0"}, {5, "###0", "5"}, {1234, "###0", "1234"}, {123456, "###0", "123456"}, {-5, "###0", "-5"},
            {0, "@@", " 0"}, {5, "@@", " 5"}, {42, "@@", "42"}, {123, "@@", "123"}, {-5, "@@", "-5"}, {-15, "@@", "-15"},
        };
        for (const Row& r : rows)
            QTest::addRow("%lld in \"%s\"", r.n, r.pattern)
                << r.n << QString::fromLatin1(r.pattern) << QString::fromLatin1(r.expected);
    }
    void patterns()
    {
        QFETCH(qint64, n);
        QFETCH(QString, pattern);
        QFETCH(QString, expected);
        QCOMPARE(Format(n, pattern), expected);
    }

    void extremeValuesFormatInFull()
    {
        QCOMPARE(Format(std::numeric_limits<qint64>::min(), QStringLiteral("0")),
                 QStringLiteral("-9223372036854775808"));
        QCOMPARE(Format(std::numeric_limits<qint64>::max(), QStringLiteral("000")),
                 QStringLiteral("9223372036854775807"));
        QCOMPARE(Format(-32768, QStringLiteral("#0")), QStringLiteral("-32768"));
    }

    void textRightAlignedInTwoColumns()
    {
        QCOMPARE(Format(QString(), QStringLiteral("@@")), QStringLiteral("  "));
        QCOMPARE(Format(QStringLiteral("a"), QStringLiteral("@@")), QStringLiteral(" a"));
        QCOMPARE(Format(QStringLiteral("ab"), QStringLiteral("@@")), QStringLiteral("ab"));
        QCOMPARE(Format(QStringLiteral("abc"), QStringLiteral("@@")), QStringLiteral("abc"));
        QCOMPARE(Format(QStringLiteral("7"), QStringLiteral("@@@@")), QStringLiteral("   7"));
    }
};

QTEST_MAIN(TestNumberFormat)
#include "test_numberformat.moc"
