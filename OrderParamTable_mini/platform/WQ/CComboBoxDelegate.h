#pragma once

#include <WQ/CMultiParamsTableItem.h>

namespace WQ {

/// A combo cell.
class WQ_EXPORT CComboBoxDelegate : public CMultiParamsTableItem
{
public:
    /// @cond constructors
    using CMultiParamsTableItem::CMultiParamsTableItem;
    /// @endcond
    ~CComboBoxDelegate() override;

    /// The value of the chosen entry; invalid when none is chosen.
    /// @return an int or a text
    QVariant currentData() const;

    /// The text of the first entry that carries a value.
    /// @param value an int or a text, never an enumeration type
    /// @return empty when none does
    QString textOf(const QVariant& value) const;
};

} // namespace WQ
