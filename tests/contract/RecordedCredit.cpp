#include "contract/RecordedCredit.h"

#include "contract/RecordedPanel.h"

namespace contract {

QStringList emptiedRows()
{
    return lines(R"(
        table.setItemText(727, "")
        table.setItemText(728, "")
        table.setItemText(729, "")
        table.setItemText(730, "")
        table.setItemText(731, "")
    )");
}

QStringList noCodeEvent()
{
    return lines(R"(deliver(1083, 725, 0, "", null))");
}

} // namespace contract
