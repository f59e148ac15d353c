#pragma once

#include "reference/services/LoadReport.h"

#include <WQ/WqExport.h>
#include <ttservice/CAccountInfoV2.h>
#include <ttservice/CCodeOrderParam.h>

#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a program that hosts the reference services says to them. Nothing is read from disk before a load call. GUI
/// thread only. Tables ask when they next need to know; the hint alone is told to them.
namespace reference {

/// As after the start: client mode 0, all modules off, system clock, no accounts, no configuration file watched,
/// no error said yet.
WQ_EXPORT void resetServices();

WQ_EXPORT void setClientMode(int mode); ///< Any integer; it says which modes show algorithm buttons of their own.

/// Feature modules are named "group/module", which is not checked; exactly these are on afterwards.
WQ_EXPORT void setModules(const QSet<QString>& on);
WQ_EXPORT void setModule(const QString& module, bool on); ///< The others stay as they are.
WQ_EXPORT QSet<QString> modules();                        ///< Those that are on.

/// The user configuration emits its algorithm-hint signal.
WQ_EXPORT void emitAlgorithmHint(int orderType, bool hint);

/// Stops the clock at these seconds since the epoch; without a value it is the system's again.
WQ_EXPORT void freezeClock(std::optional<qint64> seconds);

/// Where the clock stands; without a value while it is the system's.
WQ_EXPORT std::optional<qint64> frozenClock();

/// Adds or replaces an account. Pointers that were handed out keep the account as it was.
WQ_EXPORT void addAccount(const std::string& key, const ttservice::CAccountInfoV2& account);
WQ_EXPORT void clearAccounts(); ///< Pointers that were handed out stay good.
/// The keys of all accounts, ascending.
WQ_EXPORT std::vector<std::string> accountKeys();

/// Where the files that the programs start from lie: share/orderparam beside an installed program, else the source
/// tree.
WQ_EXPORT QString dataFolder();

// A load call takes the whole file or nothing: after an error what was in force stays so. Errors are also written to
// the log, the same one of a file once until the file has been good again, and notes once a load.

/// Client mode and modules from an INI file, read again whenever it changes or is replaced, until resetServices(); a
/// changed file without its last line end counts as half-written until it has stayed so for half a second:
///
///     [client]
///     mode=100
///     [modules]
///     on=mdl_order/mdl_order_algorithm3, mdl_alg/mdl_alg_randvolume
///
/// What the file leaves out is 0 and off.
WQ_EXPORT LoadReport loadConfiguration(const QString& path);

/// Called whenever the configuration file was read again and taken. An empty one, and resetServices(), end it.
WQ_EXPORT void setConfigurationListener(std::function<void()> listener);

/// The accounts of a JSON file, in place of those there are: a list of objects with "key", "brokerType", "id", "name".
WQ_EXPORT LoadReport loadAccounts(const QString& path);

/// The task records of a JSON file into @p tasks: a list of objects named after the fields of CCodeOrderParam.
/// "account" is the key of an account that is loaded, or null; times are seconds since the epoch or local ISO texts
/// ("2024-05-20T09:30:00").
WQ_EXPORT LoadReport loadTasks(const QString& path, std::vector<ttservice::CCodeOrderParam>& tasks);

} // namespace reference
