// One argument of an automation call. A by-reference argument carries its exact type (object, text or 32-bit
// integer), as a late-bound Visual Basic caller sends it, and is written back when the call has returned.
#pragma once

#include "automation/Value.h"

#include <string>
#include <type_traits>
#include <utility>

namespace automation
{

class Object;

template<typename T>
struct ByReference
{
    T& target;
};

// Marks an argument that the object called may write: an Object, a std::wstring or a long.
template<typename T>
ByReference<T> ByRef(T& target)
{
    return {target};
}

class Argument
{
  public:
    Argument(Value value) noexcept : mValue(std::move(value)) {}
    template<typename T>
    requires std::is_constructible_v<Value, const T&> Argument(const T& value) : mValue(value) {}
    Argument(ByReference<Object> object);
    Argument(ByReference<std::wstring> text);
    Argument(ByReference<long> number);
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;

    // The argument as the call takes it: it points into this object and is valid as long as it lives.
    VARIANT Passed() noexcept;
    // Copies the value that the called object has written into the caller's variable.
    void WriteBack();

  private:
    Value mValue;
    VARTYPE mReferenceType = VT_EMPTY;
    void* mTarget = nullptr;
};

} // namespace automation
