#pragma once

#include "reference/toolkit/PersonEvents.h"

namespace workbench {

/// Is told of every person's event right before it is delivered, as long as it lives. The toolkit knows one watcher a
/// process: all of these share it, and the one that was there before is told as well.
class PersonWatch
{
public:
    explicit PersonWatch(WQ::PersonEventWatcher watcher);
    ~PersonWatch();
    PersonWatch(const PersonWatch&) = delete;
    PersonWatch& operator=(const PersonWatch&) = delete;

private:
    static void tellAll(const QWidget& sender, const WQ::PersonEvent& event);

    const WQ::PersonEventWatcher m_watcher;
};

} // namespace workbench
