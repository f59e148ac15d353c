#include "replay/Catalogue.h"

#include "reference/services/ServiceControl.h"
#include "replay/CatalogueRows.h"
#include "replay/CellState.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <QtCore/QByteArrayList>

#include <algorithm>
#include <set>
#include <vector>

namespace replay {

namespace {

// clang-format off
// What construction asks of a table's identity. Those that are not here are built like 1 below 35 and like 35 from there
// on.
constexpr int kIdentities[] = {
    1,                                      // the specified price, and nothing of its own
    5,                                      // limit price; previous close; random volume
    7,                                      // composite; previous close for desk 4; one-way range of 5
    8,  9,  10,                             // no specified price
    11, 12, 13,                             // limit price
    14,                                     // no specified price, futures without the target volumes
    15,                                     // model price; previous close; random volume
    17,                                     // model price
    18, 19, 20, 21,                         // order service without a specified price
    22,                                     // model price; previous close; no market orders
    23,                                     // no specified price
    24,                                     // no specified price, no market orders
    25, 26, 27, 28, 29,                     // order service without a specified price
    30,                                     // model price
    31,                                     // previous close among the price types; random volume
    33,                                     // random volume
    35,                                     // from here on no specified price
    36,                                     // previous close; random volume
    40,                                     // model price
    43,                                     // options without market orders
};

constexpr int kBrokerTypes[] = {
    1,          // futures: no price types, lots, points
    2,          // stock: previous close, random volume
    3,          // credit: previous close on fewer tables
    4,  5,      // points; 5 has no price types
    6,          // options: contracts, option orders
    7,          // Hong Kong dollars, no super price
    8,          // every other: shares, yuan
    10,         // shares, own list of price types, no base volume
    11,         // Hong Kong dollars, no super price
    1001, 1002, // points, own list of price types
};

constexpr int kTraderTypes[] = {
    1, // previous close on some tables, random volume
    2, // every other
    4, // previous close on others
};
// clang-format on

/// Exactly these feature modules are on during its scope.
class ModuleScope
{
public:
    explicit ModuleScope(const QStringList& on)
        : m_before(reference::modules())
    {
        reference::setModules(QSet<QString>(on.begin(), on.end()));
    }

    ~ModuleScope()
    {
        reference::setModules(m_before);
    }

    ModuleScope(const ModuleScope&) = delete;
    ModuleScope& operator=(const ModuleScope&) = delete;

private:
    const QSet<QString> m_before;
};

/// The cells of a table, written in the form that is asked for. Most tables share theirs with others.
using Rows = QByteArrayList;

struct ListedTable
{
    int id;
    int broker;
    int trader;
    const Rows* rows;
};

template <class Values>
std::vector<int> valuesOf(std::optional<int> asked, const Values& all)
{
    return asked ? std::vector<int>{*asked} : std::vector<int>(std::begin(all), std::end(all));
}

Json cellsOf(int id, int broker, int trader)
{
    TC::CGlobalOrderParamTable table(TC::EOpParamWidgetID(id), ttservice::ENVBrokerType(broker), true, nullptr, true,
                                     ttservice::ENvTraderType(trader), true);
    const WQ::CMultiParamsTable* const cells = table.getMultiParamsTable();
    return cells ? cellStates(*cells) : Json::array();
}

QByteArray jsonRow(const Json& cell)
{
    return QByteArray::fromStdString(cell.dump());
}

using RowWriter = QByteArray (*)(const Json& cell);

RowWriter writerOf(CatalogueForm form)
{
    switch (form) {
    case CatalogueForm::Markdown:
        return markdownRow;
    case CatalogueForm::Csv:
        return csvRow;
    case CatalogueForm::Json:
        return jsonRow;
    }
    return markdownRow;
}

class Listing
{
public:
    explicit Listing(const CatalogueRequest& request)
    {
        const ModuleScope modules(request.modules);
        const RowWriter writer = writerOf(request.form);
        for (const int id : valuesOf(request.id, kIdentities)) {
            for (const int broker : valuesOf(request.broker, kBrokerTypes)) {
                for (const int trader : valuesOf(request.trader, kTraderTypes))
                    tables.push_back({id, broker, trader, rowsOf(cellsOf(id, broker, trader), writer)});
            }
        }
    }

    std::vector<ListedTable> tables; ///< by identity, broker type, trader type

private:
    const Rows* rowsOf(const Json& cells, RowWriter writer)
    {
        Rows rows;
        for (const Json& cell : cells)
            rows << writer(cell);
        return &*m_distinct.insert(rows).first;
    }

    std::set<Rows> m_distinct;
};

/// Tables of one broker type that offer the same: every identity with every trader type.
struct Section
{
    int broker;
    std::vector<int> traders;
    std::vector<int> ids;
    const Rows* rows;
};

/// The tables of one identity and broker type, @p first up to @p last, as sections.
std::vector<Section> sectionsOf(const ListedTable* first, const ListedTable* last)
{
    std::vector<Section> sections;
    for (const ListedTable* table = first; table != last; ++table) {
        const auto same = std::find_if(sections.begin(), sections.end(),
                                       [table](const Section& section) { return section.rows == table->rows; });
        if (same == sections.end())
            sections.push_back({table->broker, {table->trader}, {table->id}, table->rows});
        else
            same->traders.push_back(table->trader);
    }
    return sections;
}

void addSection(std::vector<Section>& sections, const Section& added)
{
    const auto same = std::find_if(sections.begin(), sections.end(), [&added](const Section& section) {
        return section.broker == added.broker && section.traders == added.traders && section.rows == added.rows;
    });
    if (same == sections.end())
        sections.push_back(added);
    else
        same->ids.insert(same->ids.end(), added.ids.begin(), added.ids.end());
}

std::vector<Section> sectionsOf(const std::vector<ListedTable>& tables)
{
    std::vector<Section> sections;
    const ListedTable* const end = tables.data() + tables.size();
    for (const ListedTable* first = tables.data(); first != end;) {
        const ListedTable* const last = std::find_if(first, end, [first](const ListedTable& table) {
            return table.id != first->id || table.broker != first->broker;
        });
        for (const Section& section : sectionsOf(first, last))
            addSection(sections, section);
        first = last;
    }
    std::stable_sort(sections.begin(), sections.end(),
                     [](const Section& one, const Section& other) { return one.broker < other.broker; });
    return sections;
}

QByteArray listed(const char* one, const char* several, const std::vector<int>& values)
{
    QByteArrayList texts;
    for (const int value : values)
        texts << QByteArray::number(value);
    return QByteArray(values.size() == 1 ? one : several) + ' ' + texts.join(", ");
}

QByteArray heading(const Section& section)
{
    return "\n## Broker type " + QByteArray::number(section.broker) + ", "
        + listed("trader type", "trader types", section.traders) + ", " + listed("identity", "identities", section.ids)
        + "\n\n";
}

QByteArray markdown(const Listing& listing, QStringList modules)
{
    modules.sort();
    QByteArray text = "# Cells straight after construction\n\nFeature modules: ";
    text += (modules.isEmpty() ? QByteArray("none") : modules.join(QStringLiteral(", ")).toUtf8()) + '\n';
    for (const Section& section : sectionsOf(listing.tables))
        text += heading(section) + markdownHead() + section.rows->join();
    return text;
}

QByteArray csv(const Listing& listing)
{
    QByteArray text = csvHead();
    for (const ListedTable& table : listing.tables) {
        const QByteArray fields = QByteArray::number(table.id) + ',' + QByteArray::number(table.broker) + ','
            + QByteArray::number(table.trader) + ',';
        for (const QByteArray& row : *table.rows)
            text += fields + row;
    }
    return text;
}

QByteArray json(const Listing& listing)
{
    QByteArrayList elements;
    for (const ListedTable& table : listing.tables) {
        const QByteArray members = "{\"id\":" + QByteArray::number(table.id) + ",\"broker\":"
            + QByteArray::number(table.broker) + ",\"trader\":" + QByteArray::number(table.trader) + ",\"cell\":";
        for (const QByteArray& row : *table.rows)
            elements << members + row + '}';
    }
    return "[\n" + elements.join(",\n") + "\n]\n";
}

} // namespace

QByteArray catalogue(const CatalogueRequest& request)
{
    const Listing listing(request);
    switch (request.form) {
    case CatalogueForm::Markdown:
        return markdown(listing, request.modules);
    case CatalogueForm::Csv:
        return csv(listing);
    case CatalogueForm::Json:
        return json(listing);
    }
    return {};
}

} // namespace replay
