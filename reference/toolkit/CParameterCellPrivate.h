#pragma once

#include "reference/toolkit/FieldEditor.h"
#include "reference/toolkit/SingleValue.h"

#include <WQ/CParameterCell.h>

#include <QFont>
#include <QPointer>
#include <QRect>

namespace WQ {

/// What stands behind a single cell: its value, where its parts are, and its editor while there is one.
class CParameterCellPrivate
{
public:
    enum class Holds { Nothing, Double, Int, Text };

    struct Places
    {
        QRect label;
        QRect field; ///< with unit and value in it
        QRect unit;
        QRect value;
    };

    CParameterCellPrivate(CParameterCell* owner, int cellId, QString labelText, QString unitText);

    void set(Holds what, double newNumber, const QString& newText);
    QString plainText() const;
    QString shownText() const;

    QFont labelFont() const;
    QFont valueFont() const;
    Places places() const;
    QString elidedTexts() const;
    void paint(QPainter& painter) const;

    void edit(const QString& startText, bool selectAll);
    void placeEditor();
    void judge();
    void step(int steps);
    void finish();
    void closeEditor();
    void commit(const QString& typed);
    bool keyPressed(const QKeyEvent& event);
    QString wrongMessage();

    CParameterCell* const cell;
    const int id;
    const QString label;
    QString unit;
    QString labelFontKey;
    QString valueFontKey;
    TypingRule rule;
    Holds holds = Holds::Nothing;
    double number = 0;
    QString text;
    QPointer<FieldEditor> editor;
    bool wrong = false;
};

} // namespace WQ
