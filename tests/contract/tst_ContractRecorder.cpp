#include "contract/RecordedPanel.h"
#include "contract/recorder/Watch.h"

#include <QPushButton>
#include <QtTest>

#include <limits>

using contract::lines;
using recorder::written;

/// The recorder itself: what it writes tells one argument from another, and it misses nothing that is set meanwhile.
class tst_ContractRecorder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void argumentsAreToldApart_data();
    void argumentsAreToldApart();
    void callsStandInOrderAndByKind();
    void widgetPropertiesAreWrittenBeforeTheNextCall();
    void clearingForgetsWhatWasSetBefore();
};

void tst_ContractRecorder::init()
{
    recorder::reset();
}

void tst_ContractRecorder::argumentsAreToldApart_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QString& actual, const char* expected) {
        QTest::newRow(name) << actual << QString::fromUtf8(expected);
    };
    row("int", written(4), "4");
    row("double that is whole", written(4.0), "4.0");
    row("negative double", written(-1.0), "-1.0");
    row("fraction", written(0.0001), "0.0001");
    row("largest double", written(std::numeric_limits<double>::max()), "max");
    row("bool", written(false), "false");
    row("text", written(QStringLiteral("元")), R"("元")");
    row("int in a QVariant", written(QVariant(0)), "0");
    row("double in a QVariant", written(QVariant(0.0)), "0.0");
    row("text in a QVariant", written(QVariant(QStringLiteral("0"))), R"("0")");
    row("invalid QVariant", written(QVariant()), "none");
    row("other type in a QVariant", written(QVariant(7u)), "uint 7");
    row("both alignments", written(Qt::AlignRight | Qt::AlignVCenter), "right|vcenter");
    row("another alignment", written(Qt::Alignment(Qt::AlignRight)), "2");
    row("unit without a step", written(QList<WQ::CParamCellUnitInfo>{{QStringLiteral("%"), 6, 0, 1.0, {}}}),
        R"([{"%", 6, 0, 1.0}])");
    row("unit with a step", written(QList<WQ::CParamCellUnitInfo>{{QStringLiteral("%"), 2, 0, 1, 0.5}}),
        R"([{"%", 2, 0, 1, 0.5}])");
    row("set of cells", written(QSet<int>{0x800, 0x1}), "{0x1, 0x800}");
    row("row of the credit table", written(recorder::Id{726}), "726");
}

void tst_ContractRecorder::argumentsAreToldApart()
{
    QFETCH(QString, actual);
    QFETCH(QString, expected);

    QCOMPARE(actual, expected);
}

void tst_ContractRecorder::callsStandInOrderAndByKind()
{
    recorder::record(recorder::Do, QStringLiteral("one"), 1);
    recorder::record(recorder::Ask, QStringLiteral("two"));
    recorder::record(recorder::Do, QStringLiteral("three"), false, 0.5);

    QCOMPARE(recorder::calls(), lines("one(1)\n three(false, 0.5)"));
    QCOMPARE(recorder::calls(recorder::kEverything), lines("one(1)\n two()\n three(false, 0.5)"));
    QCOMPARE(recorder::callsOf({QStringLiteral("two")}), lines("two()"));
}

void tst_ContractRecorder::widgetPropertiesAreWrittenBeforeTheNextCall()
{
    QPushButton button;
    button.setCheckable(true);
    recorder::watch(&button, QStringLiteral("watched"));

    recorder::record(recorder::Do, QStringLiteral("before"));
    button.setFixedWidth(30);
    button.setChecked(true);
    recorder::record(recorder::Do, QStringLiteral("after"));
    button.setEnabled(false);

    QCOMPARE(recorder::calls(), lines(R"(
        before()
        watched.setChecked(true)
        watched.setFixedWidth(30)
        after()
        watched.setEnabled(false)
    )"));
}

void tst_ContractRecorder::clearingForgetsWhatWasSetBefore()
{
    QWidget widget;
    recorder::watch(&widget, QStringLiteral("watched"));
    widget.setFixedHeight(20);

    recorder::clear();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

QTEST_MAIN(tst_ContractRecorder)
#include "tst_ContractRecorder.moc"
