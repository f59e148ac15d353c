#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>
#include <ttservice/Enumerations.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

// clang-format off

constexpr std::array kIdentities = {
    NamedValue{ 0, QT_TRANSLATE_NOOP("workbench", "general")},
    NamedValue{ 3, QT_TRANSLATE_NOOP("workbench", "no remark")},
    NamedValue{ 5, QT_TRANSLATE_NOOP("workbench", "order panel with limit price")},
    NamedValue{ 7, QT_TRANSLATE_NOOP("workbench", "composite stock")},
    NamedValue{ 8, QT_TRANSLATE_NOOP("workbench", "composite futures")},
    NamedValue{ 9, QT_TRANSLATE_NOOP("workbench", "composite stock")},
    NamedValue{10, QT_TRANSLATE_NOOP("workbench", "composite futures, always algorithm")},
    NamedValue{11, QT_TRANSLATE_NOOP("workbench", "limit price")},
    NamedValue{14, QT_TRANSLATE_NOOP("workbench", "no target volume")},
    NamedValue{15, QT_TRANSLATE_NOOP("workbench", "order service, model price")},
    NamedValue{17, QT_TRANSLATE_NOOP("workbench", "order service, model price")},
    NamedValue{20, QT_TRANSLATE_NOOP("workbench", "order service")},
    NamedValue{22, QT_TRANSLATE_NOOP("workbench", "order service, composite stock")},
    NamedValue{24, QT_TRANSLATE_NOOP("workbench", "composite stock")},
    NamedValue{31, QT_TRANSLATE_NOOP("workbench", "stock task")},
    NamedValue{32, QT_TRANSLATE_NOOP("workbench", "futures task")},
    NamedValue{33, QT_TRANSLATE_NOOP("workbench", "option task")},
    NamedValue{34, QT_TRANSLATE_NOOP("workbench", "strip hidden")},
    NamedValue{35, QT_TRANSLATE_NOOP("workbench", "always algorithm")},
    NamedValue{36, QT_TRANSLATE_NOOP("workbench", "close settings, book levels")},
    NamedValue{38, QT_TRANSLATE_NOOP("workbench", "close settings, book levels")},
    NamedValue{39, QT_TRANSLATE_NOOP("workbench", "book levels")},
    NamedValue{40, QT_TRANSLATE_NOOP("workbench", "order service, model price")},
    NamedValue{43, QT_TRANSLATE_NOOP("workbench", "close settings, no option market types")},
    NamedValue{49, QT_TRANSLATE_NOOP("workbench", "close settings")},
    NamedValue{52, QT_TRANSLATE_NOOP("workbench", "strip hidden")},
};

constexpr std::array kBrokerTypes = {
    NamedValue{   1, QT_TRANSLATE_NOOP("workbench", "futures")},
    NamedValue{   2, QT_TRANSLATE_NOOP("workbench", "stock")},
    NamedValue{   3, QT_TRANSLATE_NOOP("workbench", "credit")},
    NamedValue{   4, QT_TRANSLATE_NOOP("workbench", "points")},
    NamedValue{   5, QT_TRANSLATE_NOOP("workbench", "points")},
    NamedValue{   6, QT_TRANSLATE_NOOP("workbench", "option")},
    NamedValue{   7, QT_TRANSLATE_NOOP("workbench", "Hong Kong")},
    NamedValue{   8, QT_TRANSLATE_NOOP("workbench", "like stock")},
    NamedValue{  10, QT_TRANSLATE_NOOP("workbench", "like stock, short book")},
    NamedValue{  11, QT_TRANSLATE_NOOP("workbench", "Hong Kong")},
    NamedValue{1001, QT_TRANSLATE_NOOP("workbench", "points, book levels")},
    NamedValue{1002, QT_TRANSLATE_NOOP("workbench", "points, book levels")},
};

constexpr std::array kTraderTypes = {
    NamedValue{   1, QT_TRANSLATE_NOOP("workbench", "desk 1")},
    NamedValue{   2, QT_TRANSLATE_NOOP("workbench", "desk 2")},
    NamedValue{   4, QT_TRANSLATE_NOOP("workbench", "desk without task facts")},
    NamedValue{4096, QT_TRANSLATE_NOOP("workbench", "like 4 in composite lists")},
};

constexpr std::array kOrderTypes = {
    NamedValue{ 0, QT_TRANSLATE_NOOP("workbench", "plain order")},
    NamedValue{ 1, QT_TRANSLATE_NOOP("workbench", "algorithm")},
    NamedValue{ 2, QT_TRANSLATE_NOOP("workbench", "random volume")},
    NamedValue{ 3, QT_TRANSLATE_NOOP("workbench", "algorithm 3")},
    NamedValue{ 5, QT_TRANSLATE_NOOP("workbench", "parameter set 5")},
    NamedValue{ 6, QT_TRANSLATE_NOOP("workbench", "plain order as a task")},
    NamedValue{ 7, QT_TRANSLATE_NOOP("workbench", "algorithm as a task")},
    NamedValue{12, QT_TRANSLATE_NOOP("workbench", "parameter set 12")},
    NamedValue{13, QT_TRANSLATE_NOOP("workbench", "parameter set 13")},
    NamedValue{-1, QT_TRANSLATE_NOOP("workbench", "none")},
};

constexpr std::array kOperationTypes = {
    NamedValue{  -1, QT_TRANSLATE_NOOP("workbench", "none chosen")},
    NamedValue{  -2, QT_TRANSLATE_NOOP("workbench", "cleared")},
    NamedValue{  18, QT_TRANSLATE_NOOP("workbench", "any other operation")},
    NamedValue{  21, QT_TRANSLATE_NOOP("workbench", "sell borrowed securities")},
    NamedValue{  22, QT_TRANSLATE_NOOP("workbench", "repay securities by buying")},
    NamedValue{  23, QT_TRANSLATE_NOOP("workbench", "repay securities held")},
    NamedValue{  24, QT_TRANSLATE_NOOP("workbench", "repay cash by selling")},
    NamedValue{  25, QT_TRANSLATE_NOOP("workbench", "repay cash held")},
    NamedValue{  40, QT_TRANSLATE_NOOP("workbench", "without base price")},
    NamedValue{1021, QT_TRANSLATE_NOOP("workbench", "pay lending fees")},
};

constexpr std::array kCreditOperations = {
    NamedValue{  22, QT_TRANSLATE_NOOP("workbench", "repay securities by buying")},
    NamedValue{  23, QT_TRANSLATE_NOOP("workbench", "repay securities held")},
    NamedValue{  24, QT_TRANSLATE_NOOP("workbench", "repay cash by selling")},
    NamedValue{  25, QT_TRANSLATE_NOOP("workbench", "repay cash held")},
    NamedValue{1021, QT_TRANSLATE_NOOP("workbench", "pay lending fees")},
    NamedValue{  99, QT_TRANSLATE_NOOP("workbench", "unknown to the table")},
};

constexpr std::array kPriceTypes = {
    LabelledValue{ 0, u"卖⑤价"},           LabelledValue{ 1, u"卖④价"},           LabelledValue{ 2, u"卖③价"},
    LabelledValue{ 3, u"卖②价"},           LabelledValue{ 4, u"卖①价"},           LabelledValue{ 5, u"最新价"},
    LabelledValue{ 6, u"买①价"},           LabelledValue{ 7, u"买②价"},           LabelledValue{ 8, u"买③价"},
    LabelledValue{ 9, u"买④价"},           LabelledValue{10, u"买⑤价"},           LabelledValue{11, u"指定价"},
    LabelledValue{12, u"市价"},             LabelledValue{13, u"挂单价"},           LabelledValue{14, u"对手价"},
    LabelledValue{15, u"自动盘口"},         LabelledValue{16, u"昨收价"},           LabelledValue{26, u"限价即全成否则撤"},
    LabelledValue{27, u"市价即成剩撤"},     LabelledValue{28, u"市价即全成否则撤"}, LabelledValue{29, u"市价剩转限价"},
    LabelledValue{42, u"最优五档即成剩撤"}, LabelledValue{43, u"最优五档即成剩转"}, LabelledValue{44, u"对手最优价"},
    LabelledValue{45, u"本方最优价"},       LabelledValue{46, u"即成剩撤"},         LabelledValue{47, u"最优五档即成剩撤"},
    LabelledValue{48, u"全额成交或撤"},     LabelledValue{49, u"盘后定价"},
};

constexpr std::array kCells = {
    LabelledValue{TC::OCF_PriceType,               u"报价方式"},
    LabelledValue{TC::OCF_SuperPrice,              u"单笔超价"},
    LabelledValue{TC::OCF_SuperPriceStartCount,    u"超价启用笔数"},
    LabelledValue{TC::OCF_FluctuationCheck,        u"波动区间"},
    LabelledValue{TC::OCF_BaseVolume,              u"单笔基准量"},
    LabelledValue{TC::OCF_TailMinVolume,           u"尾单最小量"},
    LabelledValue{TC::OCF_MinSingleVolume,         u"单笔最小量"},
    LabelledValue{TC::OCF_MaxSingleVolume,         u"单笔最大量"},
    LabelledValue{TC::OCF_ValidTime,               u"有效时间"},
    LabelledValue{TC::OCF_MaxOrderCount,           u"最大委托次数"},
    LabelledValue{TC::OCF_UnfinishedOrderHandling, u"未成委托处理"},
    LabelledValue{TC::OCF_InitialQuote,            u"初始报价"},
    LabelledValue{TC::OCF_UnfinishedHandling,      u"未成处理"},
    LabelledValue{TC::OCF_PriceFluctuation,        u"波动区间"},
    LabelledValue{TC::OCF_SingleVolumeRange,       u"单笔量区间"},
    LabelledValue{TC::OCF_LimitPrice,              u"限价"},
    LabelledValue{TC::OCF_InvestRemark,            u"投资备注"},
    LabelledValue{726, u"资金账号"},
    LabelledValue{727, u"指定还券"},
    LabelledValue{728, u"未还合约数量"},
    LabelledValue{729, u"当日可还数量"},
    LabelledValue{730, u"可还券资金"},
    LabelledValue{731, u"可还券数量"},
};

constexpr std::array kModeButtons = {
    LabelledValue{600, u"普通交易"},
    LabelledValue{601, u"智能算法"},
    LabelledValue{602, u"随机量"},
    LabelledValue{603, u"算法三"},
    LabelledValue{605, u"参数组"},
    LabelledValue{613, u"隔时交易"},
};

constexpr std::array kFeatureModules = {
    "mdl_order/mdl_order_algorithm3",
    "mdl_order/mdl_order_multi_market_price",
    "mdl_order/mdl_order_stock_multi_market_price",
    "mdl_order/mdl_order_credit_opt_slosell_only_fixed_price",
    "mdl_order/mdl_order_compose_full_pricetype",
    "mdl_order/mdl_order_command_remark",
    "mdl_order/mdl_order_trigger_price",
    "mdl_order/mdl_order_stop_profit_loss",
    "mdl_alg/mdl_alg_randvolume",
};

// clang-format on

template <class Array>
constexpr auto rowsOf(const Array& array)
{
    return Rows<typename Array::value_type>{array.data(), static_cast<int>(array.size())};
}

template <class Array>
constexpr bool valuesAreUnique(const Array& array)
{
    for (std::size_t i = 0; i < array.size(); ++i)
        for (std::size_t j = i + 1; j < array.size(); ++j)
            if (array[i].value == array[j].value)
                return false;
    return true;
}

static_assert(valuesAreUnique(kIdentities) && valuesAreUnique(kBrokerTypes) && valuesAreUnique(kTraderTypes));
static_assert(valuesAreUnique(kOrderTypes) && valuesAreUnique(kOperationTypes) && valuesAreUnique(kCreditOperations));
static_assert(valuesAreUnique(kPriceTypes) && valuesAreUnique(kCells) && valuesAreUnique(kModeButtons));
static_assert(kFeatureModules.size() == 9);

} // namespace

Rows<NamedValue> identities()
{
    return rowsOf(kIdentities);
}

Rows<NamedValue> brokerTypes()
{
    return rowsOf(kBrokerTypes);
}

Rows<NamedValue> traderTypes()
{
    return rowsOf(kTraderTypes);
}

Rows<NamedValue> orderTypes()
{
    return rowsOf(kOrderTypes);
}

Rows<NamedValue> operationTypes()
{
    return rowsOf(kOperationTypes);
}

Rows<NamedValue> creditOperations()
{
    return rowsOf(kCreditOperations);
}

Rows<LabelledValue> priceTypes()
{
    return rowsOf(kPriceTypes);
}

Rows<LabelledValue> cells()
{
    return rowsOf(kCells);
}

Rows<LabelledValue> modeButtons()
{
    return rowsOf(kModeButtons);
}

Rows<const char*> featureModules()
{
    return rowsOf(kFeatureModules);
}

QString translated(const char* name)
{
    return QCoreApplication::translate("workbench", name);
}

QString valueWithName(const Rows<NamedValue>& rows, int value)
{
    const auto row = std::find_if(rows.begin(), rows.end(), [value](const NamedValue& r) { return r.value == value; });
    const QString number = QString::number(value);
    return row == rows.end() ? number : number + QStringLiteral("  ") + translated(row->name);
}

QString labelOf(const Rows<LabelledValue>& rows, int value)
{
    const auto row =
        std::find_if(rows.begin(), rows.end(), [value](const LabelledValue& r) { return r.value == value; });
    return row == rows.end() ? QString() : row->label.toString();
}

} // namespace workbench
