#include "credit/CreditPanel.h"

#include "support/ModuleGuard.h"

#include <WQ/CUiResource.h>

#include <QTest>

namespace {

constexpr double kScales[] = {1.0, 1.25, 2.0};
constexpr int kOperations[] = {22, 23, 24, 25, 1021, -1, 0, 21, 99};

QSize themeSize()
{
    const WQ::CUiResource& sizes = *WQ::CUiResource::instance();
    return {sizes.getSize(QStringLiteral("tc_siz_operation_panel_param_table_width")),
            sizes.getSize(QStringLiteral("tc_siz_code_quotes_height"))
                + sizes.getSize(QStringLiteral("tc_siz_operation_panel_top_height"))};
}

/// All that a change of scale may change.
QString sizes(const CreditPanel& panel)
{
    return QStringLiteral("table %1x%2, cells %3x%4 (%5 to %6), title column %7, height needed %8")
        .arg(panel.table->width())
        .arg(panel.table->height())
        .arg(panel.cells().width())
        .arg(panel.cells().height())
        .arg(panel.cells().minimumHeight())
        .arg(panel.cells().maximumHeight())
        .arg(panel.cells().columnWidth(0))
        .arg(panel.table->realHeight());
}

} // namespace

class tst_CreditScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleColumnForEveryOperationAndScale_data();
    void titleColumnForEveryOperationAndScale();
    void titleColumnFollowsTheScaleOnlyWithAnUpdate();
    void titleColumnKeepsItsWidthForAScaleNextToOne();
    void scaleChangeReachesTheTableOnlyThroughItsOwner();
    void withFontScaleEverythingFollows();
    void withoutFontScaleNothingChanges();
    void fontScaleMayBeSwitchedBackOn();
    void cellsGetTheHeightTheirRowsNeed();
};

void tst_CreditScale::titleColumnForEveryOperationAndScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("width");
    for (const double scale : kScales) {
        for (const int operation : kOperations) {
            const int width = operation == 1021 && scale > 1.0 ? 155 : 120;
            QTest::addRow("operation %d at %g", operation, scale) << scale << operation << width;
        }
    }
}

void tst_CreditScale::titleColumnForEveryOperationAndScale()
{
    QFETCH(double, scale);
    QFETCH(int, operation);
    const support::ScaleGuard guard(scale);
    CreditPanel panel;
    QCOMPARE(panel.cells().columnWidth(0), 120);
    chooseOperation(panel, operation);
    QTEST(panel.cells().columnWidth(0), "width");

    panel.cells().setColumnWidth(0, 77);
    panel.table->resetColumnWidth();
    QTEST(panel.cells().columnWidth(0), "width");

    panel.cells().setColumnWidth(0, 77);
    panel.table->handleScaleChanged();
    QTEST(panel.cells().columnWidth(0), "width");
}

void tst_CreditScale::titleColumnFollowsTheScaleOnlyWithAnUpdate()
{
    CreditPanel panel;
    chooseOperation(panel, 1021);
    QCOMPARE(panel.cells().columnWidth(0), 120);
    const support::ScaleGuard guard(1.25);
    QCOMPARE(panel.cells().columnWidth(0), 120);
    panel.table->handleScaleChanged();
    QCOMPARE(panel.cells().columnWidth(0), 155);
    chooseOperation(panel, 24);
    QCOMPARE(panel.cells().columnWidth(0), 120);
}

void tst_CreditScale::titleColumnKeepsItsWidthForAScaleNextToOne()
{
    CreditPanel panel;
    chooseOperation(panel, 1021);
    {
        const support::ScaleGuard guard(1.000009);
        panel.table->resetColumnWidth();
        QCOMPARE(panel.cells().columnWidth(0), 120);
    }
    const support::ScaleGuard guard(1.000011);
    panel.table->resetColumnWidth();
    QCOMPARE(panel.cells().columnWidth(0), 155);
}

void tst_CreditScale::scaleChangeReachesTheTableOnlyThroughItsOwner()
{
    CreditPanel panel;
    chooseOperation(panel, 1021);
    const QString before = sizes(panel);
    const support::ScaleGuard guard(2.0);
    QCOMPARE(sizes(panel), before);
}

void tst_CreditScale::withFontScaleEverythingFollows()
{
    for (const double scale : kScales) {
        CreditPanel panel;
        const int rowsBefore = panel.table->realHeight();
        const support::ScaleGuard guard(scale);
        panel.table->setIsFontScale(true);
        panel.table->handleScaleChanged();
        QCOMPARE(panel.table->size(), themeSize());
        QCOMPARE(panel.table->realHeight() > rowsBefore, scale > 1.0);
        QCOMPARE(panel.cells().minimumHeight(), panel.table->realHeight());
        QCOMPARE(panel.cells().maximumHeight(), panel.table->realHeight());
    }
}

void tst_CreditScale::withoutFontScaleNothingChanges()
{
    for (const int operation : kOperations) {
        CreditPanel panel;
        panel.table->setIsFontScale(false);
        chooseOperation(panel, operation);
        panel.table->resize(321, 123);
        panel.cells().setColumnWidth(0, 77);
        const QString before = sizes(panel);
        for (const double scale : kScales) {
            const support::ScaleGuard guard(scale);
            panel.table->handleScaleChanged();
            QCOMPARE(sizes(panel), before);
        }
    }
}

void tst_CreditScale::fontScaleMayBeSwitchedBackOn()
{
    CreditPanel panel;
    const support::ScaleGuard guard(2.0);
    panel.table->setIsFontScale(false);
    QVERIFY(!panel.table->m_isFontScale);
    panel.table->handleScaleChanged();
    QVERIFY(panel.table->size() != themeSize());
    panel.table->setIsFontScale(true);
    panel.table->handleScaleChanged();
    QCOMPARE(panel.table->size(), themeSize());
}

void tst_CreditScale::cellsGetTheHeightTheirRowsNeed()
{
    CreditPanel panel;
    chooseOperation(panel, 25);
    panel.table->handleScaleChanged();
    QCOMPARE(panel.cells().height(), panel.table->realHeight());
}

QTEST_MAIN(tst_CreditScale)
#include "tst_CreditScale.moc"
