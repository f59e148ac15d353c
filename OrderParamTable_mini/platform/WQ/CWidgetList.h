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
    CWidgetList(Qt::Orientation orientation, QWidget* parent);
    ~CWidgetList() override;

    /// Left, top, right, bottom margin in pixels; a negative one counts as 0.
    void setMargin(int left, int top, int right, int bottom);

    /// The gap between neighbours in pixels; a negative one counts as 0.
    void setSpacing(int spacing);

    /// Adds a widget that grows by @p stretch; answers its position, -1 for null. The last argument means nothing here.
    int addStretchWidget(QWidget* widget, int stretch, EWidgetAnchor anchor, bool);

    /// Adds a widget at its own size; answers its position, -1 for null. The last argument means nothing here.
    int addFixedWidget(QWidget* widget, EWidgetAnchor anchor, bool);

    /// Adds an empty gap of that many pixels; answers its position.
    int addFixedSpace(int size);

    void themeChanged() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<CWidgetListPrivate> const d;
};

} // namespace WQ
