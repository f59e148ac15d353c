#include "reference/toolkit/editors/CellInteraction.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellFlash.h"
#include "reference/toolkit/editors/CellMenu.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"
#include "reference/toolkit/editors/Notice.h"
#include "reference/toolkit/editors/PersonCommits.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>

#include <utility>

namespace WQ {

CMultiParamsTable& CellInteraction::widget() const
{
    return *m_table.table();
}

bool CellInteraction::canEdit(const CellItem& cell) const
{
    return m_table.model().isShown(cell) && m_table.model().isEditable(cell) && widget().isEnabled();
}

bool CellInteraction::beginEdit(CellItem& cell)
{
    if (m_closing || !hasFields(cell.kind()) || !canEdit(cell))
        return false;
    const QPointer<CMultiParamsTable> alive(&widget());
    if (m_cell != &cell) {
        finish(Ending::Commit);
        if (!alive)
            return false;
        m_table.setCurrentCell(cell);
        if (!alive)
            return false;
        makeVisible(cell);
        if (!gainEditor() || m_cell)
            return false;
        m_cell = &cell;
        m_editor->open(cell, m_table.layoutOf(cell).value, m_table.metrics());
        m_table.update(cell);
    }
    if (m_cell == &cell)
        m_editor->takeFocus();
    return alive && m_cell == &cell;
}

void CellInteraction::storeDraft()
{
    if (m_cell && m_editor->isModified() && m_table.model().isEditable(*m_cell) && widget().isEnabled())
        commits::draft(widget(), *m_cell, m_editor->draft());
}

// The edit is over before the focus moves: whoever hears of that may come back here or take the table away.
void CellInteraction::finish(Ending ending)
{
    if (!m_cell)
        return;
    if (ending == Ending::Commit)
        storeDraft();
    const CellItem& cell = *std::exchange(m_cell, nullptr);
    hideWrong();
    m_table.update(cell);
    const QPointer<CMultiParamsTable> alive(&widget());
    if (m_editor->ownsFocus())
        widget().setFocus(Qt::OtherFocusReason);
    if (alive && m_editor && !m_cell)
        m_editor->close();
}

void CellInteraction::commitEditor()
{
    finish(Ending::Commit);
}

void CellInteraction::draftChanged()
{
    if (!m_cell)
        return;
    const Judgement judgement = judgeDraft(*m_cell, m_editor->draft());
    const bool isWrong = m_editor->isModified() && !judgement.ok;
    m_wrong = isWrong ? judgement.message : QString();
    m_table.update(*m_cell);
    if (m_editor->isModified() && !judgement.message.isEmpty())
        showJudgement(judgement);
    else
        hideWrong();
}

void CellInteraction::showJudgement(const Judgement& judgement)
{
    if (!widget().isVisible())
        return;
    if (m_flash)
        m_flash->withdraw();
    if (!m_notice)
        m_notice = new Notice(&widget());
    const auto row = [this] { return m_cell ? m_table.rowRect(*m_cell) : QRect(); };
    m_notice->tell(judgement.message, judgement.ok ? Notice::Kind::Remark : Notice::Kind::Wrong, row, m_table.scale());
}

void CellInteraction::flash(const CellItem& cell, const QString& text)
{
    if (!m_flash)
        m_flash = std::make_unique<CellFlash>(m_table);
    m_flash->start(cell, text);
}

void CellInteraction::hideWrong()
{
    if (const CellItem* refused = std::exchange(m_refused, nullptr))
        m_table.update(*refused);
    m_wrong.clear();
    if (m_notice)
        m_notice->withdraw();
}

void CellInteraction::submitted()
{
    draftChanged();
    if (m_wrong.isEmpty())
        finish(Ending::Commit);
}

void CellInteraction::reverted()
{
    finish(Ending::Drop);
}

void CellInteraction::alternativesAsked()
{
    if (m_cell)
        openAlternatives(*m_cell);
}

bool CellInteraction::checkToggled()
{
    return m_cell && toggleCheck(*m_cell);
}

void CellInteraction::editorDoubleClicked()
{
    if (m_cell)
        commits::doubleClick(widget(), *m_cell);
}

// The person may come back to a window: what is right is stored, a wrong text stays and stays marked.
void CellInteraction::focusGone(Qt::FocusReason reason)
{
    if (!m_cell || m_closing || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason)
        return;
    if (reason == Qt::ActiveWindowFocusReason) {
        storeDraft();
        return;
    }
    // Within the table the press or key that moves the focus decides what becomes of the edit.
    const QWidget* focus = QApplication::focusWidget();
    if (!focus || (focus != &widget() && !widget().isAncestorOf(focus)))
        finish(Ending::Commit);
}

void CellInteraction::hidden()
{
    closePopups();
    forgetRefusal();
    if (m_flash)
        m_flash->stop();
    finish(Ending::Commit);
}

void CellInteraction::currentChanged(const QModelIndex& current, const QModelIndex&)
{
    setFooterFocus(false);
    forgetRefusal();
    if (m_cell && m_table.model().cellAtRow(current.row()) != m_cell)
        finish(Ending::Commit);
}

bool CellInteraction::edit(const QModelIndex& index, QAbstractItemView::EditTrigger trigger, QEvent* event)
{
    CellItem* cell = m_table.model().cellAtRow(index.row());
    const bool isComposed = event && event->type() == QEvent::InputMethod && widget().isVisible();
    if (!cell || (trigger != QAbstractItemView::AllEditTriggers && !isComposed))
        return false;
    if (!activate(*cell))
        return false;
    if (isComposed && m_cell == cell)
        QCoreApplication::sendEvent(m_editor->field(), event);
    return true;
}

void CellInteraction::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (editor && editor == m_editor)
        finish(hint == QAbstractItemDelegate::RevertModelCache ? Ending::Drop : Ending::Commit);
}

void CellInteraction::relayout()
{
    if (m_choiceCell && !m_table.model().isShown(*m_choiceCell))
        m_choices->hide();
    if (m_flash)
        m_flash->follow();
    const QPointer<CMultiParamsTable> alive(&widget());
    if (m_cell && m_table.model().isShown(*m_cell))
        m_editor->place(m_table.layoutOf(*m_cell).value, m_table.metrics());
    else
        finish(Ending::Commit);
    if (alive && m_notice)
        m_notice->follow();
}

void CellInteraction::cellChanged(const CellItem& cell)
{
    if (&cell == m_choiceCell) {
        if (canEdit(cell))
            fillChoices(cell);
        else
            m_choices->hide();
    }
    if (&cell == m_refused)
        forgetRefusal();
    if (&cell != m_cell)
        return;
    if (!canEdit(cell)) {
        finish(m_table.model().isEditable(cell) ? Ending::Commit : Ending::Drop);
        return;
    }
    m_editor->cellChanged();
    m_editor->place(m_table.layoutOf(cell).value, m_table.metrics());
    draftChanged();
}

void CellInteraction::enabledChanged()
{
    if (!widget().isEnabled()) {
        closePopups();
        forgetRefusal();
        finish(Ending::Drop);
    }
}

void CellInteraction::themeChanged()
{
    if (m_editor)
        m_editor->themeChanged();
    for (QWidget* shown :
         {static_cast<QWidget*>(m_choices), static_cast<QWidget*>(m_filter), static_cast<QWidget*>(m_notice)}) {
        if (shown)
            shown->update();
    }
    if (m_flash)
        m_flash->themeChanged();
}

// What is being typed stays, and is told in the new language why it is wrong. What was said of an end is not said
// again.
void CellInteraction::languageChanged()
{
    if (m_menu)
        m_menu->close();
    forgetRefusal();
    if (m_flash)
        m_flash->stop();
    if (m_filter && m_filter->isVisible())
        m_filter->refresh();
    draftChanged();
}

void CellInteraction::addRowState(const CellItem& cell, RowState& state) const
{
    state.mouse = &cell == m_mouseCell;
    state.unitMouse = state.mouse && m_unitMouse;
    state.editing = &cell == m_cell;
    state.wrong = (state.editing || &cell == m_refused) && !m_wrong.isEmpty();
    state.flash = m_flash && m_flash->isLit(cell);
    state.focus = (state.focus && !m_footerFocus) || state.editing || &cell == m_choiceCell || &cell == m_menuCell;
}

FooterState CellInteraction::footerState() const
{
    FooterState state;
    state.focus = m_footerFocus;
    state.mouse = m_footerMouse;
    return state;
}

QString CellInteraction::wrongText(const CellItem& cell) const
{
    return &cell == m_cell || &cell == m_refused ? m_wrong : QString();
}

void CellInteraction::makeVisible(const CellItem& cell) const
{
    // Qt repaints the row that it is asked to scroll to, moved or not.
    if (!widget().viewport()->rect().contains(m_table.rowRect(cell)))
        widget().scrollTo(m_table.model().valueIndex(cell.id()));
    const QRect row = m_table.rowRect(cell);
    for (QWidget* ancestor = widget().parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(ancestor);
        if (!area || !area->widget() || !area->widget()->isAncestorOf(widget().viewport()))
            continue;
        const QPoint center = widget().viewport()->mapTo(area->widget(), row.center());
        area->ensureVisible(center.x(), center.y(), 0, row.height() / 2 + 1);
    }
}

} // namespace WQ
