#include "docs/Documents.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The pictures of panels that the documents show are what the workbench's tour writes today.
class tst_PanelPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void eachPictureIsTheToursOfToday_data();
    void eachPictureIsTheToursOfToday();

private:
    QTemporaryDir m_tour;
};

void tst_PanelPictures::initTestCase()
{
    if (!QFontDatabase().families().contains(QStringLiteral("Noto Sans CJK SC")))
        QSKIP("the pictures were made with Noto Sans CJK SC, which is not installed");
    QProcess workbench;
    workbench.start(QStringLiteral(ORDERPARAM_WORKBENCH),
                    {QStringLiteral("--tour"), m_tour.path(), QStringLiteral("--theme"), QStringLiteral("dark"),
                     QStringLiteral("--scale"), QStringLiteral("1.0")});
    QVERIFY(workbench.waitForFinished(110'000));
    QCOMPARE(workbench.exitCode(), 0);
}

void tst_PanelPictures::eachPictureIsTheToursOfToday_data()
{
    QTest::addColumn<QString>("picture");
    const QStringList pictures = documents::files(QStringLiteral("docs/pictures/panels"), {QStringLiteral("*.png")});
    QVERIFY(pictures.size() > 40);
    for (const QString& picture : pictures)
        QTest::newRow(qPrintable(QFileInfo(picture).completeBaseName())) << picture;
}

void tst_PanelPictures::eachPictureIsTheToursOfToday()
{
    QFETCH(QString, picture);
    const QString name = QFileInfo(picture).completeBaseName() + QStringLiteral("-dark-1.00.png");
    const auto read = [](const QString& path) { return QImage(path).convertToFormat(QImage::Format_ARGB32); };
    const QImage today = read(m_tour.filePath(name));
    QVERIFY2(!today.isNull(), qPrintable(QStringLiteral("the tour has no ") + name));
    QVERIFY2(today == read(QStringLiteral(ORDERPARAM_SOURCES "/") + picture),
             "out of date, run scripts/update-pictures.sh");
}

QTEST_MAIN(tst_PanelPictures)
#include "tst_PanelPictures.moc"
