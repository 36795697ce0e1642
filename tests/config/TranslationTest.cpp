#include "config/store/Translation.h"

#include "tests/config/ConfigFixture.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using automation::Value;
using config::Translation;
using resources::Language;
using Texts = std::vector<std::wstring>;

class TranslationTest : public config_tests::ConfigFixture
{
};

TEST(Directions, ThreeCodesWithTheirPictures)
{
    ASSERT_EQ(3u, config::Directions().size());
    EXPECT_STREQ(L"left", config::FindDirection(1)->TransTypePic);
    EXPECT_STREQ(L"right", config::FindDirection(2)->TransTypePic);
    EXPECT_STREQ(L"each", config::FindDirection(3)->TransTypePic);
    EXPECT_EQ(2, config::FindDirection(L"right")->TransType);
    EXPECT_EQ(nullptr, config::FindDirection(0));
    EXPECT_EQ(nullptr, config::FindDirection(4));
    EXPECT_EQ(nullptr, config::FindDirection(L"up"));
}

TEST(HasTranslator, NullAndTheWordNullInAnyCaseMeanNone)
{
    EXPECT_TRUE(config::HasTranslator(L"Outlook"));
    EXPECT_FALSE(config::HasTranslator(Value::Null()));
    for (const wchar_t* text : {L"null", L"NULL", L"Null", L"nULL"})
    {
        EXPECT_FALSE(config::HasTranslator(text)) << text;
    }
}

TEST_F(TranslationTest, AUserWithoutRowsGetsThemFromTheTemplates)
{
    const auto rows = config::LoadTranslations().value();
    ASSERT_EQ(3u, rows.size());
    EXPECT_EQ(L"Contact", rows[0].TransObject);
    EXPECT_EQ(L"Task", rows[1].TransObject);
    EXPECT_EQ(L"Calendar", rows[2].TransObject);
    EXPECT_EQ(Texts{L"3"}, Rows(L"SELECT COUNT(*) FROM T_POutlookSyncParam WHERE F_UID=7"));
}

TEST_F(TranslationTest, NamesFollowTheLanguage)
{
    GiveUserRows();
    {
        const test_support::WithLanguage english(Language::English);
        EXPECT_EQ(L"Calendar", config::LoadTranslations()->at(2).Name);
    }
    const test_support::WithLanguage chinese(Language::Chinese);
    EXPECT_EQ(L"日历", config::LoadTranslations()->at(2).Name);
}

TEST_F(TranslationTest, ARowThatTakesPartIsCheckedAndShowsItsArrow)
{
    GiveUserRows();
    const Translation contact = config::LoadTranslations()->at(0);
    EXPECT_TRUE(contact.Checked);
    EXPECT_EQ(L"each", contact.Arrow());
}

TEST_F(TranslationTest, ARowThatTakesNoPartIsUncheckedAndShowsNoArrow)
{
    GiveUserRows();
    Execute(L"UPDATE T_POutlookSyncParam SET IsTrans=0 WHERE F_UID=7 AND TransObject='Contact'");
    const Translation contact = config::LoadTranslations()->at(0);
    EXPECT_FALSE(contact.Checked);
    EXPECT_TRUE(contact.Translator);
    EXPECT_EQ(L"", contact.Arrow());
}

TEST_F(TranslationTest, ARowWhoseTranslatorIsTheWordNullIsUncheckedAndShowsNoArrow)
{
    GiveUserRows();
    for (const wchar_t* word : {L"'null'", L"'NULL'", L"'Null'", L"NULL"})
    {
        Execute(L"UPDATE T_POutlookSyncParam SET IsTrans=1, TransSource=" + std::wstring(word) +
                L" WHERE F_UID=7 AND TransObject='Contact'");
        const Translation contact = config::LoadTranslations()->at(0);
        EXPECT_FALSE(contact.Checked) << word;
        EXPECT_FALSE(contact.Translator) << word;
        EXPECT_EQ(L"", contact.Arrow()) << word;
    }
}

TEST_F(TranslationTest, ADirectionThatIsNullIsNoneAndTheRowIsLoaded)
{
    GiveUserRows();
    Execute(L"UPDATE T_POutlookSyncParam SET TransType=NULL WHERE F_UID=7 AND TransObject='Contact'");
    const auto rows = config::LoadTranslations();
    ASSERT_TRUE(rows.has_value());
    EXPECT_EQ(0, rows->at(0).TransType);
    EXPECT_EQ(L"each", rows->at(0).TransTypePic);
}

TEST_F(TranslationTest, ThereIsNoListWhenTheHostRefuses)
{
    RefuseEvery(L"OpenRecordsetByString");
    EXPECT_FALSE(config::LoadTranslations());
}

TEST(TranslationSetClause, WritesTheValuesOfTheRow)
{
    Translation row;
    row.Checked = true;
    row.Translator = true;
    row.TransType = 1;
    row.TransTypePic = L"right";
    EXPECT_EQ(L"IsTrans=1,TransSource='Outlook',TransType=2,TransTypePic='right'",
              config::TranslationSetClause(row));
    row.Checked = false;
    row.Translator = false;
    row.TransTypePic = L"each";
    EXPECT_EQ(L"IsTrans=0,TransSource='Null',TransType=3,TransTypePic='each'",
              config::TranslationSetClause(row));
}

TEST(TranslationSetClause, AnUnknownPictureKeepsTheCode)
{
    Translation row;
    row.TransType = 1;
    EXPECT_EQ(L"IsTrans=0,TransSource='Null',TransType=1,TransTypePic=''", config::TranslationSetClause(row));
}

TEST(TranslationSetClause, ADirectionThatWasNeitherLoadedNorChosenIsNotWritten)
{
    EXPECT_EQ(L"IsTrans=0,TransSource='Null'", config::TranslationSetClause(Translation()));
}

TEST(Translation, CheckingARowWithoutATranslatorChoosesTheOnlyOne)
{
    Translation row;
    row.TransTypePic = L"left";
    config::SetChecked(row, true);
    EXPECT_TRUE(row.Translator);
    EXPECT_EQ(L"left", row.Arrow());
    config::SetChecked(row, false);
    EXPECT_TRUE(row.Translator);
    EXPECT_EQ(L"", row.Arrow());
}

TEST(Translation, TheRecordDescribesTheRowAndTheRowFollowsTheRecord)
{
    Translation row;
    row.Checked = true;
    row.Translator = true;
    row.TransType = 3;
    row.TransTypePic = L"each";
    state::SynParameter record;
    config::ApplyTo(record, row);
    EXPECT_TRUE(record.IsTrans);
    EXPECT_EQ(L"Outlook", record.TransSource);
    EXPECT_EQ(3, record.TransType);
    EXPECT_EQ(L"each", record.TransTypePic);
    record.IsTrans = false;
    record.TransSource.clear();
    config::TakeFrom(row, record);
    EXPECT_FALSE(row.Checked);
    EXPECT_FALSE(row.Translator);
}

} // namespace
