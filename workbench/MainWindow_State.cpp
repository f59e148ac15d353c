#include "workbench/MainWindow.h"

#include "workbench/Language.h"
#include "workbench/SetupForm.h"
#include "workbench/TableSetup.h"

#include "reference/toolkit/Resources.h"

#include <QCloseEvent>
#include <QSettings>

namespace workbench {

namespace {

/// Docks of another version of the window are not restored.
constexpr int kLayoutVersion = 1;

const QString kGeometry = QStringLiteral("window/geometry");
const QString kLayout = QStringLiteral("window/layout");
const QString kTheme = QStringLiteral("look/theme");
const QString kScale = QStringLiteral("look/scale");
const QString kLanguage = QStringLiteral("look/language");

QSettings stateFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("orderparam"),
                     QStringLiteral("workbench"));
}

void saveSetup(QSettings& file, const TableSetup& setup)
{
    file.beginGroup(QStringLiteral("table"));
    file.setValue(QStringLiteral("class"), static_cast<int>(setup.tableClass));
    file.setValue(QStringLiteral("identity"), setup.identity);
    file.setValue(QStringLiteral("brokerType"), setup.brokerType);
    file.setValue(QStringLiteral("traderType"), setup.traderType);
    file.setValue(QStringLiteral("modeButtons"), setup.modeButtons);
    file.setValue(QStringLiteral("fontScale"), setup.fontScale);
    file.setValue(QStringLiteral("autoBook"), setup.autoBook);
    file.endGroup();
}

TableSetup savedSetup(QSettings& file)
{
    TableSetup setup;
    const auto number = [&file](const char* key, int fallback) {
        bool isNumber = false;
        const int value = file.value(QLatin1String(key), fallback).toInt(&isNumber);
        return isNumber ? value : fallback;
    };
    file.beginGroup(QStringLiteral("table"));
    setup.tableClass = static_cast<TableClass>(
        qBound(static_cast<int>(TableClass::Global), number("class", 0), static_cast<int>(TableClass::StopLoss)));
    setup.identity = number("identity", setup.identity);
    setup.brokerType = number("brokerType", setup.brokerType);
    setup.traderType = number("traderType", setup.traderType);
    setup.modeButtons = file.value(QStringLiteral("modeButtons"), setup.modeButtons).toBool();
    setup.fontScale = file.value(QStringLiteral("fontScale"), setup.fontScale).toBool();
    setup.autoBook = file.value(QStringLiteral("autoBook"), setup.autoBook).toBool();
    file.endGroup();
    return setup;
}

} // namespace

void MainWindow::loadState()
{
    QSettings file = stateFile();
    restoreGeometry(file.value(kGeometry).toByteArray());
    restoreState(file.value(kLayout).toByteArray(), kLayoutVersion);
    m_form->setSetup(savedSetup(file));
    rebuildTable();
}

void MainWindow::storeState() const
{
    QSettings file = stateFile();
    file.setValue(kGeometry, saveGeometry());
    file.setValue(kLayout, saveState(kLayoutVersion));
    file.setValue(kTheme, WQ::resources::theme());
    file.setValue(kScale, WQ::resources::scale());
    file.setValue(kLanguage, language());
    saveSetup(file, m_form->setup());
}

SavedLook savedLook()
{
    QSettings file = stateFile();
    return {file.value(kTheme).toString(), file.value(kScale, 1.0).toDouble(), file.value(kLanguage).toString()};
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    storeState();
    QMainWindow::closeEvent(event);
}

} // namespace workbench
