#include "reference/toolkit/ButtonGroupRules.h"

#include <QElapsedTimer>
#include <QtTest>

using Items = QVector<int>;

class ButtonGroupRulesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theStripTakesWhatFits_data();
    void theStripTakesWhatFits();
    void gapsStandBetweenNeighbours();
    void numbersAreReadFromATextOfPieces_data();
    void numbersAreReadFromATextOfPieces();
    void aMegabyteIsReadInOnePass();
    void listedOnesComeFirst();
};

void ButtonGroupRulesTest::theStripTakesWhatFits_data()
{
    QTest::addColumn<Items>("extents");
    QTest::addColumn<Items>("first");
    QTest::addColumn<int>("room");
    QTest::addColumn<Items>("taken");

    const Items three{40, 50, 60};
    QTest::newRow("all, to the pixel") << three << Items() << 154 << Items{0, 1, 2};
    QTest::newRow("one pixel short") << three << Items() << 153 << Items{0, 1};
    QTest::newRow("the kept one stands though it is the last") << three << Items{2} << 102 << Items{0, 2};
    QTest::newRow("two kept ones, one fits") << three << Items{2, 1} << 60 << Items{2};
    QTest::newRow("the kept one is too wide itself") << three << Items{2} << 45 << Items{0};
    QTest::newRow("no smaller one jumps the queue") << Items{40, 90, 10} << Items() << 60 << Items{0};
    QTest::newRow("no room") << three << Items{1} << 0 << Items();
    QTest::newRow("room below zero") << three << Items{1} << -10 << Items();
    QTest::newRow("nothing there") << Items() << Items() << 100 << Items();
    QTest::newRow("kept ones that are not there") << three << Items{7, -1} << 40 << Items{0};
    QTest::newRow("enormous ones do not overflow")
        << Items{2147483647, 2147483647} << Items() << 2147483647 << Items{0};
}

void ButtonGroupRulesTest::theStripTakesWhatFits()
{
    QFETCH(Items, extents);
    QFETCH(Items, first);
    QFETCH(int, room);
    QFETCH(Items, taken);
    QCOMPARE(WQ::itemsThatFit(extents, first, room, 2), taken);
}

void ButtonGroupRulesTest::gapsStandBetweenNeighbours()
{
    QCOMPARE(WQ::stripLength({40, 50, 60}, 2), 154);
    QCOMPARE(WQ::stripLength({40}, 2), 40);
    QCOMPARE(WQ::stripLength({}, 2), 0);
}

void ButtonGroupRulesTest::numbersAreReadFromATextOfPieces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Items>("numbers");

    QTest::newRow("in order") << QStringLiteral("603,600,601") << Items{603, 600, 601};
    QTest::newRow("twice counts once") << QStringLiteral("603,600,603") << Items{603, 600};
    QTest::newRow("no numbers between") << QStringLiteral("603,abc,,6 01,6.5,600") << Items{603, 600};
    QTest::newRow("blanks around") << QStringLiteral(" 603 , 600 ") << Items{603, 600};
    QTest::newRow("too large for an int") << QStringLiteral("99999999999,600") << Items{600};
    QTest::newRow("below zero") << QStringLiteral("-1,600") << Items{-1, 600};
    QTest::newRow("commas alone") << QStringLiteral(",,,") << Items();
    QTest::newRow("nothing") << QString() << Items();
}

void ButtonGroupRulesTest::numbersAreReadFromATextOfPieces()
{
    QFETCH(QString, text);
    QFETCH(Items, numbers);
    QCOMPARE(WQ::numbersOf(text), numbers);
}

void ButtonGroupRulesTest::aMegabyteIsReadInOnePass()
{
    QCOMPARE(WQ::numbersOf(QString(1 << 20, QLatin1Char(','))), Items());
    QCOMPARE(WQ::numbersOf(QString(1 << 20, QLatin1Char('1'))), Items());
    QString many;
    for (int i = 0; i < 150000; ++i)
        many += QString::number(i) + QLatin1Char(',');
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(WQ::numbersOf(many).size(), 150000);
    // Tens of milliseconds when each piece is looked at once; looking each up among all takes minutes.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void ButtonGroupRulesTest::listedOnesComeFirst()
{
    QCOMPARE(WQ::orderedAs({603, 601}, {600, 601, 602, 603}), (Items{603, 601, 600, 602}));
    QCOMPARE(WQ::orderedAs({9}, {600, 601}), (Items{600, 601}));
    QCOMPARE(WQ::orderedAs({}, {}), Items());
}

QTEST_APPLESS_MAIN(ButtonGroupRulesTest)
#include "tst_ButtonGroupRules.moc"
