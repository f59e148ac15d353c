#pragma once

namespace workbench {

/// Gives the process a private runtime directory when it has none, so that Qt need not guess one.
void ensureRuntimeDirectory();

} // namespace workbench
