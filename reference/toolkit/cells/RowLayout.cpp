#include "reference/toolkit/cells/RowLayout.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/TextCache.h"
#include "reference/toolkit/cells/TextFace.h"

#include <algorithm>

namespace WQ {

namespace {

// What one part may take of a row at most, so that the others are still seen.
constexpr int kUnitShare = 3;
constexpr int kCheckShare = 3;

class RowBuilder
{
public:
    RowBuilder(const CellItem& cell, const QRect& row, const RowMetrics& metrics, int labelColumn)
        : m_cell(cell)
        , m_row(row)
        , m_metrics(metrics)
        , m_left(row.left() + metrics.padding)
        , m_right(std::max(m_left, row.left() + row.width() - metrics.padding))
        , m_column(qBound(m_left, row.left() + labelColumn, m_right))
    {
    }

    RowLayout build()
    {
        placeChevron();
        placeUnit();
        placeTexts();
        m_layout.offGrid = !m_cell.offGridText().isEmpty();
        return m_layout;
    }

private:
    QRect part(int left, int width) const
    {
        return QRect(left, m_row.top(), std::max(0, width), m_row.height() - 1);
    }

    /// @p line is what a row can show of @p text.
    QString fitted(const QString& text, const QString& line, int room)
    {
        const QString shown = texts::elided(line, *m_metrics.face, room);
        m_layout.elided |= shown != text;
        return shown;
    }

    QString fitted(const QString& text, int room)
    {
        return fitted(text, texts::oneLine(text), room);
    }

    int widthOf(const QString& text) const
    {
        return texts::width(text, *m_metrics.face);
    }

    void placeChevron()
    {
        if (!m_cell.hasChevron())
            return;
        m_layout.chevron = part(m_right - m_metrics.chevron, m_metrics.chevron);
        m_right = std::max(m_left, m_right - m_metrics.chevron - m_metrics.gap);
    }

    void placeUnit()
    {
        const QString unit = m_cell.unit();
        if (unit.isEmpty())
            return;
        m_layout.unitText = fitted(unit, (m_right - m_left) / kUnitShare);
        const int width = widthOf(m_layout.unitText);
        m_layout.unit = part(m_right - width, width);
        m_right = std::max(m_left, m_right - width - m_metrics.gap);
    }

    int checkWidth()
    {
        if (m_cell.checkText().isEmpty() && m_cell.kind() != CellKind::CheckNumber)
            return 0;
        const int room = (m_right - m_left) / kCheckShare;
        const int textGap = m_metrics.gap / 2;
        m_layout.checkText = fitted(m_cell.checkText(), room - m_metrics.checkBox - textGap);
        return m_metrics.checkBox + (m_layout.checkText.isEmpty() ? 0 : textGap + widthOf(m_layout.checkText));
    }

    void placeTexts()
    {
        const int check = checkWidth();
        const QString value = m_cell.displayText();
        const QString valueLine = texts::oneLine(value);
        const int valueWidth = widthOf(valueLine);
        const int labelWidth = widthOf(texts::oneLine(m_cell.label()));
        const int room = std::max(0, m_right - m_left - m_metrics.gap - (check > 0 ? check + m_metrics.gap : 0));
        const int labelRoom = roomOfLabel(labelWidth, valueWidth, room);
        m_layout.labelText = fitted(m_cell.label(), labelRoom);
        m_layout.label = part(m_left, std::min(labelWidth, labelRoom));
        int end = m_left + m_layout.label.width() + m_metrics.gap;
        if (check > 0) {
            const int latest = m_right - valueWidth - m_metrics.gap - check;
            const int left = std::max(end, std::min(m_column + m_metrics.gap, latest));
            m_layout.check = part(left, check);
            end = left + check + m_metrics.gap;
        }
        m_layout.value = part(end, m_right - end);
        m_layout.valueText = fitted(value, valueLine, m_layout.value.width());
    }

    int roomOfLabel(int labelWidth, int valueWidth, int room) const
    {
        const int column = std::min(m_column - m_left, room);
        if (labelWidth <= column || labelWidth + valueWidth <= room)
            return std::min(labelWidth, room);
        return std::max(column, room - valueWidth);
    }

    const CellItem& m_cell;
    const QRect m_row;
    const RowMetrics& m_metrics;
    const int m_left;
    int m_right; // what is placed from the right moves it
    const int m_column;
    RowLayout m_layout;
};

} // namespace

RowMetrics::RowMetrics(double uiScale)
    : scale(uiScale)
    , font(resources::font(keys::kTextFont, uiScale))
    , face(&texts::faceOf(font))
    , rowHeight(resources::size(keys::kRowHeight, uiScale))
    , footerHeight(resources::size(keys::kFilterFooter, uiScale))
    , padding(resources::size(keys::kPadding, uiScale))
    , gap(resources::size(keys::kUnitGap, uiScale))
    , chevron(resources::size(keys::kChevron, uiScale))
    , checkBox(resources::size(keys::kCheckBox, uiScale))
    , bar(resources::size(keys::kNoticeBar, uiScale))
{
}

RowLayout layoutRow(const CellItem& cell, const QRect& row, const RowMetrics& metrics, int labelColumn)
{
    return RowBuilder(cell, row, metrics, labelColumn).build();
}

} // namespace WQ
