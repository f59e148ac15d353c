#include "workbench/PersonWatch.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace workbench {

namespace {

std::vector<const PersonWatch*>& watches()
{
    static std::vector<const PersonWatch*> theWatches;
    return theWatches;
}

WQ::PersonEventWatcher& watcherBefore()
{
    static WQ::PersonEventWatcher before;
    return before;
}

} // namespace

PersonWatch::PersonWatch(WQ::PersonEventWatcher watcher)
    : m_watcher(std::move(watcher))
{
    if (watches().empty())
        watcherBefore() = WQ::watchPersonEvents(&tellAll);
    watches().push_back(this);
}

PersonWatch::~PersonWatch()
{
    auto& all = watches();
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
    if (all.empty())
        WQ::watchPersonEvents(std::exchange(watcherBefore(), {}));
}

void PersonWatch::tellAll(const QWidget& sender, const WQ::PersonEvent& event)
{
    if (watcherBefore())
        watcherBefore()(sender, event);
    for (const PersonWatch* watch : watches())
        watch->m_watcher(sender, event);
}

} // namespace workbench
