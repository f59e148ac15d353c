#include "workbench/CompareRows.h"

#include "workbench/Vocabulary.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace workbench {

namespace {

using replay::Json;

QString textOf(const Json& json)
{
    if (json.is_null())
        return {};
    if (json.is_boolean())
        return json.get<bool>() ? QStringLiteral("✓") : QStringLiteral("✗");
    if (json.is_string())
        return QString::fromStdString(json.get_ref<const std::string&>());
    const QString number = QString::fromStdString(json.dump());
    return number.endsWith(QLatin1String(".0")) ? number.chopped(2) : number;
}

/// The text of a member, empty when there is none.
QString member(const Json& object, const char* name)
{
    const auto found = object.find(name);
    return found == object.end() ? QString() : textOf(*found);
}

QString valueText(const Json& cell)
{
    if (cell.contains("value"))
        return member(cell, "value");
    if (cell.contains("low"))
        return member(cell, "low") + member(cell, "separator") + member(cell, "high");
    if (cell.contains("start"))
        return member(cell, "start") + QLatin1Char('-') + member(cell, "end");
    return member(cell, "text");
}

QString limitsText(const Json& limits)
{
    if (!limits.contains("min"))
        return {};
    const QString range = member(limits, "min") + QStringLiteral(" … ") + member(limits, "max");
    const QString step = member(limits, "step");
    return step.isEmpty() ? range : range + QStringLiteral(" / ") + step;
}

QString unitsText(const Json& cell)
{
    if (!cell.contains("units"))
        return {};
    QStringList units;
    for (const Json& unit : cell["units"])
        units << member(unit, "text") + QStringLiteral(": ") + limitsText(unit);
    return units.join(QStringLiteral("; "));
}

QString entriesText(const Json& cell)
{
    if (!cell.contains("entries"))
        return {};
    QStringList entries;
    for (const Json& entry : cell["entries"])
        entries << textOf(entry[0]) + QLatin1Char('=') + textOf(entry[1]);
    return entries.join(QStringLiteral("; "));
}

QString buttonsText(const Json& table)
{
    QStringList buttons;
    for (const Json& button : table["buttons"])
        if (!button["hidden"].get<bool>())
            buttons << member(button, "text");
    return buttons.join(QStringLiteral("; "));
}

QString priceTypeText(const Json& table)
{
    const int type = table["priceType"].get<int>();
    return QStringLiteral("%1 %2").arg(type).arg(labelOf(priceTypes(), type)).trimmed();
}

QString orderTypeText(const Json& table)
{
    return valueWithName(orderTypes(), table["orderType"].get<int>());
}

struct KindName
{
    const char* kind;
    const char* name;
};

constexpr KindName kKindNames[] = {
    {"combo", QT_TRANSLATE_NOOP("workbench", "list")},
    {"number", QT_TRANSLATE_NOOP("workbench", "number")},
    {"checkNumber", QT_TRANSLATE_NOOP("workbench", "number with a box")},
    {"range", QT_TRANSLATE_NOOP("workbench", "range")},
    {"timePeriod", QT_TRANSLATE_NOOP("workbench", "period")},
    {"line", QT_TRANSLATE_NOOP("workbench", "line")},
    {"text", QT_TRANSLATE_NOOP("workbench", "text")},
};

QString kindText(const Json& cell)
{
    const QString kind = member(cell, "kind");
    for (const KindName& row : kKindNames)
        if (kind == QLatin1String(row.kind))
            return translated(row.name);
    return kind;
}

QString memberOf(const Json& table, const char* part, const char* name)
{
    return table[part].is_object() ? member(table[part], name) : QString();
}

struct Fact
{
    const char* what;
    QString (*text)(const Json& object);
};

// clang-format off
const Fact kTableFacts[] = {
    {QT_TRANSLATE_NOOP("workbench", "order type"),        orderTypeText},
    {QT_TRANSLATE_NOOP("workbench", "price type"),        priceTypeText},
    {QT_TRANSLATE_NOOP("workbench", "expanded"),          [](const Json& t) { return member(t, "expand"); }},
    {QT_TRANSLATE_NOOP("workbench", "mode strip hidden"), [](const Json& t) { return memberOf(t, "strip", "hidden"); }},
    {QT_TRANSLATE_NOOP("workbench", "mode buttons"),      buttonsText},
    {QT_TRANSLATE_NOOP("workbench", "help hidden"),       [](const Json& t) { return memberOf(t, "help", "hidden"); }},
    {QT_TRANSLATE_NOOP("workbench", "height of the cells"), [](const Json& t) { return memberOf(t, "grid", "realHeight"); }},
};

const Fact kCellFacts[] = {
    {QT_TRANSLATE_NOOP("workbench", "in the table"), [](const Json&) { return textOf(true); }},
    {QT_TRANSLATE_NOOP("workbench", "shown"),        [](const Json& c) { return member(c, "shown"); }},
    {QT_TRANSLATE_NOOP("workbench", "label"),        [](const Json& c) { return member(c, "label"); }},
    {QT_TRANSLATE_NOOP("workbench", "kind"),         kindText},
    {QT_TRANSLATE_NOOP("workbench", "value"),        valueText},
    {QT_TRANSLATE_NOOP("workbench", "unit"),         [](const Json& c) { return member(c, "unit"); }},
    {QT_TRANSLATE_NOOP("workbench", "limits"),       limitsText},
    {QT_TRANSLATE_NOOP("workbench", "units"),        unitsText},
    {QT_TRANSLATE_NOOP("workbench", "entries"),      entriesText},
    {QT_TRANSLATE_NOOP("workbench", "check"),        [](const Json& c) { return member(c, "checked"); }},
    {QT_TRANSLATE_NOOP("workbench", "editable"),     [](const Json& c) { return member(c, "editable"); }},
};
// clang-format on

const Json* cellOf(const Json& table, int id)
{
    for (const Json& cell : table["cells"])
        if (cell["id"].get<int>() == id)
            return &cell;
    return nullptr;
}

std::vector<int> cellsOf(const Json& left, const Json& right)
{
    std::vector<int> ids;
    for (const Json* table : {&left, &right})
        for (const Json& cell : (*table)["cells"])
            if (std::find(ids.begin(), ids.end(), cell["id"].get<int>()) == ids.end())
                ids.push_back(cell["id"].get<int>());
    return ids;
}

void appendCell(std::vector<CompareRow>& rows, int id, const Json* left, const Json* right)
{
    const QString label = member(left ? *left : *right, "label");
    for (const Fact& fact : kCellFacts) {
        const QString leftText = left ? fact.text(*left) : QString();
        const QString rightText = right ? fact.text(*right) : QString();
        // Not every kind of cell has every fact.
        if (!leftText.isEmpty() || !rightText.isEmpty())
            rows.push_back({id, label, fact.what, leftText, rightText, leftText != rightText});
    }
}

QString quoted(QString field)
{
    const bool isPlain = !field.contains(QLatin1Char(',')) && !field.contains(QLatin1Char('"'))
        && !field.contains(QLatin1Char('\n')) && !field.contains(QLatin1Char('\r'));
    if (isPlain)
        return field;
    return QLatin1Char('"') + field.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

QString onOneLine(QString field)
{
    for (const char mark : {'\t', '\n', '\r'})
        field.replace(QLatin1Char(mark), QLatin1Char(' '));
    return field;
}

QString separated(const std::vector<QStringList>& lines, QString (*written)(QString), QLatin1Char between,
                  QLatin1String end)
{
    QString text;
    for (QStringList fields : lines) {
        std::transform(fields.begin(), fields.end(), fields.begin(), written);
        text += fields.join(between) + end;
    }
    return text;
}

} // namespace

std::vector<CompareRow> compareTables(const Json& left, const Json& right)
{
    std::vector<CompareRow> rows;
    for (const Fact& fact : kTableFacts) {
        const QString leftText = fact.text(left);
        const QString rightText = fact.text(right);
        rows.push_back({0, QString(), fact.what, leftText, rightText, leftText != rightText});
    }
    for (const int id : cellsOf(left, right))
        appendCell(rows, id, cellOf(left, id), cellOf(right, id));
    return rows;
}

QString commaSeparated(const std::vector<QStringList>& lines)
{
    return separated(lines, quoted, QLatin1Char(','), QLatin1String("\r\n"));
}

QString tabSeparated(const std::vector<QStringList>& lines)
{
    return separated(lines, onOneLine, QLatin1Char('\t'), QLatin1String("\n"));
}

} // namespace workbench
