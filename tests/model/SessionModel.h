#pragma once

#include "model/CreditModel.h"
#include "model/TableModel.h"

#include <map>
#include <memory>
#include <string>

namespace model {

/// What a command answers; an answer that is not ok says nothing more.
struct Answer
{
    bool ok = false;
    Json result;
    std::vector<Json> events;
    int saves = 0;
    int reloads = 0;
};

/// An object that a script has made: a table or a credit table.
struct ObjectModel
{
    std::unique_ptr<TableModel> table;
    std::unique_ptr<CreditModel> credit;

    GridModel& grid()
    {
        return table ? table->grid : credit->grid;
    }
    Json state() const
    {
        return table ? table->state() : credit->state();
    }
};

/// The commands of a script carried out on the models.
class SessionModel
{
public:
    Answer run(const Json& command);

    /// By name. States leave sizes in pixels out.
    std::map<std::string, ObjectModel> objects;

private:
    bool carryOut(const Json& command, Json& result);
    bool onObject(ObjectModel& object, const std::string& verb, const Json& command, Json& result);
    bool onTable(TableModel& table, const std::string& verb, const Json& command, Json& result);
    bool onCredit(CreditModel& table, const std::string& verb, const Json& command, Json& result);
    void make(const Json& command);

    World m_world;
    double m_scale = 1;
};

/// An operation of the cell table, as hosts call it.
Json callGrid(GridModel& grid, const std::string& operation, const Json& args);

} // namespace model
