#include "reference/toolkit/Resources.h"
#include "reference/toolkit/SlimScrollBar.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CBaseDialog.h>
#include <WQ/CScrollArea.h>

#include <QApplication>
#include <QWheelEvent>
#include <QtTest>

using namespace WQ;

namespace {

/// An area of 100 x 100 pixels over a widget that is 1000 high; the bar's value goes from 0 to 900.
struct Area
{
    Area()
        : content(new QWidget)
    {
        content->setFixedSize(94, 1000);
        area.setWidget(content);
        area.resize(100, 100);
        area.show();
    }

    void wheel(QPoint pixels, QPoint angle)
    {
        QWheelEvent event(QPointF(10, 10), QPointF(10, 10), pixels, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area.viewport(), &event);
        taken = event.isAccepted();
    }

    QScrollBar& bar()
    {
        return *area.verticalScrollBar();
    }

    CScrollArea area{nullptr};
    QWidget* const content;
    bool taken = false;
};

} // namespace

class CScrollAreaTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void theWidgetKeepsItsSize();
    void nullAndItselfAreRefused();
    void theBarIsSlimAndScaled();
    void inADialogTheBarKeepsItsSize();
    void theBarShowsWhereItIsNeeded();
    void contentFollowsWithoutARequestAndWithOne();
    void theGroundHasItsKey();
    void aNotchScrollsTwoRows();
    void aFineWheelScrollsByItsPixels();
    void smallTurnsAddUp();
    void atTheEndTheWheelIsLeftToOthers();
    void theHandleIsDragged();
    void besideTheHandleItScrollsAPage();
    void theHandleNeverVanishes();
    void theApplicationsStyleSheetDoesNotShow();
};

void CScrollAreaTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void CScrollAreaTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void CScrollAreaTest::theWidgetKeepsItsSize()
{
    Area a;
    QVERIFY(!a.area.widgetResizable());
    QCOMPARE(a.content->size(), QSize(94, 1000));
    QCOMPARE(a.area.viewport()->size(), QSize(94, 100));
    QCOMPARE(a.area.widget(), a.content);
}

void CScrollAreaTest::nullAndItselfAreRefused()
{
    QWidget parent;
    CScrollArea area(&parent);
    area.setWidget(nullptr);
    area.setWidget(&area);
    area.setWidget(&parent);
    QVERIFY(!area.widget());
}

void CScrollAreaTest::theBarIsSlimAndScaled()
{
    Area a;
    QCOMPARE(a.area.getScrollBarWidth(), 6);
    QCOMPARE(a.bar().width(), 6);
    resources::setScale(2.0);
    QCOMPARE(a.area.getScrollBarWidth(), 12);
    QTRY_COMPARE(a.bar().width(), 12);
    QCOMPARE(a.area.viewport()->width(), 88);
    CScrollArea empty(nullptr);
    QCOMPARE(empty.getScrollBarWidth(), 12);
}

void CScrollAreaTest::inADialogTheBarKeepsItsSize()
{
    CBaseDialog dialog(nullptr);
    CScrollArea area(&dialog);
    resources::setScale(2.0);
    QCOMPARE(area.getScrollBarWidth(), 6);
}

void CScrollAreaTest::theBarShowsWhereItIsNeeded()
{
    Area a;
    QVERIFY(a.bar().isVisible());
    a.content->setFixedSize(100, 100);
    QTRY_VERIFY(!a.bar().isVisible());
    a.content->setFixedSize(100, 101);
    QTRY_VERIFY(a.bar().isVisible());
    QVERIFY(!a.area.horizontalScrollBar()->isVisible());
}

void CScrollAreaTest::contentFollowsWithoutARequestAndWithOne()
{
    Area a;
    a.content->setMinimumSize(0, 0);
    a.content->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QCoreApplication::processEvents();
    a.content->resize(94, 500);
    QCOMPARE(a.bar().maximum(), 400);
    a.content->setFixedHeight(700);
    QCoreApplication::processEvents();
    QCOMPARE(a.bar().maximum(), 600);
    a.bar().setValue(600);
    a.content->setFixedHeight(150);
    QCoreApplication::processEvents();
    QCOMPARE(a.bar().maximum(), 50);
    QCOMPARE(a.content->y(), -50);
    // A host that has the content follow the area instead gets it laid out at the next request.
    a.area.setWidgetResizable(true);
    a.content->setMinimumHeight(300);
    a.content->setMaximumHeight(QWIDGETSIZE_MAX);
    QCoreApplication::processEvents();
    QCOMPARE(a.content->height(), 300);
}

void CScrollAreaTest::theGroundHasItsKey()
{
    Area a;
    a.content->setFixedSize(50, 1000);
    a.area.setBackgroundColorKey(QStringLiteral("clr_btn_algorithm_normal"));
    QCOMPARE(a.area.grab().toImage().pixelColor(70, 50), QColor(0x17, 0x1b, 0x21));
    // The bar stands on the same ground.
    QCOMPARE(a.area.grab().toImage().pixelColor(97, 90), QColor(0x17, 0x1b, 0x21));
    resources::setTheme(QStringLiteral("light"));
    QCOMPARE(a.area.grab().toImage().pixelColor(70, 50), QColor(0xff, 0xff, 0xff));
}

void CScrollAreaTest::aNotchScrollsTwoRows()
{
    Area a;
    a.wheel({}, {0, -120});
    QCOMPARE(a.bar().value(), 52);
    QVERIFY(a.taken);
    a.wheel({}, {0, 120});
    QCOMPARE(a.bar().value(), 0);
}

void CScrollAreaTest::aFineWheelScrollsByItsPixels()
{
    Area a;
    a.wheel({0, -7}, {0, -40});
    QCOMPARE(a.bar().value(), 7);
    a.wheel({0, 3}, {0, 20});
    QCOMPARE(a.bar().value(), 4);
}

void CScrollAreaTest::smallTurnsAddUp()
{
    Area a;
    for (int turn = 0; turn < 60; ++turn)
        a.wheel({}, {0, -2});
    QCOMPARE(a.bar().value(), 52);
}

void CScrollAreaTest::atTheEndTheWheelIsLeftToOthers()
{
    Area a;
    a.wheel({}, {0, 120});
    QVERIFY(!a.taken);
    a.wheel({}, {0, -120000});
    QCOMPARE(a.bar().value(), 900);
    a.wheel({}, {0, -120});
    QVERIFY(!a.taken);
}

void CScrollAreaTest::theHandleIsDragged()
{
    Area a;
    // The handle is 16 pixels at the least and stands at the top: 84 pixels are left to drag it.
    QTest::mousePress(&a.bar(), Qt::LeftButton, {}, QPoint(3, 8));
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 8 + 42), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&a.bar(), &move);
    QCOMPARE(a.bar().value(), 450);
    QMouseEvent far(QEvent::MouseMove, QPointF(3, 5000), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&a.bar(), &far);
    QCOMPARE(a.bar().value(), 900);
    QTest::mouseRelease(&a.bar(), Qt::LeftButton, {}, QPoint(3, 90));
    QMouseEvent after(QEvent::MouseMove, QPointF(3, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&a.bar(), &after);
    QCOMPARE(a.bar().value(), 900);
}

void CScrollAreaTest::besideTheHandleItScrollsAPage()
{
    Area a;
    QTest::mouseClick(&a.bar(), Qt::LeftButton, {}, QPoint(3, 90));
    QCOMPARE(a.bar().value(), 100);
    QTest::mouseClick(&a.bar(), Qt::LeftButton, {}, QPoint(3, 1));
    QCOMPARE(a.bar().value(), 0);
}

void CScrollAreaTest::theHandleNeverVanishes()
{
    SlimScrollBar bar(Qt::Vertical, keys::kWindow, nullptr);
    bar.resize(6, 100);
    bar.setRange(-2000000000, 2000000000);
    bar.setPageStep(1);
    bar.setValue(2000000000);
    const QImage image = bar.grab().toImage();
    QCOMPARE(image.pixelColor(3, 90), resources::color(keys::kScrollHandle));
    QCOMPARE(image.pixelColor(3, 50), resources::color(keys::kWindow));
    bar.setRange(0, 0);
    QCOMPARE(bar.grab().toImage().pixelColor(3, 90), resources::color(keys::kWindow));
}

void CScrollAreaTest::theApplicationsStyleSheetDoesNotShow()
{
    CScrollArea area(nullptr);
    area.resize(100, 100);
    area.show();
    const auto picture = [&area] { return area.grab().toImage().convertToFormat(QImage::Format_RGB32); };
    const QImage before = picture();
    qApp->setStyleSheet(QStringLiteral("* { background: yellow; border: 3px solid green; padding: 9px; margin: 3px }"
                                       " QScrollBar { width: 30px }"));
    QCOMPARE(picture(), before);
    QCOMPARE(area.viewport()->geometry(), QRect(0, 0, 100, 100));
}

QTEST_MAIN(CScrollAreaTest)
#include "tst_CScrollArea.moc"
