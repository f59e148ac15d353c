#include "Stations.h"
#include "Walker.h"

#include "workbench/Appearance.h"
#include "workbench/Language.h"

#include "reference/services/ServiceControl.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QtTest>

using namespace workbench;

namespace {

/// Where a person finds the pictures afterwards.
QString pictureFolder(const QString& language)
{
    const QString chosen = qEnvironmentVariable("ORDERPARAM_WALK_PICTURES", QStringLiteral(WALK_PICTURES));
    return QDir(chosen).filePath(language);
}

walk::Stations wholeWay()
{
    walk::Stations all;
    for (const auto& part : {walk::panelStations(), walk::cellStations(), walk::partStations(), walk::hostStations(),
                             walk::recorderStations(), walk::viewStations()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// A station that fails leaves the others to be looked at, and nothing open before them.
void visit(const walk::Station& station, walk::Walker& walker)
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    walker.watch();
    try {
        station.visit(walker);
    } catch (const std::exception& missing) {
        QTest::qFail(missing.what(), station.name, 0);
    }
    walker.picture(station.name);
}

} // namespace

/// A person walks through the whole window, with mouse and keyboard, in each of its languages. Pictures of what is seen
/// on the way are left in a folder.
class tst_Walk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void aPersonWalksThroughTheWholeWindow_data();
    void aPersonWalksThroughTheWholeWindow();

private:
    QTemporaryDir m_settings;
};

void tst_Walk::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    QApplication::setCursorFlashTime(0);
    dressApplication();
}

void tst_Walk::init()
{
    QFile::remove(m_settings.filePath(QStringLiteral("orderparam/workbench.json")));
    reference::resetServices();
    setTheme(QStringLiteral("dark"));
    setScale(1.0);
}

void tst_Walk::aPersonWalksThroughTheWholeWindow_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& name : languages())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Walk::aPersonWalksThroughTheWholeWindow()
{
    QFETCH(QString, language);
    setLanguage(language);
    walk::Walker walker(language, pictureFolder(language));
    for (const walk::Station& station : wholeWay()) {
        visit(station, walker);
        const LoopHold hold = walker.longestHold();
        qInfo("%-16s held the event loop for %3lld ms at most, %3lld ms of them computing", station.name,
              static_cast<long long>(hold.length), static_cast<long long>(hold.computing));
    }
}

QTEST_MAIN(tst_Walk)
#include "tst_Walk.moc"
