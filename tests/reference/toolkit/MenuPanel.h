#pragma once

#include "EditorPanel.h"
#include "reference/toolkit/editors/CellMenu.h"

#include <QClipboard>
#include <QGuiApplication>

/// An editor panel whose cells are asked for their menus.
class MenuPanel : public EditorPanel
{
public:
    static QString clipboard()
    {
        return QGuiApplication::clipboard()->text();
    }

    static void setClipboard(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
    }

    /// As the window system tells it, so that Qt asks for the menu itself.
    void rightClick(const QRect& part) const
    {
        QTest::mouseClick(host.windowHandle(), Qt::RightButton, Qt::NoModifier,
                          table->viewport()->mapTo(&host, part.center()));
    }

    WQ::CellMenu* menu() const
    {
        return qobject_cast<WQ::CellMenu*>(QApplication::activePopupWidget());
    }

    /// Asks for the menu of a cell by mouse.
    WQ::CellMenu* menuOf(int id) const
    {
        rightClick(layoutOf(id).label);
        return menu();
    }

    static QAction* entry(const QMenu* menu, const QString& text)
    {
        for (QAction* action : menu->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }

    /// Clicks an entry of the menu that is open, and lets it act.
    void choose(const QString& text)
    {
        WQ::CellMenu* open = menu();
        QVERIFY(open);
        QAction* action = entry(open, text);
        QVERIFY(action);
        QTest::mouseClick(open, Qt::LeftButton, Qt::NoModifier, open->actionGeometry(action).center());
        comeBack();
    }

    /// A desktop gives the focus back to the window when its menu is gone; here nobody else does.
    void comeBack()
    {
        QVERIFY(!QApplication::activePopupWidget());
        QCoreApplication::processEvents();
        host.activateWindow();
        QTRY_COMPARE(QGuiApplication::focusWindow(), host.windowHandle());
        QApplication::setActiveWindow(&host);
    }

    void copyWithKeys(int id) const
    {
        focusRow(id);
        press(Qt::Key_C, Qt::ControlModifier);
    }

    /// Pastes into a cell by the keyboard.
    void paste(int id, const QString& text) const
    {
        setClipboard(text);
        focusRow(id);
        press(Qt::Key_V, Qt::ControlModifier);
    }

    void restore(int id) const
    {
        focusRow(id);
        press(Qt::Key_Backspace, Qt::ControlModifier);
    }

    /// What the notice says; empty while none is seen.
    QString notice() const
    {
        for (const auto* notice : table->findChildren<WQ::Notice*>()) {
            if (notice->isVisible())
                return notice->text();
        }
        return QString();
    }
};
