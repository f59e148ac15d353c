#include <WQ/CParameterCell.h>

#include "reference/toolkit/AccessibleCell.h"
#include "reference/toolkit/CParameterCellPrivate.h"
#include "reference/toolkit/GuiThread.h"
#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace WQ {

CParameterCell::CParameterCell(int id, const QString& label, const QString& unit, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CParameterCellPrivate>(this, id, label, unit))
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(label.trimmed());
    makeCellsAccessible();
}

CParameterCell::~CParameterCell() = default;

void CParameterCell::setDoubleValidator(const QString& message, double min, double max, double step)
{
    checkGuiThread("CParameterCell::setDoubleValidator");
    d->rule = {true, message, min, max, step};
    d->judge();
}

void CParameterCell::setDouble(double value)
{
    checkGuiThread("CParameterCell::setDouble");
    d->set(CParameterCellPrivate::Holds::Double, value, QString());
}

void CParameterCell::setInt(int value)
{
    checkGuiThread("CParameterCell::setInt");
    d->set(CParameterCellPrivate::Holds::Int, value, QString());
}

void CParameterCell::setString(const QString& text)
{
    checkGuiThread("CParameterCell::setString");
    d->set(CParameterCellPrivate::Holds::Text, 0, text);
}

void CParameterCell::setUnit(const QString& unit)
{
    checkGuiThread("CParameterCell::setUnit");
    d->unit = unit;
    d->placeEditor();
    update();
}

void CParameterCell::setEditFontKey(const QString& key)
{
    checkGuiThread("CParameterCell::setEditFontKey");
    d->valueFontKey = key;
    update();
}

void CParameterCell::setTextFontKey(const QString& key)
{
    checkGuiThread("CParameterCell::setTextFontKey");
    d->labelFontKey = key;
    update();
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
    return d->plainText();
}

double CParameterCell::minimum() const
{
    return d->rule.min;
}

double CParameterCell::maximum() const
{
    return d->rule.max;
}

double CParameterCell::step() const
{
    return d->rule.step;
}

QString CParameterCell::formatInvalidMessage(double min, double max)
{
    return limitsMessage(min, max);
}

QString CParameterCell::formatInvalidMessage(int min, int max)
{
    return limitsMessage(min, max);
}

QSize CParameterCell::sizeHint() const
{
    const double scale = painting::scaleOf(this);
    const auto size = [scale](const QString& key) { return resources::size(key, scale); };
    const int label = d->label.trimmed().isEmpty() ? 0 : size(keys::kFieldLabelWidth) + size(keys::kFieldGap);
    return {label + size(keys::kFieldWidth), size(keys::kFieldHeight)};
}

void CParameterCell::themeChanged()
{
    d->judge();
}

void CParameterCell::scaleChanged()
{
    d->placeEditor();
    updateGeometry();
    update();
}

bool CParameterCell::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const QPointer<CParameterCell> self(this);
        const QString text = d->wrong ? d->wrongMessage() : d->elidedTexts();
        if (self)
            painting::showToolTip(*static_cast<QHelpEvent*>(event), text, this);
        return true;
    }
    case QEvent::KeyPress:
        if (d->keyPressed(*static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton
            && d->places().field.contains(static_cast<QMouseEvent*>(event)->pos()))
            d->edit(d->plainText(), true);
        break;
    case QEvent::Hide:
        d->finish();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    default:
        break;
    }
    return CEventWidgetT<QWidget>::event(event);
}

void CParameterCell::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        d->finish();
    update();
    CEventWidgetT<QWidget>::changeEvent(event);
}

void CParameterCell::resizeEvent(QResizeEvent*)
{
    d->placeEditor();
}

void CParameterCell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    d->paint(painter);
}

} // namespace WQ
