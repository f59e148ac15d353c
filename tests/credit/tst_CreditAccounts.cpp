#include "credit/CreditPanel.h"

#include "support/CellText.h"

#include <QTest>

namespace {

QString account(const char* key)
{
    return QString::fromLatin1(key);
}

} // namespace

class tst_CreditAccounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refreshingEmptiesTheAccountListAndSendsNothing();
    void refreshingWithARememberedAccountSendsNothingWhileTheListIsEmpty();
    void refreshingLeavesTheOtherRows();
    void choosingAnAccountSendsItsId();
    void choosingAnAccountThatIsNotOfferedSendsItAllTheSame();
    void choosingSendsBeforeTheFiguresStandForAllContracts();
    void choosingNoAccount();
    void accountsAreUtf8();
    void aMegabyteOfAccount();
    void anyUnrepaidTextIsShownForEveryOperation();
};

void tst_CreditAccounts::refreshingEmptiesTheAccountListAndSendsNothing()
{
    CreditPanel panel;
    panel.offerAccounts({account("A1"), account("A2")});
    panel.table->m_useAllCompacts = false;
    panel.table->refreshAccounts();
    QCOMPARE(support::comboEntries(panel.cells(), 726), QString());
    QVERIFY(!panel.cells().itemData(726).isValid());
    QCOMPARE(panel.cells().itemText(726), QString());
    QVERIFY(panel.table->m_useAllCompacts);
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditAccounts::refreshingWithARememberedAccountSendsNothingWhileTheListIsEmpty()
{
    CreditPanel panel;
    panel.table->m_operationType = 22;
    remember(*panel.table, 22, {{726, account("A1")}});
    panel.offerAccounts({account("A1")});
    panel.table->refreshAccounts();
    QCOMPARE(panel.table->getSelectAccount(), QString());
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(panel.remembered(), QStringLiteral("22: 726=A1"));
}

void tst_CreditAccounts::refreshingLeavesTheOtherRows()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("22+22-727=X1-728=5-729=6-730=7"));
    const QStringList before = panel.codeAndFigures();
    panel.table->refreshAccounts();
    QCOMPARE(panel.codeAndFigures(), before);
}

void tst_CreditAccounts::choosingAnAccountSendsItsId()
{
    CreditPanel panel;
    panel.offerAccounts({account("A1"), account("A2")});
    panel.table->m_useAllCompacts = false;
    panel.table->setSelectAccount("A2");
    QCOMPARE(panel.table->getSelectAccount(), account("A2"));
    QCOMPARE(panel.host.take(), QStringList{QStringLiteral("73(725, 0, \"\", A2)")});
    QVERIFY(panel.table->m_useAllCompacts);
}

void tst_CreditAccounts::choosingAnAccountThatIsNotOfferedSendsItAllTheSame()
{
    CreditPanel panel;
    panel.table->setSelectAccount("B9");
    QCOMPARE(panel.table->getSelectAccount(), QString());
    QCOMPARE(panel.host.take(), QStringList{QStringLiteral("73(725, 0, \"\", B9)")});
    panel.offerAccounts({account("A1"), account("A2")}, 1);
    panel.table->setSelectAccount("B9");
    QCOMPARE(panel.table->getSelectAccount(), account("A2"));
    QCOMPARE(panel.host.take(), QStringList{QStringLiteral("73(725, 0, \"\", B9)")});
}

void tst_CreditAccounts::choosingSendsBeforeTheFiguresStandForAllContracts()
{
    CreditPanel panel;
    panel.table->m_useAllCompacts = false;
    bool whileSending = true;
    QString chosenWhileSending;
    panel.offerAccounts({account("A1"), account("A2")});
    panel.host.onEvent = [&](int) {
        whileSending = panel.table->m_useAllCompacts;
        chosenWhileSending = panel.table->getSelectAccount();
    };
    panel.table->setSelectAccount("A2");
    QVERIFY(!whileSending);
    QCOMPARE(chosenWhileSending, account("A2"));
    QVERIFY(panel.table->m_useAllCompacts);
}

void tst_CreditAccounts::choosingNoAccount()
{
    CreditPanel panel;
    panel.offerAccounts({account("A1")});
    panel.table->setSelectAccount(std::string());
    QCOMPARE(panel.table->getSelectAccount(), account("A1"));
    QCOMPARE(panel.host.take(), QStringList{QStringLiteral("73(725, 0, \"\")")});
    QVERIFY(panel.host.lastData);
}

void tst_CreditAccounts::accountsAreUtf8()
{
    CreditPanel panel;
    panel.offerAccounts({QStringLiteral("信用账户")});
    panel.table->setSelectAccount(u8"信用账户");
    QCOMPARE(panel.table->getSelectAccount(), QStringLiteral("信用账户"));
    QCOMPARE(panel.host.take(), QStringList{QStringLiteral("73(725, 0, \"\", 信用账户)")});
    panel.table->setSelectAccount("\xff\xfe broken");
    QCOMPARE(panel.host.take().size(), 1);
}

void tst_CreditAccounts::aMegabyteOfAccount()
{
    CreditPanel panel;
    panel.table->setSelectAccount(std::string(1024 * 1024, 'A'));
    QCOMPARE(panel.host.take().value(0).size(), 1024 * 1024 + int(qstrlen("73(725, 0, \"\", )")));
}

void tst_CreditAccounts::anyUnrepaidTextIsShownForEveryOperation()
{
    CreditPanel panel;
    for (const int operation : {22, 23, 24, 25, 1021, -1, 99}) {
        chooseOperation(panel, operation);
        for (const QString& text :
             {QStringLiteral("123"), QStringLiteral("非法值"), QString(), QStringLiteral("1.5")}) {
            panel.table->m_useAllCompacts = false;
            panel.table->refreshUnrepayValue(text);
            QCOMPARE(panel.cells().itemText(728), text);
            QVERIFY(panel.table->m_useAllCompacts);
        }
    }
    QCOMPARE(panel.host.take(), QStringList());
}

QTEST_MAIN(tst_CreditAccounts)
#include "tst_CreditAccounts.moc"
