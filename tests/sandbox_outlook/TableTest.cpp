#include "tests/sandbox_outlook/OutlookFixture.h"

#include <oleauto.h>

namespace sandbox
{

class FolderTable : public OutlookFixture
{
  protected:
    FolderTable()
    {
        for (const wchar_t* name : {L"1", L"2", L"3", L"4"})
        {
            mMailbox->AddItem(kContacts, {{L"FirstName", L"N"}, {L"LastName", name}});
        }
    }

    automation::Object Table(const automation::Object& folder) const { return folder.GetObject(L"GetTable"); }
    // A table of contacts with these columns.
    automation::Object Table(std::initializer_list<const wchar_t*> columns) const
    {
        auto table = Table(Contacts());
        table.GetObject(L"Columns").Call(L"RemoveAll");
        for (const wchar_t* column : columns)
        {
            table.GetObject(L"Columns").Call(L"Add", column);
        }
        return table;
    }

    static std::wstring ColumnsOf(const automation::Object& table)
    {
        std::wstring names;
        const auto columns = table.GetObject(L"Columns");
        for (long i = 1; i <= Number(columns, L"Count"); ++i)
        {
            names += Text(columns.GetObject(L"Item", i), L"Name") + L" ";
        }
        return names;
    }

    // The first column of all rows, each followed by a blank.
    static std::wstring FirstColumn(const automation::Object& table)
    {
        std::wstring texts;
        while (!Truth(table, L"EndOfTable"))
        {
            texts += automation::TextOrEmpty(table.GetObject(L"GetNextRow").Get(L"Item", 1)) + L" ";
        }
        return texts;
    }

    static automation::Value Element(const automation::Value& array, LONG first, LONG second)
    {
        LONG at[] = {first, second};
        automation::Value element;
        EXPECT_EQ(S_OK, SafeArrayGetElement(array.Raw().parray, at, element.Receive()));
        return element;
    }

    static ULONG Size(const automation::Value& array, UINT dimension)
    {
        LONG lower = 0;
        LONG upper = -1;
        SafeArrayGetLBound(array.Raw().parray, dimension, &lower);
        SafeArrayGetUBound(array.Raw().parray, dimension, &upper);
        return static_cast<ULONG>(upper - lower + 1);
    }
};

TEST_F(FolderTable, HasTheDefaultColumnsOfItsFolder)
{
    const std::wstring common = L"EntryID Subject CreationTime LastModificationTime MessageClass ";
    EXPECT_EQ(common + L"FirstName LastName CompanyName ", ColumnsOf(Table(Contacts())));
    EXPECT_EQ(common + L"Start End IsRecurring ", ColumnsOf(Table(Calendar())));
    EXPECT_EQ(common + L"DueDate PercentComplete IsRecurring ", ColumnsOf(Table(Tasks())));
}

TEST_F(FolderTable, GivesRowsOneByOneAndTellsWhereItEnds)
{
    const auto table = Table({L"LastName", L"EntryID"});
    EXPECT_EQ(4, Number(table, L"GetRowCount"));
    EXPECT_EQ(L"1 2 3 4 ", FirstColumn(table));
    EXPECT_FALSE(table.GetObject(L"GetNextRow"));
    table.Call(L"MoveToStart");
    const auto row = table.GetObject(L"GetNextRow");
    EXPECT_EQ(L"1", automation::TextOf(row.Get(L"Item", L"lastname")));
    EXPECT_EQ(Text(Contacts().GetObject(L"Items").GetObject(L"Item", 1), L"EntryID"),
              automation::TextOf(row.Get(L"Item", L"EntryID")));
    EXPECT_EQ(2u, Size(row.Get(L"GetValues"), 1));
}

TEST_F(FolderTable, GivesManyRowsInAnArrayOfColumnsAndRows)
{
    const auto table = Table({L"LastName", L"FirstName"});
    const auto first = table.Get(L"GetArray", 3);
    ASSERT_EQ(VT_ARRAY | VT_VARIANT, first.Type());
    EXPECT_EQ(2u, Size(first, 1));
    EXPECT_EQ(3u, Size(first, 2));
    EXPECT_EQ(L"3", automation::TextOf(Element(first, 0, 2)));
    EXPECT_EQ(L"N", automation::TextOf(Element(first, 1, 2)));
    EXPECT_EQ(L"4", automation::TextOf(Element(table.Get(L"GetArray", 3), 0, 0)));
    EXPECT_TRUE(Truth(table, L"EndOfTable"));
    EXPECT_EQ(0u, Size(table.Get(L"GetArray", 3), 2));
    table.Call(L"MoveToStart");
    mMailbox->Switch(L"TableArrayByRow", true);
    EXPECT_EQ(L"3", automation::TextOf(Element(table.Get(L"GetArray", 3), 2, 0)));
}

TEST_F(FolderTable, AddingAColumnStartsItAfreshAndARefusedOneChangesNothing)
{
    const auto table = Table({L"LastName"});
    table.GetObject(L"GetNextRow");
    for (const wchar_t* name :
         {L"Companies", L"ContactNames", L"Class", L"HTMLBody", L"Links", L"ShoeSize", L""})
    {
        EXPECT_EQ(std::wstring(L"The property \"") + name + L"\" does not support this operation.",
                  FailureOf([&] { table.GetObject(L"Columns").Call(L"Add", name); }));
    }
    EXPECT_EQ(L"LastName ", ColumnsOf(table));
    EXPECT_EQ(L"2 3 4 ", FirstColumn(table));
    table.GetObject(L"Columns").Call(L"Add", L"JobTitle");
    EXPECT_EQ(L"1 2 3 4 ", FirstColumn(table));
    table.GetObject(L"Columns").Call(L"Remove", L"LastName");
    EXPECT_EQ(L"JobTitle ", ColumnsOf(table));
}

TEST_F(FolderTable, CutsTextsAt255Characters)
{
    mMailbox->AddItem(kContacts, {{L"LastName", std::wstring(300, L'x')}});
    const auto table = Table({L"LastName"});
    table.Get(L"GetArray", 4);
    EXPECT_EQ(std::wstring(255, L'x') + L" ", FirstColumn(table));
}

TEST_F(FolderTable, CutsTextsAt255BytesWhereTheyAreCounted)
{
    mMailbox->AddItem(kContacts, {{L"LastName", std::wstring(300, L'中')}});
    const auto lengthByUnit = [&](long unit) {
        mMailbox->Switch(L"TableTextUnit", unit);
        const auto table = Table({L"LastName"});
        table.Get(L"GetArray", 4);
        return FirstColumn(table).size() - 1;
    };
    EXPECT_EQ(255u, lengthByUnit(0));
    EXPECT_EQ(127u, lengthByUnit(1));
    EXPECT_EQ(85u, lengthByUnit(2));
}

TEST_F(FolderTable, AByteOfAPairOfSurrogatesIsNeverShownAlone)
{
    std::wstring text;
    for (int i = 0; i < 100; ++i)
    {
        text += L"\U0001F4DE";
    }
    mMailbox->AddItem(kContacts, {{L"LastName", text}});
    mMailbox->Switch(L"TableTextUnit", 1);
    const auto table = Table({L"LastName"});
    table.Get(L"GetArray", 4);
    EXPECT_EQ(text.substr(0, 126) + L" ", FirstColumn(table));
}

TEST_F(FolderTable, DatesAreLocalAndKeywordsATextByNameAndUtcAndAnArrayByNamespace)
{
    mMailbox->AddItem(kContacts,
                      {{L"Categories", L"Business, Personal"}, {L"CreationTime", Day(2003, 5, 6, 9, 30)}});
    const auto table = Table({L"Categories", L"urn:schemas-microsoft-com:office:office#Keywords",
                              L"CreationTime", L"http://schemas.microsoft.com/mapi/proptag/0x30070040"});
    table.Get(L"GetArray", 4);
    const auto row = table.GetObject(L"GetNextRow");
    EXPECT_EQ(L"Business, Personal", automation::TextOf(row.Get(L"Item", 1)));
    const auto keywords = row.Get(L"Item", 2);
    ASSERT_EQ(VT_ARRAY | VT_VARIANT, keywords.Type());
    EXPECT_EQ(2u, Size(keywords, 1));
    EXPECT_EQ(L"2003-05-06 09:30", At(row.Get(L"Item", 3)));
    SYSTEMTIME local{2003, 5, 2, 6, 9, 30, 0, 0};
    SYSTEMTIME utc{};
    TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc);
    EXPECT_EQ(utc.wHour, automation::MomentOf(automation::DateOf(row.Get(L"Item", 4))).hour);
}

TEST_F(FolderTable, ShowsNothingInAColumnThatAnItemDoesNotHave)
{
    mMailbox->AddItem(kContacts, {{L"MessageClass", L"IPM.DistList"}, {L"DLName", L"All"}});
    const auto table = Table({L"LastName", L"MessageClass"});
    table.Get(L"GetArray", 4);
    const auto row = table.GetObject(L"GetNextRow");
    EXPECT_EQ(VT_EMPTY, row.Get(L"Item", 1).Type());
    EXPECT_EQ(L"IPM.DistList", automation::TextOf(row.Get(L"Item", 2)));
}

TEST_F(FolderTable, TakesAFilterAndHidesWhatIsDeleted)
{
    const auto table = Contacts().GetObject(L"GetTable", L"[LastName] > '2'");
    EXPECT_EQ(2, Number(table, L"GetRowCount"));
    EXPECT_EQ(0, Number(Contacts().GetObject(L"GetTable", L"", 1), L"GetRowCount")); // hidden items
    EXPECT_THROW(Contacts().GetObject(L"GetTable", L"[Companies] = 'X'"), automation::Error);
    mMailbox->RemoveItem(kContacts, 3);
    EXPECT_EQ(1, Number(table, L"GetRowCount"));
    EXPECT_EQ(1u, Size(table.Get(L"GetArray", 9), 2));
}

TEST_F(FolderTable, ThereIsNoneBeforeOutlook2007)
{
    mMailbox->Switch(L"NoTable", true);
    EXPECT_THROW(Table(Contacts()), automation::Error);
}

TEST_F(FolderTable, LiesAboutTheOrderAndTheNumberOfItsRows)
{
    mMailbox->Switch(L"TableReversed", true);
    EXPECT_EQ(L"4 3 2 1 ", FirstColumn(Table({L"LastName"})));
    mMailbox->Switch(L"TableMissingRow", 2);
    EXPECT_EQ(L"4 2 1 ", FirstColumn(Table({L"LastName"})));
    EXPECT_EQ(3, Number(Table(Contacts()), L"GetRowCount"));
    mMailbox->Switch(L"TableMissingRow", 0);
    mMailbox->Switch(L"TableDuplicateRow", 2);
    EXPECT_EQ(L"4 3 3 2 1 ", FirstColumn(Table({L"LastName"})));
}

TEST_F(FolderTable, LiesAboutItsValues)
{
    mMailbox->Switch(L"TableStale", true);
    const auto contact = Contacts().GetObject(L"Items").GetObject(L"Item", 2);
    contact.Put(L"LastName", L"New");
    contact.Call(L"Save");
    SavedContact(L"", L"Last");
    EXPECT_EQ(L"1 2 3 4 Last ", FirstColumn(Table({L"LastName"})));
    mMailbox->Switch(L"TableStale", false);
    EXPECT_EQ(L"1 New 3 4 Last ", FirstColumn(Table({L"LastName"})));
    mMailbox->Switch(L"TableTextLength", 2);
    EXPECT_EQ(L"1 Ne 3 4 La ", FirstColumn(Table({L"LastName"})));
    mMailbox->AddItem(kCalendar, {{L"Start", Day(2003, 5, 6, 9, 30)}});
    mMailbox->Switch(L"TableUtcMinutes", 480);
    EXPECT_EQ(L"2003-05-06 01:30", At(Table(Calendar()).GetObject(L"GetNextRow").Get(L"Item", L"Start")));
}

TEST_F(FolderTable, FailsInTheMiddleOrRefusesAColumn)
{
    mMailbox->Switch(L"TableFailsAtRow", 3);
    const auto table = Table({L"LastName"});
    EXPECT_EQ(2u, Size(table.Get(L"GetArray", 2), 2));
    EXPECT_EQ(L"The operation failed.", FailureOf([&] { table.Get(L"GetArray", 2); }));
    mMailbox->Switch(L"TableRefuses", L"Categories");
    EXPECT_THROW(Table({L"Categories"}), automation::Error);
}

} // namespace sandbox
