#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CBaseWidget.h>

#include <QApplication>
#include <QtTest>

using namespace WQ;

namespace {

struct Widget : CBaseWidget
{
    using CBaseWidget::CBaseWidget;

    void onActive() override
    {
        ++activated;
        if (deleteWhenActive)
            delete this;
    }

    int activated = 0;
    bool deleteWhenActive = false;
};

} // namespace

class CBaseWidgetTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void itIsNamed();
    void itHandlesNoEvent();
    void activationIsToldOnce();
    void activationTakesTheFocusWhenAsked();
    void itMayGoWhenItIsActivated();
    void theFixedFontFollowsTheScale();
    void otherFontsAreLeftAlone();
    void theMaskMayCoverAllOfIt();
    void itIsPaintedInTheWindowColour();
};

void CBaseWidgetTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void CBaseWidgetTest::itIsNamed()
{
    QWidget parent;
    const Widget widget(QStringLiteral("orderpanel"), false, &parent);
    QCOMPARE(widget.objectName(), QStringLiteral("orderpanel"));
    QCOMPARE(widget.parentWidget(), &parent);
}

void CBaseWidgetTest::itHandlesNoEvent()
{
    Widget widget(QString(), false, nullptr);
    QVERIFY(!widget.handleEvent(5, 600, 0, QString(), nullptr));
    QVERIFY(!widget.handleEvent(-1, -1, -1, QString(), nullptr));
}

void CBaseWidgetTest::activationIsToldOnce()
{
    Widget widget(QString(), false, nullptr);
    widget.setActive(true, false);
    widget.setActive(true, false);
    QCOMPARE(widget.activated, 1);
    widget.setActive(false, false);
    QCOMPARE(widget.activated, 1);
    widget.setActive(true, false);
    QCOMPARE(widget.activated, 2);
    Widget active(QString(), true, nullptr);
    active.setActive(true, false);
    QCOMPARE(active.activated, 0);
}

void CBaseWidgetTest::activationTakesTheFocusWhenAsked()
{
    QWidget window;
    Widget widget(QString(), false, &window);
    window.show();
    QApplication::setActiveWindow(&window);
    widget.setActive(true, false);
    QVERIFY(!widget.hasFocus());
    widget.setActive(false, true);
    QVERIFY(!widget.hasFocus());
    widget.setActive(true, true);
    QVERIFY(widget.hasFocus());
}

void CBaseWidgetTest::itMayGoWhenItIsActivated()
{
    QPointer<Widget> widget = new Widget(QString(), false, nullptr);
    widget->deleteWhenActive = true;
    widget->setActive(true, true);
    QVERIFY(!widget);
}

void CBaseWidgetTest::theFixedFontFollowsTheScale()
{
    Widget widget(QString(), false, nullptr);
    widget.setFixFont();
    QCOMPARE(widget.font().pixelSize(), 12);
    resources::setScale(2.0);
    QCOMPARE(widget.font().pixelSize(), 24);
}

void CBaseWidgetTest::otherFontsAreLeftAlone()
{
    Widget widget(QString(), false, nullptr);
    QFont font = widget.font();
    font.setPixelSize(17);
    widget.setFont(font);
    resources::setScale(2.0);
    QCOMPARE(widget.font().pixelSize(), 17);
}

void CBaseWidgetTest::theMaskMayCoverAllOfIt()
{
    Widget widget(QString(), false, nullptr);
    widget.resize(33, 44);
    QCOMPARE(widget.getMaskRect(), QRect(0, 0, 33, 44));
}

void CBaseWidgetTest::itIsPaintedInTheWindowColour()
{
    Widget widget(QString(), false, nullptr);
    widget.resize(10, 10);
    QCOMPARE(widget.grab().toImage().pixelColor(9, 9), QColor(0x12, 0x15, 0x1a));
    resources::setTheme(QStringLiteral("light"));
    QCOMPARE(widget.grab().toImage().pixelColor(9, 9), QColor(0xee, 0xf0, 0xf3));
}

QTEST_MAIN(CBaseWidgetTest)
#include "tst_CBaseWidget.moc"
