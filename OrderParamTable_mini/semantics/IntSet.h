#pragma once

#include <array>
#include <cstddef>

namespace TC {

/// A small fixed set of integers, filled at compile time; std::bitset cannot be, and the values are sparse.
template <std::size_t N>
class IntSet
{
public:
    template <class... Values>
    constexpr explicit IntSet(Values... values)
        : m_values{int(values)...}
    {
    }

    constexpr bool contains(int value) const
    {
        for (const int member : m_values) {
            if (member == value)
                return true;
        }
        return false;
    }

private:
    std::array<int, N> m_values;
};

template <class... Values>
IntSet(Values...) -> IntSet<sizeof...(Values)>;

} // namespace TC
