#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <cstddef>

namespace TC {

/// One entry of a combo cell: its text and the integer it carries.
struct EntryRow
{
    const char16_t* text;
    int value;
};

/// The entries of a combo cell as the toolkit takes them: two parallel lists.
struct ComboEntries
{
    QStringList texts;
    QVector<QVariant> values;

    ComboEntries() = default;

    template <std::size_t N>
    explicit ComboEntries(const EntryRow (&rows)[N])
    {
        for (const EntryRow& row : rows) {
            texts.append(QString::fromUtf16(row.text));
            values.append(row.value);
        }
    }

    ComboEntries& operator+=(const ComboEntries& other)
    {
        texts += other.texts;
        values += other.values;
        return *this;
    }
};

inline ComboEntries operator+(ComboEntries first, const ComboEntries& second)
{
    first += second;
    return first;
}

} // namespace TC
