#pragma once

#include <WQ/WqExport.h>

#include <QString>
#include <QVariant>

namespace WQ {

enum class CellKind { Combo, Number, CheckNumber, Range, TimePeriod, Line, Text };

/// What a person sees change in a cell.
enum class CellChange : unsigned char {
    None,
    Value, ///< the value's text alone: neither unit, label, check nor look
    All
};

/// What one cell of the table holds: its value, how it is written and which changes it takes. No widget, no QObject.
///
/// Functions that set answer whether anything that a person sees has changed, so that the caller can repaint or
/// announce; limits alone are not seen. A kind that lacks what is asked for answers nothing and takes nothing. The
/// kinds are in ValueCells.h, NumberCell.h and ComboCell.h; kind() says which class a cell is: Number and CheckNumber
/// are NumberCell, each other kind has the class of its name.
class WQ_EXPORT CellItem
{
public:
    CellItem(CellKind kind, int id, QString label);
    CellItem(const CellItem&) = delete;
    CellItem& operator=(const CellItem&) = delete;
    virtual ~CellItem();

    int id() const
    {
        return m_id;
    }

    CellKind kind() const
    {
        return m_kind;
    }

    const QString& label() const
    {
        return m_label;
    }

    bool setLabel(QString label);

    /// As set by program; whether the person sees the cell is the model's to say (CellModel::isShown()).
    bool isHidden() const
    {
        return m_hidden;
    }

    bool setHidden(bool hidden);

    bool isEditable() const
    {
        return m_editable;
    }

    bool setEditable(bool editable);

    /// The value as the table answers it: no grouping, no unit.
    virtual QString text() const = 0;

    /// The value as it is painted beside its unit: digits grouped.
    virtual QString displayText() const;

    /// The text of the current unit; empty without a unit.
    virtual QString unit() const;

    /// Whether a list of entries or units opens below the cell.
    virtual bool hasChevron() const;

    virtual QVariant data() const;
    virtual double number() const;

    /// Takes any number but not-a-number, bounded as the cell's range says.
    virtual bool setNumber(double value);

    /// Takes a text of the form that text() answers.
    virtual bool setText(const QString& text);

    /// Label of the check box; empty without one.
    virtual QString checkText() const;
    virtual bool isChecked() const;
    virtual bool setChecked(bool checked);

    virtual double minimum() const;
    virtual double maximum() const;
    virtual bool setLimits(double min, double max);

    /// The operations of the same names of CMultiParamsTable.
    virtual bool setUnit(const QString& unit);
    virtual bool setUnit(const QString& unit, double min, double max, double step, bool makeCurrent);
    virtual bool setTick(const QString& unit, double step);

    /// What the current unit lets a person type; empty for a value without limits.
    virtual QString rangeText() const;

    /// Why the value is marked as off its grid, with the nearest grid values; empty when it is not.
    virtual QString offGridText() const;

    /// What the model announces while its views hear of changed data.
    CellChange announcedChange() const
    {
        return m_announced;
    }

private:
    friend class CellModel;

    QString m_label;
    const int m_id;
    const CellKind m_kind;
    bool m_hidden = false;
    bool m_editable = true;
    CellChange m_touched = CellChange::None; // since the model last told its views
    CellChange m_announced = CellChange::None;
};

} // namespace WQ
