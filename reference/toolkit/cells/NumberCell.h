#pragma once

#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/NumberRules.h"

#include <QVector>

namespace WQ {

/// A number with one unit or several, each with limits of its own, and perhaps a check box (kind CheckNumber).
class WQ_EXPORT NumberCell : public CellItem
{
public:
    /// @p units holds at least one unit; the first is current. Not-a-number counts as 0.
    NumberCell(int id, QString label, QVector<NumberUnit> units, double value);

    /// With a check box.
    NumberCell(int id, QString label, QString checkText, bool checked, QVector<NumberUnit> units, double value);

    const QVector<NumberUnit>& units() const
    {
        return m_units;
    }

    const NumberUnit& currentUnit() const
    {
        return m_units.at(m_current);
    }

    int currentUnitIndex() const
    {
        return m_current;
    }

    /// What it was made with, in the first of its units.
    double initialNumber() const
    {
        return m_initial;
    }

    bool isInitiallyChecked() const
    {
        return m_initiallyChecked;
    }

    /// Makes that unit current, keeps the number and bounds it into the unit's range.
    bool setCurrentUnit(int index);

    /// The number as an editor starts with it: as text().
    QString text() const override;
    QString displayText() const override;
    QString unit() const override;
    bool hasChevron() const override;
    QVariant data() const override;
    double number() const override;
    bool setNumber(double value) override;
    bool setText(const QString& text) override;
    QString checkText() const override;
    bool isChecked() const override;
    bool setChecked(bool checked) override;
    double minimum() const override;
    double maximum() const override;
    bool setLimits(double min, double max) override;
    bool setUnit(const QString& unit) override;
    bool setUnit(const QString& unit, double min, double max, double step, bool makeCurrent) override;
    bool setTick(const QString& unit, double step) override;
    QString rangeText() const override;
    QString offGridText() const override;

    /// What becomes of a typed text in the current unit.
    Judgement judge(const QString& typed) const;

private:
    int indexOfUnit(const QString& unit) const;
    bool bound();

    QVector<NumberUnit> m_units;
    QString m_checkText;
    double m_value;
    double m_initial;
    int m_current = 0;
    bool m_checked = false;
    bool m_initiallyChecked = false;
};

} // namespace WQ
