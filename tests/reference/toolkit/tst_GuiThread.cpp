#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CParameterCell.h>

#include <QApplication>
#include <QProcess>
#include <QtTest>

#include <thread>

using namespace WQ;

namespace {

/// What the calls are made on.
struct Widgets
{
    Widgets()
        : group(Qt::Horizontal, nullptr)
        , table(nullptr, true)
        , cell(1, QString(), QString(), nullptr)
    {
        table.addLineEdit(1, QString(), QString(), false, QString());
    }

    CDropDownButtonGroup group;
    CMultiParamsTable table;
    CParameterCell cell;
    bool isHidden = false;
};

/// A call, as the report names it.
struct Call
{
    const char* name;
    void (*make)(Widgets&);
};

// clang-format off
const Call kCalls[] = {
    {"CMultiParamsTable::resetCellRange",           [](Widgets& w) { w.table.resetCellRange(1, 0, 1); }},
    {"CMultiParamsTable::setItemDouble",            [](Widgets& w) { w.table.setItemDouble(1, 1); }},
    {"CMultiParamsTable::setCheckDouble",           [](Widgets& w) { w.table.setCheckDouble(1, true, 1, false); }},
    {"CMultiParamsTable::setComboData",             [](Widgets& w) { w.table.setComboData(1, 1); }},
    {"CMultiParamsTable::resetComboData",           [](Widgets& w) { w.table.resetComboData(1, {}, {}, 0); }},
    {"CMultiParamsTable::setItemText",              [](Widgets& w) { w.table.setItemText(1, QString()); }},
    {"CMultiParamsTable::setItemName",              [](Widgets& w) { w.table.setItemName(1, QString()); }},
    {"CMultiParamsTable::setItemUnit",              [](Widgets& w) { w.table.setItemUnit(1, QString()); }},
    {"CMultiParamsTable::setItemTick",              [](Widgets& w) { w.table.setItemTick(1, QString(), 1); }},
    {"CMultiParamsTable::setItemEditable",          [](Widgets& w) { w.table.setItemEditable(1, true); }},
    {"CMultiParamsTable::setItemHidden",            [](Widgets& w) { w.table.setItemHidden(1, w.isHidden = !w.isHidden); }},
    {"CMultiParamsTable::addLineEdit",              [](Widgets& w) { w.table.addLineEdit(2, {}, {}, false, {}); }},
    {"CParameterCell::setDoubleValidator",          [](Widgets& w) { w.cell.setDoubleValidator(QString(), 0, 1, 1); }},
    {"CParameterCell::setDouble",                   [](Widgets& w) { w.cell.setDouble(1); }},
    {"CParameterCell::setInt",                      [](Widgets& w) { w.cell.setInt(1); }},
    {"CParameterCell::setString",                   [](Widgets& w) { w.cell.setString(QString()); }},
    {"CParameterCell::setUnit",                     [](Widgets& w) { w.cell.setUnit(QString()); }},
    {"CParameterCell::setEditFontKey",              [](Widgets& w) { w.cell.setEditFontKey(keys::kTextFont); }},
    {"CParameterCell::setTextFontKey",              [](Widgets& w) { w.cell.setTextFontKey(keys::kTextFont); }},
    {"CDropDownButtonGroup::addButton",             [](Widgets& w) { w.group.addButton(nullptr, AnchorStart); }},
    {"CDropDownButtonGroup::setCheckedByID",        [](Widgets& w) { w.group.setCheckedByID(600); }},
    {"CDropDownButtonGroup::clearAllCheck",         [](Widgets& w) { w.group.clearAllCheck(); }},
    {"CDropDownButtonGroup::setVisibleByID",        [](Widgets& w) { w.group.setVisibleByID(600, true); }},
    {"CDropDownButtonGroup::showSelectButton",      [](Widgets& w) { w.group.showSelectButton(600); }},
    {"CDropDownButtonGroup::setHelpButtonCritical", [](Widgets& w) { w.group.setHelpButtonCritical(false); }},
    {"CDropDownButtonGroup::setHelpButtonVisible",  [](Widgets& w) { w.group.setHelpButtonVisible(true); }},
    {"CDropDownButtonGroup::setParam",              [](Widgets& w) { w.group.setParam(QString()); }},
    {"CDropDownButtonGroup::resetLayout",           [](Widgets& w) { w.group.resetLayout(); }},
};
// clang-format on

const Call* callOf(const QString& name)
{
    for (const Call& call : kCalls) {
        if (name == QLatin1String(call.name))
            return &call;
    }
    return nullptr;
}

/// In the program that makes the call: first where it belongs, then from elsewhere, twice.
int makeCall(const Call& call)
{
    Widgets widgets;
    call.make(widgets);
    std::thread([&] {
        call.make(widgets);
        call.make(widgets);
    }).join();
    return 0;
}

} // namespace

/// A report is said once a process, so each call is made by one of its own.
class tst_GuiThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aCallFromAnotherThreadIsReportedOnce_data();
    void aCallFromAnotherThreadIsReportedOnce();
};

void tst_GuiThread::aCallFromAnotherThreadIsReportedOnce_data()
{
    QTest::addColumn<QString>("name");
    for (const Call& call : kCalls)
        QTest::newRow(call.name) << QString::fromLatin1(call.name);
}

void tst_GuiThread::aCallFromAnotherThreadIsReportedOnce()
{
#ifdef QT_NO_DEBUG
    QSKIP("Reports are for debug builds.");
#endif
    QFETCH(QString, name);
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--call"), name});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    const QString said = QString::fromUtf8(program.readAllStandardError());
    QVERIFY2(said.startsWith(name + QStringLiteral(": called outside the GUI thread")), qPrintable(said));
    QCOMPARE(said.count(QStringLiteral("called outside the GUI thread")), 1);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const Call* call = arguments.value(1) == QStringLiteral("--call") ? callOf(arguments.value(2)) : nullptr;
    if (call)
        return makeCall(*call);
    tst_GuiThread test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuiThread.moc"
