#include "workbench/Snapshot.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace workbench {

namespace {

/// Room between the window and the edge of a picture that popups have made larger.
constexpr int kMargin = 12;

int ownersOf(const QWidget& window)
{
    int count = 0;
    for (const QWidget* owner = window.parentWidget(); owner; owner = owner->window()->parentWidget())
        ++count;
    return count;
}

/// From the lowest to the topmost: what belongs to a window stands above it, what came later above what came before.
QWidgetList openWindows(QWidget& window)
{
    QWidgetList windows;
    const QWindowList all = QGuiApplication::topLevelWindows();
    for (const QWindow* other : all) {
        QWidget* widget = other->isVisible() ? QWidget::find(other->winId()) : nullptr;
        if (widget && widget != &window)
            windows << widget;
    }
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget* a, const QWidget* b) { return ownersOf(*a) < ownersOf(*b); });
    windows.prepend(&window);
    return windows;
}

QRect placeOf(const QWidget& window)
{
    return {window.mapToGlobal(QPoint()), window.size()};
}

} // namespace

QImage snapshot(QWidget& window, qreal pixelRatio)
{
    const QWidgetList windows = openWindows(window);
    QRect place;
    for (const QWidget* part : windows)
        place |= placeOf(*part);
    if (windows.size() > 1)
        place.adjust(-kMargin, -kMargin, kMargin, kMargin);

    QImage image(place.size() * pixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(window.palette().color(QPalette::Window));
    QPainter painter(&image);
    for (QWidget* part : windows)
        part->render(&painter, placeOf(*part).topLeft() - place.topLeft());
    return image;
}

void settle()
{
    // A layout request may cause another one, and a repaint after it.
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace workbench
