#include "contract/recorder/CallLog.h"

#include <WQ/Formatting.h>

#include <cmath>

// What is formatted is marked, so that a text that the library writes itself is told apart.
namespace WQ {

using recorder::Format;
using recorder::record;

QString formatDoubleNumber(long double value, int decimals, FormatFlags flags, bool constant,
                           const QString& invalidText)
{
    record(Format, QStringLiteral("formatDoubleNumber"), double(value), decimals, int(flags), constant, invalidText);
    return QLatin1Char('~') + QString::number(double(value), 'f', decimals);
}

QString formatIntNumber(int value, int width, FormatFlags flags)
{
    record(Format, QStringLiteral("formatIntNumber"), value, width, int(flags));
    return QLatin1Char('~') + QString::number(value);
}

QString sToQs(const std::string& text)
{
    record(Format, QStringLiteral("sToQs"), text);
    return QString::fromStdString(text);
}

QDateTime secondToQDateTime(int seconds)
{
    record(Format, QStringLiteral("secondToQDateTime"), seconds);
    return QDateTime::fromSecsSinceEpoch(seconds);
}

int qDateTimeToSecond(QDateTime dateTime)
{
    record(Format, QStringLiteral("qDateTimeToSecond"), dateTime.toString(Qt::ISODate));
    return int(dateTime.toSecsSinceEpoch());
}

} // namespace WQ
