#include "workbench/EventDecoder.h"

#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QCoreApplication>
#include <QLocale>
#include <QVariant>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

enum class Source { Nothing, Button, Cell, Table, OrderType };
enum class Value { Nothing, Index, Check, PriceType, OrderType, Number };
enum class Data { Nothing, Variant, Double, Int, Table };

struct EventRow
{
    int number;
    const char* name;
    Source source;
    Value value;
    Data data;
};

// clang-format off
constexpr std::array kEvents = {
    EventRow{   5, QT_TRANSLATE_NOOP("workbench", "button clicked"),               Source::Button,    Value::Nothing,   Data::Nothing},
    EventRow{  73, QT_TRANSLATE_NOOP("workbench", "entry chosen"),                 Source::Cell,      Value::Index,     Data::Variant},
    EventRow{  87, QT_TRANSLATE_NOOP("workbench", "number committed"),             Source::Cell,      Value::Nothing,   Data::Nothing},
    EventRow{  97, QT_TRANSLATE_NOOP("workbench", "cell double-clicked"),          Source::Cell,      Value::Nothing,   Data::Nothing},
    EventRow{ 101, QT_TRANSLATE_NOOP("workbench", "period committed"),             Source::Cell,      Value::Nothing,   Data::Nothing},
    EventRow{ 102, QT_TRANSLATE_NOOP("workbench", "line committed"),               Source::Cell,      Value::Nothing,   Data::Nothing},
    EventRow{ 118, QT_TRANSLATE_NOOP("workbench", "unit or check changed"),        Source::Cell,      Value::Check,     Data::Nothing},
    EventRow{ 124, QT_TRANSLATE_NOOP("workbench", "filter applied"),               Source::Nothing,   Value::Nothing,   Data::Nothing},
    EventRow{ 129, QT_TRANSLATE_NOOP("workbench", "parameters changed"),           Source::Table,     Value::Nothing,   Data::Nothing},
    EventRow{ 130, QT_TRANSLATE_NOOP("workbench", "parameter double-clicked"),     Source::Table,     Value::Nothing,   Data::Nothing},
    EventRow{ 248, QT_TRANSLATE_NOOP("workbench", "filter reset"),                 Source::Nothing,   Value::Nothing,   Data::Nothing},
    EventRow{1061, QT_TRANSLATE_NOOP("workbench", "price type applied"),           Source::Table,     Value::PriceType, Data::Nothing},
    EventRow{1062, QT_TRANSLATE_NOOP("workbench", "price display"),                Source::Table,     Value::Number,    Data::Double},
    EventRow{1063, QT_TRANSLATE_NOOP("workbench", "price display, after hours"),   Source::Table,     Value::Number,    Data::Nothing},
    EventRow{1064, QT_TRANSLATE_NOOP("workbench", "order type chosen"),            Source::Table,     Value::OrderType, Data::Nothing},
    EventRow{1071, QT_TRANSLATE_NOOP("workbench", "needed height changed"),        Source::Nothing,   Value::Nothing,   Data::Nothing},
    EventRow{1083, QT_TRANSLATE_NOOP("workbench", "contract code emptied"),        Source::Cell,      Value::Nothing,   Data::Nothing},
    EventRow{1206, QT_TRANSLATE_NOOP("workbench", "operation still to be chosen"), Source::Nothing,   Value::Nothing,   Data::Table},
    EventRow{1213, QT_TRANSLATE_NOOP("workbench", "price type from outside"),      Source::Nothing,   Value::Nothing,   Data::Int},
    EventRow{1244, QT_TRANSLATE_NOOP("workbench", "algorithm buttons"),            Source::OrderType, Value::Nothing,   Data::Nothing},
};
// clang-format on

constexpr bool numbersAscend()
{
    for (std::size_t i = 1; i < kEvents.size(); ++i)
        if (kEvents[i - 1].number >= kEvents[i].number)
            return false;
    return true;
}
static_assert(numbersAscend());

/// The credit table reports account and code under this number, which is none of its rows.
constexpr int kCreditTableId = 725;

const EventRow* rowOf(int number)
{
    const auto row =
        std::find_if(kEvents.begin(), kEvents.end(), [number](const EventRow& r) { return r.number == number; });
    return row == kEvents.end() ? nullptr : row;
}

QString shortened(const QString& text)
{
    return text.size() <= kLongestKeptText ? text : text.left(kLongestKeptText) + QChar(0x2026);
}

QString variantText(const QVariant& variant)
{
    if (!variant.isValid())
        return QStringLiteral("QVariant()");
    return QStringLiteral("%1 %2").arg(QLatin1String(variant.typeName()), shortened(variant.toString()));
}

QString dataText(Data kind, const void* data)
{
    if (!data)
        return {};
    switch (kind) {
    case Data::Nothing:
        return {};
    case Data::Variant:
        return variantText(*static_cast<const QVariant*>(data));
    case Data::Double:
        return QStringLiteral("double %1")
            .arg(*static_cast<const double*>(data), 0, 'g', QLocale::FloatingPointShortest);
    case Data::Int:
        return QStringLiteral("int %1").arg(*static_cast<const int*>(data));
    case Data::Table:
        return QStringLiteral("table %1").arg(static_cast<const TC::COrderParamBaseTable*>(data)->getId());
    }
    return {};
}

QString numberAndLabel(const QString& number, const QString& label)
{
    return label.isEmpty() ? number : number + QLatin1Char(' ') + label;
}

QString cellText(int id)
{
    if (id == kCreditTableId)
        return numberAndLabel(QString::number(id), translated(QT_TRANSLATE_NOOP("workbench", "credit table")));
    const bool isBit = id > 0 && (id & (id - 1)) == 0;
    const QString number = isBit ? QStringLiteral("0x%1").arg(id, 0, 16) : QString::number(id);
    return numberAndLabel(number, labelOf(cells(), id));
}

} // namespace

EventRecord capture(int event, int a, int b, const QString& text, const void* data)
{
    const EventRow* row = rowOf(event);
    return {0, event, a, b, shortened(text), dataText(row ? row->data : Data::Nothing, data)};
}

int eventCell(const EventRecord& record)
{
    const EventRow* row = rowOf(record.event);
    return row && row->source == Source::Cell && record.a != kCreditTableId ? record.a : 0;
}

QString eventName(const EventRecord& record)
{
    const EventRow* row = rowOf(record.event);
    return numberAndLabel(QString::number(record.event), row ? translated(row->name) : QString());
}

QString eventSource(const EventRecord& record)
{
    const EventRow* row = rowOf(record.event);
    const QString number = QString::number(record.a);
    switch (row ? row->source : Source::Nothing) {
    case Source::Button:
        return numberAndLabel(number, labelOf(modeButtons(), record.a));
    case Source::Cell:
        return cellText(record.a);
    case Source::Table:
        return translated(QT_TRANSLATE_NOOP("workbench", "table %1")).arg(record.a);
    case Source::OrderType:
        return valueWithName(orderTypes(), record.a);
    case Source::Nothing:
        break;
    }
    return row && record.a == 0 ? QString() : number;
}

QString eventValue(const EventRecord& record)
{
    const EventRow* row = rowOf(record.event);
    const QString number = QString::number(record.b);
    switch (row ? row->value : Value::Number) {
    case Value::Index:
        return translated(QT_TRANSLATE_NOOP("workbench", "index %1")).arg(record.b);
    case Value::PriceType:
        return numberAndLabel(number, labelOf(priceTypes(), record.b));
    case Value::OrderType:
        return valueWithName(orderTypes(), record.b);
    case Value::Check:
    case Value::Number:
        return number;
    case Value::Nothing:
        break;
    }
    return record.b == 0 ? QString() : number;
}

} // namespace workbench
