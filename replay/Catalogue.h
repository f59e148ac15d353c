#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <optional>

namespace replay {

enum class CatalogueForm {
    Markdown,
    Csv,
    Json,
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
QByteArray catalogue(const CatalogueRequest& request);

} // namespace replay
