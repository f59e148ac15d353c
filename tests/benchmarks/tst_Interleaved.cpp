#include "benchmarks/Interleaved.h"

#include <QtTest>

using bench::Interleaved;

namespace {

/// A contender whose rounds take the given seconds one after another, from the first again after the last.
std::function<double()> taking(std::vector<double> seconds)
{
    return [seconds = std::move(seconds), next = std::size_t(0)]() mutable { return seconds[next++ % seconds.size()]; };
}

void play(Interleaved& contenders, int rounds)
{
    for (int i = 0; i < rounds; ++i)
        contenders.round();
}

} // namespace

class tst_Interleaved : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMedianOfAnOddNumberIsTheMiddleOne()
    {
        Interleaved contenders;
        contenders.add("a", taking({5, 1, 100}));
        play(contenders, 3);
        QCOMPARE(contenders.median(0), 5.0);
        QCOMPARE(contenders.last(0), 100.0);
    }

    void theMedianOfAnEvenNumberIsBetweenTheMiddleTwo()
    {
        Interleaved contenders;
        contenders.add("a", taking({8, 2, 100, 4}));
        play(contenders, 4);
        QCOMPARE(contenders.median(0), 6.0);
    }

    void theRatioIsToTheFirstContender()
    {
        Interleaved contenders;
        contenders.add("base", taking({2, 4, 6}));
        contenders.add("other", taking({1, 1, 9}));
        play(contenders, 3);
        QCOMPARE(contenders.ratio(0), 1.0);
        QCOMPARE(contenders.ratio(1), 0.25);
    }

    void withoutRoundsAllIsZero()
    {
        Interleaved contenders;
        contenders.add("a", taking({1}));
        QCOMPARE(contenders.median(0), 0.0);
        QCOMPARE(contenders.last(0), 0.0);
        QCOMPARE(contenders.ratio(0), 0.0);
    }

    void warmUpRoundsDoNotCount()
    {
        Interleaved contenders;
        contenders.add("a", taking({1000, 1000, 3}));
        contenders.warmUp(2);
        play(contenders, 1);
        QCOMPARE(contenders.median(0), 3.0);
    }

    void everyRoundBeginsWithAnotherContender()
    {
        std::string order;
        Interleaved contenders;
        for (const char name : {'a', 'b', 'c'}) {
            contenders.add(std::string(1, name), [&order, name] {
                order += name;
                return 1.0;
            });
        }
        play(contenders, 4);
        QCOMPARE(order, std::string("abcbcacababc"));
    }
};

QTEST_APPLESS_MAIN(tst_Interleaved)
#include "tst_Interleaved.moc"
