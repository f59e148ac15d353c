#include "frame/HandlingDeeds.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellMenu.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QWheelEvent>
#include <QtTest>

namespace {

using Inner = WQ::CMultiParamsTablePrivate;

constexpr int kRemembered = 25;

struct Stroke
{
    Qt::Key key;
    Qt::KeyboardModifiers held;
};

// clang-format off
constexpr Stroke kStrokes[] = {
    {Qt::Key_Tab,       Qt::NoModifier},    {Qt::Key_Backtab,   Qt::ShiftModifier},   {Qt::Key_Return,   Qt::NoModifier},
    {Qt::Key_Return,    Qt::NoModifier},    {Qt::Key_Escape,    Qt::NoModifier},      {Qt::Key_F2,       Qt::NoModifier},
    {Qt::Key_Space,     Qt::NoModifier},    {Qt::Key_Up,        Qt::NoModifier},      {Qt::Key_Down,     Qt::NoModifier},
    {Qt::Key_Up,        Qt::ShiftModifier}, {Qt::Key_Down,      Qt::ShiftModifier},   {Qt::Key_Down,     Qt::AltModifier},
    {Qt::Key_PageUp,    Qt::NoModifier},    {Qt::Key_PageDown,  Qt::NoModifier},      {Qt::Key_Home,     Qt::NoModifier},
    {Qt::Key_End,       Qt::NoModifier},    {Qt::Key_Backspace, Qt::NoModifier},      {Qt::Key_Delete,   Qt::NoModifier},
    {Qt::Key_Menu,      Qt::NoModifier},    {Qt::Key_F10,       Qt::ShiftModifier},   {Qt::Key_Left,     Qt::NoModifier},
    {Qt::Key_Right,     Qt::NoModifier},    {Qt::Key_C,         Qt::ControlModifier}, {Qt::Key_V,        Qt::ControlModifier},
    {Qt::Key_Backspace, Qt::ControlModifier}, {Qt::Key_A,       Qt::ControlModifier}, {Qt::Key_Z,        Qt::ControlModifier},
};

const char* const kPasted[] = {
    "", "0", "7", "10,000", "1,23", "-5", "1250", "0.5", "99999999999", "1e5", "nan", "12.345678901", "１２．５", " 42 \r\n",
    "1 - 20", "20-1", "5~6", "-5--1", "09:30-15:00", "15:00 – 09:30", "01:00:00", "24:00:00", "25:00", "最新价", "对手价",
    "备注\t两列", "两\n行", "季度调仓", "abc", "1\n", "—", "%",
};

constexpr double kNumbers[] = {0, 1, -1, 0.5, 100, 150, 1250, 99999, 1e9, -1e9, 1e300, 0.1234567891};
// clang-format on

constexpr char kTyped[] = {'0', '1', '2', '3', '5', '7', '9', '.', ':', '-', ',', 'a', ' '};
constexpr int kNotches[] = {120, -120, 15, -15, 360};

} // namespace

// clang-format off
const std::vector<HandlingDeeds::Deed>& HandlingDeeds::deeds()
{
    static const std::vector<Deed> rows = {
        {14, "press",          &HandlingDeeds::press},
        { 3, "right press",    &HandlingDeeds::rightPress},
        { 3, "double press",   &HandlingDeeds::doublePress},
        {22, "key",            &HandlingDeeds::key},
        {16, "character",      &HandlingDeeds::character},
        { 6, "wheel",          &HandlingDeeds::wheel},
        {12, "paste",          &HandlingDeeds::paste},
        { 5, "menu entry",     &HandlingDeeds::menuEntry},
        { 5, "unit from menu", &HandlingDeeds::unitFromMenu},
        { 3, "restore",        &HandlingDeeds::restore},
        { 4, "footer",         &HandlingDeeds::footer},
        { 3, "come back",      &HandlingDeeds::comeBack},
        { 4, "hide or show",   &HandlingDeeds::hideOrShow},
        { 2, "lock or free",   &HandlingDeeds::lockOrFree},
        { 4, "set value",      &HandlingDeeds::setValue},
        { 3, "set limits",     &HandlingDeeds::setLimits},
        { 2, "set unit",       &HandlingDeeds::setUnit},
        { 2, "set entries",    &HandlingDeeds::setEntries},
        { 2, "choose rows",    &HandlingDeeds::chooseRows},
        { 1, "enable all",     &HandlingDeeds::enableAll},
    };
    return rows;
}
// clang-format on

HandlingDeeds::HandlingDeeds(WQ::CMultiParamsTable& table, quint64 seed)
    : m_table(table)
    , m_random(seed)
{
    const WQ::CellModel& model = Inner::of(&table)->model();
    for (int i = 0; i < model.cellCount(); ++i)
        m_cells << model.itemAt(i)->cell()->id();
}

void HandlingDeeds::act()
{
    const Deed& deed = m_random.weighted(deeds());
    say(QLatin1String(deed.name));
    (this->*deed.act)();
}

void HandlingDeeds::say(const QString& what)
{
    m_said << what;
    if (m_said.size() > kRemembered)
        m_said.removeFirst();
}

int HandlingDeeds::anyCell()
{
    const int cell = m_random.pick(m_cells);
    m_said.last() += QStringLiteral(" %1").arg(cell);
    return cell;
}

// Half of the presses go to the right end of a row, where units, chevrons and fields are.
QPoint HandlingDeeds::anyPlace()
{
    const QRect room = m_table.viewport()->rect();
    const int left = m_random.oneIn(2) ? room.width() / 2 : 0;
    const QPoint at(left + m_random.below(std::max(1, room.width() - left)),
                    m_random.below(std::max(1, room.height())));
    m_said.last() += QStringLiteral(" at %1,%2").arg(at.x()).arg(at.y());
    return at;
}

/// What a key reaches.
QWidget* HandlingDeeds::target() const
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    QWidget* focus = QApplication::focusWidget();
    return focus ? focus : &m_table;
}

void HandlingDeeds::press()
{
    const QPoint at = anyPlace();
    QWidget* popup = QApplication::activePopupWidget();
    QTest::mouseClick(popup ? popup : m_table.viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

void HandlingDeeds::rightPress()
{
    const QPoint at = anyPlace();
    if (QApplication::activePopupWidget())
        return;
    QContextMenuEvent asked(QContextMenuEvent::Mouse, at, m_table.viewport()->mapToGlobal(at));
    QTest::mouseClick(m_table.viewport(), Qt::RightButton, Qt::NoModifier, at);
    QCoreApplication::sendEvent(m_table.viewport(), &asked);
}

void HandlingDeeds::doublePress()
{
    const QPoint at = anyPlace();
    if (!QApplication::activePopupWidget())
        QTest::mouseDClick(m_table.viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

void HandlingDeeds::key()
{
    const Stroke& stroke = m_random.pick(kStrokes);
    m_said.last() += QStringLiteral(" %1+%2").arg(stroke.held).arg(stroke.key, 0, 16);
    QTest::keyClick(target(), stroke.key, stroke.held);
}

void HandlingDeeds::character()
{
    const char typed = m_random.pick(kTyped);
    m_said.last() += QStringLiteral(" %1").arg(QLatin1Char(typed));
    QTest::keyClick(target(), typed);
}

void HandlingDeeds::wheel()
{
    QWidget* widget = m_random.oneIn(2) ? target() : m_table.viewport();
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, m_random.pick(kNotches)), Qt::NoButton,
                      m_random.oneIn(4) ? Qt::ShiftModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void HandlingDeeds::paste()
{
    const QString text = QString::fromUtf8(m_random.pick(kPasted));
    m_said.last() += QLatin1Char(' ') + text;
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(target(), Qt::Key_V, Qt::ControlModifier);
}

void HandlingDeeds::openMenu()
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    const QModelIndex row = m_table.model()->index(m_random.below(std::max(1, m_table.model()->rowCount())), 1);
    m_table.setFocus();
    m_table.setCurrentIndex(row);
    QTest::keyClick(target(), Qt::Key_Menu);
}

void HandlingDeeds::menuEntry()
{
    openMenu();
    for (int down = m_random.below(6); down >= 0; --down)
        QTest::keyClick(target(), Qt::Key_Down);
    QTest::keyClick(target(), Qt::Key_Return);
}

void HandlingDeeds::unitFromMenu()
{
    openMenu();
    const auto* menu = qobject_cast<WQ::CellMenu*>(QApplication::activePopupWidget());
    const auto* units = menu ? menu->findChild<WQ::MarkedMenu*>() : nullptr;
    if (units && !units->actions().isEmpty())
        m_random.pick(units->actions())->trigger();
}

void HandlingDeeds::restore()
{
    if (QApplication::activePopupWidget())
        return;
    QTest::keyClick(target(), Qt::Key_Escape);
    QTest::keyClick(target(), Qt::Key_Backspace, Qt::ControlModifier);
}

void HandlingDeeds::footer()
{
    const QRect footer = Inner::of(&m_table)->footerRect();
    if (!QApplication::activePopupWidget())
        QTest::mouseClick(m_table.viewport(), Qt::LeftButton, Qt::NoModifier, footer.center());
    for (int i = m_random.below(4); i > 0 && QApplication::activePopupWidget(); --i)
        QTest::keyClick(target(), m_random.oneIn(2) ? Qt::Key_Down : Qt::Key_Tab);
    if (QApplication::activePopupWidget())
        QTest::keyClick(target(), m_random.oneIn(2) ? Qt::Key_Return : Qt::Key_Space);
}

// The window system gives the focus back when lists have closed; offscreen nobody does.
void HandlingDeeds::comeBack()
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    QApplication::setActiveWindow(m_table.window());
    m_table.setFocus(m_random.oneIn(2) ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

void HandlingDeeds::hideOrShow()
{
    m_table.setItemHidden(anyCell(), m_random.oneIn(3));
}

void HandlingDeeds::lockOrFree()
{
    m_table.setItemEditable(anyCell(), !m_random.oneIn(4));
}

void HandlingDeeds::setValue()
{
    m_table.setItemDouble(anyCell(), m_random.pick(kNumbers));
}

void HandlingDeeds::setLimits()
{
    const double min = m_random.pick(kNumbers);
    m_table.resetCellRange(anyCell(), min, m_random.oneIn(3) ? m_random.pick(kNumbers) : std::abs(min) + 1000);
}

void HandlingDeeds::setUnit()
{
    const QString units[] = {QStringLiteral("%"), QStringLiteral("元"), QStringLiteral("股")};
    m_table.setItemUnit(anyCell(), m_random.pick(units));
}

void HandlingDeeds::setEntries()
{
    QStringList texts;
    QVector<QVariant> values;
    for (int i = m_random.below(4); i > 0; --i) {
        texts << QStringLiteral("入口%1").arg(i);
        values << i;
    }
    m_table.resetComboData(anyCell(), texts, values, m_random.between(-1, 3));
}

void HandlingDeeds::chooseRows()
{
    QSet<int> rows;
    for (int i = m_random.below(5); i > 0; --i)
        rows << m_random.pick(m_cells);
    m_table.setVisibleItemSet(rows);
    m_table.setExpand(m_random.oneIn(2));
}

void HandlingDeeds::enableAll()
{
    m_table.setAllItemEnable(!m_random.oneIn(3));
    m_table.setEnabled(!m_random.oneIn(6));
}
