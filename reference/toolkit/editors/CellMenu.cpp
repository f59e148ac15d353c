#include "reference/toolkit/editors/CellMenu.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/NumberCell.h"

#include <WQ/CMultiParamsTable.h>

#include <QActionGroup>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

struct CommandRow
{
    CellCommand command;
    const char* text;
    int key;
};

// clang-format off
constexpr CommandRow kCommands[] = {
    {CellCommand::CopyValue, QT_TRANSLATE_NOOP("WQ::CMultiParamsTable", "复制数值"),       Qt::CTRL + Qt::Key_C},
    {CellCommand::CopyCell,  QT_TRANSLATE_NOOP("WQ::CMultiParamsTable", "复制名称和数值"), Qt::CTRL + Qt::SHIFT + Qt::Key_C},
    {CellCommand::CopyAll,   QT_TRANSLATE_NOOP("WQ::CMultiParamsTable", "复制全部"),       Qt::CTRL + Qt::SHIFT + Qt::Key_A},
    {CellCommand::Paste,     QT_TRANSLATE_NOOP("WQ::CMultiParamsTable", "粘贴"),           Qt::CTRL + Qt::Key_V},
    {CellCommand::Initial,   QT_TRANSLATE_NOOP("WQ::CMultiParamsTable", "恢复初始值"),     Qt::CTRL + Qt::Key_Backspace},
};
// clang-format on

const CommandRow& rowOf(CellCommand command)
{
    return *std::find_if(std::begin(kCommands), std::end(kCommands),
                         [command](const CommandRow& row) { return row.command == command; });
}

constexpr int kFrame = 1;

// Of the menu itself, so that no style sheet of the application reaches it.
QString sheet(double scale)
{
    const QFont font = resources::font(keys::kTextFont, scale);
    const int padding = resources::size(keys::kPadding, scale);
    const int spare = resources::size(keys::kPopupRowHeight, scale) - 2 * kFrame - QFontMetrics(font).height();
    return QStringLiteral("QMenu { background: %1; color: %2; border: 1px solid %3; margin: 0; padding: 0;"
                          " font-size: %6px; font-family: \"%7\"; }"
                          " QMenu::item { background: transparent; color: %2; border: 1px solid transparent;"
                          " padding: %8px %9px %8px %10px; }"
                          " QMenu::item:selected { background: %4; border-color: %11; }"
                          " QMenu::item:disabled { color: %5; }"
                          " QMenu::right-arrow { image: none; width: 0; height: 0; }"
                          " QMenu::indicator { image: none; width: 0; height: 0; }"
                          " QMenu::separator { height: 1px; background: %3; margin: 0; }")
        .arg(resources::color(keys::kRow).name(), resources::color(keys::kValue).name(),
             resources::color(keys::kSeparator).name(), resources::color(keys::kRowFocus).name(),
             resources::color(keys::kUnit).name())
        .arg(font.pixelSize())
        .arg(font.family())
        .arg(std::max(0, spare) / 2)
        .arg(2 * padding)
        .arg(3 * padding)
        .arg(resources::color(keys::kAccent).name());
}

} // namespace

std::optional<CellCommand> cellCommandOf(const QKeyEvent& event)
{
    // Ctrl+Insert and Shift+Insert as well, where the desktop has them.
    if (event.matches(QKeySequence::Copy))
        return CellCommand::CopyValue;
    if (event.matches(QKeySequence::Paste))
        return CellCommand::Paste;
    const int pressed = event.key() + static_cast<int>(event.modifiers() & ~Qt::KeypadModifier);
    for (const CommandRow& row : kCommands) {
        if (row.key == pressed)
            return row.command;
    }
    return std::nullopt;
}

bool isMenuKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

MarkedMenu::MarkedMenu(QWidget* owner, double scale)
    : QMenu(owner)
    , m_scale(scale)
{
}

void MarkedMenu::paintEvent(QPaintEvent* event)
{
    QMenu::paintEvent(event);
    QPainter painter(this);
    const int padding = resources::size(keys::kPadding, m_scale);
    const int edge = resources::size(keys::kChevron, m_scale);
    const QRect mark(-edge / 2, -edge / 2, edge, edge);
    const QList<QAction*> all = actions();
    for (QAction* action : all) {
        const QRect row = actionGeometry(action);
        painter.save();
        painter.translate(action->menu() ? row.right() - padding - edge / 2 : row.left() + padding + edge / 2,
                          row.center().y());
        if (action->menu()) {
            painter.rotate(-90); // the chevron of a list points down, and this one opens to the right
            painting::drawImage(painter, mark, keys::kChevronImage, resources::color(keys::kUnit), edge);
        } else if (action->isChecked()) {
            painting::drawImage(painter, mark, keys::kCheckImage, resources::color(keys::kAccent), edge);
        }
        painter.restore();
    }
}

CellMenu::CellMenu(QWidget& owner, const CellItem& cell, CellMenuAnswers answers, double scale)
    : MarkedMenu(&owner, scale)
    , m_answers(std::move(answers))
{
    setStyleSheet(sheet(scale));
    for (const CellCommand command : {CellCommand::CopyValue, CellCommand::CopyCell, CellCommand::CopyAll})
        addCommand(command);
    addSeparator();
    for (const CellCommand command : {CellCommand::Paste, CellCommand::Initial})
        addCommand(command);
    addUnits(cell);
    // The keys stand apart from the longest text.
    setMinimumWidth(sizeHint().width() + 2 * resources::size(keys::kPadding, scale));
}

// What a command does may take the table away, and the menu with it: it runs when the menu's own code has unwound.
void CellMenu::addCommand(CellCommand command)
{
    const CommandRow& row = rowOf(command);
    QAction* action = addAction(CMultiParamsTable::tr(row.text));
    action->setShortcut(QKeySequence(row.key));
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(m_answers.isPossible(command));
    connect(
        action, &QAction::triggered, parentWidget(), [chosen = m_answers.chosen, command] { chosen(command); },
        Qt::QueuedConnection);
}

void CellMenu::addUnits(const CellItem& cell)
{
    auto* list = new MarkedMenu(this, scale());
    list->setTitle(CMultiParamsTable::tr("切换单位"));
    addMenu(list);
    list->menuAction()->setEnabled(m_answers.unitChosen && cell.kind() != CellKind::Combo && cell.hasChevron());
    if (cell.kind() != CellKind::Number && cell.kind() != CellKind::CheckNumber)
        return;
    const auto& number = static_cast<const NumberCell&>(cell);
    auto* group = new QActionGroup(list);
    for (int i = 0; i < number.units().size(); ++i) {
        // An ampersand of a unit is no mnemonic.
        QString text = number.units().at(i).text;
        QAction* action = list->addAction(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setActionGroup(group);
        action->setCheckable(true);
        action->setChecked(i == number.currentUnitIndex());
        if (m_answers.unitChosen)
            connect(
                action, &QAction::triggered, parentWidget(), [chosen = m_answers.unitChosen, i] { chosen(i); },
                Qt::QueuedConnection);
    }
}

} // namespace WQ
