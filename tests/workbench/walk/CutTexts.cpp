#include "CutTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableView>
#include <QWidget>

namespace walk {

namespace {

int widthOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic | Qt::TextSingleLine, text).width();
}

bool isScrolled(const QWidget& widget)
{
    for (const QWidget* at = widget.parentWidget(); at && !at->isWindow(); at = at->parentWidget())
        if (qobject_cast<const QAbstractScrollArea*>(at))
            return true;
    return false;
}

QString cutLabel(const QLabel& label)
{
    if (label.text().isEmpty() || label.pixmap(Qt::ReturnByValue).isNull() == false)
        return {};
    const int needed = label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().width();
    const int room = label.wordWrap() ? label.height() : label.width();
    return needed > room ? label.text() : QString();
}

QString cutButton(const QAbstractButton& button)
{
    constexpr int kAir = 2;
    const bool hasRoom =
        widthOf(button, button.text()) + kAir <= button.width() && button.fontMetrics().height() <= button.height();
    const bool isBox = button.isCheckable() && button.sizeHint().width() > button.width();
    return button.text().isEmpty() || (hasRoom && !isBox) ? QString() : button.text();
}

QString cutChoice(const QComboBox& choice)
{
    QStyleOptionComboBox option;
    option.initFrom(&choice);
    option.editable = choice.isEditable();
    const QRect room =
        choice.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &choice);
    return widthOf(choice, choice.currentText()) > room.width() ? choice.currentText() : QString();
}

QString cutPlaceholder(const QLineEdit& line)
{
    return line.text().isEmpty() && widthOf(line, line.placeholderText()) > line.width() ? line.placeholderText()
                                                                                         : QString();
}

QString cutTab(const QTabBar& bar)
{
    for (int tab = 0; tab < bar.count(); ++tab)
        if (bar.tabToolTip(tab) != bar.tabText(tab) && widthOf(bar, bar.tabText(tab)) > bar.tabRect(tab).width())
            return bar.tabText(tab);
    return {};
}

QString cutCell(const QTableView& view)
{
    const QAbstractItemModel& model = *view.model();
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString title = model.headerData(column, Qt::Horizontal).toString();
        if (widthOf(*view.horizontalHeader(), title) > view.columnWidth(column))
            return title;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, column);
            const QString text = index.data().toString();
            if (widthOf(view, text) > view.columnWidth(column) && index.data(Qt::ToolTipRole).toString().isEmpty())
                return text;
        }
    }
    return {};
}

QString cutText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return cutLabel(*label);
    // The panel's own buttons shrink their text, and elide it under a tooltip, in a font that is not the widget's.
    if (widget.inherits("WQ::CPushButton"))
        return {};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return cutButton(*button);
    if (const auto* choice = qobject_cast<const QComboBox*>(&widget))
        return cutChoice(*choice);
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return cutPlaceholder(*line);
    if (const auto* bar = qobject_cast<const QTabBar*>(&widget))
        return cutTab(*bar);
    if (const auto* view = qobject_cast<const QTableView*>(&widget); view && !view->horizontalHeader()->isHidden())
        return cutCell(*view);
    return {};
}

bool isOutside(const QWidget& widget)
{
    const QWidget& window = *widget.window();
    return !isScrolled(widget) && !window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size()));
}

} // namespace

QStringList cutTexts(const QWidget& window)
{
    QStringList found;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window || widget->visibleRegion().isEmpty())
            continue;
        const QString name = QString::fromLatin1(widget->metaObject()->className());
        const QString text = cutText(*widget);
        if (!text.isEmpty() && widget->toolTip().isEmpty())
            found << name + QStringLiteral(" reads not all of: ") + text;
        if (isOutside(*widget))
            found << name + QStringLiteral(" lies outside: ") + widget->accessibleName();
    }
    return found;
}

} // namespace walk
