#include "replay/Catalogue.h"
#include "replay/CatalogueRows.h"

#include "support/ModuleGuard.h"

#include "reference/services/ServiceControl.h"

#include <QtTest>

#include <algorithm>

using replay::catalogue;
using replay::CatalogueForm;
using replay::CatalogueRequest;
using replay::Json;

namespace {

const QList<int> kIdentities = {1,  5,  7,  8,  9,  10, 11, 12, 13, 14, 15, 17, 18, 19, 20, 21,
                                22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 33, 35, 36, 40, 43};
const QList<int> kBrokerTypes = {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002};
const QList<int> kTraderTypes = {1, 2, 4};

const QStringList kAllModules = {
    QStringLiteral("mdl_order/mdl_order_algorithm3"),
    QStringLiteral("mdl_order/mdl_order_multi_market_price"),
    QStringLiteral("mdl_order/mdl_order_stock_multi_market_price"),
    QStringLiteral("mdl_order/mdl_order_credit_opt_slosell_only_fixed_price"),
    QStringLiteral("mdl_order/mdl_order_compose_full_pricetype"),
    QStringLiteral("mdl_order/mdl_order_command_remark"),
    QStringLiteral("mdl_order/mdl_order_trigger_price"),
    QStringLiteral("mdl_order/mdl_order_stop_profit_loss"),
    QStringLiteral("mdl_alg/mdl_alg_randvolume"),
};

CatalogueRequest requestOf(CatalogueForm form, int id, int broker, int trader)
{
    CatalogueRequest request;
    request.form = form;
    request.id = id;
    request.broker = broker;
    request.trader = trader;
    return request;
}

/// The lines of a CSV catalogue without the names of the columns.
QByteArrayList linesOf(CatalogueRequest request)
{
    request.form = CatalogueForm::Csv;
    QByteArrayList lines = catalogue(request).split('\n');
    lines.removeFirst();
    lines.removeLast();
    return lines;
}

QByteArrayList linesOf(int id, int broker, int trader, const QStringList& modules = {})
{
    CatalogueRequest request = requestOf(CatalogueForm::Csv, id, broker, trader);
    request.modules = modules;
    return linesOf(request);
}

/// The number before the comma of that index.
int numberAt(const QByteArray& line, int index)
{
    return line.split(',').value(index).toInt();
}

/// All lines of a request with all modules on, without the column that says which value was asked for.
QByteArrayList offersOf(CatalogueRequest request, int column)
{
    request.modules = kAllModules;
    QByteArrayList offers;
    for (const QByteArray& line : linesOf(request)) {
        QByteArrayList fields = line.split(',');
        fields.removeAt(column);
        offers << fields.join(',');
    }
    return offers;
}

/// Asked for again and again, and slow.
QByteArrayList offersOfIdentity(int id)
{
    static QHash<int, QByteArrayList> known;
    QByteArrayList& offers = known[id];
    if (offers.isEmpty()) {
        CatalogueRequest request;
        request.id = id;
        offers = offersOf(request, 0);
    }
    return offers;
}

QByteArrayList offersOfBroker(int broker)
{
    CatalogueRequest request;
    request.broker = broker;
    return offersOf(request, 1);
}

QByteArrayList offersOfTrader(int trader)
{
    CatalogueRequest request;
    request.trader = trader;
    return offersOf(request, 2);
}

QList<int> ascending(const QSet<int>& values)
{
    QList<int> sorted = values.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

/// The numbers after @p word in a heading, up to the next word.
QList<int> numbersAfter(const QString& heading, const QString& word)
{
    const QRegularExpression list(word + QStringLiteral(" ((?:-?\\d+(?:, )?)+)"));
    QList<int> numbers;
    for (const QString& number : list.match(heading).captured(1).split(QStringLiteral(", "), Qt::SkipEmptyParts))
        numbers << number.toInt();
    return numbers;
}

} // namespace

class tst_Catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCellIsALine();
    void theSameCellsAsATable();
    void theSameCellsAsJson();
    void aHiddenCellIsMarked();
    void modulesBringCellsAndEntries();
    void modulesAreAsBeforeAfterwards();
    void entriesThatNeedPermissionAreListed();
    void whatIsLeftOutRunsOverAllValues();
    void askingForOneValueRunsOverTheOthers();
    void identitiesThatAreNotListedMakeNoDifference_data();
    void identitiesThatAreNotListedMakeNoDifference();
    void listedIdentitiesMakeADifference();
    void brokerTypesThatAreNotListedMakeNoDifference();
    void traderTypesThatAreNotListedMakeNoDifference();
    void everyTableStandsUnderOneHeading();
    void unknownValuesAreListedToo();
    void twoRunsAreTheSame();
    void csvFieldsAreQuoted();
    void markdownCellsAreEscaped();
};

void tst_Catalogue::everyCellIsALine()
{
    const QByteArray expected = R"(id,broker,trader,cell,kind,label,value,check,units,entries,hidden
31,7,1,1,combo,报价方式,最新价,,,最新价=5; 对手价=14; 指定价=11; 卖①价=4; 买①价=6,
31,7,1,64,number,尾单最小量,100,,% (int 1..100); 股 (int 100..1000000),,
31,7,1,8,checkNumber,波动区间,3,[ ] 单向,% (double 0..100 step 0.01); 港币 (double 0..1000000),,
31,7,1,512,number,单笔最小量,10000,,股 (int 100..1000000 step 100),,
31,7,1,1024,number,单笔最大量,10000,,股 (int 100..1000000 step 100),,
31,7,1,2048,timePeriod,有效时间,09:30:00-15:00:00,,,,
31,7,1,4096,number,最大委托次数,1000,,次 (int 1..10000 step 1),,
31,7,1,8192,combo,未成委托处理,不处理,,,不处理=-1; 按卖①价委托=4; 按最新价委托=5; 按买①价委托=6; 按对手价委托=14,
31,7,1,65536,combo,初始报价,买①价,,,卖⑤价=0; 卖④价=1; 卖③价=2; 卖②价=3; 卖①价=4; 最新价=5; 买①价=6; 买②价=7; 买③价=8; 买④价=9; 买⑤价=10,
31,7,1,131072,combo,未成处理,卖①价,,,卖⑤价=0; 卖④价=1; 卖③价=2; 卖②价=3; 卖①价=4; 最新价=5; 买①价=6; 买②价=7; 买③价=8; 买④价=9; 买⑤价=10,
31,7,1,524288,number,波动区间,0,,% (double 0..100 step 0.01),,
)";
    const QByteArray actual = catalogue(requestOf(CatalogueForm::Csv, 31, 7, 1));
    QVERIFY(actual.endsWith("\r\n"));
    const QByteArrayList actualLines = actual.split('\n');
    const QByteArrayList expectedLines = QByteArray(expected).replace("\n", "\r\n").split('\n');
    for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i)
        QCOMPARE(QString::fromUtf8(actualLines.at(i)), QString::fromUtf8(expectedLines.at(i)));
    QCOMPARE(actualLines.size(), expectedLines.size());
}

void tst_Catalogue::theSameCellsAsATable()
{
    const QStringList lines =
        QString::fromUtf8(catalogue(requestOf(CatalogueForm::Markdown, 31, 7, 1))).split(QLatin1Char('\n'));
    QCOMPARE(lines.value(0), QStringLiteral("# Cells straight after construction"));
    QCOMPARE(lines.value(2), QStringLiteral("Feature modules: none"));
    QCOMPARE(lines.value(4), QStringLiteral("## Broker type 7, trader type 1, identity 31"));
    QCOMPARE(lines.value(6), QStringLiteral("| cell | kind | label | value | check | units | entries | hidden |"));
    QCOMPARE(lines.value(7), QStringLiteral("|---|---|---|---|---|---|---|---|"));
    QCOMPARE(lines.value(8),
             QStringLiteral("| 1 | combo | 报价方式 | 最新价 |  |  | "
                            "最新价=5; 对手价=14; 指定价=11; 卖①价=4; 买①价=6 |  |"));
    QCOMPARE(lines.value(10),
             QStringLiteral("| 8 | checkNumber | 波动区间 | 3 | [ ] 单向 | "
                            "% (double 0..100 step 0.01); 港币 (double 0..1000000) |  |  |"));
    QCOMPARE(lines.value(18),
             QStringLiteral("| 524288 | number | 波动区间 | 0 |  | % (double 0..100 step 0.01) |  |  |"));
    QCOMPARE(lines.mid(19), QStringList{QString()});
}

void tst_Catalogue::theSameCellsAsJson()
{
    const QByteArray text = catalogue(requestOf(CatalogueForm::Json, 31, 7, 1));
    const Json elements = Json::parse(text.toStdString());
    QCOMPARE(elements.size(), std::size_t(11));
    // A line an element, between the brackets.
    QCOMPARE(text.count('\n'), 13);
    QCOMPARE(QByteArray::fromStdString(elements[0].dump()),
             QByteArray(R"({"id":31,"broker":7,"trader":1,"cell":{"id":1,"kind":"combo","label":"报价方式",)"
                        R"("hidden":false,"shown":true,"enabled":true,"editable":true,)"
                        R"("entries":[["最新价",5],["对手价",14],["指定价",11],["卖①价",4],["买①价",6]],)"
                        R"("index":0,"data":5,"text":"最新价"}})"));
}

void tst_Catalogue::aHiddenCellIsMarked()
{
    const QByteArray line("12,6,2,33554432,number,限价,0,,元 (double 0..1000000 step 0.01),,hidden\r");
    QCOMPARE(linesOf(12, 6, 2).last(), line);
}

void tst_Catalogue::modulesBringCellsAndEntries()
{
    const QByteArray range("5,2,1,8388608,range,单笔量区间,1 - 1000000,,股 (1..1000000),,\r");
    const QByteArray remark("5,2,1,67108864,line,投资备注,,,,,\r");
    const QByteArrayList without = linesOf(5, 2, 1);
    QVERIFY(!without.contains(range));
    QVERIFY(!without.contains(remark));
    const QByteArrayList with = linesOf(
        5, 2, 1, {QStringLiteral("mdl_order/mdl_order_command_remark"), QStringLiteral("mdl_alg/mdl_alg_randvolume")});
    QCOMPARE(with.size(), without.size() + 2);
    QCOMPARE(with.indexOf(range), 11);
    QCOMPARE(with.last(), remark);
    // Market 5 of the initial list adds one order of the market family.
    const QByteArray market("最优五档即成剩撤=47");
    QVERIFY(!without.first().contains(market));
    QVERIFY(linesOf(5, 2, 1, kAllModules).first().contains(market));
}

void tst_Catalogue::modulesAreAsBeforeAfterwards()
{
    const support::ModuleGuard on({support::modules::kCommandRemark});
    QVERIFY(!linesOf(5, 2, 1).last().contains("投资备注"));
    QCOMPARE(reference::modules(), QSet<QString>{QString::fromLatin1(support::modules::kCommandRemark)});
    linesOf(5, 2, 1, kAllModules);
    QCOMPARE(reference::modules(), QSet<QString>{QString::fromLatin1(support::modules::kCommandRemark)});
}

void tst_Catalogue::entriesThatNeedPermissionAreListed()
{
    QVERIFY(linesOf(5, 2, 2).first().contains("自动盘口=15"));
    QVERIFY(!linesOf(5, 10, 2).first().contains("自动盘口=15"));
}

void tst_Catalogue::whatIsLeftOutRunsOverAllValues()
{
    QElapsedTimer timer;
    timer.start();
    const QByteArrayList lines = linesOf(CatalogueRequest());
    qInfo("%d cells listed in %d ms", lines.size(), int(timer.elapsed()));
    QList<QList<int>> tables;
    QSet<int> columns[3];
    for (const QByteArray& line : lines) {
        const QList<int> table = {numberAt(line, 0), numberAt(line, 1), numberAt(line, 2)};
        if (tables.isEmpty() || tables.last() != table)
            tables << table;
        for (int i = 0; i < 3; ++i)
            columns[i] << table.at(i);
    }
    QCOMPARE(ascending(columns[0]), kIdentities);
    QCOMPARE(ascending(columns[1]), kBrokerTypes);
    QCOMPARE(ascending(columns[2]), kTraderTypes);
    QCOMPARE(tables.size(), kIdentities.size() * kBrokerTypes.size() * kTraderTypes.size());
    QVERIFY(std::is_sorted(tables.begin(), tables.end()));
}

void tst_Catalogue::askingForOneValueRunsOverTheOthers()
{
    CatalogueRequest request;
    request.id = 31;
    request.trader = 4;
    QSet<int> brokers;
    for (const QByteArray& line : linesOf(request)) {
        QCOMPARE(numberAt(line, 0), 31);
        QCOMPARE(numberAt(line, 2), 4);
        brokers << numberAt(line, 1);
    }
    QCOMPARE(ascending(brokers), kBrokerTypes);
}

void tst_Catalogue::identitiesThatAreNotListedMakeNoDifference_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("peer");
    for (const int id : {-1, 0, 2, 3, 4, 6, 16, 32, 34})
        QTest::addRow("identity %d", id) << id << 1;
    for (const int id : {37, 38, 39, 41, 42, 44, 45, 48, 49, 51, 52, 60})
        QTest::addRow("identity %d", id) << id << 35;
}

void tst_Catalogue::identitiesThatAreNotListedMakeNoDifference()
{
    QFETCH(int, id);
    QFETCH(int, peer);
    QVERIFY(offersOfIdentity(id) == offersOfIdentity(peer));
}

void tst_Catalogue::listedIdentitiesMakeADifference()
{
    QVERIFY(offersOfIdentity(1) != offersOfIdentity(35));
    for (const int id : kIdentities) {
        if (id == 1 || id == 35)
            continue;
        QVERIFY2(offersOfIdentity(id) != offersOfIdentity(id < 35 ? 1 : 35), qPrintable(QString::number(id)));
    }
}

void tst_Catalogue::brokerTypesThatAreNotListedMakeNoDifference()
{
    const QByteArrayList other = offersOfBroker(8);
    for (const int broker : {0, 9, 1003})
        QVERIFY2(offersOfBroker(broker) == other, qPrintable(QString::number(broker)));
    for (const int broker : kBrokerTypes)
        QVERIFY2(broker == 8 || offersOfBroker(broker) != other, qPrintable(QString::number(broker)));
}

void tst_Catalogue::traderTypesThatAreNotListedMakeNoDifference()
{
    const QByteArrayList other = offersOfTrader(2);
    for (const int trader : {0, 4096})
        QVERIFY2(offersOfTrader(trader) == other, qPrintable(QString::number(trader)));
    QVERIFY(offersOfTrader(1) != other);
    QVERIFY(offersOfTrader(4) != other);
}

void tst_Catalogue::everyTableStandsUnderOneHeading()
{
    const QStringList lines = QString::fromUtf8(catalogue(CatalogueRequest())).split(QLatin1Char('\n'));
    QList<QList<int>> tables;
    for (const QString& heading : lines.filter(QRegularExpression(QStringLiteral("^## "))))
        for (const int broker : numbersAfter(heading, QStringLiteral("Broker type")))
            for (const int trader : numbersAfter(heading, QStringLiteral("trader types?")))
                for (const int id : numbersAfter(heading, QStringLiteral("identit(?:y|ies)")))
                    tables << QList<int>{id, broker, trader};
    QList<QList<int>> expected;
    for (const int id : kIdentities)
        for (const int broker : kBrokerTypes)
            for (const int trader : kTraderTypes)
                expected << QList<int>{id, broker, trader};
    std::sort(tables.begin(), tables.end());
    QCOMPARE(tables, expected);
    QVERIFY(lines.contains(QStringLiteral("## Broker type 2, trader types 1, 2, 4, identities 11, 12, 13")));
}

void tst_Catalogue::unknownValuesAreListedToo()
{
    constexpr int kMost = std::numeric_limits<int>::max();
    const QByteArrayList lines = linesOf(kMost, kMost, -kMost, {QStringLiteral("no/such_module"), QString()});
    QVERIFY(lines.first().startsWith("2147483647,2147483647,-2147483647,1,combo,报价方式,"));
}

void tst_Catalogue::twoRunsAreTheSame()
{
    for (const CatalogueForm form : {CatalogueForm::Markdown, CatalogueForm::Csv, CatalogueForm::Json}) {
        CatalogueRequest request;
        request.form = form;
        request.id = 5;
        request.modules = QStringList{kAllModules.at(8), kAllModules.at(5)};
        const QByteArray first = catalogue(request);
        std::reverse(request.modules.begin(), request.modules.end());
        QCOMPARE(catalogue(request), first);
    }
}

void tst_Catalogue::csvFieldsAreQuoted()
{
    const Json cell = Json::parse(R"({"id":7,"kind":"line","label":"a,b","hidden":false,"text":"他说\"买\"\r\n卖"})");
    QCOMPARE(replay::csvRow(cell), QByteArray("7,line,\"a,b\",\"他说\"\"买\"\"\r\n卖\",,,,\r\n"));
}

void tst_Catalogue::markdownCellsAreEscaped()
{
    const Json cell = Json::parse(R"({"id":7,"kind":"line","label":"a|b\\|c","hidden":true,"text":"一\r\n二"})");
    QCOMPARE(replay::markdownRow(cell), QByteArray("| 7 | line | a\\|b\\\\\\|c | 一 二 |  |  |  | hidden |\n"));
}

QTEST_MAIN(tst_Catalogue)
#include "tst_Catalogue.moc"
