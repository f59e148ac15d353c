#include "replay/Objects.h"

#include "replay/Host.h"
#include "replay/Probes.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>

#include <algorithm>

namespace replay {

namespace {

const ObjectClass& classOf(const std::string& name)
{
    const std::vector<ObjectClass>& classes = objectClasses();
    const auto found =
        std::find_if(classes.begin(), classes.end(), [&name](const ObjectClass& type) { return type.name == name; });
    if (found != classes.end())
        return *found;
    std::string names;
    for (const ObjectClass& type : classes)
        names += (names.empty() ? "" : ", ") + type.name;
    throw WrongCommand("no class " + name + "; there are " + names);
}

void checkCount(const Json& arguments, std::size_t count, const std::string& form)
{
    if (!arguments.is_array() || arguments.size() != count)
        throw WrongCommand("\"args\" is a list of " + std::to_string(count) + ": " + form);
}

std::string formOf(const Operation& operation)
{
    return operation.name + "(" + operation.parameters + ")";
}

/// The forms of an operation in the most derived class that has it.
std::vector<const Operation*> formsOf(const std::vector<const Operations*>& classes, const std::string& name)
{
    std::vector<const Operation*> forms;
    for (const Operations* operations : classes) {
        for (const Operation& operation : *operations) {
            if (operation.name == name)
                forms.push_back(&operation);
        }
        if (!forms.empty())
            return forms;
    }
    throw WrongCommand("no operation " + name);
}

} // namespace

Json callOperation(const std::vector<const Operations*>& operations, QWidget& widget, const std::string& name,
                   const Json& arguments)
{
    const std::vector<const Operation*> forms = formsOf(operations, name);
    std::string why;
    for (const Operation* form : forms) {
        try {
            checkCount(arguments, form->count, formOf(*form));
            return form->call(widget, arguments);
        } catch (const WrongCommand& wrong) {
            why += (why.empty() ? "" : "; or ") + formOf(*form) + ": " + wrong.what();
        }
    }
    throw WrongCommand(why);
}

WQ::CMultiParamsTable* Object::grid() const
{
    return widget ? widget->findChild<WQ::CMultiParamsTable*>() : nullptr;
}

WQ::CDropDownButtonGroup* Object::buttons() const
{
    return widget ? widget->findChild<WQ::CDropDownButtonGroup*>() : nullptr;
}

void Object::show()
{
    if (!widget->isWindow()) {
        host->resize(widget->size());
        host->show();
    }
    widget->show();
}

void Object::resize(QSize size)
{
    widget->resize(size);
    if (!widget->isWindow())
        host->resize(widget->size());
}

Objects::Objects() = default;

Objects::~Objects() = default;

Object& Objects::make(const std::string& className, const std::string& name, const Json& arguments)
{
    const ObjectClass& type = classOf(className);
    if (name.empty())
        throw WrongCommand("an object needs a name");
    if (find(name))
        throw WrongCommand("there is an object " + name + " already");
    checkCount(arguments, type.count, type.name + "(" + type.parameters + ")");
    auto host = std::make_unique<Host>(m_events, [this](const QWidget* widget) { return nameOf(widget); });
    QPointer<QWidget> widget = type.make(arguments, host.get());
    remove(name);
    return m_objects[name] = Object{&type, std::move(host), widget};
}

Object& Objects::at(const std::string& name)
{
    if (!find(name))
        throw WrongCommand("no object " + name);
    return m_objects.at(name);
}

QWidget* Objects::find(const std::string& name) const
{
    const auto found = m_objects.find(name);
    return found == m_objects.end() ? nullptr : found->second.widget.data();
}

void Objects::remove(const std::string& name)
{
    m_objects.erase(name);
}

void Objects::clear()
{
    m_objects.clear();
}

Json Objects::takeEvents()
{
    return std::exchange(m_events, Json::array());
}

bool Objects::isAnyVisible() const
{
    return std::any_of(m_objects.begin(), m_objects.end(), [](const auto& named) {
        const QPointer<QWidget>& widget = named.second.widget;
        return widget && widget->isVisible();
    });
}

Objects::HookCounts Objects::takeHookCounts()
{
    HookCounts counts;
    for (const auto& [name, object] : m_objects) {
        if (auto* probe = qobject_cast<BaseTableProbe*>(object.widget.data())) {
            counts.saves += std::exchange(probe->saves, 0);
            counts.reloads += std::exchange(probe->reloads, 0);
        }
    }
    return counts;
}

QString Objects::nameOf(const QWidget* widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        for (const auto& [name, object] : m_objects) {
            if (object.widget == widget)
                return QString::fromStdString(name);
        }
    }
    return {};
}

} // namespace replay
