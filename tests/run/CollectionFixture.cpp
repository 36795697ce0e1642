#include "tests/run/CollectionFixture.h"

#include "state/SharedState.h"
#include "tests/nested_walk/NestedWalk.h"
#include "tests/run/FakeFolder.h"

namespace test_support
{

namespace
{

std::string Described(const data::Changes& changes)
{
    std::string text;
    const auto add = [&](const char* name, long position, long mark) {
        text += std::string(name) + std::to_string(position) + "/" + std::to_string(mark) + " ";
    };
    for (const auto& record : changes.NewHostRecords)
    {
        add("newRow", record.RecordBookmark, record.RecordState);
    }
    for (const auto& record : changes.ChangedHostRecords)
    {
        add("changedRow", record.RecordBookmark, record.RecordState);
    }
    for (const auto& record : changes.ChangedOutlookItems)
    {
        add("changedItem", std::stol(record.ItemIndex), record.RecordState);
    }
    for (const auto& record : changes.NewOutlookItems)
    {
        add("newItem", std::stol(record.ItemIndex), record.RecordState);
    }
    return text;
}

void Fill(Records& records, RandomData& random, const std::function<Record(RandomData&)>& make)
{
    constexpr size_t kMost = 10;
    constexpr size_t kMostAtTimes = 40; // so that the tables grow as well
    records.clear();
    for (size_t count = random.Number(random.OneIn(20) ? kMostAtTimes : kMost); count > 0; --count)
    {
        records.push_back(make(random));
    }
}

} // namespace

CollectionFixture::CollectionFixture(const exchange::Kind& category) : mCategory(category)
{
    Host->UserId = L"1";
    state::Shared().gSynParameter = {};
}

CollectionFixture::~CollectionFixture()
{
    state::Shared().gOlNamespace = {};
    state::Shared().gSynParameter = {};
}

exchange::Run CollectionFixture::NewRun()
{
    exchange::Run run{.Display = Display};
    run.Items = MakeItems(Items);
    run.HostRows = MakeRows(Rows);
    return run;
}

std::string CollectionFixture::Collect(long rule, long direction)
{
    return Collect(NewRun(), rule, direction);
}

std::string CollectionFixture::CollectByTable(long rule, long direction)
{
    exchange::Run run = NewRun();
    run.Folder = MakeFolder(Items, mCategory.Match.InTable.MessageClass);
    state::Shared().gOlNamespace = MakeNamespace(Items);
    return Collect(std::move(run), rule, direction);
}

std::string CollectionFixture::Collect(exchange::Run run, long rule, long direction)
{
    state::Shared().gSynParameter.TransConflictOption = rule;
    state::Shared().gSynParameter.TransType = direction;
    run::ChangeCollection collection(mCategory, run);
    const bool failed = (direction != 1 && collection.CollectToOutlook()) ||
                        (direction != 2 && collection.CollectFromOutlook());
    return failed ? "failed" : Described(run.Pending);
}

std::string CollectionFixture::Walk(long rule, long direction)
{
    exchange::Run run = NewRun();
    const bool failed = (direction != 1 && WalkToOutlook(mCategory, run, rule)) ||
                        (direction != 2 && WalkFromOutlook(mCategory, run, rule, true, true));
    return failed ? "failed" : Described(run.Pending);
}

long CollectionFixture::CompareWithTheNestedWalk(const Rounds& rounds)
{
    RandomData random;
    long proposed = 0;
    for (long round = 0; round < rounds.rounds && !HasFailure(); ++round)
    {
        SCOPED_TRACE(round);
        Fill(*Items, random, rounds.item);
        Fill(*Rows, random, rounds.row);
        if (rounds.parameters)
        {
            rounds.parameters(random);
        }
        proposed += CompareAllRulesAndDirections();
    }
    return proposed;
}

long CollectionFixture::CompareAllRulesAndDirections()
{
    long proposed = 0;
    for (long rule = 0; rule <= 6; ++rule)
    {
        for (long direction = 1; direction <= 3; ++direction)
        {
            const std::string expected = Walk(rule, direction);
            for (const bool byTable : {false, true})
            {
                EXPECT_EQ(expected, byTable ? CollectByTable(rule, direction) : Collect(rule, direction))
                    << (byTable ? "by table, " : "by items, ") << "rule " << rule << ", direction "
                    << direction << ", " << Items->size() << " items, " << Rows->size() << " rows";
            }
            proposed += expected.empty() ? 0 : 1;
        }
    }
    return proposed;
}

} // namespace test_support
