#include "Listener.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CBaseDialog.h>
#include <WQ/CPushButton.h>

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QToolTip>
#include <QtTest>

#include <memory>

using namespace WQ;

namespace {

const QString kText = QStringLiteral("普通交易");

CButtonColor colors()
{
    return {keys::kWindow, keys::kRowMouse, keys::kRow, keys::kInput};
}

QColor cornerOf(CPushButton& button)
{
    return button.grab().toImage().pixelColor(0, 0);
}

/// Whether anything in the picture has that very colour.
bool shows(CPushButton& button, const QString& key)
{
    const QImage image = button.grab().toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == resources::color(key))
                return true;
    return false;
}

} // namespace

class CPushButtonTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void aClickSendsItsEventWhenTheHandlerHasUnwound();
    void spaceClicksAndEnterDoesNot();
    void aKeyDoesNotPressWhatIsHidden();
    void enterInADialogPressesNoButton();
    void theListenerMayDeleteTheButton();
    void programmaticChangesSendNothing();
    void groundsFollowTheState();
    void anEmptyColourKeyPaintsNoGround();
    void textColoursFollowTheState();
    void nullKeepsATextColour();
    void theCheckedButtonIsUnderlined();
    void withoutTextAndIconItTakesNoRoom();
    void theLeastWidthHoldsTextAndPadding();
    void itsTextGrowsToEighteenPixels();
    void inADialogItKeepsItsSize();
    void theImageComesFromItsKey();
    void aTextThatDoesNotFitIsInTheToolTip();
    void aMegabyteOfTextIsHarmless();
    void theApplicationsStyleSheetDoesNotShow();
    void itIsAccessible();
    void theFocusIsVisible();
};

void CPushButtonTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void CPushButtonTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void CPushButtonTest::aClickSendsItsEventWhenTheHandlerHasUnwound()
{
    Listener host;
    CPushButton button(colors(), 603, &host);
    button.setText(kText);
    host.show();
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(host.heard.isEmpty());
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(host.heard, QStringList{QStringLiteral("5 603 0 普通交易")});
}

void CPushButtonTest::spaceClicksAndEnterDoesNot()
{
    Listener host;
    CPushButton button(colors(), 1, &host);
    button.setText(kText);
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Enter);
    QCoreApplication::processEvents();
    QVERIFY(host.heard.isEmpty());
    QTest::keyClick(&button, Qt::Key_Space);
    QCoreApplication::processEvents();
    QCOMPARE(host.heard.size(), 1);
}

// The window that is not the active one keeps the button that had the focus in it.
void CPushButtonTest::aKeyDoesNotPressWhatIsHidden()
{
    Listener host;
    auto* strip = new QWidget(&host);
    CPushButton button(colors(), 600, strip);
    host.show();
    button.setFocus();
    strip->hide();
    QTest::keyClick(&button, Qt::Key_Space);
    strip->show();
    QTest::keyClick(&button, Qt::Key_Space);
    QCoreApplication::processEvents();
    QCOMPARE(host.heard, QStringList{QStringLiteral("5 600 0 ")});
}

void CPushButtonTest::enterInADialogPressesNoButton()
{
    CBaseDialog dialog(nullptr);
    CPushButton button(keys::kExpandImage, 0, 4, 25, 3, 17, &dialog);
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(!button.autoDefault());
}

void CPushButtonTest::theListenerMayDeleteTheButton()
{
    Listener host;
    QPointer<CPushButton> button = new CPushButton(colors(), 1, &host);
    host.then = [button] { delete button.data(); };
    QTest::mouseClick(button.data(), Qt::LeftButton);
    QTest::mouseClick(button.data(), Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(!button);
    QCOMPARE(host.heard.size(), 1);
}

void CPushButtonTest::programmaticChangesSendNothing()
{
    Listener host;
    CPushButton button(colors(), 1, &host);
    button.setChecked(true);
    button.setText(kText);
    button.setIcon(keys::kExpandImage, IconAlignLeft, 0);
    button.setVisible(false);
    QCoreApplication::processEvents();
    QVERIFY(host.heard.isEmpty());
    QVERIFY(button.isChecked());
}

void CPushButtonTest::groundsFollowTheState()
{
    CPushButton button(colors(), 1, nullptr);
    button.resize(60, 28);
    QCOMPARE(cornerOf(button), resources::color(keys::kWindow));
    button.setChecked(true);
    QCOMPARE(cornerOf(button), resources::color(keys::kRow));
    button.setEnabled(false);
    QCOMPARE(cornerOf(button), resources::color(keys::kInput));
    resources::setTheme(QStringLiteral("light"));
    QCOMPARE(cornerOf(button), resources::color(keys::kInput));
    button.setEnabled(true);
    button.setChecked(false);
    button.setAttribute(Qt::WA_UnderMouse);
    QCOMPARE(cornerOf(button), resources::color(keys::kRowMouse));
}

void CPushButtonTest::anEmptyColourKeyPaintsNoGround()
{
    CPushButton button(CButtonColor(), 1, nullptr);
    button.resize(10, 10);
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::green);
    button.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::green));
}

void CPushButtonTest::textColoursFollowTheState()
{
    CPushButton button(colors(), 1, nullptr);
    // A full block is one solid area in any font.
    button.setText(QStringLiteral("██"));
    button.resize(80, 28);
    button.setTextColorKey("clr_buy", "clr_unit", "clr_sell", "clr_notice");
    QVERIFY(shows(button, keys::kBuy));
    button.setChecked(true);
    QVERIFY(shows(button, keys::kSell));
    QVERIFY(!shows(button, keys::kBuy));
    button.setEnabled(false);
    QVERIFY(shows(button, keys::kNotice));
}

void CPushButtonTest::nullKeepsATextColour()
{
    CPushButton button(colors(), 1, nullptr);
    button.setText(QStringLiteral("██"));
    button.resize(80, 28);
    button.setTextColorKey("clr_buy", nullptr, nullptr, nullptr);
    button.setTextColorKey(nullptr, "clr_unit", nullptr, nullptr);
    QVERIFY(shows(button, keys::kBuy));
}

void CPushButtonTest::theCheckedButtonIsUnderlined()
{
    CPushButton button(colors(), 1, nullptr);
    button.resize(60, 28);
    button.setChecked(true);
    QVERIFY(!shows(button, keys::kAccent));
    button.setButtonDownStyle(DownStyleUnderline);
    const QImage image = button.grab().toImage();
    QCOMPARE(image.pixelColor(30, 27), resources::color(keys::kAccent));
    QCOMPARE(image.pixelColor(30, 26), resources::color(keys::kAccent));
    QCOMPARE(image.pixelColor(30, 25), resources::color(keys::kRow));
    button.setChecked(false);
    QVERIFY(!shows(button, keys::kAccent));
    button.setButtonDownStyle(static_cast<EPushButtonDownStyle>(77));
    button.setChecked(true);
    QVERIFY(!shows(button, keys::kAccent));
}

void CPushButtonTest::withoutTextAndIconItTakesNoRoom()
{
    CPushButton button(colors(), 603, nullptr);
    QCOMPARE(button.sizeHint(), QSize(0, 0));
    QCOMPARE(button.minimumSizeHint(), QSize(0, 0));
    button.setIcon(keys::kExpandImage, IconAlignCenter, 0);
    QVERIFY(button.sizeHint().width() > 0);
    button.setIcon(QString(), IconAlignCenter, 0);
    QCOMPARE(button.sizeHint(), QSize(0, 0));
}

void CPushButtonTest::theLeastWidthHoldsTextAndPadding()
{
    CPushButton button(colors(), 600, nullptr);
    button.setText(kText);
    // Four characters of 12 pixels, and 5 at each side.
    QCOMPARE(button.getMinWidth(), 58);
    button.setIcon(keys::kExpandImage, IconAlignLeft, 0);
    // An icon of 14, and 5 between.
    QCOMPARE(button.getMinWidth(), 77);
}

void CPushButtonTest::itsTextGrowsToEighteenPixels()
{
    CPushButton button(colors(), 600, nullptr);
    button.setText(kText);
    resources::setScale(1.25);
    QCOMPARE(button.getMinWidth(), 4 * 15 + 2 * 6);
    resources::setScale(1.5);
    QCOMPARE(button.getMinWidth(), 4 * 18 + 2 * 8);
    resources::setScale(3.0);
    QCOMPARE(button.getMinWidth(), 4 * 18 + 2 * 8);
}

void CPushButtonTest::inADialogItKeepsItsSize()
{
    CBaseDialog dialog(nullptr);
    CPushButton button(colors(), 600, &dialog);
    button.setText(kText);
    resources::setScale(2.0);
    QCOMPARE(button.getMinWidth(), 58);
}

void CPushButtonTest::theImageComesFromItsKey()
{
    CPushButton button(keys::kShowHideImage, 7, 4, 25, 3, 17, nullptr);
    QCOMPARE(button.id(), 7);
    QCOMPARE(button.iconKey(), QStringLiteral("tc_img_operation_showhide_btn"));
    button.resize(60, 22);
    const QImage before = button.grab().toImage();
    button.setIcon(QStringLiteral("tc_img_operation_expand_btn"), static_cast<EIconAlign>(0), 0);
    QCOMPARE(button.iconKey(), QStringLiteral("tc_img_operation_expand_btn"));
    const QImage expand = button.grab().toImage();
    QVERIFY(before != expand);
    button.setIcon(QStringLiteral("tc_img_operation_contract_btn"), IconAlignCenter, 0);
    QVERIFY(button.grab().toImage() != expand);
}

void CPushButtonTest::aTextThatDoesNotFitIsInTheToolTip()
{
    CPushButton button(colors(), 600, nullptr);
    button.setText(QStringLiteral("普通<b>交易"));
    button.resize(200, 28);
    button.show();
    const auto ask = [&button] {
        QHelpEvent asked(QEvent::ToolTip, QPoint(5, 5), button.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&button, &asked);
        return QToolTip::text();
    };
    QVERIFY(ask().isEmpty());
    button.resize(40, 28);
    QVERIFY2(ask().contains(QStringLiteral("普通&lt;b&gt;交易")), qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

void CPushButtonTest::aMegabyteOfTextIsHarmless()
{
    CPushButton button(colors(), 600, nullptr);
    button.setText(QString(1 << 20, QChar(0x4E00)));
    QVERIFY(button.getMinWidth() < 10000);
    button.resize(100, 28);
    QVERIFY(!button.grab().isNull());
    QCOMPARE(button.text().size(), 1 << 20);
}

void CPushButtonTest::theApplicationsStyleSheetDoesNotShow()
{
    Listener host;
    CPushButton button(colors(), 600, &host);
    button.setText(kText);
    button.resize(80, 28);
    const QImage before = button.grab().toImage();
    const int width = button.getMinWidth();
    qApp->setStyleSheet(QStringLiteral("* { color: red; background: yellow; font-size: 30px; border: 3px solid green;"
                                       " padding: 9px }"));
    QCOMPARE(button.grab().toImage(), before);
    QCOMPARE(button.getMinWidth(), width);
    QCOMPARE(button.sizeHint().width(), width);
}

void CPushButtonTest::itIsAccessible()
{
    CPushButton button(colors(), 600, nullptr);
    button.setText(kText);
    button.setChecked(true);
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(access);
    QCOMPARE(access->text(QAccessible::Name), kText);
    QVERIFY(access->state().checkable);
    QVERIFY(access->state().checked);
}

void CPushButtonTest::theFocusIsVisible()
{
    QWidget window;
    CPushButton button(colors(), 600, &window);
    button.resize(60, 28);
    window.show();
    QVERIFY(!shows(button, keys::kAccent));
    button.setFocus();
    QApplication::setActiveWindow(&window);
    QVERIFY(button.hasFocus());
    QVERIFY(shows(button, keys::kAccent));
}

QTEST_MAIN(CPushButtonTest)
#include "tst_CPushButton.moc"
