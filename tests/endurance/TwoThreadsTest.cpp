// Two clients on two threads, each with a host, a mailbox, a user and a component of its own, at the same
// time.
#include "tests/endurance/Apartment.h"
#include "tests/endurance/Office.h"
#include "tests/endurance/ProcessLanguage.h"
#include "tests/support/Fakes.h"
#include "tests/support/Thoroughness.h"

#include "automation/Dates.h"
#include "automation/Text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

using automation::DateOf;
using automation::LongOf;
using automation::Object;
using automation::TextOf;
using resources::Language;
using sandbox::Edition;
using test_support::ApartmentThread;
using test_support::Office;
using test_support::ProcessLanguage;
using test_support::Use;
using tools::ShownDialog;

namespace
{

constexpr size_t kUses = 4;
constexpr size_t kLongUses = 120;

struct Preferences
{
    const wchar_t* font;
    long points;
    long minutes;
    double start;
    size_t records; // as many as the other has not
    size_t firstUse;
};

constexpr Preferences kClients[] = {
    {L"Courier New", 11, 45, 0.25, 4, 0},
    {L"Times New Roman", 8, 10, 0.375, 6, 4},
};

// The two robots wait here for one another, so that both dialogs are on the screen.
class Meeting
{
  public:
    bool Meet()
    {
        std::unique_lock lock(mMutex);
        const long meeting = mMeetings;
        if (++mWaiting == 2)
        {
            mWaiting = 0;
            ++mMeetings;
            mMet.notify_all();
            return true;
        }
        return mMet.wait_for(lock, std::chrono::seconds(20), [&] { return mMeetings != meeting; });
    }

    long Count() const { return mMeetings; }

  private:
    std::mutex mMutex;
    std::condition_variable mMet;
    int mWaiting = 0;
    long mMeetings = 0;
};

std::wstring FontOf(const ShownDialog& dialog)
{
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(dialog.Ask(dialog.Handle(), WM_GETFONT)), sizeof font, &font);
    return font.lfFaceName;
}

// Faults, as sentences; checked by the test's own thread.
using Faults = std::vector<std::string>;

void ExpectOwn(const Preferences& own, const Object& component, Faults& faults)
{
    const bool isOwn = TextOf(component.Get(L"FontName")) == own.font &&
                       LongOf(component.Get(L"FontSize")) == own.points &&
                       LongOf(component.Get(L"CalendarPreviewAlarmTime")) == own.minutes &&
                       DateOf(component.Get(L"CalendarStartTime")).days == own.start;
    if (!isOwn)
    {
        faults.emplace_back("a component has lost its thread's values");
    }
}

void SetOwn(const Preferences& own, const Object& component)
{
    component.Put(L"FontName", own.font);
    component.Put(L"FontSize", own.points);
    component.Put(L"CalendarPreviewAlarmTime", own.minutes);
    component.Put(L"CalendarStartTime", automation::Date{own.start});
}

Use UseOf(const Preferences& own, size_t k)
{
    Use use = test_support::UseNumber(own.firstUse + k);
    use.decline = false; // or the other would wait for its second run
    return use;
}

void Exchange(const Preferences& own, Edition edition, Meeting& meeting, size_t uses, Faults& faults)
{
    Office office(edition, own.records);
    const Object component = test_support::NewComponent();
    SetOwn(own, component);
    office.WhileShown = [&](const ShownDialog& main) {
        if (!meeting.Meet())
        {
            faults.emplace_back("the other one's dialog was not shown");
        }
        if (FontOf(main) != own.font)
        {
            faults.push_back("the dialog's font is " + automation::ToUtf8(FontOf(main)));
        }
    };
    for (size_t k = 0; k < uses; ++k)
    {
        if (const std::string fault = office.Check(UseOf(own, k), component); !fault.empty())
        {
            faults.push_back(fault);
        }
        ExpectOwn(own, component, faults);
    }
}

// An exception must not leave the thread: it would end the process.
void Work(const Preferences& own, Edition edition, Meeting& meeting, size_t uses, Faults& faults)
{
    try
    {
        Exchange(own, edition, meeting, uses, faults);
    }
    catch (const std::exception& failure)
    {
        faults.emplace_back(failure.what());
    }
}

class TwoThreads : public testing::TestWithParam<Language>
{
};

} // namespace

TEST_P(TwoThreads, ExchangeEachItsOwnDataWithItsOwnFontTimesAndParameters)
{
    const ProcessLanguage language(GetParam());
    const Edition edition = GetParam() == Language::Chinese ? Edition::Chinese : Edition::English;
    const size_t uses = test_support::IsLongRun() ? kLongUses : kUses;
    Meeting meeting;
    Faults faults[2];
    {
        ApartmentThread first([&] { Work(kClients[0], edition, meeting, uses, faults[0]); });
        ApartmentThread second([&] { Work(kClients[1], edition, meeting, uses, faults[1]); });
    }
    EXPECT_EQ(Faults(), faults[0]);
    EXPECT_EQ(Faults(), faults[1]);
    EXPECT_EQ(static_cast<long>(uses), meeting.Count());
    test_support::ReportFigure("endurance: two threads, " + std::to_string(2 * uses) +
                               " runs of SynLoad, in pairs at the same time");
}

INSTANTIATE_TEST_SUITE_P(InEitherLanguage, TwoThreads, testing::Values(Language::English, Language::Chinese));
