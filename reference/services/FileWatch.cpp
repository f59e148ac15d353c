#include "reference/services/FileWatch.h"

#include <QDir>
#include <QFileInfo>

namespace reference {

namespace {

// Writers change a file in several steps: most are through by then, and a change after it is another one.
constexpr int kDelayMs = 30;

constexpr int kSecondLookMs = 500;

/// The folder that tells of the file, or of its folder when that is gone: the nearest one that exists.
QString watchedFolder(const QString& path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo::exists(folder) && !QDir(folder).isRoot())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

} // namespace

FileWatch::FileWatch(const QString& path, std::function<void()> changed, QObject* parent)
    : QObject(parent)
    , m_path(QFileInfo(path).absoluteFilePath())
    , m_changed(std::move(changed))
    , m_delay(this)
{
    m_delay.setSingleShot(true);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_delay.start(kDelayMs); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!m_delay.isActive())
            m_delay.start(kDelayMs);
    });
    connect(&m_delay, &QTimer::timeout, this, [this] {
        watch();
        m_changed();
    });
    watch();
}

void FileWatch::lookAgain()
{
    m_delay.start(kSecondLookMs);
}

void FileWatch::watch()
{
    // A replaced file is a new one to the system: the watch ends with the old one, and its folder tells of the new.
    const QFileInfo file(m_path);
    if (file.exists() && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
    addFolder(watchedFolder(m_path));
    if (file.isSymLink())
        addFolder(watchedFolder(file.symLinkTarget()));
}

void FileWatch::addFolder(const QString& folder)
{
    if (!m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
}

} // namespace reference
