#pragma once

#include <QString>
#include <QStringList>

/// The documents of the project, read as Markdown. Paths are relative to the project's root.
namespace documents {

/// README, its translation, CONTRIBUTING, CHANGELOG and everything in docs/.
QStringList all();

/// The whole file; empty when it cannot be read.
QString text(const QString& path);

/// The files under @p folder whose names match one of the wildcards, sub-folders included, sorted.
QStringList files(const QString& folder, const QStringList& wildcards);

bool exists(const QString& path);

/// Without fenced and indented blocks of code.
QString prose(const QString& markdown);

/// The fenced blocks of that language; of every block with an empty one.
QStringList codeBlocks(const QString& markdown, const QString& language = {});

/// The lines of all blocks of code, fenced and indented.
QStringList codeLines(const QString& markdown);

/// The headings as written, "## Title".
QStringList headings(const QString& markdown);

/// The anchors that a page offers: what its host makes of the headings.
QStringList anchors(const QString& markdown);

/// Where links and pictures of the prose lead.
QStringList targets(const QString& markdown);

/// What stands between backticks in the prose.
QStringList quoted(const QString& markdown);

/// The cells of the table rows under a heading, the head of each table left out; backticks are taken off.
QList<QStringList> tableRows(const QString& markdown, const QString& heading);

} // namespace documents
