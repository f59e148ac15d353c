#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CPushButton.h>
#include <WQ/CUiResourceChangeHandler.h>
#include <WQ/ToolkitTypes.h>

#include <QList>
#include <QWidget>

#include <memory>

namespace WQ {

class CDropDownButtonGroup;
class CDropDownButtonGroupPrivate;

/// Checkable buttons of which one is checked, laid out in the width there is; the rest moves into a drop-down.
///
/// A click on a button sends the button's event 5 (also when it was chosen in the drop-down), on the help button event
/// 5 with ID 0. Programmatic changes send nothing. A missing ID changes nothing.
class WQ_EXPORT CDropDownButtonGroup : public CEventWidgetT<QWidget>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// An empty group with a visible help button.
    /// @param orientation of the strip
    /// @param parent the owner; may be null
    CDropDownButtonGroup(Qt::Orientation orientation, QWidget* parent);
    ~CDropDownButtonGroup() override;

    /// Takes the button over, after those it has.
    /// @param button owned by the group from now on
    /// @param anchor where it stands in the strip
    /// @return its position; -1 for null or an ID that the group has already
    int addButton(CPushButton* button, EWidgetAnchor anchor);

    /// The IDs of all buttons.
    /// @return in order, hidden ones included
    QList<int> getButtonList();

    /// The checked button.
    /// @return its ID; -1 when none is checked
    int selectedButton() const;

    /// Checks a button and unchecks the one before.
    /// @param id an ID that the group lacks keeps the choice
    void setCheckedByID(int id);

    /// Unchecks the checked button.
    void clearAllCheck();

    /// Shows or hides a button.
    /// @param id the button
    /// @param visible whether it can be seen, in the strip or the drop-down
    void setVisibleByID(int id, bool visible);

    /// Makes the button visible and brings it into the strip, out of the drop-down.
    /// @param id the button
    void showSelectButton(int id);

    /// The first button with a text.
    /// @param name the text as shown
    /// @return its ID; -1 when none has it
    int getBtnIDByName(QString name);

    /// The text of a button.
    /// @param id the button
    /// @return empty when there is none
    QString getBtnNameByID(int id);

    /// Shows or hides the help button.
    /// @param visible true for a new group
    void setHelpButtonVisible(bool visible);

    /// Marks the help button with a dot, or takes it away.
    /// @param critical whether it has the dot
    void setHelpButtonCritical(bool critical);

    /// Which buttons are shown.
    /// @return the IDs of the visible buttons in order, joined by commas
    QString getParam();

    /// Shows exactly the buttons that a text lists, in its order, the others hidden after them.
    /// @param param IDs joined by commas. IDs that the group lacks and pieces that are no numbers are skipped; a text
    ///        without any of its IDs, an empty one above all, changes nothing
    void setParam(QString param);

    /// Lays the buttons out again for the width there is.
    void resetLayout();

    /// @cond handlers
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// @endcond
    void themeChanged() override;
    void scaleChanged() override;

protected:
    /// @cond handlers
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// @endcond

private:
    friend class CDropDownButtonGroupPrivate;
    std::unique_ptr<CDropDownButtonGroupPrivate> const d;
};

} // namespace WQ
