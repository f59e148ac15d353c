#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace workbench {

/// Says on stderr how long the event loop was held each time that it was held longer than a limit, and in the end how
/// often and how long at most.
class LoopWatch : public QObject
{
    Q_OBJECT
public:
    explicit LoopWatch(int limit, QObject* parent = nullptr);

    /// What happened before counts as start-up, not as a freeze.
    void start();

    void report() const;

private:
    void beat();

    int m_limit;
    int m_count = 0;
    qint64 m_longest = 0;
    QTimer m_timer;
    QElapsedTimer m_since;
};

} // namespace workbench
