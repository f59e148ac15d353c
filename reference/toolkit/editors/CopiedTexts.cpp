#include "reference/toolkit/editors/CopiedTexts.h"

#include "reference/toolkit/Wording.h"
#include "reference/toolkit/cells/CellModel.h"
#include "reference/toolkit/cells/ComboCell.h"
#include "reference/toolkit/cells/ValueCells.h"
#include "reference/toolkit/editors/TimeTexts.h"

#include <algorithm>

namespace WQ {

namespace {

// Two numbers or times are shorter; what is longer is not searched for its middle.
constexpr int kLongestPair = 200;

constexpr QChar kDashes[] = {QLatin1Char('-'), QChar(0x2013), QLatin1Char('~'), QChar(0x81F3)};

bool isTypedNumber(const QString& text)
{
    return typedNumber(text).has_value();
}

bool isTypedTime(const QString& text)
{
    return times::typedSeconds(text).has_value();
}

// The first place where both halves are values: a dash may be the sign of a number.
QStringList halves(const QString& text, const QString& separator, bool (*isValue)(const QString&))
{
    if (text.size() > kLongestPair)
        return {text};
    QStringList dashes{separator.trimmed()};
    for (const QChar dash : kDashes)
        dashes << QString(dash);
    dashes.removeAll(QString());
    for (const QString& dash : qAsConst(dashes)) {
        for (int at = text.indexOf(dash, 1); at > 0; at = text.indexOf(dash, at + 1)) {
            const QStringList found{text.left(at).trimmed(), text.mid(at + dash.size()).trimmed()};
            if (isValue(found.at(0)) && isValue(found.at(1)))
                return found;
        }
    }
    return {text};
}

QString withoutLastBreak(QString text)
{
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('\r')))
        text.chop(1);
    return text;
}

bool isBreak(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

Judgement wrong(const CellItem& cell, const QString& why)
{
    Judgement judgement;
    judgement.message = cell.label() + QLatin1Char(' ') + why;
    return judgement;
}

Judgement judgeEntry(const CellItem& cell, const QString& text)
{
    if (pastedEntry(cell, text) < 0)
        return wrong(cell, wording("没有这个选项"));
    Judgement judgement;
    judgement.ok = true;
    return judgement;
}

} // namespace

QString columnText(const QString& text)
{
    QString column = text;
    for (QChar& c : column) {
        if (isBreak(c))
            c = QLatin1Char(' ');
    }
    return column.trimmed();
}

QString copiedValue(const CellItem& cell)
{
    const bool isDuration =
        cell.kind() == CellKind::TimePeriod && static_cast<const PeriodCell&>(cell).rangeType() == TimeRangeDuration;
    return isDuration ? draftOf(cell).texts.at(0) : cell.text();
}

QString copiedCell(const CellItem& cell)
{
    return columnText(cell.label()) + QLatin1Char('\t') + columnText(copiedValue(cell));
}

QString copiedCells(const CellModel& model)
{
    QStringList lines;
    const int rows = model.rowCount();
    for (int row = 0; row < rows; ++row) {
        const CellItem& cell = *model.cellAtRow(row);
        lines << copiedCell(cell) + QLatin1Char('\t') + columnText(cell.unit());
    }
    return lines.join(QLatin1Char('\n'));
}

Draft pastedDraft(const CellItem& cell, const QString& text)
{
    const QString plain = withoutLastBreak(text);
    if (cell.kind() == CellKind::Range) {
        const QStringList found =
            halves(asciiTwins(plain), static_cast<const RangeCell&>(cell).separator(), isTypedNumber);
        return {{found.at(0), found.value(1)}};
    }
    if (cell.kind() == CellKind::TimePeriod) {
        const QStringList found = halves(asciiTwins(plain), QString(), isTypedTime);
        const bool isDuration = found.size() == 1 && isTypedTime(found.at(0));
        return isDuration ? Draft{found, TimeRangeDuration} : Draft{{found.at(0), found.value(1)}, TimeRangeClock};
    }
    return {{plain}};
}

int pastedEntry(const CellItem& cell, const QString& text)
{
    if (cell.kind() != CellKind::Combo)
        return -1;
    const auto& combo = static_cast<const ComboCell&>(cell);
    const QString wanted = withoutLastBreak(text);
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.entryText(i) == wanted)
            return i;
    }
    return -1;
}

Judgement judgePasted(const CellItem& cell, const QString& text)
{
    if (cell.kind() == CellKind::Combo)
        return judgeEntry(cell, text);
    const Draft draft = pastedDraft(cell, text);
    const QString& first = draft.texts.at(0);
    const bool isText = cell.kind() == CellKind::Line || cell.kind() == CellKind::Text;
    // An editor is one line of so many characters: it cuts off and joins what a paste refuses.
    if (isText && first.size() > kLongestTyped)
        return wrong(cell, wording("文字过长（最多 %1 个字符）").arg(kLongestTyped));
    if (isText && std::any_of(first.begin(), first.end(), isBreak))
        return wrong(cell, wording("不能含有换行或制表符"));
    return judgeDraft(cell, draft);
}

} // namespace WQ
