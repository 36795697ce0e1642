// When a contact and a host row are the same record.
#include "automation/Text.h"
#include "contacts/Contacts.h"
#include "tests/run/MatchByRule.h"

#include <gtest/gtest.h>

namespace
{

using namespace test_support;
using automation::Value;

constexpr const wchar_t* kNothing[] = {L"", L"  "};

class MatchContact : public testing::Test
{
  protected:
    static bool Match() { return test_support::Match(contacts::kContacts.Match, Item, Row); }

    static bool MatchWith(const wchar_t* inItem, const Value& itemValue, const wchar_t* inRow,
                          const Value& rowValue)
    {
        Item = {{L"LastName", L"Li"}, {L"FirstName", L"Ming"}, {L"CompanyName", L"Harbour"}};
        Row = {{L"F_SURNAME", L"Li"}, {L"F_GIVENNAME", L"Ming"}, {L"ACC_SNAME", L"Harbour"}};
        Item[inItem] = itemValue;
        Row[inRow] = rowValue;
        return Match();
    }

    static inline Record Item;
    static inline Record Row;
};

struct ContactKey
{
    const wchar_t* property;
    const wchar_t* column;
};

constexpr ContactKey kKeysOfContact[] = {
    {L"LastName", L"F_SURNAME"}, {L"FirstName", L"F_GIVENNAME"}, {L"CompanyName", L"ACC_SNAME"}};

TEST_F(MatchContact, EachNameAndTheCompanyAreComparedWithoutTheBlanksAtTheirEnds)
{
    for (const ContactKey& key : kKeysOfContact)
    {
        SCOPED_TRACE(automation::ToUtf8(key.property));
        for (const wchar_t* padded : {L" Ode", L"Ode ", L"  Ode  "})
        {
            EXPECT_TRUE(MatchWith(key.property, padded, key.column, L"Ode"));
            EXPECT_TRUE(MatchWith(key.property, L"Ode", key.column, padded));
        }
        EXPECT_FALSE(MatchWith(key.property, L"O de", key.column, L"Ode"));
        EXPECT_FALSE(MatchWith(key.property, L"Ode", key.column, L"O de"));
        EXPECT_FALSE(MatchWith(key.property, L"Ode\t", key.column, L"Ode"));
    }
}

TEST_F(MatchContact, EachNameAndTheCompanyAreComparedInUpperCase)
{
    for (const ContactKey& key : kKeysOfContact)
    {
        SCOPED_TRACE(automation::ToUtf8(key.property));
        EXPECT_TRUE(MatchWith(key.property, L"\u00f8de", key.column, L"\u00d8DE"));
        EXPECT_TRUE(MatchWith(key.property, L"\u00d8DE", key.column, L"\u00f8de"));
        EXPECT_TRUE(MatchWith(key.property, L"张", key.column, L"张"));
        EXPECT_FALSE(MatchWith(key.property, L"Ode", key.column, L"Oda"));
        EXPECT_FALSE(MatchWith(key.property, L"Ode", key.column, L"Od"));
    }
}

TEST_F(MatchContact, TheLastNameComesFirstWithoutASeparator)
{
    EXPECT_FALSE(MatchWith(L"LastName", L"Lim", L"F_SURNAME", L"Li"));
    Item = {{L"LastName", L"Lim"}, {L"FirstName", L"ing"}, {L"CompanyName", L"Harbour"}};
    EXPECT_TRUE(Match());
    Item = {{L"LastName", L"LiMing"}, {L"FirstName", L""}, {L"CompanyName", L"Harbour"}};
    EXPECT_TRUE(Match());
    Item = {{L"LastName", L"Li "}, {L"FirstName", L" Ming"}, {L"CompanyName", L"Harbour"}};
    EXPECT_TRUE(Match());
    Item = {{L"LastName", L"Ming"}, {L"FirstName", L"Li"}, {L"CompanyName", L"Harbour"}};
    EXPECT_FALSE(Match());
}

TEST_F(MatchContact, ARowThatLacksOneNameHasNoNameAtAll)
{
    for (const ContactKey& key : {kKeysOfContact[0], kKeysOfContact[1]})
    {
        for (const Value& absent : {Value(), Value::Null()})
        {
            SCOPED_TRACE(automation::ToUtf8(key.column));
            EXPECT_FALSE(MatchWith(key.property, L"", key.column, absent));
            Item[L"LastName"] = Item[L"FirstName"] = L"";
            EXPECT_TRUE(Match());
            Item[L"LastName"] = Item[L"FirstName"] = L" ";
            EXPECT_TRUE(Match());
        }
    }
}

TEST_F(MatchContact, AnEmptyTextInARowIsANameOfItsOwnAndTheOtherNameCounts)
{
    for (const ContactKey& key : {kKeysOfContact[0], kKeysOfContact[1]})
    {
        for (const wchar_t* nothing : kNothing)
        {
            EXPECT_TRUE(MatchWith(key.property, L"", key.column, nothing));
            Item[L"LastName"] = Item[L"FirstName"] = L"";
            EXPECT_FALSE(Match());
        }
    }
}

TEST_F(MatchContact, AnItemsNameThatIsNullOrEmptyIsTheEmptyText)
{
    for (const ContactKey& key : kKeysOfContact)
    {
        for (const Value& nothing : {Value(), Value::Null(), Value(L""), Value(L" ")})
        {
            EXPECT_TRUE(MatchWith(key.property, nothing, key.column, L""));
            EXPECT_FALSE(MatchWith(key.property, nothing, key.column, L"x"));
        }
    }
}

TEST_F(MatchContact, ACompanyThatTheHostHasAsNullOrEmptyIsTheEmptyText)
{
    for (const Value& nothing : {Value(), Value::Null(), Value(L""), Value(L" ")})
    {
        EXPECT_TRUE(MatchWith(L"CompanyName", L"", L"ACC_SNAME", nothing));
        EXPECT_FALSE(MatchWith(L"CompanyName", L"Harbour", L"ACC_SNAME", nothing));
    }
}

TEST_F(MatchContact, NamesThatAgreeAreNotEnoughNorIsACompanyThatDoes)
{
    EXPECT_FALSE(MatchWith(L"CompanyName", L"Harbour", L"ACC_SNAME", L"Quay"));
    EXPECT_FALSE(MatchWith(L"LastName", L"Ode", L"F_SURNAME", L"Li"));
    EXPECT_TRUE(MatchWith(L"LastName", L"Li", L"F_SURNAME", L"Li"));
}

} // namespace
