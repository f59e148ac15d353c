#include "credit/CreditPanel.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace {

/// The value of a shown row, found by its title.
QModelIndex valueOf(WQ::CMultiParamsTable& cells, const QString& title)
{
    const QAbstractItemModel& model = *cells.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, 0).data().toString() == title)
            return model.index(row, 1);
    }
    return {};
}

/// Presses a key of the open list, or of what has the focus.
void press(int key)
{
    QWidget* const list = QApplication::activePopupWidget();
    QWidget* const target = list ? list : QApplication::focusWidget();
    QVERIFY(target);
    QTest::keyClick(target, Qt::Key(key));
}

void type(const QString& text)
{
    QVERIFY(QApplication::focusWidget());
    QTest::keyClicks(QApplication::focusWidget(), text);
}

/// Shows the panel, goes to the row and opens its editor, as a person does by keyboard.
void edit(CreditPanel& panel, const QString& title)
{
    panel.host.resize(panel.table->size());
    panel.host.show();
    panel.cells().setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&panel.host));
    panel.cells().setCurrentIndex(valueOf(panel.cells(), title));
    press(Qt::Key_F2);
}

/// What the host has heard once the events that a person caused have gone out.
QStringList heard(CreditPanel& panel)
{
    QCoreApplication::processEvents();
    return panel.host.take();
}

} // namespace

class tst_CreditEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPersonChoosesAnAccount();
    void aPersonsCodeIsTaken_data();
    void aPersonsCodeIsTaken();
    void aCodeAgainstThePatternIsNotTaken_data();
    void aCodeAgainstThePatternIsNotTaken();
    void figuresTakeNoTyping_data();
    void figuresTakeNoTyping();
};

void tst_CreditEditing::aPersonChoosesAnAccount()
{
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("A1"), QStringLiteral("A2")});
    panel.table->m_useAllCompacts = false;
    edit(panel, QStringLiteral("资金账号"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QCOMPARE(heard(panel), QStringList{QStringLiteral("73(726, 1, \"name of A2\", A2)")});
    QCOMPARE(panel.table->getSelectAccount(), QStringLiteral("A2"));
    QVERIFY(panel.table->m_useAllCompacts);
}

void tst_CreditEditing::aPersonsCodeIsTaken_data()
{
    QTest::addColumn<QString>("code");
    for (const char* code : {"aZ09", "A-1 &*", "600000", "*"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void tst_CreditEditing::aPersonsCodeIsTaken()
{
    QFETCH(QString, code);
    CreditPanel panel;
    panel.cells().setItemHidden(727, false);
    edit(panel, QStringLiteral("指定还券"));
    type(code);
    press(Qt::Key_Return);
    QCOMPARE(heard(panel), QStringList{QStringLiteral("102(727, 0, \"%1\")").arg(code)});
    QCOMPARE(panel.table->getCurrentCode(), code);
}

void tst_CreditEditing::aCodeAgainstThePatternIsNotTaken_data()
{
    QTest::addColumn<QString>("code");
    for (const char* code : {"#", "600.", "A/", "A+1=", "A_"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void tst_CreditEditing::aCodeAgainstThePatternIsNotTaken()
{
    QFETCH(QString, code);
    CreditPanel panel;
    panel.cells().setItemText(727, QStringLiteral("X1"));
    panel.cells().setItemHidden(727, false);
    edit(panel, QStringLiteral("指定还券"));
    type(code);
    press(Qt::Key_Return);
    QCOMPARE(heard(panel), QStringList());
    QCOMPARE(panel.table->getCurrentCode(), QStringLiteral("X1"));
    press(Qt::Key_Escape);
    QCOMPARE(heard(panel), QStringList());
    QCOMPARE(panel.table->getCurrentCode(), QStringLiteral("X1"));
}

void tst_CreditEditing::figuresTakeNoTyping_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("728") << QStringLiteral("未还合约数量");
    QTest::newRow("729") << QStringLiteral("当日可还数量");
    QTest::newRow("730") << QStringLiteral("可还券资金");
    QTest::newRow("731") << QStringLiteral("可还券数量");
}

void tst_CreditEditing::figuresTakeNoTyping()
{
    QFETCH(QString, title);
    CreditPanel panel;
    edit(panel, title);
    QVERIFY(!qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    type(QStringLiteral("5"));
    press(Qt::Key_Return);
    QCOMPARE(heard(panel), QStringList());
    QCOMPARE(panel.texts().join(QString()), QString());
}

QTEST_MAIN(tst_CreditEditing)
#include "tst_CreditEditing.moc"
