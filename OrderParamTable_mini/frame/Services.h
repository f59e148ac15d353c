#pragma once

#include <OrderParamTable_mini/semantics/FeatureModules.h>

#include <QColor>
#include <QString>

namespace TC {

/// @name The client's services, read at the edge
/// Where a client has no such service, a module is off, a mode or a size 0 and a colour none.
/// @{

bool isModuleOn(FeatureModule module);
bool isAlgorithmClient();
int resourceSize(const QString& key);
QColor resourceColor(const QString& key);

/// @}

} // namespace TC
