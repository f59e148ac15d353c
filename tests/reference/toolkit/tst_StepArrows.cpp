#include "EditorPanel.h"

#include <QAbstractEventDispatcher>

using Cell = EditorPanel;

/// The arrows with which the mouse steps a number.
class tst_StepArrows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aPressStepsAndKeepsTheFocus_data();
    void aPressStepsAndKeepsTheFocus();
    void twoQuickPressesAreTwoSteps();
    void anArrowThatIsHeldGoesOnStepping();
    void anEditorThatClosesStopsStepping();
    void onlyNumbersHaveArrows_data();
    void onlyNumbersHaveArrows();
    void aNarrowRowHasNoArrows();
    void otherButtonsDoNotStep();

private:
    WQ::CellEditor& editor() const
    {
        return *static_cast<WQ::CellEditor*>(m_panel->line()->parentWidget());
    }

    int timers() const
    {
        return QAbstractEventDispatcher::instance()->registeredTimers(&editor()).size();
    }

    std::unique_ptr<EditorPanel> m_panel;
};

void tst_StepArrows::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_StepArrows::cleanup()
{
    m_panel.reset();
}

void tst_StepArrows::aPressStepsAndKeepsTheFocus_data()
{
    QTest::addColumn<bool>("up");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("digits");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("up") << true << none << QStringLiteral("10100");
    QTest::newRow("down") << false << none << QStringLiteral("9900");
    QTest::newRow("ten up") << true << shift << QStringLiteral("11000");
    QTest::newRow("ten down") << false << shift << QStringLiteral("9000");
}

void tst_StepArrows::aPressStepsAndKeepsTheFocus()
{
    QFETCH(bool, up);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, digits);
    m_panel->clickValue(Cell::Least);
    const QRect arrow = up ? editor().arrows().up() : editor().arrows().down();
    QVERIFY(!arrow.isEmpty());
    QTest::mouseClick(&editor(), Qt::LeftButton, modifiers, arrow.center());
    QVERIFY(m_panel->isEditing(Cell::Least));
    QVERIFY(m_panel->line()->hasFocus());
    QCOMPARE(m_panel->line()->text(), digits);
    QCOMPARE(m_panel->line()->selectedText(), digits);
    QCOMPARE(m_panel->host.take(), QStringList());
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=") + digits});
}

void tst_StepArrows::twoQuickPressesAreTwoSteps()
{
    m_panel->clickValue(Cell::Least);
    const QPoint up = editor().arrows().up().center();
    QTest::mouseClick(&editor(), Qt::LeftButton, Qt::NoModifier, up);
    QTest::mouseDClick(&editor(), Qt::LeftButton, Qt::NoModifier, up);
    QTest::mouseRelease(&editor(), Qt::LeftButton, Qt::NoModifier, up);
    QVERIFY(m_panel->isEditing(Cell::Least));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10200"));
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(timers(), 0);
}

void tst_StepArrows::anArrowThatIsHeldGoesOnStepping()
{
    m_panel->clickValue(Cell::Least);
    const QPoint down = editor().arrows().down().center();
    QTest::mousePress(&editor(), Qt::LeftButton, Qt::NoModifier, down);
    QTRY_VERIFY(m_panel->line()->text().toInt() <= 9600);
    QTest::mouseRelease(&editor(), Qt::LeftButton, Qt::NoModifier, down);
    QCOMPARE(timers(), 0);
    QVERIFY(m_panel->isEditing(Cell::Least));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_StepArrows::anEditorThatClosesStopsStepping()
{
    m_panel->clickValue(Cell::Least);
    QTest::mousePress(&editor(), Qt::LeftButton, Qt::NoModifier, editor().arrows().up().center());
    QCOMPARE(timers(), 1);
    const WQ::CellEditor* const closing = &editor();
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!m_panel->line());
    QCOMPARE(QAbstractEventDispatcher::instance()->registeredTimers(const_cast<WQ::CellEditor*>(closing)).size(), 0);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_StepArrows::onlyNumbersHaveArrows_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<bool>("areThere");
    QTest::newRow("number") << int(Cell::Least) << true;
    QTest::newRow("number with units") << int(Cell::Price) << true;
    QTest::newRow("range") << int(Cell::Span) << false;
    QTest::newRow("period") << int(Cell::Period) << false;
    QTest::newRow("line") << int(Cell::Remark) << false;
}

void tst_StepArrows::onlyNumbersHaveArrows()
{
    QFETCH(int, cell);
    QFETCH(bool, areThere);
    m_panel->clickValue(cell);
    QVERIFY(m_panel->isEditing(cell));
    QCOMPARE(!editor().arrows().up().isEmpty(), areThere);
    QCOMPARE(m_panel->line()->x() >= editor().arrows().up().right(), true);
}

// The number keeps its room.
void tst_StepArrows::aNarrowRowHasNoArrows()
{
    m_panel->table->setMinimumWidth(0);
    m_panel->table->setFixedWidth(120);
    m_panel->clickValue(Cell::Least);
    QVERIFY(m_panel->isEditing(Cell::Least));
    QVERIFY(editor().arrows().up().isEmpty());
    QCOMPARE(m_panel->line()->x(), 0);
}

void tst_StepArrows::otherButtonsDoNotStep()
{
    m_panel->clickValue(Cell::Least);
    QTest::mouseClick(&editor(), Qt::MiddleButton, Qt::NoModifier, editor().arrows().up().center());
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10000"));
    QCOMPARE(timers(), 0);
}

QTEST_MAIN(tst_StepArrows)
#include "tst_StepArrows.moc"
