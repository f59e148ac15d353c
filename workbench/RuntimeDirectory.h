#pragma once

namespace workbench {

/// Gives the process a private runtime directory when the session has none, so that Qt need not guess one.
void ensureRuntimeDirectory();

} // namespace workbench
