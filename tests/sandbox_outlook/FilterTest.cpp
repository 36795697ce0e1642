#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

class Filter : public OutlookFixture
{
  protected:
    Filter()
    {
        mMailbox->AddItem(kContacts, {{L"FirstName", L"Mary"},
                                      {L"LastName", L"O'Neil"},
                                      {L"Birthday", Day(1975, 3, 4)},
                                      {L"Importance", 2}});
        mMailbox->AddItem(kContacts, {{L"FirstName", L"小明"}, {L"LastName", L"王"}});
        mMailbox->AddItem(kContacts, {{L"FirstName", L"MARY"}, {L"LastName", L"Smith"}, {L"UnRead", true}});
    }

    long Matches(const wchar_t* filter) const
    {
        return Number(Contacts().GetObject(L"Items").GetObject(L"Restrict", filter), L"Count");
    }

    std::wstring Failure(const wchar_t* filter) const
    {
        return FailureOf([&] { Contacts().GetObject(L"Items").GetObject(L"Restrict", filter); });
    }
};

TEST_F(Filter, TextsAreComparedWithoutRegardToCase)
{
    EXPECT_EQ(2, Matches(L"[FirstName] = 'mary'"));
    EXPECT_EQ(1, Matches(L"[FirstName] = \"小明\""));
    EXPECT_EQ(1, Matches(L"[LastName] = \"O'Neil\""));
    EXPECT_EQ(0, Matches(L"[FirstName] = 'Mar'"));
    EXPECT_EQ(3, Matches(L"[messageclass]='IPM.Contact'"));
}

TEST_F(Filter, ConditionsAreJoinedWithAndBindingTighterThanOr)
{
    EXPECT_EQ(1, Matches(L"[FirstName] = 'Mary' And [LastName] = 'Smith'"));
    EXPECT_EQ(2, Matches(L"[LastName] = '王' or [FirstName] = 'Mary' AND [LastName] = 'Smith'"));
    EXPECT_EQ(1, Matches(L"([LastName] = '王' Or [FirstName] = 'Mary') And [LastName] = 'Smith'"));
    EXPECT_EQ(1, Matches(L"Not [FirstName] = 'Mary'"));
}

TEST_F(Filter, EveryComparisonWorksForTextsNumbersDatesAndTruthValues)
{
    EXPECT_EQ(1, Matches(L"[FirstName] <> 'Mary'"));
    EXPECT_EQ(1, Matches(L"[Importance] > 1"));
    EXPECT_EQ(3, Matches(L"[Importance] >= 1"));
    EXPECT_EQ(2, Matches(L"[Importance] < '2'"));
    EXPECT_EQ(1, Matches(L"[Birthday] <= '12/31/1999'"));
    EXPECT_EQ(2, Matches(L"[Birthday] > '1975-03-04'"));
    EXPECT_EQ(1, Matches(L"[UnRead] = True"));
    EXPECT_EQ(2, Matches(L"[UnRead] = 'False'"));
}

TEST_F(Filter, ADerivedPropertyCanBeAskedFor)
{
    EXPECT_EQ(1, Matches(L"[FullName] = '王小明'"));
}

TEST_F(Filter, AFilterThatCannotBeReadIsAnErrorThatSaysWhere)
{
    EXPECT_EQ(L"Cannot parse condition. Error at \"B\" And [LastName] = \"X\"\".",
              Failure(L"[FirstName] = \"A\"B\" And [LastName] = \"X\""));
    EXPECT_EQ(L"Cannot parse condition. Error at \"Mary\".", Failure(L"[FirstName] = 'Mary"));
    EXPECT_EQ(L"Cannot parse condition. Error at \"FirstName = 1\".", Failure(L"FirstName = 1"));
    EXPECT_EQ(L"Cannot parse condition. Error at \"\".", Failure(L""));
    EXPECT_EQ(L"Cannot parse condition. Error at \"\".", Failure(L"[FirstName] ="));
    EXPECT_EQ(L"Cannot parse condition. Error at \"'soon'\".", Failure(L"[Birthday] = 'soon'"));
}

TEST_F(Filter, ADoubledQuoteIsOneAndASingleOneEndsTheText)
{
    mMailbox->AddItem(kContacts, {{L"FirstName", L"a\"b"}, {L"LastName", L"X"}});
    EXPECT_EQ(1, Matches(L"[FirstName] = \"a\"\"b\" And [LastName] = \"X\""));
    EXPECT_EQ(1, Matches(L"[FirstName] = 'a\"b'"));
    EXPECT_EQ(1, Matches(L"[LastName] = 'O''Neil'"));
    EXPECT_EQ(0, Matches(L"[FirstName] = \"\"\"\" And [LastName] = \"X\""));
    for (const wchar_t* name : {L"\"", L"a\"", L"\"a", L"a\"b"})
    {
        const std::wstring filter = std::wstring(L"[FirstName] = \"") + name + L"\" And [LastName] = \"X\"";
        EXPECT_NE(std::wstring::npos, Failure(filter.c_str()).find(L"Cannot parse condition.")) << name;
    }
}

TEST_F(Filter, ThePropertiesThatFindAndRestrictDoNotTakeAreRefused)
{
    for (const wchar_t* name : {L"Categories", L"companies", L"ContactNames", L"Body", L"EntryID", L"DLName"})
    {
        const std::wstring filter = std::wstring(L"[") + name + L"] = 'X'";
        const std::wstring failure =
            std::wstring(L"Condition is not valid: \"") + name + L"\" cannot be filtered.";
        EXPECT_EQ(failure, Failure(filter.c_str()));
        EXPECT_EQ(failure, FailureOf([&] { Contacts().GetObject(L"Items").GetObject(L"Find", filter); }));
    }
}

TEST_F(Filter, AnUnknownPropertyIsAnError)
{
    EXPECT_EQ(L"The property \"ShoeSize\" is unknown.", Failure(L"[ShoeSize] = 44"));
}

TEST_F(Filter, FindGivesTheFirstItemAndFindNextTheOthers)
{
    const auto items = Contacts().GetObject(L"Items");
    EXPECT_EQ(L"O'Neil", Text(items.GetObject(L"Find", L"[FirstName] = 'Mary'"), L"LastName"));
    EXPECT_EQ(L"Smith", Text(items.GetObject(L"FindNext"), L"LastName"));
    EXPECT_FALSE(items.GetObject(L"FindNext"));
    EXPECT_FALSE(items.GetObject(L"Find", L"[FirstName] = 'Nobody'"));
}

TEST_F(Filter, FindInARestrictedCollectionFindsOnlyItsItems)
{
    const auto restricted = Contacts().GetObject(L"Items").GetObject(L"Restrict", L"[LastName] = 'Smith'");
    EXPECT_FALSE(restricted.GetObject(L"Find", L"[LastName] = '王'"));
    EXPECT_EQ(L"Smith", Text(restricted.GetObject(L"Find", L"[FirstName] = 'Mary'"), L"LastName"));
}

} // namespace sandbox
