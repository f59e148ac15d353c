#pragma once

#include "replay/Operation.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <map>
#include <memory>

namespace WQ {
class CDropDownButtonGroup;
class CMultiParamsTable;
} // namespace WQ

namespace replay {

class Host;

/// A class that scripts can make objects of.
struct ObjectClass
{
    std::string name;
    std::string parameters; ///< of the constructor, the parent left out
    std::size_t count;

    /// Throws WrongCommand when an argument is none of those accepted.
    std::function<QWidget*(const Json& arguments, QWidget* parent)> make;

    /// Its own operations first, then those of its bases: a name that a class has hides its bases' operations.
    std::vector<const Operations*> operations;
};

const std::vector<ObjectClass>& objectClasses();

/// One object of a run, with the host above it. The object may delete itself.
struct Object
{
    const ObjectClass* type;
    std::unique_ptr<Host> host;
    QPointer<QWidget> widget;

    /// The cell table of a table, of the credit table, or of the table in a dialog; null without one.
    WQ::CMultiParamsTable* grid() const;

    /// The order-mode buttons; null without any.
    WQ::CDropDownButtonGroup* buttons() const;

    /// Shows the object; the host's window takes the object's size, so that it is shown whole and never resized.
    void show();
    void resize(QSize size);
};

/// The objects of a run by the names that the script gave them.
class Objects
{
public:
    Objects();
    ~Objects();

    /// Throws WrongCommand for a name that is taken or empty, an unknown class, wrong arguments.
    Object& make(const std::string& className, const std::string& name, const Json& arguments);

    /// Throws WrongCommand when there is no such object any more.
    Object& at(const std::string& name);

    /// Null when there is no such object.
    QWidget* find(const std::string& name) const;

    void remove(const std::string& name);
    void clear();

    /// The events that have reached the hosts since the last call, in the order of arrival.
    Json takeEvents();

    /// Whether one of them is on the screen.
    bool isAnyVisible() const;

    /// How often the virtual save() and reloadParam() have run since the last call. Only probes count.
    struct HookCounts
    {
        int saves = 0;
        int reloads = 0;
    };
    HookCounts takeHookCounts();

private:
    QString nameOf(const QWidget* widget) const;

    Json m_events = Json::array();
    std::map<std::string, Object> m_objects;
};

/// The operation of @p type that takes such arguments, called; its answer. Throws WrongCommand when there is none.
Json callOperation(const std::vector<const Operations*>& operations, QWidget& widget, const std::string& name,
                   const Json& arguments);

} // namespace replay
