// Entries that the host refuses or that cannot be formatted, and the messages about them.
#include "tests/calendar/CalendarWritingFixture.h"
#include "tests/support/WithLanguage.h"

namespace test_support
{

TEST_F(CalendarWriting, ARefusedInsertIsReportedWithTheColumnLastProcessed)
{
    AddMeeting();
    Host->Status[L"Insert"] = -1;
    const WithLanguage english(resources::Language::English);
    const std::vector<ShownMessage> expected{
        {L"F_ACTCOMPLETED:The host reported a failure", L"Telvix", nullptr}};
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, -1));
    const WithLanguage chinese(resources::Language::Chinese);
    EXPECT_EQ(L"F_ACTCOMPLETED:主系统报告操作失败", MessagesOf(data::kNewRecord, -1).at(0).text);
}

TEST_F(CalendarWriting, AnInsertThatAnswersZeroOrMoreCountsAsWritten)
{
    AddMeeting();
    for (const long status : {0L, 1L, 7L})
    {
        Host->Status[L"Insert"] = status;
        EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).empty());
    }
}

TEST_F(CalendarWriting, AnUpdateThatAnswersAnythingButZeroIsRefused)
{
    AddMeeting();
    AddEntry();
    for (const long status : {1L, -1L})
    {
        Host->Status[L"Update"] = status;
        EXPECT_EQ(1u, MessagesOf(data::kExistingRecord, -1).size());
    }
}

TEST_F(CalendarWriting, AnErrorThatTheHostRaisesWhileWritingIsARefusalInItsOwnWords)
{
    AddMeeting();
    Host->Failing = {L"Insert"};
    EXPECT_EQ(L"F_ACTCOMPLETED:The host raised an error", MessagesOf(data::kNewRecord, -1).at(0).text);
}

TEST_F(CalendarWriting, AColumnThatTheCatalogueDoesNotKnowIsReportedAndNothingIsWritten)
{
    AddMeeting();
    Execute(L"DELETE FROM SynFields WHERE FieldName='F_ACTREMIND'");
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(2u, messages.size());
    EXPECT_EQ(L"Don't find F_ACTREMINDfield in table 'SynFields', can't format ", messages[0].text);
    EXPECT_TRUE(messages[1].text.starts_with(L"F_ACTREMIND:"));
    EXPECT_EQ(nullptr, messages[1].icon);
    EXPECT_TRUE(CallsOf(L"Insert").empty());
}

TEST_F(CalendarWriting, AnAccountThatCannotBeLookedUpIsReportedOnceWithTheHostsNumberAndNothingIsWritten)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Status[L"OpenRecordsetByString"] = -3;
    const std::vector<ShownMessage> expected{
        {L"-3:The host reported a failure", L"ChangeAddTaskAccount", IDI_ERROR}};
    const WithLanguage english(resources::Language::English);
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, 0));
    EXPECT_TRUE(CallsOf(L"Insert").empty());
}

TEST_F(CalendarWriting, AnAccountThatCannotBeMadeIsReportedOnceWithTheHostsText)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {}};
    Host->Failing = {L"Insert"};
    const std::vector<ShownMessage> expected{
        {L"F_ACTCOMPLETED:The host raised an error", L"Telvix", nullptr}};
    EXPECT_EQ(expected, MessagesOf(data::kNewRecord, 0));
}

TEST_F(CalendarWriting, AnAccountThatWasNotInsertedIsNotDeleted)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {}};
    Host->Status[L"Insert"] = -1;
    EXPECT_EQ(1u, MessagesOf(data::kNewRecord, 0).size());
    EXPECT_TRUE(CallsOf(L"Delete").empty());
    EXPECT_TRUE(CallsOf(L"InTransaction").empty());
}

TEST_F(CalendarWriting, AnAccountWithoutItsInformationRowIsDeletedAndNothingElse)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {}}; // so that there is no system row either
    EXPECT_EQ(1u, MessagesOf(data::kNewRecord, 0).size());
    EXPECT_EQ(std::vector<std::wstring>{L"Delete(TBLACCOUNT|F_ACCID='KEY-1')"}, CallsOf(L"Delete"));
    EXPECT_EQ(1u, CallsOf(L"InTransaction").size());
    Host->Calls.clear();
    Host->Pending = true; // a transaction of the host's own
    EXPECT_EQ(1u, MessagesOf(data::kNewRecord, 0).size());
    EXPECT_TRUE(CallsOf(L"Delete").empty());
}

TEST_F(CalendarWriting, AValueThatCannotBeFormattedIsReportedWithItsOwnColumnAndReason)
{
    AddMeeting();
    Execute(L"UPDATE SynFields SET FieldType=4 WHERE FieldName='F_ACTTYPE'");
    const WithLanguage english(resources::Language::English);
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(1u, messages.size());
    EXPECT_TRUE(messages[0].text.starts_with(L"F_ACTTYPE:F_ACTTYPE cannot be formatted: "));
    const WithLanguage chinese(resources::Language::Chinese);
    EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).at(0).text.starts_with(L"F_ACTTYPE:F_ACTTYPE 无法格式化: "));
}

} // namespace test_support
