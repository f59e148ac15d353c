#include "docs/Documents.h"

#include "support/EventLog.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <WQ/CMultiParamsTable.h>

#include <QTest>
#include <QTimeZone>

#include <functional>

using TC::COrderParamBaseTable;
using ttservice::COrderSetting;

namespace {

using Setter = std::function<void(COrderSetting&, int)>;

#define FIELD(name)                                                                                                    \
    {                                                                                                                  \
        QStringLiteral(#name), [](COrderSetting& setting, int value) { setting.name = decltype(setting.name)(value); } \
    }

/// Sets a field that the page names; of flags the lowest bit.
const QHash<QString, Setter>& setters()
{
    static const QHash<QString, Setter> fields = {
        {QStringLiteral("flag35"), [](COrderSetting& setting, int value) { setting.flag35 = (value & 1) != 0; }},
        {QStringLiteral("flag36"), [](COrderSetting& setting, int value) { setting.flag36 = (value & 1) != 0; }},
        FIELD(orderType),
        FIELD(intField2),
        FIELD(intField3),
        FIELD(realField4),
        FIELD(realField5),
        FIELD(intField6),
        FIELD(intField7),
        FIELD(realField8),
        FIELD(realField9),
        FIELD(intField10),
        FIELD(realField11),
        FIELD(realField12),
        FIELD(intField13),
        FIELD(realField14),
        FIELD(intField15),
        FIELD(intField16),
        FIELD(intField17),
        FIELD(intField18),
        FIELD(validTimeStart),
        FIELD(validTimeEnd),
        FIELD(intField21),
        FIELD(intField22),
        FIELD(intField23),
        FIELD(intField25),
        FIELD(realField26),
        FIELD(realField27),
        FIELD(intField28),
        FIELD(intField29),
        FIELD(realField30),
        FIELD(intField31),
        FIELD(realField32),
        FIELD(realField33),
        FIELD(realField34),
        FIELD(cellWord1),
        FIELD(cellWord2),
        FIELD(cellWord3),
        FIELD(cellWord4),
        FIELD(cellWord5),
    };
    return fields;
}

#undef FIELD

QString page()
{
    return documents::text(QStringLiteral("docs/parameter-strings.md"));
}

/// The blocks of text: the settings record's, then the credit table's.
QString block(int index)
{
    return documents::codeBlocks(page(), QStringLiteral("text")).value(index).trimmed();
}

QList<QStringList> items()
{
    return documents::tableRows(page(), QStringLiteral("## The settings record"));
}

QString textOf(const QString& type, int value)
{
    if (type == QLatin1String("double"))
        return QString::number(value) + QStringLiteral(".000");
    return QString::number(type == QLatin1String("bool") ? value & 1 : value);
}

} // namespace

class tst_ParameterStringsDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theItemsOfThePageAreItsText();
    void theLibraryWritesTheTextOfThePage();
    void eachItemHoldsTheFieldThatThePageNames();
    void theCreditTableShowsWhatThePageSays();
};

void tst_ParameterStringsDocument::theItemsOfThePageAreItsText()
{
    QStringList examples;
    for (const QStringList& row : items()) {
        QCOMPARE(row.size(), 5);
        examples << row.constLast();
        QCOMPARE(row.constFirst().toInt(), examples.size());
    }
    QCOMPARE(examples.size(), 41);
    QCOMPARE(examples.join(QLatin1Char('+')), block(0));
}

// The default record of trader type 1 for the first algorithm, on 20 May 2024 in Shanghai.
void tst_ParameterStringsDocument::theLibraryWritesTheTextOfThePage()
{
    COrderSetting setting = COrderParamBaseTable::getDefaultOrderSetting(ttservice::OPT_NONE, ttservice::TRADER_TYPE_1,
                                                                         ttservice::ORDER_TYPE_ALGORITHM);
    const QTimeZone shanghai("Asia/Shanghai");
    setting.validTimeStart = int(QDateTime(QDate(2024, 5, 20), QTime(9, 30), shanghai).toSecsSinceEpoch());
    setting.validTimeEnd = int(QDateTime(QDate(2024, 5, 20), QTime(15, 0), shanghai).toSecsSinceEpoch());
    QCOMPARE(COrderParamBaseTable::orderSetting2Param(setting), block(0));
}

void tst_ParameterStringsDocument::eachItemHoldsTheFieldThatThePageNames()
{
    for (const QStringList& row : items()) {
        const QString field = row.at(1);
        QVERIFY2(setters().contains(field), qPrintable(field));
        const int value = 1001 + 2 * row.constFirst().toInt();
        COrderSetting setting;
        setters()[field](setting, value);
        const QStringList written = COrderParamBaseTable::orderSetting2Param(setting).split(QLatin1Char('+'));
        QCOMPARE(written.value(row.constFirst().toInt() - 1), textOf(row.at(2), value));
    }
    QCOMPARE(setters().size(), 40);
}

void tst_ParameterStringsDocument::theCreditTableShowsWhatThePageSays()
{
    support::EventLog host;
    auto* const table = new TC::CCreditParamTable(&host);
    table->setParam(block(1));
    QCOMPARE(table->param(), block(1));
    QCOMPARE(host.takeNumbers(), QList<int>{73});
    auto* const cells = table->findChild<WQ::CMultiParamsTable*>();
    QVERIFY(cells);
    int checked = 0;
    for (const QStringList& row : documents::tableRows(page(), QStringLiteral("## The credit table"))) {
        if (row.size() != 4 || !row.constFirst().startsWith(QLatin1String("7")))
            continue;
        ++checked;
        const int id = row.constFirst().toInt();
        QCOMPARE(cells->itemText(id), row.at(2));
        QCOMPARE(cells->itemUnit(id), row.at(3));
    }
    QCOMPARE(checked, 3);
}

QTEST_MAIN(tst_ParameterStringsDocument)
#include "tst_ParameterStringsDocument.moc"
