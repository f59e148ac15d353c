#include "workbench/RecordedObjects.h"

#include <algorithm>

namespace workbench {

using replay::Json;

void RecordedObjects::add(const RecordedObject& object)
{
    m_objects.push_back(object);
}

void RecordedObjects::remove(const std::string& name)
{
    m_objects.erase(std::remove_if(m_objects.begin(), m_objects.end(),
                                   [&name](const RecordedObject& object) { return object.name == name; }),
                    m_objects.end());
}

const RecordedObject* RecordedObjects::around(const QWidget* widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        for (const RecordedObject& object : m_objects)
            if (object.widget == widget)
                return &object;
    }
    return nullptr;
}

QString RecordedObjects::nameOf(const QWidget* widget) const
{
    const RecordedObject* object = around(widget);
    return object ? QString::fromStdString(object->name) : QString();
}

bool RecordedObjects::hasObjectOf(const PanelHost& host) const
{
    return std::any_of(m_objects.begin(), m_objects.end(),
                       [&host](const RecordedObject& object) { return object.host == &host; });
}

std::vector<Json> RecordedObjects::pendingCommands()
{
    std::vector<Json> commands;
    for (RecordedObject& object : m_objects) {
        if (!object.widget)
            continue;
        if (!object.isShown && object.widget->isVisible()) {
            object.isShown = true;
            commands.push_back({{"do", "show"}, {"on", object.name}});
        }
        if (object.size == object.widget->size())
            continue;
        object.size = object.widget->size();
        commands.push_back({{"do", "resize"}, {"on", object.name}});
        commands.back()["size"] = Json::array({object.size.width(), object.size.height()});
    }
    return commands;
}

void RecordedObjects::takeSizes()
{
    for (RecordedObject& object : m_objects)
        if (object.size.isValid() && object.widget)
            object.size = object.widget->size();
}

void RecordedObjects::forgetSizes()
{
    for (RecordedObject& object : m_objects)
        object.size = QSize();
}

} // namespace workbench
