// The list of changes as data: its entries, their order, the search, the choice, and the file.
#include "preview/ChangeList.h"

#include "automation/Text.h"
#include "preview/CsvFile.h"
#include "preview/Texts.h"
#include "preview/Work.h"
#include "state/SharedState.h"
#include "tests/preview/RandomSides.h"
#include "tests/support/CallWatch.h"

#include <fstream>
#include <sstream>

namespace
{

using namespace test_support;
using exchange::Change;
using exchange::Proposal;
using preview::Arrangement;
using preview::ChangeList;
using preview::Column;

// Two new records in each direction; a pair to Outlook, one to the host, and one in both directions.
data::Changes SomeChanges()
{
    data::Changes changes;
    changes.NewHostRecords.Add(1L, 0);
    changes.NewHostRecords.Add(2L, 0);
    changes.NewOutlookItems.Add(std::wstring(L"7"), 0);
    changes.NewOutlookItems.Add(std::wstring(L"8"), 0);
    const auto addPair = [&](long row, const wchar_t* item, long mark) {
        changes.ChangedHostRecords.Add(row, mark);
        changes.ChangedOutlookItems.Add(std::wstring(item), mark);
    };
    addPair(3, L"3", data::kWritesOutlook);
    addPair(4, L"4", data::kWritesOutlook);
    addPair(4, L"4", data::kWritesHost);
    addPair(5, L"5", data::kWritesHost);
    return changes;
}

std::vector<long> RowsOf(const data::ClsSalesRecords& records)
{
    std::vector<long> rows;
    for (const data::ClsSalesRecord& record : records)
    {
        rows.push_back(record.RecordBookmark);
    }
    return rows;
}

TEST(Proposals, APairThatIsProposedInBothDirectionsIsOneEntry)
{
    const auto proposals = exchange::ProposalsOf(SomeChanges(), state::kBothWays);
    ASSERT_EQ(7u, proposals.size());
    EXPECT_EQ(Change::ChangeInOutlook, proposals[3].What);
    EXPECT_EQ(2, proposals[3].Place);
    EXPECT_TRUE(proposals[3].IsInBoth());
    EXPECT_EQ(3, proposals[3].PlaceToHost);
    EXPECT_FALSE(proposals[2].IsInBoth());
    EXPECT_EQ(Change::ChangeInHost, proposals[6].What);
    EXPECT_EQ(4, proposals[6].Place);
}

TEST(Proposals, ARunInOneDirectionHasTheEntriesOfThatDirectionOnly)
{
    for (const Proposal& proposal : exchange::ProposalsOf(SomeChanges(), state::kQuenlarToOutlook))
    {
        EXPECT_TRUE(proposal.What == Change::AddToOutlook || proposal.What == Change::ChangeInOutlook);
    }
    EXPECT_EQ(4u, exchange::ProposalsOf(SomeChanges(), state::kOutlookToQuenlar).size());
}

TEST(Proposals, AnEntryThatIsNotKeptLeavesTheChangesInBothDirectionsAndThePairsStayTogether)
{
    const data::Changes changes = SomeChanges();
    const auto proposals = exchange::ProposalsOf(changes, state::kBothWays);
    // Without row 2, the pair of both directions, and item 7.
    const data::Changes kept =
        exchange::KeptChanges(changes, proposals, {true, false, true, false, false, true, true});
    EXPECT_EQ(std::vector<long>({1}), RowsOf(kept.NewHostRecords));
    EXPECT_EQ(std::vector<long>({3, 5}), RowsOf(kept.ChangedHostRecords));
    ASSERT_EQ(2, kept.ChangedOutlookItems.Count());
    EXPECT_EQ(L"3", kept.ChangedOutlookItems.Item(1).ItemIndex);
    EXPECT_EQ(L"5", kept.ChangedOutlookItems.Item(2).ItemIndex);
    ASSERT_EQ(1, kept.NewOutlookItems.Count());
    EXPECT_EQ(L"8", kept.NewOutlookItems.Item(1).ItemIndex);
}

TEST(ChangeList, ReadsNothingUntilATextIsAskedForAndEachTextOnce)
{
    RandomSides sides(kRandomTasks, 1);
    sides.Add(0, 5, 0);
    exchange::Run& run = sides.Collect(1);
    const CallWatch counter;
    ChangeList list(sides.Kind.tested, run, 1);
    EXPECT_EQ(5u, list.Count());
    EXPECT_EQ(0, counter.Of(L"Items.Item"));
    EXPECT_EQ(L"", list.TextOf(0, Column::Name));
    list.Read(0, Column::Name);
    list.Read(0, Column::Name);
    EXPECT_EQ(L"Subject 1", list.TextOf(0, Column::Name));
    EXPECT_EQ(1, counter.Of(L"Items.Item"));
}

std::wstring NamesOf(const ChangeList& list)
{
    std::wstring names;
    for (const size_t entry : list.Shown())
    {
        names += list.TextOf(entry, Column::Name) + L"|";
    }
    return names;
}

void ReadAndArrange(ChangeList& list, const Arrangement& arrangement)
{
    const auto work = preview::ArrangingWork(list, arrangement);
    while (!work->Step())
    {
    }
}

TEST(ChangeList, IsSortedByAColumnAndBackAgain)
{
    RandomSides sides(kRandomTasks, 1);
    sides.Add(2, 2, 0);
    ChangeList list(sides.Kind.tested, sides.Collect(3), 3);
    ReadAndArrange(list, {.SortedBy = Column::Name, .IsDescending = true});
    EXPECT_EQ(L"Subject 4|Subject 3|Subject 2|Subject 1|", NamesOf(list));
    ReadAndArrange(list, {.SortedBy = Column::Change});
    EXPECT_EQ(L"Subject 1|Subject 2|Subject 3|Subject 4|", NamesOf(list));
    ReadAndArrange(list, {.SortedBy = Column::Change, .IsDescending = true});
    EXPECT_EQ(L"Subject 3|Subject 4|Subject 1|Subject 2|", NamesOf(list));
}

TEST(ChangeList, TheSearchLooksInOneColumnOrInAllInAnyLetterCase)
{
    RandomSides sides(kRandomTasks, 1);
    sides.Add(2, 2, 0);
    ChangeList list(sides.Kind.tested, sides.Collect(3), 3);
    ReadAndArrange(list, {.Search = L"subject 3", .SearchIn = Column::Name});
    EXPECT_EQ(L"Subject 3|", NamesOf(list));
    ReadAndArrange(list, {.Search = L"phone"});
    EXPECT_EQ(4u, list.Shown().size());
    ReadAndArrange(list, {.Search = L"phone", .SearchIn = Column::Name});
    EXPECT_TRUE(list.Shown().empty());
    ReadAndArrange(list, {.Search = L"ADD TO OUTLOOK", .SearchIn = Column::Change});
    EXPECT_EQ(2u, list.Shown().size());
}

TEST(ChangeList, CountsTheEntriesThatAreKept)
{
    RandomSides sides(kRandomTasks, 1);
    sides.Add(1, 1, 2);
    ChangeList list(sides.Kind.tested, sides.Collect(3), 3);
    ASSERT_EQ(4u, list.Count());
    list.Check(0, false);
    list.Check(0, false);
    EXPECT_EQ(3u, list.CheckedCount());
    EXPECT_EQ(0, list.Kept().NewHostRecords.Count());
    EXPECT_EQ(4, list.Kept().ChangedHostRecords.Count());
    list.Check(0, true);
    EXPECT_EQ(1, list.Kept().NewHostRecords.Count());
}

TEST(ChangeList, AChangedTaskOfBothDirectionsIsShownAsTheHostWillHaveItAndOutlookKeepsIt)
{
    RandomSides sides(kRandomTasks, 5);
    sides.Add(0, 0, 1);
    ChangeList list(sides.Kind.tested, sides.Collect(3), 3);
    ASSERT_EQ(1u, list.Count());
    EXPECT_EQ(L"Change in both", list.TextOf(0, Column::Change));
    for (const exchange::Difference& field : list.FieldsOf(0).Fields)
    {
        EXPECT_EQ(exchange::Side::Host, field.Where) << automation::ToUtf8(field.Field);
    }
}

TEST(ChangeList, AChangedContactOfBothDirectionsIsShownAsBothSidesWillHaveIt)
{
    RandomSides sides(kRandomContacts, 5);
    sides.Add(0, 0, 1);
    ChangeList list(sides.Kind.tested, sides.Collect(3), 3);
    bool hasSides[2] = {};
    for (const exchange::Difference& field : list.FieldsOf(0).Fields)
    {
        hasSides[field.Where == exchange::Side::Host ? 1 : 0] = true;
    }
    EXPECT_TRUE(hasSides[0] && hasSides[1]);
}

TEST(ChangeList, ReadingEveryFieldWritesNothing)
{
    for (const RandomKind* const kind : {&kRandomContacts, &kRandomTasks, &kRandomCalendar})
    {
        RandomSides sides(*kind, 9);
        sides.Add(5, 5, 5);
        ChangeList list(kind->tested, sides.Collect(3), 3);
        const CallWatch counter;
        for (size_t entry = 0; entry < list.Count(); ++entry)
        {
            list.FieldsOf(entry);
        }
        for (const wchar_t* const write :
             {L"DTC.Insert", L"DTC.Update", L"DTC.Delete", L"DTC.BeginTrans", L"ContactItem.Save",
              L"TaskItem.Save", L"AppointmentItem.Save", L"Links.Add"})
        {
            EXPECT_EQ(0, counter.Of(write)) << automation::ToUtf8(write);
        }
        EXPECT_EQ(10, sides.Mailbox->ItemCount(kind->folder));
    }
}

TEST(ChangeList, AFieldThatOutlookRefusesToTellIsShownAsItWillBeWritten)
{
    RandomSides sides(kRandomContacts, 4);
    sides.Add(1, 0, 0);
    sides.Execute(L"UPDATE TBLCONTACT SET F_EMAIL='a@b'");
    ChangeList list(sides.Kind.tested, sides.Collect(2), 2);
    sides.Mailbox->Switch(L"Guard", true);
    const exchange::RecordPreview preview = list.FieldsOf(0);
    EXPECT_TRUE(preview.IsWritten());
    const auto mail = std::ranges::find(preview.Fields, L"Email1Address", &exchange::Difference::Field);
    ASSERT_NE(preview.Fields.end(), mail);
    EXPECT_EQ(L"a@b", automation::TextOf(mail->After));
}

TEST(CsvCell, IsQuotedAndNeverAFormula)
{
    EXPECT_EQ(L"\"\"", preview::CsvCell(L""));
    EXPECT_EQ(L"\"a \"\"b\"\", c\"", preview::CsvCell(L"a \"b\", c"));
    for (const wchar_t* const formula : {L"=1+1", L"+1", L"-1", L"@x", L"\tx", L"\rx"})
    {
        EXPECT_EQ(L"\"'" + std::wstring(formula) + L"\"", preview::CsvCell(formula));
    }
}

std::string ContentsOf(const std::wstring& path)
{
    std::ifstream file(automation::ToUtf8(path), std::ios::binary);
    std::stringstream contents;
    contents << file.rdbuf();
    return contents.str();
}

std::wstring TemporaryFile()
{
    std::array<wchar_t, MAX_PATH> folder = {};
    GetTempPathW(MAX_PATH, folder.data());
    return std::wstring(folder.data()) + L"telvix-changes-" + std::to_wstring(GetCurrentProcessId()) +
           L".csv";
}

TEST(CsvFile, HoldsALineForEachFieldOfTheEntriesThatAreShown)
{
    RandomSides sides(kRandomTasks, 3);
    sides.Add(0, 2, 0);
    ChangeList list(sides.Kind.tested, sides.Collect(1), 1);
    list.Check(1, false);
    const std::wstring path = TemporaryFile();
    const auto work = preview::SavingWork(list, path);
    while (!work->Step())
    {
    }
    const std::string contents = ContentsOf(path);
    DeleteFileW(path.c_str());
    EXPECT_TRUE(contents.starts_with("\xEF\xBB\xBF\"Written\",\"Change\",\"Name or subject\""));
    EXPECT_NE(std::string::npos,
              contents.find("\"Yes\",\"Add to the sales system\",\"Subject 1\",\"Phone\""));
    EXPECT_NE(std::string::npos, contents.find("\"No\",\"Add to the sales system\",\"Subject 2\",\"Phone\""));
    EXPECT_NE(std::string::npos,
              contents.find("\"Sales system\",\"Start date\",\"\",\"2003-05-06\",\"Yes\",\"\"\r\n"));
}

TEST(CsvFile, LeavesNothingBehindWhenItIsNotFinished)
{
    RandomSides sides(kRandomTasks, 3);
    sides.Add(0, 1, 0);
    ChangeList list(sides.Kind.tested, sides.Collect(1), 1);
    const std::wstring path = TemporaryFile();
    {
        preview::CsvFile file(path);
        file.Add(list, 0);
        EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW((path + L".part").c_str()));
    }
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW((path + L".part").c_str()));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(path.c_str()));
}

} // namespace
