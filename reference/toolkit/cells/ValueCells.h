#pragma once

#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/NumberRules.h"

#include <WQ/ToolkitTypes.h>

#include <QPair>
#include <QTime>

namespace WQ {

/// Two numbers, the lower first, with a separator between them.
class WQ_EXPORT RangeCell : public CellItem
{
public:
    RangeCell(int id, QString label, NumberUnit unit, double low, double high, QString separator);

    double low() const
    {
        return m_low;
    }

    double high() const
    {
        return m_high;
    }

    /// What it was made with.
    QPair<double, double> initialRange() const
    {
        return {m_initialLow, m_initialHigh};
    }

    const QString& separator() const
    {
        return m_separator;
    }

    const NumberUnit& limits() const
    {
        return m_unit;
    }

    /// Bounds both; when the higher would fall below the lower, it follows it.
    bool setRange(double low, double high);

    /// Judges both texts; the message is that of the first wrong one, or that the lower is the higher, else what
    /// offGridText() says of such numbers.
    Judgement judge(const QString& typedLow, const QString& typedHigh) const;

    QString text() const override;
    QString displayText() const override;
    QString unit() const override;

    /// The lower number.
    double number() const override;

    /// Sets the lower number and takes the higher along when it would fall below.
    bool setNumber(double value) override;
    bool setText(const QString& text) override;
    double minimum() const override;
    double maximum() const override;
    bool setLimits(double min, double max) override;
    bool setUnit(const QString& unit) override;
    bool setUnit(const QString& unit, double min, double max, double step, bool makeCurrent) override;
    bool setTick(const QString& unit, double step) override;
    QString rangeText() const override;

    /// Of both numbers, each named where one of them stands.
    QString offGridText() const override;

private:
    NumberUnit m_unit;
    QString m_separator;
    double m_low;
    double m_high;
    const double m_initialLow;
    const double m_initialHigh;
};

/// A period: from one time of day to another (a clock range), or a length of time (a duration).
class WQ_EXPORT PeriodCell : public CellItem
{
public:
    /// An invalid time is midnight.
    PeriodCell(int id, QString label, QTime start, QTime end);

    QTime start() const
    {
        return m_start;
    }

    QTime end() const
    {
        return m_end;
    }

    /// The clock range it was made with.
    QPair<QTime, QTime> initialClock() const
    {
        return {m_initialStart, m_initialEnd};
    }

    EWqTimeRangeType rangeType() const
    {
        return m_type;
    }

    /// Seconds: the duration, or end less start; an end before its start is on the next day.
    int elapse() const;

    /// Makes it a clock range. An invalid time changes nothing.
    bool setClock(QTime start, QTime end);

    /// Makes it a duration of 0 to 86400 seconds; others are bounded.
    bool setDuration(int seconds);

    /// Start and end as seconds since the epoch, on the day on which @p now lies.
    QPair<int, int> epochRange(qint64 now) const;

    QString text() const override;
    QString displayText() const override;

    /// Takes "HH:MM:SS-HH:MM:SS".
    bool setText(const QString& text) override;

private:
    QTime m_start;
    QTime m_end;
    const QTime m_initialStart;
    const QTime m_initialEnd;
    int m_duration = 0;
    EWqTimeRangeType m_type = TimeRangeClock;
};

/// A line of text, judged by a pattern while a person types it.
class WQ_EXPORT LineCell : public CellItem
{
public:
    LineCell(int id, QString label, QString text, QString pattern, QString placeholder);

    const QString& pattern() const
    {
        return m_pattern;
    }

    /// What it was made with.
    const QString& initialText() const
    {
        return m_initial;
    }

    const QString& placeholder() const
    {
        return m_placeholder;
    }

    /// Whether the whole of @p typed matches the pattern. No pattern, and one that is no regular expression, accepts
    /// all.
    bool accepts(const QString& typed) const;

    QString text() const override;

    /// Not judged: what a host sets is shown.
    bool setText(const QString& text) override;

private:
    QString m_text;
    const QString m_initial;
    QString m_pattern;
    QString m_placeholder;
};

/// A text with a unit, shown and not computed with (value type 10).
class WQ_EXPORT TextCell : public CellItem
{
public:
    TextCell(int id, QString label, QString unit);

    QString text() const override;

    /// Grouped when it is a number and has a unit: a code is no quantity.
    QString displayText() const override;
    QString unit() const override;

    /// The number that the text is, else 0.
    double number() const override;
    bool setNumber(double value) override;
    bool setText(const QString& text) override;
    bool setUnit(const QString& unit) override;
    bool setUnit(const QString& unit, double min, double max, double step, bool makeCurrent) override;

private:
    QString m_text;
    QString m_unit;
};

} // namespace WQ
