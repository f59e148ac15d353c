#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <optional>

namespace replay {

enum class CatalogueForm {
    Markdown, ///< a heading for all tables that offer the same, a table of cells under it
    Csv,      ///< RFC 4180 with a line of names: a line for every cell of every table
    Json,     ///< a list of {"id", "broker", "trader", "cell"}, a line an element; "cell" is as in a dump
};

/// Which tables to list: what is left out runs over all the values that make a difference.
struct CatalogueRequest
{
    CatalogueForm form = CatalogueForm::Markdown;
    std::optional<int> id;
    std::optional<int> broker;
    std::optional<int> trader;
    /// "group/module" texts, exactly those that are on.
    QStringList modules;
};

/// A row a cell of every such table straight after construction: entries, units, ranges, initial value. UTF-8.
///
/// The tables are those that may offer the automatic order-book price type, so that no entry is missing. They stand by
/// ascending identity, broker type and trader type (Markdown: broker type first), their cells in display order; two
/// outputs can be compared line by line. The modules that are on are the same again afterwards.
QByteArray catalogue(const CatalogueRequest& request);

} // namespace replay
