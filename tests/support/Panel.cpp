#include "support/Panel.h"

#include <WQ/CMultiParamsTable.h>

namespace support {

namespace {

TableSetup childOf(QWidget* host, TableSetup setup)
{
    setup.parent = host;
    return setup;
}

} // namespace

Panel::Panel(TableSetup setup)
    : table(new BaseTableProbe(childOf(&host, setup)))
{
    table->noteHooks(host);
}

void offerPriceType(BaseTableProbe& table, int priceType)
{
    table.m_table->resetComboData(TC::OCF_PriceType, {QStringLiteral("offered")}, {QVariant(priceType)}, 0);
}

} // namespace support
