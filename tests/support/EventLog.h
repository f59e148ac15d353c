#pragma once

#include <WQ/CEventWidgetT.h>

#include <QStringList>
#include <QWidget>

#include <functional>

namespace support {

/// The host above a table: writes down every event that reaches it, with its arguments and its data decoded, as
/// "129(5, 0, "")" or "1062(5, 0, "text", 12.5)".
class EventLog : public WQ::CEventWidgetT<QWidget>
{
public:
    using WQ::CEventWidgetT<QWidget>::CEventWidgetT;

    bool handleEvent(int event, int a, int b, QString text, void* payload) override;

    /// Adds a line of the test's own, to tell what came before and after it.
    void note(const QString& line);

    /// What arrived since the last call.
    QStringList take();

    /// The numbers alone of what arrived since the last call.
    QList<int> takeNumbers();

    std::function<void(int event)> onEvent; ///< runs after the event has been written down
    void* lastData = nullptr;               ///< only to be compared

private:
    QStringList m_lines;
    QList<int> m_numbers;
};

/// The line that EventLog writes, for expectations.
QString eventLine(int event, int a, int b, const QString& text = {}, const QString& decodedData = {});

} // namespace support
