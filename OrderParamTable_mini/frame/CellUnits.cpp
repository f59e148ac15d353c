#include <OrderParamTable_mini/frame/CellUnits.h>

#include <array>
#include <cstddef>

namespace TC {

using ttservice::ENVBrokerType;
using Units = QList<WQ::CParamCellUnitInfo>;

namespace {

// Rows stand in the order of BrokerGroup.
struct GroupRow
{
    BrokerGroup group;
    const char16_t* moneyUnit;
    const char16_t* tailUnit;
    int tailMin;
    int tailInitial;
    const char16_t* volumeUnit;
    int volumeMin;
    int volumeStep;
    int volumeInitial;
};

// clang-format off
constexpr std::array<GroupRow, 4> kGroups = {{
    // group               money    tail        first   volume  min  step  first
    {BrokerGroup::Points,   u"点",   u"手",   1,    1,  u"手",    1,    1,   100},
    {BrokerGroup::HongKong, u"港币", u"股", 100,  100,  u"股",  100,  100, 10000},
    {BrokerGroup::Option,   u"元",   u"股",   1,    1,  u"张",    1,    1,   100},
    {BrokerGroup::Shares,   u"元",   u"股", 100,  100,  u"股",  100,  100, 10000},
}};
// clang-format on

constexpr bool rowsStandInOrder()
{
    for (std::size_t i = 0; i < kGroups.size(); ++i) {
        if (std::size_t(kGroups[i].group) != i)
            return false;
    }
    return true;
}
static_assert(rowsStandInOrder(), "a group's row is found by its number");

constexpr double kOptionFluctuationStep = 0.0001;
constexpr double kUsualFluctuationStep = 0.01;
constexpr int kLargestPercent = 100;

WQ::CParamCellUnitInfo unit(const QString& text, int type, QVariant min, QVariant max, QVariant step = QVariant())
{
    return {text, type, std::move(min), std::move(max), std::move(step)};
}

QString moneyText(const GroupRow& row)
{
    return QString::fromUtf16(row.moneyUnit);
}

Units superPriceUnitsOf(const GroupRow& row)
{
    return {unit(percentUnit(), kDoubleValue, -double(kLargestPercent), double(kLargestPercent)),
            unit(moneyText(row), kDoubleValue, -double(kLargestAmount), double(kLargestAmount))};
}

Units tailVolumeUnitsOf(const GroupRow& row)
{
    return {unit(percentUnit(), kIntValue, 1, kLargestPercent),
            unit(QString::fromUtf16(row.tailUnit), kIntValue, row.tailMin, kLargestAmount)};
}

// Only option accounts give the money unit a step; elsewhere it has none. Its minimum is an int on purpose.
Units fluctuationUnitsOf(const GroupRow& row)
{
    const bool isOption = row.group == BrokerGroup::Option;
    const QVariant moneyStep = isOption ? QVariant(kOptionFluctuationStep) : QVariant();
    return {unit(percentUnit(), kDoubleValue, 0.0, double(kLargestPercent),
                 isOption ? kOptionFluctuationStep : kUsualFluctuationStep),
            unit(moneyText(row), kDoubleValue, 0, double(kLargestAmount), moneyStep)};
}

SingleVolume singleVolumeOf(const GroupRow& row)
{
    return {QString::fromUtf16(row.volumeUnit), row.volumeMin, row.volumeStep, row.volumeInitial};
}

/// What @p make answers for each group, made once.
template <auto make>
const auto& ofGroup(ENVBrokerType broker)
{
    static const std::array<decltype(make(kGroups[0])), kGroups.size()> values = {
        make(kGroups[0]),
        make(kGroups[1]),
        make(kGroups[2]),
        make(kGroups[3]),
    };
    return values[std::size_t(brokerGroup(broker))];
}

} // namespace

const QString& percentUnit()
{
    static const QString text = QStringLiteral("%");
    return text;
}

const QString& shareUnit()
{
    static const QString text = QStringLiteral("股");
    return text;
}

const QString& moneyUnit(ENVBrokerType broker)
{
    return ofGroup<moneyText>(broker);
}

const Units& superPriceUnits(ENVBrokerType broker)
{
    return ofGroup<superPriceUnitsOf>(broker);
}

const Units& tailVolumeUnits(ENVBrokerType broker)
{
    return ofGroup<tailVolumeUnitsOf>(broker);
}

const Units& fluctuationUnits(ENVBrokerType broker)
{
    return ofGroup<fluctuationUnitsOf>(broker);
}

double fluctuationStep(ENVBrokerType broker)
{
    return broker == ttservice::BROKER_TYPE_OPTION ? kOptionFluctuationStep : kUsualFluctuationStep;
}

int initialTailVolume(ENVBrokerType broker)
{
    return kGroups[std::size_t(brokerGroup(broker))].tailInitial;
}

const SingleVolume& singleVolume(ENVBrokerType broker)
{
    return ofGroup<singleVolumeOf>(broker);
}

} // namespace TC
