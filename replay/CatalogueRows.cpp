#include "replay/CatalogueRows.h"

#include <QtCore/QByteArrayList>

namespace replay {

namespace {

QByteArray textOf(const Json& text)
{
    return QByteArray::fromStdString(text.get_ref<const std::string&>());
}

/// A number as a person writes it: 100, not 100.0.
QByteArray numberText(const Json& number)
{
    QByteArray text = number.is_string() ? textOf(number) : QByteArray::fromStdString(number.dump());
    if (text.endsWith(".0"))
        text.chop(2);
    return text;
}

QByteArray dataText(const Json& data)
{
    return data.is_string() ? textOf(data) : QByteArray::fromStdString(data.dump());
}

QByteArray typeText(int type)
{
    constexpr int kInt = 2;
    constexpr int kDouble = 6;
    return type == kInt ? "int" : type == kDouble ? "double" : QByteArray::number(type);
}

/// Which values fit: "100..1000000 step 100".
QByteArray limitsText(const Json& limits)
{
    QByteArray text = numberText(limits["min"]) + ".." + numberText(limits["max"]);
    if (limits.contains("step") && !limits["step"].is_null())
        text += " step " + numberText(limits["step"]);
    return text;
}

QByteArray valueText(const Json& cell)
{
    if (cell.contains("value"))
        return numberText(cell["value"]);
    if (cell.contains("low"))
        return numberText(cell["low"]) + textOf(cell["separator"]) + numberText(cell["high"]);
    if (cell.contains("start"))
        return textOf(cell["start"]) + '-' + textOf(cell["end"]);
    return textOf(cell["text"]);
}

QByteArray checkText(const Json& cell)
{
    if (!cell.contains("checked"))
        return {};
    return (cell["checked"].get<bool>() ? "[x] " : "[ ] ") + textOf(cell["checkText"]);
}

/// All units, the current one first as it is after construction: "% (double 0..100 step 0.01); 元 (double 0..1000000)".
QByteArray unitsText(const Json& cell)
{
    if (!cell.contains("units"))
        return cell.contains("min") ? textOf(cell["unit"]) + " (" + limitsText(cell) + ')' : QByteArray();
    QByteArrayList units;
    for (const Json& unit : cell["units"])
        units << textOf(unit["text"]) + " (" + typeText(unit["type"]) + ' ' + limitsText(unit) + ')';
    return units.join("; ");
}

QByteArray entriesText(const Json& cell)
{
    if (!cell.contains("entries"))
        return {};
    QByteArrayList entries;
    for (const Json& entry : cell["entries"])
        entries << textOf(entry[0]) + '=' + dataText(entry[1]);
    return entries.join("; ");
}

struct Column
{
    const char* name;
    QByteArray (*text)(const Json& cell);
};

// clang-format off
const Column kColumns[] = {
    {"cell",    [](const Json& cell) { return numberText(cell["id"]); }},
    {"kind",    [](const Json& cell) { return textOf(cell["kind"]); }},
    {"label",   [](const Json& cell) { return textOf(cell["label"]); }},
    {"value",   valueText},
    {"check",   checkText},
    {"units",   unitsText},
    {"entries", entriesText},
    {"hidden",  [](const Json& cell) { return QByteArray(cell["hidden"].get<bool>() ? "hidden" : ""); }},
};
// clang-format on

QByteArray csvField(QByteArray text)
{
    const bool isPlain = !text.contains(',') && !text.contains('"') && !text.contains('\n') && !text.contains('\r');
    return isPlain ? text : '"' + text.replace("\"", "\"\"") + '"';
}

QByteArray markdownField(QByteArray text)
{
    return text.replace('\\', "\\\\").replace('|', "\\|").replace('\r', "").replace('\n', " ");
}

} // namespace

QByteArray markdownHead()
{
    QByteArray names = "|";
    QByteArray line = "|";
    for (const Column& column : kColumns) {
        names += ' ' + QByteArray(column.name) + " |";
        line += "---|";
    }
    return names + '\n' + line + '\n';
}

QByteArray markdownRow(const Json& cell)
{
    QByteArray row = "|";
    for (const Column& column : kColumns)
        row += ' ' + markdownField(column.text(cell)) + " |";
    return row + '\n';
}

QByteArray csvHead()
{
    QByteArrayList names = {"id", "broker", "trader"};
    for (const Column& column : kColumns)
        names << column.name;
    return names.join(',') + "\r\n";
}

QByteArray csvRow(const Json& cell)
{
    QByteArrayList fields;
    for (const Column& column : kColumns)
        fields << csvField(column.text(cell));
    return fields.join(',') + "\r\n";
}

} // namespace replay
