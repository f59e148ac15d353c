#include "workbench/NumberCombo.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;

class tst_NumberCombo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void typedNumbersAreTaken_data();
    void typedNumbersAreTaken();
    void aChosenRowIsTaken();
    void settingAValueAnnouncesNothing();
    void theSameValueIsNotAnnouncedAgain();
};

void tst_NumberCombo::typedNumbersAreTaken_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    QTest::newRow("a value of the list") << QStringLiteral("6") << 6;
    QTest::newRow("another value") << QStringLiteral("77") << 77;
    QTest::newRow("negative") << QStringLiteral("-3") << -3;
    QTest::newRow("with a name behind it") << QStringLiteral("7  Hong Kong") << 7;
    QTest::newRow("too large for an int") << QStringLiteral("9999999999") << 2;
    QTest::newRow("no number") << QStringLiteral("abc") << 2;
    QTest::newRow("nothing") << QString() << 2;
}

void tst_NumberCombo::typedNumbersAreTaken()
{
    QFETCH(QString, typed);
    QFETCH(int, value);
    NumberCombo combo(brokerTypes(), 2);
    combo.show();
    QVERIFY(QTest::qWaitForWindowActive(&combo));
    combo.setFocus();
    QSignalSpy announced(&combo, &NumberCombo::valueChanged);
    combo.lineEdit()->selectAll();
    if (typed.isEmpty())
        QTest::keyClick(combo.lineEdit(), Qt::Key_Delete);
    else
        QTest::keyClicks(combo.lineEdit(), typed);
    combo.clearFocus();
    QCOMPARE(combo.value(), value);
    QCOMPARE(announced.size(), value == 2 ? 0 : 1);
    QCOMPARE(combo.currentText(), valueWithName(brokerTypes(), value));
}

void tst_NumberCombo::aChosenRowIsTaken()
{
    NumberCombo combo(brokerTypes(), 2);
    QSignalSpy announced(&combo, &NumberCombo::valueChanged);
    combo.setCurrentIndex(0);
    Q_EMIT combo.activated(0);
    QCOMPARE(combo.value(), 1);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced.first().first().toInt(), 1);
}

void tst_NumberCombo::settingAValueAnnouncesNothing()
{
    NumberCombo combo(brokerTypes(), 2);
    QSignalSpy announced(&combo, &NumberCombo::valueChanged);
    combo.setValue(1001);
    QCOMPARE(combo.value(), 1001);
    QVERIFY(announced.isEmpty());
}

void tst_NumberCombo::theSameValueIsNotAnnouncedAgain()
{
    NumberCombo combo(brokerTypes(), 2);
    QSignalSpy announced(&combo, &NumberCombo::valueChanged);
    combo.setEditText(QStringLiteral("2"));
    Q_EMIT combo.lineEdit()->editingFinished();
    QVERIFY(announced.isEmpty());
}

QTEST_MAIN(tst_NumberCombo)
#include "tst_NumberCombo.moc"
