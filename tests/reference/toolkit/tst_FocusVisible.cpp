#include "support/Contrast.h"

#include "MenuPanel.h"

#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CParameterCell.h>
#include <WQ/CPushButton.h>
#include <WQ/ToolkitTypes.h>

#include <algorithm>

using namespace WQ;
using support::contrast;

namespace {

constexpr double kLeastContrast = 3.0;

/// The pixels in which two pictures of a widget differ enough to be told apart.
int pixelsThatStandOut(const QImage& before, const QImage& after)
{
    int count = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            count += contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= kLeastContrast ? 1 : 0;
    return count;
}

using Make = QWidget* (*)(QWidget*);

/// A window whose first widget has the focus until the second gets it.
struct Stage
{
    explicit Stage(Make make)
        : other(new QWidget(&window))
        , widget(make(&window))
    {
        other->setFocusPolicy(Qt::StrongFocus);
        other->resize(10, 10);
        widget->setGeometry(20, 20, 240, std::max(28, widget->sizeHint().height()));
        window.resize(300, 300);
        window.show();
        isShown = QTest::qWaitForWindowActive(&window);
        other->setFocus();
    }

    QWidget window;
    QWidget* const other;
    QWidget* const widget;
    bool isShown = false;
};

QWidget* makeTable(QWidget* parent)
{
    auto* table = new CMultiParamsTable(parent, true);
    table->addLineEdit(1, QStringLiteral("投资备注"), QStringLiteral("季度调仓"), false, QString());
    table->addLineEdit(2, QStringLiteral("投资备注"), QStringLiteral("季度调仓"), false, QString());
    table->setCurrentIndex(table->model()->index(0, 1));
    return table;
}

QWidget* makeButton(QWidget* parent)
{
    const CButtonColor color{keys::kWindow, keys::kRowMouse, keys::kRow, keys::kWindow};
    auto* button = new CPushButton(color, 1, parent);
    button->setText(QStringLiteral("普通交易"));
    return button;
}

QWidget* makeCheckedButton(QWidget* parent)
{
    auto* button = static_cast<CPushButton*>(makeButton(parent));
    button->setButtonDownStyle(DownStyleUnderline);
    button->setChecked(true);
    return button;
}

QWidget* makeIcon(QWidget* parent)
{
    return new IconButton(keys::kHelpImage, keys::kHelpIcon, parent);
}

QWidget* makeField(QWidget* parent)
{
    return new CParameterCell(1, QStringLiteral("数量"), QString(), parent);
}

// Each opens a list over the panel and answers it; its first stop is current.

using Open = QWidget* (*)(MenuPanel&);

QWidget* openEntries(MenuPanel& panel)
{
    panel.focusRow(EditorPanel::Combo);
    panel.press(Qt::Key_F2);
    return panel.list();
}

QWidget* openUnits(MenuPanel& panel)
{
    panel.focusRow(EditorPanel::Price);
    panel.press(Qt::Key_Down, Qt::AltModifier);
    return panel.list();
}

QWidget* openFilter(MenuPanel& panel)
{
    panel.table->setAllItemSet({EditorPanel::Price, EditorPanel::Least});
    panel.table->setCustomWidgetVisible(true);
    panel.table->setMinimumHeight(panel.table->realHeight());
    QCoreApplication::processEvents();
    panel.click(panel.inner().footerRect());
    return panel.filter();
}

QWidget* openFilterButtons(MenuPanel& panel)
{
    QWidget* filter = openFilter(panel);
    panel.press(Qt::Key_Tab);
    return filter;
}

QWidget* openMenu(MenuPanel& panel)
{
    QWidget* menu = panel.menuOf(EditorPanel::Price);
    panel.press(Qt::Key_Down);
    return menu;
}

QWidget* openDropDown(MenuPanel& panel)
{
    auto* list = new PopupList(&panel.host, {QStringLiteral("随机量"), QStringLiteral("智能算法")}, 0, [](int) {});
    list->open(QRect(panel.host.mapToGlobal(QPoint(0, 0)), QSize(1, 1)));
    return list;
}

} // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Open)

/// Whoever works by the keyboard alone sees where it goes.
class tst_FocusVisible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void whatHasTheFocusStandsOut_data();
    void whatHasTheFocusStandsOut();
    void whatIsCurrentInAListStandsOut_data();
    void whatIsCurrentInAListStandsOut();
};

void tst_FocusVisible::cleanup()
{
    resources::setTheme(QStringLiteral("dark"));
}

void tst_FocusVisible::whatHasTheFocusStandsOut_data()
{
    struct Row
    {
        const char* name;
        Make make;
    };
    QTest::addColumn<QString>("theme");
    QTest::addColumn<Make>("make");
    const Row rows[] = {{"row", makeTable},
                        {"button", makeButton},
                        {"checked button", makeCheckedButton},
                        {"icon", makeIcon},
                        {"field", makeField}};
    for (const QString& theme : resources::themes())
        for (const Row& row : rows)
            QTest::newRow(qPrintable(QLatin1String(row.name) + QLatin1Char(' ') + theme)) << theme << row.make;
}

void tst_FocusVisible::whatHasTheFocusStandsOut()
{
    QFETCH(QString, theme);
    QFETCH(Make, make);
    QVERIFY(resources::setTheme(theme));
    const Stage stage(make);
    QVERIFY(stage.isShown);
    const QImage before = stage.widget->grab().toImage();
    stage.widget->setFocus();
    QVERIFY(stage.widget->hasFocus());
    const QImage after = stage.widget->grab().toImage();
    // A frame around the smallest of them has more.
    constexpr int kLeastPixels = 100;
    const int found = pixelsThatStandOut(before, after);
    QVERIFY2(found >= kLeastPixels, qPrintable(QString::number(found)));
}

void tst_FocusVisible::whatIsCurrentInAListStandsOut_data()
{
    struct Row
    {
        const char* name;
        Open open;
        Qt::Key next;
    };
    QTest::addColumn<QString>("theme");
    QTest::addColumn<Open>("open");
    QTest::addColumn<int>("next");
    const Row rows[] = {{"entry", openEntries, Qt::Key_Down},
                        {"unit", openUnits, Qt::Key_Down},
                        {"row of the filter", openFilter, Qt::Key_Down},
                        {"button of the filter", openFilterButtons, Qt::Key_Tab},
                        {"entry of the menu", openMenu, Qt::Key_Down},
                        {"entry of the strip's list", openDropDown, Qt::Key_Down}};
    for (const QString& theme : resources::themes())
        for (const Row& row : rows)
            QTest::newRow(qPrintable(QLatin1String(row.name) + QLatin1Char(' ') + theme))
                << theme << row.open << int(row.next);
}

// The ground alone, which differs little between the entries, does not count.
void tst_FocusVisible::whatIsCurrentInAListStandsOut()
{
    QFETCH(QString, theme);
    QFETCH(Open, open);
    QFETCH(int, next);
    QVERIFY(resources::setTheme(theme));
    MenuPanel panel;
    QVERIFY(panel.open());
    const QPointer<QWidget> list = open(panel);
    QVERIFY(list);
    const QImage before = list->grab().toImage();
    panel.press(Qt::Key(next));
    QVERIFY(list && list->isVisible());
    const QImage after = list->grab().toImage();
    // Two frames of two short sides, the one that went and the one that came.
    constexpr int kLeastPixels = 100;
    const int found = pixelsThatStandOut(before, after);
    QVERIFY2(found >= kLeastPixels, qPrintable(QString::number(found)));
    list->close();
}

QTEST_MAIN(tst_FocusVisible)
#include "tst_FocusVisible.moc"
