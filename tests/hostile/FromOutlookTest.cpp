// Whole items on their way into the host, every property hostile: what is written is one record or none, with
// the values that the contract gives it, and nothing else changes.
#include "tests/hostile/FromOutlook.h"
#include "sandbox/host/FieldRows.h"
#include "sandbox/host/Literals.h"
#include "sandbox/host/RelationRows.h"
#include "tests/hostile/HostileRecords.h"
#include "tests/hostile/Oracle.h"
#include "tests/support/Thoroughness.h"

#include "automation/Text.h"

#include <algorithm>

namespace
{

using namespace test_support;
using sandbox::Literal;
using enum Sort;

constexpr PropertyRow kContact[] = {
    {L"LastName", Text},
    {L"FirstName", Text},
    {L"Suffix", Text},
    {L"Title", Text},
    {L"Birthday", Date},
    {L"Anniversary", Date},
    {L"NickName", Text},
    {L"Spouse", Text},
    {L"HomeAddressCountry", Text},
    {L"HomeAddressState", Text},
    {L"HomeAddressCity", Text},
    {L"HomeAddressStreet", Text},
    {L"HomeAddressPostalCode", Text},
    {L"JobTitle", Text},
    {L"Department", Text},
    {L"AssistantName", Text},
    {L"BusinessTelephoneNumber", Text},
    {L"BusinessFaxNumber", Text},
    {L"MobileTelephoneNumber", Text},
    {L"HomeTelephoneNumber", Text},
    {L"AssistantTelephoneNumber", Text},
    {L"Email1Address", Text},
    {L"CompanyName", Text},
    {L"BusinessAddressCountry", Text},
    {L"BusinessAddressState", Text},
    {L"BusinessAddressCity", Text},
    {L"BusinessAddressStreet", Text},
    {L"BusinessAddressPostalCode", Text},
};

constexpr PropertyRow kTask[] = {
    {L"Subject", Text},           {L"Categories", Text},    {L"StartDate", Date},
    {L"DueDate", Date},           {L"DateCompleted", Date}, {L"CreationTime", Date},
    {L"PercentComplete", Number}, {L"Importance", Number},  {L"Status", Number},
    {L"Complete", Flag},          {L"ReminderSet", Flag},   {L"TotalWork", Number},
    {L"ActualWork", Number},      {L"ContactNames", Text},  {L"Companies", Text},
    {L"OutlookVersion", Text},
};

constexpr PropertyRow kAppointment[] = {
    {L"Subject", Text},     {L"Categories", Text},  {L"Start", Date},       {L"End", Date},
    {L"AllDayEvent", Flag}, {L"IsRecurring", Flag}, {L"ReminderSet", Flag}, {L"Companies", Text},
};

constexpr PropertyRow kPattern[] = {
    {L"RecurrenceType", Number}, {L"StartTime", Date},        {L"EndTime", Date},
    {L"Duration", Number},       {L"PatternStartDate", Date}, {L"PatternEndDate", Date},
};

// The property whose value a column gets, where that is the property as it is. Contacts exchange their names
// outside the Chinese interface.
std::wstring SourceOf(const std::wstring& property)
{
    return property == L"LastName" ? L"FirstName" : property == L"FirstName" ? L"LastName" : property;
}

class HostileImport : public HostileFromOutlook
{
  protected:
    // Makes an item, imports it as a new row or over an existing one, and checks everything; so many times.
    template<typename Make>
    void ImportMany(const TestedKind& kind, HostileValues& values, long count, Make&& make)
    {
        for (long i = 0; i < count && !HasFailure(); ++i)
        {
            SCOPED_TRACE("item " + std::to_string(i) + ", seed " + std::to_string(values.Seed()));
            const bool isNew = values.OneIn(2);
            mItem = make(values);
            Import(kind, MakeHostileItem(mItem), isNew);
            ExpectOneRecordAtMost(kind, isNew);
            CheckTexts(kind);
            if (i % 25 == 0 || i + 1 == count)
            {
                ExpectTheRestUntouched();
                Clear();
            }
        }
        EXPECT_GT(mWritten, count / 5);
        values.Report(std::to_string(count) + " items, " + std::to_string(mWritten) + " written, " +
                      std::to_string(mStatementCount) + " statements checked, " +
                      std::to_string(mBoxes.Count()) + " messages");
    }

    void CheckTexts(const TestedKind& kind)
    {
        const auto written = ColumnsWritten(mStatements, kind.table);
        for (const auto& rows : {sandbox::RelationRows(), sandbox::NameRows(sandbox::Edition::English)})
        {
            for (const sandbox::RelationRow& row : rows)
            {
                const auto literal = written.find(row.column);
                if (literal != written.end() && std::wstring(kind.relationTable) == row.table)
                {
                    CheckText(row, literal->second);
                }
            }
        }
    }

    void CheckText(const sandbox::RelationRow& row, const Literal& literal)
    {
        const auto fields = sandbox::FieldRows();
        const auto field = std::ranges::find_if(
            fields, [&](const sandbox::FieldRow& one) { return std::wstring(one.column) == row.column; });
        ASSERT_NE(fields.end(), field);
        if (field->rule != sandbox::FieldRule::Text && field->rule != sandbox::FieldRule::LongText)
        {
            return;
        }
        const std::wstring property = SourceOf(row.property);
        const std::wstring text = automation::TextOrEmpty(mItem[property]);
        const std::wstring expected = text.empty() && property == L"Categories" ? L"(Unspecified)" : text;
        EXPECT_EQ(expected.empty() ? Literal::Kind::Null : Literal::Kind::Text, literal.kind);
        EXPECT_EQ(KeptText(expected, field->size), literal.text) << automation::ToUtf8(row.column);
    }
};

TEST_F(HostileImport, ContactsAreWrittenWholeOrNotAtAll)
{
    HostileValues values("contacts from Outlook");
    ImportMany(kContactKind, values, Times(600),
               [](HostileValues& from) { return HostileRecord(kContact, from); });
}

TEST_F(HostileImport, TasksAreWrittenWholeOrNotAtAll)
{
    HostileValues values("tasks from Outlook");
    ImportMany(kTaskKind, values, Times(600), [](HostileValues& from) { return HostileRecord(kTask, from); });
}

TEST_F(HostileImport, AppointmentsAreWrittenWholeOrNotAtAll)
{
    HostileValues values("appointments from Outlook");
    ImportMany(kCalendarKind, values, Times(600), [](HostileValues& from) {
        ItemValues item = HostileRecord(kAppointment, from);
        item[L"GetRecurrencePattern"] =
            from.OneIn(40) ? from.Any() : Value(MakeHostileItem(HostileRecord(kPattern, from)));
        return item;
    });
}

} // namespace
