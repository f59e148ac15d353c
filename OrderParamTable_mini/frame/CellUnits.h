#pragma once

#include <OrderParamTable_mini/semantics/BrokerGroups.h>

#include <WQ/ToolkitTypes.h>

#include <QList>
#include <QString>

namespace TC {

/// Value types of numeric cells, as Qt meta-type numbers.
constexpr int kIntValue = 2;
constexpr int kDoubleValue = 6;

/// "%", the first unit of every unit cell.
const QString& percentUnit();

/// The unit of prices: points, Hong Kong dollars or yuan.
const QString& moneyUnit(ttservice::ENVBrokerType broker);

/// The unit of shares.
const QString& shareUnit();

/// @name The units of the unit cells, built once and shared by every table
/// @{
const QList<WQ::CParamCellUnitInfo>& superPriceUnits(ttservice::ENVBrokerType broker);
const QList<WQ::CParamCellUnitInfo>& tailVolumeUnits(ttservice::ENVBrokerType broker);
const QList<WQ::CParamCellUnitInfo>& fluctuationUnits(ttservice::ENVBrokerType broker);
/// @}

/// The step of a fluctuation range.
double fluctuationStep(ttservice::ENVBrokerType broker);

/// The value of the tail-order minimum volume at first.
int initialTailVolume(ttservice::ENVBrokerType broker);

/// Unit, limits, step and first value of the single-volume cells.
struct SingleVolume
{
    QString unit;
    int min;
    int step;
    int initial;
};
const SingleVolume& singleVolume(ttservice::ENVBrokerType broker);

/// The largest volume and count of money that a cell takes.
constexpr int kLargestAmount = 1000000;

} // namespace TC
