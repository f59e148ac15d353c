#pragma once

#include "model/CreditModel.h"
#include "model/TableModel.h"

#include <memory>

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

/// The commands of a script carried out on the models. One object at a time, as the random scripts need.
class SessionModel
{
public:
    Answer run(const Json& command);

    /// The object's state; null without one. Sizes in pixels are left out.
    Json state() const;

    TableModel* table()
    {
        return m_table.get();
    }
    CreditModel* credit()
    {
        return m_credit.get();
    }
    const GridModel* grid() const;

private:
    bool carryOut(const Json& command, Json& result);
    bool onObject(const Json& command, Json& result);
    bool onTable(const Json& command, Json& result);
    bool onCredit(const Json& command, Json& result);
    void make(const Json& command);

    World m_world;
    double m_scale = 1;
    std::unique_ptr<TableModel> m_table;
    std::unique_ptr<CreditModel> m_credit;
};

/// An operation of the cell table, as hosts call it.
Json callGrid(GridModel& grid, const std::string& operation, const Json& args);

} // namespace model
