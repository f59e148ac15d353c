#pragma once

#include "replay/Json.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>

#include <string>
#include <vector>

namespace workbench {

class PanelHost;

/// One of the library's objects that lives, by the name that a recording calls it.
struct RecordedObject
{
    std::string name;
    QPointer<QWidget> widget;
    const PanelHost* host;
    QSize size;           ///< as a replay has it; invalid before the first time
    bool isShown = false; ///< in a replay
};

/// The objects that live. Layouts and windows size and show them without a call: pendingCommands() says what a script
/// has to do so that they stand as they do here.
class RecordedObjects
{
public:
    void add(const RecordedObject& object);
    void remove(const std::string& name);

    /// The object that the widget is or stands in; null for another one.
    const RecordedObject* around(const QWidget* widget) const;
    QString nameOf(const QWidget* widget) const;

    bool hasObjectOf(const PanelHost& host) const;

    /// Commands that show and size the objects; they count as carried out.
    std::vector<replay::Json> pendingCommands();

    /// What a command has done to the sizes it does in a replay too.
    void takeSizes();

    /// The next pendingCommands() sizes every object, whatever it is known to be.
    void forgetSizes();

private:
    std::vector<RecordedObject> m_objects;
};

} // namespace workbench
