#include "workbench/FormScroll.h"

#include <QEvent>
#include <QScrollBar>

namespace workbench {

FormScroll::FormScroll(QWidget* form)
{
    setWidget(form);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // Its fields take the keyboard, and are scrolled to by it.
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize FormScroll::minimumSizeHint() const
{
    const int bar = verticalScrollBar()->sizeHint().width();
    return {widget()->minimumSizeHint().width() + bar, QScrollArea::minimumSizeHint().height()};
}

bool FormScroll::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace workbench
