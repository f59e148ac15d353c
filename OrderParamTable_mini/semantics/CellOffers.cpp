#include <OrderParamTable_mini/semantics/CellOffers.h>

#include <OrderParamTable_mini/semantics/BrokerGroups.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>
#include <OrderParamTable_mini/semantics/OrderVocabulary.h>
#include <OrderParamTable_mini/semantics/VolumeTypes.h>

namespace TC {

namespace {

struct OfferRow
{
    EOperationCellFlag cell;
    CellOffer offer;
};

// clang-format off
constexpr OfferRow kOffers[] = {
    {OCF_PriceType,               CellOffer::PriceTypes},
    {OCF_SuperPrice,              CellOffer::SuperPrice},
    {OCF_BaseVolume,              CellOffer::BaseVolume},
    {OCF_TailMinVolume,           CellOffer::Always},
    {OCF_SuperPriceStartCount,    CellOffer::SuperPrice},
    {OCF_FluctuationCheck,        CellOffer::Always},
    {OCF_MinSingleVolume,         CellOffer::Always},
    {OCF_MaxSingleVolume,         CellOffer::Always},
    {OCF_ValidTime,               CellOffer::Always},
    {OCF_MaxOrderCount,           CellOffer::Always},
    {OCF_UnfinishedOrderHandling, CellOffer::Always},
    {OCF_SingleVolumeRange,       CellOffer::RandomVolume},
    {OCF_InitialQuote,            CellOffer::Always},
    {OCF_UnfinishedHandling,      CellOffer::Always},
    {OCF_PriceFluctuation,        CellOffer::Always},
    {OCF_LimitPrice,              CellOffer::LimitPrice},
    {OCF_InvestRemark,            CellOffer::Remark},
};
// clang-format on

} // namespace

CellOffer cellOffer(int cell)
{
    for (const OfferRow& row : kOffers) {
        if (row.cell == cell)
            return row.offer;
    }
    return CellOffer::Never;
}

bool isCellOffered(int cell, const OrderState& state, bool hasPriceTypes, const ModuleQuery& isModuleOn)
{
    switch (cellOffer(cell)) {
    case CellOffer::Never:
        return false;
    case CellOffer::Always:
        return true;
    case CellOffer::PriceTypes:
        return hasPriceTypes;
    case CellOffer::SuperPrice:
        return brokerGroup(state.broker) != BrokerGroup::HongKong;
    case CellOffer::BaseVolume:
        return hasBaseVolume(state.broker);
    case CellOffer::RandomVolume:
        return mayRandomiseVolume(state, isModuleOn);
    case CellOffer::LimitPrice:
        return kTablesWithLimitPrice.contains(state.identity);
    case CellOffer::Remark:
        return isModuleOn(FeatureModule::CommandRemark);
    }
    return false;
}

} // namespace TC
