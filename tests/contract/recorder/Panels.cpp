#include "contract/recorder/CallLog.h"
#include "contract/recorder/Watch.h"

#include <WQ/CBaseDialog.h>
#include <WQ/CBaseWidget.h>
#include <WQ/CCustomDialog.h>
#include <WQ/CFloatWidget.h>

#include <QVariant>

// The bases of the library's own widgets, and the events that they deliver.
namespace WQ {

using recorder::Do;
using recorder::record;
using recorder::written;

namespace {

QString payloadText(const CEventDeliverer* sender, int event, void* data)
{
    constexpr int kCellChanged = 73;
    constexpr int kPriceQuoted = 1062;
    if (!data)
        return QStringLiteral("null");
    if (data == dynamic_cast<const QWidget*>(sender))
        return QStringLiteral("this");
    if (event == kCellChanged)
        return written(*static_cast<QVariant*>(data));
    return event == kPriceQuoted ? written(*static_cast<double*>(data)) : QStringLiteral("data");
}

void recordUnhandled(const char* base, int event, int a, int b, const QString& text, void* payload)
{
    const QString call = QLatin1String(base) + QStringLiteral("::handleEvent(%1, %2, %3, ").arg(event).arg(a).arg(b);
    recorder::recordLine(Do, call + written(text) + QLatin1String(payload ? ", data)" : ", null)"));
}

} // namespace

CEventDeliverer::CEventDeliverer() = default;

CEventDeliverer::~CEventDeliverer() = default;

void CEventDeliverer::deliverEvent(int event, int a, int b, QString text, void* data)
{
    recorder::recordLine(recorder::Send,
                         QStringLiteral("deliver(%1, %2, %3, ").arg(event).arg(a).arg(b) + written(text)
                             + QLatin1String(", ") + payloadText(this, event, data) + QLatin1Char(')'));
}

bool CEventDeliverer::handleEvent(int, int, int, QString, void*)
{
    return false;
}

class CBaseWidgetPrivate
{
};

CBaseWidget::CBaseWidget(QString objectName, bool active, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
{
    setObjectName(objectName);
    record(Do, QStringLiteral("new CBaseWidget"), objectName, active, parent);
    recorder::watch(this, QStringLiteral("panel"));
}

CBaseWidget::~CBaseWidget() = default;

/// What no table handles itself arrives here; it is answered with true, unlike anything else.
bool CBaseWidget::handleEvent(int event, int a, int b, QString text, void* payload)
{
    recordUnhandled("CBaseWidget", event, a, b, text, payload);
    return true;
}

void CBaseWidget::themeChanged()
{
    record(Do, QStringLiteral("CBaseWidget::themeChanged"));
}

void CBaseWidget::scaleChanged()
{
    record(Do, QStringLiteral("CBaseWidget::scaleChanged"));
}

void CBaseWidget::setFixFont()
{
    record(Do, QStringLiteral("CBaseWidget::setFixFont"));
}

QRect CBaseWidget::getMaskRect() const
{
    return rect();
}

void CBaseWidget::setActive(bool, bool)
{
}

void CBaseWidget::onActive()
{
}

void CBaseWidget::paintBackgroud(QPainter&)
{
    record(Do, QStringLiteral("CBaseWidget::paintBackgroud"));
}

void CBaseWidget::paintEvent(QPaintEvent* event)
{
    record(Do, QStringLiteral("CBaseWidget::paintEvent"));
    QWidget::paintEvent(event);
}

CBaseDialog::CBaseDialog(QWidget* parent)
    : CEventWidgetT<QDialog>(parent)
{
}

CBaseDialog::~CBaseDialog() = default;

bool CBaseDialog::handleEvent(int event, int a, int b, QString text, void* payload)
{
    recordUnhandled("CBaseDialog", event, a, b, text, payload);
    return false;
}

void CBaseDialog::themeChanged()
{
}

void CBaseDialog::scaleChanged()
{
}

bool CBaseDialog::checkOK()
{
    return true;
}

void CBaseDialog::onOK()
{
}

void CBaseDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
}

CCustomDialog::CCustomDialog(QWidget* parent)
    : CBaseDialog(parent)
{
}

CCustomDialog::~CCustomDialog() = default;

void CCustomDialog::paintEvent(QPaintEvent* event)
{
    CBaseDialog::paintEvent(event);
}

class CFloatWidgetPrivate
{
};

CFloatWidget::CFloatWidget(bool closable, QWidget* parent)
    : CCustomDialog(parent)
{
    record(Do, QStringLiteral("new CFloatWidget"), closable, parent);
    recorder::watch(this, QStringLiteral("dialog"));
}

CFloatWidget::~CFloatWidget() = default;

void CFloatWidget::setTitle(QString title)
{
    record(Do, QStringLiteral("dialog.setTitle"), title);
}

void CFloatWidget::themeChanged()
{
}

void CFloatWidget::paintEvent(QPaintEvent* event)
{
    CCustomDialog::paintEvent(event);
}

void CFloatWidget::resizeEvent(QResizeEvent* event)
{
    CCustomDialog::resizeEvent(event);
}

void CFloatWidget::mousePressEvent(QMouseEvent* event)
{
    CCustomDialog::mousePressEvent(event);
}

void CFloatWidget::mouseMoveEvent(QMouseEvent* event)
{
    CCustomDialog::mouseMoveEvent(event);
}

void CFloatWidget::mouseReleaseEvent(QMouseEvent* event)
{
    CCustomDialog::mouseReleaseEvent(event);
}

void CFloatWidget::keyPressEvent(QKeyEvent* event)
{
    CCustomDialog::keyPressEvent(event);
}

void CFloatWidget::contextMenuEvent(QContextMenuEvent* event)
{
    CCustomDialog::contextMenuEvent(event);
}

} // namespace WQ
