// Objects of one dispinterface share what is known of its members; what tells the interface is the object's
// type information alone.
#include "automation/Object.h"
#include "tests/automation/ScriptedObject.h"

#include <gtest/gtest.h>

namespace
{

using automation::InterfaceIds;
using automation::Object;
using test_support::ScriptedObject;

constexpr GUID kOne = {0x7c1d5a02, 0x1f0e, 0x4b77, {0x91, 0x3a, 0x40, 0xd8, 0x5e, 0x6b, 0x20, 0x01}};
constexpr GUID kOther = {0x7c1d5a02, 0x1f0e, 0x4b77, {0x91, 0x3a, 0x40, 0xd8, 0x5e, 0x6b, 0x20, 0x02}};

// An object that shares, and calls its member, by whose number the scripted object knows it.
void Use(ScriptedObject& scripted, InterfaceIds& interfaces)
{
    const Object object(&scripted);
    object.ShareMembers(interfaces);
    object.Get(L"Member");
}

} // namespace

TEST(SharedMembers, AreAskedForOnceByTheObjectsOfOneInterface)
{
    InterfaceIds interfaces;
    ScriptedObject first(kOne);
    ScriptedObject second(kOne);
    Use(first, interfaces);
    Use(second, interfaces);
    EXPECT_EQ(1, first.NamesAsked);
    EXPECT_EQ(0, second.NamesAsked);
}

TEST(SharedMembers, AreThoseOfAnObjectsOwnInterfaceWhereOthersAreMixedWithIt)
{
    InterfaceIds interfaces;
    for (int round = 0; round < 2; ++round)
    {
        ScriptedObject one(kOne);
        ScriptedObject other(kOther);
        other.Id = one.Id + 1; // it fails the test when it is called by another number
        Use(one, interfaces);
        Use(other, interfaces);
        EXPECT_EQ(round == 0 ? 1 : 0, one.NamesAsked);
        EXPECT_EQ(round == 0 ? 1 : 0, other.NamesAsked);
    }
}

TEST(SharedMembers, TheOtherObjectsKnowTheMembersOfTheFirst)
{
    InterfaceIds interfaces;
    ScriptedObject first(kOne);
    const Object object(&first);
    object.Get(L"Member");
    object.ShareMembers(interfaces);
    ScriptedObject second(kOne);
    Use(second, interfaces);
    EXPECT_EQ(0, second.NamesAsked);
}

TEST(SharedMembers, AnObjectWithoutTypeInformationOrInterfaceKeepsItsOwn)
{
    for (const bool hasType : {false, true})
    {
        InterfaceIds interfaces;
        ScriptedObject first(GUID_NULL);
        ScriptedObject second(GUID_NULL);
        first.HasType = second.HasType = hasType;
        second.Id = first.Id + 1;
        Use(first, interfaces);
        Use(second, interfaces);
        EXPECT_EQ(1, second.NamesAsked);
        EXPECT_TRUE(interfaces.empty());
    }
}

TEST(SharedMembers, AnObjectThatCannotBeAskedKeepsItsOwn)
{
    InterfaceIds interfaces;
    ScriptedObject first(kOne);
    Use(first, interfaces);
    ScriptedObject second(kOne);
    second.TypeAnswer = RPC_E_DISCONNECTED;
    Use(second, interfaces);
    EXPECT_EQ(1, second.NamesAsked);
}

TEST(SharedMembers, NothingSharesNothing)
{
    InterfaceIds interfaces;
    Object().ShareMembers(interfaces);
    EXPECT_TRUE(interfaces.empty());
}
