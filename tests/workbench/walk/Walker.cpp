#include "Walker.h"

#include "workbench/CreditPanel.h"
#include "workbench/HostTable.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CMultiParamsTable.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QHash>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTimer>
#include <QtTest>

#include <stdexcept>

namespace walk {

namespace {

/// Longer than this nothing is held in ordinary use.
constexpr int kHoldLimit = 50;

[[noreturn]] void miss(const QString& what)
{
    throw std::runtime_error("not to be seen: " + what.toStdString());
}

} // namespace

QString readText(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("\\s*\\(&\\w\\)")));
    return text.remove(QLatin1Char('&'));
}

bool isBlank(const QImage& picture)
{
    constexpr int kStep = 2;
    constexpr int kFewColours = 16;
    QHash<QRgb, int> colours;
    int all = 0;
    for (int y = 0; y < picture.height(); y += kStep)
        for (int x = 0; x < picture.width(); x += kStep, ++all)
            ++colours[picture.pixel(x, y)];
    int most = 0;
    for (const int count : qAsConst(colours))
        most = qMax(most, count);
    return all == 0 || colours.size() < kFewColours || most > all - all / 20;
}

Walker::Walker(const QString& language, QString folder)
    : m_language(language)
    , m_folder(std::move(folder))
{
    QDir(m_folder).removeRecursively();
    if (!QDir().mkpath(m_folder))
        throw std::runtime_error("no folder for the pictures: " + m_folder.toStdString());
    m_window = std::make_unique<workbench::MainWindow>(workbench::loadHostData(QString()));
    m_window->loadState();
    m_window->show();
    workbench::settle();
    m_hands.emplace(*m_window);
    watch();
}

workbench::MainWindow& Walker::window() const
{
    return *m_window;
}

person::CountingHands& Walker::hands()
{
    return *m_hands;
}

QString Walker::say(const char* english, const char* chinese) const
{
    return QString::fromUtf8(m_language == QLatin1String("en") ? english : chinese);
}

PanelSight Walker::panel() const
{
    return PanelSight(*m_window->bench()->table()->getMultiParamsTable());
}

PanelSight Walker::credit() const
{
    return PanelSight(*m_window->credit()->table()->findChild<WQ::CMultiParamsTable*>());
}

/// The dialog has an event loop of its own, in which a timer finds it.
void Walker::answer(const std::function<void()>& open, const std::function<void(QDialog&)>& answer)
{
    bool isAnswered = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        look.stop();
        answer(*dialog);
        isAnswered = true;
        dialog->close();
    });
    look.start(0);
    open();
    QVERIFY(isAnswered);
}

void Walker::giveFile(const std::function<void()>& open, const QString& path)
{
    answer(open, [&](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(name);
        name->setText(path);
        m_hands->press(Qt::Key_Return);
    });
}

void Walker::compose(const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QVERIFY(QApplication::focusObject());
    QApplication::sendEvent(QApplication::focusObject(), &event);
    workbench::settle();
}

QString Walker::scratchFile(const QString& name) const
{
    return m_scratch.filePath(name);
}

void Walker::clickDropDown()
{
    const auto buttons = m_window->bench()->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        if (button->accessibleName() == say("More", "更多"))
            return m_hands->click(*button);
    miss(say("More", "更多"));
}

void Walker::choose(QWidget& combo, const QString& start)
{
    m_hands->clickArrow(dynamic_cast<QComboBox&>(combo));
    m_hands->clickEntry(start);
}

QDockWidget& Walker::part(const QString& title) const
{
    const auto docks = m_window->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget* dock : docks)
        if (dock->windowTitle() == title)
            return *dock;
    miss(title);
}

QDockWidget& Walker::goTo(const char* english, const char* chinese)
{
    const QString title = say(english, chinese);
    const int keys = entry(menu(say("View", "视图")), title).shortcut()[0];
    m_hands->press(keys & ~int(Qt::KeyboardModifierMask), Qt::KeyboardModifiers(keys & int(Qt::KeyboardModifierMask)));
    return part(title);
}

QWidget& Walker::field(const QWidget& part, const QString& label) const
{
    for (const auto* title : part.findChildren<QLabel*>())
        if (readText(title->text()) == label && title->buddy())
            return *title->buddy();
    miss(label);
}

int Walker::panelWidth() const
{
    return m_window->bench()->table()->width();
}

QMenu& Walker::menu(const QString& title) const
{
    for (const QAction* action : m_window->menuBar()->actions())
        if (readText(action->text()) == title)
            return *action->menu();
    miss(title);
}

QAction& Walker::entry(const QMenu& menu, const QString& text) const
{
    for (QAction* action : menu.actions())
        if (readText(action->text()) == text)
            return *action;
    miss(text);
}

QStringList Walker::labels(const QWidget& part) const
{
    QStringList texts;
    for (const auto* label : part.findChildren<QLabel*>())
        if (label->isVisible() && !label->text().isEmpty())
            texts << readText(label->text());
    return texts;
}

QStringList Walker::rows(const QWidget& part)
{
    const auto* view = part.findChild<workbench::HostTable*>();
    QStringList rows;
    for (int row = 0; view && row < view->model()->rowCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            fields << view->model()->index(row, column).data().toString();
        rows << fields.join(QStringLiteral(" | "));
    }
    return rows;
}

void Walker::picture(const char* name)
{
    const QImage picture = workbench::snapshot(*m_window, 1.0);
    const QString file =
        QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(QLatin1String(name));
    QVERIFY2(!isBlank(picture), name);
    QVERIFY2(picture.save(QDir(m_folder).filePath(file)), qPrintable(m_folder));
    // What is looked at holds nobody up.
    m_watch->start();
}

void Walker::watch()
{
    m_watch.emplace(kHoldLimit);
    m_watch->start();
}

workbench::LoopHold Walker::longestHold() const
{
    return m_watch->longest();
}

} // namespace walk
