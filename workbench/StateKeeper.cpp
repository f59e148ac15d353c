#include "workbench/StateKeeper.h"

#include <QEvent>

namespace workbench {

namespace {

/// Sizes change with every pixel that a person drags; nothing waits longer than this.
constexpr int kMoveDelay = 50;

} // namespace

StateKeeper::StateKeeper(QString path, std::function<Json()> collect, QObject* parent)
    : QObject(parent)
    , m_file(std::move(path))
    , m_collect(std::move(collect))
    // Told right before its delivery: what it causes is there when the loop comes round.
    , m_watch([this](const QWidget&, const WQ::PersonEvent&) { commit(); })
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &StateKeeper::store);
}

Json StateKeeper::load()
{
    m_base = m_file.load();
    m_isLoaded = true;
    const QStringList messages = m_file.takeMessages();
    if (!messages.isEmpty())
        Q_EMIT told(messages.join(QStringLiteral("; ")));
    return m_base;
}

void StateKeeper::commit()
{
    storeIn(0);
}

void StateKeeper::move()
{
    storeIn(kMoveDelay);
}

void StateKeeper::storeIn(int milliseconds)
{
    if (m_isLoaded && (!m_timer.isActive() || m_timer.remainingTime() > milliseconds))
        m_timer.start(milliseconds);
}

void StateKeeper::store()
{
    if (!m_isLoaded)
        return;
    m_timer.stop();
    Json state = m_base;
    state.update(m_collect());
    m_file.store(state);
    const QStringList messages = m_file.takeMessages();
    if (!messages.isEmpty())
        Q_EMIT told(messages.join(QStringLiteral("; ")));
}

bool StateKeeper::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        move();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace workbench
