#pragma once

namespace bench {

/// What the contenders cause, counted instead of timed: widgets of a panel, and the events, paints, layout requests and
/// resizes of building, switching, repainting and changing a value. And that our panel does nothing where nothing
/// changes.
void registerCountJobs();

} // namespace bench
