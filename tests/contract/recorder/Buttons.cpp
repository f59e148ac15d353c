#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"
#include "contract/recorder/Watch.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>

#include <QEvent>

#include <algorithm>

namespace WQ {

using recorder::Ask;
using recorder::Do;
using recorder::record;

namespace {

QString buttonName(int id)
{
    return QStringLiteral("button%1").arg(id);
}

} // namespace

class CPushButtonPrivate
{
public:
    int id = 0;
    QString icon;

    QString call(const char* name) const
    {
        return buttonName(id) + QLatin1Char('.') + QLatin1String(name);
    }
};

CPushButton::CPushButton(const CButtonColor& color, int id, QWidget* parent)
    : CEventWidgetT<QPushButton>(parent)
    , d(std::make_unique<CPushButtonPrivate>())
{
    d->id = id;
    setCheckable(true);
    record(Do, QStringLiteral("new CPushButton"), color, id, static_cast<const QWidget*>(parent));
    recorder::watch(this, buttonName(id));
}

CPushButton::CPushButton(const QString& imageKey, int id, int a, int b, int c, int e, QWidget* parent)
    : CEventWidgetT<QPushButton>(parent)
    , d(std::make_unique<CPushButtonPrivate>())
{
    d->id = id;
    record(Do, QStringLiteral("new CPushButton"), imageKey, id, a, b, c, e, static_cast<const QWidget*>(parent));
    recorder::watch(this, buttonName(id));
}

CPushButton::~CPushButton() = default;

int CPushButton::id() const
{
    return d->id;
}

void CPushButton::setTextColorKey(const char* normal, const char* hover, const char* checked, const char* disabled)
{
    record(Do, d->call("setTextColorKey"), normal, hover, checked, disabled);
}

void CPushButton::setButtonDownStyle(EPushButtonDownStyle style)
{
    record(Do, d->call("setButtonDownStyle"), int(style));
}

void CPushButton::setIcon(const QString& imageKey, EIconAlign align, int constant)
{
    record(Do, d->call("setIcon"), imageKey, int(align), constant);
    d->icon = imageKey;
}

QString CPushButton::iconKey() const
{
    return d->icon;
}

int CPushButton::getMinWidth() const
{
    record(Ask, d->call("getMinWidth"));
    return recorder::state().buttonMinWidth;
}

QSize CPushButton::sizeHint() const
{
    return QPushButton::sizeHint();
}

QSize CPushButton::minimumSizeHint() const
{
    return QPushButton::minimumSizeHint();
}

void CPushButton::themeChanged()
{
}

void CPushButton::scaleChanged()
{
}

void CPushButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
}

bool CPushButton::event(QEvent* event)
{
    return QPushButton::event(event);
}

class CDropDownButtonGroupPrivate
{
public:
    QList<CPushButton*> buttons;
    int checked = -1;

    CPushButton* button(int id) const
    {
        const auto found =
            std::find_if(buttons.begin(), buttons.end(), [id](const CPushButton* one) { return one->id() == id; });
        return found == buttons.end() ? nullptr : *found;
    }
};

CDropDownButtonGroup::CDropDownButtonGroup(Qt::Orientation orientation, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CDropDownButtonGroupPrivate>())
{
    record(Do, QStringLiteral("new CDropDownButtonGroup"), int(orientation), static_cast<const QWidget*>(parent));
    recorder::watch(this, QStringLiteral("group"));
}

CDropDownButtonGroup::~CDropDownButtonGroup() = default;

int CDropDownButtonGroup::addButton(CPushButton* button, EWidgetAnchor anchor)
{
    record(Do, QStringLiteral("group.addButton"), static_cast<const QWidget*>(button), int(anchor));
    d->buttons << button;
    if (button->isChecked())
        d->checked = button->id();
    return d->buttons.size() - 1;
}

QList<int> CDropDownButtonGroup::getButtonList()
{
    record(Ask, QStringLiteral("group.getButtonList"));
    QList<int> ids;
    for (const CPushButton* button : qAsConst(d->buttons))
        ids << button->id();
    return ids;
}

int CDropDownButtonGroup::selectedButton() const
{
    record(Ask, QStringLiteral("group.selectedButton"));
    return d->checked;
}

void CDropDownButtonGroup::setCheckedByID(int id)
{
    record(Do, QStringLiteral("group.setCheckedByID"), id);
    if (d->button(id))
        d->checked = id;
}

void CDropDownButtonGroup::clearAllCheck()
{
    record(Do, QStringLiteral("group.clearAllCheck"));
    d->checked = -1;
}

void CDropDownButtonGroup::setVisibleByID(int id, bool visible)
{
    record(Do, QStringLiteral("group.setVisibleByID"), id, visible);
}

void CDropDownButtonGroup::showSelectButton(int id)
{
    record(Do, QStringLiteral("group.showSelectButton"), id);
}

int CDropDownButtonGroup::getBtnIDByName(QString name)
{
    record(Ask, QStringLiteral("group.getBtnIDByName"), name);
    const auto found = std::find_if(d->buttons.begin(), d->buttons.end(),
                                    [&name](const CPushButton* one) { return one->text() == name; });
    return found == d->buttons.end() ? -1 : (*found)->id();
}

QString CDropDownButtonGroup::getBtnNameByID(int id)
{
    record(Ask, QStringLiteral("group.getBtnNameByID"), id);
    const CPushButton* const found = d->button(id);
    return found ? found->text() : QString();
}

void CDropDownButtonGroup::setHelpButtonVisible(bool visible)
{
    record(Do, QStringLiteral("group.setHelpButtonVisible"), visible);
}

void CDropDownButtonGroup::setHelpButtonCritical(bool critical)
{
    record(Do, QStringLiteral("group.setHelpButtonCritical"), critical);
}

QString CDropDownButtonGroup::getParam()
{
    record(Ask, QStringLiteral("group.getParam"));
    return recorder::state().groupParam;
}

void CDropDownButtonGroup::setParam(QString param)
{
    record(Do, QStringLiteral("group.setParam"), param);
}

void CDropDownButtonGroup::resetLayout()
{
    record(Do, QStringLiteral("group.resetLayout"));
}

QSize CDropDownButtonGroup::sizeHint() const
{
    return QWidget::sizeHint();
}

QSize CDropDownButtonGroup::minimumSizeHint() const
{
    return QWidget::minimumSizeHint();
}

void CDropDownButtonGroup::themeChanged()
{
}

void CDropDownButtonGroup::scaleChanged()
{
}

bool CDropDownButtonGroup::event(QEvent* event)
{
    return QWidget::event(event);
}

void CDropDownButtonGroup::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
}

void CDropDownButtonGroup::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
}

void CDropDownButtonGroup::keyPressEvent(QKeyEvent* event)
{
    QWidget::keyPressEvent(event);
}

} // namespace WQ
