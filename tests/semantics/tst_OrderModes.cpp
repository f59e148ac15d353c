#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/OrderModes.h>

#include <QTest>

using ttservice::EOperationType;
using ttservice::EOrderType;

namespace {

/// The integers, among many, that a question answers true for.
template <class Question>
std::set<int> trueFor(Question question)
{
    std::set<int> found;
    for (const int i : ruletext::manyIntegers()) {
        if (question(i))
            found.insert(i);
    }
    return found;
}

template <class Question>
std::set<int> falseFor(Question question)
{
    return trueFor([&question](int i) { return !question(i); });
}

std::set<int> firstToLast(int first, int last)
{
    std::set<int> range;
    for (int i = first; i <= last; ++i)
        range.insert(i);
    return range;
}

std::set<int> operator+(std::set<int> one, const std::set<int>& other)
{
    one.insert(other.begin(), other.end());
    return one;
}

} // namespace

class tst_OrderModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsBelow600AreNoModes();
    void aModeButtonIs600AndTheOrderType();
    void theParameterSetIndexIsTheOrderTypeLessFour();
    void helpPages();
    void tradeParameterTypesAreNoneOfMinusOneToThree();
    void visibleWordsAreKeptForZeroToThree();
    void singleOrderAlgorithmsAre4To104();
    void tablesAndBrokersWithoutAlgorithms();
    void tables10And35AlwaysWorkInOrderType1();
    void tablesWithAHelpButtonOfTheirOwn();
    void operationsMinusOneAndMinusTwoAreNoChoice();
    void clientModes100And101();
    void tasksRecordPlainAndFirstAlgorithmAsSixAndSeven();
    void plainOrdersHaveNoValidTime();
};

void tst_OrderModes::buttonsBelow600AreNoModes()
{
    using TC::ButtonKind;
    for (const int id : {INT_MIN, -1, 0, 1, 599})
        QCOMPARE(TC::buttonKind(id), ButtonKind::Other);
    for (const int id : {600, 601, 602, 603})
        QCOMPARE(TC::buttonKind(id), ButtonKind::PlainMode);
    for (const int id : {604, 605, 612, 613, 704, 705, INT_MAX})
        QCOMPARE(TC::buttonKind(id), ButtonKind::ParameterSet);
}

void tst_OrderModes::aModeButtonIs600AndTheOrderType()
{
    for (int type = -200; type <= 200; ++type)
        QCOMPARE(TC::modeButton(EOrderType(type)), type + 600);
    QCOMPARE(TC::modeButton(EOrderType(INT_MIN)), INT_MIN + 600);
    QCOMPARE(TC::modeButton(EOrderType(INT_MAX - 600)), INT_MAX);
    QCOMPARE(TC::modeButton(EOrderType(INT_MAX)), INT_MIN + 599);
}

void tst_OrderModes::theParameterSetIndexIsTheOrderTypeLessFour()
{
    for (int type = -200; type <= 200; ++type) {
        QCOMPARE(TC::parameterSetIndex(EOrderType(type)), type - 4);
        QCOMPARE(TC::isParameterSetType(EOrderType(type)), type >= 4);
    }
    QCOMPARE(TC::parameterSetIndex(EOrderType(INT_MAX)), INT_MAX - 4);
    QCOMPARE(TC::parameterSetIndex(EOrderType(INT_MIN)), INT_MAX - 3);
    QVERIFY(TC::isParameterSetType(EOrderType(INT_MAX)));
    QVERIFY(!TC::isParameterSetType(EOrderType(INT_MIN)));
}

void tst_OrderModes::helpPages()
{
    QCOMPARE(trueFor([](int i) { return TC::hasHelpPage(EOrderType(i)); }), (std::set<int>{1, 2, 5, 13}));
    QCOMPARE(trueFor([](int i) { return TC::hasParameterSetHelp(EOrderType(i)); }), (std::set<int>{5, 13}));
}

void tst_OrderModes::tradeParameterTypesAreNoneOfMinusOneToThree()
{
    QCOMPARE(falseFor([](int i) { return TC::isTradeParameterType(EOrderType(i)); }), firstToLast(-1, 3));
}

void tst_OrderModes::visibleWordsAreKeptForZeroToThree()
{
    QCOMPARE(trueFor([](int i) { return TC::hasVisibleWord(EOrderType(i)); }), firstToLast(0, 3));
}

void tst_OrderModes::singleOrderAlgorithmsAre4To104()
{
    QCOMPARE(trueFor([](int i) { return TC::isSingleOrderAlgorithm(EOrderType(i)); }), firstToLast(4, 104));
}

void tst_OrderModes::tablesAndBrokersWithoutAlgorithms()
{
    const std::set<int> tables{36, 37, 38, 39, 43, 45, 48, 49, 51};
    const std::set<int> brokers{4, 6, 10};
    for (const int identity : ruletext::manyIntegers()) {
        for (const int broker : ruletext::manyIntegers()) {
            const bool shown = tables.count(identity) == 0 && brokers.count(broker) == 0;
            QCOMPARE(TC::showsAlgorithms(identity, ttservice::ENVBrokerType(broker)), shown);
        }
    }
    QVERIFY(TC::showsAlgorithms(40, ttservice::BROKER_TYPE_8));
}

void tst_OrderModes::tables10And35AlwaysWorkInOrderType1()
{
    for (const int identity : ruletext::manyIntegers()) {
        for (const int type : ruletext::manyIntegers()) {
            const int expected = identity == 10 || identity == 35 ? 1 : type;
            QCOMPARE(int(TC::orderTypeInMode(identity, EOrderType(type))), expected);
        }
    }
}

void tst_OrderModes::tablesWithAHelpButtonOfTheirOwn()
{
    QCOMPARE(falseFor([](int i) { return TC::followsHelpPage(i); }),
             firstToLast(15, 30) + firstToLast(36, 40) + std::set<int>({43, 45, 48, 49, 51}));
}

void tst_OrderModes::operationsMinusOneAndMinusTwoAreNoChoice()
{
    QCOMPARE(falseFor([](int i) { return TC::isOperationChosen(EOperationType(i)); }), (std::set<int>{-1, -2}));
}

void tst_OrderModes::clientModes100And101()
{
    QCOMPARE(trueFor([](int i) { return TC::isAlgorithmClientMode(i); }), (std::set<int>{100, 101}));
}

void tst_OrderModes::tasksRecordPlainAndFirstAlgorithmAsSixAndSeven()
{
    for (const int type : ruletext::manyIntegers()) {
        const int expected = type == 6 ? 0 : type == 7 ? 1 : type;
        QCOMPARE(int(TC::shownOrderType(EOrderType(type))), expected);
    }
}

void tst_OrderModes::plainOrdersHaveNoValidTime()
{
    QCOMPARE(falseFor([](int i) { return TC::hasValidTime(EOrderType(i)); }), (std::set<int>{0, 6}));
}

QTEST_APPLESS_MAIN(tst_OrderModes)
#include "tst_OrderModes.moc"
