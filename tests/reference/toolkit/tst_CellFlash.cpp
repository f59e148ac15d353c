#include "EditorPanel.h"

#include "reference/toolkit/ThemeKeys.h"

#include <QProxyStyle>

using Cell = EditorPanel;

namespace {

struct StillStyle : QProxyStyle
{
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override
    {
        return hint == SH_Widget_Animate ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

} // namespace

class tst_CellFlash : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aUnitThatBoundsFlashesTheCellOnceAndSaysSo();
    void aUnitThatKeepsTheNumberIsQuiet();
    void aSwitchByProgramFlashesWithoutAnEvent();
    void aStyleWithoutAnimationsSaysItAlone();
    void aTableThatIsNotSeenIsQuiet();
    void nothingIsMadeBeforeItIsNeeded();
    void typingTakesTheNoticeAway();
    void theTooltipShowsTheRangeOfTheNewUnit();
    void theFlashIsPaintedInEveryTheme();

private:
    bool isLit() const;
    WQ::Notice* notice() const;
    void chooseMoney() const;

    std::unique_ptr<EditorPanel> m_panel;
};

void tst_CellFlash::init()
{
    m_panel = std::make_unique<EditorPanel>();
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("元"), 0, 10, 0.001, false);
    m_panel->table->setItemDouble(Cell::Price, 50);
    QVERIFY(m_panel->open());
}

void tst_CellFlash::cleanup()
{
    m_panel.reset();
    WQ::resources::setTheme(QStringLiteral("dark"));
}

bool tst_CellFlash::isLit() const
{
    return m_panel->inner().rowState(m_panel->cell(Cell::Price)).flash;
}

WQ::Notice* tst_CellFlash::notice() const
{
    return m_panel->table->findChild<WQ::Notice*>();
}

void tst_CellFlash::chooseMoney() const
{
    m_panel->focusRow(Cell::Price);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    m_panel->press(Qt::Key_End);
    m_panel->press(Qt::Key_Return);
}

void tst_CellFlash::aUnitThatBoundsFlashesTheCellOnceAndSaysSo()
{
    chooseMoney();
    QCOMPARE(m_panel->table->itemDouble(Cell::Price), 10.0);
    QVERIFY(isLit());
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).flash);
    QVERIFY(notice() && notice()->isVisible());
    QCOMPARE(notice()->kind(), WQ::Notice::Kind::Remark);
    QCOMPARE(notice()->text(), QStringLiteral("单笔超价 50.00 % 已调整为 10.000 元（0.000 – 10.000 元）"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=2 b=0 text=元")});
    QTRY_VERIFY(!isLit());
    QVERIFY(notice()->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!notice()->isVisible(), 10000);
    QVERIFY(!isLit());
}

void tst_CellFlash::aUnitThatKeepsTheNumberIsQuiet()
{
    m_panel->table->setItemDouble(Cell::Price, 5);
    chooseMoney();
    QCOMPARE(m_panel->table->itemUnit(Cell::Price), QStringLiteral("元"));
    QVERIFY(!isLit());
    QVERIFY(!notice());
}

void tst_CellFlash::aSwitchByProgramFlashesWithoutAnEvent()
{
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("元"));
    QVERIFY(isLit());
    QVERIFY(notice() && notice()->isVisible());
    QCOMPARE(m_panel->host.take(), QStringList());
    m_panel->table->setItemHidden(Cell::Price, true);
    m_panel->table->model()->rowCount();
    QTRY_VERIFY(!notice()->isVisible());
}

void tst_CellFlash::aStyleWithoutAnimationsSaysItAlone()
{
    StillStyle still;
    m_panel->table->setStyle(&still);
    chooseMoney();
    QVERIFY(!isLit());
    QVERIFY(notice() && notice()->isVisible());
    m_panel.reset();
}

void tst_CellFlash::aTableThatIsNotSeenIsQuiet()
{
    m_panel->host.hide();
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("元"));
    QCOMPARE(m_panel->table->itemDouble(Cell::Price), 10.0);
    QVERIFY(!isLit());
    QVERIFY(!notice());
}

void tst_CellFlash::nothingIsMadeBeforeItIsNeeded()
{
    const int before = m_panel->table->findChildren<QObject*>().size();
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("%"));
    m_panel->table->setItemUnit(Cell::Swing, QStringLiteral("元"));
    m_panel->table->setItemUnit(Cell::Least, QStringLiteral("手"));
    QCOMPARE(m_panel->table->findChildren<QObject*>().size(), before);
}

void tst_CellFlash::typingTakesTheNoticeAway()
{
    chooseMoney();
    const QPointer<WQ::Notice> said = notice();
    QVERIFY(said && said->isVisible());
    // Here Qt activates a list as if it were a window, and nothing else the window below once it is closed.
    m_panel->host.activateWindow();
    QTRY_VERIFY(m_panel->table->hasFocus());
    m_panel->type(QStringLiteral("99"));
    QVERIFY(m_panel->isEditing(Cell::Price));
    QVERIFY(!m_panel->wrongText(Cell::Price).isEmpty());
    QVERIFY(!said->isVisible());
}

void tst_CellFlash::theTooltipShowsTheRangeOfTheNewUnit()
{
    const WQ::CellItem& price = m_panel->cell(Cell::Price);
    QCOMPARE(m_panel->inner().toolTipOf(price), QStringLiteral("0.00 – 100.00 %"));
    chooseMoney();
    QCOMPARE(m_panel->inner().toolTipOf(price), QStringLiteral("0.000 – 10.000 元"));
    QCOMPARE(m_panel->inner().toolTipOf(m_panel->cell(Cell::Span)), QStringLiteral("1 – 1,000,000 股"));
    for (const int id : {Cell::Combo, Cell::Period, Cell::Remark, Cell::Text})
        QCOMPARE(m_panel->inner().toolTipOf(m_panel->cell(id)), QString());
}

void tst_CellFlash::theFlashIsPaintedInEveryTheme()
{
    const QStringList themes = WQ::resources::themes();
    for (const QString& theme : themes) {
        QVERIFY(WQ::resources::setTheme(theme));
        m_panel->before->setFocus();
        m_panel->table->setItemUnit(Cell::Price, QStringLiteral("%"));
        m_panel->table->setItemDouble(Cell::Price, 50);
        m_panel->table->setItemUnit(Cell::Price, QStringLiteral("元"));
        QVERIFY(isLit());
        const QRect row = m_panel->inner().rowRect(m_panel->cell(Cell::Price));
        const QPoint between(m_panel->layoutOf(Cell::Price).value.left() - 1, row.top() + 2);
        const auto ground = [&] { return m_panel->table->viewport()->grab().toImage().pixelColor(between); };
        const QColor lit = ground();
        QTRY_VERIFY(!isLit());
        QCOMPARE(ground(), WQ::resources::color(WQ::keys::kRow));
        QVERIFY2(lit != ground(), qPrintable(theme));
    }
}

QTEST_MAIN(tst_CellFlash)
#include "tst_CellFlash.moc"
