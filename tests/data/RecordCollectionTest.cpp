#include "data/ChangeRecords.h"

#include <gtest/gtest.h>

namespace
{

using automation::Error;
using data::ClsOlRecord;
using data::ClsOlRecords;
using data::ClsSalesRecord;
using data::ClsSalesRecords;

TEST(RecordCollection, ANewCollectionHasCountZeroAndNoItems)
{
    ClsOlRecords records;
    EXPECT_EQ(records.Count(), 0);
    EXPECT_THROW(records.Item(1), Error);
    for (const ClsOlRecord& record : records)
    {
        ADD_FAILURE() << "a walk over nothing met " << record.RecordState;
    }
}

TEST(RecordCollection, AddReturnsTheRecordWithItsTwoPropertiesSet)
{
    ClsSalesRecords records;
    ClsSalesRecord& added = records.Add(17L, 1);
    EXPECT_EQ(added.RecordBookmark, 17);
    EXPECT_EQ(added.RecordState, 1);
    added.RecordState = 2;
    EXPECT_EQ(records.Item(1).RecordState, 2);
}

TEST(RecordCollection, RecordsAreWalkedInTheOrderOfTheirAddition)
{
    ClsOlRecords records;
    records.Add(L"3", 0);
    records.Add(L"1", 0);
    records.Add(L"2", 0);
    std::wstring walked;
    for (const ClsOlRecord& record : records)
    {
        walked += record.ItemIndex;
    }
    EXPECT_EQ(walked, L"312");
    EXPECT_EQ(records.Item(3).ItemIndex, L"2");
}

TEST(RecordCollection, AnEmptyKeyStoresTheRecordUnkeyedAsOftenAsWanted)
{
    ClsOlRecords records;
    records.Add(L"1", 0, L"");
    records.Add(L"2", 0, L"");
    EXPECT_EQ(records.Count(), 2);
    EXPECT_THROW(records.Item(L""), Error);
}

TEST(RecordCollection, TheSameKeyASecondTimeMakesAddFailAndAddsNothing)
{
    ClsOlRecords records;
    records.Add(L"1", 0, L"Key");
    EXPECT_THROW(records.Add(L"2", 0, L"Key"), Error);
    EXPECT_THROW(records.Add(L"2", 0, L"KEY"), Error);
    EXPECT_EQ(records.Count(), 1);
    EXPECT_EQ(records.Item(L"key").ItemIndex, L"1");
}

TEST(RecordCollection, RemoveTakesARecordOutByPositionOrKey)
{
    ClsOlRecords records;
    records.Add(L"1", 0, L"a");
    records.Add(L"2", 0, L"b");
    records.Add(L"3", 0);
    records.Remove(L"A");
    EXPECT_EQ(records.Item(1).ItemIndex, L"2");
    records.Remove(1);
    EXPECT_EQ(records.Count(), 1);
    EXPECT_EQ(records.Item(1).ItemIndex, L"3");
    EXPECT_THROW(records.Remove(2), Error);
    EXPECT_THROW(records.Remove(L"b"), Error);
}

TEST(RecordCollection, PositionsOutsideOneToCountAreRefused)
{
    ClsOlRecords records;
    records.Add(L"1", 0);
    EXPECT_THROW(records.Item(0), Error);
    EXPECT_THROW(records.Item(2), Error);
    EXPECT_THROW(records.Item(-1), Error);
}

} // namespace
