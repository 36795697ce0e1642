// Hostile texts in the stored parameters and among the chosen folders: what is loaded is what is stored, what
// is written stays within the user's own rows.
#include "automation/Text.h"
#include "config/outlook/OutlookFolders.h"
#include "config/store/ChosenFolders.h"
#include "config/store/ParameterStore.h"
#include "tests/hostile/HostileValues.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/Thoroughness.h"

namespace
{

using namespace test_support;
using automation::TextOrEmpty;
using automation::ToUtf8;
using sandbox::Row;

constexpr const wchar_t* kParameters = L"T_POutlookSyncParam";
constexpr const wchar_t* kFolders = L"T_POutlookSyncFolder";

class HostileParameters : public OfficeFixture
{
  protected:
    HostileParameters()
    {
        sandbox::AddRows(TheHost.Database(), kFolders, L"F_UID,TransObjectID,OutlookFolder,IsDefault",
                         {{2L, 10L, L"Theirs", true}});
        sandbox::AddRows(TheHost.Database(), kParameters, L"F_UID,TransObjectID,TransObject,IsTrans",
                         {{2L, 10L, L"Contact", true}});
        mOfOthers = RowsOfOthers();
    }

    std::wstring Found(const std::wstring& sql) { return TextOrEmpty(TheHost.Database().QueryValue(sql)); }

    std::wstring RowsOfOthers()
    {
        return Found(L"SELECT COUNT(*) || group_concat(TransObject || IsTrans) FROM T_POutlookSyncParam "
                     L"WHERE F_UID=2") +
               Found(
                   L"SELECT COUNT(*) || group_concat(OutlookFolder) FROM T_POutlookSyncFolder WHERE F_UID=2");
    }

    // Makes a template's texts hostile, and the user's rows gone.
    void SetTemplate(const std::vector<std::wstring>& texts)
    {
        Execute(L"DELETE FROM T_POutlookSyncParam WHERE F_UID=1");
        Execute(L"UPDATE T_POutlookSyncParam SET TransObjectPic=?, TransTypePic=?, TransSource=?, "
                L"TransSourceConfig=?, TransNameEnglish=? WHERE F_UID=0 AND TransObject='Contact'",
                Row(texts.begin(), texts.end()));
    }

    std::wstring mOfOthers;
};

TEST_F(HostileParameters, TemplatesAreCopiedAndLoadedTextForText)
{
    HostileValues values("parameters");
    for (long i = 0; i < Times(150) && !HasFailure(); ++i)
    {
        SCOPED_TRACE(i);
        const std::vector<std::wstring> texts{values.StorableText(20), values.StorableText(20),
                                              values.StorableText(40), values.StorableText(255),
                                              values.StorableText(40)};
        SetTemplate(texts);
        state::SynParameter record;
        EXPECT_FALSE(config::SetSynParamenter(record, L"Contact"));
        EXPECT_EQ(L"", TheHost.LastRejection());
        EXPECT_EQ(texts[0], record.TransObjectPic);
        EXPECT_EQ(texts[1], record.TransTypePic);
        EXPECT_EQ(texts[2], record.TransSource);
        EXPECT_EQ(texts[3], record.TransSourceConfig);
        EXPECT_EQ(L"3", Found(L"SELECT COUNT(*) FROM T_POutlookSyncParam WHERE F_UID=1"));
        EXPECT_EQ(L"3", Found(L"SELECT COUNT(*) FROM T_POutlookSyncParam WHERE F_UID=0"));
        EXPECT_EQ(mOfOthers, RowsOfOthers());
    }
}

TEST_F(HostileParameters, AFolderIsStoredTextForText)
{
    HostileValues values("chosen folders");
    const exchange::KindName& kind = *exchange::FindKindName(L"Contact");
    for (long i = 0; i < Times(300) && !HasFailure(); ++i)
    {
        const std::wstring path = values.StorableText(100);
        SCOPED_TRACE(ToUtf8(path));
        EXPECT_FALSE(config::StoreChosenFolders(kind, {{path, true}}));
        EXPECT_EQ((config::ChosenFolders{{path, true}}), config::LoadChosenFolders(kind));
        EXPECT_EQ(mOfOthers, RowsOfOthers());
    }
}

TEST_F(HostileParameters, AFolderOfAMissingStoreIsDeletedAndNoOther)
{
    HostileValues values("missing folders");
    for (long i = 0; i < Times(150) && !HasFailure(); ++i)
    {
        const std::wstring path = values.StorableText(100) + L"?";
        SCOPED_TRACE(ToUtf8(path));
        Execute(L"DELETE FROM T_POutlookSyncFolder WHERE F_UID=1");
        sandbox::AddRows(TheHost.Database(), kFolders, L"F_UID,TransObjectID,OutlookFolder,IsDefault",
                         {{1L, 10L, path, false}, {1L, 20L, L"Personal Folders\\Tasks", true}});
        config::PurgeMissingFolders();
        EXPECT_EQ(L"Personal Folders\\Tasks",
                  Found(L"SELECT group_concat(OutlookFolder) FROM T_POutlookSyncFolder WHERE F_UID=1"));
        EXPECT_EQ(mOfOthers, RowsOfOthers());
    }
}

} // namespace
