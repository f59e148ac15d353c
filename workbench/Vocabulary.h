#pragma once

#include <QString>
#include <QStringView>

/// The host's words for the numbers it hands to the tables. The library takes any integer; these rows are the values
/// that mean something to it.
namespace workbench {

/// A value with its name in the source language; shown through translated().
struct NamedValue
{
    int value;
    const char* name;
};

/// A value with the text that the panel itself shows, which is never translated.
struct LabelledValue
{
    int value;
    QStringView label;
};

/// A constant list of rows.
template <class Row>
struct Rows
{
    const Row* first;
    int count;

    constexpr const Row* begin() const
    {
        return first;
    }
    constexpr const Row* end() const
    {
        return first + count;
    }
};

Rows<NamedValue> identities();
Rows<NamedValue> brokerTypes();
Rows<NamedValue> traderTypes();
Rows<NamedValue> orderTypes();
Rows<NamedValue> operationTypes();
Rows<NamedValue> creditOperations();
Rows<LabelledValue> priceTypes();

/// The cells of the order tables, and the rows of the credit table.
Rows<LabelledValue> cells();

/// The order-mode buttons: the library's and those that this host adds.
Rows<LabelledValue> modeButtons();

/// The feature modules that the library asks for, as "group/module".
Rows<const char*> featureModules();

/// The name in the language of the program.
QString translated(const char* name);

/// "VALUE  name", or the bare number for a value without a row.
QString valueWithName(const Rows<NamedValue>& rows, int value);

/// The label of the value; empty for a value without a row.
QString labelOf(const Rows<LabelledValue>& rows, int value);

} // namespace workbench
