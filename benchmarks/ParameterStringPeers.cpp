#include "benchmarks/ParameterStringPeers.h"

#include <WQ/Formatting.h>

#include <QStringList>

#include <array>
#include <charconv>

namespace bench {

using ttservice::COrderSetting;

namespace {

QString integerByArg(int value)
{
    return QStringLiteral("%1").arg(value, 0, 10, QLatin1Char(' '));
}

QString integerByNumber(int value)
{
    return QString::number(value, 10);
}

template <class List, class Integer, class Real>
List itemsOf(const COrderSetting& s, Integer i, const Real& r)
{
    return {
        i(s.orderType),      i(s.intField2),    i(s.intField3),   r(s.realField4),  r(s.realField5),  i(s.intField6),
        i(s.intField7),      r(s.realField8),   r(s.realField9),  i(s.intField10),  r(s.realField11), r(s.realField12),
        i(s.intField13),     r(s.realField14),  i(s.intField15),  i(s.intField16),  i(s.intField17),  i(s.intField18),
        i(s.validTimeStart), i(s.validTimeEnd), i(s.intField21),  i(s.intField22),  i(s.intField23),  r(s.realField14),
        i(s.intField25),     r(s.realField26),  r(s.realField27), i(s.intField28),  i(s.intField29),  r(s.realField30),
        i(s.intField31),     r(s.realField32),  r(s.realField33), r(s.realField34), i(s.flag35),      i(s.flag36),
        i(s.cellWord1),      i(s.cellWord2),    i(s.cellWord5),   i(s.cellWord3),   i(s.cellWord4)};
}

template <class Integer, class Real>
QString joinedItems(const COrderSetting& setting, Integer integer, const Real& real)
{
    return itemsOf<QStringList>(setting, integer, real).join(QLatin1Char('+'));
}

constexpr std::size_t kCharsOfAll = 41 * 330;

/// One item after another, each followed by the sign that parts it from the next.
class CharsWriter
{
public:
    bool integer(int value)
    {
        return took(std::to_chars(m_end, m_buffer.data() + m_buffer.size(), value));
    }

    bool real(double value)
    {
        return took(std::to_chars(m_end, m_buffer.data() + m_buffer.size(), value, std::chars_format::fixed, 3));
    }

    QString text() const
    {
        return QString::fromLatin1(m_buffer.data(), int(m_end - m_buffer.data()) - 1);
    }

private:
    bool took(const std::to_chars_result& result)
    {
        m_end = result.ptr;
        *m_end++ = '+';
        return result.ec == std::errc();
    }

    std::array<char, kCharsOfAll> m_buffer;
    char* m_end = m_buffer.data();
};

/// Splits as the format says and hands each value to @p store(operation, row, value).
template <class Store>
bool splitCredit(const QString& text, int& operation, const Store& store)
{
    const QStringList parts = text.split(QLatin1Char('+'));
    if (parts.size() < 2)
        return false;
    operation = parts.at(0).toInt();
    for (int part = 1; part < parts.size(); ++part) {
        const QStringList fields = parts.at(part).split(QLatin1Char('-'));
        if (fields.size() < 5)
            continue;
        const int key = fields.at(0).toInt();
        for (int field = 1; field < fields.size(); ++field) {
            const QStringList pieces = fields.at(field).split(QLatin1Char('='));
            if (pieces.size() >= 2)
                store(key, pieces.at(0).toInt(), pieces.at(1));
        }
    }
    return true;
}

} // namespace

QString realByArg(double value)
{
    return QStringLiteral("%1").arg(value, 0, 'f', 3);
}

QString realByNumber(double value)
{
    return QString::number(value, 'f', 3);
}

QString realByToolkit(double value)
{
    return WQ::formatDoubleNumber(value, 3, {}, false, QStringLiteral("非法值"));
}

QString settingByArg(const COrderSetting& setting, const RealText& realText)
{
    return joinedItems(setting, integerByArg, realText);
}

QString settingByNumber(const COrderSetting& setting, const RealText& realText)
{
    return joinedItems(setting, integerByNumber, realText);
}

QString settingByChars(const COrderSetting& setting)
{
    CharsWriter writer;
    itemsOf<std::array<bool, 41>>(
        setting, [&writer](int value) { return writer.integer(value); },
        [&writer](double value) { return writer.real(value); });
    return writer.text();
}

bool readCreditBySplit(const QString& text, int& operation, CreditValues& values)
{
    return splitCredit(text, operation,
                       [&values](int key, int row, const QString& value) { values[key][row] = QVariant(value); });
}

int scanCreditBySplit(const QString& text)
{
    int operation = 0;
    int sum = 0;
    splitCredit(text, operation, [&sum](int key, int row, const QString& value) { sum += key + row + value.size(); });
    return sum + operation;
}

QString writeCreditByJoin(int operation, const CreditValues& values)
{
    QStringList parts{QString::number(operation, 10)};
    for (auto group = values.cbegin(); group != values.cend(); ++group) {
        QStringList fields{QString::number(group.key(), 10)};
        for (auto row = group->cbegin(); row != group->cend(); ++row)
            fields << QString::number(row.key(), 10) + QLatin1Char('=') + row->toString();
        parts << fields.join(QLatin1Char('-'));
    }
    return parts.join(QLatin1Char('+'));
}

} // namespace bench
