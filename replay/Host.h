#pragma once

#include "replay/Json.h"

#include <WQ/CEventWidgetT.h>

#include <QWidget>

#include <functional>

namespace replay {

/// The host above one object: writes every event that reaches it into a log, as [event, a, b, text, data].
class Host : public WQ::CEventWidgetT<QWidget>
{
public:
    /// The hosts of a run share @p log, which outlives them, so that it holds the order of arrival. @p nameOf answers
    /// the name that a script gave to a widget, empty for one it does not know.
    Host(Json& log, std::function<QString(const QWidget*)> nameOf);

    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

private:
    Json dataOf(int event, const void* payload) const;

    Json& m_log;
    const std::function<QString(const QWidget*)> m_nameOf;
};

} // namespace replay
