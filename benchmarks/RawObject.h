// The barest client that late binding allows: an interface pointer, DISPIDs in the caller's hands, one Invoke
// per use. What the component is measured against makes its calls through this.
#pragma once

#include "automation/Object.h"

#include <wrl/client.h>

namespace benchmarks
{

class RawObject
{
  public:
    RawObject() = default;
    explicit RawObject(const automation::Object& object) : mDispatch(object.Dispatch()) {}
    explicit RawObject(const automation::Value& value);

    explicit operator bool() const noexcept { return mDispatch != nullptr; }

    // Each throws automation::Error when the object refuses.
    DISPID IdOf(const wchar_t* member) const;
    automation::Value Get(DISPID id) const;
    automation::Value Get(DISPID id, const automation::Value& argument) const;
    void Put(DISPID id, const automation::Value& value) const;
    // The call as it is, its arguments in reverse.
    automation::Value Invoke(DISPID id, WORD flags, VARIANT* reversed, UINT count) const;

  private:
    Microsoft::WRL::ComPtr<IDispatch> mDispatch;
};

} // namespace benchmarks
