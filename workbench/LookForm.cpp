#include "workbench/LookForm.h"

#include "workbench/Language.h"
#include "workbench/LanguageTexts.h"
#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <array>

namespace workbench {

namespace {

constexpr double kScaleStep = 0.25;

struct ThemeRow
{
    const char* theme;
    const char* name;
};

constexpr std::array kThemeNames = {
    ThemeRow{"dark", QT_TRANSLATE_NOOP("workbench", "Dark")},
    ThemeRow{"high-contrast", QT_TRANSLATE_NOOP("workbench", "High contrast")},
    ThemeRow{"light", QT_TRANSLATE_NOOP("workbench", "Light")},
};

} // namespace

QString themeName(const QString& theme)
{
    for (const ThemeRow& row : kThemeNames)
        if (theme == QLatin1String(row.theme))
            return translated(row.name);
    return theme;
}

LookForm::LookForm(QWidget* parent)
    : QWidget(parent)
    , m_texts(new LanguageTexts(this))
    , m_form(new QFormLayout(this))
    , m_theme(new QComboBox)
    , m_scale(new QDoubleSpinBox)
    , m_language(new QComboBox)
{
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fillChoices();
    addRow(QT_TRANSLATE_NOOP("workbench", "&Display theme"), m_theme);
    addRow(QT_TRANSLATE_NOOP("workbench", "&UI scale"), m_scale);
    addRow(QT_TRANSLATE_NOOP("workbench", "Language"), m_language);
    refresh();
    connect(m_theme, QOverload<int>::of(&QComboBox::activated), this,
            [this] { Q_EMIT themeChosen(m_theme->currentData().toString()); });
    connect(m_scale, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &LookForm::scaleChosen);
    connect(m_language, QOverload<int>::of(&QComboBox::activated), this,
            [this] { Q_EMIT languageChosen(m_language->currentData().toString()); });
}

void LookForm::fillChoices()
{
    m_scale->setRange(1.0, 3.0);
    m_scale->setSingleStep(kScaleStep);
    m_scale->setKeyboardTracking(false);
    const QStringList themes = WQ::resources::themes();
    for (const QString& theme : themes)
        m_theme->addItem(theme, theme);
    m_texts->keep([this] {
        for (int i = 0; i < m_theme->count(); ++i)
            m_theme->setItemText(i, themeName(m_theme->itemData(i).toString()));
    });
    const QStringList all = languages();
    for (const QString& name : all)
        m_language->addItem(languageName(name), name);
}

void LookForm::addRow(const char* label, QWidget* field)
{
    auto* title = new QLabel;
    title->setBuddy(field);
    m_form->addRow(title, field);
    m_texts->keep([label, title] { title->setText(translated(label)); });
}

void LookForm::refresh()
{
    const QSignalBlocker quiet(m_scale);
    m_theme->setCurrentIndex(m_theme->findData(WQ::resources::theme()));
    m_scale->setValue(WQ::resources::scale());
    m_language->setCurrentIndex(m_language->findData(language()));
}

} // namespace workbench
