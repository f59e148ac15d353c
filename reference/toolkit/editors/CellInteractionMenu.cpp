#include "reference/toolkit/editors/CellInteraction.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellMenu.h"
#include "reference/toolkit/editors/CopiedTexts.h"
#include "reference/toolkit/editors/InitialValue.h"
#include "reference/toolkit/editors/Notice.h"
#include "reference/toolkit/editors/PersonCommits.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>

#include <utility>

namespace WQ {

namespace {

QString clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

void setClipboardText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

// A list that is open is the person's answer to something else.
bool CellInteraction::contextMenu(QContextMenuEvent* event)
{
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    CellItem* cell = isMouse ? m_table.cellAt(event->pos()) : m_table.currentCell();
    if (!cell || m_closing || !widget().isVisible())
        return false;
    event->accept();
    openMenu(*cell, isMouse ? event->globalPos() : menuAnchor(*cell));
    return true;
}

QPoint CellInteraction::menuAnchor(const CellItem& cell) const
{
    makeVisible(cell);
    const QRect value = m_table.layoutOf(cell).value;
    return toGlobal(m_table.rowRect(cell)).bottomLeft() + QPoint(value.left(), 1);
}

void CellInteraction::openMenu(CellItem& cell, const QPoint& position)
{
    delete m_menu;
    CellMenuAnswers answers;
    answers.isPossible = [this, &cell](CellCommand command) { return isPossible(command, cell); };
    answers.chosen = [this, &cell](CellCommand command) { run(command, cell); };
    if (canEdit(cell))
        answers.unitChosen = [this, &cell](int unit) { picked(cell, unit); };
    m_menu = new CellMenu(widget(), cell, std::move(answers), m_table.scale());
    m_menuCell = &cell;
    QObject::connect(m_menu, &QMenu::aboutToHide, &widget(), [this] {
        const CellItem* closed = std::exchange(m_menuCell, nullptr);
        if (closed && !m_closing)
            m_table.update(*closed);
    });
    m_table.update(cell);
    m_menu->popup(position);
}

bool CellInteraction::isPossible(CellCommand command, const CellItem& cell) const
{
    switch (command) {
    case CellCommand::CopyValue:
    case CellCommand::CopyCell:
    case CellCommand::CopyAll:
        return true;
    case CellCommand::Paste:
        return canEdit(cell) && !clipboardText().isEmpty();
    case CellCommand::Initial:
        return canEdit(cell) && !holdsInitial(cell);
    }
    return false;
}

void CellInteraction::run(CellCommand command, CellItem& cell)
{
    if (m_closing || !isPossible(command, cell))
        return;
    switch (command) {
    case CellCommand::CopyValue:
        return setClipboardText(copiedValue(cell));
    case CellCommand::CopyCell:
        return setClipboardText(copiedCell(cell));
    case CellCommand::CopyAll:
        return setClipboardText(copiedCells(m_table.model()));
    case CellCommand::Paste:
        return paste(cell, clipboardText());
    case CellCommand::Initial:
        return restoreInitial(cell);
    }
}

// What stands in an editor is a person's as well and goes first. Whoever hears of that may do anything.
bool CellInteraction::readyForCommit(const CellItem& cell)
{
    const QPointer<CMultiParamsTable> alive(&widget());
    finish(Ending::Commit);
    return alive && !m_closing && canEdit(cell);
}

void CellInteraction::paste(CellItem& cell, const QString& text)
{
    if (!readyForCommit(cell))
        return;
    const Judgement judgement = judgePasted(cell, text);
    if (!judgement.ok)
        refuse(cell, judgement.message);
    else if (cell.kind() == CellKind::Combo)
        commits::entry(widget(), static_cast<ComboCell&>(cell), pastedEntry(cell, text));
    else
        commits::draft(widget(), cell, pastedDraft(cell, text));
}

// All of it or nothing: a unit is not switched for a number that the unit cannot take any more.
void CellInteraction::restoreInitial(CellItem& cell)
{
    if (!readyForCommit(cell))
        return;
    const Judgement judgement = judgeInitial(cell);
    if (judgement.ok)
        commits::initial(widget(), cell);
    else
        refuse(cell, judgement.message);
}

// Until the person does something else.
void CellInteraction::refuse(const CellItem& cell, const QString& why)
{
    m_wrong = why;
    m_refused = &cell;
    m_table.update(cell);
    if (!widget().isVisible())
        return;
    makeVisible(cell);
    if (!m_notice)
        m_notice = new Notice(&widget());
    const auto row = [this] { return m_refused ? m_table.rowRect(*m_refused) : QRect(); };
    m_notice->tell(why, Notice::Kind::Wrong, row, m_table.scale());
}

void CellInteraction::forgetRefusal()
{
    if (m_refused)
        hideWrong();
}

bool CellInteraction::usesShortcut(const QKeyEvent& event) const
{
    return !m_cell && !m_footerFocus && m_table.currentCell() && (cellCommandOf(event) || isMenuKey(event));
}

bool CellInteraction::commandKey(const QKeyEvent& event, CellItem& cell)
{
    if (isMenuKey(event)) {
        openMenu(cell, menuAnchor(cell));
        return true;
    }
    const std::optional<CellCommand> command = cellCommandOf(event);
    if (command)
        run(*command, cell);
    return command.has_value();
}

} // namespace WQ
