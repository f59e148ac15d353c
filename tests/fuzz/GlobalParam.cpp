// The global table's parameter string. The input may begin with a line that is an order type. This edition takes
// nothing from the text: whatever it says, one record comes into being and nothing else moves.
#include "fuzz/FuzzTarget.h"
#include "support/CellText.h"
#include "support/EventLog.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

namespace {

using ttservice::COrderSetting;
using ttservice::EOrderType;

class Table : public TC::CGlobalOrderParamTable
{
public:
    explicit Table(QWidget* parent)
        : TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(31), ttservice::ENVBrokerType(2), true, parent, true,
                                     ttservice::TRADER_TYPE_1, false)
    {
    }

    using TC::CGlobalOrderParamTable::m_settingsByOrderType;
    using TC::CGlobalOrderParamTable::m_table;
    using TC::CGlobalOrderParamTable::resetStrategyType;
};

struct Host
{
    Host()
        : table(new Table(&log))
    {
    }

    support::EventLog log;
    Table* const table; ///< the log's child
};

Host& host()
{
    static Host* const theHost = new Host;
    return *theHost;
}

QString textOf(const COrderSetting& setting)
{
    return TC::COrderParamBaseTable::orderSetting2Param(setting);
}

/// A record that no operation makes.
COrderSetting marked(int mark)
{
    COrderSetting setting;
    setting.orderType = EOrderType(mark);
    setting.intField2 = mark;
    setting.realField34 = 0.125;
    setting.validTimeEnd = mark;
    return setting;
}

/// All that a host and a person see, the records left out.
QStringList seen()
{
    Table& table = *host().table;
    QStringList lines = support::cellRows(*table.m_table);
    lines << table.param() << table.getOrderSettingParam() << table.getStockCode() << table.loadCheckParam()
          << QString::number(table.orderType()) << host().log.take();
    return lines;
}

/// Takes the first line off the text when it is a number.
EOrderType takeOrderType(QString& text)
{
    const int end = text.indexOf(QLatin1Char('\n'));
    bool isNumber = false;
    const int type = text.left(std::max(0, end)).toInt(&isNumber);
    if (!isNumber)
        return EOrderType(0);
    text.remove(0, end + 1);
    return EOrderType(type);
}

void checkRecords(const QString& text, EOrderType type)
{
    Table& table = *host().table;
    const int other = type == EOrderType(7) ? 8 : 7;
    table.m_settingsByOrderType = {{other, marked(70)}};
    table.setParam(text);
    fuzz::require(table.m_settingsByOrderType.size() == 2 && table.m_settingsByOrderType.contains(type),
                  "the order type gains its record");
    fuzz::require(textOf(table.m_settingsByOrderType[type]) == textOf(COrderSetting()), "the new record is a default");
    table.m_settingsByOrderType[type] = marked(80);
    table.setParam(text);
    fuzz::require(table.m_settingsByOrderType.size() == 2, "a record there is is not added again");
    fuzz::require(textOf(table.m_settingsByOrderType[type]) == textOf(marked(80)), "a record there is stays");
    fuzz::require(textOf(table.m_settingsByOrderType[other]) == textOf(marked(70)), "other records stay");
}

/// The other operations that take a text and are inert.
void callInert(const QString& text, EOrderType type)
{
    Table& table = *host().table;
    table.setSingleNvAlgoParam(type, text);
    fuzz::require(table.getSingleNvAlgoUiParam(type).isEmpty(), "an algorithm's text stays empty");
    fuzz::require(table.getUiParamByTrdTradeParam(type, text).isEmpty(), "a trade parameter has no text");
    table.resetStrategyType(type, text);
    table.setStockCode(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::startApplication();
    QString text = fuzz::textOf(data, size);
    const EOrderType type = takeOrderType(text);
    if (host().table->orderType() != type)
        host().table->setOrderType(type);
    host().log.take();
    const QStringList before = seen();
    checkRecords(text, type);
    callInert(text, type);
    fuzz::require(host().table->m_settingsByOrderType.size() == 2, "what is inert makes no record");
    fuzz::require(seen() == before, "no cell, answer or event moves");
    return 0;
}
