#include <WQ/CDropDownButtonGroup.h>

#include "reference/toolkit/ButtonGroupRules.h"
#include "reference/toolkit/CDropDownButtonGroupPrivate.h"
#include "reference/toolkit/GuiThread.h"
#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

bool isSameEntry(const GroupEntry& one, const GroupEntry& other)
{
    return one.button == other.button && one.shown == other.shown;
}

} // namespace

CDropDownButtonGroup::CDropDownButtonGroup(Qt::Orientation orientation, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CDropDownButtonGroupPrivate>(orientation, this))
{
}

CDropDownButtonGroup::~CDropDownButtonGroup() = default;

int CDropDownButtonGroup::addButton(CPushButton* button, EWidgetAnchor anchor)
{
    checkGuiThread("CDropDownButtonGroup::addButton");
    if (!button || d->find(button->id()))
        return -1;
    const bool shown = !(button->isHidden() && button->testAttribute(Qt::WA_WState_ExplicitShowHide));
    if (button->parentWidget() != this)
        button->setParent(this);
    button->setCheckable(true);
    d->exclusive->addButton(button);
    // The group rules; this says to assistive programs that it is one of several.
    button->setAutoExclusive(true);
    d->entries.push_back({button, button, anchor, shown});
    d->layOut();
    updateGeometry();
    return static_cast<int>(d->entries.size()) - 1;
}

QList<int> CDropDownButtonGroup::getButtonList()
{
    QList<int> ids;
    for (const GroupEntry& entry : d->entries)
        ids.append(entry.button->id());
    return ids;
}

int CDropDownButtonGroup::selectedButton() const
{
    return d->checkedId();
}

void CDropDownButtonGroup::setCheckedByID(int id)
{
    checkGuiThread("CDropDownButtonGroup::setCheckedByID");
    const GroupEntry* entry = d->find(id);
    if (!entry)
        return;
    const QPointer<CDropDownButtonGroup> self(this);
    entry->button->setChecked(true);
    if (self)
        d->layOut();
}

void CDropDownButtonGroup::clearAllCheck()
{
    checkGuiThread("CDropDownButtonGroup::clearAllCheck");
    const QPointer<CDropDownButtonGroup> self(this);
    d->exclusive->setExclusive(false);
    if (QAbstractButton* checked = d->exclusive->checkedButton())
        checked->setChecked(false);
    if (!self)
        return;
    d->exclusive->setExclusive(true);
    d->layOut();
}

void CDropDownButtonGroup::setVisibleByID(int id, bool visible)
{
    checkGuiThread("CDropDownButtonGroup::setVisibleByID");
    if (GroupEntry* entry = d->find(id)) {
        const bool changes = std::exchange(entry->shown, visible) != visible;
        d->layOut();
        if (changes)
            updateGeometry();
    }
}

void CDropDownButtonGroup::showSelectButton(int id)
{
    checkGuiThread("CDropDownButtonGroup::showSelectButton");
    if (GroupEntry* entry = d->find(id)) {
        const bool changes = !std::exchange(entry->shown, true);
        d->brought = id;
        d->layOut();
        if (changes)
            updateGeometry();
    }
}

int CDropDownButtonGroup::getBtnIDByName(QString name)
{
    for (const GroupEntry& entry : d->entries)
        if (entry.button->text() == name)
            return entry.button->id();
    return -1;
}

QString CDropDownButtonGroup::getBtnNameByID(int id)
{
    const GroupEntry* entry = d->find(id);
    return entry ? entry->button->text() : QString();
}

void CDropDownButtonGroup::setHelpButtonVisible(bool visible)
{
    checkGuiThread("CDropDownButtonGroup::setHelpButtonVisible");
    if (std::exchange(d->helpVisible, visible) == visible)
        return;
    d->layOut();
    updateGeometry();
}

void CDropDownButtonGroup::setHelpButtonCritical(bool critical)
{
    checkGuiThread("CDropDownButtonGroup::setHelpButtonCritical");
    if (!critical && !d->help)
        return;
    d->makeHelp();
    d->help->setDot(critical);
}

QString CDropDownButtonGroup::getParam()
{
    QStringList ids;
    for (const GroupEntry& entry : d->entries)
        if (entry.shown)
            ids.append(QString::number(entry.button->id()));
    return ids.join(QLatin1Char(','));
}

void CDropDownButtonGroup::setParam(QString param)
{
    checkGuiThread("CDropDownButtonGroup::setParam");
    const QVector<int> own = getButtonList().toVector();
    QVector<int> listed = numbersOf(param);
    listed.erase(std::remove_if(listed.begin(), listed.end(), [&own](int id) { return !own.contains(id); }),
                 listed.end());
    if (listed.isEmpty())
        return;
    std::vector<GroupEntry> ordered;
    for (int id : orderedAs(listed, own)) {
        ordered.push_back(*d->find(id));
        ordered.back().shown = listed.contains(id);
    }
    const bool changes = !std::equal(ordered.begin(), ordered.end(), d->entries.begin(), isSameEntry);
    d->entries = std::move(ordered);
    d->layOut();
    if (changes)
        updateGeometry();
}

void CDropDownButtonGroup::resetLayout()
{
    checkGuiThread("CDropDownButtonGroup::resetLayout");
    d->layOut();
}

QSize CDropDownButtonGroup::sizeHint() const
{
    const int length = stripLength(extentsOf(d->placedEntries()), d->size(keys::kButtonGap)) + d->helpExtent();
    const QSize size(length, resources::size(keys::kStripHeight, 1.0));
    return d->isVertical() ? size.transposed() : size;
}

QSize CDropDownButtonGroup::minimumSizeHint() const
{
    const QSize size(d->size(keys::kDropDownButton) + d->helpExtent(), 0);
    return d->isVertical() ? size.transposed() : size;
}

void CDropDownButtonGroup::themeChanged()
{
    update();
}

void CDropDownButtonGroup::scaleChanged()
{
    d->layOut();
    updateGeometry();
}

bool CDropDownButtonGroup::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Show:
        d->layOut();
        break;
    case QEvent::ChildRemoved:
        d->forget(static_cast<QChildEvent*>(event)->child());
        break;
    default:
        break;
    }
    return CEventWidgetT<QWidget>::event(event);
}

void CDropDownButtonGroup::resizeEvent(QResizeEvent*)
{
    d->layOut();
}

void CDropDownButtonGroup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), resources::color(keys::kWindow));
}

void CDropDownButtonGroup::keyPressEvent(QKeyEvent* event)
{
    const int back = d->isVertical() ? Qt::Key_Up : Qt::Key_Left;
    const int forward = d->isVertical() ? Qt::Key_Down : Qt::Key_Right;
    if (event->key() == back || event->key() == forward)
        d->moveFocus(event->key() == forward);
    else
        event->ignore();
}

} // namespace WQ
