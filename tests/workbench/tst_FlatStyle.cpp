#include "workbench/Appearance.h"
#include "workbench/MainWindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDockWidget>
#include <QSettings>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QStyleOptionSpinBox>
#include <QtTest>

using namespace workbench;

namespace {

QDockWidget* eventsOf(const MainWindow& window)
{
    return window.findChild<QDockWidget*>(QStringLiteral("eventsDock"));
}

QImage titleOf(const MainWindow& window)
{
    QDockWidget* part = eventsOf(window);
    return part->grab(QRect(0, 0, 150, part->widget()->y())).toImage();
}

} // namespace

class tst_FlatStyle : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void aFieldHasRoomForItsTextAtEveryScale_data();
    void aFieldHasRoomForItsTextAtEveryScale();
    void titlesOfPartsFollowTheScaleAtOnce();

private:
    QTemporaryDir m_settings;
};

void tst_FlatStyle::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    dressApplication();
}

void tst_FlatStyle::cleanup()
{
    setScale(1.0);
}

void tst_FlatStyle::aFieldHasRoomForItsTextAtEveryScale_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.5, 2.0, 3.0})
        QTest::addRow("%.1f", scale) << scale;
}

void tst_FlatStyle::aFieldHasRoomForItsTextAtEveryScale()
{
    QFETCH(double, scale);
    setScale(scale);
    QSpinBox spin;
    spin.setMaximum(50);
    spin.setSuffix(QStringLiteral(" a second"));
    spin.resize(spin.sizeHint());
    QStyleOptionSpinBox spinOption;
    spinOption.initFrom(&spin);
    QRect room = spin.style()->subControlRect(QStyle::CC_SpinBox, &spinOption, QStyle::SC_SpinBoxEditField, &spin);
    QVERIFY(room.width() >= spin.fontMetrics().horizontalAdvance(QStringLiteral("50 a second")) + 4);

    QComboBox combo;
    const QString entry = QStringLiteral("18  any other operation");
    combo.addItem(entry);
    combo.resize(combo.sizeHint());
    QStyleOptionComboBox comboOption;
    comboOption.initFrom(&combo);
    room = combo.style()->subControlRect(QStyle::CC_ComboBox, &comboOption, QStyle::SC_ComboBoxEditField, &combo);
    QVERIFY(room.width() >= combo.fontMetrics().horizontalAdvance(entry));
}

void tst_FlatStyle::titlesOfPartsFollowTheScaleAtOnce()
{
    MainWindow window({});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QDockWidget* part = eventsOf(window);
    const auto* close = part->findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
    const int before = close->width();
    window.chooseScale(3.0);
    QVERIFY(part->widget()->y() >= part->fontMetrics().height());
    QVERIFY(close->width() > 2 * before);
    QVERIFY(close->geometry().bottom() < part->widget()->y());
    {
        MainWindow fresh({});
        fresh.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fresh));
        QCOMPARE(titleOf(window), titleOf(fresh));
    }
    window.chooseScale(1.0);
    QCOMPARE(close->width(), before);
}

QTEST_MAIN(tst_FlatStyle)
#include "tst_FlatStyle.moc"
