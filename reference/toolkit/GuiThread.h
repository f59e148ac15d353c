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
    static std::atomic<bool> said{false};
    const QCoreApplication* application = QCoreApplication::instance();
    if (application && application->thread() != QThread::currentThread() && !said.exchange(true))
        qWarning("%s: called outside the GUI thread", operation);
#endif
}

} // namespace WQ
