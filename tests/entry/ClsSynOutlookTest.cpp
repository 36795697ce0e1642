#include "entry/ClsSynOutlook.h"

#include "automation/Dates.h"
#include "automation/Object.h"
#include "state/SharedState.h"
#include "tests/support/Fakes.h"
#include "tests/support/HostFont.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

#include <thread>

#include <olectl.h>

using automation::Date;
using automation::DateOf;
using automation::LongOf;
using automation::Object;
using automation::TextOf;
using automation::Value;
using Microsoft::WRL::ComPtr;
using resources::Language;
using test_support::FontValues;
using test_support::HostFont;
using test_support::WithLanguage;

namespace
{

// As the platform makes it.
DATE TimeOfDay(int hour, int minute)
{
    return DateOf(automation::Moment{.hour = hour, .minute = minute}).days;
}

ComPtr<_ClsSynOutlook> NewInstance()
{
    return new entry::ClsSynOutlook;
}

Object LateBound(const ComPtr<_ClsSynOutlook>& instance)
{
    return Object(instance.Get());
}

ComPtr<IFontDisp> NewFont(const wchar_t* name, double points)
{
    std::wstring text = name;
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = text.data();
    description.cySize.int64 = static_cast<LONGLONG>(points * 10000);
    description.sWeight = FW_NORMAL;
    ComPtr<IFontDisp> font;
    OleCreateFontIndirect(&description, __uuidof(IFontDisp), reinterpret_cast<void**>(font.GetAddressOf()));
    return font;
}

class PublicClass : public testing::Test
{
  protected:
    void TearDown() override { state::FreeStateOfThread(); }

    Date Moment(int hour, int minute, int second = 0)
    {
        return DateOf(automation::Moment{2024, 5, 1, hour, minute, second});
    }
};

} // namespace

TEST_F(PublicClass, WritingATimeKeepsHoursAndMinutesOnly)
{
    const auto instance = NewInstance();
    DATE end = Moment(17, 45, 59).days;
    ASSERT_EQ(S_OK, instance->put_CalendarEndTime(&end));
    DATE read = 0;
    ASSERT_EQ(S_OK, instance->get_CalendarEndTime(&read));
    EXPECT_EQ(TimeOfDay(17, 45), read);

    LateBound(instance).Put(L"CalendarStartTime", Moment(8, 5, 30));
    EXPECT_EQ(TimeOfDay(8, 5), DateOf(LateBound(instance).Get(L"CalendarStartTime")).days);
}

TEST_F(PublicClass, TheDefaultsAreSixToHalfPastFiveAndTwentyMinutes)
{
    const Object instance = LateBound(NewInstance());
    EXPECT_EQ(0.25, DateOf(instance.Get(L"CalendarStartTime")).days);
    EXPECT_EQ(TimeOfDay(17, 30), DateOf(instance.Get(L"CalendarEndTime")).days);
    EXPECT_EQ(20, LongOf(instance.Get(L"CalendarPreviewAlarmTime")));
}

TEST_F(PublicClass, TheReminderLeadTimeIsStoredUnchecked)
{
    const Object instance = LateBound(NewInstance());
    instance.Put(L"CalendarPreviewAlarmTime", -5L);
    EXPECT_EQ(-5, LongOf(instance.Get(L"CalendarPreviewAlarmTime")));
}

TEST_F(PublicClass, ANewInstanceResetsTheValuesThatAllInstancesShare)
{
    const Object first = LateBound(NewInstance());
    first.Put(L"CalendarPreviewAlarmTime", 45L);
    first.Put(L"FontName", L"Courier New");
    first.Put(L"FontSize", 14L);
    first.Put(L"CalendarEndTime", Moment(20, 0));
    const Object second = LateBound(NewInstance());
    for (const Object& instance : {first, second})
    {
        EXPECT_EQ(20, LongOf(instance.Get(L"CalendarPreviewAlarmTime")));
        EXPECT_EQ(L"Arial", TextOf(instance.Get(L"FontName")));
        EXPECT_EQ(8, LongOf(instance.Get(L"FontSize")));
        EXPECT_EQ(TimeOfDay(17, 30), DateOf(instance.Get(L"CalendarEndTime")).days);
    }
}

TEST_F(PublicClass, ANewInstanceMakesANewFontObjectAndLeavesTheHostsOneAlone)
{
    const Object first = LateBound(NewInstance());
    const Object ofHost(NewFont(L"Tahoma", 11).Get());
    first.PutRef(L"Font", ofHost);
    const Object second = LateBound(NewInstance());
    const Object made = second.GetObject(L"Font");
    EXPECT_NE(ofHost.Dispatch(), made.Dispatch());
    EXPECT_EQ(L"Tahoma", TextOf(ofHost.Get(L"Name")));
    EXPECT_EQ(11, LongOf(ofHost.Get(L"Size")));
    EXPECT_EQ(L"Arial", TextOf(made.Get(L"Name")));
    EXPECT_EQ(8, LongOf(made.Get(L"Size")));
    const Object third = LateBound(NewInstance());
    EXPECT_NE(made.Dispatch(), third.GetObject(L"Font").Dispatch());
}

TEST_F(PublicClass, AChineseInstanceReportsSongtiNineAndAnEnglishOneArialEight)
{
    {
        const WithLanguage chinese(Language::Chinese);
        const Object instance = LateBound(NewInstance());
        EXPECT_EQ(L"宋体", TextOf(instance.Get(L"FontName")));
        EXPECT_EQ(9, LongOf(instance.Get(L"FontSize")));
    }
    const WithLanguage english(Language::English);
    const Object instance = LateBound(NewInstance());
    EXPECT_EQ(L"Arial", TextOf(instance.Get(L"FontName")));
    EXPECT_EQ(8, LongOf(instance.Get(L"FontSize")));
}

TEST_F(PublicClass, WritingAFontOfNothingChangesNothing)
{
    const auto instance = NewInstance();
    const Object lateBound = LateBound(instance);
    const Object before = lateBound.GetObject(L"Font");
    lateBound.PutRef(L"Font", Object());
    EXPECT_EQ(S_OK, instance->putref_Font(nullptr));
    EXPECT_EQ(L"Arial", TextOf(lateBound.Get(L"FontName")));
    EXPECT_EQ(8, LongOf(lateBound.Get(L"FontSize")));
    EXPECT_EQ(before.Dispatch(), lateBound.GetObject(L"Font").Dispatch());
}

TEST_F(PublicClass, AFontOfTenAndAHalfPointsGivesSizeTenAndKeepsItsOwnUntilFontSizeIsWritten)
{
    const Object instance = LateBound(NewInstance());
    const Object font(NewFont(L"Tahoma", 10.5).Get());
    instance.PutRef(L"Font", font);
    EXPECT_EQ(10, LongOf(instance.Get(L"FontSize")));
    EXPECT_EQ(L"Tahoma", TextOf(instance.Get(L"FontName")));
    EXPECT_EQ(10.5, automation::DoubleOf(font.Get(L"Size")));
    instance.Put(L"FontSize", 12L);
    EXPECT_EQ(12, automation::DoubleOf(font.Get(L"Size")));
}

TEST_F(PublicClass, ASizeIsRoundedAndOfTwoEquallyNearTheEvenOneIsTaken)
{
    const auto instance = NewInstance();
    const auto sizeOf = [&](double points) {
        // The system's own font takes only sizes that the screen has.
        const auto values = std::make_shared<FontValues>();
        values->size = points;
        const Object font = sandbox::MakeObject<HostFont>(values);
        EXPECT_EQ(S_OK, instance->putref_Font(static_cast<IFontDisp*>(font.Dispatch())));
        const long size = LongOf(LateBound(instance).Get(L"FontSize"));
        instance->putref_Font(NewFont(L"Tahoma", 8).Get());
        return size;
    };
    EXPECT_EQ(10, sizeOf(9.75));
    EXPECT_EQ(8, sizeOf(8.25));
    EXPECT_EQ(10, sizeOf(10.5));
    EXPECT_EQ(12, sizeOf(11.5));
}

TEST_F(PublicClass, TheFontThatTheHostHandedInIsChangedByLaterNamesAndSizes)
{
    const auto instance = NewInstance();
    const auto values = std::make_shared<FontValues>();
    const Object font = sandbox::MakeObject<HostFont>(values);
    ASSERT_EQ(S_OK, instance->putref_Font(static_cast<IFontDisp*>(font.Dispatch())));
    EXPECT_EQ(L"Tahoma", TextOf(LateBound(instance).Get(L"FontName")));
    LateBound(instance).Put(L"FontName", L"Wingdings");
    LateBound(instance).Put(L"FontSize", 14L);
    EXPECT_EQ(L"Wingdings", values->name);
    EXPECT_EQ(14, values->size);
    instance->putref_Font(NewFont(L"Tahoma", 8).Get());
}

TEST_F(PublicClass, AFontWithoutSetReachesTheSameMember)
{
    const Object instance = LateBound(NewInstance());
    const Object font(NewFont(L"Tahoma", 11).Get());
    instance.Put(L"Font", font);
    EXPECT_EQ(11, LongOf(instance.Get(L"FontSize")));
    EXPECT_EQ(font.Dispatch(), instance.GetObject(L"Font").Dispatch());
}

TEST_F(PublicClass, EachThreadHasItsOwnValues)
{
    const Object instance = LateBound(NewInstance());
    instance.Put(L"CalendarPreviewAlarmTime", 45L);
    long ofOther = 0;
    std::thread other([&] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        ofOther = LongOf(LateBound(NewInstance()).Get(L"CalendarPreviewAlarmTime"));
        state::FreeStateOfThread();
        CoUninitialize();
    });
    other.join();
    EXPECT_EQ(20, ofOther);
    EXPECT_EQ(45, LongOf(instance.Get(L"CalendarPreviewAlarmTime")));
}

TEST_F(PublicClass, LateBoundCallersMayPassPlainVariantsByReference)
{
    const auto instance = NewInstance();
    const Object lateBound = LateBound(instance);
    const Value minutes(33L);
    VARIANTARG reference;
    VariantInit(&reference);
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = const_cast<VARIANT*>(&minutes.Raw());
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&reference, &put, 1, 1};
    LPOLESTR name = const_cast<LPOLESTR>(L"CalendarPreviewAlarmTime");
    DISPID id = 0;
    ASSERT_EQ(S_OK, instance->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
    ASSERT_EQ(S_OK, instance->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &parameters,
                                     nullptr, nullptr, nullptr));
    EXPECT_EQ(33, LongOf(lateBound.Get(L"CalendarPreviewAlarmTime")));
}

TEST_F(PublicClass, TheMembersStandInTheTypeLibraryInTheirOrder)
{
    const auto instance = NewInstance();
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(S_OK, instance->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info));
    const wchar_t* const kMembers[] = {L"CalendarEndTime",
                                       L"CalendarEndTime",
                                       L"CalendarStartTime",
                                       L"CalendarStartTime",
                                       L"CalendarPreviewAlarmTime",
                                       L"CalendarPreviewAlarmTime",
                                       L"FontName",
                                       L"FontName",
                                       L"FontSize",
                                       L"FontSize",
                                       L"Font",
                                       L"Font",
                                       L"SynLoad"};
    UINT at = 0;
    for (UINT i = 0; at < ARRAYSIZE(kMembers); ++i)
    {
        FUNCDESC* function = nullptr;
        ASSERT_EQ(S_OK, info->GetFuncDesc(i, &function));
        BSTR name = nullptr;
        UINT count = 0;
        info->GetNames(function->memid, &name, 1, &count);
        const bool isOwn = function->memid < 0x60000000;
        if (isOwn)
        {
            EXPECT_STREQ(kMembers[at++], name);
        }
        SysFreeString(name);
        info->ReleaseFuncDesc(function);
    }
}
