#include "contract/recorder/State.h"

#include "contract/recorder/CallLog.h"

namespace recorder {

State& state()
{
    static State answers;
    return answers;
}

void reset()
{
    state() = State();
    clear();
}

} // namespace recorder
