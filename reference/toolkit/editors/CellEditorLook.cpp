#include "reference/toolkit/editors/CellEditor.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QLineEdit>

namespace WQ {

namespace {

// Of the field itself, so that no style sheet of the application reaches it.
QString sheet(const QFont& font, const QColor& value, const QColor& selection)
{
    return QStringLiteral("QLineEdit { border: none; padding: 0; margin: 0; min-height: 0; min-width: 0;"
                          " background: transparent; color: %1; selection-background-color: %2; selection-color: %1;"
                          " font-size: %3px; font-family: \"%4\"; }")
        .arg(value.name(), selection.name())
        .arg(font.pixelSize())
        .arg(font.family());
}

} // namespace

QLineEdit* CellEditor::makeField()
{
    auto* line = new QLineEdit(this);
    line->setFrame(false);
    line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line->setAttribute(Qt::WA_MacShowFocusRect, false);
    line->installEventFilter(this);
    connect(line, &QLineEdit::textChanged, this, [this] {
        if (!m_loading)
            m_client->draftChanged();
    });
    restyle(*line);
    return line;
}

// The table before may have been of another scale, and an idle editor hears of no theme.
void CellEditor::takeLook(const QFont& font)
{
    static const QColor& value = resources::color(keys::kValue);
    static const QColor& selection = resources::color(keys::kSelection);
    static const QColor& unit = resources::color(keys::kUnit);
    if (font == m_look.font && value == m_look.value && selection == m_look.selection && unit == m_look.unit)
        return;
    m_look = {font, value, selection, unit};
    for (QLineEdit* line : m_fields) {
        if (line)
            restyle(*line);
    }
    update();
}

void CellEditor::restyle(QLineEdit& line) const
{
    line.setStyleSheet(sheet(m_look.font, m_look.value, m_look.selection));
    // A sheet that takes effect later would take the palette back.
    line.ensurePolished();
    QPalette palette = line.palette();
    palette.setColor(QPalette::PlaceholderText, m_look.unit);
    line.setPalette(palette);
}

void CellEditor::themeChanged()
{
    if (!m_idle)
        takeLook(m_look.font);
}

} // namespace WQ
