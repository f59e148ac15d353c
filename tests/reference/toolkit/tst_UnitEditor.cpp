#include "EditorPanel.h"

using Cell = EditorPanel;

class tst_UnitEditor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void altDownOpensTheUnitsAndSendsTheNewOne();
    void clickingTheUnitOpensTheUnits();
    void aNumberBeingTypedSurvivesTheSwitchOfItsUnit();
    void spaceTogglesTheCheckInTheEditorAndOnTheRow();
    void clickingTheBoxTogglesTheCheck();

private:
    std::unique_ptr<EditorPanel> m_panel;
};

void tst_UnitEditor::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_UnitEditor::cleanup()
{
    m_panel.reset();
}

void tst_UnitEditor::altDownOpensTheUnitsAndSendsTheNewOne()
{
    m_panel->focusRow(Cell::Price);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(m_panel->list());
    QCOMPARE(m_panel->list()->entries(), (QStringList{QStringLiteral("%"), QStringLiteral("元")}));
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Return);
    QVERIFY(!m_panel->list());
    QCOMPARE(m_panel->table->itemUnit(Cell::Price), QStringLiteral("元"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=2 b=0 text=元")});
}

void tst_UnitEditor::clickingTheUnitOpensTheUnits()
{
    for (const QRect& part : {m_panel->layoutOf(Cell::Price).unit, m_panel->layoutOf(Cell::Price).chevron}) {
        m_panel->click(part);
        QVERIFY(m_panel->list());
        QCOMPARE(m_panel->list()->chosenRow(), 0);
        m_panel->press(Qt::Key_Escape);
        QVERIFY(!m_panel->list());
    }
    m_panel->click(m_panel->layoutOf(Cell::Price).unit);
    QTest::mouseClick(m_panel->list(), Qt::LeftButton, Qt::NoModifier, m_panel->list()->rowRect(1).center());
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=2 b=0 text=元")});
    m_panel->click(m_panel->layoutOf(Cell::Least).unit);
    QVERIFY(!m_panel->list());
}

void tst_UnitEditor::aNumberBeingTypedSurvivesTheSwitchOfItsUnit()
{
    m_panel->clickValue(Cell::Price);
    m_panel->type(QStringLiteral("500"));
    QVERIFY(!m_panel->wrongText(Cell::Price).isEmpty());
    m_panel->click(m_panel->layoutOf(Cell::Price).unit);
    QVERIFY(m_panel->list());
    m_panel->press(Qt::Key_End);
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->isEditing(Cell::Price));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("500"));
    QCOMPARE(m_panel->wrongText(Cell::Price), QString());
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(),
             (QStringList{QStringLiteral("118 cell=2 b=0 text=元"), QStringLiteral("87 cell=2 b=0 text=500.000")}));
}

void tst_UnitEditor::spaceTogglesTheCheckInTheEditorAndOnTheRow()
{
    m_panel->focusRow(Cell::Swing);
    m_panel->press(Qt::Key_Space);
    QVERIFY(m_panel->cell(Cell::Swing).isChecked());
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=4 b=1 text=单向")});
    m_panel->press(Qt::Key_F2);
    m_panel->type(QStringLiteral("5"));
    m_panel->press(Qt::Key_Space);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("5"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=4 b=0 text=单向")});
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=4 b=0 text=5.00")});
}

void tst_UnitEditor::clickingTheBoxTogglesTheCheck()
{
    m_panel->click(m_panel->layoutOf(Cell::Swing).check);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=4 b=1 text=单向")});
    QVERIFY(!m_panel->line());
}

QTEST_MAIN(tst_UnitEditor)
#include "tst_UnitEditor.moc"
