#pragma once

#include <ttservice/COrderSetting.h>

#include <QMap>
#include <QString>
#include <QVariant>

#include <functional>

/// The jobs of the parameter strings as they are usually written with Qt's strings and lists.
namespace bench {

using CreditValues = QMap<int, QMap<int, QVariant>>;
using RealText = std::function<QString(double)>;

/// A real with three decimals by QString::arg().
QString realByArg(double value);

/// A real by QString::number(), without and with the digits settled by the toolkit.
QString realByNumber(double value);
QString realByToolkit(double value);

/// The 41 items, each integer by QString::arg(), joined.
QString settingByArg(const ttservice::COrderSetting& setting, const RealText& realText);

/// The 41 items, each integer by QString::number(), joined.
QString settingByNumber(const ttservice::COrderSetting& setting, const RealText& realText);

/// The same into one buffer by std::to_chars(), which rounds ties its own way.
QString settingByChars(const ttservice::COrderSetting& setting);

/// A credit parameter string by QString::split(), with its values stored.
bool readCreditBySplit(const QString& text, int& operation, CreditValues& values);

/// The same splitting and converting, with nothing stored; answers a sum over what was read.
int scanCreditBySplit(const QString& text);

/// A credit parameter string by lists and QStringList::join().
QString writeCreditByJoin(int operation, const CreditValues& values);

} // namespace bench
