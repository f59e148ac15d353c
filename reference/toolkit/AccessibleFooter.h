#pragma once

#include "reference/toolkit/AccessibleTablePart.h"

namespace WQ {

/// The filter's footer in the accessible tree of its table: a button that opens a list.
class AccessibleFooter : public AccessibleTablePart
{
public:
    using AccessibleTablePart::AccessibleTablePart;

    bool isValid() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
};

} // namespace WQ
