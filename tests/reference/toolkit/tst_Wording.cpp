#include "MenuPanel.h"

#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/SingleValue.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CFloatWidget.h>
#include <WQ/CParameterCell.h>
#include <WQ/CPushButton.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDirIterator>
#include <QPaintEvent>
#include <QRegion>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

using Cell = EditorPanel;

namespace {

/// Makes the application speak English as long as it lives.
class English
{
public:
    English()
    {
        isFound = translator.load(QStringLiteral(":/orderparam/translations/toolkit_en.qm"));
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::processEvents();
    }

    ~English()
    {
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::processEvents();
    }

    QTranslator translator;
    bool isFound = false;
};

/// Remembers what of a widget is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget)
    {
        widget.installEventFilter(this);
    }

    QRegion painted;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

// Each of these makes a panel say something and answers what it says.

QString menuTexts(MenuPanel& panel)
{
    QStringList texts;
    for (const QAction* action : panel.menuOf(Cell::Price)->actions())
        texts << action->text();
    panel.menu()->close();
    return texts.join(QLatin1Char('|'));
}

QString refusalOf(MenuPanel& panel, int cell, const QString& pasted)
{
    panel.paste(cell, pasted);
    return panel.notice();
}

QString unknownEntry(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Combo, QStringLiteral("市价"));
}

QString wrongTime(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Period, QStringLiteral("9点"));
}

QString wrongDuration(MenuPanel& panel)
{
    panel.clickValue(Cell::Period);
    panel.press(Qt::Key_Down, Qt::AltModifier);
    panel.type(QStringLiteral("9x"));
    return panel.notice();
}

QString wrongPattern(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Code, QStringLiteral("12a"));
}

QString brokenLine(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Remark, QStringLiteral("季度\t调仓"));
}

QString endlessLine(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Remark, QString(32768, QLatin1Char('x')));
}

QString noNumber(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Least, QStringLiteral("12a"));
}

QString fractionOfWholeOnes(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Least, QStringLiteral("100.5"));
}

QString beyondTheRange(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Least, QStringLiteral("99"));
}

QString crossedRange(MenuPanel& panel)
{
    return refusalOf(panel, Cell::Span, QStringLiteral("300 - 200"));
}

QString offTheGrid(MenuPanel& panel)
{
    panel.clickValue(Cell::Least);
    panel.type(QStringLiteral("1250"));
    return panel.notice();
}

QString rangeOffTheGrid(MenuPanel& panel)
{
    panel.table->setItemTick(Cell::Span, QStringLiteral("股"), 100);
    panel.table->setItemText(Cell::Span, QStringLiteral("150 - 275"));
    return panel.inner().toolTipOf(panel.cell(Cell::Span));
}

QString boundedByItsUnit(MenuPanel& panel)
{
    panel.table->setItemUnit(Cell::Price, QStringLiteral("元"), 0, 10, 0.001, false);
    panel.table->setItemDouble(Cell::Price, 50);
    panel.focusRow(Cell::Price);
    panel.press(Qt::Key_Down, Qt::AltModifier);
    panel.press(Qt::Key_End);
    panel.press(Qt::Key_Return);
    return panel.notice();
}

QString rangesWithOneEnd(MenuPanel&)
{
    WQ::NumberUnit unit;
    unit.min = 1;
    unit.max = 1e300;
    QStringList texts{WQ::rangeText(unit)};
    unit.min = -1e300;
    unit.max = 5;
    texts << WQ::rangeText(unit);
    return texts.join(QLatin1Char('|'));
}

QString lostEntry(MenuPanel& panel)
{
    panel.table->resetComboData(Cell::Combo, {QStringLiteral("市价")}, {9}, 0);
    panel.restore(Cell::Combo);
    return panel.notice();
}

QString footer(MenuPanel& panel, QAccessible::Text text)
{
    panel.table->setCustomWidgetVisible(true);
    panel.table->setVisibleItemSet({Cell::Price});
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(panel.table.data());
    return table->child(table->childCount() - 1)->text(text);
}

QString footerName(MenuPanel& panel)
{
    return footer(panel, QAccessible::Name);
}

QString footerDescription(MenuPanel& panel)
{
    return footer(panel, QAccessible::Description);
}

QString periodKinds(MenuPanel&)
{
    return WQ::CellEditor::tr("时段") + QLatin1Char('|') + WQ::CellEditor::tr("时长");
}

QString filterButtons(MenuPanel&)
{
    return WQ::FilterPopup::tr("重置") + QLatin1Char('|') + WQ::FilterPopup::tr("应用");
}

/// A group too narrow for its buttons names the one behind which the others are, and its help.
QString groupButtons(MenuPanel& panel)
{
    WQ::CDropDownButtonGroup group(Qt::Horizontal, &panel.host);
    for (int id = 600; id < 603; ++id) {
        auto* button = new WQ::CPushButton(WQ::CButtonColor(), id, &group);
        button->setText(QStringLiteral("普通交易"));
        group.addButton(button, WQ::AnchorStart);
    }
    group.resize(120, 28);
    group.show();
    group.setHelpButtonCritical(true);
    QStringList texts;
    for (const QWidget* button : group.findChildren<WQ::IconButton*>())
        texts << button->accessibleName() << button->accessibleDescription();
    texts.removeAll(QString());
    texts.sort();
    return texts.join(QLatin1Char('|'));
}

QString dialogTexts(MenuPanel&)
{
    WQ::CFloatWidget dialog(true, nullptr);
    dialog.resize(200, 100);
    WQ::CParameterCell cell(1, QStringLiteral("数量"), QString(), &dialog);
    cell.setGeometry(20, 50, 150, 22);
    dialog.show();
    QStringList texts{dialog.findChild<WQ::IconButton*>()->accessibleName()};
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(100, 60), dialog.mapToGlobal(QPoint(100, 60)));
    QCoreApplication::sendEvent(&dialog, &asked);
    auto* list = qobject_cast<WQ::PopupList*>(QApplication::activePopupWidget());
    for (int row = 0; list && row < list->model()->rowCount(); ++row)
        texts << list->model()->index(row, 0).data().toString();
    if (list)
        list->close();
    return texts.join(QLatin1Char('|'));
}

QString limits(MenuPanel&)
{
    constexpr double kEndless = 1e300;
    return QStringList{WQ::limitsMessage(0, 1000000), WQ::limitsMessage(100, kEndless),
                       WQ::limitsMessage(-kEndless, 100), WQ::limitsMessage(-kEndless, kEndless)}
        .join(QLatin1Char('|'));
}

using Say = QString (*)(MenuPanel&);

struct Row
{
    const char* name;
    Say say;
    QString chinese;
    QString english;
};

// clang-format off
QVector<Row> rows()
{
    return {
        {"the menu of a cell", menuTexts,
         QStringLiteral("复制数值|复制名称和数值|复制全部||粘贴|恢复初始值|切换单位"),
         QStringLiteral("Copy value|Copy label and value|Copy all||Paste|Restore initial value|Switch unit")},
        {"an entry that is none", unknownEntry,
         QStringLiteral("报价方式 没有这个选项"), QStringLiteral("报价方式 has no such choice")},
        {"a time that is none", wrongTime,
         QStringLiteral("有效时间 不是时间（00:00:00 – 23:59:59）"),
         QStringLiteral("有效时间 is not a time (00:00:00 – 23:59:59)")},
        {"a duration that is none", wrongDuration,
         QStringLiteral("有效时间 不是时长（00:00:00 – 24:00:00）"),
         QStringLiteral("有效时间 is not a duration (00:00:00 – 24:00:00)")},
        {"a text against its pattern", wrongPattern,
         QStringLiteral("指定还券 格式不符"), QStringLiteral("指定还券 has the wrong format")},
        {"a text of two columns", brokenLine,
         QStringLiteral("投资备注 不能含有换行或制表符"),
         QStringLiteral("投资备注 must not contain line breaks or tabs")},
        {"a text without end", endlessLine,
         QStringLiteral("投资备注 文字过长（最多 32767 个字符）"),
         QStringLiteral("投资备注 is too long (at most 32767 characters)")},
        {"a number that is none", noNumber,
         QStringLiteral("单笔最小量 不是数字（100 – 1,000,000 股）"),
         QStringLiteral("单笔最小量 is not a number (100 – 1,000,000 股)")},
        {"a fraction where whole ones are", fractionOfWholeOnes,
         QStringLiteral("单笔最小量 须为整数（100 – 1,000,000 股）"),
         QStringLiteral("单笔最小量 must be a whole number (100 – 1,000,000 股)")},
        {"a number beyond its range", beyondTheRange,
         QStringLiteral("单笔最小量 超出范围（100 – 1,000,000 股）"),
         QStringLiteral("单笔最小量 is out of range (100 – 1,000,000 股)")},
        {"a range that is crossed", crossedRange,
         QStringLiteral("单笔量区间 上限不能小于下限（1 – 1,000,000 股）"),
         QStringLiteral("单笔量区间 must not have its high end below its low end (1 – 1,000,000 股)")},
        {"a number off its grid", offTheGrid,
         QStringLiteral("不是 100 的整数倍：1,200 或 1,300"), QStringLiteral("not a multiple of 100: 1,200 or 1,300")},
        {"a range off its grid", rangeOffTheGrid,
         QStringLiteral("1 – 1,000,000 股\n下限 不是 100 的整数倍：100 或 200；上限 不是 100 的整数倍：200 或 300"),
         QStringLiteral("1 – 1,000,000 股\nlow end not a multiple of 100: 100 or 200; "
                        "high end not a multiple of 100: 200 or 300")},
        {"a number that its unit bounds", boundedByItsUnit,
         QStringLiteral("单笔超价 50.00 % 已调整为 10.000 元（0.000 – 10.000 元）"),
         QStringLiteral("单笔超价 50.00 % adjusted to 10.000 元 (0.000 – 10.000 元)")},
        {"a range with one end", rangesWithOneEnd,
         QStringLiteral("不小于 1.00|不大于 5.00"), QStringLiteral("at least 1.00|at most 5.00")},
        {"an initial entry that is gone", lostEntry,
         QStringLiteral("报价方式 已没有最初的选项"), QStringLiteral("报价方式 no longer has its initial choice")},
        {"the filter to assistive programs", footerName, QStringLiteral("筛选"), QStringLiteral("Filter")},
        {"a filter that hides rows", footerDescription,
         QStringLiteral("部分参数未显示"), QStringLiteral("Some parameters are not shown")},
        {"the kinds of a period", periodKinds, QStringLiteral("时段|时长"), QStringLiteral("Period|Duration")},
        {"the buttons of the filter", filterButtons, QStringLiteral("重置|应用"), QStringLiteral("Reset|Apply")},
        {"the buttons of the strip", groupButtons,
         QStringLiteral("帮助|更多|有重要提示"), QStringLiteral("Help|Important notice|More")},
        {"a dialog's button and menu", dialogTexts,
         QStringLiteral("关闭|复制|全部复制"), QStringLiteral("Close|Copy|Copy all")},
        {"the limits of a single cell", limits,
         QStringLiteral("请输入 0 – 1,000,000|请输入不小于 100 的数|请输入不大于 100 的数|请输入数字"),
         QStringLiteral("Enter 0 – 1,000,000|Enter a number of at least 100|Enter a number of at most 100|"
                        "Enter a number")},
    };
}
// clang-format on

// What the sources of a folder match, the first group of each match.
QStringList found(const QString& folder, const QString& pattern)
{
    const QRegularExpression wanted(pattern);
    QStringList texts;
    QDirIterator files(QStringLiteral(TOOLKIT_SOURCES) + folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")});
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto matches = wanted.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            texts << matches.next().captured(1);
    }
    return texts;
}

QStringList toolkitFolders()
{
    return {QStringLiteral("/"), QStringLiteral("/cells"), QStringLiteral("/editors")};
}

QHash<QString, QString> englishTexts()
{
    QHash<QString, QString> texts;
    QFile file(QStringLiteral(TOOLKIT_SOURCES "/translations/toolkit_en.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader reader(&file);
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            source = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QLatin1String("translation"))
            texts.insert(source,
                         reader.attributes().hasAttribute(QStringLiteral("type")) ? QString()
                                                                                  : reader.readElementText());
    }
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(Say)

/// What the toolkit says of its own, in both languages. What the order panel says are the system's own words.
class tst_Wording : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void itIsSaidInBothLanguages_data();
    void itIsSaidInBothLanguages();
    void whatStandsOpenIsSaidAgain();
    void theMenuOfAnotherLanguageCloses();
    void theListOfTheFilterTakesItsRoom();
    void theFooterIsPaintedAnew();
    void noTextLacksItsEnglish();
    void noEnglishTextHasChineseLeft();
    void noChineseTextIsPastTranslating();

private:
    std::unique_ptr<MenuPanel> m_panel;
};

void tst_Wording::init()
{
    m_panel = std::make_unique<MenuPanel>();
    QVERIFY(m_panel->open());
}

void tst_Wording::cleanup()
{
    m_panel.reset();
}

void tst_Wording::itIsSaidInBothLanguages_data()
{
    QTest::addColumn<Say>("say");
    QTest::addColumn<QString>("chinese");
    QTest::addColumn<QString>("english");
    for (const Row& row : rows())
        QTest::newRow(row.name) << row.say << row.chinese << row.english;
}

void tst_Wording::itIsSaidInBothLanguages()
{
    QFETCH(Say, say);
    QFETCH(QString, chinese);
    QFETCH(QString, english);
    QCOMPARE(say(*m_panel), chinese);
    cleanup();
    init();
    {
        const English speaks;
        QVERIFY(speaks.isFound);
        QCOMPARE(say(*m_panel), english);
    }
    cleanup();
    init();
    QCOMPARE(say(*m_panel), chinese);
}

void tst_Wording::whatStandsOpenIsSaidAgain()
{
    m_panel->clickValue(Cell::Code);
    m_panel->type(QStringLiteral("12a"));
    QCOMPARE(m_panel->notice(), QStringLiteral("指定还券 格式不符"));
    const English speaks;
    QCOMPARE(m_panel->notice(), QStringLiteral("指定还券 has the wrong format"));
    QVERIFY(m_panel->isEditing(Cell::Code));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("12a"));
}

void tst_Wording::theMenuOfAnotherLanguageCloses()
{
    QVERIFY(m_panel->menuOf(Cell::Price));
    const English speaks;
    QVERIFY(!m_panel->menu());
}

void tst_Wording::theListOfTheFilterTakesItsRoom()
{
    m_panel->table->setCustomWidgetVisible(true);
    m_panel->table->setAllItemSet({Cell::Price, Cell::Least});
    m_panel->table->setMinimumHeight(m_panel->table->realHeight());
    QCoreApplication::processEvents();
    m_panel->click(m_panel->inner().footerRect());
    const WQ::FilterPopup* filter = m_panel->filter();
    QVERIFY(filter);
    const int chinese = filter->applyRect().width();
    const English speaks;
    QVERIFY(filter->isVisible());
    QVERIFY(filter->applyRect().width() != chinese);
    QVERIFY(!filter->resetRect().intersects(filter->applyRect()));
    QVERIFY(filter->rect().contains(filter->applyRect()));
}

void tst_Wording::theFooterIsPaintedAnew()
{
    m_panel->table->setCustomWidgetVisible(true);
    m_panel->table->setMinimumHeight(m_panel->table->realHeight());
    QCoreApplication::processEvents();
    const QRect footer = m_panel->inner().footerRect();
    const QImage chinese = m_panel->table->viewport()->grab(footer).toImage();
    PaintWatch watch(*m_panel->table->viewport());
    const English speaks;
    QTRY_VERIFY(watch.painted.contains(footer));
    QVERIFY(m_panel->table->viewport()->grab(footer).toImage() != chinese);
}

void tst_Wording::noTextLacksItsEnglish()
{
    const QHash<QString, QString> english = englishTexts();
    QStringList asked;
    for (const QString& folder : toolkitFolders()) {
        asked += found(folder, QStringLiteral("\\b(?:tr|wording)\\(\"([^\"]*)\"\\)"));
        asked += found(folder, QStringLiteral("\\bQT_TRANSLATE_NOOP\\(\"[^\"]*\",\\s*\"([^\"]*)\"\\)"));
    }
    QVERIFY(asked.size() > 20);
    for (const QString& text : qAsConst(asked))
        QVERIFY2(!english.value(text).trimmed().isEmpty(), qPrintable(text));
}

void tst_Wording::noEnglishTextHasChineseLeft()
{
    const QHash<QString, QString> english = englishTexts();
    QVERIFY(english.size() > 20);
    for (auto text = english.begin(); text != english.end(); ++text) {
        QVERIFY2(!text->contains(QRegularExpression(QStringLiteral("[\\x{3000}-\\x{9FFF}\\x{FF00}-\\x{FFEF}]"))),
                 qPrintable(*text));
        for (const char* place : {"%1", "%2", "%3"})
            QCOMPARE(text->count(QLatin1String(place)), text.key().count(QLatin1String(place)));
    }
}

void tst_Wording::noChineseTextIsPastTranslating()
{
    const QString pattern =
        QStringLiteral("QStringLiteral\\(\"([^\"]*[\\x{3000}-\\x{9FFF}\\x{FF01}-\\x{FFEF}][^\"]*)\"");
    for (const QString& folder : toolkitFolders())
        QCOMPARE(found(folder, pattern), QStringList());
}

QTEST_MAIN(tst_Wording)
#include "tst_Wording.moc"
