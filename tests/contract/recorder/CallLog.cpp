#include "contract/recorder/CallLog.h"

#include "contract/recorder/Watch.h"

#include <QLocale>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <limits>

namespace recorder {

namespace {

struct Line
{
    Kind kind;
    QString text;
};

QVector<Line>& lines()
{
    static QVector<Line> recorded;
    return recorded;
}

QString joined(const QStringList& texts)
{
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

bool isCreditRow(int id)
{
    return id >= 725 && id <= 731;
}

QString unitText(const WQ::CParamCellUnitInfo& unit)
{
    QStringList texts{written(unit.text), written(unit.type), written(unit.min), written(unit.max)};
    if (unit.step.isValid())
        texts << written(unit.step);
    return QLatin1Char('{') + texts.join(QLatin1String(", ")) + QLatin1Char('}');
}

} // namespace

QString written(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString written(int value)
{
    return QString::number(value);
}

QString written(double value)
{
    constexpr double kReadable = 1e15;
    if (std::abs(value) >= std::numeric_limits<double>::max())
        return value < 0 ? QStringLiteral("-max") : QStringLiteral("max");
    if (!(std::abs(value) < kReadable))
        return QString::number(value);
    const QString text = QString::number(value, 'f', QLocale::FloatingPointShortest);
    return text.contains(QLatin1Char('.')) ? text : text + QLatin1String(".0");
}

QString written(const char* value)
{
    return written(QString::fromUtf8(value));
}

QString written(const QString& value)
{
    return QLatin1Char('"') + value + QLatin1Char('"');
}

QString written(const std::string& value)
{
    return written(QString::fromStdString(value));
}

QString written(const QStringList& values)
{
    QStringList texts;
    for (const QString& value : values)
        texts << written(value);
    return joined(texts);
}

QString written(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return QStringLiteral("none");
    case QMetaType::Int:
        return written(value.toInt());
    case QMetaType::Double:
        return written(value.toDouble());
    case QMetaType::QString:
        return written(value.toString());
    default:
        return QLatin1String(value.typeName()) + QLatin1Char(' ') + value.toString();
    }
}

QString written(const QVector<QVariant>& values)
{
    QStringList texts;
    for (const QVariant& value : values)
        texts << written(value);
    return joined(texts);
}

QString written(const QTime& value)
{
    return value.toString(QStringLiteral("HH:mm:ss"));
}

QString written(Qt::Alignment value)
{
    return value == (Qt::AlignRight | Qt::AlignVCenter) ? QStringLiteral("right|vcenter")
                                                        : QString::number(int(value), 16);
}

QString written(const WQ::CButtonColor& value)
{
    return written(QStringList{value.normal, value.hover, value.checked, value.disabled});
}

QString written(const QList<WQ::CParamCellUnitInfo>& units)
{
    QStringList texts;
    for (const WQ::CParamCellUnitInfo& unit : units)
        texts << unitText(unit);
    return joined(texts);
}

QString written(const QSet<int>& ids)
{
    QList<int> sorted(ids.begin(), ids.end());
    std::sort(sorted.begin(), sorted.end());
    QStringList texts;
    for (const int id : sorted)
        texts << written(Id{id});
    return QLatin1Char('{') + texts.join(QLatin1String(", ")) + QLatin1Char('}');
}

QString written(Id id)
{
    return isCreditRow(id.value) ? QString::number(id.value) : QStringLiteral("0x%1").arg(id.value, 0, 16);
}

QString written(const QWidget* widget)
{
    if (!widget)
        return QStringLiteral("null");
    const QString name = watchedName(widget);
    return name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : name;
}

void recordLine(Kind kind, const QString& line)
{
    if (kind != Show && kind != Place)
        lookAtWidgets();
    lines().append({kind, line});
}

QStringList calls(int kinds)
{
    lookAtWidgets();
    QStringList texts;
    for (const Line& line : qAsConst(lines())) {
        if (line.kind & kinds)
            texts << line.text;
    }
    return texts;
}

QStringList callsOf(const QStringList& names, int kinds)
{
    QStringList texts = calls(kinds);
    const auto isOther = [&names](const QString& text) {
        return !names.contains(text.left(text.indexOf(QLatin1Char('('))));
    };
    texts.erase(std::remove_if(texts.begin(), texts.end(), isOther), texts.end());
    return texts;
}

void clear()
{
    lookAtWidgets();
    lines().clear();
}

} // namespace recorder
