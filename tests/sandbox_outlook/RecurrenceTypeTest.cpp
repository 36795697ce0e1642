#include "tests/sandbox_outlook/RecurrencePatternFixture.h"

namespace sandbox
{

namespace
{

struct MemberOfType
{
    long type;
    const wchar_t* member;
};

} // namespace

TEST_F(RecurrencePattern, MembersThatDoNotGoWithTheTypeAreRefused)
{
    const auto pattern = Pattern();
    for (const auto& [type, member] : {MemberOfType{0, L"DayOfWeekMask"},
                                       {0, L"DayOfMonth"},
                                       {0, L"MonthOfYear"},
                                       {0, L"Instance"},
                                       {1, L"DayOfMonth"},
                                       {1, L"MonthOfYear"},
                                       {1, L"Instance"},
                                       {2, L"DayOfWeekMask"},
                                       {2, L"MonthOfYear"},
                                       {2, L"Instance"},
                                       {3, L"DayOfMonth"},
                                       {3, L"MonthOfYear"},
                                       {5, L"Interval"},
                                       {5, L"DayOfWeekMask"},
                                       {5, L"Instance"},
                                       {6, L"Interval"},
                                       {6, L"DayOfMonth"}})
    {
        pattern.Put(L"RecurrenceType", type);
        EXPECT_NE(std::wstring::npos,
                  FailureOf([&, name = member] { pattern.Put(name, 1); }).find(L"does not go with"))
            << type << member;
    }
}

TEST_F(RecurrencePattern, MembersThatGoWithTheTypeAreTaken)
{
    const auto pattern = Pattern();
    for (const auto& [type, member] : {MemberOfType{0, L"Interval"},
                                       {1, L"Interval"},
                                       {1, L"DayOfWeekMask"},
                                       {2, L"Interval"},
                                       {2, L"DayOfMonth"},
                                       {3, L"Interval"},
                                       {3, L"Instance"},
                                       {3, L"DayOfWeekMask"},
                                       {5, L"DayOfMonth"},
                                       {5, L"MonthOfYear"},
                                       {6, L"MonthOfYear"},
                                       {6, L"Instance"},
                                       {6, L"DayOfWeekMask"}})
    {
        pattern.Put(L"RecurrenceType", type);
        pattern.Put(member, 2);
        EXPECT_EQ(2, Number(pattern, member)) << type << member;
    }
}

TEST_F(RecurrencePattern, AnotherTypeStartsFromItsDefaults)
{
    const auto pattern = Pattern();
    pattern.Put(L"Interval", 3);
    pattern.Put(L"RecurrenceType", 2);
    EXPECT_EQ(1, Number(pattern, L"Interval"));
    EXPECT_EQ(6, Number(pattern, L"DayOfMonth"));
    EXPECT_EQ(0, Number(pattern, L"DayOfWeekMask"));
    pattern.Put(L"DayOfMonth", 31);
    pattern.Put(L"RecurrenceType", 2);
    EXPECT_EQ(31, Number(pattern, L"DayOfMonth"));
    pattern.Put(L"RecurrenceType", 5);
    EXPECT_EQ(6, Number(pattern, L"DayOfMonth"));
    EXPECT_EQ(5, Number(pattern, L"MonthOfYear"));
    pattern.Put(L"RecurrenceType", 3);
    EXPECT_EQ(1, Number(pattern, L"Instance"));
    EXPECT_EQ(4, Number(pattern, L"DayOfWeekMask"));
    EXPECT_EQ(L"The value of RecurrenceType is out of range.",
              FailureOf([&] { pattern.Put(L"RecurrenceType", 4); }));
}

TEST_F(RecurrencePattern, SeveralDaysGoOnlyWithAWeeklyPattern)
{
    const auto pattern = Pattern();
    pattern.Put(L"DayOfWeekMask", 2 | 8 | 32);
    EXPECT_EQ(L"2003-05-07 09:30", At(mAppointment.Get(L"Start")));
    pattern.Put(L"RecurrenceType", 3);
    EXPECT_NE(L"", FailureOf([&] { pattern.Put(L"DayOfWeekMask", 2 | 8); }));
    pattern.Put(L"DayOfWeekMask", 62);
    EXPECT_NE(L"", FailureOf([&] { pattern.Put(L"DayOfWeekMask", 0); }));
    EXPECT_NE(L"", FailureOf([&] { pattern.Put(L"DayOfWeekMask", 128); }));
}

} // namespace sandbox
