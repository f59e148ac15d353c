#pragma once

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/editors/CellEditor.h"
#include "reference/toolkit/editors/CellInteraction.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"
#include "reference/toolkit/editors/Notice.h"

#include <WQ/CEventWidgetT.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

/// The host above a table: writes down every toolkit event as "87 cell=3 b=0 text=500", with "data=..." when there is
/// data.
class EventHost : public WQ::CEventWidgetT<QWidget>
{
public:
    bool handleEvent(int event, int a, int b, QString text, void* payload) override
    {
        QString line = QStringLiteral("%1 cell=%2 b=%3 text=").arg(event).arg(a).arg(b) + text;
        if (payload)
            line += QStringLiteral(" data=") + static_cast<QVariant*>(payload)->toString();
        m_lines << line;
        if (onEvent)
            onEvent(event);
        return false;
    }

    /// What has arrived since the last call.
    QStringList take()
    {
        WQ::deliverPostedPersonEvents();
        return std::exchange(m_lines, {});
    }

    std::function<void(int)> onEvent;

private:
    QStringList m_lines;
};

/// A window with a button, a table that has a cell of every kind, and a button.
class EditorPanel
{
public:
    enum Cell { Combo = 1, Price, Least, Swing, Span, Period, Remark, Code, Text };

    EditorPanel()
        : before(new QPushButton(&host))
        , table(new WQ::CMultiParamsTable(&host, true))
        , after(new QPushButton(&host))
    {
        auto* layout = new QVBoxLayout(&host);
        for (QWidget* widget :
             {static_cast<QWidget*>(before), static_cast<QWidget*>(table), static_cast<QWidget*>(after)})
            layout->addWidget(widget);
        addCells();
        table->setMinimumSize(240, table->realHeight());
        host.resize(260, 400);
    }

    /// Shows the window and gives the focus to its first button.
    bool open()
    {
        host.show();
        before->setFocus();
        return QTest::qWaitForWindowActive(&host);
    }

    WQ::CMultiParamsTablePrivate& inner() const
    {
        return *WQ::CMultiParamsTablePrivate::of(table);
    }

    WQ::CellItem& cell(int id) const
    {
        return *inner().model().cell(id);
    }

    WQ::RowLayout layoutOf(int id) const
    {
        return inner().layoutOf(cell(id));
    }

    void click(const QRect& part) const
    {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, part.center());
    }

    void clickValue(int id) const
    {
        click(layoutOf(id).value);
    }

    /// Moves the focus to a row without opening its editor.
    void focusRow(int id) const
    {
        click(layoutOf(id).label);
        table->setFocus();
    }

    void type(const QString& text) const
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup ? popup : QApplication::focusWidget(), key, modifiers);
    }

    /// The line that has the focus; null outside an editor.
    QLineEdit* line() const
    {
        return qobject_cast<QLineEdit*>(QApplication::focusWidget());
    }

    bool isEditing(int id) const
    {
        return line() && inner().rowState(cell(id)).editing;
    }

    QString wrongText(int id) const
    {
        return inner().interaction().wrongText(cell(id));
    }

    WQ::ChoicePopup* list() const
    {
        return qobject_cast<WQ::ChoicePopup*>(QApplication::activePopupWidget());
    }

    WQ::FilterPopup* filter() const
    {
        return qobject_cast<WQ::FilterPopup*>(QApplication::activePopupWidget());
    }

    EventHost host;
    QPushButton* const before;
    QPointer<WQ::CMultiParamsTable> table;
    QPushButton* const after;

private:
    static WQ::CParamCellUnitInfo unit(const QString& text, int type, double min, double max, double step)
    {
        WQ::CParamCellUnitInfo info;
        info.text = text;
        info.type = type;
        info.min = min;
        info.max = max;
        info.step = step;
        return info;
    }

    void addCells()
    {
        const Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;
        QStringList texts{QStringLiteral("卖①价"), QStringLiteral("最新价"), QStringLiteral("买①价"),
                          QStringLiteral("买②价")};
        QVector<QVariant> values{4, 5, 6, 7};
        table->addComboBox(Combo, QStringLiteral("报价方式"), texts, values, 0, false, right, right);
        const QList<WQ::CParamCellUnitInfo> units{unit(QStringLiteral("%"), 6, 0, 100, 0.01),
                                                  unit(QStringLiteral("元"), 6, 0, 1000, 0.001)};
        table->addParamUnitCell(Price, QStringLiteral("单笔超价"), units, 0.5, -1.0);
        table->addParamCell(Least, QStringLiteral("单笔最小量"), 2, 100, 1000000, 100, QStringLiteral("股"), 10000, 4);
        table->addCheckParamUnitCell(Swing, QStringLiteral("波动区间"), QStringLiteral("单向"), false, units, 3, -1.0);
        table->addRangeCell(Span, QStringLiteral("单笔量区间"), 2, 1, 1000000, 1, 1000000, 1, QStringLiteral("股"), 1,
                            -1, QStringLiteral(" - "), false);
        QTime start(9, 30);
        QTime end(15, 0);
        table->addTimePeriod(Period, QStringLiteral("有效时间"), start, end);
        table->addLineEdit(Remark, QStringLiteral("投资备注"), QString(), false, QStringLiteral("备注"));
        table->addLineEdit(Code, QStringLiteral("指定还券"), QStringLiteral("[0-9]*"), true, QString());
        table->addParamCell(Text, QStringLiteral("合约"), 10, 0, 0, 0, QString(), 0, 4);
    }
};
