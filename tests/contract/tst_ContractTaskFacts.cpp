#include "contract/RecordedDialog.h"
#include "contract/RecordedPanel.h"

#include <QtTest>

using contract::lines;
using contract::TaskDialog;
using contract::taskOf;

namespace {

/// The calls on one fact but its making; of its validators only the last counts.
QStringList factCalls(const QString& label)
{
    QStringList calls = recorder::calls().filter(QStringLiteral("fact %1.").arg(label));
    QStringList validators = calls.filter(QStringLiteral("setDoubleValidator"));
    for (int i = 0; i + 1 < validators.size(); ++i)
        calls.removeOne(validators.at(i));
    calls.replaceInStrings(QStringLiteral("fact %1.").arg(label), QString());
    return calls;
}

const QStringList kFactLook = {QStringLiteral("setEditFontKey(\"fnt_default_normal_fix\")"),
                               QStringLiteral("setEnabled(false)"), QStringLiteral("setFixedHeight(22)"),
                               QStringLiteral("setFixedWidth(200)"),
                               QStringLiteral("setTextFontKey(\"fnt_default_normal_fix\")")};
const QString kUsualValidator = QStringLiteral("setDoubleValidator(\"\", 0.0, 1000000.0, 0.001)");
const QString kPriceValidator = QStringLiteral("setDoubleValidator(\"\", 0.0, max, 0.001)");
const QString kOptionValidator = QStringLiteral("setDoubleValidator(\"\", 0.0, max, 0.0001)");

} // namespace

/// What the facts of the task dialog are called with.
class tst_ContractTaskFacts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void factsAreAddedInOrder_data();
    void factsAreAddedInOrder();
    void everyFactIsCalledAsItStands_data();
    void everyFactIsCalledAsItStands();
    void trader4HasNoFacts();
};

void tst_ContractTaskFacts::init()
{
    recorder::reset();
}

void tst_ContractTaskFacts::factsAreAddedInOrder_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<bool>("basePrice");
    for (const int operation : {-1, 0, 1, 39, 42, 1021, 1088})
        QTest::addRow("operation %d", operation) << operation << true;
    for (const int operation : {40, 41, 1089})
        QTest::addRow("operation %d", operation) << operation << false;
}

void tst_ContractTaskFacts::factsAreAddedInOrder()
{
    QFETCH(int, operation);
    QFETCH(bool, basePrice);

    const TaskDialog dialog(taskOf(2, 1, operation));

    QStringList expected = lines(R"(
        new CWidgetList(2, dialog)
        list.setMargin(0, 0, 0, 0)
        new CParameterCell(0, "    账号", "", dialog)
        list.addFixedWidget(fact 账号, 0, false)
        list.addFixedSpace(1)
        new CParameterCell(0, "账号名称", "", dialog)
        list.addFixedWidget(fact 账号名称, 0, false)
        list.addFixedSpace(1)
        new CParameterCell(0, "    代码", "", dialog)
        list.addFixedWidget(fact 代码, 0, false)
        list.addFixedSpace(1)
        new CParameterCell(0, "    名称", "", dialog)
        list.addFixedWidget(fact 名称, 0, false)
        list.addFixedSpace(1)
        new CParameterCell(0, "    方向", "", dialog)
        list.addFixedWidget(fact 方向, 0, false)
        list.addFixedSpace(1)
        new CParameterCell(0, "    数量", "", dialog)
        list.addFixedWidget(fact 数量, 0, false)
        list.addFixedSpace(1)
    )");
    if (basePrice) {
        expected << lines(R"(
            new CParameterCell(0, "  基准价", "", dialog)
            list.addFixedWidget(fact 基准价, 0, false)
            list.addFixedSpace(1)
        )");
    }
    QStringList calls = recorder::calls(recorder::Do);
    calls = calls.mid(calls.indexOf(QStringLiteral("new CWidgetList(2, dialog)")));
    for (int i = calls.size() - 1; i >= 0; --i) {
        if (calls.at(i).startsWith(QLatin1String("fact ")))
            calls.removeAt(i);
    }
    QCOMPARE(calls, expected);
    QVERIFY(recorder::calls(recorder::Show).contains(QStringLiteral("list.setFixedWidth(200)")));
}

void tst_ContractTaskFacts::everyFactIsCalledAsItStands_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("priceType");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](int broker, int priceType, const QString& label, const QStringList& calls) {
        QTest::addRow("%s, broker type %d, price type %d", qPrintable(label), broker, priceType)
            << broker << priceType << label << calls;
    };
    const auto text = [](const QString& value) { return QStringLiteral("setString(\"%1\")").arg(value); };
    const QString price = QStringLiteral("setDouble(12.345)");
    row(2, 5, QStringLiteral("账号"), {kUsualValidator, text(QStringLiteral("A1"))});
    row(2, 5, QStringLiteral("账号名称"), {kUsualValidator, text(QStringLiteral("Name"))});
    row(0, 5, QStringLiteral("账号"), {kUsualValidator});
    row(0, 5, QStringLiteral("账号名称"), {kUsualValidator, text(QStringLiteral("空"))});
    row(2, 5, QStringLiteral("代码"), {kUsualValidator, text(QStringLiteral("600000"))});
    row(2, 5, QStringLiteral("名称"), {kUsualValidator, text(QStringLiteral("Bank"))});
    row(2, 5, QStringLiteral("方向"), {kUsualValidator});
    row(2, 5, QStringLiteral("数量"), {kUsualValidator, QStringLiteral("setInt(300)")});
    const QString basePrice = QStringLiteral("基准价");
    for (const int broker : {1, 5, 2, 3, 7, 1001, 0})
        row(broker, 5, basePrice, {kPriceValidator, price});
    for (const int broker : {1, 5})
        row(broker, 49, basePrice, {kPriceValidator, price});
    for (const int broker : {2, 3, 4, 7, 10, 11, 1001, 1002})
        row(broker, 49, basePrice, {kUsualValidator, text(QStringLiteral("盘后定价"))});
    row(6, 5, basePrice, {kOptionValidator, price});
    row(6, 49, basePrice, {kOptionValidator, price});
    row(6, 12, basePrice, {kOptionValidator, price, text(QStringLiteral("涨跌停价"))});
}

void tst_ContractTaskFacts::everyFactIsCalledAsItStands()
{
    QFETCH(int, brokerType);
    QFETCH(int, priceType);
    QFETCH(QString, label);
    QFETCH(QStringList, calls);
    ttservice::CCodeOrderParam task = taskOf(brokerType, 1);
    task.priceType = ttservice::EPriceType(priceType);
    if (brokerType == 0)
        task.account.reset();

    const TaskDialog dialog(task);

    QStringList actual = factCalls(label);
    if (calls.size() == 3) // the text comes first, then the validator and the number
        QVERIFY(actual.indexOf(calls.at(2)) < actual.indexOf(calls.at(0)));
    if (calls.contains(QStringLiteral("setDouble(12.345)")))
        QVERIFY(actual.indexOf(calls.at(0)) < actual.indexOf(calls.at(1)));
    actual.sort();
    calls << kFactLook;
    calls.sort();
    QCOMPARE(actual, calls);
}

void tst_ContractTaskFacts::trader4HasNoFacts()
{
    const TaskDialog dialog(taskOf(2, 1), 4);

    QCOMPARE(recorder::calls().filter(QStringLiteral("CParameterCell")), QStringList());
    QCOMPARE(recorder::calls().filter(QStringLiteral("new CWidgetList(2, ")), QStringList());
}

QTEST_MAIN(tst_ContractTaskFacts)
#include "tst_ContractTaskFacts.moc"
