// Fixture of the hostile items: the strict host behind a recorder, rows that no test may change, and
// the checks that hold after every record, whatever it held.
#pragma once

#include "tests/hostile/HostileItem.h"
#include "tests/hostile/HostileValues.h"
#include "tests/hostile/NoMessageBoxes.h"
#include "tests/hostile/StatementRecorder.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"

#include <map>
#include <set>
#include <string>

namespace test_support
{

class HostileFromOutlook : public OfficeFixture
{
  protected:
    HostileFromOutlook();

    // Tables, and how many rows of each the tests have not made themselves.
    using RowCounts = std::map<std::wstring, long>;

    // Writes the item with the kind's pass, as a new row or over the row with the key TARGET.
    void Import(const TestedKind& kind, const automation::Object& item, bool isNew);
    // What must hold after any import: at most one row more (or none), the statements well
    // formed and about nothing else, no transaction open. For records without a transaction of their own an
    // account may stay behind.
    void ExpectOneRecordAtMost(const RecordKind& kind, bool isNew);
    // No row of anybody else's has changed, nor any table that no import writes.
    void ExpectTheRestUntouched();
    // Makes the tables as they were.
    void Clear();

    // The statement is one of those that an import sends, and each value in it one literal.
    void CheckStatement(const Statement& statement, const std::wstring& table);

    Statements mStatements;
    ItemValues mItem; // the item being imported
    long mStatementCount = 0;
    long mWritten = 0; // records
    NoMessageBoxes mBoxes;

  private:
    RowCounts CountRows();
    std::wstring Dump(const std::wstring& query);
    void CheckLists(const Statement& statement);
    void CheckCondition(const std::wstring& condition, const std::wstring& table);
    void CheckLookup(const std::wstring& sql);
    void CheckFilter(const std::wstring& source, const std::wstring& filter);
    std::wstring TheRest();

    RowCounts mBefore;
    std::wstring mRest;
};

} // namespace test_support
