#include <WQ/CPushButton.h>

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/EventNumbers.h>

#include <QHash>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace WQ {

namespace {

// Where a button's colours stand in its two lists of four keys.
enum class Look : size_t { Normal, Hover, Checked, Disabled };

using ColorKeys = std::array<QString, 4>;

ColorKeys groundKeys(const CButtonColor& color)
{
    return {color.normal, color.hover, color.checked, color.disabled};
}

const QString& keyOf(const ColorKeys& colors, Look look)
{
    return colors[static_cast<size_t>(look)];
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

constexpr int kWidthsKept = 256;
constexpr int kLongestKept = 64;

// The checked text is the wider one; a button keeps its width when it is checked.
int measuredWidth(const QString& text, double scale)
{
    return std::max(painting::textWidth(resources::font(keys::kTextFont, scale), text),
                    painting::textWidth(resources::font(keys::kCheckedFont, scale), text));
}

// Every panel has the same few buttons, and a group asks for their widths again at each of its layouts.
int buttonTextWidth(const QString& text, double scale)
{
    static auto* const widths = new QHash<QPair<QString, double>, int>;
    if (text.isEmpty())
        return 0;
    if (text.size() > kLongestKept)
        return measuredWidth(text, scale);
    const QPair<QString, double> key(text, scale);
    const auto found = widths->constFind(key);
    if (found != widths->constEnd())
        return *found;
    if (widths->size() >= kWidthsKept)
        widths->clear();
    return *widths->insert(key, measuredWidth(text, scale));
}

} // namespace

class CPushButtonPrivate
{
public:
    CPushButtonPrivate(CPushButton* owner, int buttonId, ColorKeys groundColors)
        : button(owner)
        , id(buttonId)
        , grounds(std::move(groundColors))
    {
    }

    void setUp();
    Look look() const;
    QFont font(bool checked) const;
    int padding() const;
    int iconEdge() const;
    int gap() const;
    int contentWidth() const;
    bool isEmpty() const;
    QRect textRect(const QRect& content) const;
    void paintGround(QPainter& painter) const;
    void paintContent(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    bool isElided() const;

    CPushButton* const button;
    const int id;
    ColorKeys grounds;
    ColorKeys texts{keys::kLabel, keys::kValue, keys::kValue, keys::kUnit};
    EPushButtonDownStyle downStyle = DownStylePlain;
    QString icon;
    EIconAlign iconAlign = IconAlignCenter;
};

void CPushButtonPrivate::setUp()
{
    button->setAttribute(Qt::WA_Hover);
    button->setAutoDefault(false);
    button->setDefault(false);
    button->setFlat(true);
    button->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [this] { postPersonEvent(button, *button, events::kButtonClicked, id, 0, button->text()); });
}

Look CPushButtonPrivate::look() const
{
    if (!button->isEnabled())
        return Look::Disabled;
    if (button->isChecked() || button->isDown())
        return Look::Checked;
    return button->underMouse() ? Look::Hover : Look::Normal;
}

QFont CPushButtonPrivate::font(bool checked) const
{
    return resources::font(checked ? keys::kCheckedFont : keys::kTextFont, painting::buttonScaleOf(button));
}

int CPushButtonPrivate::padding() const
{
    return resources::size(keys::kButtonPadding, painting::buttonScaleOf(button));
}

int CPushButtonPrivate::iconEdge() const
{
    return icon.isEmpty() ? 0 : resources::size(keys::kIcon, painting::buttonScaleOf(button));
}

int CPushButtonPrivate::gap() const
{
    return icon.isEmpty() || button->text().isEmpty() ? 0 : padding();
}

bool CPushButtonPrivate::isEmpty() const
{
    return icon.isEmpty() && button->text().isEmpty();
}

int CPushButtonPrivate::contentWidth() const
{
    return buttonTextWidth(button->text(), painting::buttonScaleOf(button)) + gap() + iconEdge();
}

QRect CPushButtonPrivate::textRect(const QRect& content) const
{
    const int taken = iconEdge() + gap();
    return iconAlign == IconAlignRight ? content.adjusted(0, 0, -taken, 0) : content.adjusted(taken, 0, 0, 0);
}

bool CPushButtonPrivate::isElided() const
{
    const int room = button->width() - 2 * padding() - gap() - iconEdge();
    return painting::textWidth(font(button->isChecked()), button->text()) > room;
}

void CPushButtonPrivate::paintGround(QPainter& painter) const
{
    const QString& key = keyOf(grounds, look());
    if (!key.isEmpty())
        painter.fillRect(button->rect(), resources::color(key));
}

// Text and image stand together in the middle; what is too wide starts at the left padding and is elided.
void CPushButtonPrivate::paintContent(QPainter& painter) const
{
    const QColor& color = resources::color(keyOf(texts, look()));
    const int room = std::max(0, button->width() - 2 * padding());
    const int used = std::min(room, contentWidth());
    const QRect content((button->width() - used) / 2, 0, used, button->height());
    const int edge = iconEdge();
    const int iconLeft = iconAlign == IconAlignRight ? content.left() + content.width() - edge : content.left();
    painting::drawImage(painter, QRect(iconLeft, 0, edge, button->height()), icon, color, edge);
    painting::drawText(painter, textRect(content), font(button->isChecked()), color, Qt::AlignCenter, button->text());
}

void CPushButtonPrivate::paintMarks(QPainter& painter) const
{
    if (downStyle == DownStyleUnderline && button->isChecked()) {
        const int line = resources::size(keys::kUnderline, painting::buttonScaleOf(button));
        const QString& key = button->isEnabled() ? keys::kAccent : keys::kUnit;
        painter.fillRect(0, button->height() - line, button->width(), line, resources::color(key));
    }
    if (button->hasFocus())
        painting::drawFrame(painter, button->rect(), resources::color(keys::kAccent));
}

CPushButton::CPushButton(const CButtonColor& color, int id, QWidget* parent)
    : CEventWidgetT<QPushButton>(parent)
    , d(std::make_unique<CPushButtonPrivate>(this, id, groundKeys(color)))
{
    d->setUp();
    setCheckable(true);
}

CPushButton::CPushButton(const QString& imageKey, int id, int, int, int, int, QWidget* parent)
    : CEventWidgetT<QPushButton>(parent)
    , d(std::make_unique<CPushButtonPrivate>(this, id,
                                             ColorKeys{keys::kWindow, keys::kRowMouse, keys::kRow, keys::kWindow}))
{
    d->icon = imageKey;
    d->setUp();
}

CPushButton::~CPushButton() = default;

int CPushButton::id() const
{
    return d->id;
}

void CPushButton::setTextColorKey(const char* normal, const char* hover, const char* checked, const char* disabled)
{
    const std::array<const char*, 4> given{normal, hover, checked, disabled};
    for (size_t i = 0; i < given.size(); ++i)
        if (given[i])
            d->texts[i] = QString::fromUtf8(given[i]);
    update();
}

void CPushButton::setButtonDownStyle(EPushButtonDownStyle style)
{
    d->downStyle = style;
    update();
}

void CPushButton::setIcon(const QString& imageKey, EIconAlign align, int)
{
    d->icon = imageKey;
    d->iconAlign = align;
    updateGeometry();
    update();
}

QString CPushButton::iconKey() const
{
    return d->icon;
}

int CPushButton::getMinWidth() const
{
    return d->contentWidth() + 2 * d->padding();
}

QSize CPushButton::sizeHint() const
{
    if (d->isEmpty())
        return {0, 0};
    return {getMinWidth(), resources::size(keys::kFieldHeight, painting::buttonScaleOf(this))};
}

QSize CPushButton::minimumSizeHint() const
{
    return d->isEmpty() ? QSize(0, 0) : QSize(2 * d->padding() + d->iconEdge(), sizeHint().height());
}

void CPushButton::themeChanged()
{
    update();
}

void CPushButton::scaleChanged()
{
    updateGeometry();
    update();
}

void CPushButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    d->paintGround(painter);
    d->paintContent(painter);
    d->paintMarks(painter);
}

bool CPushButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        painting::showToolTip(*static_cast<QHelpEvent*>(event), d->isElided() ? text() : QString(), this);
        return true;
    }
    // A group moves the focus among its buttons; elsewhere arrow keys are the surroundings' too. A window hands its
    // keys to what had the focus last, though that be hidden by now.
    const bool isKey = event->type() == QEvent::KeyPress;
    if (isKey && (isArrow(static_cast<QKeyEvent*>(event)->key()) || !isVisibleTo(window()))) {
        event->ignore();
        return false;
    }
    return CEventWidgetT<QPushButton>::event(event);
}

} // namespace WQ
