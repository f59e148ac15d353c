#include "monkey/Input.h"

#include <QApplication>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QWheelEvent>
#include <QtTest>

namespace monkey {

namespace {

struct KeyPress
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

// clang-format off
constexpr KeyPress kKeys[] = {
    {Qt::Key_Tab,       Qt::NoModifier},      {Qt::Key_Tab,       Qt::NoModifier},
    {Qt::Key_Backtab,   Qt::ShiftModifier},   {Qt::Key_Return,    Qt::NoModifier},
    {Qt::Key_Return,    Qt::NoModifier},      {Qt::Key_Enter,     Qt::KeypadModifier},
    {Qt::Key_Space,     Qt::NoModifier},      {Qt::Key_Space,     Qt::NoModifier},
    {Qt::Key_Escape,    Qt::NoModifier},      {Qt::Key_F2,        Qt::NoModifier},
    {Qt::Key_F4,        Qt::NoModifier},      {Qt::Key_Menu,      Qt::NoModifier},
    {Qt::Key_Up,        Qt::NoModifier},      {Qt::Key_Down,      Qt::NoModifier},
    {Qt::Key_Down,      Qt::NoModifier},      {Qt::Key_Left,      Qt::NoModifier},
    {Qt::Key_Right,     Qt::NoModifier},      {Qt::Key_PageUp,    Qt::NoModifier},
    {Qt::Key_PageDown,  Qt::NoModifier},      {Qt::Key_Home,      Qt::NoModifier},
    {Qt::Key_End,       Qt::NoModifier},      {Qt::Key_Down,      Qt::AltModifier},
    {Qt::Key_Up,        Qt::AltModifier},     {Qt::Key_Up,        Qt::ControlModifier},
    {Qt::Key_Down,      Qt::ShiftModifier},   {Qt::Key_Delete,    Qt::NoModifier},
    {Qt::Key_Backspace, Qt::NoModifier},      {Qt::Key_A,         Qt::ControlModifier},
    {Qt::Key_C,         Qt::ControlModifier}, {Qt::Key_V,         Qt::ControlModifier},
    {Qt::Key_X,         Qt::ControlModifier}, {Qt::Key_Z,         Qt::ControlModifier},
    {Qt::Key_Y,         Qt::ControlModifier}, {Qt::Key_F10,       Qt::ShiftModifier},
};

constexpr int kNotches[] = {120, -120, 240, -240, 15, -15, 600, -600, 0};

constexpr const char* kTyped[] = {"0", "1", "5", "12", "100", "2000", "0.5", "9.875", "-3", "99999999999", "1,234",
                                  "10:30:00", "24:00:00", "101500", "abc", ".", "-", "e", "+", "7x"};
// clang-format on

struct HeldKey
{
    Qt::KeyboardModifier modifier;
    Qt::Key key;
};

constexpr HeldKey kHeldKeys[] = {
    {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};

constexpr Qt::KeyboardModifiers kHeld[] = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                           Qt::ControlModifier};

QString composed(Random& random)
{
    static const QString texts[] = {QStringLiteral("五"), QStringLiteral("１２．５"), QStringLiteral("备注"),
                                    QStringLiteral("。"), QString()};
    return random.pick(texts);
}

QPoint inside(const QPoint& at, const QSize& size)
{
    return {qBound(0, at.x(), qMax(0, size.width() - 1)), qBound(0, at.y(), qMax(0, size.height() - 1))};
}

QPoint somewhereIn(Random& random, const QWidget& widget)
{
    return {random.below(qMax(1, widget.width())), random.below(qMax(1, widget.height()))};
}

} // namespace

// clang-format off
const std::vector<Input::Deed>& Input::deeds()
{
    static const std::vector<Deed> rows = {
        {22, "click",        &Input::click},
        { 5, "double click", &Input::doubleClick},
        { 3, "right click",  &Input::rightClick},
        { 3, "drag",         &Input::drag},
        { 5, "move",         &Input::move},
        { 8, "wheel",        &Input::turnWheel},
        {24, "key",          &Input::key},
        { 8, "type",         &Input::type},
        {12, "enter",        &Input::enter},
        { 2, "compose",      &Input::compose},
        { 1, "tooltip",      &Input::askToolTip},
    };
    return rows;
}
// clang-format on

Input::Input(Random& random, std::function<void(const QString&)> say)
    : m_random(random)
    , m_say(std::move(say))
{
}

void Input::act(QWidget* window)
{
    const Place place = placeIn(window);
    const Deed& deed = m_random.weighted(deeds());
    if (!place.window)
        return;
    m_say(QStringLiteral("%1 at %2,%3 of %4")
              .arg(QLatin1String(deed.name), QString::number(place.at.x()), QString::number(place.at.y()),
                   QLatin1String(window->metaObject()->className())));
    (this->*deed.act)(place);
}

void Input::closePopups()
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

/// Half of the time a place in one of the window's widgets, so that small ones are met as well. What is open above the
/// window is what a person mostly looks at.
Input::Place Input::placeIn(QWidget* window)
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup && !m_random.oneIn(6) ? popup : window;
    QPoint at = somewhereIn(m_random, *target);
    if (m_random.oneIn(2)) {
        QList<QWidget*> shown;
        for (QWidget* child : target->findChildren<QWidget*>()) {
            if (child->isVisible() && child->window() == target && !child->visibleRegion().isEmpty())
                shown << child;
        }
        if (!shown.isEmpty()) {
            QWidget* child = m_random.pick(shown);
            at = child->mapTo(target, somewhereIn(m_random, *child));
        }
    }
    return {target->isVisible() ? target->windowHandle() : nullptr, inside(at, target->size())};
}

void Input::press(const Place& place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    if (place.window)
        QTest::mousePress(place.window.data(), button, modifiers, inside(place.at, place.window->size()));
}

// A button that was pressed comes up again, whatever has become of the window.
void Input::release(const Place& place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QWindow* window = place.window && place.window->isVisible() ? place.window.data() : nullptr;
    for (QWindow* other : QGuiApplication::topLevelWindows()) {
        if (!window && other->isVisible())
            window = other;
    }
    if (window)
        QTest::mouseRelease(window, button, modifiers, inside(place.at, window->size()));
}

void Input::sendKey(const Place& place, bool isDown, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    if (place.window)
        QTest::simulateEvent(place.window.data(), isDown, key, modifiers, text, false);
}

// Each key that is held goes out by itself, and the window may go with any of them: Alt closes a menu.
void Input::pressKey(const Place& place, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const char ascii = QTest::keyToAscii(key);
    const QString text = ascii ? QString(QLatin1Char(ascii)) : QString();
    const auto hold = [&](bool isDown) {
        for (const HeldKey& held : kHeldKeys)
            if (modifiers & held.modifier)
                sendKey(place, isDown, held.key, Qt::NoModifier, QString());
    };
    hold(true);
    for (const bool isDown : {true, false})
        sendKey(place, isDown, key, modifiers, text);
    hold(false);
}

void Input::click(const Place& place)
{
    const Qt::KeyboardModifiers held = m_random.pick(kHeld);
    const Qt::MouseButton button = m_random.oneIn(20) ? Qt::MiddleButton : Qt::LeftButton;
    press(place, button, held);
    release(place, button, held);
}

void Input::doubleClick(const Place& place)
{
    click(place);
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    press(place, Qt::LeftButton, Qt::NoModifier);
    release(place, Qt::LeftButton, Qt::NoModifier);
}

void Input::rightClick(const Place& place)
{
    press(place, Qt::RightButton, Qt::NoModifier);
    release(place, Qt::RightButton, Qt::NoModifier);
}

void Input::drag(const Place& place)
{
    press(place, Qt::LeftButton, Qt::NoModifier);
    Place to = place;
    for (int step = m_random.between(1, 4); step > 0; --step) {
        to.at += QPoint(m_random.between(-30, 30), m_random.between(-60, 60));
        move(to);
    }
    release(to, Qt::LeftButton, Qt::NoModifier);
}

void Input::move(const Place& place)
{
    if (place.window && place.window->isVisible())
        QTest::mouseMove(place.window.data(), inside(place.at, place.window->size()));
}

void Input::turnWheel(const Place& place)
{
    const int notches = m_random.pick(kNotches);
    const Qt::KeyboardModifiers held = m_random.pick(kHeld);
    const QPoint angle = m_random.oneIn(8) ? QPoint(notches, 0) : QPoint(0, notches);
    for (int turns = m_random.between(1, 3); turns > 0 && place.window; --turns) {
        QWheelEvent event(place.at, place.window->mapToGlobal(place.at), QPoint(), angle, Qt::NoButton, held,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(place.window, &event);
        QCoreApplication::processEvents();
    }
}

void Input::key(const Place& place)
{
    const KeyPress& press = m_random.pick(kKeys);
    pressKey(place, press.key, press.modifiers);
}

void Input::type(const Place& place)
{
    for (const char* at = m_random.pick(kTyped); *at; ++at)
        for (const bool isDown : {true, false})
            sendKey(place, isDown, QTest::asciiToKey(*at), Qt::NoModifier, QString(QLatin1Char(*at)));
}

// What people mostly do: point at something, type over it and say that this is it.
void Input::enter(const Place& place)
{
    click(place);
    type(place);
    pressKey(place, m_random.oneIn(3) ? Qt::Key_Tab : Qt::Key_Return, Qt::NoModifier);
}

// An input method shows what it composes before it commits.
void Input::compose(const Place&)
{
    const QString text = composed(m_random);
    QInputMethodEvent composing(text, {});
    QInputMethodEvent committing;
    committing.setCommitString(text);
    for (QInputMethodEvent* event : {&composing, &committing}) {
        if (QObject* focus = QGuiApplication::focusObject())
            QCoreApplication::sendEvent(focus, event);
    }
}

void Input::askToolTip(const Place& place)
{
    const QPoint global = place.window->mapToGlobal(place.at);
    if (QWidget* widget = QApplication::widgetAt(global)) {
        QHelpEvent event(QEvent::ToolTip, widget->mapFromGlobal(global), global);
        QCoreApplication::sendEvent(widget, &event);
    }
}

} // namespace monkey
