#include "reference/toolkit/CDropDownButtonGroupPrivate.h"

#include "reference/toolkit/ButtonGroupRules.h"
#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/Painting.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/EventNumbers.h>

#include <QButtonGroup>

#include <algorithm>

namespace WQ {

namespace {

constexpr int kHelpId = 0;

bool isPlaced(const GroupEntry& entry)
{
    return entry.shown && !(entry.button->text().isEmpty() && entry.button->iconKey().isEmpty());
}

// The buttons are made late, yet the tab key must not come to them after everything else in the window. Qt puts nothing
// behind a widget that takes no focus.
void takeFocusAfter(QWidget* previous, QWidget* button)
{
    const Qt::FocusPolicy policy = previous->focusPolicy();
    previous->setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(previous, button);
    previous->setFocusPolicy(policy);
}

} // namespace

QVector<int> extentsOf(const std::vector<PlacedEntry>& placed)
{
    QVector<int> extents;
    extents.reserve(static_cast<int>(placed.size()));
    for (const PlacedEntry& one : placed)
        extents.append(one.extent);
    return extents;
}

CDropDownButtonGroupPrivate::CDropDownButtonGroupPrivate(Qt::Orientation direction, CDropDownButtonGroup* owner)
    : group(owner)
    , orientation(direction)
    , exclusive(new QButtonGroup(owner))
{
}

void CDropDownButtonGroupPrivate::makeHelp()
{
    if (help)
        return;
    help = new IconButton(keys::kHelpImage, keys::kHelpIcon, group);
    help->hide();
    help->keepTexts([](IconButton& button) {
        button.setAccessibleName(CDropDownButtonGroup::tr("帮助"));
        button.setAccessibleDescription(button.hasDot() ? CDropDownButtonGroup::tr("有重要提示") : QString());
    });
    QObject::connect(help, &QAbstractButton::clicked, group,
                     [this] { postPersonEvent(group, *group, events::kButtonClicked, kHelpId, 0, QString()); });
    takeFocusAfter(dropDown ? static_cast<QWidget*>(dropDown) : group, help);
}

void CDropDownButtonGroupPrivate::makeDropDown()
{
    if (dropDown)
        return;
    dropDown = new IconButton(keys::kChevronImage, keys::kChevron, group);
    dropDown->hide();
    dropDown->keepTexts([](IconButton& button) { button.setAccessibleName(CDropDownButtonGroup::tr("更多")); });
    QObject::connect(dropDown, &QAbstractButton::clicked, group, [this] { openDropDown(); });
    takeFocusAfter(group, dropDown);
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

std::vector<PlacedEntry> CDropDownButtonGroupPrivate::placedEntries()
{
    std::vector<PlacedEntry> placed;
    placed.reserve(entries.size());
    for (const GroupEntry& entry : entries)
        if (isPlaced(entry))
            placed.push_back({&entry, extentOf(*entry.button)});
    return placed;
}

QVector<int> CDropDownButtonGroupPrivate::keptPositions(const std::vector<PlacedEntry>& placed) const
{
    QVector<int> kept;
    for (int id : {brought, checkedId()})
        for (size_t i = 0; i < placed.size(); ++i)
            if (placed[i].entry->button->id() == id)
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
    const std::vector<PlacedEntry> placed = placedEntries();
    const QVector<int> extents = extentsOf(placed);
    const int gap = size(keys::kButtonGap);
    int room = (isVertical() ? group->height() : group->width()) - helpExtent();
    const bool overflows = stripLength(extents, gap) > room;
    if (overflows)
        room -= size(keys::kDropDownButton);
    const QVector<int> strip = itemsThatFit(extents, keptPositions(placed), room, gap);
    std::vector<PlacedEntry> stripEntries;
    overflow.clear();
    for (size_t i = 0; i < placed.size(); ++i) {
        if (strip.contains(static_cast<int>(i)))
            stripEntries.push_back(placed[i]);
        else
            overflow.append(placed[i].entry->button->id());
    }
    placeStrip(stripEntries, room);
    placeOwnButtons(overflows);
    layingOut = false;
}

// Buttons with the filling anchor share the room that the others leave.
void CDropDownButtonGroupPrivate::placeStrip(const std::vector<PlacedEntry>& strip, int room)
{
    const int gap = size(keys::kButtonGap);
    const auto fills = [](const PlacedEntry& one) { return one.entry->anchor == AnchorFill; };
    int left = std::max(0, room - stripLength(extentsOf(strip), gap));
    auto filling = static_cast<int>(std::count_if(strip.begin(), strip.end(), fills));
    int start = 0;
    for (const PlacedEntry& one : strip) {
        int extent = one.extent;
        if (fills(one)) {
            const int share = left / filling--;
            left -= share;
            extent += share;
        }
        one.entry->button->setGeometry(span(start, extent));
        start += extent + gap;
    }
    for (const GroupEntry& entry : entries) {
        const auto isIt = [&entry](const PlacedEntry& one) { return one.entry == &entry; };
        entry.button->setVisible(std::any_of(strip.begin(), strip.end(), isIt));
    }
}

void CDropDownButtonGroupPrivate::placeOwnButtons(bool overflows)
{
    if (helpVisible)
        makeHelp();
    if (overflows)
        makeDropDown();
    const int helpStart = (isVertical() ? group->height() : group->width()) - helpExtent();
    if (help) {
        help->setGeometry(span(helpStart, helpExtent()));
        help->setVisible(helpVisible);
    }
    if (dropDown) {
        const int extent = size(keys::kDropDownButton);
        dropDown->setGeometry(span(helpStart - extent, extent));
        dropDown->setVisible(overflows);
    }
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
    const auto isOut = [](const QWidget* stop) { return !stop || stop->isHidden() || !stop->isEnabled(); };
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
