#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>
#include <WQ/ToolkitTypes.h>

#include <QWidget>

#include <memory>

namespace WQ {

class CWidgetListPrivate;

/// A strip of widgets, side by side or one above the other. It takes over the widgets it is given.
class WQ_EXPORT CWidgetList : public CEventWidgetT<QWidget>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// An empty strip.
    /// @param orientation side by side or one above the other
    /// @param parent the owner; may be null
    CWidgetList(Qt::Orientation orientation, QWidget* parent);
    ~CWidgetList() override;

    /// The room around the widgets, in pixels; a negative one counts as 0.
    /// @param left at the left
    /// @param top at the top
    /// @param right at the right
    /// @param bottom at the bottom
    void setMargin(int left, int top, int right, int bottom);

    /// The gap between neighbours.
    /// @param spacing pixels; a negative one counts as 0
    void setSpacing(int spacing);

    /// Adds a widget that grows. The last argument means nothing here.
    /// @param widget owned by the strip from now on
    /// @param stretch its share of the room that is left; a negative one counts as 0
    /// @param anchor its place
    /// @return its position; -1 for null, the strip itself and its ancestors
    int addStretchWidget(QWidget* widget, int stretch, EWidgetAnchor anchor, bool);

    /// Adds a widget at its own size. The last argument means nothing here.
    /// @param widget owned by the strip from now on
    /// @param anchor its place
    /// @return its position; -1 for null, the strip itself and its ancestors
    int addFixedWidget(QWidget* widget, EWidgetAnchor anchor, bool);

    /// Adds an empty gap.
    /// @param size pixels; a negative one counts as 0
    /// @return its position
    int addFixedSpace(int size);

    void themeChanged() override;

protected:
    /// @cond handlers
    void paintEvent(QPaintEvent* event) override;
    /// @endcond

private:
    std::unique_ptr<CWidgetListPrivate> const d;
};

} // namespace WQ
