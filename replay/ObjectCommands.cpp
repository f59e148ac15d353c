#include "replay/CommandRun.h"
#include "replay/ModeButtons.h"
#include "replay/Person.h"
#include "replay/State.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CPushButton.h>

#include <QCoreApplication>
#include <QFile>
#include <QPixmap>

namespace replay {

namespace {

/// What the data of an event points at while the event is handled.
struct EventData
{
    QVariant variant;
    double real = 0.0;
    int whole = 0;
    void* pointer = nullptr;
};

void readData(const Json& json, EventData& data)
{
    const bool isOne = json.is_object() && json.size() == 1;
    if (isOne && json.contains("variant")) {
        read(json["variant"], data.variant);
        data.pointer = &data.variant;
    } else if (isOne && json.contains("double")) {
        read(json["double"], data.real);
        data.pointer = &data.real;
    } else if (isOne && json.contains("int")) {
        read(json["int"], data.whole);
        data.pointer = &data.whole;
    } else if (!json.is_null()) {
        throw WrongCommand("\"data\" is null, {\"variant\": VALUE}, {\"double\": VALUE} or {\"int\": VALUE}");
    }
}

/// The library makes a button without a text where its host is to name it. @returns its place, negative without one
int nameButton(WQ::CDropDownButtonGroup& group, int id, const QString& text)
{
    WQ::CPushButton* button = pushButton(group, id);
    if (!button || !takesNoRoom(*button))
        return -1;
    button->setText(text);
    group.resetLayout();
    return group.getButtonList().indexOf(id);
}

} // namespace

Json makeObject(const Run& run)
{
    run.objects.make(run.text("class"), run.text("name"), run.arguments());
    return nullptr;
}

Json callObject(const Run& run)
{
    Object& object = run.object();
    return callOperation(object.type->operations, *object.widget, run.text("op"), run.arguments());
}

Json callGrid(const Run& run)
{
    WQ::CMultiParamsTable* grid = run.object().grid();
    if (!grid)
        throw WrongCommand("the object has no cell table");
    return callOperation({&cellTableOperations()}, *grid, run.text("op"), run.arguments());
}

Json addButton(const Run& run)
{
    WQ::CDropDownButtonGroup* group = run.object().buttons();
    if (!group)
        throw WrongCommand("the object has no button group");
    const int id = run.value<int>("id");
    const QString text = run.value<QString>("text");
    if (const int named = nameButton(*group, id, text); named >= 0)
        return named;
    auto button = std::make_unique<WQ::CPushButton>(WQ::CButtonColor(), id, nullptr);
    button->setText(text);
    const int place = group->addButton(button.get(), WQ::AnchorStart);
    if (place < 0)
        throw WrongCommand("the group has a button " + std::to_string(id) + " already");
    button.release(); // the group's from here on
    return place;
}

Json handleEvent(const Run& run)
{
    auto* receiver = dynamic_cast<WQ::CEventDeliverer*>(run.object().widget.data());
    const Json arguments = run.arguments();
    if (!arguments.is_array() || arguments.size() != 4)
        throw WrongCommand("\"args\" is [event, a, b, text]");
    const int event = readArgument<int>(arguments, 0);
    const int a = readArgument<int>(arguments, 1);
    const int b = readArgument<int>(arguments, 2);
    const QString text = readArgument<QString>(arguments, 3);
    EventData data;
    readData(run.command.value("data", Json()), data);
    return receiver->handleEvent(event, a, b, text, data.pointer);
}

Json edit(const Run& run)
{
    return person::edit(run.object(), run.command);
}

Json click(const Run& run)
{
    person::click(run.object(), run.value<int>("button"));
    return nullptr;
}

Json filter(const Run& run)
{
    person::filter(run.object(), run.value<QSet<int>>("cells"));
    return nullptr;
}

Json resetFilter(const Run& run)
{
    person::resetFilter(run.object());
    return nullptr;
}

Json dump(const Run& run)
{
    return stateOf(run.object().widget);
}

Json show(const Run& run)
{
    run.object().show();
    QCoreApplication::processEvents();
    return nullptr;
}

Json resize(const Run& run)
{
    const auto size = run.value<QSize>("size");
    run.object().resize(size);
    QCoreApplication::processEvents();
    return nullptr;
}

Json screenshot(const Run& run)
{
    QWidget& widget = *run.object().widget;
    QFile file(run.value<QString>("file"));
    if (!file.open(QIODevice::WriteOnly))
        throw WrongCommand("cannot write the picture " + file.fileName().toStdString());
    if (!widget.grab().save(&file, "PNG"))
        throw WrongCommand("the picture " + file.fileName().toStdString() + " was not written whole");
    return nullptr;
}

Json removeObject(const Run& run)
{
    run.object();
    run.objects.remove(run.text("on"));
    return nullptr;
}

} // namespace replay
