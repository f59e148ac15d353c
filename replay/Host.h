#pragma once

#include "replay/Json.h"

#include <WQ/CEventWidgetT.h>

#include <QWidget>

#include <functional>

namespace replay {

/// The name that a script gave to a widget, or to what it stands in; empty for one it does not know.
using WidgetNames = std::function<QString(const QWidget*)>;

/// An event as answers write it: [event, a, b, text, data].
Json eventJson(int event, int a, int b, const QString& text, const void* payload, const WidgetNames& nameOf);

/// The host above one object: writes every event that reaches it into a log.
class Host : public WQ::CEventWidgetT<QWidget>
{
public:
    /// The hosts of a run share @p log, which outlives them, so that it holds the order of arrival.
    Host(Json& log, WidgetNames nameOf);

    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

private:
    Json& m_log;
    const WidgetNames m_nameOf;
};

} // namespace replay
