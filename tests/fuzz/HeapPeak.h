#pragma once

#include <cstddef>

/// How much of the heap a piece of work holds at once, beyond what was held before.
namespace fuzz {

/// From here on the peak counts anew.
void beginHeapPeak();

/// The most bytes held since then on top of what was held then.
std::size_t heapPeak();

} // namespace fuzz
