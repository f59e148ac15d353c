#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <array>
#include <vector>

/// What every contender shows: the 17 cells of the stock table, and the two modes between which it is switched.
namespace bench {

struct Entry
{
    const char16_t* text;
    int value;
};

struct Entries
{
    const Entry* first = nullptr;
    std::size_t count = 0;

    QStringList texts() const;
    QVector<QVariant> values() const;
};

struct Unit
{
    const char16_t* text = nullptr;
    double min = 0;
    double max = 0;
    double step = 0;
    int decimals = 0;

    QString name() const;
};

enum class RowKind { Choice, Number, UnitNumber, CheckNumber, Range, Period, Line };

struct Row
{
    int id;
    const char16_t* label;
    RowKind kind;
    double value = 0; ///< a number, or the index of an entry
    Unit unit = {};
    Unit otherUnit = {}; ///< without a text: the unit is fixed
    Entries entries = {};

    QString name() const;
};

constexpr std::size_t kRowCount = 17;
const std::array<Row, kRowCount>& rows();

/// The rows as "0x2 单笔超价", in order.
QStringList rowNames();

/// Position of a row by its ID.
std::size_t positionOf(int id);

QString checkText();
QString rangeSeparator();

struct NumberChange
{
    int id;
    double value;
};

/// What a switch to a mode does beside hiding and showing.
struct Mode
{
    QSet<int> shown;
    int operation;    ///< what our own panel is told to refill its combo
    int refilled;     ///< a combo
    Entries entries;  ///< its new ones, the first chosen
    int limited;      ///< a cell whose unit and range change
    std::size_t unit; ///< which of its two
    std::array<NumberChange, 4> numbers;
};

/// The first mode shows ten rows; the switch to the second hides eight of them and shows six others.
const std::array<Mode, 2>& modes();

/// The cell whose value the quick changes set, shown in both modes.
constexpr int kChangedCell = 0x4;

/// The number that the @p step-th quick change sets; each differs from the one before.
double changedNumber(int step);

/// The content without a widget: what painting contenders show. Texts are made when something changes.
class ContentState
{
public:
    explicit ContentState(const Mode& mode);

    void switchTo(const Mode& mode);
    void setNumber(int id, double value);

    /// Positions of the rows that are shown, in order.
    const std::vector<int>& shown() const
    {
        return m_shown;
    }

    const QString& label(int position) const
    {
        return m_labels[std::size_t(position)];
    }

    const QString& value(int position) const
    {
        return m_texts[std::size_t(position)];
    }

private:
    void show(const Mode& mode);
    void renew(std::size_t position);

    std::array<double, kRowCount> m_values;
    std::array<std::size_t, kRowCount> m_units;
    std::array<Entries, kRowCount> m_entries;
    std::array<QString, kRowCount> m_labels;
    std::array<QString, kRowCount> m_texts;
    std::vector<int> m_shown;
};

} // namespace bench
