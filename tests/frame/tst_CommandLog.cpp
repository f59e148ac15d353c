#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/EventLog.h"
#include "support/ModuleGuard.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

const QSet<int> kWithoutRemark = {15, 17, 18, 19, 20, 21, 22, 25, 26, 27, 28,
                                  29, 30, 36, 37, 38, 40, 42, 43, 48, 49, 51};

} // namespace

/// The remark cell that a host asks for, and its text.
class tst_CommandLog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cellIsAddedByModuleAndIdentity();
    void cellIsNotAddedWithoutTheModule();
    void addingSendsNothingAndComesLast();
    void cellThatExistsStaysAsItIs();
    void remarkComesBackAsUtf8();
    void remarkIsReadWhateverTheModuleSays();
    void missingCellAnswersAnEmptyText();
    void longRemarkComesBackWhole();
};

void tst_CommandLog::cellIsAddedByModuleAndIdentity()
{
    for (int id = -5; id <= 70; ++id) {
        BaseTableProbe table({id});
        const ModuleGuard on({modules::kCommandRemark});
        table.updateCmdLog();
        QCOMPARE(cellRow(*table.m_table, TC::OCF_InvestRemark),
                 kWithoutRemark.contains(id) ? QStringLiteral("0x4000000 none")
                                             : QStringLiteral("0x4000000 line 投资备注: \"\""));
    }
}

void tst_CommandLog::cellIsNotAddedWithoutTheModule()
{
    for (int id = -5; id <= 70; ++id) {
        BaseTableProbe table({id});
        table.updateCmdLog();
        QVERIFY(!table.m_table->getItem(TC::OCF_InvestRemark));
    }
}

void tst_CommandLog::addingSendsNothingAndComesLast()
{
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    const QStringList before = cellRows(*table->m_table);
    const ModuleGuard on({modules::kCommandRemark});
    table->updateCmdLog();
    QCOMPARE(cellRows(*table->m_table), before + QStringList({QStringLiteral("0x4000000 line 投资备注: \"\"")}));
    QCOMPARE(table->hooks, QStringList());
    QCOMPARE(host.take(), QStringList());
}

void tst_CommandLog::cellThatExistsStaysAsItIs()
{
    const ModuleGuard on({modules::kCommandRemark});
    BaseTableProbe table;
    table.m_table->setItemText(TC::OCF_InvestRemark, QStringLiteral("kept"));
    const QStringList before = cellRows(*table.m_table);
    table.updateCmdLog();
    QCOMPARE(cellRows(*table.m_table), before);
    QCOMPARE(table.getCmdLog(), std::string("kept"));
}

void tst_CommandLog::remarkComesBackAsUtf8()
{
    const ModuleGuard on({modules::kCommandRemark});
    BaseTableProbe table;
    table.m_table->setItemText(TC::OCF_InvestRemark, QStringLiteral("买入 €"));
    QCOMPARE(table.getCmdLog(), std::string("\xE4\xB9\xB0\xE5\x85\xA5 \xE2\x82\xAC"));
}

void tst_CommandLog::remarkIsReadWhateverTheModuleSays()
{
    BaseTableProbe table;
    {
        const ModuleGuard on({modules::kCommandRemark});
        table.updateCmdLog();
    }
    table.m_table->setItemText(TC::OCF_InvestRemark, QStringLiteral("remark"));
    QCOMPARE(table.getCmdLog(), std::string("remark"));
}

void tst_CommandLog::missingCellAnswersAnEmptyText()
{
    BaseTableProbe table;
    QCOMPARE(table.getCmdLog(), std::string());
    table.updateCmdLog();
    QCOMPARE(table.getCmdLog(), std::string());

    BaseTableProbe closing({49});
    const ModuleGuard on({modules::kCommandRemark});
    closing.updateCmdLog();
    QCOMPARE(closing.getCmdLog(), std::string());
}

void tst_CommandLog::longRemarkComesBackWhole()
{
    const ModuleGuard on({modules::kCommandRemark});
    BaseTableProbe table;
    table.m_table->setItemText(TC::OCF_InvestRemark, QString(1 << 20, QChar(0x4E70)));
    const std::string remark = table.getCmdLog();
    QCOMPARE(remark.size(), std::size_t(3) << 20);
    QCOMPARE(remark.substr(0, 3), std::string("\xE4\xB9\xB0"));
}

QTEST_MAIN(tst_CommandLog)
#include "tst_CommandLog.moc"
