#pragma once

#include "replay/Expectation.h"
#include "replay/State.h"

#include <ttservice/CCodeOrderParam.h>

#include <QByteArray>
#include <QList>

/// What tests of states ask of them.
namespace states {

using replay::Json;

/// Written without blanks, its keys in the order in which they stand: an order of keys that differs is a difference.
QByteArray written(const Json& json);

QByteArray rewritten(const QByteArray& json);

/// Null without a cell of that ID.
Json cellOf(const Json& state, int id);

QList<int> idsOf(const Json& cells);

/// The keys in order, a blank between them.
QByteArray keysOf(const Json& object);

/// A line each; empty when the state is as expected.
QByteArray differencesFrom(const QByteArray& expected, const Json& actual);

/// 1200 of the code 600000 at the specified price 12.345, on an account of that broker type.
ttservice::CCodeOrderParam taskOf(int broker, int orderType);

} // namespace states
