// The number checks used by the vocabulary, the readers and the editor fields.
#include <QtTest>
#include "support/NumberText.h"

class TestNumberText : public QObject {
    Q_OBJECT
private slots:
    void parseIntegerOfEmptyTextIsZeroWithoutFailure()
    {
        bool failed = true;
        QCOMPARE(ParseInteger(QString(), failed), qint16(0));
        QCOMPARE(failed, false);
        failed = true;
        QCOMPARE(ParseInteger(QStringLiteral(""), failed), qint16(0));
        QCOMPARE(failed, false);
    }

    void parseIntegerConverts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        QTest::addColumn<bool>("failed");
        QTest::newRow("plain") << "12" << 12 << false;
        QTest::newRow("number line") << " 1 " << 1 << false;
        QTest::newRow("negative line") << "-1 " << -1 << false;
        QTest::newRow("fraction to even") << "2.5" << 2 << false;
        QTest::newRow("fraction up") << "3.5" << 4 << false;
        QTest::newRow("upper bound") << "32767" << 32767 << false;
        QTest::newRow("lower bound") << "-32768" << -32768 << false;
        QTest::newRow("overflow") << "32768" << 0 << true;
        QTest::newRow("far overflow") << "99999" << 0 << true;
        QTest::newRow("letters") << "abc" << 0 << true;
        QTest::newRow("blank only") << " " << 0 << true;
        QTest::newRow("lone minus") << "-" << 0 << true;
        QTest::newRow("lower case type word") << "rango" << 0 << true;
    }
    void parseIntegerConverts()
    {
        QFETCH(QString, text);
        QFETCH(int, expected);
        QFETCH(bool, failed);
        bool gotFailed = !failed;
        QCOMPARE(int(ParseInteger(text, gotFailed)), expected);
        QCOMPARE(gotFailed, failed);
        QCOMPARE(int(ParseInteger(text)), expected);
    }

    void isNumberTextTestsA32BitConversion_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("plain") << "5" << true;
        QTest::newRow("blanks") << " 5 " << true;
        QTest::newRow("negative") << "-5" << true;
        QTest::newRow("above Integer") << "40000" << true;
        QTest::newRow("Long upper bound") << "2147483647" << true;
        QTest::newRow("above Long") << "2147483648" << false;
        QTest::newRow("fraction") << "1.5" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("letters") << "NOTE" << false;
        QTest::newRow("mixed") << "12a" << false;
    }
    void isNumberTextTestsA32BitConversion()
    {
        QFETCH(QString, text);
        QFETCH(bool, expected);
        QCOMPARE(IsNumberText(text), expected);
    }

    void isNumberChecksAnEditorField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("allowDecimal");
        QTest::addColumn<bool>("allowNegative");
        QTest::addColumn<bool>("expected");
        QTest::newRow("empty") << "" << true << true << false;
        QTest::newRow("lone digit") << "7" << false << false << true;
        QTest::newRow("digits") << "127" << false << false << true;
        QTest::newRow("lone minus, negative allowed") << "-" << false << true << false;
        QTest::newRow("lone minus, both allowed") << "-" << true << true << false;
        QTest::newRow("lone minus, nothing allowed") << "-" << false << false << false;
        QTest::newRow("-4 negative allowed") << "-4" << false << true << true;
        QTest::newRow("-4 negative refused") << "-4" << false << false << false;
        QTest::newRow("-4 only decimal allowed") << "-4" << true << false << false;
        QTest::newRow("-4 both allowed") << "-4" << true << true << true;
        QTest::newRow("1.5 decimal allowed") << "1.5" << true << false << true;
        QTest::newRow("1.5 decimal refused") << "1.5" << false << false << false;
        QTest::newRow("1.5 only negative allowed") << "1.5" << false << true << false;
        QTest::newRow("1.5 both allowed") << "1.5" << true << true << true;
        QTest::newRow("1.5.2 decimal allowed") << "1.5.2" << true << false << false;
        QTest::newRow("1.5.2 decimal refused") << "1.5.2" << false << false << false;
        QTest::newRow("1.5.2 both allowed") << "1.5.2" << true << true << false;
        QTest::newRow("-1.5 both allowed") << "-1.5" << true << true << true;
        QTest::newRow("-1.5 negative only") << "-1.5" << false << true << false;
        QTest::newRow("leading point") << ".5" << true << true << false;
        QTest::newRow("trailing point") << "5." << true << false << true;
        QTest::newRow("minus later") << "4-" << true << true << false;
        QTest::newRow("two minus signs") << "--4" << true << true << false;
        QTest::newRow("blank") << " 4" << true << true << false;
        QTest::newRow("trailing blank") << "4 " << true << true << false;
        QTest::newRow("letter") << "4a" << true << true << false;
        QTest::newRow("VAR") << "VAR" << true << true << false;
        QTest::newRow("plus sign") << "+4" << true << true << false;
        QTest::newRow("arabic-indic digit") << QString(QChar(0x0663)) << true << true << false;
        QTest::newRow("superscript two") << QString(QChar(0x00B2)) << true << true << false;
    }
    void isNumberChecksAnEditorField()
    {
        QFETCH(QString, text);
        QFETCH(bool, allowDecimal);
        QFETCH(bool, allowNegative);
        QFETCH(bool, expected);
        QCOMPARE(IsNumber(text, allowDecimal, allowNegative), expected);
    }
};

QTEST_MAIN(TestNumberText)
#include "test_numbertext.moc"
