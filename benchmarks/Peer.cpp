#include "benchmarks/Peer.h"

namespace bench {

const std::vector<Contender>& contenders()
{
    static const std::vector<Contender> all = {
        {"native_form", makeNativeForm},
        {"native_form_strip", makeNativeFormWithStrip},
        {"cell_widgets", makeCellWidgets},
        {"lean_view", makeLeanView},
        {"painted", makePainted},
        {"cell_table", makeCellTable},
        {"panel", makePanel},
    };
    return all;
}

} // namespace bench
