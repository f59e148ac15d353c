#include "PanelSight.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/Notice.h"

#include <QApplication>
#include <QLineEdit>

#include <stdexcept>

namespace walk {

namespace {

using Cells = WQ::CMultiParamsTablePrivate;

} // namespace

PanelSight::PanelSight(WQ::CMultiParamsTable& cells)
    : m_cells(cells)
{
}

QStringList PanelSight::labels() const
{
    QStringList labels;
    const WQ::CellModel& model = Cells::of(&m_cells)->model();
    for (int row = 0; m_cells.isVisible() && row < model.rowCount(); ++row)
        labels << model.cellAtRow(row)->label();
    return labels;
}

const WQ::CellItem& PanelSight::cell(int id) const
{
    const WQ::CellModel& model = Cells::of(&m_cells)->model();
    if (!m_cells.isVisible() || model.rowOf(id) < 0)
        throw std::runtime_error("no row on the screen for cell " + std::to_string(id));
    return *model.cell(id);
}

QString PanelSight::value(int id) const
{
    const WQ::RowLayout layout = Cells::of(&m_cells)->layoutOf(cell(id));
    return layout.unitText.isEmpty() ? layout.valueText : layout.valueText + QLatin1Char(' ') + layout.unitText;
}

QString PanelSight::toolTip(int id) const
{
    return Cells::of(&m_cells)->model().valueIndex(cell(id).id()).data(Qt::ToolTipRole).toString();
}

bool PanelSight::isChecked(int id) const
{
    return cell(id).isChecked();
}

QString PanelSight::edited() const
{
    QWidget* focus = QApplication::focusWidget();
    const auto* line = focus && m_cells.isAncestorOf(focus) ? qobject_cast<const QLineEdit*>(focus) : nullptr;
    return line ? line->text() : QString();
}

QStringList PanelSight::entries()
{
    const auto* list = qobject_cast<const WQ::ChoicePopup*>(QApplication::activePopupWidget());
    return list ? list->entries() : QStringList();
}

QString PanelSight::notice()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget* widget : all)
        if (const auto* notice = qobject_cast<const WQ::Notice*>(widget); notice && notice->isVisible())
            return notice->text();
    return {};
}

} // namespace walk
