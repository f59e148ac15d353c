#include "Listener.h"

#include "reference/toolkit/FieldEditor.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CBaseDialog.h>
#include <WQ/CParameterCell.h>

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QToolTip>
#include <QtTest>

#include <limits>

using namespace WQ;

namespace {

const double kNan = std::numeric_limits<double>::quiet_NaN();

/// A cell of 200 x 22 pixels in a host; its field begins at 64: label column 56, gap 8.
struct Cell
{
    explicit Cell(const QString& unit = QString())
        : cell(new CParameterCell(7, QStringLiteral("  基准价"), unit, &host))
    {
        cell->resize(200, 22);
        host.resize(300, 60);
        other->move(0, 30);
        host.show();
        QApplication::setActiveWindow(&host);
    }

    FieldEditor* editor() const
    {
        for (FieldEditor* each : cell->findChildren<FieldEditor*>())
            if (each->isVisible())
                return each;
        return nullptr;
    }

    /// Clicks into the field and types.
    void type(const QString& text)
    {
        QTest::mouseClick(cell, Qt::LeftButton, {}, QPoint(120, 11));
        QTest::keyClicks(editor(), text);
    }

    void enter()
    {
        QTest::keyClick(editor(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    QColor frame() const
    {
        return cell->grab().toImage().pixelColor(64, 5);
    }

    QString toolTip() const
    {
        QHelpEvent asked(QEvent::ToolTip, QPoint(100, 5), cell->mapToGlobal(QPoint(100, 5)));
        QCoreApplication::sendEvent(cell, &asked);
        const QString text = QToolTip::text();
        QToolTip::hideText();
        return text;
    }

    Listener host;
    CParameterCell* const cell;
    QLineEdit* const other = new QLineEdit(&host);
};

struct OwnWords : CParameterCell
{
    using CParameterCell::CParameterCell;

    QString formatInvalidMessage(double min, double max) override
    {
        return QStringLiteral("fractions %1 %2").arg(min).arg(max);
    }

    QString formatInvalidMessage(int min, int max) override
    {
        return QStringLiteral("whole %1 %2").arg(min).arg(max);
    }
};

/// The pixels of a colour in a part of the picture.
int count(const QImage& image, const QRect& part, const QColor& color)
{
    int found = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            found += image.pixelColor(x, y) == color ? 1 : 0;
    return found;
}

} // namespace

class CParameterCellTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void itShowsWhatItIsGiven();
    void aNumberFollowsALaterStep();
    void theValidatorNeverBoundsAValueThatIsSet();
    void limitsAreReadBack();
    void programmaticChangesSendNothing();
    void labelsLineUpAtTheirRightEnds();
    void aDisabledFactStaysReadable();
    void longTextsAreInTheToolTip();
    void aPersonTypesANumber();
    void aPersonTypesAText();
    void theWheelStepsWhatIsBeingEdited();
    void theWheelOverATextScrolls();
    void keysOfTheEditAreNoShortcutsOfTheHost();
    void committingTheSameSendsNothing();
    void typingReplacesTheValue();
    void escapeTakesTheEditBack();
    void leavingTheCellCommits();
    void hidingTheWindowCommits();
    void wrongTextIsMarkedAndNeverStored();
    void theMessageSaysTheLimits();
    void theHostSaysItInItsOwnWords();
    void arrowKeysStep();
    void aDisabledCellIsNotEdited();
    void disablingEndsTheEdit();
    void theProgramMaySetWhileAPersonTypes();
    void theListenerMayDeleteTheCell();
    void theCellMayGoWhileItIsEdited();
    void itScalesButNotInADialog();
    void theApplicationsStyleSheetDoesNotShow();
    void itIsAccessible();
};

void CParameterCellTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void CParameterCellTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void CParameterCellTest::itShowsWhatItIsGiven()
{
    CParameterCell cell(7, QStringLiteral("  基准价"), QString(), nullptr);
    QCOMPARE(cell.id(), 7);
    QCOMPARE(cell.label(), QStringLiteral("  基准价"));
    QCOMPARE(cell.text(), QString());
    cell.setInt(12000);
    QCOMPARE(cell.text(), QStringLiteral("12000"));
    cell.setInt(std::numeric_limits<int>::min());
    QCOMPARE(cell.text(), QStringLiteral("-2147483648"));
    cell.setString(QStringLiteral("8800 1234"));
    QCOMPARE(cell.text(), QStringLiteral("8800 1234"));
    cell.setDoubleValidator(QString(), 0.0, 1e6, 0.001);
    cell.setDouble(10.23);
    QCOMPARE(cell.text(), QStringLiteral("10.230"));
    cell.setDouble(kNan);
    QCOMPARE(cell.text(), QStringLiteral("--"));
    cell.setString(QString(1 << 20, QLatin1Char('x')));
    QCOMPARE(cell.text().size(), 1 << 20);
    cell.resize(200, 22);
    QVERIFY(!cell.grab().isNull());
}

void CParameterCellTest::aNumberFollowsALaterStep()
{
    CParameterCell cell(0, QString(), QString(), nullptr);
    cell.setDouble(10.5);
    QCOMPARE(cell.text(), QStringLiteral("10.50"));
    cell.setDoubleValidator(QString(), 0.0, 1e6, 0.0001);
    QCOMPARE(cell.text(), QStringLiteral("10.5000"));
}

void CParameterCellTest::theValidatorNeverBoundsAValueThatIsSet()
{
    CParameterCell cell(0, QString(), QString(), nullptr);
    cell.setDoubleValidator(QString(), 0.0, 10.0, 0.1);
    cell.setDouble(-99.5);
    QCOMPARE(cell.text(), QStringLiteral("-99.5"));
    cell.setInt(5000);
    QCOMPARE(cell.text(), QStringLiteral("5000"));
    cell.setString(QStringLiteral("涨跌停价"));
    QCOMPARE(cell.text(), QStringLiteral("涨跌停价"));
}

void CParameterCellTest::limitsAreReadBack()
{
    CParameterCell cell(0, QString(), QString(), nullptr);
    QCOMPARE(cell.minimum(), 0.0);
    QCOMPARE(cell.maximum(), 0.0);
    QCOMPARE(cell.step(), 0.0);
    cell.setDoubleValidator(QString(), 0.0, std::numeric_limits<double>::max(), 0.001);
    QCOMPARE(cell.maximum(), std::numeric_limits<double>::max());
    QCOMPARE(cell.step(), 0.001);
}

void CParameterCellTest::programmaticChangesSendNothing()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0, 10, 1);
    c.cell->setDouble(3);
    c.cell->setInt(4);
    c.cell->setString(QStringLiteral("x"));
    c.cell->setUnit(QStringLiteral("元"));
    QCoreApplication::processEvents();
    QVERIFY(c.host.heard.isEmpty());
}

void CParameterCellTest::labelsLineUpAtTheirRightEnds()
{
    const auto rightEnd = [](const QString& label) {
        CParameterCell cell(0, label, QString(), nullptr);
        cell.resize(200, 22);
        const QImage image = cell.grab().toImage();
        for (int x = 63; x > 0; --x)
            for (int y = 0; y < 22; ++y)
                if (image.pixelColor(x, y) != resources::color(keys::kWindow))
                    return x;
        return 0;
    };
    // Full blocks fill their squares to the edge in any font.
    const int long4 = rightEnd(QStringLiteral("████"));
    QVERIFY2(long4 >= 54 && long4 <= 56, qPrintable(QString::number(long4)));
    QCOMPARE(rightEnd(QStringLiteral("    ██")), long4);
    QCOMPARE(rightEnd(QStringLiteral("█   ")), long4);
}

void CParameterCellTest::aDisabledFactStaysReadable()
{
    Cell c;
    c.cell->setString(QStringLiteral("██"));
    c.cell->setEnabled(false);
    const QImage image = c.cell->grab().toImage();
    QVERIFY(count(image, QRect(64, 0, 130, 22), resources::color(keys::kValue)) > 20);
    QCOMPARE(image.pixelColor(198, 11), resources::color(keys::kInput));
}

void CParameterCellTest::longTextsAreInTheToolTip()
{
    Cell c(QStringLiteral("股"));
    c.cell->setInt(12000);
    QCOMPARE(c.toolTip(), QString());
    c.cell->setString(QStringLiteral("示例股份示例股份示例股份示例股份"));
    QVERIFY2(c.toolTip().contains(QStringLiteral("示例股份示例股份示例股份示例股份 股")), qPrintable(c.toolTip()));
    c.cell->setEnabled(false);
    QVERIFY(c.toolTip().contains(QStringLiteral("示例股份")));
}

void CParameterCellTest::aPersonTypesANumber()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 1e6, 0.01);
    c.cell->setDouble(1234.5);
    QTest::mouseClick(c.cell, Qt::LeftButton, {}, QPoint(120, 11));
    QVERIFY(c.editor());
    QCOMPARE(c.editor()->text(), QStringLiteral("1234.50"));
    QCOMPARE(c.editor()->selectedText(), QStringLiteral("1234.50"));
    QTest::keyClicks(c.editor(), QStringLiteral("10,000.5"));
    QCOMPARE(c.cell->text(), QStringLiteral("1234.50"));
    c.enter();
    QVERIFY(!c.editor());
    QCOMPARE(c.cell->text(), QStringLiteral("10000.50"));
    QCOMPARE(c.host.heard, QStringList{QStringLiteral("87 7 0 10000.50")});
}

void CParameterCellTest::aPersonTypesAText()
{
    Cell c;
    c.type(QStringLiteral("note"));
    c.enter();
    QCOMPARE(c.cell->text(), QStringLiteral("note"));
    QCOMPARE(c.host.heard, QStringList{QStringLiteral("102 7 0 note")});
}

void CParameterCellTest::committingTheSameSendsNothing()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 1e6, 0.01);
    c.cell->setDouble(5);
    c.type(QStringLiteral("5.000"));
    c.enter();
    QVERIFY(!c.editor());
    QVERIFY(c.host.heard.isEmpty());
    QCOMPARE(c.cell->text(), QStringLiteral("5.00"));
}

void CParameterCellTest::typingReplacesTheValue()
{
    Cell c;
    c.cell->setString(QStringLiteral("old"));
    c.cell->setFocus();
    QTest::keyClicks(c.cell, QStringLiteral("n"));
    QVERIFY(c.editor());
    QTest::keyClicks(c.editor(), QStringLiteral("ew"));
    c.enter();
    QCOMPARE(c.cell->text(), QStringLiteral("new"));
    QTest::keyClick(c.cell, Qt::Key_F2);
    QCOMPARE(c.editor()->selectedText(), QStringLiteral("new"));
}

void CParameterCellTest::escapeTakesTheEditBack()
{
    Cell c;
    c.cell->setString(QStringLiteral("old"));
    c.type(QStringLiteral("new"));
    QTest::keyClick(c.editor(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    QVERIFY(!c.editor());
    QCOMPARE(c.cell->text(), QStringLiteral("old"));
    QVERIFY(c.host.heard.isEmpty());
    QVERIFY(c.cell->hasFocus());
}

void CParameterCellTest::leavingTheCellCommits()
{
    Cell c;
    c.type(QStringLiteral("new"));
    c.other->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(c.cell->text(), QStringLiteral("new"));
    QCOMPARE(c.host.heard.size(), 1);
    QVERIFY(c.other->hasFocus());
}

void CParameterCellTest::hidingTheWindowCommits()
{
    Cell c;
    c.type(QStringLiteral("new"));
    c.host.hide();
    QCOMPARE(c.cell->text(), QStringLiteral("new"));
}

void CParameterCellTest::wrongTextIsMarkedAndNeverStored()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 100.0, 1.0);
    c.cell->setDouble(5);
    c.type(QStringLiteral("101"));
    QCOMPARE(c.frame(), resources::color(keys::kWrongFrame));
    c.enter();
    QVERIFY(c.editor());
    QCOMPARE(c.cell->text(), QStringLiteral("5"));
    QTest::keyClick(c.editor(), Qt::Key_Backspace);
    QCOMPARE(c.frame(), resources::color(keys::kAccent));
    QTest::keyClicks(c.editor(), QStringLiteral("x"));
    c.other->setFocus();
    QCoreApplication::processEvents();
    QVERIFY(!c.editor());
    QCOMPARE(c.cell->text(), QStringLiteral("5"));
    QVERIFY(c.host.heard.isEmpty());
    QCOMPARE(c.frame(), resources::color(keys::kSeparator));
}

void CParameterCellTest::theMessageSaysTheLimits()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 1e6, 0.001);
    c.type(QStringLiteral("-1"));
    QVERIFY2(c.toolTip().contains(QStringLiteral("请输入 0 – 1,000,000")), qPrintable(c.toolTip()));
    c.cell->setDoubleValidator(QStringLiteral("价格不对"), 0.0, 1e6, 0.001);
    QVERIFY(c.toolTip().contains(QStringLiteral("价格不对")));
    QCOMPARE(c.cell->formatInvalidMessage(1, 2), QStringLiteral("请输入 1 – 2"));
    QCOMPARE(c.cell->formatInvalidMessage(1.5, 2.5), QStringLiteral("请输入 1.5 – 2.5"));
}

void CParameterCellTest::theHostSaysItInItsOwnWords()
{
    Listener host;
    OwnWords cell(1, QString(), QString(), &host);
    cell.resize(100, 22);
    host.show();
    const auto said = [&cell](double step) {
        cell.setDoubleValidator(QString(), 2, 8, step);
        QHelpEvent asked(QEvent::ToolTip, QPoint(5, 5), cell.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&cell, &asked);
        return QToolTip::text();
    };
    QTest::mouseClick(&cell, Qt::LeftButton, {}, QPoint(20, 11));
    QTest::keyClicks(cell.findChild<FieldEditor*>(), QStringLiteral("99"));
    QVERIFY2(said(0.5).contains(QStringLiteral("fractions 2 8")), qPrintable(QToolTip::text()));
    QVERIFY2(said(1).contains(QStringLiteral("whole 2 8")), qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

void CParameterCellTest::arrowKeysStep()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 20.0, 0.5);
    c.cell->setDouble(5);
    QTest::mouseClick(c.cell, Qt::LeftButton, {}, QPoint(120, 11));
    QTest::keyClick(c.editor(), Qt::Key_Up);
    QCOMPARE(c.editor()->text(), QStringLiteral("5.5"));
    QTest::keyClick(c.editor(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(c.editor()->text(), QStringLiteral("10.5"));
    QTest::keyClick(c.editor(), Qt::Key_Down);
    QCOMPARE(c.editor()->text(), QStringLiteral("10.0"));
    c.enter();
    QCOMPARE(c.host.heard, QStringList{QStringLiteral("87 7 0 10.0")});
}

void CParameterCellTest::aDisabledCellIsNotEdited()
{
    Cell c;
    c.cell->setString(QStringLiteral("fact"));
    c.cell->setEnabled(false);
    QTest::mouseClick(c.cell, Qt::LeftButton, {}, QPoint(120, 11));
    QTest::keyClick(c.cell, Qt::Key_F2);
    QTest::keyClicks(c.cell, QStringLiteral("x"));
    QVERIFY(!c.editor());
    QCOMPARE(c.cell->text(), QStringLiteral("fact"));
}

void CParameterCellTest::disablingEndsTheEdit()
{
    Cell c;
    c.type(QStringLiteral("new"));
    c.cell->setEnabled(false);
    QVERIFY(!c.editor());
    QCOMPARE(c.cell->text(), QStringLiteral("new"));
}

void CParameterCellTest::theProgramMaySetWhileAPersonTypes()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 100.0, 1.0);
    c.cell->setDouble(5);
    c.type(QStringLiteral("4"));
    c.cell->setDouble(6);
    QCOMPARE(c.editor()->text(), QStringLiteral("4"));
    QCOMPARE(c.cell->text(), QStringLiteral("6"));
    QTest::keyClicks(c.editor(), QStringLiteral("2"));
    c.enter();
    QCOMPARE(c.cell->text(), QStringLiteral("42"));
}

void CParameterCellTest::theListenerMayDeleteTheCell()
{
    Cell c;
    const QPointer<CParameterCell> cell(c.cell);
    c.host.then = [cell] { delete cell.data(); };
    c.type(QStringLiteral("new"));
    c.enter();
    QVERIFY(!cell);
}

void CParameterCellTest::theCellMayGoWhileItIsEdited()
{
    Cell c;
    c.type(QStringLiteral("new"));
    delete c.cell;
    QCoreApplication::processEvents();
    QVERIFY(c.host.heard.isEmpty());
}

void CParameterCellTest::itScalesButNotInADialog()
{
    CParameterCell cell(0, QStringLiteral("代码"), QString(), nullptr);
    CBaseDialog dialog(nullptr);
    CParameterCell fact(0, QStringLiteral("代码"), QString(), &dialog);
    const QSize atOne = cell.sizeHint();
    QCOMPARE(atOne, QSize(184, 22));
    resources::setScale(2.0);
    QCOMPARE(cell.sizeHint(), QSize(368, 44));
    QCOMPARE(fact.sizeHint(), atOne);
}

void CParameterCellTest::theApplicationsStyleSheetDoesNotShow()
{
    Cell c(QStringLiteral("元"));
    const auto picture = [&c] { return c.cell->grab().toImage().convertToFormat(QImage::Format_RGB32); };
    c.cell->setDouble(5);
    c.other->setFocus();
    const QImage shown = picture();
    c.type(QStringLiteral("6"));
    const QImage edited = picture();
    QTest::keyClick(c.editor(), Qt::Key_Escape);
    c.other->setFocus();
    qApp->setStyleSheet(QStringLiteral("* { color: red; background: yellow; font-size: 30px; border: 3px solid green;"
                                       " padding: 9px } QLineEdit { min-height: 40px }"));
    QCOMPARE(picture(), shown);
    c.type(QStringLiteral("6"));
    QCOMPARE(picture(), edited);
}

void CParameterCellTest::itIsAccessible()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0.0, 1e6, 0.001);
    c.cell->setDouble(10.23);
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(c.cell);
    QVERIFY(access);
    QCOMPARE(access->role(), QAccessible::EditableText);
    QCOMPARE(access->text(QAccessible::Name), QStringLiteral("基准价"));
    QCOMPARE(access->text(QAccessible::Value), QStringLiteral("10.230"));
    QVERIFY(access->state().editable && !access->state().readOnly);
    QVERIFY(!access->state().readOnly);
    c.cell->setEnabled(false);
    QVERIFY(access->state().readOnly);
    QVERIFY(access->state().disabled);
}

namespace {

/// Whether the editor took the turn.
bool turn(QWidget& widget, int angle, Qt::KeyboardModifiers held = Qt::NoModifier)
{
    QWheelEvent event(QPointF(5, 5), widget.mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, angle), Qt::NoButton, held,
                      Qt::NoScrollPhase, false);
    event.setAccepted(false);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

} // namespace

void CParameterCellTest::theWheelStepsWhatIsBeingEdited()
{
    Cell c;
    c.cell->setDoubleValidator(QString(), 0, 100, 0.5);
    c.cell->setDouble(10);
    c.type(QStringLiteral("10"));
    FieldEditor& editor = *c.editor();
    QVERIFY(turn(editor, 120));
    QCOMPARE(editor.text(), QStringLiteral("10.5"));
    QVERIFY(turn(editor, -120, Qt::ShiftModifier));
    QCOMPARE(editor.text(), QStringLiteral("5.5"));
    // A fine wheel sends an eighth of a notch at a time.
    for (int i = 0; i < 7; ++i)
        QVERIFY(turn(editor, 15));
    QCOMPARE(editor.text(), QStringLiteral("5.5"));
    QVERIFY(turn(editor, 15));
    QCOMPARE(editor.text(), QStringLiteral("6.0"));
    c.other->setFocus();
    QCOMPARE(c.cell->text(), QStringLiteral("6.0"));
}

void CParameterCellTest::theWheelOverATextScrolls()
{
    Cell c;
    c.cell->setString(QStringLiteral("季度调仓"));
    c.type(QStringLiteral("10"));
    turn(*c.editor(), 120);
    QCOMPARE(c.editor()->text(), QStringLiteral("10"));
    Cell closed;
    closed.cell->setDoubleValidator(QString(), 0, 100, 1);
    closed.cell->setDouble(10);
    turn(*closed.cell, 120);
    QCOMPARE(closed.cell->text(), QStringLiteral("10"));
}

void CParameterCellTest::keysOfTheEditAreNoShortcutsOfTheHost()
{
    Cell c;
    c.type(QStringLiteral("10"));
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Up,
                              Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
        QKeyEvent asked(QEvent::ShortcutOverride, key, Qt::NoModifier);
        asked.ignore();
        QCoreApplication::sendEvent(c.editor(), &asked);
        QVERIFY2(asked.isAccepted(), qPrintable(QString::number(key)));
    }
}

QTEST_MAIN(CParameterCellTest)
#include "tst_CParameterCell.moc"
