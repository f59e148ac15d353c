#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/CommandLogRules.h>

#include <QTest>

class tst_CommandLogRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tablesThatMayCarryNoRemark();
    void tablesFrom52OnMayCarryOne();
};

void tst_CommandLogRules::tablesThatMayCarryNoRemark()
{
    const std::set<int> without{15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28, 29, 30, 36, 37, 38, 40, 42, 43, 48, 49, 51};
    for (const int identity : ruletext::manyIntegers())
        QCOMPARE(TC::mayCarryRemark(identity), without.count(identity) == 0);
}

void tst_CommandLogRules::tablesFrom52OnMayCarryOne()
{
    for (int identity = 52; identity < 300; ++identity)
        QVERIFY(TC::mayCarryRemark(identity));
    QVERIFY(!TC::mayCarryRemark(49));
}

QTEST_APPLESS_MAIN(tst_CommandLogRules)
#include "tst_CommandLogRules.moc"
