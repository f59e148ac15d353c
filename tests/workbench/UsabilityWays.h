#pragma once

#include "CountingHands.h"

#include <QTemporaryDir>
#include <QWidget>

#include <memory>
#include <vector>

namespace TC {
class COrderParamBaseTable;
}

namespace person {

/// A window as it opens for the first time, the cells of the algorithm expanded, the keyboard in the order panel.
class Scene
{
public:
    Scene();
    ~Scene();

    workbench::MainWindow& window() const;
    CountingHands& hands();
    TC::COrderParamBaseTable& table() const;
    WQ::CMultiParamsTable& cells() const;

    /// The part that stands under that name, or within it the first widget of that class.
    QWidget& part(const char* name) const;

    template <class Widget>
    Widget& in(const char* name, int number = 0) const
    {
        return *part(name).findChildren<Widget*>().at(number);
    }

    template <class Widget>
    Widget& in() const
    {
        return *anywhere().findChild<Widget*>();
    }

    /// Ends the window as a person does and starts the program anew.
    void restart();

    QString remembered; ///< what a way compares its end with
    QTemporaryDir folder;

private:
    void open();
    const QWidget& anywhere() const;

    std::unique_ptr<workbench::MainWindow> m_window;
    std::unique_ptr<CountingHands> m_hands;
};

/// One thing that a person does, how, and how it is told that it is done. What @p prepare does is not counted.
struct Way
{
    const char* what;
    void (*prepare)(Scene& scene); ///< may be null
    void (*act)(Scene& scene);
    bool (*isDone)(Scene& scene);
};

const std::vector<Way>& waysInThePanel();
const std::vector<Way>& waysInTheParts();
const std::vector<Way>& waysOfTheWindow();

} // namespace person
