#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace workbench {

/// One time that the event loop was held, in milliseconds. What the thread did not compute of it, it waited: for a
/// disk, or for its turn on a machine with other work.
struct LoopHold
{
    qint64 length = 0;
    qint64 computing = 0;
};

/// Says on stderr how long the event loop was held each time that it was held longer than a limit, and in the end how
/// often and how long at most.
class LoopWatch : public QObject
{
    Q_OBJECT
public:
    explicit LoopWatch(int limit, QObject* parent = nullptr);

    /// What happened before counts as start-up, not as a freeze. Started anew it counts on from here.
    void start();

    LoopHold longest() const;

    void report() const;

private:
    void beat();

    int m_limit;
    int m_count = 0;
    LoopHold m_longest;
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_computedBefore = 0;
};

} // namespace workbench
