#pragma once

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;

namespace workbench {

class LanguageTexts;

/// The form for theme, UI scale and language. It shows what is in force and announces what a person chooses.
class LookForm : public QWidget
{
    Q_OBJECT
public:
    explicit LookForm(QWidget* parent = nullptr);

    /// Shows the theme, scale and language in force.
    void refresh();

Q_SIGNALS:
    void themeChosen(const QString& theme);
    void scaleChosen(double scale);
    void languageChosen(const QString& language);

private:
    void addRow(const char* label, QWidget* field);
    void fillChoices();

    LanguageTexts* m_texts;
    QFormLayout* m_form;
    QComboBox* m_theme;
    QDoubleSpinBox* m_scale;
    QComboBox* m_language;
};

/// What a theme is called in the language of the program.
QString themeName(const QString& theme);

} // namespace workbench
