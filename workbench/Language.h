#pragma once

#include <QString>
#include <QStringList>

namespace workbench {

/// The languages that the program speaks, as locale names.
QStringList languages();

/// How a language calls itself.
QString languageName(const QString& language);

/// The language that suits the system's locale.
QString systemLanguage();

/// Makes the program speak @p language; an unknown one changes nothing. Widgets are told by QEvent::LanguageChange.
void setLanguage(const QString& language);

QString language();

} // namespace workbench
