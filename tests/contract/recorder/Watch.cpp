#include "contract/recorder/Watch.h"

#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"

#include <QAbstractButton>
#include <QPointer>
#include <QTableView>

#include <algorithm>
#include <array>

namespace recorder {

namespace {

struct Property
{
    const char* setter;
    Kind kind;
    QString (*value)(const QWidget&);
};

QString fixedText(int smallest, int largest)
{
    return smallest == largest ? QString::number(smallest) : QString();
}

QString fixedHeight(const QWidget& widget)
{
    return fixedText(widget.minimumHeight(), widget.maximumHeight());
}

QString fixedWidth(const QWidget& widget)
{
    return fixedText(widget.minimumWidth(), widget.maximumWidth());
}

QString visible(const QWidget& widget)
{
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide) ? written(!widget.isHidden()) : QString();
}

QString enabled(const QWidget& widget)
{
    return written(widget.isEnabled());
}

QString focusPolicy(const QWidget& widget)
{
    return QString::number(widget.focusPolicy());
}

QString columnWidth(const QWidget& widget)
{
    const auto* const view = qobject_cast<const QTableView*>(&widget);
    return view ? QStringLiteral("0, %1").arg(view->columnWidth(0)) : QString();
}

QString isChecked(const QWidget& widget)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    return button ? written(button->isChecked()) : QString();
}

QString buttonText(const QWidget& widget)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    return button ? written(button->text()) : QString();
}

QString geometry(const QWidget& widget)
{
    const QRect at = widget.geometry();
    return QStringLiteral("%1, %2, %3, %4").arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height());
}

// clang-format off
constexpr Property kProperties[] = {
    {".setChecked",     Show,  isChecked},
    {".setText",        Show,  buttonText},
    {".setFixedWidth",  Show,  fixedWidth},
    {".setFixedHeight", Show,  fixedHeight},
    {".setColumnWidth", Show,  columnWidth},
    {".setFocusPolicy", Show,  focusPolicy},
    {".setEnabled",     Show,  enabled},
    {".setVisible",     Show,  visible},
    {".setGeometry",    Place, geometry},
};
// clang-format on

using Values = std::array<QString, std::size(kProperties)>;

Values valuesOf(const QWidget& widget)
{
    Values values;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = kProperties[i].value(widget);
    return values;
}

struct Watched
{
    QPointer<QWidget> widget;
    QString name;
    Values values;
};

QVector<Watched>& watched()
{
    static QVector<Watched> widgets;
    return widgets;
}

/// Each answer of a table's real height is another one, so that a height is known for the answer it was taken from.
QString argument(const QString& value)
{
    return value == QString::number(state().height) ? QStringLiteral("realHeight") : value;
}

void look(Watched& one)
{
    const Values values = valuesOf(*one.widget);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] == one.values[i])
            continue;
        one.values[i] = values[i];
        const QString call = one.name + QLatin1String(kProperties[i].setter);
        recordLine(kProperties[i].kind, call + QLatin1Char('(') + argument(values[i]) + QLatin1Char(')'));
    }
}

} // namespace

void watch(QWidget* widget, const QString& name)
{
    QVector<Watched>& all = watched();
    all.erase(std::remove_if(all.begin(), all.end(), [](const Watched& one) { return one.widget.isNull(); }),
              all.end());
    all.append({widget, name, valuesOf(*widget)});
}

QString watchedName(const QWidget* widget)
{
    for (const Watched& one : qAsConst(watched())) {
        if (one.widget == widget)
            return one.name;
    }
    return {};
}

void lookAtWidgets()
{
    for (Watched& one : watched()) {
        if (one.widget)
            look(one);
    }
}

} // namespace recorder
