#include "support/Panel.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;
using namespace ttservice;

namespace {

/// What the widgets of the program are made to do: lay out, take another size, paint.
class Disturbances : public QObject
{
public:
    Disturbances()
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::LayoutRequest:
        case QEvent::Resize:
        case QEvent::Paint:
            seen << QStringLiteral("%1 %2").arg(QLatin1String(watched->metaObject()->className())).arg(event->type());
            break;
        default:
            break;
        }
        return false;
    }

    QStringList seen;
};

const QVector<int> kAlwaysAlgorithm = {10, 35};

using Call = void (*)(BaseTableProbe& table);

void settle()
{
    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();
}

QStringList disturbancesOf(BaseTableProbe& table, Call call)
{
    const Disturbances disturbances;
    call(table);
    settle();
    return disturbances.seen;
}

} // namespace

Q_DECLARE_METATYPE(Call)

/// A host calls again and again with what holds already; a panel that is seen stands still then.
class tst_UnchangedPanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void callsThatChangeNothingDisturbNothing_data();
    void callsThatChangeNothingDisturbNothing();
    void aChangeIsLaidOutAndPainted();
};

void tst_UnchangedPanel::initTestCase()
{
    // The offscreen cursor stands somewhere: a widget that comes up under it would be painted once more.
    QCursor::setPos(5000, 5000);
}

void tst_UnchangedPanel::callsThatChangeNothingDisturbNothing_data()
{
    struct NamedCall
    {
        const char* name;
        Call call;
    };
    static const NamedCall calls[] = {
        {"order type", [](BaseTableProbe& table) { table.setOrderType(table.orderType()); }},
        {"operation type", [](BaseTableProbe& table) { table.setOperationType(table.getOperationType()); }},
        {"flags", [](BaseTableProbe& table) { table.setFlag(table.m_flags); }},
        {"expansion", [](BaseTableProbe& table) { table.setExpandItemsHidden(!table.isExpand()); }},
        {"code", [](BaseTableProbe& table) { table.setStockCode(table.getStockCode()); }},
        {"volume type", [](BaseTableProbe& table) { table.onVolumeTypeChange(VOLUME_TYPE_TARGET); }},
        {"buttons",
         [](BaseTableProbe& table) {
             table.setCheckParam(table.loadCheckParam());
             table.showSelectButton(table.getSelectedButton());
             table.setVisibleByID(table.getSelectedButton(), true);
         }},
    };
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("order");
    QTest::addColumn<bool>("expanded");

    for (const NamedCall& row : calls) {
        for (const int id : {1, 5, 13, 35}) {
            for (const int order : {-1, 0, 1, 3}) {
                for (const bool expanded : {false, true}) {
                    // A collapsed algorithm is fitted to its height before its cells are folded, and again afterwards.
                    if (!expanded && (order == ORDER_TYPE_ALGORITHM || kAlwaysAlgorithm.contains(id)))
                        continue;
                    QTest::addRow("%s, table %d, order type %d, %s", row.name, id, order,
                                  expanded ? "expanded" : "collapsed")
                        << row.call << id << order << expanded;
                }
            }
        }
    }
}

void tst_UnchangedPanel::callsThatChangeNothingDisturbNothing()
{
    QFETCH(Call, call);
    QFETCH(int, id);
    QFETCH(int, order);
    QFETCH(bool, expanded);
    TableSetup setup;
    setup.id = id;
    Panel panel(setup);
    panel.host.show();
    panel.table->resize(panel.table->width(), 300);
    panel.table->show();
    panel.table->setOrderType(EOrderType(order));
    panel.table->setExpandItemsHidden(!expanded);
    call(*panel.table);
    settle();

    QCOMPARE(disturbancesOf(*panel.table, call).join(QLatin1Char(' ')), QString());
}

void tst_UnchangedPanel::aChangeIsLaidOutAndPainted()
{
    Panel panel{TableSetup()};
    panel.host.show();
    panel.table->show();
    settle();
    const QStringList seen =
        disturbancesOf(*panel.table, [](BaseTableProbe& table) { table.setExpandItemsHidden(false); });
    QVERIFY2(!seen.filter(QStringLiteral("%1").arg(QEvent::Resize)).isEmpty(), qPrintable(seen.join(QLatin1Char(' '))));
    QVERIFY2(!seen.filter(QStringLiteral("%1").arg(QEvent::Paint)).isEmpty(), qPrintable(seen.join(QLatin1Char(' '))));
}

QTEST_MAIN(tst_UnchangedPanel)
#include "tst_UnchangedPanel.moc"
