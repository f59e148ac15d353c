#include "TextCanvas.h"
#include "reference/toolkit/cells/TextCache.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmapCache>
#include <QStaticText>
#include <QWidget>
#include <QtTest>

using namespace WQ;
using namespace text_canvas;

namespace {

constexpr QRect kArea(10, 4, 200, 25);

/// @p pictureRatio 0 draws as it does where no pictures are kept.
QImage drawn(const QString& text, int ratio, int pictureRatio, const QRect& area = kArea)
{
    QImage image = canvas(ratio);
    QPainter painter(&image);
    texts::Pen(painter, panelFace(), pictureRatio).draw(area, text, kInk, kGround);
    return image;
}

} // namespace

class tst_TextPen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPictureIsTheTextToThePixel_data();
    void aPictureIsTheTextToThePixel();
    void aNumberIsDrawnAsQtDrawsIt_data();
    void aNumberIsDrawnAsQtDrawsIt();
    void aPictureStaysWithinTheHeightOfItsRow();
    void coloursAndGroundsHavePicturesOfTheirOwn();
    void aFaceIsMadeOnceAFont();
    void aFaceKeepsItsSizeWhateverTheApplicationsFont();
    void numbersAreWhatNeedsNoShaping();
    void theDifferenceOfTwoNumbersIsWhatChangesPixels_data();
    void theDifferenceOfTwoNumbersIsWhatChangesPixels();
    void numbersOfOtherWidthsDifferWhole();
    void widthsAreThoseOfTheFont();
};

void tst_TextPen::init()
{
    QPixmapCache::clear();
}

void tst_TextPen::aPictureIsTheTextToThePixel_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("Chinese") << QStringLiteral("单笔最小量");
    QTest::newRow("mixed") << QStringLiteral("买①价 Ag");
    QTest::newRow("percent") << QStringLiteral("%");
    QTest::newRow("descenders") << QStringLiteral("jgpqy|");
    QTest::newRow("period") << QStringLiteral("09:30:00 – 15:00:00");
    QTest::newRow("longer than is kept") << QString(70, QLatin1Char('w'));
}

void tst_TextPen::aPictureIsTheTextToThePixel()
{
    QFETCH(QString, text);
    for (const int ratio : {1, 2}) {
        const QImage plain = drawn(text, ratio, 0);
        QVERIFY(plain != canvas(ratio));
        QVERIFY(drawn(text, ratio, ratio) == plain);
        QVERIFY2(drawn(text, ratio, ratio) == plain, "the second time it comes from the cache");
    }
}

void tst_TextPen::aNumberIsDrawnAsQtDrawsIt_data()
{
    QTest::addColumn<QString>("number");
    for (const char* number : {"0", "1,234.50", "-100", "1,000,000", "09:30:00", "99.999999", "7 - 11"})
        QTest::newRow(number) << QString::fromLatin1(number);
}

void tst_TextPen::aNumberIsDrawnAsQtDrawsIt()
{
    QFETCH(QString, number);
    QVERIFY(panelFace().isNumber(number));
    for (const int ratio : {1, 2}) {
        QImage expected = canvas(ratio);
        QPainter painter(&expected);
        painter.setFont(panelFace().font());
        painter.setPen(kInk);
        painter.drawStaticText(kArea.left(), kArea.top() + (kArea.height() - panelFace().height()) / 2,
                               QStaticText(number));
        painter.end();
        QVERIFY(drawn(number, ratio, ratio) == expected);
    }
}

void tst_TextPen::aPictureStaysWithinTheHeightOfItsRow()
{
    constexpr QRect kLow(10, 12, 200, 6);
    const QImage image = drawn(QStringLiteral("单笔"), 1, 1, kLow);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!kLow.adjusted(-2, 0, 2, 0).contains(x, y))
                QCOMPARE(image.pixelColor(x, y), kGround);
        }
    }
}

void tst_TextPen::coloursAndGroundsHavePicturesOfTheirOwn()
{
    const QColor other(0x1c, 0x2a, 0x40);
    QImage image = canvas(1);
    {
        QPainter painter(&image);
        texts::Pen pen(painter, panelFace(), 1);
        pen.draw(kArea, QStringLiteral("股"), kInk, kGround);
        painter.fillRect(image.rect(), other);
        pen.draw(kArea, QStringLiteral("股"), Qt::red, other);
    }
    QImage expected = canvas(1);
    {
        QPainter painter(&expected);
        painter.fillRect(expected.rect(), other);
        texts::Pen(painter, panelFace(), 0).draw(kArea, QStringLiteral("股"), Qt::red, other);
    }
    QVERIFY(image == expected);
}

void tst_TextPen::aFaceIsMadeOnceAFont()
{
    QCOMPARE(&panelFace(), &panelFace());
    QVERIFY(&panelFace(1.0) != &panelFace(2.0));
    QCOMPARE(panelFace(2.0).height(), QFontMetrics(resources::font(keys::kTextFont, 2.0)).height());
}

void tst_TextPen::aFaceKeepsItsSizeWhateverTheApplicationsFont()
{
    constexpr QRect kHigh(10, 0, 200, 34);
    const QFont before = QApplication::font();
    QFont small = before;
    small.setPixelSize(17);
    QApplication::setFont(small);
    const texts::Face& face = texts::faceOf(QWidget().font()); // which says nothing of its own
    QFont large = before;
    large.setPixelSize(40);
    QApplication::setFont(large);
    QImage image = canvas(1);
    {
        QPainter painter(&image);
        texts::Pen(painter, face, 1).draw(kHigh, QStringLiteral("股 Ag"), kInk, kGround);
    }
    QApplication::setFont(small);
    QImage expected = canvas(1);
    {
        QPainter painter(&expected);
        texts::Pen(painter, face, 0).draw(kHigh, QStringLiteral("股 Ag"), kInk, kGround);
    }
    QApplication::setFont(before);
    QVERIFY(image == expected);
}

void tst_TextPen::numbersAreWhatNeedsNoShaping()
{
    QVERIFY(panelFace().isNumber(QStringLiteral("-1,234.5")));
    QVERIFY(!panelFace().isNumber(QStringLiteral("12 股")));
    QVERIFY(!panelFace().isNumber(QStringLiteral("1e5")));
    QVERIFY(!panelFace().isNumber(QStringLiteral("１２")));
    QVERIFY(!panelFace().isNumber(QString(1000000, QLatin1Char('1'))));
}

void tst_TextPen::theDifferenceOfTwoNumbersIsWhatChangesPixels_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    const auto row = [](const char* one, const char* other) {
        QTest::addRow("%s %s", one, other) << QString::fromLatin1(one) << QString::fromLatin1(other);
    };
    row("1,234.50", "1,234.51");
    row("1,234.50", "1,299.50");
    row("1,234.50", "9,876.54");
    row("10", "40");
    row("0.11", "0.77");
}

void tst_TextPen::theDifferenceOfTwoNumbersIsWhatChangesPixels()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    const auto difference = panelFace().difference(one, other);
    QVERIFY(difference);
    for (const int ratio : {1, 2}) {
        const QImage before = drawn(one, ratio, ratio);
        QImage patched = before;
        {
            QPainter painter(&patched);
            const QRect changed(kArea.left() + difference->left, 0, difference->width, 34);
            painter.setClipRect(changed);
            painter.fillRect(changed, kGround);
            texts::Pen(painter, panelFace(), ratio).draw(kArea, other, kInk, kGround);
        }
        const QImage after = drawn(other, ratio, ratio);
        QVERIFY(after != before);
        QVERIFY(patched == after);
    }
}

void tst_TextPen::numbersOfOtherWidthsDifferWhole()
{
    QVERIFY(!panelFace().difference(QStringLiteral("100"), QStringLiteral("1,000")));
    QVERIFY(!panelFace().difference(QStringLiteral("12"), QStringLiteral("股")));
    QVERIFY(panelFace().difference(QStringLiteral("100"), QStringLiteral("101")));
}

void tst_TextPen::widthsAreThoseOfTheFont()
{
    const QFontMetricsF metrics(panelFace().font());
    for (const QString& text : {QStringLiteral("1,234.50"), QStringLiteral("单笔最小量"), QStringLiteral("%")})
        QCOMPARE(texts::width(text, panelFace()), int(std::ceil(metrics.horizontalAdvance(text))));
    QCOMPARE(texts::width(QString(), panelFace()), 0);
}

QTEST_MAIN(tst_TextPen)
#include "tst_TextPen.moc"
