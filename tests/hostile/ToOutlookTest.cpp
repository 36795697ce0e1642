// Whole host rows on their way into Outlook, every column hostile: an item is saved as the row has it, or the
// pass reports that it failed and has saved nothing (of a task: no more than came before the failure).
#include "automation/Dates.h"
#include "automation/Readable.h"
#include "automation/Text.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/host/RelationRows.h"
#include "tests/hostile/HostileRecords.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"
#include "tests/support/Thoroughness.h"

#include <set>

namespace
{

using namespace test_support;
using automation::TextOrEmpty;
using automation::ToUtf8;
using enum Sort;

constexpr PropertyRow kContact[] = {
    {L"F_SURNAME", Text},       {L"F_GIVENNAME", Text},      {L"F_NICKNAME", Text},
    {L"F_TITLE", Text},         {L"F_SUFFIX", Text},         {L"F_SPOUSE", Text},
    {L"F_BIRTHDAY", Date},      {L"F_ANNIVERSARY", Date},    {L"ACC_SNAME", Text},
    {L"F_JOBTITLE", Text},      {L"F_DEPARTMENT", Text},     {L"F_EMAIL", Text},
    {L"F_BUSINESSPHONE", Text}, {L"F_BUSINESSFAX", Text},    {L"F_MOBILEPHONE", Text},
    {L"F_HOMEPHONE", Text},     {L"F_ASSISTANT", Text},      {L"F_ASSISTANTPHONE", Text},
    {L"F_HOMECOUNTRY", Text},   {L"F_HOMEPROVINCE", Text},   {L"F_HOMECITY", Text},
    {L"F_HOMESTREET", Text},    {L"F_HOMEPOSTALCODE", Text}, {L"ADDR_COUNTRY", Text},
    {L"ADDR_PROVINCE", Text},   {L"ADDR_CITY", Text},        {L"ADDR_DETAIL", Text},
    {L"ADDR_POSTALCODE", Text},
};

constexpr PropertyRow kTask[] = {
    {L"F_ACTNAME", Text},         {L"F_ACTTYPE", Text},        {L"F_ACTPETIME", Date},
    {L"F_ACTPSTIME", Date},       {L"F_ACTCREATETIME", Date},  {L"F_ACTPERCENT", Number},
    {L"F_ACTSTATUS", Number},     {L"F_ACTCTIME", Date},       {L"F_ACTCOMPLETED", Flag},
    {L"F_ACTPRIORITY", Number},   {L"F_ACTTOTALWORK", Number}, {L"F_ACTACTUALWORK", Number},
    {L"ACC_SNAME", Text},         {L"CONTACT_SURNAME", Text},  {L"F_ACTREMIND", Flag},
    {L"CONTACT_GIVENNAME", Text},
};

constexpr PropertyRow kEntry[] = {
    {L"F_ACTNAME", Text},       {L"F_ACTTYPE", Text},         {L"F_ACTESDATE", Date},
    {L"F_ACTREMIND", Flag},     {L"ACT_REPEATS", Flag},       {L"F_ACTESTIME", Date},
    {L"F_ACTEETIME", Date},     {L"ACT_DURATION", Date},      {L"F_ACTREPTEDATE", Date},
    {L"CONTACT_SURNAME", Text}, {L"CONTACT_GIVENNAME", Text}, {L"FR_NAME", Text},
};

// Texts that arrive as they are, by the relation rows of the English edition.
const std::set<std::wstring> kNotAsIs{L"Suffix", L"ContactNames", L"Recipients"};
const std::set<std::wstring> kTexts{L"FirstName",
                                    L"LastName",
                                    L"NickName",
                                    L"Title",
                                    L"Spouse",
                                    L"CompanyName",
                                    L"JobTitle",
                                    L"Department",
                                    L"Email1Address",
                                    L"BusinessTelephoneNumber",
                                    L"HomeAddressStreet",
                                    L"BusinessAddressStreet",
                                    L"Subject",
                                    L"Categories",
                                    L"Companies"};

class HostileExport : public OfficeFixture
{
  protected:
    // The pass with this one row, into a new item or over the folder's first; whether it failed.
    bool Export(const TestedKind& kind, const ItemValues& record, bool isNew)
    {
        sandbox::ResultSet rows;
        rows.rows.emplace_back();
        for (const auto& [name, value] : record)
        {
            rows.columns.push_back({name});
            rows.rows[0].push_back(value);
        }
        exchange::Run run = RunOverFolder(kind, Display);
        run.HostRows = automation::Recordset(sandbox::MakeRecordset(std::move(rows)));
        (isNew ? run.Pending.NewHostRecords : run.Pending.ChangedHostRecords).Add(1, 1);
        run.Pending.ChangedOutlookItems.Add(L"1", 1);
        return kind.tested.ToOutlook(run);
    }

    // The texts of an item that the relation rows lead to.
    std::vector<std::wstring> TextsOf(const TestedKind& kind, long position)
    {
        std::vector<std::wstring> texts;
        texts.reserve(kTexts.size());
        for (const std::wstring& property : kTexts)
        {
            texts.push_back(property + L"=" + TextIn(kind, position, property));
        }
        return texts;
    }

    std::wstring TextIn(const TestedKind& kind, long position, const std::wstring& property)
    {
        try
        {
            return TextOrEmpty(Mailbox->ItemProperty(kind.folder, position, property));
        }
        catch (const automation::Error&)
        {
            return L"(none)"; // of another kind of item
        }
    }

    void ExpectAsTheRowHasIt(const TestedKind& kind, const ItemValues& record, long position)
    {
        for (const auto& rows : {sandbox::RelationRows(), sandbox::NameRows(sandbox::Edition::English)})
        {
            for (const sandbox::RelationRow& row : rows)
            {
                // Outside the Chinese interface the names are exchanged.
                const std::wstring related = row.property;
                const std::wstring property = related == L"FirstName"  ? L"LastName"
                                              : related == L"LastName" ? L"FirstName"
                                                                       : related;
                if (std::wstring(kind.relationTable) == row.table && kTexts.contains(property))
                {
                    EXPECT_EQ(TextOrEmpty(record.at(row.column)), TextIn(kind, position, property))
                        << ToUtf8(property);
                }
            }
        }
    }

    template<typename Rows>
    void ExportMany(const TestedKind& kind, const Rows& columns, HostileValues& values, long count)
    {
        long saved = 0;
        for (long i = 0; i < count && !HasFailure(); ++i)
        {
            SCOPED_TRACE("row " + std::to_string(i) + ", seed " + std::to_string(values.Seed()));
            if (i % 50 == 0)
            {
                UseNewMailbox();
                Mailbox->AddItem(kind.folder, {{L"Subject", L"First"}});
            }
            ItemValues record = HostileRecord(columns, values);
            Moderate(record, values);
            saved += ExportOne(kind, record, values.OneIn(2)) ? 1 : 0;
        }
        EXPECT_GT(saved, count / 10);
        values.Report(std::to_string(count) + " rows, " + std::to_string(saved) + " saved");
    }

    // Of a calendar entry without a date that Outlook can hold, and of a series that ends before it begins,
    // nothing is written; the pass goes on.
    static bool IsLeftOut(const TestedKind& kind, const ItemValues& record)
    {
        if (kind.itemKind != sandbox::ItemKind::Appointment)
        {
            return false;
        }
        const auto first = automation::OutlookDate(record.at(L"F_ACTESDATE"));
        const auto last = automation::OutlookDate(record.at(L"F_ACTREPTEDATE"));
        const bool repeats = automation::IsTrue(record.at(L"ACT_REPEATS"));
        return !first || (repeats && last && automation::DayOf(*last) < automation::DayOf(*first));
    }

    // Whether the row arrived, or was left out.
    bool ExportOne(const TestedKind& kind, const ItemValues& record, bool isNew)
    {
        const long before = Mailbox->ItemCount(kind.folder);
        const auto texts = TextsOf(kind, 1);
        const bool failed = Export(kind, record, isNew);
        const long added = Mailbox->ItemCount(kind.folder) - before;
        if (!failed && IsLeftOut(kind, record))
        {
            EXPECT_EQ(0, added);
            EXPECT_EQ(texts, TextsOf(kind, 1));
        }
        else if (!failed)
        {
            EXPECT_EQ(isNew ? 1 : 0, added);
            ExpectAsTheRowHasIt(kind, record, isNew ? before + 1 : 1);
        }
        else if (kind.savesItemOnce)
        {
            EXPECT_EQ(0, added);
            EXPECT_EQ(texts, TextsOf(kind, 1));
        }
        EXPECT_LE(added, isNew ? 1 : 0);
        return !failed;
    }

    // Half of the rows have dates and numbers that Outlook can hold, and fewer names that its search cannot.
    static void Moderate(ItemValues& record, HostileValues& values)
    {
        if (values.OneIn(2))
        {
            return;
        }
        for (auto& [name, value] : record)
        {
            const bool isDate = name.ends_with(L"TIME") || name.ends_with(L"DATE") || name == L"F_BIRTHDAY" ||
                                name == L"F_ANNIVERSARY" || name == L"ACT_DURATION";
            const bool isName = name.starts_with(L"CONTACT_");
            value = isDate ? Value(automation::Date{37747 + static_cast<double>(values.Below(48)) / 48})
                    : isName && values.OneIn(2) ? Value::Null()
                                                : value;
        }
        if (record.contains(L"F_ACTPERCENT"))
        {
            record[L"F_ACTPERCENT"] = static_cast<double>(values.Below(101)) / 100;
            record[L"F_ACTPRIORITY"] = static_cast<long>(1 + values.Below(3));
        }
        if (values.OneIn(2) && record.contains(L"FR_NAME"))
        {
            record[L"FR_NAME"] = sandbox::kRepeatRules[values.Below(std::size(sandbox::kRepeatRules))];
        }
    }
};

TEST_F(HostileExport, ContactsAreSavedWholeOrNotAtAll)
{
    HostileValues values("contacts to Outlook");
    ExportMany(kContactKind, kContact, values, Times(600));
}

TEST_F(HostileExport, TasksAreSavedWholeOrThePassFails)
{
    HostileValues values("tasks to Outlook");
    ExportMany(kTaskKind, kTask, values, Times(600));
}

TEST_F(HostileExport, AppointmentsAreSavedWholeOrNotAtAll)
{
    HostileValues values("appointments to Outlook");
    ExportMany(kCalendarKind, kEntry, values, Times(600));
}

} // namespace
