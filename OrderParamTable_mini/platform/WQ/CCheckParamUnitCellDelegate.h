#pragma once

#include <WQ/CParamCellDelegate.h>

namespace WQ {

/// A numeric cell with several units and a check box.
class WQ_EXPORT CCheckParamUnitCellDelegate : public CParamCellDelegate
{
public:
    /// @cond constructors
    using CParamCellDelegate::CParamCellDelegate;
    /// @endcond
    ~CCheckParamUnitCellDelegate() override;
};

} // namespace WQ
