#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/editors/CellInteraction.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

double tableScale(bool fontScale)
{
    return fontScale ? resources::scale() : 1.0;
}

} // namespace

CMultiParamsTablePrivate::CMultiParamsTablePrivate(CMultiParamsTable* table, bool fontScale)
    : m_table(table)
    , m_model(new CellModel(table))
    , m_metrics(tableScale(fontScale))
    , m_fontScale(fontScale)
{
}

CMultiParamsTablePrivate::~CMultiParamsTablePrivate() = default;

// The headers stay hidden: they hold row heights and column widths for whoever asks Qt's own way. They get no model,
// which would cost the table more than all the rest of its making: their sections are told to them (placeSections()).
void CMultiParamsTablePrivate::setUpView()
{
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setFocusPolicy(Qt::StrongFocus);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    // Only the layout of shown headers would take Qt's corner button away, and that is never made.
    if (auto* corner = m_table->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        corner->hide();
    m_table->setTabKeyNavigation(false);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_table->viewport()->setMouseTracking(true);
    m_table->horizontalHeader()->hide();
    m_table->horizontalHeader()->setMinimumSectionSize(0);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setMinimumSectionSize(0);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    takeRowHeight();
    m_table->QAbstractItemView::setModel(m_model);
    placeSections();
    connectModel();
}

void CMultiParamsTablePrivate::connectModel()
{
    m_model->setToolTipSource([this](const CellItem& cell) { return toolTipOf(cell); });
    QObject::connect(m_model, &CellModel::filterChanged, m_table, [this] { filterChanged(); });
    QObject::connect(m_model, &CellModel::filterLookChanged, m_table, [this] { updateFooter(); });
    QObject::connect(m_model, &CellModel::rowsReplaced, m_table, [this] {
        m_painted.clear();
        placeRows();
        takeNeededHeight();
        layout();
        m_table->viewport()->update();
    });
    QHeaderView* const header = m_table->horizontalHeader();
    QObject::connect(header, &QHeaderView::sectionResized, m_table, [this](int column, int, int width) {
        if (column != CellModel::LabelColumn)
            return;
        m_hostColumn = width;
        placeColumns();
        m_table->viewport()->update();
    });
    // A header that is polished anew asks the model that it lacks.
    for (QHeaderView* one : {header, m_table->verticalHeader()})
        QObject::connect(one, &QHeaderView::sectionCountChanged, m_table, [this] { placeSections(); });
}

CellInteraction& CMultiParamsTablePrivate::interaction()
{
    if (!m_interaction)
        m_interaction = std::make_unique<CellInteraction>(*this);
    return *m_interaction;
}

int CMultiParamsTablePrivate::add(std::unique_ptr<CMultiParamsTableItem> item)
{
    const int position = m_model->add(std::move(item));
    if (position >= 0)
        m_widestLabel = -1;
    return position;
}

int CMultiParamsTablePrivate::rowTop(int row) const
{
    return row * m_metrics.rowHeight - m_table->verticalScrollBar()->value();
}

QRect CMultiParamsTablePrivate::rowRect(int row) const
{
    if (row < 0 || row >= m_model->rowCount())
        return QRect();
    return QRect(0, rowTop(row), m_table->viewport()->width(), m_metrics.rowHeight);
}

QRect CMultiParamsTablePrivate::rowRect(const CellItem& cell) const
{
    return rowRect(m_model->rowOf(cell.id()));
}

int CMultiParamsTablePrivate::rowAt(const QPoint& position) const
{
    const int y = position.y() + m_table->verticalScrollBar()->value();
    const int row = y < 0 ? -1 : y / m_metrics.rowHeight;
    return rowRect(row).contains(position) ? row : -1;
}

CellItem* CMultiParamsTablePrivate::cellAt(const QPoint& position) const
{
    return m_model->cellAtRow(rowAt(position));
}

RowLayout CMultiParamsTablePrivate::layoutOf(const CellItem& cell) const
{
    return layoutRow(cell, rowRect(cell), m_metrics, labelColumn());
}

QRect CMultiParamsTablePrivate::footerRect() const
{
    if (!m_footerVisible)
        return QRect();
    return QRect(0, rowTop(m_model->rowCount()), m_table->viewport()->width(), m_metrics.footerHeight);
}

int CMultiParamsTablePrivate::contentHeight() const
{
    return m_model->shownCount() * m_metrics.rowHeight + (m_footerVisible ? m_metrics.footerHeight : 0);
}

// In an area that leaves its widget the size it has, a table whose height nobody fixed would stay as high as it was
// before it had cells.
void CMultiParamsTablePrivate::takeNeededHeight()
{
    const QWidget* const viewport = m_table->parentWidget();
    const auto* const area = qobject_cast<const QScrollArea*>(viewport ? viewport->parentWidget() : nullptr);
    const bool isFree = m_table->minimumHeight() == 0 && m_table->maximumHeight() == QWIDGETSIZE_MAX;
    if (isFree && area && area->widget() == m_table && !area->widgetResizable())
        m_table->resize(m_table->width(), contentHeight());
}

void CMultiParamsTablePrivate::layout()
{
    placeColumns();
    QScrollBar* scroll = m_table->verticalScrollBar();
    // The viewport's height is what a style sheet's frame leaves, until the table takes the frame back: a range that
    // followed it would change with each of the two and never come to rest.
    const int height = m_table->height();
    scroll->setPageStep(height);
    scroll->setSingleStep(m_metrics.rowHeight);
    scroll->setRange(0, std::max(0, contentHeight() - height));
    if (m_interaction)
        m_interaction->relayout();
}

void CMultiParamsTablePrivate::setFontScale(bool fontScale)
{
    m_fontScale = fontScale;
    takeScale();
}

void CMultiParamsTablePrivate::takeScale()
{
    const double scale = tableScale(m_fontScale);
    if (qFuzzyCompare(scale, m_metrics.scale))
        return;
    m_metrics = RowMetrics(scale);
    m_painted.clear();
    m_widestLabel = -1;
    takeRowHeight();
    placeSections();
    layout();
    m_table->viewport()->update();
}

CellItem* CMultiParamsTablePrivate::currentCell() const
{
    return m_model->cellAtRow(m_table->currentIndex().row());
}

void CMultiParamsTablePrivate::setCurrentCell(const CellItem& cell)
{
    m_table->setCurrentIndex(m_model->valueIndex(cell.id()));
}

void CMultiParamsTablePrivate::update(const CellItem& cell)
{
    m_table->viewport()->update(rowRect(cell));
}

void CMultiParamsTablePrivate::updateFooter()
{
    m_table->viewport()->update(footerRect());
}

void CMultiParamsTablePrivate::filterChanged()
{
    if (m_interaction)
        m_interaction->filterChanged();
}

void CMultiParamsTablePrivate::changedUnseen(const CellItem& cell)
{
    if (m_interaction)
        m_interaction->cellChanged(cell);
}

void CMultiParamsTablePrivate::setFooterVisible(bool visible)
{
    if (std::exchange(m_footerVisible, visible) == visible)
        return;
    layout();
    m_table->viewport()->update();
    filterChanged();
}

bool CMultiParamsTablePrivate::isFilterEnabled() const
{
    return m_footerVisible && m_model->isEnabled() && !m_model->isExpanded() && m_table->isEnabled();
}

} // namespace WQ
