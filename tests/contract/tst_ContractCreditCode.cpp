#include "contract/RecordedCredit.h"
#include "contract/RecordedPanel.h"

#include <ttservice/CStkCompactsV2.h>

#include <boost/make_shared.hpp>

#include <QtTest>

using contract::emptiedRows;
using contract::lines;
using contract::noCodeEvent;
using contract::RecordedCredit;

namespace {

/// A contract's data that records when it is asked for its key.
class KeyedData : public ttservice::IData
{
public:
    std::string getKey() const override
    {
        recorder::record(recorder::Service, QStringLiteral("data.getKey"));
        return "K1";
    }
};

boost::shared_ptr<ttservice::CStkCompactsV2> contractWithData()
{
    auto compact = boost::make_shared<ttservice::CStkCompactsV2>();
    compact->data = boost::make_shared<KeyedData>();
    return compact;
}

const QStringList kSharesOfTwo = lines(R"(
    table.setItemUnit(728, "股")
    table.setItemUnit(730, "股")
)");

} // namespace

/// What entering a code or choosing a contract calls in the credit table, in order.
class tst_ContractCreditCode : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void codeWithAContractIsWrittenAlone();
    void codeWithDefaultContractTakesItsValue();
    void codeOfAnInstrumentTakesAllContracts_data();
    void codeOfAnInstrumentTakesAllContracts();
    void chosenContractCallsInOrder_data();
    void chosenContractCallsInOrder();
    void contractWithoutDataCallsNothing();
    void fixedCodeIsWrittenOrCleared();
    void emptiedCodeClearsAndTellsTheOwner();
};

void tst_ContractCreditCode::init()
{
    recorder::reset();
}

void tst_ContractCreditCode::codeWithAContractIsWrittenAlone()
{
    RecordedCredit credit(22);
    credit.offerAccount(QStringLiteral("A1"));

    credit.table.setStockCode(QStringLiteral("600000"), "K1", false);

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(table.setItemText(727, "600000"))"));
}

void tst_ContractCreditCode::codeWithDefaultContractTakesItsValue()
{
    RecordedCredit credit(22);
    credit.offerAccount(QStringLiteral("A1"));

    credit.table.setStockCode(QStringLiteral("600000"), {}, true);

    QCOMPARE(recorder::calls(), lines(R"(
        table.setItemText(727, "600000")
        table.setItemText(728, "0")
    )") + kSharesOfTwo);
}

void tst_ContractCreditCode::codeOfAnInstrumentTakesAllContracts_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("unrepaid");
    QTest::addColumn<bool>("today");
    for (const int operation : {22, 23})
        QTest::addRow("operation %d", operation) << operation << QStringLiteral("~0") << true;
    for (const int operation : {24, 25, 1021})
        QTest::addRow("operation %d", operation) << operation << QStringLiteral("~0.00") << false;
    for (const int operation : {-1, 21})
        QTest::addRow("operation %d", operation) << operation << QStringLiteral("0") << false;
}

void tst_ContractCreditCode::codeOfAnInstrumentTakesAllContracts()
{
    QFETCH(int, operation);
    QFETCH(QString, unrepaid);
    QFETCH(bool, today);
    RecordedCredit credit(operation);
    credit.offerAccount(QStringLiteral("A1"));

    credit.table.setStockCode(QStringLiteral("600000"), {}, false);

    QStringList expected{QStringLiteral("table.setItemText(727, \"600000\")"),
                         QStringLiteral("table.setItemText(728, \"%1\")").arg(unrepaid)};
    expected << kSharesOfTwo;
    if (today)
        expected << lines(R"(table.setItemText(729, "~0")
                             table.setItemUnit(729, "股"))");
    QCOMPARE(recorder::calls(), expected);
}

void tst_ContractCreditCode::chosenContractCallsInOrder_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<bool>("showZero");
    for (const int operation : {22, 23, 24, 25, 1021, -1}) {
        QTest::addRow("operation %d", operation) << operation << false;
        QTest::addRow("operation %d, zero", operation) << operation << true;
    }
}

void tst_ContractCreditCode::chosenContractCallsInOrder()
{
    QFETCH(int, operation);
    QFETCH(bool, showZero);
    RecordedCredit credit(operation);
    credit.offerAccount(QStringLiteral("A1"));

    credit.table.setStkCompacts(contractWithData(), QStringLiteral("77"), showZero);

    QStringList expected = lines(R"(
        table.setItemText(727, "")
        data.getKey()
        table.setItemText(730, "0")
    )");
    expected << QStringLiteral("table.setItemText(728, \"%1\")").arg(QLatin1String(showZero ? "0" : "77"));
    if (operation == 22 || operation == 23)
        expected << QStringLiteral("table.setItemText(729, \"~0\")");
    QCOMPARE(recorder::calls(recorder::kActs | recorder::Service), expected);
}

void tst_ContractCreditCode::contractWithoutDataCallsNothing()
{
    RecordedCredit credit(22);

    credit.table.setStkCompacts({}, QStringLiteral("77"), true);
    credit.table.setStkCompacts(boost::make_shared<ttservice::CStkCompactsV2>(), QStringLiteral("77"), true);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractCreditCode::fixedCodeIsWrittenOrCleared()
{
    RecordedCredit credit(22);

    credit.table.setFixCodeText(QStringLiteral("600000"), true, false, "K1");
    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(table.setItemText(727, "600000"))"));

    recorder::clear();
    credit.table.setFixCodeText(QStringLiteral("600000"), false, true, {});
    QCOMPARE(recorder::calls(recorder::kEverything), emptiedRows());
}

void tst_ContractCreditCode::emptiedCodeClearsAndTellsTheOwner()
{
    RecordedCredit credit(22);

    credit.table.fixCodeChanged({});

    QCOMPARE(recorder::calls(recorder::kEverything), emptiedRows() + noCodeEvent());
}

QTEST_MAIN(tst_ContractCreditCode)
#include "tst_ContractCreditCode.moc"
