#include "support/BaseTableProbe.h"

#include <QtTest>

using namespace support;

namespace {

using Predicate = bool (*)(BaseTableProbe&);

// clang-format off
struct IdentityRule
{
    const char* name;
    Predicate asks;
    QSet<int> identities; ///< out of -5 to 70
};

QSet<int> allBut(const QSet<int>& left)
{
    QSet<int> all;
    for (int id = -5; id <= 70; ++id)
        all.insert(id);
    return all.subtract(left);
}

const QSet<int> kNoAlgorithm = {36, 37, 38, 39, 43, 45, 48, 49, 51};
const QSet<int> kNoHelpButton = {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30,
                                 36, 37, 38, 39, 40, 43, 45, 48, 49, 51};

QVector<IdentityRule> identityRules()
{
    return {
        {"isOrderService", [](BaseTableProbe& t) { return t.isOrderService(); },
         {15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 40}},
        {"isCloseSetting", [](BaseTableProbe& t) { return t.isCloseSetting(); }, {36, 37, 38, 42, 43, 48, 49, 51}},
        {"isComposeFuture", [](BaseTableProbe& t) { return t.isComposeFuture(); }, {8, 10, 23}},
        {"isComposeStock", [](BaseTableProbe& t) { return t.isComposeStock(); }, {7, 9, 22, 24}},
        {"showAlgo", [](BaseTableProbe& t) { return t.showAlgo(); }, allBut(kNoAlgorithm)},
        {"showAlgoHelpButton", [](BaseTableProbe& t) { return t.showAlgoHelpButton(); }, allBut(kNoHelpButton)},
    };
}
// clang-format on

} // namespace

/// What identity, broker type and order type say of a table.
class tst_IdentityAnswers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void identityAnswers_data();
    void identityAnswers();
    void algorithmsByBrokerType_data();
    void algorithmsByBrokerType();
    void parameterTableIsSaidByTheOrderType_data();
    void parameterTableIsSaidByTheOrderType();
    void helpPagesByOrderType();
    void everyModuleNameIsLegal();
};

void tst_IdentityAnswers::identityAnswers_data()
{
    QTest::addColumn<int>("rule");
    const QVector<IdentityRule> rules = identityRules();
    for (int i = 0; i < rules.size(); ++i)
        QTest::newRow(rules.at(i).name) << i;
}

void tst_IdentityAnswers::identityAnswers()
{
    QFETCH(int, rule);
    const IdentityRule row = identityRules().at(rule);
    for (int id = -5; id <= 70; ++id) {
        TableSetup setup;
        setup.id = id;
        BaseTableProbe table(setup);
        QVERIFY2(row.asks(table) == row.identities.contains(id), qPrintable(QStringLiteral("identity %1").arg(id)));
    }
}

void tst_IdentityAnswers::algorithmsByBrokerType_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<bool>("offered");
    for (const int brokerType : {4, 6, 10})
        QTest::addRow("none for broker type %d", brokerType) << brokerType << false;
    for (const int brokerType : {-1, 0, 1, 2, 3, 5, 7, 8, 9, 11, 12, 14, 99, 1001, 1002})
        QTest::addRow("some for broker type %d", brokerType) << brokerType << true;
}

void tst_IdentityAnswers::algorithmsByBrokerType()
{
    QFETCH(int, brokerType);
    QFETCH(bool, offered);
    TableSetup setup;
    setup.brokerType = brokerType;
    for (int id = -5; id <= 70; ++id) {
        setup.id = id;
        QCOMPARE(BaseTableProbe(setup).showAlgo(), offered && !kNoAlgorithm.contains(id));
    }
}

void tst_IdentityAnswers::parameterTableIsSaidByTheOrderType_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("expected");
    for (const int orderType : {-1, 0, 1, 2, 3})
        QTest::addRow("not for order type %d", orderType) << orderType << false;
    for (const int orderType :
         {-1000, -3, -2, 4, 5, 6, 12, 13, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("for order type %d", orderType) << orderType << true;
}

void tst_IdentityAnswers::parameterTableIsSaidByTheOrderType()
{
    QFETCH(int, orderType);
    QFETCH(bool, expected);
    BaseTableProbe table;
    table.m_orderType = ttservice::EOrderType(orderType);
    QCOMPARE(table.isTrdParamTable(), expected);
}

void tst_IdentityAnswers::helpPagesByOrderType()
{
    const QSet<int> withHelp = {1, 2, 5, 13};
    BaseTableProbe table;
    for (int orderType = -5; orderType <= 110; ++orderType)
        QCOMPARE(table.bShowHelp(ttservice::EOrderType(orderType)), withHelp.contains(orderType));
}

void tst_IdentityAnswers::everyModuleNameIsLegal()
{
    BaseTableProbe table;
    for (const char* module : {"", "mdl_order", "mdl_order_algorithm3", "no such module"})
        QVERIFY(table.isAuthorityLegal(module));
}

QTEST_MAIN(tst_IdentityAnswers)
#include "tst_IdentityAnswers.moc"
