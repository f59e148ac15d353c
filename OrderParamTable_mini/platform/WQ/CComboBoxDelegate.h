#pragma once

#include <WQ/CMultiParamsTableItem.h>

namespace WQ {

/// A combo cell.
class WQ_EXPORT CComboBoxDelegate : public CMultiParamsTableItem
{
public:
    using CMultiParamsTableItem::CMultiParamsTableItem;
    ~CComboBoxDelegate() override;

    /// The value of the chosen entry; invalid when none is chosen.
    QVariant currentData() const;

    /// The text of the first entry that carries @p value; empty when none does.
    QString textOf(const QVariant& value) const;
};

} // namespace WQ
