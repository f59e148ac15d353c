#pragma once

namespace bench {

/// Blocks that the process has asked the heap for, counted by a malloc() of the program's own. A program that wants it
/// counts lists Allocations.cpp among its sources.
long allocations();

} // namespace bench
