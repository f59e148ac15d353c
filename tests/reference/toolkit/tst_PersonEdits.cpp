#include "EditorPanel.h"

#include "reference/toolkit/editors/PersonEdits.h"

using Cell = EditorPanel;

class tst_PersonEdits : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void oneEditAfterAnotherAsAPerson();
    void wrongInputOfAPersonKeepsTheValue();
    void whatNoPersonCouldDoIsRefused();
    void anOpenEditorIsCommittedBeforeAnEditAsAPerson();

private:
    std::unique_ptr<EditorPanel> m_panel;
};

void tst_PersonEdits::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_PersonEdits::cleanup()
{
    m_panel.reset();
}

void tst_PersonEdits::oneEditAfterAnotherAsAPerson()
{
    WQ::PersonEdit edit;
    edit.unit = QStringLiteral("元");
    edit.checked = true;
    edit.text = QStringLiteral("２５０");
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Swing, edit) == WQ::EditOutcome::Done);
    QCOMPARE(m_panel->host.take(),
             (QStringList{QStringLiteral("118 cell=4 b=0 text=元"), QStringLiteral("118 cell=4 b=1 text=单向"),
                          QStringLiteral("87 cell=4 b=0 text=250.000")}));
    WQ::PersonEdit range;
    range.range = {QStringLiteral("5"), QStringLiteral("50")};
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Span, range) == WQ::EditOutcome::Done);
    WQ::PersonEdit entry;
    entry.text = QStringLiteral("买②价");
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Combo, entry) == WQ::EditOutcome::Done);
    WQ::PersonEdit length;
    length.duration = QStringLiteral("00:10:00");
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Period, length) == WQ::EditOutcome::Done);
    WQ::PersonEdit clock;
    clock.time = {QStringLiteral("10:00:00"), QStringLiteral("11:00:00")};
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Period, clock) == WQ::EditOutcome::Done);
    QCOMPARE(
        m_panel->host.take(),
        (QStringList{QStringLiteral("87 cell=5 b=0 text=5 - 50"), QStringLiteral("73 cell=1 b=3 text=买②价 data=7"),
                     QStringLiteral("101 cell=6 b=0 text=09:30:00-15:00:00"),
                     QStringLiteral("101 cell=6 b=0 text=10:00:00-11:00:00")}));
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Period, clock) == WQ::EditOutcome::Done);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_PersonEdits::wrongInputOfAPersonKeepsTheValue()
{
    WQ::PersonEdit edit;
    for (const char* typed : {"", "x", "99", "1000001", "100.5"}) {
        edit.text = QLatin1String(typed);
        QVERIFY2(WQ::applyPersonEdit(*m_panel->table, Cell::Least, edit) == WQ::EditOutcome::Wrong, typed);
    }
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    WQ::PersonEdit time;
    time.time = {QStringLiteral("24:00:00"), QStringLiteral("11:00:00")};
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Period, time) == WQ::EditOutcome::Wrong);
    WQ::PersonEdit line;
    line.text = QStringLiteral("abc");
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Code, line) == WQ::EditOutcome::Wrong);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_PersonEdits::whatNoPersonCouldDoIsRefused()
{
    WQ::CMultiParamsTable& table = *m_panel->table;
    const auto outcome = [&table](int cell, const WQ::PersonEdit& edit) {
        return WQ::applyPersonEdit(table, cell, edit) == WQ::EditOutcome::Impossible;
    };
    WQ::PersonEdit text;
    text.text = QStringLiteral("500");
    WQ::PersonEdit unit = text;
    unit.unit = QStringLiteral("手");
    WQ::PersonEdit checked = text;
    checked.checked = true;
    WQ::PersonEdit index;
    index.index = 4;
    WQ::PersonEdit both = text;
    both.index = 0;
    QVERIFY(outcome(4711, text));
    QVERIFY(outcome(Cell::Least, unit));
    QVERIFY(outcome(Cell::Least, checked));
    QVERIFY(outcome(Cell::Combo, index));
    QVERIFY(outcome(Cell::Combo, text));
    QVERIFY(outcome(Cell::Combo, both));
    QVERIFY(outcome(Cell::Span, text));
    QVERIFY(outcome(Cell::Period, text));
    table.setItemEditable(Cell::Least, false);
    QVERIFY(outcome(Cell::Least, text));
    table.setItemEditable(Cell::Least, true);
    table.setItemHidden(Cell::Least, true);
    QVERIFY(outcome(Cell::Least, text));
    table.setItemHidden(Cell::Least, false);
    table.hide();
    QVERIFY(outcome(Cell::Least, text));
    table.show();
    table.setAllItemEnable(false);
    QVERIFY(outcome(Cell::Least, text));
    QCOMPARE(table.itemInt(Cell::Least), 10000);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_PersonEdits::anOpenEditorIsCommittedBeforeAnEditAsAPerson()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    WQ::PersonEdit edit;
    edit.text = QStringLiteral("1");
    QVERIFY(WQ::applyPersonEdit(*m_panel->table, Cell::Price, edit) == WQ::EditOutcome::Done);
    QCOMPARE(m_panel->host.take(),
             (QStringList{QStringLiteral("87 cell=3 b=0 text=500"), QStringLiteral("87 cell=2 b=0 text=1.00")}));
}

QTEST_MAIN(tst_PersonEdits)
#include "tst_PersonEdits.moc"
