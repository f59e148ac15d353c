#include "docs/Documents.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace {

// Processors and versions of the font's renderer differ in shades; a word or a line that moved differs by far more.
constexpr int kShade = 24;

bool isAlike(QRgb one, QRgb other)
{
    return std::abs(qRed(one) - qRed(other)) <= kShade && std::abs(qGreen(one) - qGreen(other)) <= kShade
        && std::abs(qBlue(one) - qBlue(other)) <= kShade && qAlpha(one) == qAlpha(other);
}

bool areAlike(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return false;
    for (int y = 0; y < one.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(one.constScanLine(y));
        if (!std::equal(line, line + one.width(), reinterpret_cast<const QRgb*>(other.constScanLine(y)), isAlike))
            return false;
    }
    return true;
}

} // namespace

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
    QVERIFY2(areAlike(today, read(QStringLiteral(ORDERPARAM_SOURCES "/") + picture)),
             "out of date, run scripts/update-pictures.sh");
}

QTEST_MAIN(tst_PanelPictures)
#include "tst_PanelPictures.moc"
