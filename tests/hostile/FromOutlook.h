// Fixture of the hostile items: the strict host behind a recorder, rows that no test may change, and
// the checks that hold after every record, whatever it held.
#pragma once

#include "exchange/Kind.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/host/Host.h"
#include "tests/hostile/HostileItem.h"
#include "tests/hostile/HostileValues.h"
#include "tests/hostile/NoMessageBoxes.h"
#include "tests/hostile/StatementRecorder.h"
#include "tests/support/RecordingDisplay.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace test_support
{

class HostileFromOutlook : public testing::Test
{
  protected:
    HostileFromOutlook();
    ~HostileFromOutlook() override;

    // Tables, and how many rows of each the tests have not made themselves.
    using RowCounts = std::map<std::wstring, long>;

    // Writes the item with the category's pass, as a new row or over the row with the key TARGET.
    void Import(const exchange::Kind& category, const automation::Object& item, bool isNew);
    // What must hold after any import into this table: at most one row more (or none), the statements well
    // formed and about nothing else, no transaction open. For records without a transaction of their own an
    // account may stay behind.
    void ExpectOneRecordAtMost(const std::wstring& table, bool isNew, bool isAtomic);
    // No row of anybody else's has changed, nor any table that no import writes.
    void ExpectTheRestUntouched();
    // Makes the tables as they were.
    void Clear();

    // The statement is one of those that an import sends, and each value in it one literal.
    void CheckStatement(const Statement& statement, const std::wstring& table);

    sandbox::AdoInProcess mAdo;
    sandbox::Host mHost;
    Statements mStatements;
    ItemValues mItem; // the item being imported
    long mStatementCount = 0;
    long mWritten = 0; // records
    NoMessageBoxes mBoxes;
    RecordingDisplay mDisplay;

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
    WithLanguage mEnglish{resources::Language::English};
};

} // namespace test_support
