#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

namespace reference {

/// Calls back, from the event loop, after a file has changed, was replaced, or appeared. May call back without a
/// change.
class FileWatch : public QObject
{
public:
    FileWatch(const QString& path, std::function<void()> changed, QObject* parent);

    /// Calls back once more after a while, unless a change comes first: for what looks half-written.
    void lookAgain();

private:
    void watch();
    void addFolder(const QString& folder);

    QString m_path;
    std::function<void()> m_changed;
    QFileSystemWatcher m_watcher;
    QTimer m_delay;
};

} // namespace reference
