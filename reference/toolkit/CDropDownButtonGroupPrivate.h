#pragma once

#include <WQ/CDropDownButtonGroup.h>

#include <QList>
#include <QPointer>
#include <QVector>

#include <vector>

class QButtonGroup;

namespace WQ {

class IconButton;

/// A button of a group.
struct GroupEntry
{
    CPushButton* button;
    QPointer<CPushButton> alive;
    EWidgetAnchor anchor;
    bool shown; ///< as the host wants it; in the strip or in the drop-down
};

/// A button that takes room, and how much.
struct PlacedEntry
{
    const GroupEntry* entry;
    int extent;
};

QVector<int> extentsOf(const std::vector<PlacedEntry>& placed);

/// What stands behind a button group: its buttons and where they are.
class CDropDownButtonGroupPrivate
{
public:
    CDropDownButtonGroupPrivate(Qt::Orientation direction, CDropDownButtonGroup* owner);

    bool isVertical() const
    {
        return orientation == Qt::Vertical;
    }

    GroupEntry* find(int id);
    void forget(const QObject* child);
    int checkedId() const;
    int size(const QString& key) const;
    int extentOf(const CPushButton& button) const;
    int helpExtent() const;
    std::vector<PlacedEntry> placedEntries();
    QVector<int> keptPositions(const std::vector<PlacedEntry>& placed) const;
    QRect span(int start, int extent) const;
    void layOut();
    void placeStrip(const std::vector<PlacedEntry>& strip, int room);
    void placeOwnButtons(bool overflows);
    void makeHelp();
    void makeDropDown();
    void openDropDown();
    void chooseFromDropDown(int id);
    void moveFocus(bool forward);
    QList<QWidget*> focusStops();

    CDropDownButtonGroup* const group;
    const Qt::Orientation orientation;
    QButtonGroup* const exclusive;
    IconButton* dropDown = nullptr; ///< null while it was never needed
    IconButton* help = nullptr;     ///< null while it was never needed
    std::vector<GroupEntry> entries;
    QVector<int> overflow; ///< IDs in the drop-down
    int brought = -1;      ///< ID of the button last brought into the strip
    bool helpVisible = true;
    bool layingOut = false;
};

} // namespace WQ
