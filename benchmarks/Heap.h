#pragma once

namespace bench {

/// Keeps blocks as large as a window's pixels out of the heap for good, so that heapBytes() leaves them out. To be
/// called first thing in main().
void keepPixelsOutOfHeap();

/// Bytes in use on the heap.
double heapBytes();

/// Bytes of memory that the process occupies, after what is free has been given back.
double residentBytes();

} // namespace bench
