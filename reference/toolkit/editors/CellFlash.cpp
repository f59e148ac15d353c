#include "reference/toolkit/editors/CellFlash.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellInteraction.h"
#include "reference/toolkit/editors/Notice.h"

#include <QStyle>
#include <QTimerEvent>

#include <utility>

namespace WQ {

namespace {

// As long as it takes to see it, and to read a line.
constexpr int kLitMilliseconds = 700;
constexpr int kReadMilliseconds = 5000;

bool isNumber(const CellItem& cell)
{
    return cell.kind() == CellKind::Number || cell.kind() == CellKind::CheckNumber;
}

const NumberUnit& currentUnit(const CellItem& cell)
{
    return static_cast<const NumberCell&>(cell).currentUnit();
}

} // namespace

CellFlash::CellFlash(CMultiParamsTablePrivate& table)
    : m_table(table)
{
}

CellFlash::~CellFlash()
{
    delete m_notice;
}

void CellFlash::start(const CellItem& cell, const QString& text)
{
    stop();
    CMultiParamsTable* const table = m_table.table();
    m_cell = &cell;
    m_isLit = table->style()->styleHint(QStyle::SH_Widget_Animate, nullptr, table) != 0;
    m_timer.start(m_isLit ? kLitMilliseconds : kReadMilliseconds, this);
    m_table.update(cell);
    if (!m_notice)
        m_notice = new Notice(table);
    m_notice->tell(
        text, Notice::Kind::Remark, [this] { return m_cell ? m_table.rowRect(*m_cell) : QRect(); }, m_table.scale());
}

void CellFlash::stop()
{
    m_timer.stop();
    withdraw();
    dim();
    m_cell = nullptr;
}

void CellFlash::withdraw()
{
    if (m_notice)
        m_notice->withdraw();
}

void CellFlash::dim()
{
    if (std::exchange(m_isLit, false))
        m_table.update(*m_cell);
}

void CellFlash::follow()
{
    if (m_notice)
        m_notice->follow();
}

void CellFlash::themeChanged()
{
    if (m_notice)
        m_notice->update();
}

void CellFlash::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    if (!m_isLit) {
        stop();
        return;
    }
    dim();
    m_timer.start(kReadMilliseconds, this);
}

UnitSwitch::UnitSwitch(CMultiParamsTablePrivate& table, const CellItem& cell)
    : m_table(table)
    , m_cell(cell)
    , m_isSeen(isNumber(cell) && table.table()->isVisible() && table.model().isShown(cell))
{
    if (!m_isSeen)
        return;
    m_unit = currentUnit(cell);
    m_value = cell.number();
}

void UnitSwitch::tell() const
{
    const bool isSame = !m_isSeen || m_unit.text == m_cell.unit();
    if (isSame || !(m_cell.number() < m_value || m_cell.number() > m_value))
        return;
    m_table.interaction().flash(
        m_cell, m_cell.label() + QLatin1Char(' ') + boundedText(m_unit, m_value, currentUnit(m_cell), m_cell.number()));
}

} // namespace WQ
