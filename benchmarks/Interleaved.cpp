#include "benchmarks/Interleaved.h"

#include "benchmarks/Median.h"

#include <utility>

namespace bench {

void Interleaved::add(std::string name, std::function<double()> measure)
{
    m_contenders.push_back({std::move(name), std::move(measure), {}});
}

void Interleaved::round()
{
    const std::size_t count = m_contenders.size();
    for (std::size_t i = 0; i < count; ++i) {
        Contender& contender = m_contenders[(m_beginner + i) % count];
        contender.seconds.push_back(contender.measure());
    }
    ++m_beginner;
}

void Interleaved::warmUp(int rounds)
{
    for (int i = 0; i < rounds; ++i)
        round();
    for (Contender& contender : m_contenders)
        contender.seconds.clear();
}

double Interleaved::last(int contender) const
{
    const auto& seconds = m_contenders.at(static_cast<std::size_t>(contender)).seconds;
    return seconds.empty() ? 0 : seconds.back();
}

double Interleaved::median(int contender) const
{
    return medianOf(m_contenders.at(static_cast<std::size_t>(contender)).seconds);
}

double Interleaved::ratio(int contender) const
{
    const double first = median(0);
    return first > 0 ? median(contender) / first : 0;
}

} // namespace bench
