#pragma once

#include <functional>

namespace faults {

/// What a listener throws: nothing the standard library or Qt would catch by its base.
struct Thrown
{
    int point;
};

/// A call that reaches the caller with what the host threw; -1 when nothing came.
inline int caughtFrom(const std::function<void()>& call)
{
    try {
        call();
    } catch (const Thrown& thrown) {
        return thrown.point;
    }
    return -1;
}

} // namespace faults
