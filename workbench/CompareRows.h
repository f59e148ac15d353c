#pragma once

#include "replay/Json.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace workbench {

/// One fact of two tables. Texts of the program are in the source language; the panel's own are as they are.
struct CompareRow
{
    int cell;         ///< 0: of the table itself
    QString label;    ///< the cell's
    const char* what; ///< shown through translated()
    QString left;
    QString right;
    bool isDifferent;
};

/// The facts of the tables, then those of their cells by the order of the left table; cells of the right one alone
/// stand at the end. A cell that one table lacks has no texts there.
std::vector<CompareRow> compareTables(const replay::Json& left, const replay::Json& right);

/// @name A table of texts as a file: fields are quoted where they need it (RFC 4180), lines end in CR LF, or fields
/// stand between tabs, lines between line feeds, and tabs and line ends in a field become blanks.
/// @{
QString commaSeparated(const std::vector<QStringList>& lines);
QString tabSeparated(const std::vector<QStringList>& lines);
/// @}

} // namespace workbench
