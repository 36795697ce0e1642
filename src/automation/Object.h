// A counted reference to an automation object that is reached by member name (late binding). Copies share
// the reference and its known members: each member's DISPID is asked for once per object, which saves a
// cross-process round trip on every later use. Used on the thread (apartment) that obtained it; if it
// ends after the thread has left COM, a reference to another process is abandoned instead of released.
#pragma once

#include "automation/Argument.h"
#include "automation/Value.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace automation
{

// The DISPIDs of members by name, as far as they have been asked for.
using MemberIds = std::vector<std::pair<std::wstring, DISPID>>;
struct GuidOrder
{
    bool operator()(const GUID& left, const GUID& right) const noexcept;
};
// The same for every dispinterface met, by its identifier.
using InterfaceIds = std::map<GUID, std::shared_ptr<MemberIds>, GuidOrder>;

class Object
{
  public:
    Object() noexcept = default; // nothing
    // Takes a further reference on dispatch (which may be null: nothing).
    explicit Object(IDispatch* dispatch);

    // A new object of the class with this programmatic identifier, in process or out of it. Throws Error.
    static Object Create(const wchar_t* progId);

    explicit operator bool() const noexcept { return mTarget != nullptr; }
    // The interface held, without a further reference; null for nothing.
    IDispatch* Dispatch() const noexcept;

    // Shares the known members with the other objects of the same dispinterface from now on: its DISPIDs
    // never change once it is published (COM), and an object's type information names it. Costs two calls, so
    // it pays for objects of which many members are used. An object without type information keeps its own
    // members; so does an unreachable one, whose next call fails.
    void ShareMembers(InterfaceIds& interfaces) const;

    // The member's value or the method's result; arguments in the order in which the object's documentation
    // lists them. Each throws Error when the call fails or the object is nothing.
    template<typename... Arguments>
    Value Get(const wchar_t* member, Arguments&&... arguments) const;
    template<typename... Arguments>
    Value Call(const wchar_t* member, Arguments&&... arguments) const;
    // The same where the result is an object.
    template<typename... Arguments>
    Object GetObject(const wchar_t* member, Arguments&&... arguments) const;
    // The value of a property: a member that is a method is not called, but fails.
    Value Property(const wchar_t* member) const;

    void Put(const wchar_t* member, const Value& value) const;
    // Sets a member that holds a reference to an object ("Set x.member = object").
    void PutRef(const wchar_t* member, const Object& object) const;

  private:
    struct Target;

    Value Invoke(const wchar_t* member, WORD flags, Argument* arguments, size_t count) const;

    std::shared_ptr<Target> mTarget;
};

template<typename... Arguments>
Value Object::Get(const wchar_t* member, Arguments&&... arguments) const
{
    // A parameterless read may be a method in some servers and a property in others; both flags serve both.
    constexpr WORD kFlags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    if constexpr (sizeof...(arguments) == 0)
    {
        return Invoke(member, kFlags, nullptr, 0);
    }
    else
    {
        Argument passed[] = {Argument(std::forward<Arguments>(arguments))...};
        return Invoke(member, kFlags, passed, sizeof...(arguments));
    }
}

template<typename... Arguments>
Value Object::Call(const wchar_t* member, Arguments&&... arguments) const
{
    return Get(member, std::forward<Arguments>(arguments)...);
}

template<typename... Arguments>
Object Object::GetObject(const wchar_t* member, Arguments&&... arguments) const
{
    return ObjectOf(Get(member, std::forward<Arguments>(arguments)...));
}

} // namespace automation
