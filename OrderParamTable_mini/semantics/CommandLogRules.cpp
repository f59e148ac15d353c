#include <OrderParamTable_mini/semantics/CommandLogRules.h>

#include <OrderParamTable_mini/semantics/IdentitySets.h>

namespace TC {

bool mayCarryRemark(int identity)
{
    return !kTablesWithoutCommandLog.contains(identity);
}

} // namespace TC
