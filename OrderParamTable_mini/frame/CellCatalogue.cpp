#include <OrderParamTable_mini/frame/CellCatalogue.h>

#include <OrderParamTable_mini/frame/CellUnits.h>
#include <OrderParamTable_mini/frame/UnfinishedHandling.h>
#include <OrderParamTable_mini/semantics/CellOffers.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>
#include <OrderParamTable_mini/semantics/PriceTypes.h>
#include <OrderParamTable_mini/semantics/VolumeTypes.h>

#include <WQ/CMultiParamsTable.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace TC {

using namespace ttservice;

namespace {

struct Context
{
    WQ::CMultiParamsTable& table;
    const OrderState& state;
    ComboEntries& priceTypes;
};

struct CellRow
{
    EOperationCellFlag id;
    const char16_t* label;
    void (*add)(const Context&, int id, const QString& label);
};

// What the toolkit asks for beside the facts of a cell; it is passed through unchanged.
constexpr int kParamCellConstant = 4;
constexpr double kUnitCellConstant = -1.0;
constexpr double kRangeCellConstant = 1.0;
constexpr int kRangeCellPlaces = -1;

void addCombo(WQ::CMultiParamsTable& table, int id, const QString& label, ComboEntries entries, int index)
{
    const Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter;
    table.addComboBox(id, label, entries.texts, entries.values, index, false, alignment, alignment);
}

void addPriceType(const Context& context, int id, const QString& label)
{
    addCombo(context.table, id, label, context.priceTypes, 0);
}

void addSuperPrice(const Context& context, int id, const QString& label)
{
    context.table.addParamUnitCell(id, label, superPriceUnits(context.state.broker), 0.5, kUnitCellConstant);
}

void addBaseVolume(const Context& context, int id, const QString& label)
{
    addCombo(context.table, id, label, initialVolumeTypes(context.state), 0);
}

void addTailVolume(const Context& context, int id, const QString& label)
{
    const ENVBrokerType broker = context.state.broker;
    context.table.addParamUnitCell(id, label, tailVolumeUnits(broker), initialTailVolume(broker), kUnitCellConstant);
}

// The step of 0 belongs to the cell: its toolkit decides how such a number is stepped.
void addStartCount(const Context& context, int id, const QString& label)
{
    context.table.addParamCell(id, label, kIntValue, 1, kLargestAmount, 0, QStringLiteral("笔"), 1, kParamCellConstant);
}

void addFluctuationCheck(const Context& context, int id, const QString& label)
{
    const double value = kTablesWithWideFluctuation.contains(context.state.identity) ? 5 : 3;
    context.table.addCheckParamUnitCell(id, label, QStringLiteral("单向"), false,
                                        fluctuationUnits(context.state.broker), value, kUnitCellConstant);
}

void addSingleVolume(const Context& context, int id, const QString& label)
{
    const SingleVolume& volume = singleVolume(context.state.broker);
    context.table.addParamCell(id, label, kIntValue, volume.min, kLargestAmount, volume.step, volume.unit,
                               volume.initial, kParamCellConstant);
}

// The point-priced broker types 1001 and 1002 keep stock hours.
void addValidTime(const Context& context, int id, const QString& label)
{
    const bool futureHours = kFutureBrokers.contains(context.state.broker);
    QTime start = futureHours ? QTime(9, 0) : QTime(9, 30);
    QTime end = futureHours ? QTime(15, 15) : QTime(15, 0);
    context.table.addTimePeriod(id, label, start, end);
}

void addOrderCount(const Context& context, int id, const QString& label)
{
    context.table.addParamCell(id, label, kIntValue, 1, 10000, 1, QStringLiteral("次"), 1000, kParamCellConstant);
}

void addOrderHandling(const Context& context, int id, const QString& label)
{
    addCombo(context.table, id, label, unfinishedOrderHandling(context.state), 0);
}

void addVolumeRange(const Context& context, int id, const QString& label)
{
    context.table.addRangeCell(id, label, kIntValue, 1, kLargestAmount, 1, kLargestAmount, 1, shareUnit(),
                               kRangeCellConstant, kRangeCellPlaces, QStringLiteral(" - "), false);
}

void addInitialQuote(const Context& context, int id, const QString& label)
{
    constexpr int kBestBid = 6;
    addCombo(context.table, id, label, bookLevelEntries(BROKER_TYPE_STOCK), kBestBid);
}

void addUnfinishedHandling(const Context& context, int id, const QString& label)
{
    constexpr int kBestAsk = 4;
    addCombo(context.table, id, label, bookLevelEntries(BROKER_TYPE_STOCK), kBestAsk);
}

void addPriceFluctuation(const Context& context, int id, const QString& label)
{
    context.table.addParamCell(id, label, kDoubleValue, 0, 100, fluctuationStep(context.state.broker), percentUnit(), 0,
                               kParamCellConstant);
}

void addLimitPrice(const Context& context, int id, const QString& label)
{
    context.table.addParamCell(id, label, kDoubleValue, 0, kLargestAmount, 0.01, QStringLiteral("元"), 0,
                               kParamCellConstant);
    context.table.setItemHidden(id, isCreatedHidden(id));
}

constexpr char16_t kRemarkLabel[] = u"投资备注";

void addRemark(const Context& context, int, const QString&)
{
    addRemarkCell(context.table);
}

// clang-format off
constexpr CellRow kCells[] = {
    {OCF_PriceType,               u"报价方式",     addPriceType},
    {OCF_SuperPrice,              u"单笔超价",     addSuperPrice},
    {OCF_BaseVolume,              u"单笔基准量",   addBaseVolume},
    {OCF_TailMinVolume,           u"尾单最小量",   addTailVolume},
    {OCF_SuperPriceStartCount,    u"超价启用笔数", addStartCount},
    {OCF_FluctuationCheck,        u"波动区间",     addFluctuationCheck},
    {OCF_MinSingleVolume,         u"单笔最小量",   addSingleVolume},
    {OCF_MaxSingleVolume,         u"单笔最大量",   addSingleVolume},
    {OCF_ValidTime,               u"有效时间",     addValidTime},
    {OCF_MaxOrderCount,           u"最大委托次数", addOrderCount},
    {OCF_UnfinishedOrderHandling, u"未成委托处理", addOrderHandling},
    {OCF_SingleVolumeRange,       u"单笔量区间",   addVolumeRange},
    {OCF_InitialQuote,            u"初始报价",     addInitialQuote},
    {OCF_UnfinishedHandling,      u"未成处理",     addUnfinishedHandling},
    {OCF_PriceFluctuation,        u"波动区间",     addPriceFluctuation},
    {OCF_LimitPrice,              u"限价",         addLimitPrice},
    {OCF_InvestRemark,            kRemarkLabel,    addRemark},
};
// clang-format on

using LabelList = std::array<QString, std::size(kCells)>;

// Made once and shared by the cells of every table.
const LabelList& cellLabels()
{
    static const LabelList labels = [] {
        LabelList made;
        std::transform(std::begin(kCells), std::end(kCells), made.begin(),
                       [](const CellRow& row) { return QString::fromUtf16(row.label); });
        return made;
    }();
    return labels;
}

} // namespace

void addCells(WQ::CMultiParamsTable& table, const OrderState& state, ComboEntries& priceTypes,
              const ModuleQuery& isModuleOn)
{
    const Context context{table, state, priceTypes};
    const LabelList& labels = cellLabels();
    const bool hasPriceTypes = !priceTypes.values.isEmpty();
    for (std::size_t i = 0; i < std::size(kCells); ++i) {
        const CellRow& row = kCells[i];
        if (isCellOffered(row.id, state, hasPriceTypes, isModuleOn))
            row.add(context, row.id, labels[i]);
    }
}

void addRemarkCell(WQ::CMultiParamsTable& table)
{
    table.addLineEdit(OCF_InvestRemark, QString::fromUtf16(kRemarkLabel), QString::fromLatin1(""), false,
                      QString::fromLatin1(""));
}

} // namespace TC
