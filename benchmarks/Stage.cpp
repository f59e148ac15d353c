#include "benchmarks/Stage.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>

namespace bench {

EventCounter::EventCounter()
{
    qApp->installEventFilter(this);
}

bool EventCounter::eventFilter(QObject*, QEvent* event)
{
    ++counts.events;
    counts.paints += event->type() == QEvent::Paint ? 1 : 0;
    counts.layouts += event->type() == QEvent::LayoutRequest ? 1 : 0;
    counts.resizes += event->type() == QEvent::Resize ? 1 : 0;
    return false;
}

PaintHold::PaintHold()
{
    qApp->installEventFilter(this);
}

bool PaintHold::eventFilter(QObject* receiver, QEvent* event)
{
    return event->type() == QEvent::UpdateRequest && receiver->isWidgetType();
}

Stage::Stage()
{
    m_window.resize(place().size());
    m_window.show();
    run();
    m_pixels = QImage(place().size() * m_window.devicePixelRatioF(), QImage::Format_RGB32);
    m_pixels.setDevicePixelRatio(m_window.devicePixelRatioF());
}

Stage::~Stage()
{
    clear();
}

Peer& Stage::put(const Contender& contender)
{
    m_peer = contender.make(&m_window);
    m_peer->widget().setGeometry(place());
    m_peer->widget().show();
    settle();
    return *m_peer;
}

void Stage::clear()
{
    m_peer.reset();
}

void Stage::settle()
{
    deliver();
    m_peer->settle();
    deliver();
}

void Stage::run()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
}

void Stage::paintWhole()
{
    m_peer->widget().render(&m_pixels);
}

// One call leaves to the next what is posted in it: a layout asks its parent's, gathered changes ask for a paint.
void Stage::deliver()
{
    constexpr int kGenerations = 4;
    for (int i = 0; i < kGenerations; ++i)
        QCoreApplication::sendPostedEvents();
}

QRect Stage::place()
{
    constexpr int kWidth = 240;
    constexpr int kHeight = 420;
    return {0, 0, kWidth, kHeight};
}

} // namespace bench
