#pragma once

#include "workbench/TableSetup.h"

#include <QStringList>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QListWidget;

namespace workbench {

class LanguageTexts;
class NumberCombo;

/// The form that says what the order panel is made of.
class SetupForm : public QWidget
{
    Q_OBJECT
public:
    explicit SetupForm(QWidget* parent = nullptr);

    TableSetup setup() const;

    /// The feature modules that are ticked, as "group/module".
    QStringList modules() const;

    /// Both show a state without announcing it.
    void setSetup(const TableSetup& setup);
    void setModules(const QStringList& modules);

Q_SIGNALS:
    void setupChanged();
    void modulesChanged(const QStringList& modules);

private:
    QComboBox* addClassChoice();
    NumberCombo* addNumber(const char* label, NumberCombo* combo);
    QCheckBox* addCheck(const char* label);
    QListWidget* addModules();
    void followClass();

    LanguageTexts* m_texts;
    QFormLayout* m_form;
    QComboBox* m_class;
    NumberCombo* m_identity;
    NumberCombo* m_broker;
    NumberCombo* m_trader;
    QListWidget* m_modules;
    QCheckBox* m_modeButtons;
    QCheckBox* m_fontScale;
    QCheckBox* m_autoBook;
};

} // namespace workbench
