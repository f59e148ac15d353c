#include "reference/toolkit/CParameterCellPrivate.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/PersonEvents.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/NumberRules.h"

#include <WQ/EventNumbers.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace WQ {

CParameterCellPrivate::CParameterCellPrivate(CParameterCell* owner, int cellId, QString labelText, QString unitText)
    : cell(owner)
    , id(cellId)
    , label(std::move(labelText))
    , unit(std::move(unitText))
    , labelFontKey(keys::kTextFont)
    , valueFontKey(keys::kTextFont)
{
}

void CParameterCellPrivate::set(Holds what, double newNumber, const QString& newText)
{
    holds = what;
    number = newNumber;
    text = newText;
    cell->update();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent changed(cell, plainText());
        QAccessible::updateAccessibility(&changed);
    }
}

QString CParameterCellPrivate::plainText() const
{
    switch (holds) {
    case Holds::Double:
        return singleValueText(rule, number);
    case Holds::Int:
        return QString::number(number, 'f', 0);
    case Holds::Nothing:
    case Holds::Text:
        break;
    }
    return text;
}

QString CParameterCellPrivate::shownText() const
{
    const bool isNumber = holds == Holds::Double || holds == Holds::Int;
    return isNumber ? groupedDigits(plainText()) : plainText();
}

QFont CParameterCellPrivate::labelFont() const
{
    return resources::font(labelFontKey, painting::scaleOf(cell));
}

QFont CParameterCellPrivate::valueFont() const
{
    return resources::font(valueFontKey, painting::scaleOf(cell));
}

// Labels come with blanks in front, which line up in one font only; they are aligned at their right ends instead.
CParameterCellPrivate::Places CParameterCellPrivate::places() const
{
    const double scale = painting::scaleOf(cell);
    const auto size = [scale](const QString& key) { return resources::size(key, scale); };
    const QFont font = resources::font(labelFontKey, scale);
    const int height = cell->height();
    const int padding = size(keys::kFieldPadding);
    Places places;
    const QString shown = label.trimmed();
    const int column = shown.isEmpty() ? 0 : std::max(size(keys::kFieldLabelWidth), painting::textWidth(font, shown));
    places.label = {0, 0, std::min(column, cell->width() / 2), height};
    places.field = cell->rect().adjusted(column > 0 ? places.label.width() + size(keys::kFieldGap) : 0, 0, 0, 0);
    const QRect& field = places.field;
    const int unitWidth = unit.isEmpty() ? 0 : std::min(painting::textWidth(font, unit), field.width() / 2);
    places.unit = {field.left() + field.width() - padding - unitWidth, 0, unitWidth, height};
    const int right = places.unit.left() - (unit.isEmpty() ? 0 : size(keys::kUnitGap));
    places.value = {field.left() + padding, 0, std::max(0, right - field.left() - padding), height};
    return places;
}

QString CParameterCellPrivate::elidedTexts() const
{
    const Places place = places();
    QStringList full;
    if (painting::textWidth(labelFont(), label.trimmed()) > place.label.width())
        full.append(label.trimmed());
    if (painting::textWidth(valueFont(), shownText()) > place.value.width())
        full.append(unit.isEmpty() ? shownText() : shownText() + QLatin1Char(' ') + unit);
    return full.join(QStringLiteral(": "));
}

// Facts are disabled cells and are read all the time, so disabled ones keep their colours and lose the frame alone.
void CParameterCellPrivate::paint(QPainter& painter) const
{
    const Places place = places();
    const QFont font = labelFont();
    const QColor& window = resources::color(keys::kWindow);
    const QColor& input = resources::color(wrong ? keys::kWrongFill : keys::kInput);
    painter.fillRect(cell->rect(), window);
    painting::drawTextOn(painter, window, place.label, font, resources::color(keys::kLabel), Qt::AlignRight,
                         label.trimmed());
    painter.fillRect(place.field, input);
    painting::drawTextOn(painter, input, place.unit, font, resources::color(keys::kUnit), Qt::AlignRight, unit);
    if (!editor)
        painting::drawTextOn(painter, input, place.value, valueFont(), resources::color(keys::kValue), Qt::AlignLeft,
                             shownText());
    if (!cell->isEnabled())
        return;
    const bool focus = editor || cell->hasFocus();
    painting::drawFrame(painter, place.field,
                        resources::color(wrong       ? keys::kWrongFrame
                                             : focus ? keys::kAccent
                                                     : keys::kSeparator));
}

void CParameterCellPrivate::edit(const QString& startText, bool selectAll)
{
    if (editor || !cell->isEnabled())
        return;
    editor = new FieldEditor(startText, valueFont(), cell);
    editor->setAccessibleName(label.trimmed());
    editor->setStepsByWheel(rule.isNumber);
    if (!selectAll)
        editor->end(false);
    QObject::connect(editor, &QLineEdit::textChanged, cell, [this] { judge(); });
    QObject::connect(editor, &FieldEditor::accepted, cell, [this] {
        if (!wrong)
            finish();
    });
    QObject::connect(editor, &FieldEditor::cancelled, cell, [this] { closeEditor(); });
    QObject::connect(editor, &FieldEditor::left, cell, [this] { finish(); });
    QObject::connect(editor, &FieldEditor::stepped, cell, [this](int steps) { step(steps); });
    placeEditor();
    editor->show();
    editor->setFocus();
    judge();
}

void CParameterCellPrivate::placeEditor()
{
    if (editor)
        editor->setGeometry(places().value.adjusted(0, 1, 0, -1));
}

void CParameterCellPrivate::judge()
{
    wrong = editor && !isAllowed(rule, editor->text());
    if (editor)
        editor->setWrong(wrong);
    cell->update();
}

void CParameterCellPrivate::step(int steps)
{
    const auto typed = editor && rule.isNumber ? typedNumber(editor->text()) : std::nullopt;
    if (!typed)
        return;
    editor->setText(singleValueText(rule, stepped(rule, *typed, steps)));
    editor->selectAll();
}

// A wrong text is given up, never stored as something else.
void CParameterCellPrivate::finish()
{
    if (!editor)
        return;
    const QString typed = editor->text();
    const bool keep = !wrong;
    closeEditor();
    if (keep)
        commit(typed);
}

// The editor may be at work further down the stack.
void CParameterCellPrivate::closeEditor()
{
    FieldEditor* const closing = editor;
    if (!closing)
        return;
    editor = nullptr;
    wrong = false;
    const bool hadFocus = closing->hasFocus();
    closing->disconnect(cell);
    closing->hide();
    closing->deleteLater();
    if (hadFocus)
        cell->setFocus();
    cell->update();
}

void CParameterCellPrivate::commit(const QString& typed)
{
    const auto typedValue = rule.isNumber ? typedNumber(typed) : std::nullopt;
    const QString before = plainText();
    const QString after = typedValue ? singleValueText(rule, *typedValue) : typed;
    if (after == before)
        return;
    set(typedValue ? Holds::Double : Holds::Text, typedValue.value_or(0), typed);
    postPersonEvent(cell, *cell, typedValue ? events::kNumberCommitted : events::kLineCommitted, id, 0, plainText());
}

bool CParameterCellPrivate::keyPressed(const QKeyEvent& event)
{
    if (editor || !cell->isEnabled())
        return false;
    const bool asks = event.key() == Qt::Key_F2 || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const QString typed = event.text();
    const bool types = !typed.isEmpty() && typed.at(0).isPrint()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (asks)
        edit(plainText(), true);
    else if (types)
        edit(typed, false);
    return asks || types;
}

QString CParameterCellPrivate::wrongMessage()
{
    if (!rule.message.isEmpty())
        return rule.message;
    if (rule.isWhole())
        return cell->formatInvalidMessage(static_cast<int>(rule.min), static_cast<int>(rule.max));
    return cell->formatInvalidMessage(rule.min, rule.max);
}

} // namespace WQ
