#pragma once

#include "reference/services/LoadReport.h"

#include <QByteArray>

namespace reference {

/// Writes a file's report to the log: an error once until the file is good again, and its notes.
void sayReport(const QString& path, const LoadReport& report);

/// "file:line: what"; without the line when it is 0.
QString placed(const QString& path, int line, const QString& what);

/// The line of a byte offset, from 1.
int lineAt(const QByteArray& bytes, int offset);

/// The bytes of a whole file; on failure the error of @p report says why.
QByteArray readWhole(const QString& path, LoadReport& report);

} // namespace reference
