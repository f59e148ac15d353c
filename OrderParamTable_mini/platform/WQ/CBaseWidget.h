#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QRect>
#include <QWidget>

#include <memory>

class QPainter;

namespace WQ {

class CBaseWidgetPrivate;

/// The toolkit's plain widget: listens to events, follows theme and scale.
class WQ_EXPORT CBaseWidget : public CEventWidgetT<QWidget>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// @p objectName names the widget; with @p active it starts as the active one of its window.
    CBaseWidget(QString objectName, bool active, QWidget* parent);
    ~CBaseWidget() override;

    /// Answers false: nothing is handled here.
    bool handleEvent(int event, int a, int b, QString text, void* data) override;

    /// Repaints.
    void themeChanged() override;

    /// Takes the fixed font at the new scale, when setFixFont() has asked for it, and repaints.
    void scaleChanged() override;

    /// Uses the toolkit's fixed font ("fnt_default_normal_fix") and follows its scale from then on.
    virtual void setFixFont();

    /// The part of the widget that a mask may cover, in its own coordinates: all of it.
    virtual QRect getMaskRect() const;

    /// Makes the widget the active one or not; a change calls onActive(), and with @p takeFocus an activated widget
    /// takes the keyboard focus.
    virtual void setActive(bool active, bool takeFocus);

    /// Called after the widget became active. This one does nothing.
    virtual void onActive();

protected:
    /// Fills the widget with the window colour; called by the paint event.
    virtual void paintBackgroud(QPainter& painter);

    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<CBaseWidgetPrivate> const d;
};

} // namespace WQ
