#include "benchmarks/PanelContent.h"

#include <QHash>

#include <algorithm>

namespace bench {

namespace {

template <std::size_t Count>
constexpr Entries entriesOf(const std::array<Entry, Count>& entries)
{
    return {entries.data(), Count};
}

// clang-format off
constexpr std::array kPriceTypes = {
    Entry{u"指定价", 11}, Entry{u"挂单价", 13}, Entry{u"对手价", 14}, Entry{u"昨收价", 16}, Entry{u"卖⑤价", 0},
    Entry{u"卖④价", 1},   Entry{u"卖③价", 2},   Entry{u"卖②价", 3},   Entry{u"卖①价", 4},   Entry{u"最新价", 5},
    Entry{u"买①价", 6},   Entry{u"买②价", 7},   Entry{u"买③价", 8},   Entry{u"买④价", 9},   Entry{u"买⑤价", 10},
};

constexpr std::array kVolumeTypes = {
    Entry{u"卖①+②+③+④+⑤量", 0}, Entry{u"卖①+②+③+④量", 1}, Entry{u"卖①+②+③量", 2}, Entry{u"卖①+②量", 3},
    Entry{u"卖①量", 4}, Entry{u"目标量", 10}, Entry{u"买①量", 5}, Entry{u"买①+②量", 6}, Entry{u"买①+②+③量", 7},
    Entry{u"买①+②+③+④量", 8}, Entry{u"买①+②+③+④+⑤量", 9}, Entry{u"目标剩余量", 11}, Entry{u"持仓总量", 12},
};

constexpr std::array kVolumeTypesOfAnOperation = {
    Entry{u"买①量", 5}, Entry{u"买①+②量", 6}, Entry{u"买①+②+③量", 7}, Entry{u"买①+②+③+④量", 8},
    Entry{u"买①+②+③+④+⑤量", 9}, Entry{u"目标量", 10}, Entry{u"目标剩余量", 11}, Entry{u"持仓数量", 12},
};

constexpr std::array kOrderHandling = {
    Entry{u"不处理", -1},       Entry{u"按卖⑤价委托", 0},  Entry{u"按卖④价委托", 1},  Entry{u"按卖③价委托", 2},
    Entry{u"按卖②价委托", 3},   Entry{u"按卖①价委托", 4},  Entry{u"按最新价委托", 5}, Entry{u"按买①价委托", 6},
    Entry{u"按买②价委托", 7},   Entry{u"按买③价委托", 8},  Entry{u"按买④价委托", 9},  Entry{u"按买⑤价委托", 10},
    Entry{u"按挂单价委托", 13}, Entry{u"按对手价委托", 14}, Entry{u"按昨收价委托", 16},
};

constexpr std::array kBookLevels = {
    Entry{u"卖⑤价", 0}, Entry{u"卖④价", 1}, Entry{u"卖③价", 2}, Entry{u"卖②价", 3}, Entry{u"卖①价", 4},
    Entry{u"最新价", 5}, Entry{u"买①价", 6}, Entry{u"买②价", 7}, Entry{u"买③价", 8}, Entry{u"买④价", 9},
    Entry{u"买⑤价", 10},
};

constexpr std::array<Row, kRowCount> kRows = {
    Row{0x1,       u"报价方式",     RowKind::Choice, 0, {}, {}, entriesOf(kPriceTypes)},
    Row{0x2,       u"单笔超价",     RowKind::UnitNumber,  0.5,   {u"%", -100, 100, 0, 2}, {u"元", -1000000, 1000000, 0, 2}},
    Row{0x10,      u"单笔基准量",   RowKind::Choice, 0, {}, {}, entriesOf(kVolumeTypes)},
    Row{0x40,      u"尾单最小量",   RowKind::UnitNumber,  100,   {u"%", 1, 100, 0, 0}, {u"股", 100, 1000000, 0, 0}},
    Row{0x4,       u"超价启用笔数", RowKind::Number,      1,     {u"笔", 1, 1000000, 0, 0}},
    Row{0x8,       u"波动区间",     RowKind::CheckNumber, 3,     {u"%", 0, 100, 0.01, 2}, {u"元", 0, 1000000, 0, 2}},
    Row{0x200,     u"单笔最小量",   RowKind::Number,      10000, {u"股", 100, 1000000, 100, 0}},
    Row{0x400,     u"单笔最大量",   RowKind::Number,      10000, {u"股", 100, 1000000, 100, 0}},
    Row{0x800,     u"有效时间",     RowKind::Period},
    Row{0x1000,    u"最大委托次数", RowKind::Number,      1000,  {u"次", 1, 10000, 1, 0}},
    Row{0x2000,    u"未成委托处理", RowKind::Choice, 0, {}, {}, entriesOf(kOrderHandling)},
    Row{0x800000,  u"单笔量区间",   RowKind::Range,       1,     {u"股", 1, 1000000, 1, 0}},
    Row{0x10000,   u"初始报价",     RowKind::Choice, 6, {}, {}, entriesOf(kBookLevels)},
    Row{0x20000,   u"未成处理",     RowKind::Choice, 4, {}, {}, entriesOf(kBookLevels)},
    Row{0x80000,   u"波动区间",     RowKind::Number,      0,     {u"%", 0, 100, 0.01, 2}},
    Row{0x2000000, u"限价",         RowKind::Number,      0,     {u"元", 0, 1000000, 0.01, 2}},
    Row{0x4000000, u"投资备注",     RowKind::Line},
};
// clang-format on

// A host makes its texts and lists once and hands the same ones to every panel; so do all the contenders.
QString text(const char16_t* characters)
{
    static QHash<const char16_t*, QString> made;
    QString& kept = made[characters];
    if (kept.isNull())
        kept = QString::fromUtf16(characters);
    return kept;
}

template <class List, class Value>
const List& keptList(const Entries& entries, Value value)
{
    static QHash<const Entry*, List> made;
    List& kept = made[entries.first];
    for (std::size_t i = std::size_t(kept.size()); i < entries.count; ++i)
        kept.append(value(entries.first[i]));
    return kept;
}

QString number(double value, const Unit& unit)
{
    return QString::number(value, 'f', unit.decimals);
}

QString numberText(const Row& row, double value, const Unit& unit)
{
    const QString own = number(value, unit);
    if (row.kind == RowKind::Range)
        return own + rangeSeparator() + number(unit.max, unit) + unit.name();
    const QString check = row.kind == RowKind::CheckNumber ? checkText() + QLatin1Char(' ') : QString();
    return check + own + QLatin1Char(' ') + unit.name();
}

QString shownText(const Row& row, double value, const Unit& unit, const Entries& entries)
{
    switch (row.kind) {
    case RowKind::Choice:
        return text(entries.first[std::size_t(value)].text);
    case RowKind::Period:
        return QStringLiteral("09:30:00-15:00:00");
    case RowKind::Line:
        return {};
    case RowKind::Number:
    case RowKind::UnitNumber:
    case RowKind::CheckNumber:
    case RowKind::Range:
        return numberText(row, value, unit);
    }
    return {};
}

} // namespace

QStringList Entries::texts() const
{
    return keptList<QStringList>(*this, [](const Entry& entry) { return text(entry.text); });
}

QVector<QVariant> Entries::values() const
{
    return keptList<QVector<QVariant>>(*this, [](const Entry& entry) { return QVariant(entry.value); });
}

QString Unit::name() const
{
    return bench::text(text);
}

QString Row::name() const
{
    return text(label);
}

const std::array<Row, kRowCount>& rows()
{
    return kRows;
}

QStringList rowNames()
{
    QStringList names;
    for (const Row& row : kRows)
        names.append(QStringLiteral("0x%1 %2").arg(QString::number(row.id, 16), row.name()));
    return names;
}

std::size_t positionOf(int id)
{
    const auto* const found = std::find_if(kRows.begin(), kRows.end(), [id](const Row& row) { return row.id == id; });
    return std::size_t(found - kRows.begin());
}

QString checkText()
{
    return QStringLiteral("单向");
}

QString rangeSeparator()
{
    return QStringLiteral(" - ");
}

const std::array<Mode, 2>& modes()
{
    // clang-format off
    static const std::array<Mode, 2> all = {
        Mode{{0x1, 0x2, 0x4, 0x8, 0x10, 0x200, 0x400, 0x800, 0x1000, 0x2000}, -1,
             0x10, entriesOf(kVolumeTypes), 0x2, 0,
             {NumberChange{0x200, 10000}, {0x1000, 1000}, {0x8, 3}, {0x2, 0.5}}},
        Mode{{0x2, 0x4, 0x10000, 0x20000, 0x80000, 0x800000, 0x2000000, 0x4000000}, 22,
             0x10, entriesOf(kVolumeTypesOfAnOperation), 0x2, 1,
             {NumberChange{0x80000, 2.5}, {0x2000000, 12.34}, {0x1000, 500}, {0x2, 1.25}}},
    };
    // clang-format on
    return all;
}

double changedNumber(int step)
{
    constexpr int kDifferent = 9000;
    return 1 + (step * 7) % kDifferent;
}

ContentState::ContentState(const Mode& mode)
{
    for (std::size_t i = 0; i < kRowCount; ++i) {
        m_values[i] = kRows[i].value;
        m_units[i] = 0;
        m_entries[i] = kRows[i].entries;
        m_labels[i] = kRows[i].name();
        renew(i);
    }
    show(mode);
}

void ContentState::switchTo(const Mode& mode)
{
    const std::size_t combo = positionOf(mode.refilled);
    m_entries[combo] = mode.entries;
    m_values[combo] = 0;
    renew(combo);
    m_units[positionOf(mode.limited)] = mode.unit;
    for (const NumberChange& change : mode.numbers)
        setNumber(change.id, change.value);
    show(mode);
}

void ContentState::setNumber(int id, double value)
{
    const std::size_t position = positionOf(id);
    m_values[position] = value;
    renew(position);
}

void ContentState::show(const Mode& mode)
{
    m_shown.clear();
    for (std::size_t i = 0; i < kRowCount; ++i) {
        if (mode.shown.contains(kRows[i].id))
            m_shown.push_back(int(i));
    }
}

void ContentState::renew(std::size_t position)
{
    const Row& row = kRows[position];
    const Unit& unit = m_units[position] == 0 ? row.unit : row.otherUnit;
    m_texts[position] = shownText(row, m_values[position], unit, m_entries[position]);
}

} // namespace bench
