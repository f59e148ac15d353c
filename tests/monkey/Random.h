#pragma once

#include <QtGlobal>

#include <iterator>
#include <random>

namespace monkey {

/// Numbers that a seed settles, the same with every standard library.
class Random
{
public:
    explicit Random(quint64 seed)
        : m_engine(seed)
    {
    }

    /// 0 to @p count - 1; @p count is above 0.
    int below(int count)
    {
        return static_cast<int>(m_engine() % static_cast<quint64>(count));
    }

    int between(int first, int last)
    {
        return first + below(last - first + 1);
    }

    bool oneIn(int count)
    {
        return below(count) == 0;
    }

    template <class List>
    const auto& pick(const List& list)
    {
        return *std::next(std::begin(list), below(static_cast<int>(std::size(list))));
    }

    /// A row, each as often as its weight says.
    template <class Rows>
    const auto& weighted(const Rows& rows)
    {
        int sum = 0;
        for (const auto& row : rows)
            sum += row.weight;
        int left = below(sum);
        auto row = std::begin(rows);
        while (left >= row->weight)
            left -= (row++)->weight;
        return *row;
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace monkey
