#pragma once

#include "reference/services/LoadReport.h"
#include "reference/services/ServicePrivates.h"

namespace reference {

/// Reads a JSON list of accounts; after an error @p accounts is as it was.
LoadReport readAccounts(const QString& path, TC::AccountMap& accounts);

} // namespace reference
