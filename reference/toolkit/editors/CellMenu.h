#pragma once

#include <WQ/WqExport.h>

#include <QMenu>

#include <functional>
#include <optional>

class QKeyEvent;

namespace WQ {

class CellItem;

/// What the menu of a cell offers beside its units, each with its key.
enum class CellCommand { CopyValue, CopyCell, CopyAll, Paste, Initial };

/// The command whose key was pressed.
WQ_EXPORT std::optional<CellCommand> cellCommandOf(const QKeyEvent& event);

/// Whether the key asks for the menu of what has the focus.
WQ_EXPORT bool isMenuKey(const QKeyEvent& event);

/// What the menu asks of the table, and tells it once it has closed.
struct CellMenuAnswers
{
    std::function<bool(CellCommand)> isPossible;
    std::function<void(CellCommand)> chosen;
    std::function<void(int)> unitChosen; ///< none: the units are shown and cannot be changed
};

/// A menu whose arrows and ticks are the toolkit's: a style's own keep their size and colour at every scale and in
/// every theme.
class WQ_EXPORT MarkedMenu : public QMenu
{
    Q_OBJECT
public:
    MarkedMenu(QWidget* owner, double scale);

protected:
    void paintEvent(QPaintEvent* event) override;

    double scale() const
    {
        return m_scale;
    }

private:
    const double m_scale;
};

/// The menu of one cell, in the toolkit's look, as the cell is when it is made. What does not apply stands in it
/// disabled.
class WQ_EXPORT CellMenu : public MarkedMenu
{
    Q_OBJECT
public:
    CellMenu(QWidget& owner, const CellItem& cell, CellMenuAnswers answers, double scale);

private:
    void addCommand(CellCommand command);
    void addUnits(const CellItem& cell);

    const CellMenuAnswers m_answers;
};

} // namespace WQ
