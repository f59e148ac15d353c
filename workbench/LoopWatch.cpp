#include "workbench/LoopWatch.h"

#include <QTextStream>

#include <cstdio>
#include <ctime>

namespace workbench {

namespace {

constexpr int kBeat = 5;

/// Milliseconds that this thread has computed.
qint64 computed()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

QTextStream& operator<<(QTextStream& out, const LoopHold& hold)
{
    return out << hold.length << " ms, " << hold.computing << " ms of them computing";
}

} // namespace

LoopWatch::LoopWatch(int limit, QObject* parent)
    : QObject(parent)
    , m_limit(limit)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &LoopWatch::beat);
}

void LoopWatch::start()
{
    m_since.start();
    m_computedBefore = computed();
    m_timer.start(kBeat);
}

void LoopWatch::beat()
{
    const qint64 now = computed();
    const LoopHold hold{m_since.restart() - kBeat, now - m_computedBefore};
    m_computedBefore = now;
    if (hold.length > m_longest.length)
        m_longest = hold;
    if (hold.length <= m_limit)
        return;
    ++m_count;
    QTextStream out(stderr);
    out << "watchdog: the event loop was held for " << hold << '\n';
}

LoopHold LoopWatch::longest() const
{
    return m_longest;
}

void LoopWatch::report() const
{
    QTextStream out(stderr);
    out << "watchdog: held " << m_count << " times for more than " << m_limit << " ms, at most " << m_longest << '\n';
}

} // namespace workbench
