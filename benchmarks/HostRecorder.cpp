#include "benchmarks/HostRecorder.h"

#include "automation/ComObject.h"
#include "automation/Error.h"

#include <oleauto.h>

namespace benchmarks
{

using automation::Value;
using Microsoft::WRL::ComPtr;

namespace
{

struct Log
{
    HostCalls& calls;
    size_t objects = 1; // known so far
};

class Recorder : public automation::ComObject<IDispatch>
{
  public:
    Recorder(IDispatch* real, std::shared_ptr<Log> log, size_t number)
        : mReal(real), mLog(std::move(log)), mNumber(number)
    {
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return mReal->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override
    {
        return mReal->GetTypeInfo(index, locale, info);
    }

    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override
    {
        mLog->calls.push_back({.Target = mNumber, .Lookup = names[0]});
        return mReal->GetIDsOfNames(id, names, count, locale, ids);
    }

    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrong) override
    {
        const size_t at = mLog->calls.size();
        mLog->calls.push_back(Written(id, flags, *parameters));
        const HRESULT code = mReal->Invoke(id, reserved, locale, flags, parameters, result, exception, wrong);
        if (SUCCEEDED(code))
        {
            HostCall& call = mLog->calls[at];
            if (result != nullptr && result->vt == VT_DISPATCH)
            {
                call.Result = Wrap(result->pdispVal);
            }
            for (UINT i = 0; i < parameters->cArgs; ++i)
            {
                if (parameters->rgvarg[i].vt == (VT_BYREF | VT_DISPATCH))
                {
                    call.Result = Wrap(*parameters->rgvarg[i].ppdispVal);
                }
            }
        }
        return code;
    }

  private:
    HostCall Written(DISPID id, WORD flags, const DISPPARAMS& parameters) const
    {
        HostCall call{.Target = mNumber, .Id = id, .Flags = flags};
        for (UINT i = 0; i < parameters.cArgs; ++i)
        {
            const VARIANT& argument = parameters.rgvarg[i];
            const bool isReference = (argument.vt & VT_BYREF) != 0;
            const auto type = static_cast<VARTYPE>(isReference ? argument.vt & ~VT_BYREF : 0);
            call.References.push_back(type);
            call.Reversed.push_back(type == VT_DISPATCH ? Value() : Value(argument));
        }
        return call;
    }

    // Puts a recorder of its own before the object returned; its number.
    size_t Wrap(IDispatch*& object)
    {
        if (object == nullptr)
        {
            return 0;
        }
        const ComPtr<IDispatch> recorder(new Recorder(object, mLog, mLog->objects));
        object->Release();
        object = recorder.Get();
        object->AddRef();
        return mLog->objects++;
    }

    ComPtr<IDispatch> mReal;
    std::shared_ptr<Log> mLog;
    size_t mNumber;
};

// The arguments of one replayed call, by reference where they were.
class Arguments
{
  public:
    explicit Arguments(const HostCall& call) : mValues(call.Reversed), mPassed(call.Reversed.size())
    {
        for (size_t i = 0; i < mPassed.size(); ++i)
        {
            mPassed[i] = mValues[i].Raw();
            if (const VARTYPE type = call.References[i]; type != 0)
            {
                auto& value = const_cast<VARIANT&>(mValues[i].Raw());
                if (type == VT_DISPATCH) // an object's variable starts as nothing
                {
                    value.vt = type;
                    value.pdispVal = nullptr;
                }
                mPassed[i].vt = static_cast<VARTYPE>(VT_BYREF | type);
                mPassed[i].byref = &value.byref;
            }
        }
    }

    VARIANT* Passed() noexcept { return mPassed.data(); }
    UINT Count() const noexcept { return static_cast<UINT>(mPassed.size()); }
    const Value* ObjectWritten() const noexcept
    {
        for (const Value& value : mValues)
        {
            if (value.Type() == VT_DISPATCH)
            {
                return &value;
            }
        }
        return nullptr;
    }

  private:
    std::vector<Value> mValues;
    std::vector<VARIANT> mPassed;
};

} // namespace

automation::Object Recorded(const automation::Object& host, HostCalls& calls)
{
    const ComPtr<IDispatch> recorder(new Recorder(host.Dispatch(), std::make_shared<Log>(Log{calls}), 0));
    return automation::Object(recorder.Get());
}

void Replay(const HostCalls& calls, const automation::Object& host)
{
    std::vector<RawObject> objects{RawObject(host)};
    for (const HostCall& call : calls)
    {
        const RawObject target = objects[call.Target];
        if (!call.Lookup.empty())
        {
            target.IdOf(call.Lookup.c_str());
            continue;
        }
        Arguments arguments(call);
        const Value result = target.Invoke(call.Id, call.Flags, arguments.Passed(), arguments.Count());
        if (call.Result != 0)
        {
            const Value* const written = arguments.ObjectWritten();
            objects.resize(std::max(objects.size(), call.Result + 1));
            objects[call.Result] = RawObject(written != nullptr ? *written : result);
        }
    }
}

} // namespace benchmarks
