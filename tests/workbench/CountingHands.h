#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QAbstractItemView;
class QComboBox;
class QRect;
class QWidget;
class QWindow;

namespace WQ {
class CMultiParamsTable;
}

namespace workbench {
class MainWindow;
}

namespace person {

/// A person's hands at the whole window, every click and every key counted: a double-click is two clicks, keys that are
/// held together are one, each typed character is one. All of it goes to the window system's windows, so that it meets
/// what lies on top; what cannot be seen cannot be clicked.
class CountingHands
{
public:
    explicit CountingHands(workbench::MainWindow& window);

    /// Goes on at another window, counting on.
    void sitDownAt(workbench::MainWindow& window);

    int clicks() const;
    int keys() const;

    void click(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(QWidget& widget);
    void doubleClick(QWidget& widget, const QPoint& at);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);

    /// @name Parts of a cell of the order panel
    /// @{
    void clickLabel(int cell, Qt::MouseButton button = Qt::LeftButton);
    void clickValue(int cell);
    void clickUnit(int cell);
    void clickCheck(int cell);
    void clickFooter();
    void clickMode(int button);
    /// @}

    /// In the list or menu that is open: the entry that begins with the text.
    void clickEntry(const QString& start);

    /// In the open filter.
    void clickFilterRow(int row);
    void clickFilterApply();
    void clickFilterReset();

    /// The button or box of that text, mnemonic aside, in that part of the window.
    void clickButton(const QWidget& part, const QString& text);

    /// The part of that title: its tab, or the button that closes it.
    void clickTab(const QString& title);
    void clickClose(const QString& title);

    void clickMenu(const QString& title);
    void clickArrow(QComboBox& combo);
    void clickRow(QAbstractItemView& view, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void doubleClickRow(QAbstractItemView& view, int row);

private:
    QWindow* keyboardWindow() const;
    WQ::CMultiParamsTable& cells() const;
    void clickCells(const QRect& part, Qt::MouseButton button = Qt::LeftButton);

    workbench::MainWindow* m_window;
    int m_clicks = 0;
    int m_keys = 0;
};

} // namespace person
