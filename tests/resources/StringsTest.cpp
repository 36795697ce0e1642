#include "resources/Strings.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <set>
#include <string_view>

namespace
{

using resources::Language;
using test_support::WithLanguage;

constexpr UINT kLastId = 4999;

struct Row
{
    UINT id;
    const wchar_t* english;
    const wchar_t* chinese; // null where only the English text is fixed
};

constexpr Row kFixedTexts[] = {
    {0, L"English", L"Chinese"},
    {1, L"Error:", L"错误："},
    {2, L"Message", L"信息"},
    {100, L"Error", L"错误"},
    {102, L"Selected Folder(s):", L"选择目录："},
    {1001, L"&OK", L"确定(&O)"},
    {1002, L"&Cancel", nullptr},
    {1004, L"Options", nullptr},
    {1005, L"Add all confliction items", L"添加冲突的项目"},
    {1006, L"Igore all conflictiongitems", L"忽略冲突的所有项目"},
    {1007, L"Notfy me when conflicts occur", L"显示冲突信息"},
    {1008, L"Quelar Wins", L"本系统优先级高"},
    {1009, L"MS Outlook Wins", L"MS Outlook 优先级高"},
    {1011, L"Category", L"目录"},
    {1012, L"Task", L"任务"},
    {1013, L"Calendar", L"日历"},
    {1014, L"Contact", L"联系人"},
    {1022, L"Available Translators:", nullptr},
    {1023, L"Operation", nullptr},
    {1024, L"Import", L"输入"},
    {1025, L"Export", L"输出"},
    {1026, L"Synchronize", L"同步"},
    {1027, L"&Browse...", nullptr},
    {1028, L"Folder Name", nullptr},
    {1029, L"&Option...", nullptr},
    {1031, L"Ms Outlook Options", nullptr},
    {1032, L"User Profile:", nullptr},
    {1034, L"Conflict Resolution", nullptr},
    {1035, L"Transfer all items", L"传输所有的任务"},
    {1036, L"Transfer only pending items", L"传输未完成的的任务"},
    {1038, L"Transfer all scheduled items", L"传输所有的日历"},
    {1039, L"Transfer only future items", L"传输将来的日历"},
    {1040, L"Transfer items within a range of Days", L"传输一个指定日期范围的日历"},
    {1041, L"Days prior to today", nullptr},
    {1042, L"Days afer today", nullptr},
    {1044, L"Begin Synchronize...", L"正在进行数据传输，请稍候..."},
    {1045, L"Synchronize Succeed.", L"传输操作完成。"},
    {1046, L"Synchronize Fail.",
     L"传输操作失败，请您检查是否安装了 Microsoft Office 并正确配置 Outlook "
     L"或正确的设置了操作选项，然后重新进行传输。"},
    {1047, L"Collecting information...", L"正在收集传输信息..."},
    {1049,
     L"Press Accept to let all Changes be made or Press Cancel to avoid making any changes at this time.",
     L"下列是收集到的传输信息；选择 接受 开始传输数据，选择 放弃 取消传输；"},
    {1090, L"Addtions:", L"添加记录条数："},
    {1091, L"be modified:", L"修改记录条数："},
};

// Texts whose wording is ours, and those that are ours altogether.
constexpr UINT kFreeTexts[] = {101, 103, 104, 1000, 1021, 1030, 1043, 4000, 4001, 4002, 4003, 4004};

constexpr UINT kFirstOfReport = IDS_REPORT_CAPTION;
constexpr UINT kLastOfReport = IDS_REPORT_RIGHT_MISSING_TIMES;

std::set<UINT> FreeTexts()
{
    std::set<UINT> ids(std::begin(kFreeTexts), std::end(kFreeTexts));
    for (UINT id = kFirstOfReport; id <= kLastOfReport; ++id)
    {
        ids.insert(id);
    }
    return ids;
}

std::set<UINT> PresentIds(Language language)
{
    const WithLanguage with(language);
    std::set<UINT> ids;
    for (UINT id = 0; id <= kLastId; ++id)
    {
        if (!resources::String(id).empty())
        {
            ids.insert(id);
        }
    }
    return ids;
}

bool HasChinese(const std::wstring& text)
{
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c >= 0x4E00 && c <= 0x9FFF; });
}

TEST(StringTable, EveryFixedTextIsExactInEnglish)
{
    const WithLanguage with(Language::English);
    for (const Row& row : kFixedTexts)
    {
        EXPECT_EQ(row.english, resources::String(row.id)) << row.id;
    }
}

TEST(StringTable, EveryFixedTextIsExactInChinese)
{
    const WithLanguage with(Language::Chinese);
    for (const Row& row : kFixedTexts)
    {
        if (row.chinese != nullptr)
        {
            EXPECT_EQ(row.chinese, resources::String(row.id)) << row.id;
        }
        else
        {
            EXPECT_TRUE(HasChinese(resources::String(row.id))) << row.id;
        }
    }
}

TEST(StringTable, TheTextsOfOurOwnWordingExistInBothLanguages)
{
    for (const UINT id : FreeTexts())
    {
        const WithLanguage chinese(Language::Chinese);
        EXPECT_TRUE(HasChinese(resources::String(id))) << id;
        const WithLanguage english(Language::English);
        EXPECT_FALSE(resources::String(id).empty()) << id;
        EXPECT_FALSE(HasChinese(resources::String(id))) << id;
    }
}

TEST(StringTable, BothLanguagesHoldTheDescribedIdsAndNoOthers)
{
    std::set<UINT> described = FreeTexts();
    for (const Row& row : kFixedTexts)
    {
        described.insert(row.id);
    }
    EXPECT_EQ(described, PresentIds(Language::English));
    EXPECT_EQ(described, PresentIds(Language::Chinese));
}

TEST(StringTable, TheEnglishPromptForContactsSpeaksOfACalendarFolderWithItsMisspellings)
{
    const WithLanguage with(Language::English);
    const std::wstring prompt = resources::String(IDS_PICKER_CONTACTS);
    for (const wchar_t* word : {L"calendar folder", L"defalt", L"hightlight", L"fFolders", L"Defalult"})
    {
        EXPECT_NE(std::wstring::npos, prompt.find(word)) << prompt.size();
    }
}

TEST(StringTable, ThePromptsThatAreOursSpeakOfTheOneFolderThatARunUses)
{
    for (const UINT id : {IDS_PICKER_CALENDAR, IDS_PICKER_TASKS})
    {
        const WithLanguage english(Language::English);
        EXPECT_EQ(std::wstring::npos, resources::String(id).find(L"folder(s)")) << id;
        EXPECT_EQ(0u, resources::String(id).find(L"A run uses one ")) << id;
        const WithLanguage chinese(Language::Chinese);
        EXPECT_EQ(0u, resources::String(id).find(L"每次同步只使用一个")) << id;
    }
}

TEST(StringTable, ThereIsOneChineseWordForDefault)
{
    const WithLanguage chinese(Language::Chinese);
    for (UINT id = 0; id <= kLastId; ++id)
    {
        EXPECT_EQ(std::wstring::npos, resources::String(id).find(L"默认")) << id;
    }
}

TEST(StringTable, AnIdBeyondTheTableReadsAsTheEmptyText)
{
    EXPECT_EQ(L"", resources::String(1096));
    EXPECT_EQ(L"", resources::String(65535));
}

TEST(InterfaceLanguage, TheLanguageTestsFollowStringZero)
{
    const WithLanguage chinese(Language::Chinese);
    EXPECT_TRUE(resources::IsChinese());
    EXPECT_FALSE(resources::IsEnglish());
    EXPECT_STREQ(L"中", resources::Choose(L"中", L"en"));
    const WithLanguage english(Language::English);
    EXPECT_FALSE(resources::IsChinese());
    EXPECT_TRUE(resources::IsEnglish());
    EXPECT_STREQ(L"en", resources::Choose(L"中", L"en"));
}

// The language of the environment under Wine, where it decides the user interface's language.
bool IsEnvironmentChinese()
{
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    {
        if (const char* const value = std::getenv(name); value != nullptr && *value != '\0')
        {
            return std::string_view(value).substr(0, 2) == "zh";
        }
    }
    return false;
}

TEST(InterfaceLanguage, WithoutAnOverrideItIsThatOfTheUserInterface)
{
    const bool chinese = IsEnvironmentChinese();
    EXPECT_EQ(chinese ? Language::Chinese : Language::English, resources::InterfaceLanguage());
    EXPECT_EQ(chinese ? L"错误" : L"Error", resources::String(IDS_ERROR));
}

} // namespace
