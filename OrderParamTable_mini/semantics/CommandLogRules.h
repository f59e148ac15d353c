#pragma once

namespace TC {

/// Whether a table of that identity may carry an investment remark for the command log; the ones from 52 on may.
bool mayCarryRemark(int identity);

} // namespace TC
