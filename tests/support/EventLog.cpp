#include "support/EventLog.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QVariant>

namespace support {

namespace {

constexpr int kCellChanged = 73;
constexpr int kPriceQuoted = 1062;
constexpr int kTableCleared = 1206;
constexpr int kPriceTypeFromOutside = 1213;

QString decoded(int event, void* data)
{
    if (!data)
        return {};
    switch (event) {
    case kCellChanged:
        return static_cast<QVariant*>(data)->toString();
    case kPriceQuoted:
        return QString::number(*static_cast<double*>(data), 'g', 17);
    case kTableCleared:
        return static_cast<TC::COrderParamBaseTable*>(data)->objectName();
    case kPriceTypeFromOutside:
        return QString::number(*static_cast<int*>(data));
    default:
        return QStringLiteral("unexpected data");
    }
}

} // namespace

bool EventLog::handleEvent(int event, int a, int b, QString text, void* payload)
{
    m_lines << eventLine(event, a, b, text, decoded(event, payload));
    m_numbers << event;
    lastData = payload;
    if (const auto hook = onEvent)
        hook(event);
    return false;
}

void EventLog::note(const QString& line)
{
    m_lines << line;
}

QStringList EventLog::take()
{
    m_numbers.clear();
    return std::exchange(m_lines, {});
}

QList<int> EventLog::takeNumbers()
{
    m_lines.clear();
    return std::exchange(m_numbers, {});
}

QString eventLine(int event, int a, int b, const QString& text, const QString& decodedData)
{
    const QString tail = decodedData.isEmpty() ? QString() : QStringLiteral(", ") + decodedData;
    return QStringLiteral("%1(%2, %3, \"").arg(event).arg(a).arg(b) + text + QLatin1Char('"') + tail + QLatin1Char(')');
}

} // namespace support
