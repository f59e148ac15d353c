#pragma once

#include "benchmarks/Peer.h"

#include <QImage>
#include <QObject>

namespace bench {

/// What an event filter of the whole application saw.
struct EventCounts
{
    int events = 0;
    int paints = 0;
    int layouts = 0; ///< layout requests that were delivered
    int resizes = 0;
};

class EventCounter : public QObject
{
public:
    EventCounter();
    bool eventFilter(QObject* receiver, QEvent* event) override;

    EventCounts counts;
};

/// Keeps every paint back while it lives; the window is painted by the next one after.
class PaintHold : public QObject
{
public:
    PaintHold();
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

/// A window of a host on which one contender stands. It is on the screen and painted from the start.
class Stage
{
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Makes the contender, gives it the place of the panel and shows it. The layout is whole then; nothing is painted.
    Peer& put(const Contender& contender);

    /// Destroys it.
    void clear();

    /// What stands here; only after put().
    Peer& peer()
    {
        return *m_peer;
    }

    QWidget& window()
    {
        return m_window;
    }

    /// Delivers what was posted, and lets the contender lay itself out.
    void settle();

    /// Runs the event loop until there is nothing left to do, paint included.
    static void run();

    /// Paints the whole contender with all its children, each once, onto pixels like those of its window. Marking all
    /// of them instead would paint some twice.
    void paintWhole();

    /// Delivers what was posted, and what is posted on the way, without a look at the system's events.
    static void deliver();

    /// The place of the panel on the stage.
    static QRect place();

private:
    QWidget m_window;
    QImage m_pixels;
    std::unique_ptr<Peer> m_peer;
};

} // namespace bench
