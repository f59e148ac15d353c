#include <WQ/CMultiParamsTableItem.h>

#include "reference/toolkit/cells/ComboCell.h"

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CComboBoxDelegate.h>
#include <WQ/CParamCellDelegate.h>

#include <utility>

namespace WQ {

CMultiParamsTableItem::CMultiParamsTableItem(std::unique_ptr<CellItem> cell)
    : d(std::move(cell))
{
}

CMultiParamsTableItem::~CMultiParamsTableItem() = default;

int CMultiParamsTableItem::id() const
{
    return d->id();
}

CellItem* CMultiParamsTableItem::cell() const
{
    return d.get();
}

CComboBoxDelegate::~CComboBoxDelegate() = default;

QVariant CComboBoxDelegate::currentData() const
{
    return cell()->data();
}

QString CComboBoxDelegate::textOf(const QVariant& value) const
{
    const auto* combo = static_cast<const ComboCell*>(cell());
    return combo->entryText(combo->indexOfData(value));
}

CParamCellDelegate::~CParamCellDelegate() = default;

QString CParamCellDelegate::unit() const
{
    return cell()->unit();
}

CCheckParamUnitCellDelegate::~CCheckParamUnitCellDelegate() = default;

} // namespace WQ
