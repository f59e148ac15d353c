#include "workbench/CompareModel.h"
#include "workbench/ComparePanel.h"
#include "workbench/HostTable.h"
#include "workbench/Language.h"
#include "workbench/NumberCombo.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QPushButton>
#include <QtTest>

using namespace workbench;

namespace {

CompareSetup setupOf(int broker)
{
    CompareSetup setup;
    setup.table.brokerType = broker;
    return setup;
}

template <class Widget>
Widget* named(const QWidget& panel, const char* accessibleName)
{
    for (Widget* widget : panel.findChildren<Widget*>())
        if (widget->accessibleName() == QLatin1String(accessibleName))
            return widget;
    return nullptr;
}

template <class Button>
Button* reading(const QWidget& panel, const char* text, int which = 0)
{
    for (Button* button : panel.findChildren<Button*>())
        if (button->text() == QLatin1String(text) && which-- == 0)
            return button;
    return nullptr;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_ComparePanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void differencesAloneAreShownOnDemand();
    void aFieldThatChangesComparesAnew();
    void aSideTakesThePanel();
    void theLivePanelIsLeftAlone();
    void itIsExportedWithCommasAndTabs();
    void aFileThatCannotBeWrittenIsTold();
    void copyTakesTheRowsThatAreShown();
    void itSpeaksChinese();
};

void tst_ComparePanel::init()
{
    reference::resetServices();
}

void tst_ComparePanel::cleanup()
{
    setLanguage(QStringLiteral("en"));
}

void tst_ComparePanel::differencesAloneAreShownOnDemand()
{
    TableBench bench;
    ComparePanel panel(bench);
    panel.show();
    panel.compare(setupOf(2), setupOf(6));
    const QAbstractItemModel& shown = *panel.findChild<HostTable*>()->model();
    QCOMPARE(shown.rowCount(), panel.model()->rowCount());
    QTest::keyClick(reading<QCheckBox>(panel, "Differences only"), Qt::Key_Space);
    QCOMPARE(shown.rowCount(), panel.model()->differences());
    QVERIFY(shown.rowCount() > 0 && shown.rowCount() < panel.model()->rowCount());
    for (int row = 0; row < shown.rowCount(); ++row)
        QCOMPARE(shown.index(row, CompareModel::Mark).data().toString(), QStringLiteral("≠"));
    panel.compare(setupOf(2), setupOf(2));
    QCOMPARE(shown.rowCount(), 0);
}

void tst_ComparePanel::aFieldThatChangesComparesAnew()
{
    TableBench bench;
    ComparePanel panel(bench);
    panel.show();
    panel.compare(setupOf(2), setupOf(2));
    QCOMPARE(panel.model()->differences(), 0);
    auto* const broker = named<NumberCombo>(panel, "Right: Broker type");
    QVERIFY(broker);
    QTest::keyClick(broker, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(broker, QStringLiteral("7"));
    QTest::keyClick(broker, Qt::Key_Return);
    QVERIFY(panel.model()->differences() > 0);
}

void tst_ComparePanel::aSideTakesThePanel()
{
    TableBench bench;
    TableSetup setup;
    setup.identity = 33;
    setup.brokerType = 6;
    TableDrive drive;
    drive.orderType = 1;
    bench.rebuild(setup, drive);
    ComparePanel panel(bench);
    panel.show();
    QTest::mouseClick(reading<QPushButton>(panel, "As the panel"), Qt::LeftButton);
    QCOMPARE(named<NumberCombo>(panel, "Left: Identity")->value(), 33);
    QCOMPARE(named<NumberCombo>(panel, "Left: Broker type")->value(), 6);
    QCOMPARE(named<NumberCombo>(panel, "Left: Order type")->value(), 1);
    QVERIFY(panel.model()->differences() > 0);
    QTest::mouseClick(reading<QPushButton>(panel, "As the panel", 1), Qt::LeftButton);
    QCOMPARE(panel.model()->differences(), 0);
}

void tst_ComparePanel::theLivePanelIsLeftAlone()
{
    TableBench bench;
    bench.rebuild({}, {});
    const QPointer<QWidget> table(bench.table());
    const QSet<QString> modules{QStringLiteral("mdl_order/mdl_order_trigger_price")};
    reference::setModules(modules);
    ComparePanel panel(bench);
    panel.show();
    const QSignalSpy events(&bench, &PanelHost::eventArrived);
    CompareSetup other = setupOf(7);
    other.modules = QStringList{QStringLiteral("mdl_order/mdl_order_command_remark")};
    panel.compare(setupOf(2), other);
    QCOMPARE(events.count(), 0);
    QCOMPARE(static_cast<QWidget*>(bench.table()), table.data());
    QCOMPARE(reference::modules(), modules);
}

void tst_ComparePanel::itIsExportedWithCommasAndTabs()
{
    const QTemporaryDir folder;
    TableBench bench;
    ComparePanel panel(bench);
    panel.show();
    panel.compare(setupOf(2), setupOf(6));
    const QString commas = folder.filePath(QStringLiteral("a.CSV"));
    const QString tabs = folder.filePath(QStringLiteral("a.tsv"));
    QCOMPARE(panel.exportTo(commas), QString());
    QCOMPARE(panel.exportTo(tabs), QString());
    QVERIFY(
        contents(commas).startsWith("≠,Cell,Fact,Left,Right\r\n,Table,order type,0  plain order,0  plain order\r\n"));
    QVERIFY(contents(commas).contains("\r\n≠,0x200 单笔最小量,unit,股,张\r\n"));
    QVERIFY(contents(tabs).contains("\n≠\t0x200 单笔最小量\tunit\t股\t张\n"));
    QCOMPARE(contents(tabs).count('\n'), panel.model()->rowCount() + 1);
}

void tst_ComparePanel::aFileThatCannotBeWrittenIsTold()
{
    TableBench bench;
    const ComparePanel panel(bench);
    const QString path = QStringLiteral("/no/such/folder/a.csv");
    QCOMPARE(panel.exportTo(path), QStringLiteral("Cannot write /no/such/folder/a.csv."));
}

void tst_ComparePanel::copyTakesTheRowsThatAreShown()
{
    TableBench bench;
    ComparePanel panel(bench);
    panel.show();
    panel.compare(setupOf(2), setupOf(6));
    reading<QCheckBox>(panel, "Differences only")->setChecked(true);
    QTest::keyClick(panel.findChild<HostTable*>(), Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), panel.model()->differences() + 1);
    QCOMPARE(lines.first(), QStringLiteral("≠\tCell\tFact\tLeft\tRight"));
    QVERIFY(lines.contains(QStringLiteral("≠\t0x200 单笔最小量\tunit\t股\t张")));
}

void tst_ComparePanel::itSpeaksChinese()
{
    TableBench bench;
    ComparePanel panel(bench);
    panel.show();
    panel.compare(setupOf(2), setupOf(6));
    setLanguage(QStringLiteral("zh_CN"));
    QCoreApplication::sendPostedEvents();
    const QRegularExpression chinese(QStringLiteral("\\p{Han}"));
    for (int row = 0; row < panel.model()->rowCount(); ++row) {
        const QString what = panel.model()->index(row, CompareModel::What).data().toString();
        QVERIFY2(what.contains(chinese), qPrintable(what));
    }
    for (const QCheckBox* const check : panel.findChildren<QCheckBox*>())
        QVERIFY2(check->text().contains(chinese), qPrintable(check->text()));
}

QTEST_MAIN(tst_ComparePanel)
#include "tst_ComparePanel.moc"
