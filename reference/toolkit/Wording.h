#pragma once

#include <QCoreApplication>
#include <QString>

namespace WQ {

/// What a rule says to a person, in the language of the application: a widget has tr() for that. The words are Chinese;
/// a host that speaks English installs a QTranslator with ":/orderparam/translations/toolkit_en.qm".
inline QString wording(const char* chinese)
{
    return QCoreApplication::translate("WQ", chinese);
}

} // namespace WQ
