#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CWidgetList.h>

#include <QtTest>

#include <limits>

using namespace WQ;

namespace {

class Box : public QWidget
{
public:
    explicit Box(QSize size)
        : m_size(size)
    {
    }

    QSize sizeHint() const override
    {
        return m_size;
    }

private:
    const QSize m_size;
};

void lay(CWidgetList& list, QSize size)
{
    list.resize(size);
    list.show();
}

} // namespace

class CWidgetListTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stretchedWidgetsTakeTheRoom();
    void fixedWidgetsKeepTheirSize();
    void theFillingAnchorTakesTheRoom();
    void spacesAndMarginsArePixels();
    void valuesBelowZeroCountAsNone();
    void positionsAreAnswered();
    void nullAndItselfAreRefused();
    void aWidgetGivenTwiceMoves();
    void ownersMayDeleteTheirWidgets();
    void verticalListsStandBelowEachOther();
    void itIsPaintedInTheWindowColour();
};

void CWidgetListTest::stretchedWidgetsTakeTheRoom()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    auto* fixed = new Box({30, 10});
    auto* one = new Box({10, 10});
    auto* two = new Box({10, 10});
    list.addFixedWidget(fixed, AnchorStart, false);
    list.addStretchWidget(one, 1, AnchorFill, false);
    list.addStretchWidget(two, 2, AnchorFill, false);
    lay(list, {330, 28});
    QCOMPARE(fixed->geometry(), QRect(0, 0, 30, 28));
    QCOMPARE(one->geometry(), QRect(30, 0, 100, 28));
    QCOMPARE(two->geometry(), QRect(130, 0, 200, 28));
    QCOMPARE(fixed->parentWidget(), &list);
}

void CWidgetListTest::fixedWidgetsKeepTheirSize()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    auto* first = new Box({30, 10});
    auto* second = new Box({50, 10});
    list.addFixedWidget(first, AnchorStart, false);
    list.addFixedWidget(second, AnchorStart, true);
    lay(list, {330, 28});
    QCOMPARE(first->geometry(), QRect(0, 0, 30, 28));
    QCOMPARE(second->geometry(), QRect(30, 0, 50, 28));
}

void CWidgetListTest::theFillingAnchorTakesTheRoom()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    auto* first = new Box({30, 10});
    auto* second = new Box({50, 10});
    list.addFixedWidget(first, AnchorFill, false);
    list.addFixedWidget(second, AnchorStart, false);
    lay(list, {330, 28});
    QCOMPARE(first->geometry(), QRect(0, 0, 280, 28));
    QCOMPARE(second->geometry(), QRect(280, 0, 50, 28));
}

void CWidgetListTest::spacesAndMarginsArePixels()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    list.setMargin(1, 2, 3, 4);
    list.setSpacing(5);
    auto* first = new Box({30, 10});
    auto* second = new Box({10, 10});
    list.addFixedWidget(first, AnchorStart, false);
    list.addStretchWidget(second, 1, AnchorFill, false);
    lay(list, {130, 28});
    QCOMPARE(first->geometry(), QRect(1, 2, 30, 22));
    QCOMPARE(second->x(), 36);
}

void CWidgetListTest::valuesBelowZeroCountAsNone()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    list.setMargin(-1, -2, std::numeric_limits<int>::min(), -4);
    list.setSpacing(-7);
    list.addFixedSpace(-5);
    auto* first = new Box({30, 10});
    auto* second = new Box({30, 10});
    list.addStretchWidget(first, -3, AnchorStart, false);
    list.addFixedWidget(second, AnchorStart, false);
    lay(list, {130, 28});
    QCOMPARE(first->geometry(), QRect(0, 0, 30, 28));
    QCOMPARE(second->geometry(), QRect(30, 0, 30, 28));
}

void CWidgetListTest::positionsAreAnswered()
{
    CWidgetList list(Qt::Vertical, nullptr);
    QCOMPARE(list.addFixedWidget(new Box({1, 1}), AnchorStart, false), 0);
    QCOMPARE(list.addFixedSpace(1), 1);
    QCOMPARE(list.addStretchWidget(new Box({1, 1}), 1, AnchorFill, false), 2);
    QCOMPARE(list.addFixedWidget(new Box({1, 1}), static_cast<EWidgetAnchor>(-5), false), 3);
}

void CWidgetListTest::nullAndItselfAreRefused()
{
    QWidget parent;
    CWidgetList list(Qt::Vertical, &parent);
    QCOMPARE(list.addFixedWidget(nullptr, AnchorStart, false), -1);
    QCOMPARE(list.addStretchWidget(nullptr, 1, AnchorFill, false), -1);
    QCOMPARE(list.addFixedWidget(&list, AnchorStart, false), -1);
    QCOMPARE(list.addFixedWidget(&parent, AnchorStart, false), -1);
    QCOMPARE(list.addFixedSpace(3), 0);
}

void CWidgetListTest::aWidgetGivenTwiceMoves()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    auto* first = new Box({30, 10});
    auto* second = new Box({50, 10});
    list.addFixedWidget(first, AnchorStart, false);
    list.addFixedWidget(second, AnchorStart, false);
    QCOMPARE(list.addFixedWidget(first, AnchorStart, false), 1);
    lay(list, {330, 28});
    QCOMPARE(second->x(), 0);
    QCOMPARE(first->x(), 50);
}

void CWidgetListTest::ownersMayDeleteTheirWidgets()
{
    CWidgetList list(Qt::Horizontal, nullptr);
    auto* first = new Box({30, 10});
    auto* second = new Box({50, 10});
    list.addFixedWidget(first, AnchorStart, false);
    list.addFixedWidget(second, AnchorStart, false);
    delete first;
    lay(list, {330, 28});
    QCOMPARE(second->x(), 0);
}

void CWidgetListTest::verticalListsStandBelowEachOther()
{
    CWidgetList list(Qt::Vertical, nullptr);
    auto* first = new Box({30, 22});
    auto* second = new Box({30, 22});
    first->setFixedHeight(22);
    second->setFixedHeight(22);
    list.addFixedWidget(first, AnchorStart, false);
    list.addFixedSpace(1);
    list.addFixedWidget(second, AnchorStart, false);
    lay(list, {200, 300});
    QCOMPARE(first->geometry(), QRect(0, 0, 200, 22));
    QCOMPARE(second->geometry(), QRect(0, 23, 200, 22));
}

void CWidgetListTest::itIsPaintedInTheWindowColour()
{
    resources::setTheme(QStringLiteral("light"));
    CWidgetList list(Qt::Vertical, nullptr);
    list.resize(10, 10);
    QCOMPARE(list.grab().toImage().pixelColor(5, 5), resources::color(keys::kWindow));
}

QTEST_MAIN(CWidgetListTest)
#include "tst_CWidgetList.moc"
