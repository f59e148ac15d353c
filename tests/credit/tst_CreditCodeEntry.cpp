#include "credit/CreditPanel.h"

#include <ttservice/CStkCompactsV2.h>

#include <QTest>

namespace {

constexpr int kOperations[] = {22, 23, 24, 25, 1021, -1, 99};
const QString kCode = QStringLiteral("1083(725, 0, \"\")");
const QString kPattern = QStringLiteral("#!? 中文 +=-");

bool repaysSecurities(int operation)
{
    return operation == 22 || operation == 23;
}

QString figureWithAccount(int operation)
{
    return operation == 24 || operation == 25 || operation == 1021 ? QStringLiteral("0.00") : QStringLiteral("0");
}

/// A contract's keyed data that counts how often its key is asked for.
class KeyedData : public ttservice::IData
{
public:
    explicit KeyedData(int& asked)
        : m_asked(asked)
    {
    }

    std::string getKey() const override
    {
        ++m_asked;
        return "K1";
    }

private:
    int& m_asked;
};

boost::shared_ptr<ttservice::CStkCompactsV2> contract(int& asked)
{
    boost::shared_ptr<ttservice::CStkCompactsV2> compact(new ttservice::CStkCompactsV2);
    compact->unrepaidVolume = 700;
    compact->unrepaidFees = 12.5;
    compact->data.reset(new KeyedData(asked));
    return compact;
}

/// A panel of an operation with "old" in the rows 727 to 731 and nothing in its log.
void prepare(CreditPanel& panel, int operation, const QString& account)
{
    if (!account.isEmpty())
        panel.offerAccounts({account});
    chooseOperation(panel, operation);
    for (int row = 727; row <= 731; ++row)
        panel.cells().setItemText(row, QStringLiteral("old"));
}

QStringList old()
{
    QStringList texts;
    for (int i = 0; i < 5; ++i)
        texts << QStringLiteral("old");
    return texts;
}

} // namespace

class tst_CreditCodeEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCodeWithAContractIdWritesTheCodeAlone();
    void aCodeShowsTheDefaultContractsFigure();
    void aCodeShowsAllContractsFigures_data();
    void aCodeShowsAllContractsFigures();
    void aCodeOfOperation23WithAnAccount();
    void aCodePutsSharesOnTheFundsOfMoneyOperations();
    void codesAreWrittenPastThePattern();
    void settingTheCodeTextWritesTheCodeAlone();
    void notSettingTheCodeTextEmptiesCodeAndFigures();
    void anEmptyCodeEmptiesTheRowsAndSends1083Once();
    void aCodeThatIsNotEmptyChangesNothing();
    void noContractChangesNothing();
    void aContractWithoutDataChangesNothing();
    void aContractShowsItsFigure_data();
    void aContractShowsItsFigure();
    void zeroIsShownWhateverTheContractsFigure();
    void codesOfAMegabyte();
};

void tst_CreditCodeEntry::aCodeWithAContractIdWritesTheCodeAlone()
{
    for (const int operation : kOperations) {
        for (const bool useDefault : {false, true}) {
            CreditPanel panel;
            prepare(panel, operation, QStringLiteral("A1"));
            const QStringList before = panel.codeAndFigures();
            panel.table->setStockCode(QStringLiteral("600000"), "K1", useDefault);
            QCOMPARE(panel.cells().itemText(727), QStringLiteral("600000"));
            QCOMPARE(panel.codeAndFigures().mid(1), before.mid(1));
            QCOMPARE(panel.host.take(), QStringList());
        }
    }
}

void tst_CreditCodeEntry::aCodeShowsTheDefaultContractsFigure()
{
    for (const int operation : kOperations) {
        CreditPanel panel;
        prepare(panel, operation, QStringLiteral("A1"));
        panel.table->setStockCode(QStringLiteral("600000"), std::string(), true);
        QCOMPARE(panel.texts(),
                 (QStringList{QStringLiteral("600000"), QStringLiteral("0"), QStringLiteral("old"),
                              QStringLiteral("old"), QStringLiteral("old")}));
        QCOMPARE(panel.cells().itemUnit(728), QStringLiteral("股"));
        QCOMPARE(panel.cells().itemUnit(730), QStringLiteral("股"));
        QCOMPARE(panel.host.take(), QStringList());
    }
}

void tst_CreditCodeEntry::aCodeShowsAllContractsFigures_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("account");
    for (const int operation : kOperations) {
        QTest::addRow("%d with an account", operation) << operation << QStringLiteral("A1");
        QTest::addRow("%d without", operation) << operation << QString();
    }
}

void tst_CreditCodeEntry::aCodeShowsAllContractsFigures()
{
    QFETCH(int, operation);
    QFETCH(QString, account);
    CreditPanel panel;
    prepare(panel, operation, account);
    const QString today = repaysSecurities(operation) ? QStringLiteral("0") : QStringLiteral("old");
    const QString unrepaid = account.isEmpty() ? QStringLiteral("0") : figureWithAccount(operation);
    panel.table->setStockCode(QStringLiteral("600000"), std::string(), false);
    QCOMPARE(panel.texts(),
             (QStringList{QStringLiteral("600000"), unrepaid, today, QStringLiteral("old"), QStringLiteral("old")}));
    for (const int row : {728, 729, 730})
        QCOMPARE(panel.cells().itemUnit(row), QStringLiteral("股"));
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditCodeEntry::aCodeOfOperation23WithAnAccount()
{
    CreditPanel panel;
    prepare(panel, 23, QStringLiteral("A1"));
    panel.table->setStockCode(QStringLiteral("C"), std::string(), false);
    QCOMPARE(panel.row(727), QStringLiteral("指定还券: \"C\", hidden"));
    QCOMPARE(panel.row(728), QStringLiteral("未还合约数量: \"0\" 股, fixed"));
    QCOMPARE(panel.row(729), QStringLiteral("当日可还数量: \"0\" 股, fixed"));
    QCOMPARE(panel.row(730), QStringLiteral("可用持仓数量: \"old\" 股, fixed"));
}

void tst_CreditCodeEntry::aCodePutsSharesOnTheFundsOfMoneyOperations()
{
    CreditPanel panel;
    prepare(panel, 25, QStringLiteral("A1"));
    QCOMPARE(panel.cells().itemUnit(730), QStringLiteral("元"));
    panel.table->setStockCode(QStringLiteral("C"), std::string(), false);
    QCOMPARE(panel.row(730), QStringLiteral("可还款资金: \"old\" 股, fixed"));
    QCOMPARE(panel.row(728), QStringLiteral("负债金额: \"0.00\" 股, fixed"));
    panel.table->refreshUIData();
    QCOMPARE(panel.cells().itemUnit(730), QStringLiteral("元"));
    QCOMPARE(panel.cells().itemUnit(728), QStringLiteral("元"));
}

void tst_CreditCodeEntry::codesAreWrittenPastThePattern()
{
    CreditPanel panel;
    panel.table->setStockCode(kPattern, "K1", false);
    QCOMPARE(panel.table->getCurrentCode(), kPattern);
    panel.table->setFixCodeText(QStringLiteral("$%^"), true, false, std::string());
    QCOMPARE(panel.table->getCurrentCode(), QStringLiteral("$%^"));
}

void tst_CreditCodeEntry::settingTheCodeTextWritesTheCodeAlone()
{
    for (const bool refresh : {false, true}) {
        CreditPanel panel;
        prepare(panel, 22, QString());
        panel.table->setFixCodeText(QStringLiteral("X1"), true, refresh, "K1");
        QStringList expected = old();
        expected[0] = QStringLiteral("X1");
        QCOMPARE(panel.texts(), expected);
        panel.table->setFixCodeText(QString(), true, refresh, std::string());
        expected[0] = QString();
        QCOMPARE(panel.texts(), expected);
        QCOMPARE(panel.host.take(), QStringList());
    }
}

void tst_CreditCodeEntry::notSettingTheCodeTextEmptiesCodeAndFigures()
{
    for (const bool refresh : {false, true}) {
        CreditPanel panel;
        prepare(panel, 22, QString());
        panel.table->setFixCodeText(QStringLiteral("X1"), false, refresh, "K1");
        QCOMPARE(panel.texts().join(QString()), QString());
        QCOMPARE(panel.host.take(), QStringList());
    }
}

void tst_CreditCodeEntry::anEmptyCodeEmptiesTheRowsAndSends1083Once()
{
    for (const int operation : kOperations) {
        CreditPanel panel;
        prepare(panel, operation, QStringLiteral("A1"));
        QString textsAtEvent = QStringLiteral("none");
        panel.host.onEvent = [&](int) { textsAtEvent = panel.texts().join(QString()); };
        panel.table->fixCodeChanged(QString());
        QCOMPARE(panel.host.take(), QStringList{kCode});
        QVERIFY(!panel.host.lastData);
        QCOMPARE(textsAtEvent, QString());
        QCOMPARE(panel.texts().join(QString()), QString());
    }
}

void tst_CreditCodeEntry::aCodeThatIsNotEmptyChangesNothing()
{
    CreditPanel panel;
    prepare(panel, 22, QStringLiteral("A1"));
    for (const QString& code : {QStringLiteral("X1"), QStringLiteral(" "), kPattern}) {
        panel.table->fixCodeChanged(code);
        QCOMPARE(panel.texts(), old());
    }
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditCodeEntry::noContractChangesNothing()
{
    CreditPanel panel;
    prepare(panel, 22, QStringLiteral("A1"));
    panel.table->setStkCompacts({}, QStringLiteral("88"), true);
    QCOMPARE(panel.texts(), old());
    QVERIFY(panel.table->m_useAllCompacts);
}

void tst_CreditCodeEntry::aContractWithoutDataChangesNothing()
{
    CreditPanel panel;
    prepare(panel, 22, QStringLiteral("A1"));
    const boost::shared_ptr<ttservice::CStkCompactsV2> compact(new ttservice::CStkCompactsV2);
    panel.table->setStkCompacts(compact, QStringLiteral("88"), false);
    QCOMPARE(panel.texts(), old());
    QVERIFY(panel.table->m_useAllCompacts);
}

void tst_CreditCodeEntry::aContractShowsItsFigure_data()
{
    QTest::addColumn<int>("operation");
    for (const int operation : kOperations)
        QTest::addRow("%d", operation) << operation;
}

void tst_CreditCodeEntry::aContractShowsItsFigure()
{
    QFETCH(int, operation);
    for (const QString& account : {QString(), QStringLiteral("A1")}) {
        CreditPanel panel;
        prepare(panel, operation, account);
        const QString unitOfFunds = panel.cells().itemUnit(730);
        int asked = 0;
        panel.table->setStkCompacts(contract(asked), QStringLiteral("88.5"), false);
        const QString today = repaysSecurities(operation) ? QStringLiteral("0") : QStringLiteral("old");
        QCOMPARE(panel.texts(),
                 (QStringList{QString(), QStringLiteral("88.5"), today, QStringLiteral("0"), QStringLiteral("old")}));
        QVERIFY(!panel.table->m_useAllCompacts);
        QCOMPARE(panel.cells().itemUnit(730), unitOfFunds);
        QCOMPARE(asked, 1);
        QCOMPARE(panel.host.take(), QStringList());
    }
}

void tst_CreditCodeEntry::zeroIsShownWhateverTheContractsFigure()
{
    for (const QString& figure : {QStringLiteral("88.5"), QString(), QStringLiteral("abc")}) {
        CreditPanel panel;
        prepare(panel, 24, QStringLiteral("A1"));
        int asked = 0;
        panel.table->setStkCompacts(contract(asked), figure, true);
        QCOMPARE(panel.cells().itemText(728), QStringLiteral("0"));
        QCOMPARE(panel.cells().itemText(730), QStringLiteral("0"));
    }
}

void tst_CreditCodeEntry::codesOfAMegabyte()
{
    CreditPanel panel;
    const QString code(1024 * 1024, QLatin1Char('X'));
    panel.table->setStockCode(code, std::string(), false);
    QCOMPARE(panel.table->getCurrentCode(), code);
    panel.table->fixCodeChanged(code);
    QCOMPARE(panel.table->getCurrentCode(), code);
    panel.table->refreshUnrepayValue(code);
    QCOMPARE(panel.cells().itemText(728), code);
}

QTEST_MAIN(tst_CreditCodeEntry)
#include "tst_CreditCodeEntry.moc"
