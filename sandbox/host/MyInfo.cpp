#include "automation/Error.h"
#include "sandbox/host/Dtc.h"

namespace sandbox
{

namespace
{

constexpr long kPermitted = 0;

// A right's code as the host's own declaration takes it: a 32-bit integer, by reference or plain.
long CodeOf(const Call& call, size_t index)
{
    const VARTYPE type = call.Raw(index).vt;
    if (type != VT_I4 && type != (VT_BYREF | VT_I4) && type != (VT_BYREF | VT_VARIANT))
    {
        throw automation::Error(DISP_E_TYPEMISMATCH, L"PermissionOn");
    }
    return automation::LongOf(call.At(index));
}

class MyInfo : public DispatchObject
{
  public:
    explicit MyInfo(std::shared_ptr<HostState> state) : mState(std::move(state)) {}

  private:
    const wchar_t* ClassName() const override { return L"MyInfo"; }

    const MemberTable& Members() const override
    {
        static const MemberTable members{
            {L"UID", Reads(&MyInfo::Uid), nullptr},
            {L"PermissionOn", Reads(&MyInfo::PermissionOn), nullptr},
        };
        return members;
    }

    Value Uid(const Call&)
    {
        mState->failures.OnCall(L"UID", false);
        return std::to_wstring(mState->userId);
    }

    // What no row decides is permitted.
    Value PermissionOn(const Call& call)
    {
        if (const std::optional<long> ordered = mState->failures.OnCall(L"PermissionOn", true))
        {
            return *ordered;
        }
        Value answer = mState->database.QueryValue(
            L"SELECT Answer FROM UserRight WHERE F_UID=? AND Module=? AND Function=? AND [Right]=?",
            {mState->userId, CodeOf(call, 0), CodeOf(call, 1), CodeOf(call, 2)});
        return automation::IsEmptyOrNull(answer) ? Value(kPermitted) : answer;
    }

    std::shared_ptr<HostState> mState;
};

} // namespace

automation::Object MakeMyInfo(std::shared_ptr<HostState> state)
{
    return MakeObject<MyInfo>(std::move(state));
}

} // namespace sandbox
