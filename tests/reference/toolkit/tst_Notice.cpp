#include "MenuPanel.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

using Cell = EditorPanel;

class tst_Notice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void itStaysOnTheScreen_data();
    void itStaysOnTheScreen();
    void itGoesWithItsWindow();
    void itIsAwayWhileAnotherWindowIsActive();
    void itFollowsTheRowsOfItsTable();
    void aRefusalStandsBesideItsRow();
    void itFollowsWhatTheTableIsScrolledIn();
    void itStaysAwayOnceWithdrawn();

private:
    WQ::Notice* wrongNotice(Cell::Cell cell) const;

    std::unique_ptr<MenuPanel> m_panel;
};

void tst_Notice::init()
{
    m_panel = std::make_unique<MenuPanel>();
    QVERIFY(m_panel->open());
}

void tst_Notice::cleanup()
{
    m_panel.reset();
}

WQ::Notice* tst_Notice::wrongNotice(Cell::Cell cell) const
{
    m_panel->clickValue(cell);
    m_panel->type(QStringLiteral("abc"));
    return m_panel->table->findChild<WQ::Notice*>();
}

void tst_Notice::itStaysOnTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("row");
    QTest::addColumn<QRect>("place");
    const QSize small(100, 20);
    QTest::newRow("beside") << small << QRect(10, 50, 240, 26) << QRect(258, 53, 100, 20);
    QTest::newRow("below where the screen ends at the right")
        << small << QRect(300, 50, 240, 26) << QRect(300, 76, 100, 20);
    QTest::newRow("above where it ends below too") << small << QRect(300, 270, 240, 26) << QRect(300, 250, 100, 20);
    QTest::newRow("beside a row that is half below") << small << QRect(10, 290, 240, 26) << QRect(258, 280, 100, 20);
    QTest::newRow("beside a row that is half above") << small << QRect(10, -20, 240, 26) << QRect(258, 0, 100, 20);
    QTest::newRow("left of the screen's end") << small << QRect(380, 50, 240, 26) << QRect(300, 76, 100, 20);
    QTest::newRow("larger than the screen") << QSize(900, 900) << QRect(10, 50, 240, 26) << QRect(0, 0, 400, 300);
}

void tst_Notice::itStaysOnTheScreen()
{
    QFETCH(QSize, size);
    QFETCH(QRect, row);
    QTEST(WQ::noticePlace(size, row, QRect(0, 0, 400, 300), 8), "place");
}

void tst_Notice::itGoesWithItsWindow()
{
    m_panel->host.move(10, 10);
    const WQ::Notice* notice = wrongNotice(Cell::Least);
    QVERIFY(notice && notice->isVisible());
    const QPoint before = notice->pos();
    m_panel->host.move(60, 40);
    QTRY_COMPARE(notice->pos(), before + QPoint(50, 30));
    QVERIFY(notice->isVisible());
}

void tst_Notice::itIsAwayWhileAnotherWindowIsActive()
{
    const WQ::Notice* notice = wrongNotice(Cell::Least);
    QVERIFY(notice && notice->isVisible());
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!notice->isVisible());
    m_panel->host.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_panel->host));
    QTRY_VERIFY(notice->isVisible());
    QVERIFY(!m_panel->wrongText(Cell::Least).isEmpty());
}

void tst_Notice::itFollowsTheRowsOfItsTable()
{
    WQ::CMultiParamsTable& table = *m_panel->table;
    table.setMinimumSize(0, 0);
    table.setFixedSize(240, 3 * m_panel->inner().metrics().rowHeight);
    table.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QCoreApplication::processEvents();
    const WQ::Notice* notice = wrongNotice(Cell::Least);
    QVERIFY(notice && notice->isVisible());
    const auto offset = [&] {
        const QRect row = m_panel->inner().rowRect(m_panel->cell(Cell::Least));
        return notice->geometry().center().y() - table.viewport()->mapToGlobal(row.center()).y();
    };
    const int before = offset();
    const int top = notice->y();
    table.verticalScrollBar()->setValue(1);
    QVERIFY(notice->isVisible());
    QVERIFY(notice->y() < top);
    QCOMPARE(offset(), before);
    table.verticalScrollBar()->setValue(table.verticalScrollBar()->maximum());
    QVERIFY2(!notice->isVisible(), "its row is scrolled out");
    table.verticalScrollBar()->setValue(0);
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->y(), top);
}

void tst_Notice::aRefusalStandsBesideItsRow()
{
    m_panel->host.move(150, 120);
    QCoreApplication::processEvents();
    WQ::CMultiParamsTable& table = *m_panel->table;
    table.setMinimumSize(0, 0);
    table.setFixedSize(240, 3 * m_panel->inner().metrics().rowHeight);
    table.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QCoreApplication::processEvents();
    m_panel->paste(Cell::Price, QStringLiteral("abc"));
    const auto* notice = table.findChild<WQ::Notice*>();
    QVERIFY(notice && notice->isVisible());
    const auto row = [&] {
        const QRect place = m_panel->inner().rowRect(m_panel->cell(Cell::Price));
        return QRect(table.viewport()->mapToGlobal(place.topLeft()), place.size());
    };
    QVERIFY(notice->geometry().left() > row().right());
    QVERIFY(qAbs(notice->geometry().center().y() - row().center().y()) <= 1);
    const int before = notice->y();
    table.verticalScrollBar()->setValue(10);
    QCOMPARE(notice->y(), before - 10);
    table.verticalScrollBar()->setValue(table.verticalScrollBar()->maximum());
    QVERIFY2(!notice->isVisible(), "its row is scrolled out");
}

void tst_Notice::itFollowsWhatTheTableIsScrolledIn()
{
    QScrollArea area;
    area.setWidget(&m_panel->host);
    area.resize(300, 200);
    area.move(10, 10);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    const WQ::Notice* notice = wrongNotice(Cell::Least);
    QVERIFY(notice && notice->isVisible());
    const QPoint before = notice->pos();
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->value() + 20);
    QCOMPARE(notice->pos(), before - QPoint(0, 20));
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    QVERIFY2(!notice->isVisible(), "its row is scrolled out");
    area.takeWidget();
}

void tst_Notice::itStaysAwayOnceWithdrawn()
{
    const WQ::Notice* notice = wrongNotice(Cell::Least);
    QVERIFY(notice && notice->isVisible());
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!notice->isVisible());
    m_panel->host.move(m_panel->host.pos() + QPoint(5, 5));
    m_panel->host.resize(m_panel->host.size() + QSize(5, 5));
    QCoreApplication::processEvents();
    QVERIFY(!notice->isVisible());
}

QTEST_MAIN(tst_Notice)
#include "tst_Notice.moc"
