#include "data/HostRow.h"
#include "data/ContractForms.h"

#include "automation/Error.h"
#include "tests/data/CatalogueOffice.h"
#include "tests/support/Days.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using automation::Value;
using data::AddInsertField;
using data::AddUpdateField;
using test_support::Day;
using test_support::MessagesDuring;

class SqlFragments : public testing::Test
{
  protected:
    long Insert(const std::wstring& column, const Value& value)
    {
        return AddInsertField(Database.Catalogue, Fields, column, Values, value);
    }

    long Update(const std::wstring& column, const Value& value)
    {
        return AddUpdateField(Database.Catalogue, SetList, column, value);
    }

    test_support::CatalogueOffice Database;
    std::wstring Fields;
    std::wstring Values;
    std::wstring SetList;
};

TEST_F(SqlFragments, TheFirstColumnCarriesNoLeadingCommaAndLaterOnesDo)
{
    EXPECT_EQ(Insert(L"F_NAME", L"O'Brien"), 0);
    EXPECT_EQ(Fields, L"F_NAME");
    EXPECT_EQ(Values, L"'O''Brien'");
    EXPECT_EQ(Insert(L"F_NUMBER", 1.5), 0);
    EXPECT_EQ(Insert(L"F_FLAG", true), 0);
    EXPECT_EQ(Fields, L"F_NAME,F_NUMBER,F_FLAG");
    EXPECT_EQ(Values, L"'O''Brien',1.5,1");
}

TEST_F(SqlFragments, AnUpdateListsColumnAndLiteral)
{
    EXPECT_EQ(Update(L"F_NAME", L"O'Brien"), 0);
    EXPECT_EQ(SetList, L"F_NAME='O''Brien'");
    EXPECT_EQ(Update(L"F_DATE", Day(2003, 5, 6)), 0);
    EXPECT_EQ(SetList, L"F_NAME='O''Brien',F_DATE='05/06/2003'");
}

TEST_F(SqlFragments, EmptyNullAndTheEmptyTextAreWrittenAsNull)
{
    for (const Value& absent : {Value(), Value::Null(), Value(L"")})
    {
        EXPECT_EQ(Insert(L"F_NAME", absent), 0);
        EXPECT_EQ(Update(L"F_NAME", absent), 0);
    }
    EXPECT_EQ(Fields, L"F_NAME,F_NAME,F_NAME");
    EXPECT_EQ(Values, L"NULL,NULL,NULL");
    EXPECT_EQ(SetList, L"F_NAME=NULL,F_NAME=NULL,F_NAME=NULL");
}

TEST_F(SqlFragments, AnAbsentValueNeedsNoCatalogueRow)
{
    EXPECT_EQ(Insert(L"F_ELSE", Value::Null()), 0);
    EXPECT_EQ(Update(L"F_ELSE", L""), 0);
    EXPECT_EQ(Fields, L"F_ELSE");
    EXPECT_EQ(SetList, L"F_ELSE=NULL");
}

TEST_F(SqlFragments, AColumnWithoutThePrefixIsNeverWrittenAndCountsAsSuccess)
{
    for (const wchar_t* column : {L"ACC_SNAME", L"f_NAME", L"F", L"", L"XF_NAME"})
    {
        EXPECT_EQ(Insert(column, L"x"), 0) << column;
        EXPECT_EQ(Insert(column, Value::Null()), 0) << column;
        EXPECT_EQ(Update(column, L"x"), 0) << column;
    }
    EXPECT_EQ(Fields + Values + SetList, L"");
}

TEST_F(SqlFragments, AValueThatCannotBeFormattedFailsAndLeavesTheListsAlone)
{
    Insert(L"F_NAME", L"x");
    Update(L"F_NAME", L"x");
    EXPECT_EQ(Insert(L"F_DATE", L"someday"), -1);
    EXPECT_EQ(Update(L"F_DATE", L"someday"), -1);
    MessagesDuring([&] {
        EXPECT_EQ(Insert(L"F_ELSE", L"x"), -1);
        EXPECT_EQ(Update(L"F_ELSE", L"x"), -1);
    });
    EXPECT_EQ(Fields, L"F_NAME");
    EXPECT_EQ(Values, L"'x'");
    EXPECT_EQ(SetList, L"F_NAME='x'");
}

TEST_F(SqlFragments, AColumnOfUnknownTypeIsWrittenUnformatted)
{
    Database.AddField(L"F_PICTURE", 9, 10);
    MessagesDuring([&] {
        EXPECT_EQ(Insert(L"F_PICTURE", 5L), 0);
        EXPECT_EQ(Update(L"F_PICTURE", 0.5), 0);
    });
    EXPECT_EQ(Values, L"5");
    EXPECT_EQ(SetList, L"F_PICTURE=0.5");
}

TEST_F(SqlFragments, ATextInAColumnOfUnknownTypeIsOneLiteralAllTheSame)
{
    Database.AddField(L"F_PICTURE", 9, 10);
    MessagesDuring([&] {
        EXPECT_EQ(Insert(L"F_PICTURE", L"1),(2"), 0);
        EXPECT_EQ(Update(L"F_PICTURE", L"O'Brien"), 0);
    });
    EXPECT_EQ(Values, L"'1),(2'");
    EXPECT_EQ(SetList, L"F_PICTURE='O''Brien'");
}

TEST_F(SqlFragments, ANameThatIsNoColumnNameIsSkippedLikeAForeignColumn)
{
    for (const wchar_t* column : {L"F_NAME=1,F_NUMBER", L"F_NAME) VALUES (1", L"F_NAME'", L"F_ NAME"})
    {
        EXPECT_EQ(Insert(column, Value::Null()), 0) << column;
        EXPECT_EQ(Update(column, Value::Null()), 0) << column;
    }
    EXPECT_EQ(Fields + Values + SetList, L"");
}

TEST_F(SqlFragments, TheThrowingFormNamesTheColumn)
{
    const test_support::WithLanguage english(resources::Language::English);
    const auto errorOf = [&](auto&& add) {
        try
        {
            add();
        }
        catch (const automation::Error& error)
        {
            return error.Description();
        }
        return std::wstring(L"(none)");
    };
    data::InsertRow inserted(Database.Catalogue);
    data::UpdateRow updated(Database.Catalogue);
    EXPECT_TRUE(
        errorOf([&] { updated.Add(L"F_DATE", L"someday"); }).starts_with(L"F_DATE cannot be formatted: "));
    EXPECT_TRUE(
        errorOf([&] { inserted.Add(L"F_NUMBER", L"1,5"); }).starts_with(L"F_NUMBER cannot be formatted: "));
    MessagesDuring([&] {
        EXPECT_EQ(errorOf([&] { updated.Add(L"F_ELSE", L"x"); }),
                  L"F_ELSE cannot be formatted: SynFields has no such column");
    });
    EXPECT_EQ(inserted.Fields() + inserted.Values() + updated.SetList(), L"");
}

} // namespace
