#include "UsabilityWays.h"

#include "workbench/Appearance.h"
#include "workbench/Language.h"

#include "reference/services/ServiceControl.h"

#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QtTest>

using namespace person;

namespace {

/// A row of the table in the document.
struct Listed
{
    int number = 0;
    QString forWhom;
    int clicks = -1;
    int keys = -1;
};

QString effort(int clicks, int keys)
{
    return QStringLiteral("%1 clicks, %2 keys").arg(clicks).arg(keys);
}

std::vector<Way> allWays()
{
    std::vector<Way> all;
    for (const auto& ways : {waysInThePanel(), waysInTheParts(), waysOfTheWindow()})
        all.insert(all.end(), ways.begin(), ways.end());
    return all;
}

/// "| 7 | what | whom | way | clicks | keys | before |", by what is done.
QMap<QString, Listed> listedWays()
{
    QFile file(QStringLiteral(USABILITY_LIST));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QMap<QString, Listed> listed;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QStringList fields = line.split(QLatin1Char('|'));
        bool isNumbered = false;
        const int number = fields.value(1).trimmed().toInt(&isNumbered);
        if (isNumbered && fields.size() == 9)
            listed.insert(fields[2].trimmed(), {number, fields[3].trimmed(), fields[5].toInt(), fields[6].toInt()});
    }
    return listed;
}

} // namespace

/// Each way of the list in docs/usability.md is gone on the real window, and takes as many clicks and keys as it says.
class tst_Usability : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void theListNamesWhatIsTested();
    void aWayTakesWhatTheListSays_data();
    void aWayTakesWhatTheListSays();

private:
    QTemporaryDir m_settings;
};

void tst_Usability::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    workbench::dressApplication();
}

void tst_Usability::init()
{
    QFile::remove(m_settings.filePath(QStringLiteral("orderparam/workbench.json")));
    reference::resetServices();
    workbench::setTheme(QStringLiteral("dark"));
    workbench::setScale(1.0);
    workbench::setLanguage(QStringLiteral("en"));
}

void tst_Usability::theListNamesWhatIsTested()
{
    const QMap<QString, Listed> listed = listedWays();
    QStringList tested;
    for (const Way& way : allWays())
        tested << QString::fromUtf8(way.what);
    tested.sort();
    QCOMPARE(listed.keys(), tested);
    QVERIFY(listed.size() >= 40);
    QSet<int> numbers;
    for (const Listed& way : listed) {
        numbers.insert(way.number);
        QVERIFY2(!way.forWhom.isEmpty(), qPrintable(QString::number(way.number)));
    }
    for (int number = 1; number <= listed.size(); ++number)
        QVERIFY2(numbers.contains(number), qPrintable(QString::number(number)));
}

void tst_Usability::aWayTakesWhatTheListSays_data()
{
    QTest::addColumn<int>("row");
    const std::vector<Way> ways = allWays();
    for (std::size_t row = 0; row < ways.size(); ++row)
        QTest::newRow(ways[row].what) << int(row);
}

void tst_Usability::aWayTakesWhatTheListSays()
{
    QFETCH(int, row);
    const Way way = allWays()[std::size_t(row)];
    Scene scene;
    if (way.prepare)
        way.prepare(scene);
    const int clicksBefore = scene.hands().clicks();
    const int keysBefore = scene.hands().keys();
    way.act(scene);
    const int clicks = scene.hands().clicks() - clicksBefore;
    const int keys = scene.hands().keys() - keysBefore;
    // A box that is pressed by its key goes down for a moment first.
    QTRY_VERIFY(way.isDone(scene));
    const Listed listed = listedWays().value(QString::fromUtf8(way.what));
    QCOMPARE(effort(clicks, keys), effort(listed.clicks, listed.keys));
}

QTEST_MAIN(tst_Usability)
#include "tst_Usability.moc"
