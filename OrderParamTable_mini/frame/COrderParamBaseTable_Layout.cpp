#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/semantics/IdentitySets.h>

#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>

#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace TC {

int COrderParamBaseTable::placeStrip(int width, bool isPlaced)
{
    if (!m_btnList || !isPlaced)
        return 0;
    m_btnList->setGeometry(0, 0, width, m_btnList->height());
    return m_btnList->height();
}

void COrderParamBaseTable::placeScrollArea(QSize size, int top)
{
    if (!m_scrollArea || !m_table)
        return;
    const int room = size.height() - top;
    const bool scrolls = room < m_table->realHeight();
    m_table->setFixedWidth(std::max(scrolls ? width() - m_scrollArea->getScrollBarWidth() : size.width(), 0));
    m_scrollArea->setGeometry(0, top, size.width(), std::max(room, 0));
}

void COrderParamBaseTable::resetLayout(QSize size)
{
    const int top = placeStrip(size.width(), !kTablesWithUnplacedStrip.contains(m_id));
    placeScrollArea(size, top);
}

void COrderParamBaseTable::resizeEvent(QResizeEvent* event)
{
    WQ::CBaseWidget::resizeEvent(event);
    const int top = placeStrip(event->size().width(), !kTablesWithKeptStrip.contains(m_id));
    placeScrollArea(event->size(), top);
    resetLayout(size());
}

void COrderParamBaseTable::handleScaleChanged()
{
    if (!m_tableFontScale)
        return;
    if (m_table)
        m_table->scaleChanged();
    fitTableHeight();
    applyPanelSize();
}

void COrderParamBaseTable::fitTableHeight()
{
    if (m_table)
        m_table->setFixedHeight(m_table->realHeight());
}

void COrderParamBaseTable::themeChanged()
{
    update();
}

void COrderParamBaseTable::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(rect(), resourceColor(QStringLiteral("clr_order_operation_background")));
}

} // namespace TC
