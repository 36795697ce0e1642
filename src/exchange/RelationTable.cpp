#include "exchange/RelationTable.h"

#include "state/SharedState.h"

namespace exchange
{

using automation::Recordset;

void RelationTable::Use(std::wstring statement, const automation::OpenOptions& options)
{
    mStatement = std::move(statement);
    mOptions = options;
    mRows.reset();
}

const std::vector<RelationRow>& RelationTable::Rows()
{
    if (!mRows)
    {
        Recordset relations = automation::OpenRecordset(mStatement, state::Shared().gCnnString, mOptions);
        const automation::RecordsetCloser closer(relations);
        std::vector<RelationRow> rows;
        for (; !relations.AtEnd(); relations.MoveNext())
        {
            RelationRow row{relations.NameIn(L"EnglishName"), relations.NameIn(L"OutlookName")};
            if (!row.EnglishName.empty() && !row.OutlookName.empty())
            {
                rows.push_back(std::move(row));
            }
        }
        mRows = std::move(rows);
    }
    return *mRows;
}

std::wstring RelationTable::LastColumn() const
{
    return mRows && !mRows->empty() ? mRows->back().EnglishName : std::wstring();
}

} // namespace exchange
