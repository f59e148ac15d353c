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
    CDropDownButtonGroup(Qt::Orientation orientation, QWidget* parent);
    ~CDropDownButtonGroup() override;

    /// Takes the button over, after those it has; answers its position, or -1 for null or an ID it has already.
    int addButton(CPushButton* button, EWidgetAnchor anchor);

    /// The IDs of all buttons, in order, hidden ones included.
    QList<int> getButtonList();

    /// The ID of the checked button, -1 when none is.
    int selectedButton() const;

    /// Checks the button; an ID that the group lacks keeps the choice.
    void setCheckedByID(int id);
    void clearAllCheck();

    void setVisibleByID(int id, bool visible);

    /// Makes the button visible and brings it into the strip, out of the drop-down.
    void showSelectButton(int id);

    /// The ID of the first button with that text, -1 when none has it.
    int getBtnIDByName(QString name);

    /// The text of the button, empty when there is none.
    QString getBtnNameByID(int id);

    void setHelpButtonVisible(bool visible);

    /// Marks the help button with a dot, or takes it away.
    void setHelpButtonCritical(bool critical);

    /// The IDs of the visible buttons in order, joined by commas.
    QString getParam();

    /// Shows exactly the buttons that @p param lists, in its order, the others hidden after them. IDs it lacks and
    /// pieces that are no numbers are skipped; a text without any of its IDs, an empty one above all, changes nothing.
    void setParam(QString param);

    /// Lays the buttons out again for the width there is.
    void resetLayout();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void themeChanged() override;
    void scaleChanged() override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class CDropDownButtonGroupPrivate;
    std::unique_ptr<CDropDownButtonGroupPrivate> const d;
};

} // namespace WQ
