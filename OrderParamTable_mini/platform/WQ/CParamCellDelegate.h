#pragma once

#include <WQ/CMultiParamsTableItem.h>

namespace WQ {

/// A numeric cell, with one unit or with several to choose from.
class WQ_EXPORT CParamCellDelegate : public CMultiParamsTableItem
{
public:
    /// @cond constructors
    using CMultiParamsTableItem::CMultiParamsTableItem;
    /// @endcond
    ~CParamCellDelegate() override;

    /// The text of the current unit.
    /// @return empty for a cell without unit
    QString unit() const;
};

} // namespace WQ
