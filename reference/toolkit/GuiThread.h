#pragma once

#include <QCoreApplication>
#include <QThread>

#include <atomic>

namespace WQ {

/// The toolkit belongs to the GUI thread. A call from another one is reported, once a process and in debug builds only;
/// it is not prevented.
inline void checkGuiThread([[maybe_unused]] const char* operation)
{
#ifndef QT_NO_DEBUG
    // Setters are called by the dozen: the thread that was right before is asked for nothing else.
    static std::atomic<Qt::HANDLE> right{nullptr};
    static std::atomic<bool> said{false};
    if (right.load(std::memory_order_relaxed) == QThread::currentThreadId())
        return;
    const QCoreApplication* application = QCoreApplication::instance();
    if (application && application->thread() == QThread::currentThread())
        right = QThread::currentThreadId();
    else if (application && !said.exchange(true))
        qWarning("%s: called outside the GUI thread", operation);
#endif
}

} // namespace WQ
