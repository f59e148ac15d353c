#include "EditorPanel.h"

#include <QDialog>

using Cell = EditorPanel;

class tst_ComboEditor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aClickOpensTheEntriesWithTheChosenOneMarked();
    void clickingAnEntryChoosesItAndSendsItsValue();
    void theKeyboardChoosesAnEntry();
    void choosingTheSameEntrySendsNothing();
    void escapeClosesTheListAndKeepsTheEntry();
    void enterNeverPressesAButton();
    void typingFindsAnEntry();
    void typingTheSameLetterGoesOnToTheNextEntry();
    void aRefillWhileTheListIsOpenIsShownAtOnce();
    void hidingTheCellClosesItsList();
    void aDisabledComboDoesNotOpen();
    void theWheelOverTheRowChoosesNothing();
    void aPressOnTheOwnRowClosesTheListOnly();
    void anEmptyComboOpensAndChoosesNothing();
    void thousandsOfEntriesAreScrolled();
    void theListIsMadeOnce();

private:
    std::unique_ptr<EditorPanel> m_panel;
};

void tst_ComboEditor::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_ComboEditor::cleanup()
{
    m_panel.reset();
}

void tst_ComboEditor::aClickOpensTheEntriesWithTheChosenOneMarked()
{
    m_panel->clickValue(Cell::Combo);
    QVERIFY(m_panel->list());
    QCOMPARE(m_panel->list()->entries(),
             (QStringList{QStringLiteral("卖①价"), QStringLiteral("最新价"), QStringLiteral("买①价"),
                          QStringLiteral("买②价")}));
    QCOMPARE(m_panel->list()->chosenRow(), 0);
    QCOMPARE(m_panel->list()->rowRect(1).height(), 24);
    // It opens below the row, at its right edge.
    const QRect row(m_panel->table->viewport()->mapToGlobal(QPoint()), QSize(m_panel->table->viewport()->width(), 26));
    QCOMPARE(m_panel->list()->geometry().top(), row.bottom() + 1);
    QCOMPARE(m_panel->list()->geometry().right(), row.right());
}

void tst_ComboEditor::clickingAnEntryChoosesItAndSendsItsValue()
{
    m_panel->click(m_panel->layoutOf(Cell::Combo).chevron);
    QVERIFY(m_panel->list());
    QTest::mouseClick(m_panel->list(), Qt::LeftButton, Qt::NoModifier, m_panel->list()->rowRect(2).center());
    QVERIFY(!m_panel->list());
    QCOMPARE(m_panel->table->itemData(Cell::Combo), QVariant(6));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("73 cell=1 b=2 text=买①价 data=6")});
}

void tst_ComboEditor::theKeyboardChoosesAnEntry()
{
    m_panel->focusRow(Cell::Combo);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2, Qt::Key_Space}) {
        m_panel->press(key);
        QVERIFY(m_panel->list());
        m_panel->press(Qt::Key_Escape);
    }
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("73 cell=1 b=1 text=最新价 data=5")});
    QVERIFY(m_panel->table->hasFocus());
}

void tst_ComboEditor::choosingTheSameEntrySendsNothing()
{
    m_panel->clickValue(Cell::Combo);
    m_panel->press(Qt::Key_Return);
    QVERIFY(!m_panel->list());
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_ComboEditor::escapeClosesTheListAndKeepsTheEntry()
{
    m_panel->clickValue(Cell::Combo);
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!m_panel->list());
    QCOMPARE(m_panel->table->itemInt(Cell::Combo), 4);
    QCOMPARE(m_panel->host.take(), QStringList());
    QVERIFY(m_panel->host.isVisible());
}

void tst_ComboEditor::enterNeverPressesAButton()
{
    QDialog dialog;
    auto* table = new WQ::CMultiParamsTable(&dialog, true);
    auto* button = new QPushButton(&dialog);
    button->setDefault(true);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QStringList texts{QStringLiteral("a"), QStringLiteral("b")};
    QVector<QVariant> values{1, 2};
    table->addComboBox(1, QStringLiteral("x"), texts, values, 0, false, Qt::AlignRight, Qt::AlignRight);
    table->addParamCell(2, QStringLiteral("y"), 2, 0, 9, 1, QString(), 3, 4);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    table->setFocus();
    for (const int row : {0, 1}) {
        table->setCurrentIndex(table->model()->index(row, 1));
        for (int i = 0; i < 2; ++i) {
            QWidget* popup = QApplication::activePopupWidget();
            QTest::keyClick(popup ? popup : QApplication::focusWidget(), Qt::Key_Return);
        }
    }
    QCOMPARE(clicked.count(), 0);
    QVERIFY(dialog.isVisible());
}

void tst_ComboEditor::typingFindsAnEntry()
{
    m_panel->focusRow(Cell::Combo);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("买"));
    m_panel->press(Qt::Key_Space);
    QApplication::sendEvent(m_panel->list(), &composed);
    QCOMPARE(m_panel->list()->currentRow(), 2);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("73 cell=1 b=2 text=买①价 data=6")});
}

void tst_ComboEditor::typingTheSameLetterGoesOnToTheNextEntry()
{
    const QStringList texts{QStringLiteral("Buy"), QStringLiteral("Best"), QStringLiteral("Sell"),
                            QStringLiteral("Bear")};
    m_panel->table->resetComboData(Cell::Combo, texts, {1, 2, 3, 4}, 2);
    m_panel->focusRow(Cell::Combo);
    m_panel->type(QStringLiteral("b"));
    QVERIFY(m_panel->list());
    QCOMPARE(m_panel->list()->currentRow(), 3);
    QTest::keyClicks(m_panel->list(), QStringLiteral("b"));
    QCOMPARE(m_panel->list()->currentRow(), 0);
    m_panel->press(Qt::Key_Escape);
    m_panel->press(Qt::Key_Space);
    QTest::keyClicks(m_panel->list(), QStringLiteral("bes"));
    QCOMPARE(m_panel->list()->currentRow(), 1);
}

void tst_ComboEditor::aRefillWhileTheListIsOpenIsShownAtOnce()
{
    m_panel->clickValue(Cell::Combo);
    m_panel->press(Qt::Key_End);
    m_panel->table->resetComboData(Cell::Combo, {QStringLiteral("市价")}, {12}, 0);
    QCoreApplication::processEvents();
    QVERIFY(m_panel->list());
    QCOMPARE(m_panel->list()->entries(), QStringList{QStringLiteral("市价")});
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->table->itemInt(Cell::Combo), 12);
}

void tst_ComboEditor::hidingTheCellClosesItsList()
{
    m_panel->clickValue(Cell::Combo);
    m_panel->table->setItemHidden(Cell::Combo, true);
    QCoreApplication::processEvents();
    QVERIFY(!m_panel->list());
    m_panel->table->setItemHidden(Cell::Combo, false);
    m_panel->clickValue(Cell::Combo);
    QVERIFY(m_panel->list());
    m_panel->table->setAllItemEnable(false);
    QCoreApplication::processEvents();
    QVERIFY(!m_panel->list());
}

void tst_ComboEditor::aDisabledComboDoesNotOpen()
{
    m_panel->table->setItemEditable(Cell::Combo, false);
    m_panel->clickValue(Cell::Combo);
    QVERIFY(!m_panel->list());
    m_panel->press(Qt::Key_Return);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    m_panel->type(QStringLiteral("x"));
    QVERIFY(!m_panel->list());
}

void tst_ComboEditor::theWheelOverTheRowChoosesNothing()
{
    m_panel->focusRow(Cell::Combo);
    const QPointF at = m_panel->layoutOf(Cell::Combo).value.center();
    QWheelEvent wheel(at, m_panel->table->viewport()->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_panel->table->viewport(), &wheel);
    QCOMPARE(m_panel->table->itemInt(Cell::Combo), 4);
    QVERIFY(!wheel.isAccepted());
}

void tst_ComboEditor::aPressOnTheOwnRowClosesTheListOnly()
{
    m_panel->clickValue(Cell::Combo);
    WQ::ChoicePopup* list = m_panel->list();
    QVERIFY(list);
    const QPoint onRow = m_panel->table->viewport()->mapToGlobal(m_panel->layoutOf(Cell::Combo).value.center());
    QTest::mousePress(list, Qt::LeftButton, Qt::NoModifier, list->mapFromGlobal(onRow));
    QVERIFY(!m_panel->list());
    QVERIFY(list->testAttribute(Qt::WA_NoMouseReplay));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_ComboEditor::anEmptyComboOpensAndChoosesNothing()
{
    m_panel->table->resetComboData(Cell::Combo, {}, {}, -1);
    m_panel->clickValue(Cell::Combo);
    QVERIFY(m_panel->list());
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_A, Qt::Key_Return})
        m_panel->press(key);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_ComboEditor::thousandsOfEntriesAreScrolled()
{
    QStringList texts;
    QVector<QVariant> values;
    for (int i = 0; i < 5000; ++i) {
        texts << QString::number(i);
        values << i;
    }
    m_panel->table->resetComboData(Cell::Combo, texts, values, 2500);
    m_panel->clickValue(Cell::Combo);
    QVERIFY(!m_panel->list()->rowRect(2500).isEmpty());
    QVERIFY(m_panel->list()->height() <= 16 * 24 + 2);
    m_panel->press(Qt::Key_Home);
    QVERIFY(m_panel->list()->rowRect(2500).isEmpty());
    m_panel->press(Qt::Key_End);
    QVERIFY(!m_panel->list()->rowRect(4999).isEmpty());
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("73 cell=1 b=4999 text=4999 data=4999")});
}

void tst_ComboEditor::theListIsMadeOnce()
{
    QVERIFY(m_panel->table->findChildren<WQ::ChoicePopup*>().isEmpty());
    for (const QRect& part : {m_panel->layoutOf(Cell::Combo).value, m_panel->layoutOf(Cell::Price).unit,
                              m_panel->layoutOf(Cell::Swing).unit}) {
        m_panel->click(part);
        QVERIFY(m_panel->list());
        m_panel->press(Qt::Key_Escape);
    }
    QCOMPARE(m_panel->table->findChildren<WQ::ChoicePopup*>().size(), 1);
}

QTEST_MAIN(tst_ComboEditor)
#include "tst_ComboEditor.moc"
