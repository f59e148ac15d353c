#include "reference/toolkit/editors/EditRules.h"

#include "reference/toolkit/Wording.h"
#include "reference/toolkit/cells/NumberCell.h"
#include "reference/toolkit/cells/ValueCells.h"
#include "reference/toolkit/editors/TimeTexts.h"

#include <QTime>

namespace WQ {

namespace {

Judgement wrong(const CellItem& cell, const QString& why)
{
    Judgement judgement;
    judgement.message = cell.label() + QLatin1Char(' ') + why;
    return judgement;
}

Judgement right()
{
    Judgement judgement;
    judgement.ok = true;
    return judgement;
}

SteppedField whole(const QString& text)
{
    return {text, 0, text.size()};
}

SteppedField steppedNumber(const NumberUnit& unit, const QString& typed, double held, int steps)
{
    const double from = typedNumber(typed).value_or(held);
    return whole(numberText(unit, boundedNumber(unit, from + steps * stepOf(unit))));
}

// One line a cell: numbers.

const NumberCell& asNumber(const CellItem& cell)
{
    return static_cast<const NumberCell&>(cell);
}

Draft textDraft(const CellItem& cell)
{
    return {{cell.text()}};
}

Judgement judgeNumberDraft(const CellItem& cell, const Draft& draft)
{
    return asNumber(cell).judge(draft.texts.at(0));
}

bool storeNumber(CellItem& cell, const Draft& draft)
{
    return cell.setNumber(judgeNumberDraft(cell, draft).value);
}

std::optional<SteppedField> stepNumber(const CellItem& cell, const Draft& draft, int, int, int steps)
{
    return steppedNumber(asNumber(cell).currentUnit(), draft.texts.at(0), cell.number(), steps);
}

// Ranges.

const RangeCell& asRange(const CellItem& cell)
{
    return static_cast<const RangeCell&>(cell);
}

Draft rangeDraft(const CellItem& cell)
{
    const RangeCell& range = asRange(cell);
    return {{numberText(range.limits(), range.low()), numberText(range.limits(), range.high())}};
}

Judgement judgeRange(const CellItem& cell, const Draft& draft)
{
    return asRange(cell).judge(draft.texts.at(0), draft.texts.at(1));
}

bool storeRange(CellItem& cell, const Draft& draft)
{
    const std::optional<double> low = typedNumber(draft.texts.at(0));
    const std::optional<double> high = typedNumber(draft.texts.at(1));
    return low && high && static_cast<RangeCell&>(cell).setRange(*low, *high);
}

std::optional<SteppedField> stepRange(const CellItem& cell, const Draft& draft, int field, int, int steps)
{
    const RangeCell& range = asRange(cell);
    return steppedNumber(range.limits(), draft.texts.at(field), field == 0 ? range.low() : range.high(), steps);
}

// Time periods.

const PeriodCell& asPeriod(const CellItem& cell)
{
    return static_cast<const PeriodCell&>(cell);
}

int secondsOf(QTime time)
{
    return QTime(0, 0).secsTo(time);
}

Draft clockDraft(const PeriodCell& period)
{
    return {{times::secondsText(secondsOf(period.start())), times::secondsText(secondsOf(period.end()))},
            TimeRangeClock};
}

Draft periodDraft(const CellItem& cell)
{
    const PeriodCell& period = asPeriod(cell);
    if (period.rangeType() == TimeRangeClock)
        return clockDraft(period);
    return {{times::secondsText(period.elapse())}, TimeRangeDuration};
}

Judgement judgePeriod(const CellItem& cell, const Draft& draft)
{
    if (draft.period == TimeRangeDuration)
        return times::typedSeconds(draft.texts.at(0)) ? right()
                                                      : wrong(cell, wording("不是时长（00:00:00 – 24:00:00）"));
    return times::typedTime(draft.texts.at(0)) && times::typedTime(draft.texts.at(1))
        ? right()
        : wrong(cell, wording("不是时间（00:00:00 – 23:59:59）"));
}

bool storePeriod(CellItem& cell, const Draft& draft)
{
    auto& period = static_cast<PeriodCell&>(cell);
    if (draft.period == TimeRangeDuration)
        return period.setDuration(times::typedSeconds(draft.texts.at(0)).value_or(period.elapse()));
    return period.setClock(times::typedTime(draft.texts.at(0)).value_or(period.start()),
                           times::typedTime(draft.texts.at(1)).value_or(period.end()));
}

// A time of day goes round; a duration stops at its ends.
std::optional<SteppedField> stepPeriod(const CellItem& cell, const Draft& draft, int field, int cursor, int steps)
{
    const Draft held = draft.period == asPeriod(cell).rangeType() ? periodDraft(cell) : draft;
    const std::optional<int> typed = times::typedSeconds(draft.texts.at(field));
    const int from = typed.value_or(times::typedSeconds(held.texts.at(field)).value_or(0));
    const times::Section section = times::sectionAt(draft.texts.at(field), cursor);
    int seconds = from + steps * section.seconds;
    if (draft.period == TimeRangeClock)
        seconds = (seconds % times::kSecondsPerDay + times::kSecondsPerDay) % times::kSecondsPerDay;
    return SteppedField{times::secondsText(seconds), section.start, section.length};
}

// Texts.

Judgement judgeLine(const CellItem& cell, const Draft& draft)
{
    return static_cast<const LineCell&>(cell).accepts(draft.texts.at(0)) ? right() : wrong(cell, wording("格式不符"));
}

Judgement judgeText(const CellItem&, const Draft&)
{
    return right();
}

bool storeText(CellItem& cell, const Draft& draft)
{
    return cell.setText(draft.texts.at(0));
}

std::optional<SteppedField> noSteps(const CellItem&, const Draft&, int, int, int)
{
    return std::nullopt;
}

struct EditKind
{
    CellKind kind;
    Draft (*start)(const CellItem&);
    Judgement (*judge)(const CellItem&, const Draft&);
    bool (*store)(CellItem&, const Draft&);
    std::optional<SteppedField> (*step)(const CellItem&, const Draft&, int field, int cursor, int steps);
};

// clang-format off
constexpr EditKind kEditKinds[] = {
    {CellKind::Number,      textDraft,   judgeNumberDraft, storeNumber, stepNumber},
    {CellKind::CheckNumber, textDraft,   judgeNumberDraft, storeNumber, stepNumber},
    {CellKind::Range,       rangeDraft,  judgeRange,       storeRange,  stepRange},
    {CellKind::TimePeriod,  periodDraft, judgePeriod,      storePeriod, stepPeriod},
    {CellKind::Line,        textDraft,   judgeLine,        storeText,   noSteps},
    {CellKind::Text,        textDraft,   judgeText,        storeText,   noSteps},
};
// clang-format on

const EditKind* editKind(CellKind kind)
{
    for (const EditKind& row : kEditKinds) {
        if (row.kind == kind)
            return &row;
    }
    return nullptr;
}

// A draft with fewer texts than the cell has fields is no draft of it.
bool fits(const CellItem& cell, const Draft& draft)
{
    const bool two =
        cell.kind() == CellKind::Range || (cell.kind() == CellKind::TimePeriod && draft.period == TimeRangeClock);
    return draft.texts.size() == (two ? 2 : 1);
}

} // namespace

bool hasFields(CellKind kind)
{
    return editKind(kind) != nullptr;
}

Draft draftOf(const CellItem& cell)
{
    const EditKind* kind = editKind(cell.kind());
    return kind ? kind->start(cell) : Draft();
}

Draft switchedPeriod(const CellItem& cell, const Draft& draft)
{
    if (cell.kind() != CellKind::TimePeriod || !fits(cell, draft))
        return draft;
    if (draft.period == TimeRangeDuration)
        return clockDraft(asPeriod(cell));
    const std::optional<int> start = times::typedSeconds(draft.texts.at(0));
    const std::optional<int> end = times::typedSeconds(draft.texts.at(1));
    int length = start && end ? *end - *start : asPeriod(cell).elapse();
    if (length < 0)
        length += times::kSecondsPerDay;
    return {{times::secondsText(length)}, TimeRangeDuration};
}

Judgement judgeDraft(const CellItem& cell, const Draft& draft)
{
    const EditKind* kind = editKind(cell.kind());
    return kind && fits(cell, draft) ? kind->judge(cell, draft) : Judgement();
}

bool storeDraft(CellItem& cell, const Draft& draft)
{
    return judgeDraft(cell, draft).ok && editKind(cell.kind())->store(cell, draft);
}

std::optional<SteppedField> stepField(const CellItem& cell, const Draft& draft, int field, int cursor, int steps)
{
    const EditKind* kind = editKind(cell.kind());
    if (!kind || !fits(cell, draft) || field < 0 || field >= draft.texts.size())
        return std::nullopt;
    return kind->step(cell, draft, field, cursor, steps);
}

} // namespace WQ
