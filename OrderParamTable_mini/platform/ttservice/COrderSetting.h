#pragma once

#include <ttservice/Enumerations.h>

namespace ttservice {

/// The settings record of an order. Fields named by number are the client's own: the library carries, defaults and
/// writes them, and interprets none. The item is the place in the parameter string.
struct COrderSetting
{
    EOrderType orderType = EOrderType(0); ///< the order type that the setting belongs to; item 1
    int intField2 = 0;                    ///< item 2
    int intField3 = 0;                    ///< item 3
    double realField4 = 0.0;              ///< item 4
    double realField5 = 0.0;              ///< item 5
    int intField6 = 0;                    ///< item 6
    int intField7 = 0;                    ///< item 7
    double realField8 = 0.0;              ///< item 8
    double realField9 = 0.0;              ///< item 9
    int intField10 = 0;                   ///< item 10
    double realField11 = 0.0;             ///< item 11
    double realField12 = 0.0;             ///< item 12
    int intField13 = 0;                   ///< item 13
    double realField14 = 0.0;             ///< items 14 and 24
    int intField15 = 0;                   ///< item 15
    int intField16 = 0;                   ///< item 16
    int intField17 = 0;                   ///< item 17
    int intField18 = 0;                   ///< item 18
    int validTimeStart = 0;               ///< whole seconds since the epoch; item 19
    int validTimeEnd = 0;                 ///< whole seconds since the epoch; item 20
    int intField21 = 0;                   ///< item 21
    int intField22 = 0;                   ///< item 22
    int intField23 = 0;                   ///< item 23
    double realField24 = 0.0;             ///< in no item
    int intField25 = 0;                   ///< item 25
    double realField26 = 0.0;             ///< item 26
    double realField27 = 0.0;             ///< item 27
    int intField28 = 0;                   ///< item 28
    int intField29 = 0;                   ///< item 29
    double realField30 = 0.0;             ///< item 30
    int intField31 = 0;                   ///< item 31
    double realField32 = 0.0;             ///< item 32
    double realField33 = 0.0;             ///< item 33
    double realField34 = 0.0;             ///< item 34
    bool flag35 = false;                  ///< item 35
    bool flag36 = false;                  ///< item 36
    int cellWord1 = 0;                    ///< OR of cell IDs; item 37
    int cellWord2 = 0;                    ///< OR of cell IDs; item 38
    int cellWord3 = 0;                    ///< OR of cell IDs; item 40
    int cellWord4 = 0;                    ///< OR of cell IDs; item 41
    int cellWord5 = 0;                    ///< OR of cell IDs; item 39
};

} // namespace ttservice
