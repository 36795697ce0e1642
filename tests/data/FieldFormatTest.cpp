#include "data/FieldFormat.h"
#include "data/ContractForms.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Object.h"
#include "tests/data/CatalogueOffice.h"
#include "tests/support/Days.h"
#include "tests/support/MessageBoxes.h"

#include <gtest/gtest.h>

#include <limits>

#include <oleauto.h>

namespace
{

using automation::Date;
using automation::TextOf;
using automation::Value;
using data::FormatFieldlValue;
using test_support::Day;
using test_support::MessagesDuring;
using test_support::ShownMessage;

// Every literal must be the same whatever the regional settings say: these differ in the decimal mark, in the
// order of a date's parts and in its separators.
class FieldFormat : public testing::TestWithParam<LCID>
{
  protected:
    FieldFormat() : mBefore(GetThreadLocale()) { SetThreadLocale(GetParam()); }
    ~FieldFormat() override { SetThreadLocale(mBefore); }

    // The literal as text; "(failed)" for -1.
    std::wstring Literal(const std::wstring& column, Value value)
    {
        return FormatFieldlValue(Database.Catalogue, column, value) == 0 ? TextOf(value) : L"(failed)";
    }

    test_support::CatalogueOffice Database;

  private:
    LCID mBefore;
};

Value Raw(VARTYPE type, LONGLONG bits)
{
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = type;
    variant.llVal = bits;
    return Value(variant);
}

TEST_P(FieldFormat, ANumberIsUnchangedAndHasADecimalPoint)
{
    for (const wchar_t* column : {L"F_NUMBER", L"F_AMOUNT"})
    {
        EXPECT_EQ(Literal(column, 42L), L"42");
        EXPECT_EQ(Literal(column, -7), L"-7");
        EXPECT_EQ(Literal(column, static_cast<short>(3)), L"3");
        EXPECT_EQ(Literal(column, 0.75), L"0.75");
        EXPECT_EQ(Literal(column, 1234567.5), L"1234567.5");
        EXPECT_EQ(Literal(column, Raw(VT_UI1, 200)), L"200");
        EXPECT_EQ(Literal(column, Raw(VT_I8, 9007199254740993)), L"9007199254740993");
        EXPECT_EQ(Literal(column, Raw(VT_CY, 12345)), L"1.2345");
    }
}

TEST_P(FieldFormat, ATextThatIsAPlainNumberStaysUnchanged)
{
    for (const wchar_t* number :
         {L"12.5", L"-12", L"1e5", L"007", L"12345678901234567", L"0.12345678901234567"})
    {
        EXPECT_EQ(Literal(L"F_NUMBER", number), number);
        EXPECT_EQ(Literal(L"F_AMOUNT", number), number);
    }
}

TEST_P(FieldFormat, NoOtherTextIsReadAsANumber)
{
    for (const wchar_t* text : {L"1,5", L"1.000,5", L"(12)", L"&H10", L"$5", L"True", L" 12 ", L"1 2"})
    {
        EXPECT_EQ(Literal(L"F_NUMBER", text), L"(failed)");
        EXPECT_EQ(Literal(L"F_AMOUNT", text), L"(failed)");
    }
}

TEST_P(FieldFormat, ANumberColumnTakesOtherTypesAsAutomationReadsThem)
{
    EXPECT_EQ(Literal(L"F_NUMBER", true), L"-1");
    EXPECT_EQ(Literal(L"F_NUMBER", Date{2.5}), L"2.5");
}

TEST_P(FieldFormat, NoTextReachesANumberColumnUnread)
{
    EXPECT_EQ(Literal(L"F_NUMBER", L"1); DROP TABLE TBLCONTACT"), L"(failed)");
    EXPECT_EQ(Literal(L"F_NUMBER", L"'"), L"(failed)");
    EXPECT_EQ(Literal(L"F_AMOUNT", L"twelve"), L"(failed)");
}

TEST_P(FieldFormat, AValueThatIsNoFiniteNumberFailsTheColumn)
{
    for (const double number :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()})
    {
        for (const wchar_t* column : {L"F_NUMBER", L"F_AMOUNT", L"F_DATE", L"F_TIME", L"F_MOMENT"})
        {
            EXPECT_EQ(Literal(column, number), L"(failed)");
            EXPECT_EQ(Literal(column, Date{number}), L"(failed)");
        }
    }
}

TEST_P(FieldFormat, ATextIsPutInSingleQuotes)
{
    EXPECT_EQ(Literal(L"F_NAME", L"Miller"), L"'Miller'");
    EXPECT_EQ(Literal(L"F_NOTES", L"王小明 \u00d6"), L"'王小明 \u00d6'");
    EXPECT_EQ(Literal(L"F_NOTES", L"a\r\nb"), L"'a\r\nb'");
}

TEST_P(FieldFormat, AnApostropheIsDoubled)
{
    EXPECT_EQ(Literal(L"F_NAME", L"O'Brien"), L"'O''Brien'");
    EXPECT_EQ(Literal(L"F_NOTES", L"O'Brien & S\u00f6hne GmbH"), L"'O''Brien & S\u00f6hne GmbH'");
    EXPECT_EQ(Literal(L"F_NOTES", L"''"), L"''''''");
}

TEST_P(FieldFormat, ATextIsCutToTheColumnAfterTheDoubling)
{
    EXPECT_EQ(Literal(L"F_NAME", L"Wolfeschlegelstein"), L"'Wolfeschle'");
    EXPECT_EQ(Literal(L"F_NAME", L"O'Shaughnessy"), L"'O''Shaughn'");
    EXPECT_EQ(Literal(L"F_NAME", L"欧阳修欧阳修"), L"'欧阳修欧阳'");
}

TEST_P(FieldFormat, TheCutNeverLeavesHalfADoubledApostrophe)
{
    EXPECT_EQ(Literal(L"F_NAME", L"123456789'x"), L"'123456789'");
    EXPECT_EQ(Literal(L"F_NAME", L"12345678'x"), L"'12345678'''");
    EXPECT_EQ(Literal(L"F_NAME", L"1'''''''''"), L"'1'''''''''");
    EXPECT_EQ(Literal(L"F_NAME", L"''''''''''"), L"''''''''''''");
    Database.AddField(L"F_INITIAL", 2, 1);
    Database.Catalogue.Forget();
    EXPECT_EQ(Literal(L"F_INITIAL", L"'"), L"''");
}

TEST_P(FieldFormat, ATextColumnTakesEveryTypeThatAutomationCanWriteAsText)
{
    EXPECT_EQ(Literal(L"F_NAME", 12L), L"'12'");
    EXPECT_EQ(Literal(L"F_NAME", 0.5), L"'0.5'");
    EXPECT_EQ(Literal(L"F_NAME", true), L"'True'");
    EXPECT_EQ(Literal(L"F_NOTES", Day(2003, 5, 6)), L"'5/6/2003'");
}

TEST_P(FieldFormat, AFlagIsZeroForFalseAndOneOtherwise)
{
    EXPECT_EQ(Literal(L"F_FLAG", true), L"1");
    EXPECT_EQ(Literal(L"F_FLAG", false), L"0");
    EXPECT_EQ(Literal(L"F_FLAG", -1L), L"1");
    EXPECT_EQ(Literal(L"F_FLAG", 2L), L"1");
    EXPECT_EQ(Literal(L"F_FLAG", 0L), L"0");
    EXPECT_EQ(Literal(L"F_FLAG", L"True"), L"1");
    EXPECT_EQ(Literal(L"F_FLAG", L"0"), L"0");
    EXPECT_EQ(Literal(L"F_FLAG", L"False"), L"0");
    EXPECT_EQ(Literal(L"F_FLAG", L"perhaps"), L"1"); // not equal to False
    EXPECT_EQ(Literal(L"F_FLAG", Raw(VT_ERROR, DISP_E_PARAMNOTFOUND)), L"1");
    EXPECT_EQ(Literal(L"F_FLAG", 0.4), L"1");
}

TEST_P(FieldFormat, ADateIsWrittenMonthFirst)
{
    EXPECT_EQ(Literal(L"F_DATE", Day(2003, 5, 6, 23, 59, 59)), L"'05/06/2003'");
    EXPECT_EQ(Literal(L"F_DATE", L"2003-05-06"), L"'05/06/2003'");
    EXPECT_EQ(Literal(L"F_DATE", L"5/6/2003"), L"'05/06/2003'");
    EXPECT_EQ(Literal(L"F_DATE", 37747L), L"'05/06/2003'");
}

TEST_P(FieldFormat, ADateOutsideTheHostsRangeIsClamped)
{
    EXPECT_EQ(Literal(L"F_DATE", Day(1700, 1, 1)), L"'01/01/1753'");
    EXPECT_EQ(Literal(L"F_DATE", Day(1752, 12, 31, 23, 0)), L"'01/01/1753'");
    EXPECT_EQ(Literal(L"F_DATE", Day(1753, 1, 2)), L"'01/02/1753'");
    EXPECT_EQ(Literal(L"F_DATE", Day(9999, 12, 30, 12, 0)), L"'12/30/9999'");
    EXPECT_EQ(Literal(L"F_DATE", Day(9999, 12, 31)), L"'12/30/9999'");
    EXPECT_EQ(Literal(L"F_DATE", Raw(VT_DATE, 0x4415AF1D78B58C40)), L"'12/30/9999'"); // 1e20 days
}

TEST_P(FieldFormat, ATimeHasZeroSeconds)
{
    EXPECT_EQ(Literal(L"F_TIME", Day(2003, 5, 6, 10, 15, 42)), L"'10:15:00'");
    EXPECT_EQ(Literal(L"F_TIME", Date{0.75}), L"'18:00:00'");
    EXPECT_EQ(Literal(L"F_TIME", L"10:15:42"), L"'10:15:00'");
}

TEST_P(FieldFormat, ADateWithTimeHasZeroSecondsAndIsClamped)
{
    EXPECT_EQ(Literal(L"F_MOMENT", Day(2003, 5, 6, 22, 4, 59)), L"'05/06/2003 22:04:00'");
    EXPECT_EQ(Literal(L"F_MOMENT", Day(1700, 1, 1, 8, 30)), L"'01/01/1753 00:00:00'");
    EXPECT_EQ(Literal(L"F_MOMENT", Day(1753, 1, 1, 8, 30)), L"'01/01/1753 08:30:00'");
    EXPECT_EQ(Literal(L"F_MOMENT", Day(9999, 12, 30, 23, 58)), L"'12/30/9999 23:58:00'");
    EXPECT_EQ(Literal(L"F_MOMENT", Day(9999, 12, 30, 23, 59, 30)), L"'12/30/9999 23:59:00'");
    EXPECT_EQ(Literal(L"F_MOMENT", Day(9999, 12, 31, 23, 59)), L"'12/30/9999 23:59:00'");
}

TEST_P(FieldFormat, ATextThatIsNoDateFailsTheColumn)
{
    for (const wchar_t* column : {L"F_DATE", L"F_TIME", L"F_MOMENT"})
    {
        EXPECT_EQ(Literal(column, L"next Tuesday"), L"(failed)") << column;
    }
}

TEST_P(FieldFormat, AValueThatHasNoTextFailsTheColumnAndStaysAsItWas)
{
    Value value = Raw(VT_ERROR, DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(FormatFieldlValue(Database.Catalogue, L"F_NAME", value), -1);
    EXPECT_EQ(value.Type(), VT_ERROR);
    Value nothing = automation::Object();
    EXPECT_EQ(FormatFieldlValue(Database.Catalogue, L"F_NAME", nothing), -1);
}

TEST_P(FieldFormat, AnUnknownColumnIsReportedAndFails)
{
    Value value = L"x";
    const std::vector<ShownMessage> expected = {
        {L"Don't find F_ELSEfield in table 'SynFields', can't format ", L"GetFieldType", IDI_ERROR}};
    EXPECT_EQ(MessagesDuring([&] { EXPECT_EQ(FormatFieldlValue(Database.Catalogue, L"F_ELSE", value), -1); }),
              expected);
    EXPECT_EQ(TextOf(value), L"x");
}

TEST_P(FieldFormat, ColumnsAreFoundByExactName)
{
    MessagesDuring([&] { EXPECT_EQ(Literal(L"F_name", L"x"), L"(failed)"); });
    MessagesDuring([&] { EXPECT_EQ(Literal(L"F_NAME ", L"x"), L"(failed)"); });
}

TEST_P(FieldFormat, AnUnknownTypeIsReportedAndTheValueStaysUnformatted)
{
    Database.AddField(L"F_PICTURE", 9, 10);
    Database.AddField(L"F_ZERO", 0, 10);
    Value value = 5L;
    std::vector<ShownMessage> expected = {{L"Don't format:F_PICTURE", L"FormatFieldlValue", nullptr}};
    EXPECT_EQ(
        MessagesDuring([&] { EXPECT_EQ(FormatFieldlValue(Database.Catalogue, L"F_PICTURE", value), 0); }),
        expected);
    EXPECT_EQ(value.Type(), VT_I4);
    EXPECT_EQ(MessagesDuring([&] { EXPECT_EQ(Literal(L"F_ZERO", 5L), L"5"); }).size(), 1u);
}

TEST_P(FieldFormat, ARowWithoutTypeOrSizeFailsItsOwnColumnOnly)
{
    Database.AddField(L"F_NOTYPE", Value::Null(), 10);
    Database.AddField(L"F_NOSIZE", 2, Value::Null());
    Database.AddField(L"F_DAY", 4, Value::Null());
    Database.Execute(L"INSERT INTO SynFields VALUES (NULL, NULL, NULL)");
    EXPECT_EQ(Literal(L"F_NOTYPE", L"x"), L"(failed)");
    EXPECT_EQ(Literal(L"F_NOSIZE", L"x"), L"(failed)");
    EXPECT_EQ(Literal(L"F_DAY", Date{1}), L"'12/31/1899'");
    EXPECT_EQ(Literal(L"F_NAME", L"x"), L"'x'");
}

TEST_P(FieldFormat, TheFirstOfTwoRowsForAColumnCounts)
{
    Database.AddField(L"F_NAME", 1, 0);
    EXPECT_EQ(Literal(L"F_NAME", 5L), L"'5'");
}

TEST_P(FieldFormat, TheCatalogueIsReadOnceUntilItIsForgotten)
{
    EXPECT_EQ(Literal(L"F_NAME", L"x"), L"'x'");
    Database.Execute(L"UPDATE SynFields SET FieldSize=1 WHERE FieldName='F_NAME'");
    EXPECT_EQ(Literal(L"F_NAME", L"xyz"), L"'xyz'");
    Database.Catalogue.Forget();
    EXPECT_EQ(Literal(L"F_NAME", L"xyz"), L"'x'");
}

TEST_P(FieldFormat, ACatalogueThatCannotBeReadFailsTheColumnWithoutAMessageAndIsReadAgain)
{
    Database.Execute(L"ALTER TABLE SynFields RENAME TO Elsewhere");
    EXPECT_TRUE(MessagesDuring([&] { EXPECT_EQ(Literal(L"F_NAME", L"x"), L"(failed)"); }).empty());
    Database.Execute(L"ALTER TABLE Elsewhere RENAME TO SynFields");
    EXPECT_EQ(Literal(L"F_NAME", L"x"), L"'x'");
}

INSTANTIATE_TEST_SUITE_P(Locales, FieldFormat,
                         testing::Values(MAKELCID(0x0409, SORT_DEFAULT), MAKELCID(0x0407, SORT_DEFAULT),
                                         MAKELCID(0x0804, SORT_DEFAULT)),
                         [](const auto& instance) {
                             return instance.param == 0x0409   ? "English"
                                    : instance.param == 0x0407 ? "German"
                                                               : "Chinese";
                         });

} // namespace
