#include <OrderParamTable_mini/semantics/SettingsDefaults.h>

namespace TC {

using namespace ttservice;

namespace {

struct TraderRow
{
    ENvTraderType trader;
    double realField4And5;
    int intField6;
    double realField14;
    int intField15;
    int intField16;
};

// clang-format off
constexpr TraderRow kTraders[] = {
    {TRADER_TYPE_1, 30.0, 20, 0.3, 100, 100000},
    {TRADER_TYPE_4, 30.0, 20, 0.5, 100, 100000},
    {TRADER_TYPE_2,  1.0, 30, 0.5,   1,      5},
};
// clang-format on

void applyTrader(COrderSetting& setting, const TraderRow& row)
{
    setting.intField3 = 5;
    setting.realField4 = row.realField4And5;
    setting.realField5 = row.realField4And5;
    setting.intField6 = row.intField6;
    setting.realField9 = 0.05;
    setting.realField11 = 1.0;
    setting.realField12 = 0.0;
    setting.intField13 = 10;
    setting.realField14 = row.realField14;
    setting.intField15 = row.intField15;
    setting.intField16 = row.intField16;
}

} // namespace

COrderSetting defaultSetting(int validTimeStart, int validTimeEnd)
{
    COrderSetting setting;
    setting.orderType = ORDER_TYPE_NORMAL;
    setting.intField3 = 5;
    setting.realField4 = 30.0;
    setting.realField5 = 30.0;
    setting.realField8 = 5.0;
    setting.realField9 = 0.05;
    setting.intField13 = 10;
    setting.realField14 = 0.2;
    setting.intField15 = 1;
    setting.intField16 = 500000;
    setting.intField17 = 1;
    setting.intField18 = 1800;
    setting.validTimeStart = validTimeStart;
    setting.validTimeEnd = validTimeEnd;
    setting.intField21 = 1;
    setting.intField23 = 1;
    setting.realField24 = 0.1;
    setting.intField25 = -1;
    // A client's own record may start with other values than zeros in the fields that a default has at zero.
    setting.intField2 = setting.intField7 = setting.intField10 = setting.intField22 = 0;
    setting.realField11 = setting.realField12 = 0.0;
    return setting;
}

COrderSetting defaultSettingOfTrader(ENvTraderType trader, EOrderType type)
{
    COrderSetting setting;
    setting.orderType = type;
    setting.cellWord1 = 0x7100003;
    setting.cellWord2 = 0x6103FFF;
    setting.cellWord4 = 0x4000080;
    setting.cellWord5 = 0x4801889;
    for (const TraderRow& row : kTraders) {
        if (row.trader == trader)
            applyTrader(setting, row);
    }
    return setting;
}

} // namespace TC
