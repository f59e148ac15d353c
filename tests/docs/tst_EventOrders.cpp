#include "docs/Documents.h"

#include "replay/Session.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// What happens under a row of the page: what was done before, and the step whose events are meant.
struct Case
{
    const char* row;
    QByteArrayList before;
    QByteArray step;
};

const QByteArray kOrderTable =
    R"({"do":"new","class":"CGlobalOrderParamTable","name":"t","args":[5,2,true,true,1,false]})";
const QByteArray kCreditTable = R"({"do":"new","class":"CCreditParamTable","name":"t","args":[]})";

/// A market price type, so that the price display takes its colour.
const QByteArray kMarketPrice = R"({"do":"call","on":"t","op":"setPriceType","args":[47]})";
const QByteArray kAlgorithm = R"({"do":"call","on":"t","op":"setOrderType","args":[1]})";
const QByteArray kExpand = R"({"do":"call","on":"t","op":"setExpandItemsHidden","args":[false]})";
const QByteArray kPlainAgain = R"({"do":"call","on":"t","op":"setOrderType","args":[0]})";
const QByteArray kAlgorithmButton = R"({"do":"addButton","on":"t","id":601,"text":"a"})";
const QByteArray kSetButton = R"({"do":"addButton","on":"t","id":605,"text":"b"})";
const QByteArray kClickSet = R"({"do":"click","on":"t","button":605})";

QList<Case> cases()
{
    return {
        {"a combo entry is chosen", {kOrderTable}, R"({"do":"edit","on":"t","cell":1,"text":"对手价"})"},
        {"a number, range, unit or check is committed",
         {kOrderTable},
         R"({"do":"edit","on":"t","cell":2,"value":1.5})"},
        {"a number, range, unit or check is committed",
         {kOrderTable},
         R"({"do":"edit","on":"t","cell":2,"unit":"元"})"},
        {"a number, range, unit or check is committed",
         {kOrderTable, kAlgorithm, kExpand},
         R"({"do":"edit","on":"t","cell":8,"checked":true})"},
        {"a period or line is committed",
         {kOrderTable, kAlgorithm, kExpand},
         R"({"do":"edit","on":"t","cell":2048,"time":["09:45:00","14:00:00"]})"},
        {"a period or line is committed", {kOrderTable}, R"({"do":"edit","on":"t","cell":67108864,"text":"remark"})"},
        {"a number or unit is committed in a mode with a parameter set",
         {kOrderTable, kSetButton, kClickSet, kPlainAgain},
         R"({"do":"edit","on":"t","cell":2,"value":1.5})"},
        {"a number or unit is committed in a mode with a parameter set",
         {kOrderTable, kSetButton, kClickSet, kPlainAgain},
         R"({"do":"edit","on":"t","cell":2,"unit":"元"})"},
        {"a mode with cells is chosen (buttons 600 to 603)",
         {kOrderTable, kMarketPrice, kAlgorithmButton},
         R"({"do":"click","on":"t","button":601})"},
        {"a mode with a parameter set is chosen (604 and up)", {kOrderTable, kSetButton}, kClickSet},
        {"setFixedPrice()", {kOrderTable}, R"({"do":"call","on":"t","op":"setFixedPrice","args":[10.5]})"},
        {"selectPrice()", {kOrderTable}, R"({"do":"call","on":"t","op":"selectPrice","args":[6]})"},
        {"setOperationType(), setOrderType()",
         {kOrderTable, kMarketPrice},
         R"({"do":"call","on":"t","op":"setOperationType","args":[18]})"},
        {"setOperationType(), setOrderType()",
         {kOrderTable, kMarketPrice},
         R"({"do":"call","on":"t","op":"setOrderType","args":[5]})"},
        {"the credit table's setParam()", {kCreditTable}, R"({"do":"call","on":"t","op":"setParam","args":["24+"]})"},
    };
}

/// With everything on that an order can hold: the client mode, and the modules of market prices and remarks.
const QByteArrayList kEverythingOn = {
    R"({"do":"clientMode","value":100})",
    R"({"do":"modules","on":["mdl_order/mdl_order_stock_multi_market_price","mdl_order/mdl_order_command_remark"]})"};

replay::Json run(replay::Session& session, const QByteArray& command)
{
    return session.run(replay::Json::parse(command.toStdString()));
}

/// The order that the page gives, one element an event; "1062 or 1063" is one that may be either.
QStringList orderOf(const QString& row)
{
    for (const QStringList& cells :
         documents::tableRows(documents::text(QStringLiteral("docs/events.md")), QStringLiteral("## In which order"))) {
        if (cells.constFirst() == row)
            return cells.value(1).split(QRegularExpression(QStringLiteral(", (?:then )?")));
    }
    return {};
}

bool names(const QString& element, int event)
{
    return element.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(event)));
}

} // namespace

class tst_EventOrders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsComeInTheOrderOfThePage_data();
    void eventsComeInTheOrderOfThePage();
    void eachRowOfThePageIsTried();
    void whatThePageCallsSilentSendsNothing();
};

void tst_EventOrders::eventsComeInTheOrderOfThePage_data()
{
    QTest::addColumn<int>("index");
    const QList<Case> all = cases();
    for (int index = 0; index < all.size(); ++index)
        QTest::addRow("%d %s", index, all.at(index).row) << index;
}

void tst_EventOrders::eventsComeInTheOrderOfThePage()
{
    QFETCH(int, index);
    const Case tried = cases().at(index);
    replay::Session session;
    for (const QByteArray& command : kEverythingOn + tried.before) {
        const replay::Json answer = run(session, command);
        QVERIFY2(answer.at("ok").get<bool>(), answer.dump().c_str());
    }
    const replay::Json answer = run(session, tried.step);
    QVERIFY2(answer.at("ok").get<bool>(), answer.dump().c_str());
    const QStringList expected = orderOf(QString::fromUtf8(tried.row));
    QVERIFY2(!expected.isEmpty(), tried.row);
    const replay::Json& events = answer.at("events");
    const std::string heard = events.dump();
    QVERIFY2(int(events.size()) == expected.size(), heard.c_str());
    for (int place = 0; place < expected.size(); ++place)
        QVERIFY2(names(expected.at(place), events.at(std::size_t(place)).at(0).get<int>()), heard.c_str());
}

void tst_EventOrders::eachRowOfThePageIsTried()
{
    QStringList tried;
    for (const Case& one : cases())
        tried << QString::fromUtf8(one.row);
    tried.removeDuplicates();
    QStringList rows;
    for (const QStringList& cells :
         documents::tableRows(documents::text(QStringLiteral("docs/events.md")), QStringLiteral("## In which order")))
        rows << cells.constFirst();
    QCOMPARE(tried, rows);
}

void tst_EventOrders::whatThePageCallsSilentSendsNothing()
{
    const QByteArrayList silent = {
        kOrderTable,
        kMarketPrice,
        R"({"do":"call","on":"t","op":"setFlag","args":[1]})",
        R"({"do":"call","on":"t","op":"setStockCode","args":["600000"]})",
        R"({"do":"call","on":"t","op":"setOriginalPrice","args":[10.5]})",
        kExpand,
        R"({"do":"call","on":"t","op":"setOrderSettings","args":[1,{}]})",
        R"({"do":"call","on":"t","op":"getOrderSettings","args":[1]})",
        R"({"do":"grid","on":"t","op":"setItemDouble","args":[2,1.5]})",
        R"({"do":"grid","on":"t","op":"setComboData","args":[1,5]})",
        R"({"do":"event","on":"t","args":[1213,0,0,"x"],"data":{"int":5}})",
        R"({"do":"event","on":"t","args":[249,0,0,""]})",
        R"({"do":"event","on":"t","args":[1071,0,0,""]})",
    };
    replay::Session session;
    for (const QByteArray& command : kEverythingOn + silent) {
        const replay::Json answer = run(session, command);
        QVERIFY2(answer.at("ok").get<bool>(), answer.dump().c_str());
        QVERIFY2(answer.at("events").empty(), answer.dump().c_str());
    }
}

QTEST_MAIN(tst_EventOrders)
#include "tst_EventOrders.moc"
