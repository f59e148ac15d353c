#pragma once

#include "monkey/Random.h"

#include "replay/Json.h"

#include <string>

/// What the program does in between: commands as scripts have them, with random arguments, far-fetched ones among them.
namespace monkey {

using replay::Json;

/// What a slot of the stage holds; it decides which operations there are.
enum class Family { Table, GlobalTable, CreditTable, TaskDialog, BasketDialog };

/// "call", "grid", "event" or "addButton" on the object of that name.
Json randomCall(Random& random, Family family, const std::string& on);

/// "modules", "clientMode", "hint", "account" or "clock".
Json randomService(Random& random);

Json randomSize(Random& random, const std::string& on);

/// A table's arguments: ID, broker type, trader type.
Json randomIdentity(Random& random);
Json randomBroker(Random& random);
Json randomTrader(Random& random);

/// The record of a task.
Json randomTask(Random& random);

} // namespace monkey
