#include "support/Contrast.h"

#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CMultiParamsTable.h>
#include <WQ/CParameterCell.h>
#include <WQ/CPushButton.h>
#include <WQ/ToolkitTypes.h>

#include <QtTest>

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

} // namespace

Q_DECLARE_METATYPE(Make)

/// Whoever works by the keyboard alone sees where it goes.
class tst_FocusVisible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void whatHasTheFocusStandsOut_data();
    void whatHasTheFocusStandsOut();
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

QTEST_MAIN(tst_FocusVisible)
#include "tst_FocusVisible.moc"
