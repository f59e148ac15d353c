#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/CellUnits.h>
#include <OrderParamTable_mini/frame/HeldException.h>
#include <OrderParamTable_mini/semantics/OrderState.h>
#include <OrderParamTable_mini/semantics/VolumeTypes.h>

#include <WQ/CMultiParamsTable.h>

namespace TC {

using namespace ttservice;

namespace {

constexpr double kSharesPerLot = 100.0;

void roundTailVolumeToLots(WQ::CMultiParamsTable& table)
{
    table.setItemTick(OCF_TailMinVolume, shareUnit(), kSharesPerLot);
    if (table.itemUnit(OCF_TailMinVolume) == shareUnit())
        table.setItemInt(OCF_TailMinVolume, wholeLots(table.itemInt(OCF_TailMinVolume)));
}

// Every rebuild falls back to the target volume: the previous choice belonged to another operation.
void rebuildVolumeTypes(WQ::CMultiParamsTable& table, const OrderState& state)
{
    const ComboEntries& entries = operationVolumeTypes(state);
    table.resetComboData(OCF_BaseVolume, entries.texts, entries.values, 0);
    table.setComboData(OCF_BaseVolume, int(VOLUME_TYPE_TARGET));
}

} // namespace

void COrderParamBaseTable::setOperationType(EOperationType operationType)
{
    const HeldException held;
    const EOperationType previous = m_operationType;
    m_operationType = operationType;
    if (m_table && hasVolumeTypesByOperation(state())) {
        roundTailVolumeToLots(*m_table);
        rebuildVolumeTypes(*m_table, state());
    }
    if (operationType != previous) {
        resetPriceType();
        updateCurrentPriceTypeName();
        resetSuperPriceShow();
        resetTableByPriceType();
    }
    if (recolourPriceDisplay())
        setAlgoBtnVisible();
}

} // namespace TC
