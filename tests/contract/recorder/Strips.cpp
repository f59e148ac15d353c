#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"
#include "contract/recorder/Watch.h"

#include <WQ/CParameterCell.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>

namespace WQ {

using recorder::Ask;
using recorder::Do;
using recorder::record;

class CWidgetListPrivate
{
public:
    QString name;
    int count = 0;

    QString call(const char* operation) const
    {
        return name + QLatin1Char('.') + QLatin1String(operation);
    }
};

CWidgetList::CWidgetList(Qt::Orientation orientation, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CWidgetListPrivate>())
{
    record(Do, QStringLiteral("new CWidgetList"), int(orientation), static_cast<const QWidget*>(parent));
    d->name = orientation == Qt::Horizontal ? QStringLiteral("strip") : QStringLiteral("list");
    recorder::watch(this, d->name);
}

CWidgetList::~CWidgetList() = default;

void CWidgetList::setMargin(int left, int top, int right, int bottom)
{
    record(Do, d->call("setMargin"), left, top, right, bottom);
}

void CWidgetList::setSpacing(int spacing)
{
    record(Do, d->call("setSpacing"), spacing);
}

int CWidgetList::addStretchWidget(QWidget* widget, int stretch, EWidgetAnchor anchor, bool constant)
{
    record(Do, d->call("addStretchWidget"), static_cast<const QWidget*>(widget), stretch, int(anchor), constant);
    return d->count++;
}

int CWidgetList::addFixedWidget(QWidget* widget, EWidgetAnchor anchor, bool constant)
{
    record(Do, d->call("addFixedWidget"), static_cast<const QWidget*>(widget), int(anchor), constant);
    return d->count++;
}

int CWidgetList::addFixedSpace(int size)
{
    record(Do, d->call("addFixedSpace"), size);
    return d->count++;
}

void CWidgetList::themeChanged()
{
}

void CWidgetList::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
}

class CScrollAreaPrivate
{
};

CScrollArea::CScrollArea(QWidget* parent)
    : CEventWidgetT<QScrollArea>(parent)
{
    record(Do, QStringLiteral("new CScrollArea"), static_cast<const QWidget*>(parent));
    recorder::watch(this, QStringLiteral("scroll"));
}

CScrollArea::~CScrollArea() = default;

/// The widget stays its parent's child: nothing here scrolls.
void CScrollArea::setWidget(QWidget* widget)
{
    record(Do, QStringLiteral("scroll.setWidget"), static_cast<const QWidget*>(widget));
}

void CScrollArea::setBackgroundColorKey(QString key)
{
    record(Do, QStringLiteral("scroll.setBackgroundColorKey"), key);
}

int CScrollArea::getScrollBarWidth() const
{
    record(Ask, QStringLiteral("scroll.getScrollBarWidth"));
    return recorder::state().scrollBarWidth;
}

void CScrollArea::themeChanged()
{
}

void CScrollArea::scaleChanged()
{
}

bool CScrollArea::event(QEvent* event)
{
    return QScrollArea::event(event);
}

void CScrollArea::paintEvent(QPaintEvent* event)
{
    QScrollArea::paintEvent(event);
}

void CScrollArea::wheelEvent(QWheelEvent* event)
{
    QScrollArea::wheelEvent(event);
}

class CParameterCellPrivate
{
public:
    int id = 0;
    QString label;

    QString call(const char* name) const
    {
        return QStringLiteral("fact ") + label.trimmed() + QLatin1Char('.') + QLatin1String(name);
    }
};

CParameterCell::CParameterCell(int id, const QString& label, const QString& unit, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CParameterCellPrivate>())
{
    d->id = id;
    d->label = label;
    record(Do, QStringLiteral("new CParameterCell"), id, label, unit, static_cast<const QWidget*>(parent));
    recorder::watch(this, QStringLiteral("fact ") + label.trimmed());
}

CParameterCell::~CParameterCell() = default;

void CParameterCell::setDoubleValidator(const QString& message, double min, double max, double step)
{
    record(Do, d->call("setDoubleValidator"), message, min, max, step);
}

void CParameterCell::setDouble(double value)
{
    record(Do, d->call("setDouble"), value);
}

void CParameterCell::setInt(int value)
{
    record(Do, d->call("setInt"), value);
}

void CParameterCell::setString(const QString& text)
{
    record(Do, d->call("setString"), text);
}

void CParameterCell::setUnit(const QString& unit)
{
    record(Do, d->call("setUnit"), unit);
}

void CParameterCell::setEditFontKey(const QString& key)
{
    record(Do, d->call("setEditFontKey"), key);
}

void CParameterCell::setTextFontKey(const QString& key)
{
    record(Do, d->call("setTextFontKey"), key);
}

int CParameterCell::id() const
{
    return d->id;
}

QString CParameterCell::label() const
{
    return d->label;
}

QString CParameterCell::text() const
{
    return {};
}

double CParameterCell::minimum() const
{
    return 0.0;
}

double CParameterCell::maximum() const
{
    return 0.0;
}

double CParameterCell::step() const
{
    return 0.0;
}

QString CParameterCell::formatInvalidMessage(double, double)
{
    return {};
}

QString CParameterCell::formatInvalidMessage(int, int)
{
    return {};
}

QSize CParameterCell::sizeHint() const
{
    return QWidget::sizeHint();
}

void CParameterCell::themeChanged()
{
}

void CParameterCell::scaleChanged()
{
}

bool CParameterCell::event(QEvent* event)
{
    return QWidget::event(event);
}

void CParameterCell::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
}

void CParameterCell::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
}

void CParameterCell::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
}

} // namespace WQ
