#pragma once

#include "workbench/PersonWatch.h"
#include "workbench/StateFile.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace workbench {

/// Keeps the state of the program on disk while it runs: it is written in the pass of the event loop after something
/// was committed, and once for everything that was committed in between. Whoever kills the program loses nothing that
/// was committed.
class StateKeeper : public QObject
{
    Q_OBJECT
public:
    /// @p collect answers the state as it is; it is called from the event loop alone.
    StateKeeper(QString path, std::function<Json()> collect, QObject* parent = nullptr);

    /// The kept state. From now on commits are written.
    Json load();

    /// Something was committed, or a part of the window was moved, which happens many times in a row.
    void commit();
    void move();

    /// Writes at once, for the end of the program.
    void store();

    /// Reports moves and sizes of @p window and its parts.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Something went wrong that a person should know.
    void told(const QString& message);

private:
    void storeIn(int milliseconds);

    StateFile m_file;
    const std::function<Json()> m_collect;
    QTimer m_timer;
    Json m_base = Json::object(); ///< as loaded: keys of other versions are written back
    bool m_isLoaded = false;
    const PersonWatch m_watch;
};

} // namespace workbench
