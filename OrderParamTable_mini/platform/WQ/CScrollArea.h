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
    explicit CScrollArea(QWidget* parent);
    ~CScrollArea() override;

    /// Puts @p widget, which keeps the size it has, into the area and takes it over.
    void setWidget(QWidget* widget);

    /// The colour key of the ground behind the widget.
    void setBackgroundColorKey(QString key);

    /// The width of the vertical scroll bar in pixels, shown or not.
    int getScrollBarWidth() const;

    void themeChanged() override;
    void scaleChanged() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    std::unique_ptr<CScrollAreaPrivate> const d;
};

} // namespace WQ
