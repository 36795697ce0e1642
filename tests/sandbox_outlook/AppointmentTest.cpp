#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

class AppointmentItem : public OutlookFixture
{
  protected:
    std::wstring Bounds() const
    {
        return At(mAppointment.Get(L"Start")) + L" - " + At(mAppointment.Get(L"End"));
    }

    automation::Object mAppointment = New(Calendar());
};

TEST_F(AppointmentItem, ANewOneTakesHalfAnHourFromTheNextHalfHour)
{
    EXPECT_EQ(30, Number(mAppointment, L"Duration"));
    EXPECT_EQ(0, automation::MomentOf(automation::DateOf(mAppointment.Get(L"Start"))).minute % 30);
    EXPECT_FALSE(Truth(mAppointment, L"IsRecurring"));
    EXPECT_TRUE(Truth(mAppointment, L"ReminderSet"));
    EXPECT_EQ(15, Number(mAppointment, L"ReminderMinutesBeforeStart"));
    EXPECT_EQ(L"IPM.Appointment", Text(mAppointment, L"MessageClass"));
    EXPECT_EQ(26, Number(mAppointment, L"Class"));
}

TEST_F(AppointmentItem, SettingTheStartKeepsTheDuration)
{
    mAppointment.Put(L"Duration", 90);
    mAppointment.Put(L"Start", Day(2003, 5, 6, 9, 30));
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-06 11:00", Bounds());
    mAppointment.Put(L"Start", Day(2003, 5, 7, 23, 0));
    EXPECT_EQ(L"2003-05-07 23:00 - 2003-05-08 00:30", Bounds());
}

TEST_F(AppointmentItem, SettingTheEndChangesTheDurationAndMayNotPrecedeTheStart)
{
    mAppointment.Put(L"Start", Day(2003, 5, 6, 9, 30));
    mAppointment.Put(L"End", Day(2003, 5, 6, 9, 30));
    EXPECT_EQ(0, Number(mAppointment, L"Duration"));
    mAppointment.Put(L"End", Day(2003, 5, 7, 9, 30));
    EXPECT_EQ(1440, Number(mAppointment, L"Duration"));
    EXPECT_EQ(L"The end date you entered occurs before the start date.",
              FailureOf([&] { mAppointment.Put(L"End", Day(2003, 5, 6, 9, 29)); }));
    EXPECT_EQ(L"2003-05-06 09:30 - 2003-05-07 09:30", Bounds());
}

TEST_F(AppointmentItem, AnAllDayEventLastsFromMidnightToMidnight)
{
    mAppointment.Put(L"Start", Day(2003, 5, 6, 9, 30));
    mAppointment.Put(L"AllDayEvent", true);
    EXPECT_EQ(L"2003-05-06 00:00 - 2003-05-07 00:00", Bounds());
    mAppointment.Put(L"End", Day(2003, 5, 8));
    EXPECT_EQ(L"2003-05-06 00:00 - 2003-05-08 00:00", Bounds());
    mAppointment.Put(L"Start", Day(2003, 6, 1, 14, 0));
    EXPECT_EQ(L"2003-06-01 00:00 - 2003-06-03 00:00", Bounds());
    mAppointment.Put(L"End", Day(2003, 6, 1, 15, 0));
    EXPECT_EQ(L"2003-06-01 00:00 - 2003-06-02 00:00", Bounds());
}

TEST_F(AppointmentItem, AnAppointmentAcrossTheChangeOfTheClocksKeepsItsLocalTimes)
{
    mAppointment.Put(L"Start", Day(2003, 3, 30, 1, 30));
    mAppointment.Put(L"Duration", 120);
    EXPECT_EQ(L"2003-03-30 01:30 - 2003-03-30 03:30", Bounds());
    mAppointment.Put(L"Start", Day(2003, 10, 26, 1, 30));
    EXPECT_EQ(L"2003-10-26 01:30 - 2003-10-26 03:30", Bounds());
}

TEST_F(AppointmentItem, PartialRowsTakeTheirEndFromTheDuration)
{
    mMailbox->AddItem(kCalendar, {{L"Subject", L"a"}, {L"Start", Day(2003, 5, 6, 9, 0)}});
    mMailbox->AddItem(kCalendar, {{L"Start", Day(2003, 5, 6, 9, 0)}, {L"Duration", 45}});
    EXPECT_EQ(L"2003-05-06 09:30", At(mMailbox->ItemProperty(kCalendar, 1, L"End")));
    EXPECT_EQ(L"2003-05-06 09:45", At(mMailbox->ItemProperty(kCalendar, 2, L"End")));
}

TEST_F(AppointmentItem, RemindersAreCountedInMinutesBeforeTheStart)
{
    mAppointment.Put(L"ReminderSet", true);
    mAppointment.Put(L"ReminderMinutesBeforeStart", 20);
    EXPECT_TRUE(Truth(mAppointment, L"ReminderSet"));
    EXPECT_EQ(20, Number(mAppointment, L"ReminderMinutesBeforeStart"));
    EXPECT_NE(L"", FailureOf([&] { mAppointment.Put(L"ReminderMinutesBeforeStart", -1); }));
}

TEST_F(AppointmentItem, ContactsAreLinkedAsToTasks)
{
    mAppointment.GetObject(L"Links").Call(L"Add", SavedContact(L"Mary", L"Smith"));
    mAppointment.Call(L"Save");
    EXPECT_EQ(1u, mMailbox->ItemLinks(kCalendar, 1).size());
}

} // namespace sandbox
