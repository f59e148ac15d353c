#pragma once

#include "CellHand.h"

#include <Qt>

class QLineEdit;
class QWidget;

namespace WQ {
class CFloatWidget;
}

namespace workbench {
class MainWindow;
}

namespace person {

/// What a person can do in the parts of the window, by mouse and keys.
class WindowHands
{
public:
    explicit WindowHands(workbench::MainWindow& window);

    /// Presses Record and Stop.
    void record();
    void stop();

protected:
    /// The parts by the keys that lead to them.
    enum Part { Setup = 1, Quote, HostCalls, Tasks, Credit, Ticket, Events, Recorder };
    void goTo(Part part);
    void clickButton(QWidget* parent, const QString& text);
    void clickCheck(QWidget* parent, const QString& text);
    void enterNumber(QWidget* parent, const QString& label, const QString& text);
    void enterText(QLineEdit* line, const QString& text);
    void tick(QWidget* list, int row);

    CellHand panel() const;
    CellHand credit() const;
    QWidget* controls() const;
    QWidget* host() const;
    QWidget* setup() const;

    /// The one that was opened last; null without one.
    WQ::CFloatWidget* dialog() const;

    static void press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    void clickMode(int id);
    static void clickModeIfShown(QWidget* parent, int id);
    void chooseModeInDropDown(int entry);
    void clickHelp();
    void enterCode(const QString& code);
    void nextPriceType();
    void nextTheme();
    void nextTableClass();
    void rebuild();
    void enterClock(const QString& time);
    void clickQuote(int row, bool isDouble);
    void openTask(int row, bool byKeys);
    void openBasket(int first, int last);
    void pressExpand();
    void closeDialog();

    workbench::MainWindow& m_window;
};

} // namespace person
