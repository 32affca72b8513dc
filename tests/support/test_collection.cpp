// The 1-based collection that holds scenes, subscenes and rules.
#include <QtTest>
#include <memory>
#include "support/Collection.h"
#include "support/RuntimeError.h"

namespace {
struct Thing {
    int value = 0;
};
using Things = Collection<Thing>;

std::shared_ptr<Thing> thing(int v)
{
    auto t = std::make_shared<Thing>();
    t->value = v;
    return t;
}

QList<int> values(const Things& c)
{
    QList<int> out;
    for (const auto& t : c)
        out << t->value;
    return out;
}
} // namespace

class TestCollection : public QObject {
    Q_OBJECT
private slots:
    void newCollectionIsEmpty()
    {
        Things c;
        QCOMPARE(c.Count(), 0);
        QVERIFY(c.begin() == c.end());
    }

    void addAppendsAtTheEnd()
    {
        Things c;
        c.Add(thing(10));
        c.Add(thing(20));
        c.Add(thing(30));
        QCOMPARE(c.Count(), 3);
        QCOMPARE(values(c), (QList<int>{10, 20, 30}));
    }

    void positionsStartAtOne()
    {
        Things c;
        c.Add(thing(10));
        c.Add(thing(20));
        QCOMPARE(c.Item(1)->value, 10);
        QCOMPARE(c.Item(2)->value, 20);
        QCOMPARE(c(1)->value, 10);
        QCOMPARE(c(2)->value, 20);
    }

    void addBeforeInsertsAtThatPosition()
    {
        Things c;
        c.Add(thing(10));
        c.Add(thing(30));
        c.Add(thing(20), 2);
        QCOMPARE(values(c), (QList<int>{10, 20, 30}));
        c.Add(thing(5), 1);
        QCOMPARE(values(c), (QList<int>{5, 10, 20, 30}));
        c.Add(thing(25), 4);
        QCOMPARE(values(c), (QList<int>{5, 10, 20, 25, 30}));
        QCOMPARE(c.Count(), 5);
    }

    void addBeforeABadPositionRaisesAndAddsNothing()
    {
        Things c;
        c.Add(thing(10));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Add(thing(1), 0));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Add(thing(1), 2));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Add(thing(1), -1));
        QCOMPARE(values(c), (QList<int>{10}));
        Things empty;
        QVERIFY_THROWS_EXCEPTION(RangeError, empty.Add(thing(1), 1));
        QCOMPARE(empty.Count(), 0);
    }

    void removeTakesOutThatPosition()
    {
        Things c;
        for (int v : {1, 2, 3, 4})
            c.Add(thing(v));
        c.Remove(2);
        QCOMPARE(values(c), (QList<int>{1, 3, 4}));
        c.Remove(3);
        QCOMPARE(values(c), (QList<int>{1, 3}));
        c.Remove(1);
        QCOMPARE(values(c), (QList<int>{3}));
        c.Remove(1);
        QCOMPARE(c.Count(), 0);
    }

    void removeAtABadPositionRaisesAndRemovesNothing()
    {
        Things c;
        c.Add(thing(1));
        c.Add(thing(2));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Remove(0));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Remove(3));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Remove(-5));
        QCOMPARE(values(c), (QList<int>{1, 2}));
        Things empty;
        QVERIFY_THROWS_EXCEPTION(RangeError, empty.Remove(1));
    }

    void itemAtABadPositionRaises()
    {
        Things c;
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Item(1));
        c.Add(thing(1));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Item(0));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Item(2));
        QVERIFY_THROWS_EXCEPTION(RangeError, c(2));
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Item(-1));
    }

    void rangeErrorIsARuntimeError()
    {
        Things c;
        bool caught = false;
        try {
            c.Item(1);
        } catch (const RuntimeError&) {
            caught = true;
        }
        QVERIFY(caught);
    }

    void rangeForVisitsInPositionOrder()
    {
        Things c;
        c.Add(thing(3));
        c.Add(thing(1), 1);
        c.Add(thing(2), 2);
        int expected = 1;
        for (const auto& t : c) {
            QCOMPARE(t->value, expected);
            ++expected;
        }
        QCOMPARE(expected, 4);
    }

    void itemGivesTheSameObjectThatWasAdded()
    {
        Things c;
        auto t = thing(7);
        c.Add(t);
        QCOMPARE(c.Item(1).get(), t.get());
        c.Item(1)->value = 8;
        QCOMPARE(t->value, 8);
    }

    void twoCollectionsCanShareAnObject()
    {
        Things a, b;
        auto shared = thing(1);
        a.Add(shared);
        b.Add(thing(99));
        b.Add(shared, 1);
        QCOMPARE(a.Item(1).get(), b.Item(1).get());
        a.Item(1)->value = 42;
        QCOMPARE(b.Item(1)->value, 42);
        // Removing from one leaves the object alive in the other.
        a.Remove(1);
        shared.reset();
        QCOMPARE(a.Count(), 0);
        QCOMPARE(b.Count(), 2);
        QCOMPARE(b.Item(1)->value, 42);
    }

    void copyOfACollectionSharesTheObjects()
    {
        Things a;
        a.Add(thing(1));
        Things b = a;
        b.Add(thing(2));
        QCOMPARE(a.Count(), 1);
        QCOMPARE(b.Count(), 2);
        b.Item(1)->value = 5;
        QCOMPARE(a.Item(1)->value, 5);
    }

    void clearEmptiesTheCollection()
    {
        Things c;
        c.Add(thing(1));
        c.Add(thing(2));
        c.Clear();
        QCOMPARE(c.Count(), 0);
        QVERIFY_THROWS_EXCEPTION(RangeError, c.Item(1));
    }
};

QTEST_MAIN(TestCollection)
#include "test_collection.moc"
