#pragma once

#include <WQ/CBaseDialog.h>

namespace WQ {

/// A dialog with a ground and a frame of its own instead of the window manager's.
class WQ_EXPORT CCustomDialog : public CBaseDialog
{
    Q_OBJECT
public:
    explicit CCustomDialog(QWidget* parent);
    ~CCustomDialog() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace WQ
