#pragma once

#include <QtGlobal>

/// How many faults a test program has tried, and how many of them it did not see through to the end.
class FaultCount
{
public:
    explicit FaultCount(const char* area)
        : m_area(area)
    {
    }

    void begin()
    {
        ++m_tried;
    }

    void end()
    {
        ++m_passed;
    }

    void say() const
    {
        qInfo("%s: points tried %d, errors %d", m_area, m_tried, m_tried - m_passed);
    }

private:
    const char* m_area;
    int m_tried = 0;
    int m_passed = 0;
};
