// Arrays with their own bounds, as the records declare them.
#include <QtTest>
#include "support/CheckedArray.h"
#include "support/RuntimeError.h"

class TestCheckedArray : public QObject {
    Q_OBJECT
private slots:
    void zeroBasedArrayAcceptsItsBoundsOnly()
    {
        CheckedArray<qint16, 0, 7> a;
        QCOMPARE((CheckedArray<qint16, 0, 7>::Size), 8);
        a(0) = 1;
        a(7) = 8;
        QCOMPARE(a(0), qint16(1));
        QCOMPARE(a(7), qint16(8));
        QVERIFY_THROWS_EXCEPTION(RangeError, a(-1));
        QVERIFY_THROWS_EXCEPTION(RangeError, a(8));
    }

    void oneBasedArrayAcceptsItsBoundsOnly()
    {
        CheckedArray<int, 1, 16> a;
        a(1) = 10;
        a(16) = 160;
        QCOMPARE(a(1), 10);
        QCOMPARE(a(16), 160);
        QVERIFY_THROWS_EXCEPTION(RangeError, a(0));
        QVERIFY_THROWS_EXCEPTION(RangeError, a(17));
    }

    void negativeLowerBoundWorks()
    {
        CheckedArray<int, -3, 2> a;
        QCOMPARE((CheckedArray<int, -3, 2>::Size), 6);
        QCOMPARE((CheckedArray<int, -3, 2>::Lower), -3);
        QCOMPARE((CheckedArray<int, -3, 2>::Upper), 2);
        for (int i = -3; i <= 2; ++i)
            a(i) = i * 10;
        for (int i = -3; i <= 2; ++i)
            QCOMPARE(a(i), i * 10);
        QVERIFY_THROWS_EXCEPTION(RangeError, a(-4));
        QVERIFY_THROWS_EXCEPTION(RangeError, a(3));
    }

    void singleElementArray()
    {
        CheckedArray<QString, 5, 5> a;
        a(5) = QStringLiteral("five");
        QCOMPARE(a(5), QStringLiteral("five"));
        QVERIFY_THROWS_EXCEPTION(RangeError, a(4));
        QVERIFY_THROWS_EXCEPTION(RangeError, a(6));
    }

    void constAccessIsCheckedToo()
    {
        CheckedArray<int, 0, 3> a;
        a(2) = 5;
        const auto& c = a;
        QCOMPARE(c(2), 5);
        QVERIFY_THROWS_EXCEPTION(RangeError, c(4));
        QVERIFY_THROWS_EXCEPTION(RangeError, c(-1));
    }

    void elementsStartAtZeroFalseOrEmpty()
    {
        CheckedArray<qint16, 0, 31> numbers;
        CheckedArray<bool, 0, 15> flags;
        CheckedArray<QString, 0, 7> texts;
        CheckedArray<float, 0, 3> singles;
        for (int i = 0; i <= 31; ++i)
            QCOMPARE(numbers(i), qint16(0));
        for (int i = 0; i <= 15; ++i)
            QCOMPARE(flags(i), false);
        for (int i = 0; i <= 7; ++i)
            QVERIFY(texts(i).isEmpty());
        for (int i = 0; i <= 3; ++i)
            QCOMPARE(singles(i), 0.0f);
    }

    void fillAndIterationCoverEveryElement()
    {
        CheckedArray<int, 2, 6> a;
        a.Fill(9);
        int n = 0;
        for (int v : a) {
            QCOMPARE(v, 9);
            ++n;
        }
        QCOMPARE(n, 5);
        for (int i = 2; i <= 6; ++i)
            QCOMPARE(a(i), 9);
    }

    void rangeErrorIsARuntimeError()
    {
        CheckedArray<int, 0, 1> a;
        bool caught = false;
        try {
            a(2) = 1;
        } catch (const RuntimeError&) {
            caught = true;
        }
        QVERIFY(caught);
    }

    void tableAcceptsItsBoundsOnly()
    {
        CheckedArray2<QString, 0, 7, 0, 7> t;
        QCOMPARE((CheckedArray2<QString, 0, 7, 0, 7>::Rows), 8);
        QCOMPARE((CheckedArray2<QString, 0, 7, 0, 7>::Cols), 8);
        t(0, 0) = QStringLiteral("a");
        t(7, 7) = QStringLiteral("b");
        t(0, 7) = QStringLiteral("c");
        t(7, 0) = QStringLiteral("d");
        QCOMPARE(t(0, 0), QStringLiteral("a"));
        QCOMPARE(t(7, 7), QStringLiteral("b"));
        QCOMPARE(t(0, 7), QStringLiteral("c"));
        QCOMPARE(t(7, 0), QStringLiteral("d"));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(8, 0));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(0, 8));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(-1, 0));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(0, -1));
    }

    void tableKeepsEveryCellApart()
    {
        CheckedArray2<int, 1, 3, -1, 2> t;
        for (int i = 1; i <= 3; ++i)
            for (int j = -1; j <= 2; ++j)
                t(i, j) = i * 100 + j;
        for (int i = 1; i <= 3; ++i)
            for (int j = -1; j <= 2; ++j)
                QCOMPARE(t(i, j), i * 100 + j);
        QVERIFY_THROWS_EXCEPTION(RangeError, t(0, 0));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(4, 0));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(1, -2));
        QVERIFY_THROWS_EXCEPTION(RangeError, t(1, 3));
        const auto& c = t;
        QCOMPARE(c(3, 2), 302);
        QVERIFY_THROWS_EXCEPTION(RangeError, c(3, 3));
    }

    void tableStartsEmptyAndFills()
    {
        CheckedArray2<bool, 0, 7, 0, 7> t;
        for (int i = 0; i <= 7; ++i)
            for (int j = 0; j <= 7; ++j)
                QCOMPARE(t(i, j), false);
        t.Fill(true);
        for (int i = 0; i <= 7; ++i)
            for (int j = 0; j <= 7; ++j)
                QCOMPARE(t(i, j), true);
    }
};

QTEST_MAIN(TestCheckedArray)
#include "test_checkedarray.moc"
