#pragma once

#include "reference/toolkit/cells/NumberRules.h"

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

namespace WQ {

class CMultiParamsTablePrivate;
class CellItem;
class Notice;

/// The highlight of a cell whose number was bounded, and the notice beside it that says so. One a table, made when
/// first needed; a table shows one at a time. Without the highlight where the style animates nothing.
class CellFlash : public QObject
{
    Q_OBJECT
public:
    explicit CellFlash(CMultiParamsTablePrivate& table);
    ~CellFlash() override;

    /// @p cell must outlive this.
    void start(const CellItem& cell, const QString& text);
    void stop();

    /// Takes the notice away; the highlight ends by itself.
    void withdraw();

    void follow();
    void themeChanged();

    bool isLit(const CellItem& cell) const
    {
        return m_isLit && &cell == m_cell;
    }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void dim();

    CMultiParamsTablePrivate& m_table;
    QPointer<Notice> m_notice;
    QBasicTimer m_timer;
    const CellItem* m_cell = nullptr;
    bool m_isLit = false;
};

/// What a switch of a cell's unit does to its number: made before the switch, asked to tell after it.
class UnitSwitch
{
public:
    UnitSwitch(CMultiParamsTablePrivate& table, const CellItem& cell);

    /// Flashes the cell of a table that is seen, when its number had to be bounded.
    void tell() const;

private:
    CMultiParamsTablePrivate& m_table;
    const CellItem& m_cell;
    const bool m_isSeen;
    NumberUnit m_unit;
    double m_value = 0;
};

} // namespace WQ
