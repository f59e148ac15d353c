#include "contract/recorder/Cells.h"

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CComboBoxDelegate.h>

#include <algorithm>

namespace WQ {

int CellItem::unitOf(const QString& name) const
{
    const auto found =
        std::find_if(units.begin(), units.end(), [&name](const CParamCellUnitInfo& one) { return one.text == name; });
    return found == units.end() ? -1 : int(found - units.begin());
}

CellItem* CMultiParamsTablePrivate::cell(int id) const
{
    const auto found = items.find(id);
    return found == items.end() ? nullptr : found->second->cell();
}

std::unique_ptr<CellItem> newCell(int id, const QString& label)
{
    auto cell = std::make_unique<CellItem>();
    cell->id = id;
    cell->label = label;
    return cell;
}

CMultiParamsTableItem::CMultiParamsTableItem(std::unique_ptr<CellItem> cell)
    : d(std::move(cell))
{
}

CMultiParamsTableItem::~CMultiParamsTableItem() = default;

int CMultiParamsTableItem::id() const
{
    return d->id;
}

CellItem* CMultiParamsTableItem::cell() const
{
    return d.get();
}

CComboBoxDelegate::~CComboBoxDelegate() = default;

QVariant CComboBoxDelegate::currentData() const
{
    return cell()->currentData();
}

QString CComboBoxDelegate::textOf(const QVariant& value) const
{
    return cell()->texts.value(cell()->values.indexOf(value));
}

CParamCellDelegate::~CParamCellDelegate() = default;

QString CParamCellDelegate::unit() const
{
    return cell()->unitText();
}

CCheckParamUnitCellDelegate::~CCheckParamUnitCellDelegate() = default;

} // namespace WQ
