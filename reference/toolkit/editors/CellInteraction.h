#pragma once

#include "reference/toolkit/cells/CellPainter.h"
#include "reference/toolkit/editors/CellEditor.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QPointer>

#include <memory>

class QContextMenuEvent;
class QFocusEvent;
class QMouseEvent;

namespace WQ {

class CMultiParamsTable;
class CMultiParamsTablePrivate;
class CellFlash;
class CellMenu;
class ChoicePopup;
class FilterPopup;
class Notice;
enum class CellCommand;

/// What a person does with a cell table: moving, editing, choosing, filtering. Editor and popups are made when first
/// needed and used again, the editor by all tables. The table forwards its events here; a function that answers true
/// has taken the event.
///
/// A right text is committed on Enter, Tab, and whenever the edit ends otherwise than by Esc; a wrong one keeps the
/// editor open on Enter and Tab, and is dropped when the edit ends.
class WQ_EXPORT CellInteraction : private CellEditorClient
{
public:
    explicit CellInteraction(CMultiParamsTablePrivate& table);
    ~CellInteraction() override;

    bool keyPress(QKeyEvent* event);
    bool mousePress(QMouseEvent* event);
    bool mouseRelease(QMouseEvent* event);
    bool mouseDoubleClick(QMouseEvent* event);
    bool mouseMove(QMouseEvent* event);
    bool wheel(QWheelEvent* event);
    bool contextMenu(QContextMenuEvent* event);
    bool focusNextPrevious(bool next);

    /// Whether the rows use this key, so that it is no shortcut of the host's.
    bool usesShortcut(const QKeyEvent& event) const;

    void leave();
    void focusIn(QFocusEvent* event);
    void focusOut(QFocusEvent* event);
    void hidden();
    void currentChanged(const QModelIndex& current, const QModelIndex& previous);
    bool edit(const QModelIndex& index, QAbstractItemView::EditTrigger trigger, QEvent* event);
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint);

    /// Rows, widths, scale or scroll position have changed.
    void relayout();
    void cellChanged(const CellItem& cell);
    void enabledChanged();
    void filterChanged();
    void themeChanged();
    void languageChanged();

    void addRowState(const CellItem& cell, RowState& state) const;
    FooterState footerState() const;

    /// Why what stands in the editor of @p cell is wrong; empty when it is not.
    QString wrongText(const CellItem& cell) const;

    /// Highlights @p cell for a moment and says @p text beside it.
    void flash(const CellItem& cell, const QString& text);

    /// Ends an edit: a right text is committed, a wrong one dropped.
    void commitEditor();

private:
    enum class Ending { Commit, Drop };
    enum class Area { Label, Check, Value, Unit };

    // CellEditorClient
    void draftChanged() override;
    void submitted() override;
    void reverted() override;
    void alternativesAsked() override;
    bool checkToggled() override;
    void focusGone(Qt::FocusReason reason) override;
    void editorDoubleClicked() override;

    CMultiParamsTable& widget() const;
    bool canEdit(const CellItem& cell) const;
    bool beginEdit(CellItem& cell);
    bool gainEditor();
    void bequeathEditor();
    void storeDraft();
    void finish(Ending ending);
    void showJudgement(const Judgement& judgement);
    void hideWrong();
    void makeVisible(const CellItem& cell) const;

    bool activate(CellItem& cell);
    bool openAlternatives(CellItem& cell);
    bool toggleCheck(CellItem& cell);
    bool enter(CellItem& cell);
    CellItem* nextEditable(int row, bool next) const;

    void openChoices(CellItem& cell);
    void fillChoices(const CellItem& cell);
    void picked(CellItem& cell, int row);
    QRect choicesAnchor(const CellItem& cell) const;
    QRect toGlobal(const QRect& rect) const;
    void openFilter();
    void closePopups();

    void openMenu(CellItem& cell, const QPoint& position);
    QPoint menuAnchor(const CellItem& cell) const;
    bool commandKey(const QKeyEvent& event, CellItem& cell);
    bool isPossible(CellCommand command, const CellItem& cell) const;
    void run(CellCommand command, CellItem& cell);
    bool readyForCommit(const CellItem& cell);
    void paste(CellItem& cell, const QString& text);
    void restoreInitial(CellItem& cell);
    void refuse(const CellItem& cell, const QString& why);
    void forgetRefusal();

    bool forwardKey(QKeyEvent& event);
    bool rowKey(QKeyEvent& event, CellItem& cell);
    bool footerKey(const QKeyEvent& event);
    bool leavesRows(const QKeyEvent& event) const;
    bool typeInto(CellItem& cell, const QKeyEvent& event);
    void setFooterFocus(bool focus);

    Area areaAt(const CellItem& cell, const QPoint& position) const;
    void pressCell(CellItem& cell, const QPoint& position);
    void setMouseAt(const CellItem* cell, bool unit, bool footer);

    CMultiParamsTablePrivate& m_table;
    QPointer<CellEditor> m_editor; // while it is idle another table may take it
    QPointer<ChoicePopup> m_choices;
    QPointer<FilterPopup> m_filter;
    QPointer<CellMenu> m_menu;
    QPointer<Notice> m_notice;
    std::unique_ptr<CellFlash> m_flash;
    CellItem* m_cell = nullptr;             // being edited
    const CellItem* m_choiceCell = nullptr; // its list is open
    const CellItem* m_menuCell = nullptr;   // its menu is open
    const CellItem* m_refused = nullptr;    // what was pasted into it is wrong
    const CellItem* m_mouseCell = nullptr;
    QString m_wrong;
    bool m_unitMouse = false;
    bool m_footerMouse = false;
    bool m_footerFocus = false;
    bool m_forwarding = false; // a key that the table got is on its way through the editor
    bool m_closing = false;
};

} // namespace WQ
