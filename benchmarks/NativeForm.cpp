#include "benchmarks/NativeForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>

#include <array>
#include <vector>

namespace bench {

namespace {

struct Entry
{
    const char16_t* text;
    int value;
};

struct Entries
{
    const Entry* first = nullptr;
    std::size_t count = 0;
};

template <std::size_t Count>
constexpr Entries entriesOf(const std::array<Entry, Count>& entries)
{
    return {entries.data(), Count};
}

struct Unit
{
    const char16_t* text = nullptr;
    double min = 0;
    double max = 0;
    double step = 0;
    int decimals = 0;
};

struct Row
{
    int id;
    const char16_t* label;
    QWidget* (*make)(const Row&);
    double value = 0; ///< a number, or a combo's index
    Unit unit = {};
    Unit otherUnit = {}; ///< without a text: the unit is fixed
    Entries entries = {};
};

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
// clang-format on

QString text(const char16_t* characters)
{
    return QString::fromUtf16(characters);
}

QDoubleSpinBox* spinBox(const Unit& unit, double value, QWidget* parent)
{
    auto* box = new QDoubleSpinBox(parent);
    box->setDecimals(unit.decimals);
    box->setRange(unit.min, unit.max);
    if (unit.step > 0)
        box->setSingleStep(unit.step);
    box->setValue(value);
    return box;
}

QWidget* makeCombo(const Row& row)
{
    auto* box = new QComboBox;
    for (std::size_t i = 0; i < row.entries.count; ++i)
        box->addItem(text(row.entries.first[i].text), row.entries.first[i].value);
    box->setCurrentIndex(static_cast<int>(row.value));
    return box;
}

QWidget* makeNumber(const Row& row)
{
    auto* box = spinBox(row.unit, row.value, nullptr);
    box->setSuffix(text(row.unit.text));
    return box;
}

QWidget* inOneLine(const std::vector<QWidget*>& fields)
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* field : fields)
        layout->addWidget(field);
    return line;
}

QWidget* unitBox(const Row& row)
{
    auto* box = new QComboBox;
    box->addItems({text(row.unit.text), text(row.otherUnit.text)});
    return box;
}

QWidget* makeUnitNumber(const Row& row)
{
    return inOneLine({spinBox(row.unit, row.value, nullptr), unitBox(row)});
}

QWidget* makeCheckNumber(const Row& row)
{
    return inOneLine({new QCheckBox(QStringLiteral("单向")), spinBox(row.unit, row.value, nullptr), unitBox(row)});
}

QWidget* makeRange(const Row& row)
{
    auto* high = spinBox(row.unit, row.unit.max, nullptr);
    high->setSuffix(text(row.unit.text));
    return inOneLine({spinBox(row.unit, row.value, nullptr), new QLabel(QStringLiteral(" - ")), high});
}

QWidget* makePeriod(const Row&)
{
    auto* start = new QTimeEdit(QTime(9, 30));
    auto* end = new QTimeEdit(QTime(15, 0));
    for (QTimeEdit* edit : {start, end})
        edit->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    return inOneLine({start, end});
}

QWidget* makeLine(const Row&)
{
    return new QLineEdit;
}

// clang-format off
constexpr std::array kRows = {
    Row{0x1,       u"报价方式",     makeCombo, 0, {}, {}, entriesOf(kPriceTypes)},
    Row{0x2,       u"单笔超价",     makeUnitNumber,  0.5,   {u"%", -100, 100, 0, 2}, {u"元", -1000000, 1000000, 0, 2}},
    Row{0x10,      u"单笔基准量",   makeCombo, 0, {}, {}, entriesOf(kVolumeTypes)},
    Row{0x40,      u"尾单最小量",   makeUnitNumber,  100,   {u"%", 1, 100, 0, 0}, {u"股", 100, 1000000, 0, 0}},
    Row{0x4,       u"超价启用笔数", makeNumber,      1,     {u"笔", 1, 1000000, 0, 0}},
    Row{0x8,       u"波动区间",     makeCheckNumber, 3,     {u"%", 0, 100, 0.01, 2}, {u"元", 0, 1000000, 0, 2}},
    Row{0x200,     u"单笔最小量",   makeNumber,      10000, {u"股", 100, 1000000, 100, 0}},
    Row{0x400,     u"单笔最大量",   makeNumber,      10000, {u"股", 100, 1000000, 100, 0}},
    Row{0x800,     u"有效时间",     makePeriod},
    Row{0x1000,    u"最大委托次数", makeNumber,      1000,  {u"次", 1, 10000, 1, 0}},
    Row{0x2000,    u"未成委托处理", makeCombo, 0, {}, {}, entriesOf(kOrderHandling)},
    Row{0x800000,  u"单笔量区间",   makeRange,       1,     {u"股", 1, 1000000, 1, 0}},
    Row{0x10000,   u"初始报价",     makeCombo, 6, {}, {}, entriesOf(kBookLevels)},
    Row{0x20000,   u"未成处理",     makeCombo, 4, {}, {}, entriesOf(kBookLevels)},
    Row{0x80000,   u"波动区间",     makeNumber,      0,     {u"%", 0, 100, 0.01, 2}},
    Row{0x2000000, u"限价",         makeNumber,      0,     {u"元", 0, 1000000, 0.01, 2}},
    Row{0x4000000, u"投资备注",     makeLine},
};
// clang-format on

} // namespace

NativeForm::NativeForm(const QSet<int>& shown, QWidget* parent)
    : QScrollArea(parent)
{
    auto* form = new QWidget;
    auto* layout = new QFormLayout;
    form->setLayout(layout);
    for (const Row& row : kRows) {
        auto* label = new QLabel(text(row.label));
        QWidget* field = row.make(row);
        layout->addRow(label, field);
        label->setVisible(shown.contains(row.id));
        field->setVisible(shown.contains(row.id));
    }
    setWidgetResizable(true);
    setWidget(form);
}

QStringList NativeForm::rowNames()
{
    QStringList names;
    for (const Row& row : kRows)
        names.append(QStringLiteral("0x%1 %2").arg(QString::number(row.id, 16), text(row.label)));
    return names;
}

} // namespace bench
