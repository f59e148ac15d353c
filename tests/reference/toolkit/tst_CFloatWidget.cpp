#include "Listener.h"

#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CFloatWidget.h>
#include <WQ/CParameterCell.h>
#include <WQ/CWidgetList.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFrame>
#include <QPointer>
#include <QtTest>

using namespace WQ;

namespace {

struct Dialog : CFloatWidget
{
    using CFloatWidget::CFloatWidget;
    using CFloatWidget::onOK;

    bool handleEvent(int event, int a, int b, QString text, void* payload) override
    {
        ++events;
        return CFloatWidget::handleEvent(event, a, b, text, payload);
    }

    bool checkOK() override
    {
        const bool answer = allowed;
        if (deleteInCheck)
            delete this;
        return answer;
    }

    void closeEvent(QCloseEvent* event) override
    {
        if (deleteInClose) {
            delete this;
            return;
        }
        CFloatWidget::closeEvent(event);
    }

    int events = 0;
    bool allowed = true;
    bool deleteInCheck = false;
    bool deleteInClose = false;
};

IconButton* closeButton(const QWidget& dialog)
{
    return dialog.findChild<IconButton*>();
}

QString chosen(Dialog& dialog, QPoint position, int entry)
{
    QWidget* const under = dialog.childAt(position) ? dialog.childAt(position) : &dialog;
    QContextMenuEvent asked(QContextMenuEvent::Mouse, under->mapFrom(&dialog, position), dialog.mapToGlobal(position));
    QCoreApplication::sendEvent(under, &asked);
    auto* list = qobject_cast<PopupList*>(QApplication::activePopupWidget());
    if (!list)
        return QString();
    const QString text = list->model()->index(entry, 0).data().toString();
    list->setCurrentIndex(list->model()->index(entry, 0));
    QTest::keyClick(list, Qt::Key_Return);
    return text;
}

} // namespace

class CFloatWidgetTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void itHasNoFrameAndNoLayoutOfItsOwn();
    void theTitleIsPaintedOverTheTop();
    void aLongTitleIsElided();
    void theGroundIsWholeAroundOpaqueChildren_data();
    void theGroundIsWholeAroundOpaqueChildren();
    void escapeCloses();
    void theTitleBarsButtonCloses();
    void theWindowManagerCloses();
    void withoutAButtonItCanStillBeClosed();
    void enterClosesNothing();
    void theOwnButtonSendsNoEvent();
    void itIsMovedByItsTitleBar();
    void belowTheTitleBarItIsNotMoved();
    void itMayGoWhileItCloses();
    void okAsksFirst();
    void itMayGoWhenItIsAsked();
    void itKeepsItsSizeAtEveryScale();
    void theThemeReachesPlainWidgets();
    void theCellUnderTheMouseIsCopied();
    void allCellsAreCopied();
    void withoutCellsThereIsNothingToCopy();
    void theListClosesWhenTheDialogIsHidden();
    void noListOpensOverAHiddenDialog();
    void itHandlesNoEvent();
    void theApplicationsStyleSheetDoesNotShow();
};

void CFloatWidgetTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void CFloatWidgetTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void CFloatWidgetTest::itHasNoFrameAndNoLayoutOfItsOwn()
{
    Dialog dialog(true, nullptr);
    QVERIFY(!dialog.layout());
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(dialog.isWindow());
    dialog.resize(100, 100);
    const QImage image = dialog.grab().toImage();
    QCOMPARE(image.pixelColor(0, 50), resources::color(keys::kSeparator));
    QCOMPARE(image.pixelColor(50, 99), resources::color(keys::kSeparator));
    QCOMPARE(image.pixelColor(50, 60), resources::color(keys::kWindow));
}

void CFloatWidgetTest::theTitleIsPaintedOverTheTop()
{
    Dialog dialog(false, nullptr);
    dialog.resize(200, 100);
    const QImage before = dialog.grab().toImage();
    dialog.setTitle(QStringLiteral("██"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("██"));
    const QImage after = dialog.grab().toImage();
    QCOMPARE(after.pixelColor(20, 18), resources::color(keys::kValue));
    // Below the title bar nothing has changed.
    const QRect below(0, 36, 200, 64);
    QCOMPARE(after.copy(below), before.copy(below));
    QVERIFY(after != before);
}

void CFloatWidgetTest::theGroundIsWholeAroundOpaqueChildren_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void CFloatWidgetTest::theGroundIsWholeAroundOpaqueChildren()
{
    QFETCH(double, ratio);
    constexpr int kWidth = 300;
    constexpr int kHeight = 200;
    Dialog dialog(false, nullptr);
    dialog.resize(kWidth, kHeight);
    auto* list = new CWidgetList(Qt::Vertical, &dialog);
    list->setGeometry(100, 40, 180, 120);
    for (int i = 0; i < 4; ++i) {
        auto* cell = new CParameterCell(0, QString(), QString(), i % 2 == 0 ? static_cast<QWidget*>(list) : &dialog);
        cell->setGeometry(7, 9 + 23 * i, 150, 22);
        cell->setEnabled(false);
    }
    QImage image(QSize(kWidth, kHeight) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    dialog.render(&image);
    const QRect inner = image.rect().adjusted(1, 1, -1, -1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (!inner.contains(x, y))
                QCOMPARE(color, resources::color(keys::kSeparator));
            else
                QVERIFY(color == resources::color(keys::kWindow) || color == resources::color(keys::kInput));
        }
    }
}

void CFloatWidgetTest::aLongTitleIsElided()
{
    Dialog dialog(true, nullptr);
    dialog.resize(200, 100);
    dialog.setTitle(QString(1 << 20, QChar(0x2588)));
    const QImage image = dialog.grab().toImage();
    QCOMPARE(image.pixelColor(20, 18), resources::color(keys::kValue));
    // The square of the close button stays free.
    for (int x = 165; x < 199; ++x)
        QVERIFY(image.pixelColor(x, 18) != resources::color(keys::kValue));
}

void CFloatWidgetTest::escapeCloses()
{
    QPointer<Dialog> dialog = new Dialog(true, nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog || !dialog->isVisible());
    QTRY_VERIFY(!dialog);
}

void CFloatWidgetTest::theTitleBarsButtonCloses()
{
    QPointer<Dialog> dialog = new Dialog(true, nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->resize(200, 100);
    dialog->show();
    QCOMPARE(closeButton(*dialog)->geometry(), QRect(170, 6, 24, 24));
    QCOMPARE(closeButton(*dialog)->accessibleName(), QStringLiteral("关闭"));
    QTest::mouseClick(closeButton(*dialog), Qt::LeftButton);
    QTRY_VERIFY(!dialog);
}

void CFloatWidgetTest::theWindowManagerCloses()
{
    QPointer<Dialog> dialog = new Dialog(true, nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    QVERIFY(dialog->close());
    QTRY_VERIFY(!dialog);
}

void CFloatWidgetTest::withoutAButtonItCanStillBeClosed()
{
    Dialog dialog(false, nullptr);
    QVERIFY(!closeButton(dialog));
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void CFloatWidgetTest::enterClosesNothing()
{
    Dialog dialog(true, nullptr);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QTest::keyClick(&dialog, Qt::Key_Enter);
    QVERIFY(dialog.isVisible());
}

void CFloatWidgetTest::theOwnButtonSendsNoEvent()
{
    Listener host;
    Dialog dialog(true, &host);
    dialog.show();
    QTest::mouseClick(closeButton(dialog), Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.events, 0);
    QVERIFY(host.heard.isEmpty());
}

void CFloatWidgetTest::itIsMovedByItsTitleBar()
{
    Dialog dialog(true, nullptr);
    dialog.setGeometry(100, 100, 200, 100);
    dialog.show();
    QTest::mousePress(&dialog, Qt::LeftButton, {}, QPoint(50, 10));
    QMouseEvent move(QEvent::MouseMove, QPointF(80, 30), QPointF(80, 30), QPointF(180, 130), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &move);
    QCOMPARE(dialog.pos(), QPoint(130, 120));
    QTest::mouseRelease(&dialog, Qt::LeftButton, {}, QPoint(50, 10));
    QCoreApplication::sendEvent(&dialog, &move);
    QCOMPARE(dialog.pos(), QPoint(130, 120));
}

void CFloatWidgetTest::belowTheTitleBarItIsNotMoved()
{
    Dialog dialog(true, nullptr);
    dialog.setGeometry(100, 100, 200, 100);
    dialog.show();
    QTest::mousePress(&dialog, Qt::LeftButton, {}, QPoint(50, 36));
    QMouseEvent move(QEvent::MouseMove, QPointF(80, 30), QPointF(80, 30), QPointF(180, 130), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &move);
    QCOMPARE(dialog.pos(), QPoint(100, 100));
}

void CFloatWidgetTest::itMayGoWhileItCloses()
{
    QPointer<Dialog> dialog = new Dialog(true, nullptr);
    dialog->deleteInClose = true;
    dialog->show();
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog);
    dialog = new Dialog(true, nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    connect(dialog, &QDialog::finished, dialog, [dialog] { delete dialog.data(); });
    QTest::mouseClick(closeButton(*dialog), Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(!dialog);
}

void CFloatWidgetTest::okAsksFirst()
{
    Dialog dialog(true, nullptr);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.show();
    dialog.allowed = false;
    dialog.onOK();
    QCOMPARE(accepted.count(), 0);
    QVERIFY(dialog.isVisible());
    dialog.allowed = true;
    dialog.onOK();
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!dialog.isVisible());
}

void CFloatWidgetTest::itMayGoWhenItIsAsked()
{
    const QPointer<Dialog> dialog = new Dialog(true, nullptr);
    dialog->deleteInCheck = true;
    dialog->onOK();
    QVERIFY(!dialog);
}

void CFloatWidgetTest::itKeepsItsSizeAtEveryScale()
{
    Dialog dialog(true, nullptr);
    dialog.resize(200, 100);
    dialog.setTitle(QStringLiteral("任务"));
    const QImage before = dialog.grab().toImage();
    resources::setScale(2.0);
    QCOMPARE(dialog.size(), QSize(200, 100));
    QCOMPARE(dialog.grab().toImage(), before);
}

void CFloatWidgetTest::theThemeReachesPlainWidgets()
{
    Dialog dialog(true, nullptr);
    dialog.resize(100, 100);
    const QFrame line(&dialog);
    QCOMPARE(line.palette().color(QPalette::Light), resources::color(keys::kSeparator));
    QCOMPARE(line.palette().color(QPalette::WindowText), resources::color(keys::kValue));
    resources::setTheme(QStringLiteral("light"));
    QCOMPARE(line.palette().color(QPalette::Light), resources::color(keys::kSeparator));
    QCOMPARE(dialog.grab().toImage().pixelColor(50, 60), resources::color(keys::kWindow));
}

void CFloatWidgetTest::theCellUnderTheMouseIsCopied()
{
    Dialog dialog(true, nullptr);
    dialog.resize(300, 200);
    auto* cell = new CParameterCell(0, QStringLiteral("    数量"), QString(), &dialog);
    cell->setGeometry(20, 50, 200, 22);
    cell->setInt(12000);
    cell->setEnabled(false);
    dialog.show();
    QCOMPARE(chosen(dialog, QPoint(150, 60), 0), QStringLiteral("复制"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12000"));
}

void CFloatWidgetTest::allCellsAreCopied()
{
    Dialog dialog(true, nullptr);
    dialog.resize(300, 200);
    auto* code = new CParameterCell(0, QStringLiteral("    代码"), QString(), &dialog);
    auto* volume = new CParameterCell(0, QStringLiteral("    数量"), QString(), &dialog);
    code->setGeometry(20, 50, 200, 22);
    volume->setGeometry(20, 80, 200, 22);
    code->setString(QStringLiteral("600000"));
    volume->setInt(12000);
    dialog.show();
    QCOMPARE(chosen(dialog, QPoint(150, 150), 0), QStringLiteral("全部复制"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("代码\t600000\n数量\t12000"));
    QGuiApplication::clipboard()->clear();
    QCOMPARE(chosen(dialog, QPoint(150, 60), 1), QStringLiteral("全部复制"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("代码\t600000\n数量\t12000"));
}

void CFloatWidgetTest::withoutCellsThereIsNothingToCopy()
{
    Dialog dialog(true, nullptr);
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(chosen(dialog, QPoint(150, 60), 0), QString());
}

void CFloatWidgetTest::theListClosesWhenTheDialogIsHidden()
{
    Dialog dialog(true, nullptr);
    dialog.resize(300, 200);
    auto* cell = new CParameterCell(0, QStringLiteral("    代码"), QString(), &dialog);
    cell->setGeometry(20, 50, 200, 22);
    dialog.show();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(150, 150), dialog.mapToGlobal(QPoint(150, 150)));
    QCoreApplication::sendEvent(&dialog, &asked);
    const QPointer<QWidget> list = QApplication::activePopupWidget();
    QVERIFY(list);
    dialog.hide();
    QVERIFY(!QApplication::activePopupWidget());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!list);
}

void CFloatWidgetTest::noListOpensOverAHiddenDialog()
{
    Dialog dialog(true, nullptr);
    auto* list = new PopupList(&dialog, {QStringLiteral("全部复制")}, -1, [](int) {});
    list->open(QRect());
    QVERIFY(!QApplication::activePopupWidget());
    const QPointer<PopupList> gone(list);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!gone);
}

void CFloatWidgetTest::itHandlesNoEvent()
{
    Dialog dialog(true, nullptr);
    QVERIFY(!dialog.handleEvent(5, 0, 0, QString(), nullptr));
}

void CFloatWidgetTest::theApplicationsStyleSheetDoesNotShow()
{
    Dialog dialog(true, nullptr);
    dialog.resize(200, 100);
    dialog.setTitle(QStringLiteral("任务"));
    const auto picture = [&dialog] { return dialog.grab().toImage().convertToFormat(QImage::Format_RGB32); };
    const QImage before = picture();
    qApp->setStyleSheet(
        QStringLiteral("* { color: red; background: yellow; font-size: 30px; border: 3px solid green }"));
    QCOMPARE(picture(), before);
}

QTEST_MAIN(CFloatWidgetTest)
#include "tst_CFloatWidget.moc"
