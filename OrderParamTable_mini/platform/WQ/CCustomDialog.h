#pragma once

#include <WQ/CBaseDialog.h>

namespace WQ {

/// A dialog with a ground and a frame of its own instead of the window manager's.
class WQ_EXPORT CCustomDialog : public CBaseDialog
{
    Q_OBJECT
public:
    /// A dialog without the window manager's frame.
    /// @param parent the owner; may be null
    explicit CCustomDialog(QWidget* parent);
    ~CCustomDialog() override;

protected:
    /// @cond handlers
    void paintEvent(QPaintEvent* event) override;
    /// @endcond
};

} // namespace WQ
