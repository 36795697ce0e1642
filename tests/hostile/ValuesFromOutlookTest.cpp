// The page says what a value of an item does to the host's row. Whatever it does, the pass goes on.
#include "sandbox/host/Literals.h"
#include "tests/hostile/FromOutlook.h"
#include "tests/hostile/ValueTable.h"

#include <algorithm>

namespace
{

using namespace test_support;
using sandbox::Literal;

constexpr const char* kPageOfValues = "exchange-rules.md";
constexpr const char* kHeadingFromOutlook = "Kind, from Outlook";

struct SourceKind : TestedKind
{
    const char* onPage; // its name there
    ItemValues item;    // what an item holds beside the value under test
};

const SourceKind kSourceKinds[] = {
    {kContactKind, "Contact", {{L"LastName", L"Li"}, {L"FirstName", L"Ming"}, {L"CompanyName", L"Quay"}}},
    {kTaskKind,
     "Task",
     {{L"Subject", L"Call"},
      {L"StartDate", Day(2003, 5, 6)},
      {L"Status", 2L},
      {L"PercentComplete", 100L},
      {L"Importance", 1L},
      {L"ReminderSet", true},
      {L"TotalWork", 0L},
      {L"ActualWork", 0L}}},
    {kCalendarKind,
     "Calendar",
     {{L"Subject", L"Board"},
      {L"Start", Day(2003, 5, 6, 9, 30)},
      {L"End", Day(2003, 5, 6, 10, 30)},
      {L"AllDayEvent", false},
      {L"IsRecurring", false},
      {L"ReminderSet", true}}},
};

// Of the appointment, where it is made a recurring one.
const ItemValues kDailySeries{
    {L"RecurrenceType", 0L}, {L"StartTime", automation::Date{0.25}}, {L"EndTime", automation::Date{0.5}},
    {L"Duration", 360L},     {L"PatternStartDate", Day(2003, 5, 6)}, {L"PatternEndDate", Day(2003, 5, 9)}};

// Properties that reach a column of the host by another way than a relation row of their own.
struct OtherWay
{
    const char* kind;
    const wchar_t* property;
    const wchar_t* table;
    const wchar_t* column;
};

constexpr OtherWay kOtherWays[] = {
    {"Contact", L"LastName", L"TBLCONTACT", L"F_SURNAME"}, // the names are exchanged in English
    {"Contact", L"FirstName", L"TBLCONTACT", L"F_GIVENNAME"},
    {"Contact", L"CompanyName", L"TBLCONTACT", L"F_ACCID"},
    {"Contact", L"BusinessAddressCountry", L"TBLADDRESS", L"F_ADDRCOUNTRY"},
    {"Contact", L"BusinessAddressState", L"TBLADDRESS", L"F_ADDRPROVINCE"},
    {"Contact", L"BusinessAddressCity", L"TBLADDRESS", L"F_ADDRCITY"},
    {"Contact", L"BusinessAddressStreet", L"TBLADDRESS", L"F_ADDRDETAIL"},
    {"Contact", L"BusinessAddressPostalCode", L"TBLADDRESS", L"F_POSTALCODE"},
    {"Task", L"ContactNames", L"TBLACTIVITY", L"F_CNTCTID"},
    {"Task", L"Companies", L"TBLACTIVITY", L"F_ACCID"},
    {"Calendar", L"Companies", L"TBLACTIVITY", L"F_ACCID"},
    {"Calendar", L"End", L"TBLACTIVITY", L"F_ACTEETIME"},
};

struct Place
{
    std::wstring table;
    std::wstring column;
};

Place PlaceOf(const SourceKind& kind, const std::wstring& property)
{
    for (const OtherWay& one : kOtherWays)
    {
        if (std::string(one.kind) == kind.onPage && property == one.property)
        {
            return {one.table, one.column};
        }
    }
    for (const sandbox::RelationRow& row : sandbox::RelationRows())
    {
        if (std::wstring(row.table) == kind.relationTable && property == row.property)
        {
            return {kind.table, row.column};
        }
    }
    return {};
}

class ValuesFromOutlook : public HostileFromOutlook
{
  protected:
    // The page's word for what the value makes of the row.
    std::string Effect(const SourceKind& kind, const std::wstring& property, const Value& value)
    {
        const bool isChinese = property == L"Suffix";
        resources::OverrideLanguage(isChinese ? resources::Language::Chinese : resources::Language::English);
        Clear();
        mItem = kind.item;
        mItem[L"GetRecurrencePattern"] = MakeHostileItem(kDailySeries);
        mItem[property] = value;
        Import(kind, MakeHostileItem(mItem), false);
        if (ColumnsWritten(mStatements, kind.table).empty())
        {
            return "left out";
        }
        const Place place = PlaceOf(kind, property);
        const auto written = ColumnsWritten(mStatements, place.table);
        const auto literal = written.find(place.column);
        return literal == written.end()                      ? "as it was"
               : literal->second.kind == Literal::Kind::Null ? "NULL"
                                                             : "written";
    }
};

TEST_F(ValuesFromOutlook, HaveTheDocumentedEffectAndThePassContinues)
{
    const auto values = ValuesOfColumns();
    std::set<std::wstring> told;
    for (const PageCells& cells : TableOfPage(kPageOfValues, kHeadingFromOutlook))
    {
        const auto* const kind = std::ranges::find(
            kSourceKinds, cells.at(0), [](const SourceKind& one) { return std::string(one.onPage); });
        ASSERT_NE(std::end(kSourceKinds), kind) << cells[0];
        ASSERT_EQ(2 + kValueColumns, cells.size()) << cells[1];
        for (const std::wstring& property : NamesIn(cells[1]))
        {
            told.insert(automation::FromUtf8(cells[0]) + L" " + property);
            for (size_t column = 0; column < kValueColumns; ++column)
            {
                EXPECT_EQ(cells[2 + column], Effect(*kind, property, values[column]))
                    << cells[0] << " " << automation::ToUtf8(property) << ", column " << column;
            }
        }
    }
    std::set<std::wstring> related = RelatedProperties();
    related.erase(L"Calendar Recipients"); // goes to Outlook only
    for (const OtherWay& one : kOtherWays)
    {
        related.insert(automation::FromUtf8(one.kind) + L" " + one.property);
    }
    for (const std::wstring& name : related)
    {
        EXPECT_TRUE(told.contains(name)) << automation::ToUtf8(name);
    }
}

} // namespace
