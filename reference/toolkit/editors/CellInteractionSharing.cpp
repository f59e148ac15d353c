#include "reference/toolkit/editors/CellInteraction.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellFlash.h"
#include "reference/toolkit/editors/CellMenu.h"
#include "reference/toolkit/editors/ChoicePopup.h"
#include "reference/toolkit/editors/FilterPopup.h"
#include "reference/toolkit/editors/Notice.h"

#include <algorithm>
#include <vector>

namespace WQ {

namespace {

// Of every table somebody has interacted with, the latest last.
std::vector<CellInteraction*>& interactions()
{
    static std::vector<CellInteraction*> all;
    return all;
}

// Qt takes a window out of its own tab chain before the widgets in it go, and can put nothing into it any more.
bool isGoing(const QWidget& window)
{
    return !window.nextInFocusChain();
}

} // namespace

CellInteraction::CellInteraction(CMultiParamsTablePrivate& table)
    : m_table(table)
{
    interactions().push_back(this);
}

// The widgets are children of the table, which would take them down later, when what they call has gone.
CellInteraction::~CellInteraction()
{
    m_closing = true;
    m_cell = nullptr;
    auto& all = interactions();
    all.erase(std::find(all.begin(), all.end(), this));
    m_flash.reset();
    delete m_notice;
    delete m_filter;
    delete m_choices;
    delete m_menu;
    bequeathEditor();
}

// An idle editor of another table comes over, whatever window that stands in. Whoever hears of the move may open an
// editor here or take the table away.
bool CellInteraction::gainEditor()
{
    const QPointer<CMultiParamsTable> alive(&widget());
    if (!m_editor) {
        const auto& all = interactions();
        const auto owner = std::find_if(all.rbegin(), all.rend(), [](const CellInteraction* other) {
            return other->m_editor && other->m_editor->isIdle();
        });
        m_editor = owner != all.rend() ? (*owner)->m_editor.data() : new CellEditor;
        if (owner != all.rend())
            (*owner)->m_editor.clear();
        m_editor->moveTo(*widget().viewport(), *this);
    }
    return alive && m_editor;
}

// An editor that somebody is using, or whose event is on its way, goes with its table.
void CellInteraction::bequeathEditor()
{
    const auto& all = interactions();
    const auto heir = std::find_if(all.rbegin(), all.rend(), [](const CellInteraction* other) {
        return !other->m_editor && !isGoing(*other->widget().window());
    });
    if (!m_editor || !m_editor->isIdle() || heir == all.rend()) {
        delete m_editor;
        return;
    }
    (*heir)->m_editor = m_editor;
    m_editor->moveTo(*(*heir)->widget().viewport(), **heir);
}

} // namespace WQ
