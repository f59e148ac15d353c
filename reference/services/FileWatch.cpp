#include "reference/services/FileWatch.h"

#include <QFileInfo>

namespace reference {

namespace {

// Writers change a file in several steps: most are through by then, and a change after it is another one.
constexpr int kDelayMs = 30;

} // namespace

FileWatch::FileWatch(const QString& path, std::function<void()> changed, QObject* parent)
    : QObject(parent)
    , m_path(QFileInfo(path).absoluteFilePath())
    , m_changed(std::move(changed))
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelayMs);
    const auto startDelay = [this] {
        if (!m_delay.isActive())
            m_delay.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, startDelay);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, startDelay);
    connect(&m_delay, &QTimer::timeout, this, [this] {
        watch();
        m_changed();
    });
    watch();
}

void FileWatch::watch()
{
    // A replaced file is a new one to the system: the watch ends with the old one, and its folder tells of the new.
    const QFileInfo file(m_path);
    const QString folder = file.absolutePath();
    if (file.exists() && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
    if (QFileInfo::exists(folder) && !m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
}

} // namespace reference
