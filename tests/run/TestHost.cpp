#include "tests/run/TestHost.h"

#include "sandbox/dispatch/DispatchObject.h"

namespace test_support
{

namespace
{

using sandbox::Call;
using sandbox::DispatchObject;
using sandbox::MakeObject;
using sandbox::MemberTable;
using sandbox::Reads;
using sandbox::Value;

class FakeUser : public DispatchObject
{
  public:
    explicit FakeUser(std::shared_ptr<TestHost::State> state) : mState(std::move(state)) {}

  private:
    Value PermissionOn(const Call& call)
    {
        constexpr long kPermitted = 0;
        constexpr long kDenied = 1;
        mState->questions.push_back(
            {automation::LongOf(call.At(0)), automation::LongOf(call.At(1)), automation::LongOf(call.At(2))});
        return mState->denied.contains(mState->questions.back()[2]) ? kDenied : kPermitted;
    }
    Value Uid(const Call&) { return L"1"; }

    const wchar_t* ClassName() const override { return L"MyInfo"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"PermissionOn", Reads(&FakeUser::PermissionOn), nullptr},
            {L"UID", Reads(&FakeUser::Uid), nullptr},
        };
        return table;
    }

    std::shared_ptr<TestHost::State> mState;
};

class FakeDtc : public DispatchObject
{
  public:
    explicit FakeDtc(std::shared_ptr<TestHost::State> state) : mState(std::move(state)) {}

  private:
    Value MyInfo(const Call&) { return MakeObject<FakeUser>(mState); }
    Value SysDateTime(const Call&) { return mState->now; }

    const wchar_t* ClassName() const override { return L"DTC"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"MyInfo", Reads(&FakeDtc::MyInfo), nullptr},
            {L"SysDateTime", Reads(&FakeDtc::SysDateTime), nullptr},
        };
        return table;
    }

    std::shared_ptr<TestHost::State> mState;
};

} // namespace

TestHost::TestHost() : mState(std::make_shared<State>()), mObject(MakeObject<FakeDtc>(mState)) {}

void TestHost::DenyRight(long right)
{
    mState->denied.insert(right);
}

void TestHost::SetSysDateTime(automation::Date moment)
{
    mState->now = moment;
}

} // namespace test_support
