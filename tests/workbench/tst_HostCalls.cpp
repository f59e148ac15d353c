#include "workbench/HostCalls.h"

#include "replay/Operation.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

using namespace workbench;

namespace {

/// Operations that only answer. A table saves itself before it answers its record, which changes nothing either.
const char* const kAnswering =
    "param getId getMultiParamsTable orderType getOperationType priceType getStockCode isExpand "
    "getOrderSettings transferTimePeriod getDefaultOrderSetting orderSetting2Param getDefault "
    "singleVolType getModifiedPriceByOptTypeForCalc realHeight getSelectAccount getCurrentCode "
    "itemText itemUnit itemData itemDouble itemInt getItem getBtnNameByID getBtnIDByName "
    "getVisibleItemIdSet";

/// Operations whose names many other classes have as well.
const char* const kNamesOfOthers = "clear save setTitle";

QSet<QString> words(const char* text)
{
    const QStringList list = QString::fromLatin1(text).split(QLatin1Char(' '));
    return QSet<QString>(list.begin(), list.end());
}

QStringList changingOperations()
{
    QSet<QString> names;
    for (const replay::Operations* operations :
         {&replay::baseTableOperations(), &replay::globalTableOperations(), &replay::codeTableOperations(),
          &replay::stopLossTableOperations(), &replay::creditTableOperations(), &replay::cellTableOperations()})
        for (const replay::Operation& operation : *operations)
            names.insert(QString::fromStdString(operation.name));
    return (names - words(kAnswering) - words(kNamesOfOthers)).values();
}

QStringList callsPastTheTable(const QString& path, const QStringList& operations)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {path};
    const QRegularExpression call(
        QStringLiteral(R"((?:->|\.|table\(\)\.)(%1)\()").arg(operations.join(QLatin1Char('|'))));
    QStringList found;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch match = call.match(line);
        if (match.hasMatch())
            found << QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), match.captured(1));
    }
    return found;
}

} // namespace

class tst_HostCalls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void noOperationIsCalledPastTheTable();
    void theSearchFindsSuchACall();
    void aCallGoesThroughWithoutARecorder();
    void aRecordIsWrittenByWhatDiffers();
};

// What a host calls past the table is missing from each recording.
void tst_HostCalls::noOperationIsCalledPastTheTable()
{
    const QDir folder(QStringLiteral(WORKBENCH_SOURCES));
    const QStringList files = folder.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h")});
    QVERIFY(files.size() > 50);
    QStringList found;
    for (const QString& name : files)
        found << callsPastTheTable(folder.filePath(name), changingOperations());
    // The entries of the host's own combo boxes.
    QCOMPARE(found,
             (QStringList{QStringLiteral("LookForm.cpp: setItemText"), QStringLiteral("SetupForm.cpp: setItemText")}));
}

void tst_HostCalls::theSearchFindsSuchACall()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("A.cpp")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("int a;\nm_table->setFlag(1);\ntable.setParam(text);\nhostCall(table, calls::kSetFlag, 1);\n");
    file.close();
    QCOMPARE(callsPastTheTable(file.fileName(), changingOperations()),
             (QStringList{QStringLiteral("A.cpp: setFlag"), QStringLiteral("A.cpp: setParam")}));
}

void tst_HostCalls::aCallGoesThroughWithoutARecorder()
{
    PanelHost host;
    auto* table = host.make<TC::CCreditParamTable>({"CCreditParamTable", "c"},
                                                   [](QWidget* parent) { return new TC::CCreditParamTable(parent); });
    QCOMPARE(table->parentWidget(), &host);
    hostCall(*table, calls::kSetCreditParam, QStringLiteral("22+22-726=1"));
    QVERIFY(!table->param().isEmpty());
    const QPointer<QWidget> guard(table);
    host.remove(table);
    QVERIFY(!guard);
    host.remove(nullptr);
}

void tst_HostCalls::aRecordIsWrittenByWhatDiffers()
{
    ttservice::COrderSetting setting;
    QCOMPARE(writtenArgument(setting).dump(), std::string("{}"));
    setting.intField3 = 7;
    setting.flag35 = true;
    QCOMPARE(writtenArgument(setting).dump(), std::string(R"({"intField3":7,"flag35":true})"));
}

QTEST_MAIN(tst_HostCalls)
#include "tst_HostCalls.moc"
