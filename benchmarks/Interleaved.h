#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Contenders that do the same job, measured in turn within one run, so that what slows the machine down for a while
/// slows all of them.
class Interleaved
{
public:
    /// @p measure does the job once and answers the seconds that counted, set-up and cleaning up left out. The first
    /// contender is the one that the others are compared with.
    void add(std::string name, std::function<double()> measure);

    /// Measures every contender once; each round another one begins.
    void round();

    /// Rounds whose times are dropped: caches, fonts and plugins are loaded by then.
    void warmUp(int rounds);

    int contenders() const
    {
        return static_cast<int>(m_contenders.size());
    }

    const std::string& name(int contender) const
    {
        return m_contenders.at(static_cast<std::size_t>(contender)).name;
    }

    /// The last round's time of a contender, in seconds.
    double last(int contender) const;

    /// The median of its times, in seconds; 0 before the first round.
    double median(int contender) const;

    /// Its median over the first contender's.
    double ratio(int contender) const;

private:
    struct Contender
    {
        std::string name;
        std::function<double()> measure;
        std::vector<double> seconds;
    };

    std::vector<Contender> m_contenders;
    std::size_t m_beginner = 0;
};

} // namespace bench
