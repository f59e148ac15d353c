#include "reference/toolkit/CDropDownButtonGroupPrivate.h"

#include "reference/toolkit/ButtonGroupRules.h"
#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/Painting.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QButtonGroup>

#include <algorithm>

namespace WQ {

namespace {

constexpr int kClicked = 5;
constexpr int kHelpId = 0;

bool isPlaced(const GroupEntry& entry)
{
    return entry.shown && !(entry.button->text().isEmpty() && entry.button->iconKey().isEmpty());
}

} // namespace

CDropDownButtonGroupPrivate::CDropDownButtonGroupPrivate(Qt::Orientation direction, CDropDownButtonGroup* owner)
    : group(owner)
    , orientation(direction)
    , exclusive(new QButtonGroup(owner))
    , dropDown(new IconButton(keys::kChevronImage, keys::kChevron, owner))
    , help(new IconButton(keys::kHelpImage, keys::kHelpIcon, owner))
{
    dropDown->setAccessibleName(CDropDownButtonGroup::tr("更多"));
    dropDown->hide();
    help->setAccessibleName(CDropDownButtonGroup::tr("帮助"));
    QObject::connect(dropDown, &QAbstractButton::clicked, group, [this] { openDropDown(); });
    QObject::connect(help, &QAbstractButton::clicked, group,
                     [this] { postPersonEvent(group, *group, kClicked, kHelpId, 0, QString()); });
}

GroupEntry* CDropDownButtonGroupPrivate::find(int id)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [id](const GroupEntry& entry) { return entry.button->id() == id; });
    return found == entries.end() ? nullptr : &*found;
}

void CDropDownButtonGroupPrivate::forget(const QObject* child)
{
    const auto isChild = [child](const GroupEntry& entry) {
        return static_cast<const QObject*>(entry.button) == child;
    };
    const auto gone = std::find_if(entries.begin(), entries.end(), isChild);
    if (gone == entries.end())
        return;
    if (gone->alive)
        exclusive->removeButton(gone->button);
    entries.erase(gone);
    layOut();
}

int CDropDownButtonGroupPrivate::checkedId() const
{
    const QAbstractButton* checked = exclusive->checkedButton();
    for (const GroupEntry& entry : entries)
        if (entry.button == checked)
            return entry.button->id();
    return -1;
}

int CDropDownButtonGroupPrivate::size(const QString& key) const
{
    return resources::size(key, painting::buttonScaleOf(group));
}

int CDropDownButtonGroupPrivate::extentOf(const CPushButton& button) const
{
    const QSize wanted = button.sizeHint()
                             .expandedTo(button.minimumSizeHint())
                             .boundedTo(button.maximumSize())
                             .expandedTo(button.minimumSize());
    return isVertical() ? wanted.height() : wanted.width();
}

int CDropDownButtonGroupPrivate::helpExtent() const
{
    return helpVisible ? size(keys::kHelpButton) : 0;
}

QVector<int> CDropDownButtonGroupPrivate::extentsOf(const std::vector<GroupEntry*>& placed) const
{
    QVector<int> extents;
    for (const GroupEntry* entry : placed)
        extents.append(extentOf(*entry->button));
    return extents;
}

std::vector<GroupEntry*> CDropDownButtonGroupPrivate::placedEntries()
{
    std::vector<GroupEntry*> placed;
    for (GroupEntry& entry : entries)
        if (isPlaced(entry))
            placed.push_back(&entry);
    return placed;
}

QVector<int> CDropDownButtonGroupPrivate::keptPositions(const std::vector<GroupEntry*>& placed) const
{
    QVector<int> kept;
    for (int id : {brought, checkedId()})
        for (size_t i = 0; i < placed.size(); ++i)
            if (placed[i]->button->id() == id)
                kept.append(static_cast<int>(i));
    return kept;
}

QRect CDropDownButtonGroupPrivate::span(int start, int extent) const
{
    return isVertical() ? QRect(0, start, group->width(), extent) : QRect(start, 0, extent, group->height());
}

void CDropDownButtonGroupPrivate::layOut()
{
    if (layingOut)
        return;
    layingOut = true;
    const std::vector<GroupEntry*> placed = placedEntries();
    const QVector<int> extents = extentsOf(placed);
    const int gap = size(keys::kButtonGap);
    int room = (isVertical() ? group->height() : group->width()) - helpExtent();
    const bool overflows = stripLength(extents, gap) > room;
    if (overflows)
        room -= size(keys::kDropDownButton);
    const QVector<int> strip = itemsThatFit(extents, keptPositions(placed), room, gap);
    std::vector<GroupEntry*> stripEntries;
    overflow.clear();
    for (size_t i = 0; i < placed.size(); ++i) {
        if (strip.contains(static_cast<int>(i)))
            stripEntries.push_back(placed[i]);
        else
            overflow.append(placed[i]->button->id());
    }
    placeStrip(stripEntries, room);
    placeOwnButtons(overflows);
    layingOut = false;
}

// Buttons with the filling anchor share the room that the others leave.
void CDropDownButtonGroupPrivate::placeStrip(const std::vector<GroupEntry*>& strip, int room)
{
    const int gap = size(keys::kButtonGap);
    int left = std::max(0, room - stripLength(extentsOf(strip), gap));
    auto filling = static_cast<int>(
        std::count_if(strip.begin(), strip.end(), [](const GroupEntry* entry) { return entry->anchor == AnchorFill; }));
    int start = 0;
    for (const GroupEntry* entry : strip) {
        int extent = extentOf(*entry->button);
        if (entry->anchor == AnchorFill) {
            const int share = left / filling--;
            left -= share;
            extent += share;
        }
        entry->button->setGeometry(span(start, extent));
        start += extent + gap;
    }
    for (const GroupEntry& entry : entries)
        entry.button->setVisible(std::find(strip.begin(), strip.end(), &entry) != strip.end());
}

void CDropDownButtonGroupPrivate::placeOwnButtons(bool overflows)
{
    const int helpStart = (isVertical() ? group->height() : group->width()) - helpExtent();
    help->setGeometry(span(helpStart, helpExtent()));
    help->setVisible(helpVisible);
    const int extent = size(keys::kDropDownButton);
    dropDown->setGeometry(span(helpStart - extent, extent));
    dropDown->setVisible(overflows);
}

void CDropDownButtonGroupPrivate::openDropDown()
{
    QStringList texts;
    const QVector<int> ids = overflow;
    for (int id : ids)
        texts.append(group->getBtnNameByID(id));
    if (texts.isEmpty())
        return;
    auto* list = new PopupList(group, texts, ids.indexOf(checkedId()),
                               [this, ids](int row) { chooseFromDropDown(ids.value(row, -1)); });
    list->setAccessibleName(dropDown->accessibleName());
    list->open(QRect(dropDown->mapToGlobal(QPoint()), dropDown->size()));
}

// The list may have stood open while buttons came and went.
void CDropDownButtonGroupPrivate::chooseFromDropDown(int id)
{
    const GroupEntry* entry = find(id);
    if (!entry || !entry->button->isEnabled())
        return;
    brought = id;
    layOut();
    entry = find(id);
    if (entry)
        entry->button->click();
}

QList<QWidget*> CDropDownButtonGroupPrivate::focusStops()
{
    QList<QWidget*> stops;
    for (const GroupEntry& entry : entries)
        stops.append(entry.button);
    stops << dropDown << help;
    const auto isOut = [](const QWidget* stop) { return stop->isHidden() || !stop->isEnabled(); };
    stops.erase(std::remove_if(stops.begin(), stops.end(), isOut), stops.end());
    return stops;
}

void CDropDownButtonGroupPrivate::moveFocus(bool forward)
{
    const QList<QWidget*> stops = focusStops();
    const int current = stops.indexOf(group->focusWidget());
    const int next = current + (forward ? 1 : -1);
    if (current >= 0 && next >= 0 && next < stops.size())
        stops.at(next)->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

} // namespace WQ
