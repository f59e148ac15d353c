#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellInteraction.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace WQ {

namespace {

constexpr int kLongestToolTip = 1000;

} // namespace

RowState CMultiParamsTablePrivate::rowState(const CellItem& cell) const
{
    RowState state;
    state.enabled = m_model->isEnabled() && m_table->isEnabled();
    const QWidget* focus = QApplication::focusWidget();
    state.focus = focus && currentCell() == &cell && (focus == m_table || m_table->isAncestorOf(focus));
    if (m_interaction)
        m_interaction->addRowState(cell, state);
    return state;
}

QString CMultiParamsTablePrivate::elidedTexts(const CellItem& cell) const
{
    const RowLayout layout = layoutOf(cell);
    QStringList full;
    if (layout.labelText != cell.label())
        full << cell.label();
    if (layout.checkText != cell.checkText())
        full << cell.checkText();
    if (layout.valueText != cell.displayText() || layout.unitText != cell.unit())
        full << (cell.displayText() + QLatin1Char(' ') + cell.unit()).trimmed();
    return layout.elided ? full.join(QLatin1Char('\n')) : QString();
}

QString CMultiParamsTablePrivate::toolTipOf(const CellItem& cell) const
{
    QStringList lines{elidedTexts(cell), cell.offGridText()};
    lines.removeAll(QString());
    const QString text = lines.join(QLatin1Char('\n'));
    return text.size() <= kLongestToolTip ? text : text.left(kLongestToolTip) + QChar(0x2026);
}

void CMultiParamsTablePrivate::paint(QPaintEvent* event)
{
    QPainter painter(m_table->viewport());
    const QRect dirty = event->rect();
    const int rows = m_model->rowCount();
    const int column = labelColumn();
    for (int row = 0; row < rows; ++row) {
        const QRect rect = rowRect(row);
        if (!rect.intersects(dirty))
            continue;
        const CellItem& cell = *m_model->cellAtRow(row);
        paintRow(painter, rect, cell, layoutRow(cell, rect, m_metrics, column), m_metrics, rowState(cell));
    }
    const QRect footer = footerRect();
    if (footer.intersects(dirty)) {
        FooterState state = m_interaction ? m_interaction->footerState() : FooterState();
        state.enabled = isFilterEnabled();
        state.active = !m_model->visibleSet().isEmpty();
        paintFooter(painter, footer, m_metrics, state);
    }
    const int end = rows * m_metrics.rowHeight - m_table->verticalScrollBar()->value() + footer.height();
    const QRect ground = m_table->viewport()->rect().adjusted(0, end, 0, 0);
    if (ground.isValid() && ground.intersects(dirty))
        paintGround(painter, ground);
}

} // namespace WQ
