// The other side of automation::Object: an object of the component's own that is reached by member name. The
// members are two virtual functions. Counted like every automation object; made with new and held by an
// Object.
#pragma once

#include "automation/ComObject.h"
#include "automation/Value.h"

#include <span>
#include <string>
#include <vector>

namespace automation
{

class Object;

class LateBound : public ComObject<IDispatch>
{
  public:
    // Whether the object is one of these.
    static bool Is(const Object& object) noexcept;

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** result) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

  protected:
    void* Find(REFIID id) noexcept override;

  private:
    // A property's value, or a method's result; arguments in the order of the caller. What these two throw
    // reaches the caller as the same automation::Error.
    virtual Value Read(const std::wstring& member, std::span<const Value> arguments) = 0;
    virtual void Write(const std::wstring& member, const Value& value) = 0;

    void Answer(const std::wstring& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result);

    std::vector<std::wstring> mNames; // an id is the place of its name, counted from 1
};

} // namespace automation
