#include "config/store/ParameterStore.h"

#include "config/store/Translation.h"
#include "tests/config/ConfigFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using state::SynParameter;
using RowTexts = std::vector<std::wstring>;

class DefaultParameters : public config_tests::ConfigFixture
{
};

TEST_F(DefaultParameters, ANullInATemplateIsCopiedAsNullSoThatItNamesNoTranslator)
{
    Execute(L"UPDATE T_POutlookSyncParam SET TransSource=NULL, TransTypePic='' WHERE TransObjectID=20");
    SynParameter record;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Task"));
    EXPECT_EQ(RowTexts{L"NULL|NULL|"},
              Rows(L"SELECT TransSource, TransSourceConfig, TransTypePic FROM T_POutlookSyncParam WHERE "
                   L"F_UID=7 AND TransObjectID=20"));
    const std::vector<config::Translation> rows = config::LoadTranslations().value();
    const auto task = std::ranges::find(rows, L"Task", &config::Translation::TransObject);
    ASSERT_NE(rows.end(), task);
    EXPECT_FALSE(task->Translator);
}

TEST_F(DefaultParameters, AMissingTemplateDoesNotCopyTheOtherKindsAgain)
{
    Execute(L"DELETE FROM T_POutlookSyncParam WHERE TransObject='Task'");
    const RowTexts others = {L"10|Contact", L"30|Calendar"};
    for (int click = 0; click < 3; ++click)
    {
        SynParameter record;
        EXPECT_FALSE(config::SetSynParamenter(record, L"Task"));
        EXPECT_EQ(L"", record.TransObject);
        EXPECT_EQ(others, Rows(L"SELECT TransObjectID, TransObject FROM T_POutlookSyncParam WHERE F_UID=7"));
    }
    EXPECT_EQ(2u, mHost->CallsOf(L"Insert").size());
}

TEST_F(DefaultParameters, AKindThatTheUserLacksIsCopiedBesideTheRowsThatHeHasChanged)
{
    GiveUserRows();
    Execute(L"DELETE FROM T_POutlookSyncParam WHERE F_UID=7 AND TransObject='Calendar'");
    Execute(L"UPDATE T_POutlookSyncParam SET TransType=9 WHERE F_UID=7 AND TransObject='Task'");
    SynParameter record;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Calendar"));
    EXPECT_EQ(2, record.TransType);
    EXPECT_EQ((RowTexts{L"Contact|3", L"Task|9", L"Calendar|2"}),
              Rows(L"SELECT TransObject, TransType FROM T_POutlookSyncParam WHERE F_UID=7"));
}

} // namespace
