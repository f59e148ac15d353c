#include "workbench/LoopWatch.h"

#include <QTextStream>

#include <cstdio>

namespace workbench {

namespace {

constexpr int kBeat = 5;

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
    m_timer.start(kBeat);
}

void LoopWatch::beat()
{
    const qint64 held = m_since.restart() - kBeat;
    m_longest = qMax(m_longest, held);
    if (held <= m_limit)
        return;
    ++m_count;
    QTextStream(stderr) << "watchdog: the event loop was held for " << held << " ms\n";
}

void LoopWatch::report() const
{
    QTextStream(stderr) << "watchdog: held " << m_count << " times for more than " << m_limit << " ms, at most "
                        << m_longest << " ms\n";
}

} // namespace workbench
