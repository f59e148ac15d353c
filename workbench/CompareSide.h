#pragma once

#include "workbench/CompareCapture.h"

#include <QObject>

class QCheckBox;
class QGridLayout;
class QMenu;
class QPushButton;
class QToolButton;

namespace workbench {

class LanguageTexts;
class NumberCombo;

/// The fields that say what one of the two tables is: a column of the form.
class CompareSide : public QObject
{
    Q_OBJECT
public:
    /// Fills that column of the form, from row 0 on. @p name: "Left" or "Right", for screen readers.
    CompareSide(QGridLayout& form, int column, const char* name, LanguageTexts& texts);

    /// The labels before the fields, in their order.
    static void addLabels(QGridLayout& form, LanguageTexts& texts);

    CompareSetup setup() const;

    /// Puts the keyboard into the broker type, which is selected.
    void focusBroker();

    /// Shows it without announcing it.
    void setSetup(const CompareSetup& setup);

Q_SIGNALS:
    /// A person has chosen something else.
    void changed();

    /// A person wants the setup of the order panel here.
    void panelWanted();

private:
    NumberCombo* addNumber(QGridLayout& form, int row, NumberCombo* combo);
    void addModules(QGridLayout& form, int row);
    void addLast(QGridLayout& form, int row);
    void nameFields();
    void countModules();
    QString withSide(const char* field) const;

    const int m_column;
    const char* const m_name;
    LanguageTexts& m_texts;
    TableSetup m_rest; ///< what the form does not ask for
    NumberCombo* m_identity;
    NumberCombo* m_broker;
    NumberCombo* m_trader;
    NumberCombo* m_orderType;
    NumberCombo* m_operation;
    QCheckBox* m_expanded;
    QToolButton* m_modules;
    QMenu* m_menu;
    QPushButton* m_panel;
};

} // namespace workbench
