#pragma once

#include "reference/services/LoadReport.h"

#include <QByteArray>

namespace reference {

/// The largest file that is read, in bytes.
constexpr qint64 kLargestFile = 256 * 1024 * 1024;

/// How many notes on a file name their line. Each line is found by a walk over the file: 100,000 walks would take for
/// ever, and nobody reads so many.
constexpr int kMostNotesPlaced = 20;

/// Writes a file's report to the log: each error once until the file is good again, and its notes.
void sayReport(const QString& path, const LoadReport& report);

/// Lets every error be said again.
void forgetReports();

/// "file:line: what"; without the line when it is 0.
QString placed(const QString& path, int line, const QString& what);

/// A text of a file as a message shows it: in quotes, on one line, and shortened.
QString quoted(const QString& text);

/// The line of a byte offset, from 1.
int lineAt(const QByteArray& bytes, int offset);

/// The bytes of a whole file; on failure the error of @p report says why.
QByteArray readWhole(const QString& path, LoadReport& report, qint64 largest = kLargestFile);

} // namespace reference
