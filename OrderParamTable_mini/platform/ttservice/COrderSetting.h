#pragma once

#include <ttservice/Enumerations.h>

namespace ttservice {

/// The settings record of an order. Fields named by number are the client's own: the library carries, defaults and
/// writes them, and interprets none.
struct COrderSetting
{
    EOrderType orderType = EOrderType(0); ///< the order type that the setting belongs to
    int intField2 = 0;
    int intField3 = 0;
    double realField4 = 0.0;
    double realField5 = 0.0;
    int intField6 = 0;
    int intField7 = 0;
    double realField8 = 0.0;
    double realField9 = 0.0;
    int intField10 = 0;
    double realField11 = 0.0;
    double realField12 = 0.0;
    int intField13 = 0;
    double realField14 = 0.0;
    int intField15 = 0;
    int intField16 = 0;
    int intField17 = 0;
    int intField18 = 0;
    int validTimeStart = 0; ///< whole seconds since the epoch
    int validTimeEnd = 0;   ///< whole seconds since the epoch
    int intField21 = 0;
    int intField22 = 0;
    int intField23 = 0;
    double realField24 = 0.0;
    int intField25 = 0;
    double realField26 = 0.0;
    double realField27 = 0.0;
    int intField28 = 0;
    int intField29 = 0;
    double realField30 = 0.0;
    int intField31 = 0;
    double realField32 = 0.0;
    double realField33 = 0.0;
    double realField34 = 0.0;
    bool flag35 = false;
    bool flag36 = false;
    int cellWord1 = 0; ///< OR of cell IDs
    int cellWord2 = 0; ///< OR of cell IDs
    int cellWord3 = 0; ///< OR of cell IDs
    int cellWord4 = 0; ///< OR of cell IDs
    int cellWord5 = 0; ///< OR of cell IDs
};

} // namespace ttservice
