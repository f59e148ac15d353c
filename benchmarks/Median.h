#pragma once

#include <algorithm>
#include <vector>

namespace bench {

/// The value in the middle, of an even number of them the mean of the middle two; 0 of none.
inline double medianOf(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return values.size() % 2 != 0 ? *middle : (*middle + *std::max_element(values.begin(), middle)) / 2;
}

} // namespace bench
