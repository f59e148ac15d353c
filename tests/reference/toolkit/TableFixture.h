#pragma once

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

#include <limits>

/// A cell table with a cell of each kind.
namespace table_fixture {

inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr int kNoCell = 4711;

// The cells that each test finds in its table, by ID.
inline constexpr int kCombo = 1;
inline constexpr int kUnits = 2;
inline constexpr int kCheck = 3;
inline constexpr int kInt = 4;
inline constexpr int kRange = 5;
inline constexpr int kPeriod = 6;
inline constexpr int kLine = 7;
inline constexpr int kText = 8;
inline constexpr int kCells = 8;

inline QList<WQ::CParamCellUnitInfo> percentAndMoney()
{
    WQ::CParamCellUnitInfo percent;
    percent.text = QStringLiteral("%");
    percent.type = 6;
    percent.min = -100.0;
    percent.max = 100.0;
    WQ::CParamCellUnitInfo money = percent;
    money.text = QStringLiteral("元");
    money.min = -1000000.0;
    money.max = 1000000.0;
    money.step = 0.001;
    return {percent, money};
}

inline constexpr auto kRight = Qt::AlignRight | Qt::AlignVCenter;

inline int addCombo(WQ::CMultiParamsTable& table, int id, int index)
{
    QStringList texts{QStringLiteral("最新价"), QStringLiteral("对手价"), QStringLiteral("买①价")};
    QVector<QVariant> values{5, 14, 6};
    return table.addComboBox(id, QStringLiteral("报价方式"), texts, values, index, false, kRight, kRight);
}

inline void fill(WQ::CMultiParamsTable& table)
{
    addCombo(table, kCombo, 1);
    table.addParamUnitCell(kUnits, QStringLiteral("单笔超价"), percentAndMoney(), 0.5, -1.0);
    table.addCheckParamUnitCell(kCheck, QStringLiteral("波动区间"), QStringLiteral("单向"), false, percentAndMoney(), 3,
                                -1.0);
    table.addParamCell(kInt, QStringLiteral("单笔最小量"), 2, 100, 1000000, 100, QStringLiteral("股"), 10000, 4);
    table.addRangeCell(kRange, QStringLiteral("单笔量区间"), 2, 1, 1000000, 1, 1000000, 1, QStringLiteral("股"), 1, -1,
                       QStringLiteral(" - "), false);
    QTime start(9, 30);
    QTime end(15, 0);
    table.addTimePeriod(kPeriod, QStringLiteral("有效时间"), start, end);
    table.addLineEdit(kLine, QStringLiteral("投资备注"), QStringLiteral("季度调仓"), false, QStringLiteral("备注"));
    table.addParamCell(kText, QStringLiteral("未还合约数量"), 10, 0, 0, 0, QStringLiteral("股"), 0, 4);
}

class Table : public WQ::CMultiParamsTable
{
public:
    explicit Table(bool fontScale = true)
        : CMultiParamsTable(nullptr, fontScale)
    {
        fill(*this);
    }
};

inline const WQ::CMultiParamsTablePrivate& inner(const WQ::CMultiParamsTable& table)
{
    return *WQ::CMultiParamsTablePrivate::of(&table);
}

inline int labelWidth(const WQ::CMultiParamsTable& table, int id)
{
    return inner(table).layoutOf(*inner(table).model().cell(id)).label.width();
}

inline void showAtItsHeight(WQ::CMultiParamsTable& table, int width)
{
    table.setFixedSize(width, table.realHeight());
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    // Without focus, so that no row looks different from the others.
    QTRY_VERIFY(table.isActiveWindow());
    table.clearFocus();
    QTRY_VERIFY(!table.hasFocus());
}

/// A table in a window, its last cell hidden, all painted.
struct HostedTable
{
    HostedTable()
    {
        window.resize(300, 400);
        table.setParent(&window);
        table.setItemHidden(kText, true);
        table.setFixedSize(240, table.realHeight());
        window.show();
        isShown = QTest::qWaitForWindowExposed(&window) && QTest::qWaitForWindowActive(&window);
        window.setFocus();
        QCoreApplication::processEvents();
        window.repaint();
        QCoreApplication::processEvents();
    }

    bool isShown = false;
    QWidget window;
    Table table;
};

/// Counts what reaches a widget.
class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }

    int count = 0;
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == m_type) {
            ++count;
            if (m_type == QEvent::Paint)
                region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

private:
    const QEvent::Type m_type;
};

} // namespace table_fixture
