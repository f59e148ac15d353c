#include "TextCanvas.h"
#include "reference/toolkit/cells/DigitPictures.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

using namespace WQ;
using namespace text_canvas;
using texts::TextSpan;

namespace {

constexpr QPoint kPlace(20, 4);

/// What the face draws of a number, and ground where it is not seen.
QImage expected(const texts::Face& face, const QString& number, const TextSpan& seen, int ratio, QRgb ink = kInk)
{
    QImage image = canvas(ratio);
    QPainter painter(&image);
    painter.setPen(QColor::fromRgb(ink));
    painter.setClipRect(QRect(kPlace.x() + seen.left, 0, seen.width, 40));
    face.drawNumber(painter, kPlace, number, TextSpan{0, 240});
    return image;
}

struct Drawn
{
    QImage image;
    bool isDone = false;
};

Drawn drawn(const texts::Face& face, const QString& number, const TextSpan& seen, int ratio, QRgb ink = kInk)
{
    Drawn result{canvas(ratio)};
    QPainter painter(&result.image);
    result.isDone = texts::digitPictures(face, ink, kGround, ratio).draw(painter, kPlace, number, seen);
    return result;
}

QString randomNumber(QRandomGenerator& random)
{
    const QString characters = QStringLiteral("0123456789.,:-+ ");
    QString number;
    for (int left = random.bounded(1, 12); left > 0; --left)
        number += characters.at(random.bounded(characters.size()));
    return number;
}

} // namespace

class tst_DigitPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreAsTheirFaceDrawsThem_data();
    void numbersAreAsTheirFaceDrawsThem();
    void anyPartOfAnyNumberIsAsItsFaceDrawsIt();
    void whatSharesPixelsIsLeftToTheFace();
    void anotherColourHasPicturesOfItsOwn();
    void nothingSeenIsNothingDrawn();
};

void tst_DigitPictures::numbersAreAsTheirFaceDrawsThem_data()
{
    QTest::addColumn<QString>("number");
    for (const char* number : {"0", "1,234.50", "-100", "+3", "1,000,000", "7 - 11", "        "})
        QTest::newRow(number) << QString::fromLatin1(number);
}

void tst_DigitPictures::numbersAreAsTheirFaceDrawsThem()
{
    QFETCH(QString, number);
    for (const double scale : {1.0, 1.5}) {
        for (const int ratio : {1, 2}) {
            const TextSpan whole{-2, 220};
            const Drawn result = drawn(panelFace(scale), number, whole, ratio);
            QVERIFY(result.isDone);
            QVERIFY(result.image == expected(panelFace(scale), number, whole, ratio));
        }
    }
}

void tst_DigitPictures::anyPartOfAnyNumberIsAsItsFaceDrawsIt()
{
    QRandomGenerator random(20240520);
    int done = 0;
    for (int round = 0; round < 400; ++round) {
        const QString number = randomNumber(random);
        const int ratio = 1 + round % 2;
        const TextSpan seen{random.bounded(-10, 60), random.bounded(0, 40)};
        const Drawn result = drawn(panelFace(), number, seen, ratio);
        done += result.isDone ? 1 : 0;
        QVERIFY2(result.image == (result.isDone ? expected(panelFace(), number, seen, ratio) : canvas(ratio)),
                 qPrintable(QStringLiteral("'%1' from %2, %3").arg(number).arg(seen.left).arg(seen.width)));
    }
    QVERIFY2(done > 300, qPrintable(QString::number(done)));
}

// An oblique font reaches over its neighbours.
void tst_DigitPictures::whatSharesPixelsIsLeftToTheFace()
{
    QFont leaning = panelFace().font();
    leaning.setItalic(true);
    leaning.setBold(true);
    const texts::Face& face = texts::faceOf(leaning);
    int left = 0;
    for (int number = 10; number < 100; ++number) {
        const TextSpan whole{-2, 60};
        const Drawn result = drawn(face, QString::number(number), whole, 1);
        left += result.isDone ? 0 : 1;
        QVERIFY(result.image == (result.isDone ? expected(face, QString::number(number), whole, 1) : canvas(1)));
    }
    QVERIFY(left > 0);
}

void tst_DigitPictures::anotherColourHasPicturesOfItsOwn()
{
    constexpr QRgb kAmber = 0xffe0a030;
    const TextSpan whole{-2, 60};
    const QString number = QStringLiteral("42");
    QVERIFY(drawn(panelFace(), number, whole, 1).image == expected(panelFace(), number, whole, 1));
    QVERIFY(drawn(panelFace(), number, whole, 1, kAmber).image == expected(panelFace(), number, whole, 1, kAmber));
    QVERIFY(expected(panelFace(), number, whole, 1) != expected(panelFace(), number, whole, 1, kAmber));
}

void tst_DigitPictures::nothingSeenIsNothingDrawn()
{
    for (const TextSpan seen : {TextSpan{0, 0}, TextSpan{100, 20}, TextSpan{-50, 20}}) {
        const Drawn result = drawn(panelFace(), QStringLiteral("12"), seen, 1);
        QVERIFY(result.isDone);
        QVERIFY(result.image == canvas(1));
    }
}

QTEST_MAIN(tst_DigitPictures)
#include "tst_DigitPictures.moc"
