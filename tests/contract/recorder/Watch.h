#pragma once

#include <QString>

class QWidget;

/// What every Qt widget has is not declared by the platform, so nothing of it can be overridden: the recorder looks at
/// the widgets before each call that it records, and writes what has changed since, as the call that changes it.
namespace recorder {

/// Watches @p widget under that name, from the state on that it has now.
void watch(QWidget* widget, const QString& name);

QString watchedName(const QWidget* widget);

/// Records what has changed since the last look.
void lookAtWidgets();

} // namespace recorder
