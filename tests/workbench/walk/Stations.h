#pragma once

#include <vector>

namespace walk {

class Walker;

/// One part of the way through the window: what a person does there and must see then.
struct Station
{
    const char* name; ///< of the station and its picture
    void (*visit)(Walker&);
};
using Stations = std::vector<Station>;

/// In the order of the way: each starts where the one before it has ended.
Stations panelStations();
Stations cellStations();
Stations partStations();
Stations hostStations();
Stations recorderStations();
Stations viewStations();

} // namespace walk
