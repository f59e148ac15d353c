// What tables derived from the credit table may do to it: take its cell table away, remember values of their own.

#include "credit/CreditPanel.h"

#include <QResizeEvent>
#include <QTest>

class tst_CreditDerivedTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutItsCellTableOnlyThePanelIsSized();
    void aRememberedNumberIsReplacedByAText();
    void aRememberedNumberIsWrittenAsText();
};

void tst_CreditDerivedTables::withoutItsCellTableOnlyThePanelIsSized()
{
    CreditPanel panel;
    const WQ::CMultiParamsTable* const cells = panel.table->m_table;
    const QSize cellsSize = cells->size();
    panel.table->m_table = nullptr;
    const QSize size = panel.table->size();
    panel.table->resize(10, 10);
    panel.table->handleScaleChanged();
    QCOMPARE(panel.table->size(), size);
    panel.table->resetColumnWidth();
    QResizeEvent event(QSize(300, 200), size);
    panel.table->resizeEvent(&event);
    QCOMPARE(cells->size(), cellsSize);
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditDerivedTables::aRememberedNumberIsReplacedByAText()
{
    CreditPanel panel;
    panel.table->m_savedValues[22][728] = 7;
    panel.table->m_savedValues[22][729] = 8;
    panel.table->setParam(QStringLiteral("22+22-728=9-730=1-731=2-726=A1"));
    const QMap<int, QVariant> values = panel.table->m_savedValues.value(22);
    QCOMPARE(values.value(728), QVariant(QStringLiteral("9")));
    QCOMPARE(values.value(728).userType(), int(QMetaType::QString));
    QCOMPARE(values.value(729), QVariant(8));
    QCOMPARE(values.size(), 5);
}

void tst_CreditDerivedTables::aRememberedNumberIsWrittenAsText()
{
    CreditPanel panel;
    panel.table->m_savedValues[24][728] = 1.5;
    panel.table->m_savedValues[24][727] = QStringLiteral("X1");
    QCOMPARE(panel.table->param(), QStringLiteral("-1+24-727=X1-728=1.5"));
}

QTEST_MAIN(tst_CreditDerivedTables)
#include "tst_CreditDerivedTables.moc"
