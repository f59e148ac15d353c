#pragma once

#include "monkey/Random.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <QWindow>

#include <functional>
#include <vector>

namespace monkey {

/// A person without a plan: real mouse, wheel and key events at the windows, so that Qt hands them to whatever would
/// get them, be it the widget under the mouse, an open list or menu, or what has the focus.
class Input
{
public:
    /// @p say is told what is done before it is done.
    Input(Random& random, std::function<void(const QString& what)> say);

    /// Does something in a visible window.
    void act(QWidget* window);

    /// Closes whatever list or menu is open.
    static void closePopups();

private:
    struct Place
    {
        QPointer<QWindow> window;
        QPoint at;
    };

    struct Deed
    {
        int weight;
        const char* name;
        void (Input::*act)(const Place& place);
    };

    static const std::vector<Deed>& deeds();

    Place placeIn(QWidget* window);
    void press(const Place& place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void release(const Place& place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    static void sendKey(const Place& place, bool isDown, int key, Qt::KeyboardModifiers modifiers, const QString& text);
    static void pressKey(const Place& place, Qt::Key key, Qt::KeyboardModifiers modifiers);

    void click(const Place& place);
    void doubleClick(const Place& place);
    void rightClick(const Place& place);
    void drag(const Place& place);
    void move(const Place& place);
    void turnWheel(const Place& place);
    void key(const Place& place);
    void type(const Place& place);
    void enter(const Place& place);
    void compose(const Place& place);
    void askToolTip(const Place& place);

    Random& m_random;
    std::function<void(const QString&)> m_say;
};

} // namespace monkey
