#include "workbench/Appearance.h"
#include "workbench/Tour.h"
#include "workbench/TourStops.h"

#include "reference/services/ServiceControl.h"

#include <QImage>
#include <QtTest>

using namespace workbench;

namespace {

int stopCount()
{
    const int baskets = 1;
    return panelStops().count + taskStops().count + creditStops().count + windowStops().count + baskets;
}

TourRequest request(const QString& directory)
{
    TourRequest request;
    request.directory = directory;
    request.scales = {1.0};
    request.themes = QStringList{QStringLiteral("dark")};
    request.data = loadHostData(QString());
    return request;
}

} // namespace

class tst_Tour : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void itWritesAPictureForEachStop();
    void picturesHaveTheSizesOfWhatTheyShow_data();
    void picturesHaveTheSizesOfWhatTheyShow();
    void theSameTourWritesTheSamePictures();
    void aFolderThatCannotBeMadeIsAnError();

private:
    QTemporaryDir m_directory;
};

void tst_Tour::initTestCase()
{
    dressApplication();
}

void tst_Tour::itWritesAPictureForEachStop()
{
    const TourResult result = writeTour(request(m_directory.path()));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.files.size(), stopCount());
    QCOMPARE(QSet<QString>(result.files.begin(), result.files.end()).size(), stopCount());
    for (const QString& file : result.files) {
        const QImage image(file);
        QVERIFY2(!image.isNull(), qPrintable(file));
        QVERIFY2(image.width() >= 220 && image.height() >= 78, qPrintable(file));
    }
}

void tst_Tour::picturesHaveTheSizesOfWhatTheyShow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    // A panel is 240 wide and 280 + 60 high; a window as asked for.
    QTest::newRow("a panel at its own height") << QStringLiteral("state-scrolled") << QSize(240, 340);
    // Rows of 26: five as constructed, four for securities, three for cash.
    QTest::newRow("the credit table as constructed") << QStringLiteral("credit-as-constructed") << QSize(240, 130);
    QTest::newRow("repaying securities") << QStringLiteral("credit-22") << QSize(240, 104);
    QTest::newRow("repaying cash") << QStringLiteral("credit-24") << QSize(240, 78);
    QTest::newRow("the window") << QStringLiteral("window-en") << QSize(1180, 760);
    QTest::newRow("the small window") << QStringLiteral("window-small") << QSize(1024, 700);
}

void tst_Tour::picturesHaveTheSizesOfWhatTheyShow()
{
    QFETCH(QString, name);
    const QImage image(m_directory.filePath(name + QStringLiteral("-dark-1.00.png")));
    QTEST(image.size(), "size");
}

void tst_Tour::theSameTourWritesTheSamePictures()
{
    QTemporaryDir again;
    const TourResult result = writeTour(request(again.path()));
    QCOMPARE(result.files.size(), stopCount());
    for (const QString& file : result.files) {
        const QImage first(m_directory.filePath(QFileInfo(file).fileName()));
        QVERIFY2(first == QImage(file), qPrintable(file));
    }
}

void tst_Tour::aFolderThatCannotBeMadeIsAnError()
{
    const TourResult result = writeTour(request(QStringLiteral("/dev/null/tour")));
    QVERIFY(result.files.isEmpty());
    QVERIFY(result.error.contains(QStringLiteral("/dev/null/tour")));
}

QTEST_MAIN(tst_Tour)
#include "tst_Tour.moc"
