#pragma once

#include "PanelSight.h"

#include "tests/workbench/CountingHands.h"
#include "workbench/LoopWatch.h"
#include "workbench/MainWindow.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>

class QAction;
class QDialog;
class QDockWidget;
class QMenu;

namespace walk {

/// A person before the whole window, in one language: hands and eyes. What must be there and is not fails the test.
class Walker
{
public:
    /// Pictures go into @p folder.
    Walker(const QString& language, QString folder);

    workbench::MainWindow& window() const;
    person::CountingHands& hands();

    /// The one of two texts that the window's language has.
    QString say(const char* english, const char* chinese) const;

    /// The order panel's cells as they stand on the screen, and those of the credit table.
    PanelSight panel() const;
    PanelSight credit() const;

    /// Clicks what opens a dialog, and does in it what must end it.
    void answer(const std::function<void()>& open, const std::function<void(QDialog&)>& answer);

    /// Gives the file dialog that opens a file's path, and presses Enter.
    void giveFile(const std::function<void()>& open, const QString& path);

    /// Writes into what has the focus what no key has, as an input method does.
    void compose(const QString& text);

    /// A file in a folder that goes with the walk.
    QString scratchFile(const QString& name) const;

    /// Opens the list of the modes that the strip has no room for.
    void clickDropDown();

    /// Chooses in a combo by its arrow: the entry that begins so.
    void choose(QWidget& combo, const QString& start);

    /// The part of that title, brought to the front by the keys that its entry of the View menu shows.
    QDockWidget& goTo(const char* english, const char* chinese);
    QDockWidget& part(const QString& title) const;

    /// The field beside the label of that text in a part, access keys left out.
    QWidget& field(const QWidget& part, const QString& label) const;

    template <class Widget>
    Widget& fieldAs(const QWidget& part, const QString& label) const
    {
        return dynamic_cast<Widget&>(field(part, label));
    }

    template <class Widget>
    Widget* named(const QWidget& part, const QString& accessibleName) const
    {
        for (auto* widget : part.findChildren<Widget*>())
            if (widget->accessibleName() == accessibleName)
                return widget;
        return nullptr;
    }

    int panelWidth() const;

    /// The window's menu of that title, and what stands in it.
    QMenu& menu(const QString& title) const;
    QAction& entry(const QMenu& menu, const QString& text) const;

    /// All that labels say in a part.
    QStringList labels(const QWidget& part) const;

    /// The texts of a list's rows, the fields of a row joined by " | ".
    static QStringList rows(const QWidget& part);

    /// Saves a picture of the window and all that is open over it; it must not be blank.
    void picture(const char* name);

    /// The event loop is watched anew.
    void watch();
    workbench::LoopHold longestHold() const;

private:
    std::unique_ptr<workbench::MainWindow> m_window;
    std::optional<person::CountingHands> m_hands;
    std::optional<workbench::LoopWatch> m_watch;
    QTemporaryDir m_scratch;
    QString m_language;
    QString m_folder;
    int m_pictures = 0;
};

/// A text as a person reads it, without the marks of access keys.
QString readText(QString text);

/// Whether a picture shows next to nothing.
bool isBlank(const QImage& picture);

} // namespace walk
