#include "workbench/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

struct LanguageRow
{
    const char* locale;
    QStringView name;
};

constexpr std::array kLanguages = {
    LanguageRow{"en", u"English"},
    LanguageRow{"zh_CN", u"简体中文"},
};

/// The translators belong to the application, so that they go when it goes.
QTranslator* translator(const QString& name)
{
    auto* application = QCoreApplication::instance();
    auto* found = application->findChild<QTranslator*>(name);
    if (found)
        return found;
    found = new QTranslator(application);
    found->setObjectName(name);
    return found;
}

void install(QTranslator* translator, const QString& file, const QString& folder)
{
    QCoreApplication::removeTranslator(translator);
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

QStringList languages()
{
    QStringList names;
    for (const LanguageRow& row : kLanguages)
        names << QLatin1String(row.locale);
    return names;
}

QString languageName(const QString& language)
{
    for (const LanguageRow& row : kLanguages)
        if (language == QLatin1String(row.locale))
            return row.name.toString();
    return language;
}

QString systemLanguage()
{
    return QLocale::system().language() == QLocale::Chinese ? QStringLiteral("zh_CN") : QStringLiteral("en");
}

void setLanguage(const QString& language)
{
    if (!languages().contains(language))
        return;
    QCoreApplication::instance()->setProperty("workbenchLanguage", language);
    install(translator(QStringLiteral("qtTexts")), QStringLiteral("qtbase_") + language,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(translator(QStringLiteral("workbenchTexts")), QStringLiteral("workbench_") + language,
            QStringLiteral(":/workbench/translations"));
    install(translator(QStringLiteral("toolkitTexts")), QStringLiteral("toolkit_") + language,
            QStringLiteral(":/orderparam/translations"));
}

QString language()
{
    const QString chosen = QCoreApplication::instance()->property("workbenchLanguage").toString();
    return chosen.isEmpty() ? QStringLiteral("en") : chosen;
}

} // namespace workbench
