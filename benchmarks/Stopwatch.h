#pragma once

#include <ctime>

namespace bench {

/// Processor seconds of this process since it was made. By the wall clock a busy machine would stretch the longer job
/// alone: the shorter one fits between two interruptions.
class Stopwatch
{
public:
    double seconds() const
    {
        return now() - m_start;
    }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }

    double m_start = now();
};

} // namespace bench
