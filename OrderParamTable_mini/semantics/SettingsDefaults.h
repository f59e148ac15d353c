#pragma once

#include <ttservice/COrderSetting.h>

namespace TC {

/// The default record, valid from @p validTimeStart to @p validTimeEnd (whole seconds since the epoch).
ttservice::COrderSetting defaultSetting(int validTimeStart, int validTimeEnd);

/// The default record of a trader type; types other than 1, 2 and 4 set the order type and the cell words alone.
ttservice::COrderSetting defaultSettingOfTrader(ttservice::ENvTraderType trader, ttservice::EOrderType type);

} // namespace TC
