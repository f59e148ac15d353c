#pragma once

/// The order vocabulary that the host owns. Any integer may arrive in these: they have a fixed int underneath and
/// unknown values are ordinary values.
namespace ttservice {

/// The plain order, or the algorithm that places it.
enum EOrderType : int {
    ORDER_TYPE_NONE = -1,           ///< none chosen
    ORDER_TYPE_NORMAL = 0,          ///< plain order
    ORDER_TYPE_ALGORITHM = 1,       ///< the first algorithm
    ORDER_TYPE_RANDOM_VOLUME = 2,   ///< algorithm with random volumes
    ORDER_TYPE_ALGORITHM_3 = 3,     ///< algorithm behind the module mdl_order_algorithm3
    ORDER_TYPE_PARAM_SET_FIRST = 4, ///< the first of the modes with a parameter set and no cells of their own
    ORDER_TYPE_PARAM_SET_5 = 5,     ///< parameter-set mode with a help page
    ORDER_TYPE_NORMAL_TASK = 6,     ///< a plain order as a task records it
    ORDER_TYPE_ALGORITHM_TASK = 7,  ///< the first algorithm as a task records it
    ORDER_TYPE_PARAM_SET_12 = 12,   ///< parameter-set mode that never shows the help button
    ORDER_TYPE_PARAM_SET_13 = 13,   ///< parameter-set mode with a help page and a button of its own
};

/// What price an order is placed at.
enum EPriceType : int {
    PRTP_NONE = -1,                ///< none chosen; as a way to handle unfinished orders: leave them
    PRTP_SELL5 = 0,                ///< fifth ask price
    PRTP_SELL4 = 1,                ///< fourth ask price
    PRTP_SELL3 = 2,                ///< third ask price
    PRTP_SELL2 = 3,                ///< second ask price
    PRTP_SELL1 = 4,                ///< best ask price
    PRTP_LATEST = 5,               ///< last traded price
    PRTP_BUY1 = 6,                 ///< best bid price
    PRTP_BUY2 = 7,                 ///< second bid price
    PRTP_BUY3 = 8,                 ///< third bid price
    PRTP_BUY4 = 9,                 ///< fourth bid price
    PRTP_BUY5 = 10,                ///< fifth bid price
    PRTP_FIX = 11,                 ///< a price that the user types
    PRTP_MARKET = 12,              ///< market order; reported while a parameter-set mode is on
    PRTP_SELF_QUEUE = 13,          ///< own-side queue price
    PRTP_COUNTERPART = 14,         ///< counter-party price
    PRTP_AUTO_BOOK = 15,           ///< chosen automatically from the order book
    PRTP_PRE_CLOSE = 16,           ///< previous close
    PRTP_MARKET_18 = 18,           ///< market order
    PRTP_MARKET_19 = 19,           ///< market order
    PRTP_MARKET_20 = 20,           ///< market order
    PRTP_MARKET_21 = 21,           ///< market order
    PRTP_MARKET_22 = 22,           ///< market order
    PRTP_MARKET_23 = 23,           ///< market order
    PRTP_MARKET_24 = 24,           ///< market order
    PRTP_OPT_FIX_FOK = 26,         ///< option limit order, fill or kill
    PRTP_OPT_MARKET_FAK = 27,      ///< option market order, fill and kill
    PRTP_OPT_MARKET_FOK = 28,      ///< option market order, fill or kill
    PRTP_OPT_MARKET_TO_FIX = 29,   ///< option market order, remainder turns into a limit order
    PRTP_SH_BEST5_CANCEL = 42,     ///< first market family: best five levels, remainder cancelled
    PRTP_SH_BEST5_TO_FIX = 43,     ///< first market family: best five levels, remainder turns into a limit order
    PRTP_SZ_COUNTERPART_BEST = 44, ///< counter-party best price
    PRTP_SZ_SELF_BEST = 45,        ///< own-side best price
    PRTP_SZ_FAK = 46,              ///< immediate fill, remainder cancelled
    PRTP_SZ_BEST5_CANCEL = 47,     ///< second market family: best five levels, remainder cancelled
    PRTP_SZ_FOK = 48,              ///< fill whole or cancel
    PRTP_AFTER_HOURS_FIX = 49,     ///< after-hours trading at a fixed price
};

/// What an order does.
enum EOperationType : int {
    OPT_UNSET = -2,                      ///< cleared
    OPT_NONE = -1,                       ///< none chosen yet
    OPT_SLO_SELL = 21,                   ///< credit: sell borrowed securities
    OPT_REPAY_SECURITIES_BY_BUYING = 22, ///< credit: buy securities to give back
    OPT_REPAY_SECURITIES_HELD = 23,      ///< credit: give back securities held
    OPT_REPAY_CASH_BY_SELLING = 24,      ///< credit: sell to pay back cash
    OPT_REPAY_CASH_HELD = 25,            ///< credit: pay back cash held
    OPT_WITHOUT_BASE_PRICE_40 = 40,      ///< operations whose task has no base price
    OPT_WITHOUT_BASE_PRICE_41 = 41,      ///< as 40
    OPT_REPAY_LENDING_FEES = 1021,       ///< credit: pay interest and fees of securities lending
    OPT_WITHOUT_BASE_PRICE_1089 = 1089,  ///< as 40
};

/// What the volume of one order is measured by.
enum EVolumeType : int {
    VOLUME_TYPE_NONE = -1,      ///< no volume-type cell
    VOLUME_TYPE_SELL12345 = 0,  ///< the five best ask levels
    VOLUME_TYPE_SELL1234 = 1,   ///< four best ask levels
    VOLUME_TYPE_SELL123 = 2,    ///< three best ask levels
    VOLUME_TYPE_SELL12 = 3,     ///< two best ask levels
    VOLUME_TYPE_SELL1 = 4,      ///< best ask level
    VOLUME_TYPE_BUY1 = 5,       ///< best bid level
    VOLUME_TYPE_BUY12 = 6,      ///< two best bid levels
    VOLUME_TYPE_BUY123 = 7,     ///< three best bid levels
    VOLUME_TYPE_BUY1234 = 8,    ///< four best bid levels
    VOLUME_TYPE_BUY12345 = 9,   ///< five best bid levels
    VOLUME_TYPE_TARGET = 10,    ///< the target volume
    VOLUME_TYPE_REMAINING = 11, ///< what is left of the target volume
    VOLUME_TYPE_POSITION = 12,  ///< the position held
};

/// A trading platform; the library takes it and does nothing with it.
enum ETradePlatform : int {
    TRADE_PLATFORM_DEFAULT = 0, ///< the client's default
};

/// The kind of account or broker that the panel trades through.
enum ENVBrokerType : int {
    BROKER_TYPE_FUTURE = 1,         ///< futures, priced in points
    BROKER_TYPE_STOCK = 2,          ///< stock
    BROKER_TYPE_CREDIT = 3,         ///< credit (margin)
    BROKER_TYPE_POINTS_4 = 4,       ///< priced in points
    BROKER_TYPE_POINTS_5 = 5,       ///< priced in points
    BROKER_TYPE_OPTION = 6,         ///< options
    BROKER_TYPE_HK_7 = 7,           ///< Hong Kong, priced in Hong Kong dollars
    BROKER_TYPE_8 = 8,              ///< treated like stock
    BROKER_TYPE_10 = 10,            ///< shares, with the price types of 1001 and 1002 and without base volume
    BROKER_TYPE_HK_11 = 11,         ///< Hong Kong, priced in Hong Kong dollars
    BROKER_TYPE_POINTS_1001 = 1001, ///< priced in points
    BROKER_TYPE_POINTS_1002 = 1002, ///< priced in points
};

/// The kind of trading desk that hosts a table.
enum ENvTraderType : int {
    TRADER_TYPE_1 = 1,       ///< may randomise volumes and offer the previous close
    TRADER_TYPE_2 = 2,       ///< has default records of its own
    TRADER_TYPE_4 = 4,       ///< may offer the previous close; its task dialogs have no facts
    TRADER_TYPE_4096 = 4096, ///< like 4 where composite price types are listed
};

/// What a credit contract borrows; character-valued.
enum ENVCompactType : int {
    COMPACT_TYPE_NONE = 32,       ///< ' ': none
    COMPACT_TYPE_CASH = 48,       ///< '0': cash
    COMPACT_TYPE_SECURITIES = 49, ///< '1': securities
};

/// Where contract data is refreshed from; character-valued.
enum ENVCompactBrushSource : int {
    COMPACT_BRUSH_SOURCE_DEFAULT = 48, ///< '0'
};

} // namespace ttservice
