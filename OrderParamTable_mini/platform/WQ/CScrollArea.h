#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QScrollArea>

#include <memory>

namespace WQ {

class CScrollAreaPrivate;

/// A scroll area with the toolkit's slim scroll bar.
class WQ_EXPORT CScrollArea : public CEventWidgetT<QScrollArea>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// An empty area.
    /// @param parent the owner; may be null
    explicit CScrollArea(QWidget* parent);
    ~CScrollArea() override;

    /// Puts a widget into the area and takes it over.
    /// @param widget keeps the size it has
    void setWidget(QWidget* widget);

    /// The colour key of the ground behind the widget.
    /// @param key an unknown one takes a visible fallback and is reported once
    void setBackgroundColorKey(QString key);

    /// The width of the vertical scroll bar.
    /// @return pixels at the current UI scale, shown or not
    int getScrollBarWidth() const;

    void themeChanged() override;
    void scaleChanged() override;

protected:
    /// @cond handlers
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    /// @endcond

private:
    std::unique_ptr<CScrollAreaPrivate> const d;
};

} // namespace WQ
