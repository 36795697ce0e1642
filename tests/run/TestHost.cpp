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
    explicit FakeUser(std::shared_ptr<std::set<long>> denied) : mDenied(std::move(denied)) {}

  private:
    Value PermissionOn(const Call& call)
    {
        constexpr long kPermitted = 0;
        constexpr long kDenied = 1;
        return mDenied->contains(automation::LongOf(call.At(2))) ? kDenied : kPermitted;
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

    std::shared_ptr<std::set<long>> mDenied;
};

class FakeDtc : public DispatchObject
{
  public:
    explicit FakeDtc(std::shared_ptr<std::set<long>> denied) : mDenied(std::move(denied)) {}

  private:
    Value MyInfo(const Call&) { return MakeObject<FakeUser>(mDenied); }

    const wchar_t* ClassName() const override { return L"DTC"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{{L"MyInfo", Reads(&FakeDtc::MyInfo), nullptr}};
        return table;
    }

    std::shared_ptr<std::set<long>> mDenied;
};

} // namespace

TestHost::TestHost() : mDenied(std::make_shared<std::set<long>>()), mObject(MakeObject<FakeDtc>(mDenied)) {}

void TestHost::DenyRight(long right)
{
    mDenied->insert(right);
}

} // namespace test_support
