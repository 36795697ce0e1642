// Single values on their way into a statement: every type and size of column, every fragment builder.
#include "data/ContractForms.h"
#include "sandbox/host/FieldRows.h"
#include "sandbox/host/Rejection.h"
#include "tests/hostile/HostileValues.h"
#include "tests/hostile/NoMessageBoxes.h"
#include "tests/hostile/Oracle.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/Thoroughness.h"

#include "automation/Text.h"

#include <algorithm>
#include <cwctype>

namespace
{

using namespace test_support;
using sandbox::Literal;

struct Column
{
    std::wstring name;
    long type;
    long size;
};

class HostileFieldValues : public OfficeFixture
{
  protected:
    HostileFieldValues()
    {
        for (const sandbox::FieldRow& row : sandbox::FieldRows())
        {
            mColumns.push_back({row.column, static_cast<long>(row.rule), row.size});
        }
        for (const long size : {0L, 1L, 2L, 3L, 255L, 4000L, -1L, 2147483647L})
        {
            AddColumn(2, size);
            AddColumn(8, size);
        }
    }

    const Column& AddColumn(long type, long size)
    {
        mColumns.push_back({L"F_OF" + std::to_wstring(mColumns.size()), type, size});
        sandbox::AddRows(TheHost.Database(), L"SynFields", L"FieldName,FieldType,FieldSize",
                         {{mColumns.back().name, type, size}});
        return mColumns.back();
    }

    // Adds the value to both kinds of list between two neighbours, and holds what has become of the lists
    // against the contract.
    void Check(const Column& column, const Value& value)
    {
        CheckInsert(column, value);
        CheckUpdate(column, value);
    }

    void CheckInsert(const Column& column, const Value& value)
    {
        std::wstring fields = L"F_BEFORE";
        std::wstring values = L"'it''s'";
        if (data::AddInsertField(mCatalogue, fields, column.name, values, value) != 0)
        {
            ++mRefused;
            EXPECT_EQ(L"F_BEFORE|'it''s'", fields + L"|" + values);
            return;
        }
        const auto literals = sandbox::ParseLiterals(values + L",'after'");
        ASSERT_EQ(3u, literals.size());
        EXPECT_EQ(L"F_BEFORE," + column.name, fields);
        EXPECT_EQ(L"it's", literals[0].text);
        EXPECT_EQ(L"after", literals[2].text);
        CheckLiteral(literals[1], column, value);
    }

    void CheckUpdate(const Column& column, const Value& value)
    {
        std::wstring setList = L"F_BEFORE='it''s'";
        if (data::AddUpdateField(mCatalogue, setList, column.name, value) != 0)
        {
            ++mRefused;
            EXPECT_EQ(L"F_BEFORE='it''s'", setList);
            return;
        }
        const auto assignments = sandbox::ParseAssignments(setList + L",F_AFTER='after'");
        ASSERT_EQ(3u, assignments.size());
        EXPECT_EQ(L"it's", assignments[0].literal.text);
        EXPECT_EQ(L"after", assignments[2].literal.text);
        EXPECT_EQ(column.name, assignments[1].column);
        CheckLiteral(assignments[1].literal, column, value);
    }

    void CheckLiteral(const Literal& literal, const Column& column, const Value& value)
    {
        const bool isAbsent = automation::IsEmptyOrNull(value) ||
                              (value.Type() == VT_BSTR && SysStringLen(value.Raw().bstrVal) == 0);
        if (isAbsent)
        {
            EXPECT_EQ(Literal::Kind::Null, literal.kind);
            return;
        }
        EXPECT_EQ("", Complaint(literal, value, column.type, column.size))
            << automation::ToUtf8(column.name) << " of type " << column.type << " and size " << column.size
            << ", value of type " << value.Type();
    }

    data::FieldCatalogue mCatalogue;
    std::vector<Column> mColumns;
    long mRefused = 0;
};

TEST_F(HostileFieldValues, EveryValueIsOneLiteralOrIsRefused)
{
    HostileValues values("single values");
    const long count = Times(120000);
    while (values.Count() < count && !HasFailure())
    {
        const Column& column = mColumns[values.Below(mColumns.size())];
        const Value value = values.Any(static_cast<size_t>(std::clamp(column.size, 4L, 255L)));
        SCOPED_TRACE("value " + std::to_string(values.Count()) + ", seed " + std::to_string(values.Seed()));
        try
        {
            Check(column, value);
        }
        catch (const sandbox::Rejection& rejection)
        {
            ADD_FAILURE() << automation::ToUtf8(column.name) << " of type " << column.type << ": "
                          << automation::ToUtf8(rejection.Reason());
        }
    }
    EXPECT_GT(mRefused, 0);
    EXPECT_LT(mRefused, values.Count());
    values.Report(std::to_string(2 * values.Count()) + " fragments, " + std::to_string(mRefused) +
                  " refused");
}

TEST_F(HostileFieldValues, AColumnOfAnUnknownTypeTakesTheTextAsOneLiteralWithAMessage)
{
    HostileValues values("columns of unknown types");
    const NoMessageBoxes boxes;
    const size_t known = mColumns.size();
    for (const long type : {0L, 9L, 10L, 11L, 12L, -1L, 2147483647L})
    {
        AddColumn(type, 40);
    }
    long written = 0;
    for (long i = 0; i < Times(300); ++i)
    {
        const Value value = values.Text();
        std::wstring setList = L"F_BEFORE='it''s'";
        const Column& column = mColumns[known + values.Below(mColumns.size() - known)];
        EXPECT_EQ(0, data::AddUpdateField(mCatalogue, setList, column.name, value));
        const std::wstring text = automation::TextOf(value);
        const auto assignments = sandbox::ParseAssignments(setList);
        ASSERT_EQ(2u, assignments.size());
        EXPECT_EQ(column.name, assignments[1].column);
        EXPECT_EQ(text, assignments[1].literal.text);
        written += text.empty() ? 0 : 1;
    }
    EXPECT_EQ(written, boxes.Count());
}

TEST_F(HostileFieldValues, ANameThatHoldsAnythingButANameAddsNothing)
{
    HostileValues values("column names");
    long added = 0;
    const NoMessageBoxes boxes;
    for (long i = 0; i < Times(2000) && !HasFailure(); ++i)
    {
        const std::wstring name = L"F_" + values.Text();
        SCOPED_TRACE(automation::ToUtf8(name));
        std::wstring fields = L"F_BEFORE";
        std::wstring list = L"1";
        data::AddInsertField(mCatalogue, fields, name, list, values.OneIn(2) ? Value::Null() : values.Any());
        const bool isAdded = fields == L"F_BEFORE," + name;
        EXPECT_TRUE(isAdded || fields == L"F_BEFORE");
        EXPECT_EQ(isAdded ? 2u : 1u, sandbox::ParseLiterals(list).size());
        // Letters of other scripts are left to the host.
        EXPECT_TRUE(!isAdded || std::ranges::all_of(name, [](wchar_t c) {
            return c == L'_' || c >= 0x80 || std::iswalnum(c) != 0;
        }));
        added += isAdded ? 1 : 0;
    }
    EXPECT_GT(added, 0);
}

TEST_F(HostileFieldValues, AColumnThatIsNotTheHostsOwnIsLeftOutWhateverTheValue)
{
    HostileValues values("columns without F_");
    for (long i = 0; i < Times(700); ++i)
    {
        std::wstring fields = L"F_A";
        std::wstring list = L"1";
        EXPECT_EQ(0, data::AddInsertField(mCatalogue, fields, L"ACC_SNAME", list, values.Any()));
        EXPECT_EQ(L"F_A", fields);
        EXPECT_EQ(L"1", list);
    }
}

} // namespace
