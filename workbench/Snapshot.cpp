#include "workbench/Snapshot.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace workbench {

namespace {

/// Room between the window and the edge of a picture that popups have made larger.
constexpr int kMargin = 12;

QWidgetList openWindows(QWidget& window)
{
    QWidgetList windows{&window};
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* other : all)
        if (other != &window && other->isVisible())
            windows << other;
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
