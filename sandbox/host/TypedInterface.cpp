#include "sandbox/host/TypedInterface.h"

#include "automation/Error.h"

#include <algorithm>

#include <oleauto.h>

namespace sandbox
{

namespace
{

using Microsoft::WRL::ComPtr;

// Where Visual Basic starts to number the members of its classes.
constexpr DISPID kFirstId = 0x60030000;

class InterfaceDescription
{
  public:
    explicit InterfaceDescription(const wchar_t* name) : mName(name)
    {
        ComPtr<ICreateTypeLib2> library; // in memory: it is never saved under its name
        Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, name, &library));
        Check(library->CreateTypeInfo(mName.data(), TKIND_INTERFACE, &mType));
    }

    void Add(const TypedMethod& method)
    {
        const size_t count = method.parameters.size();
        std::vector<TYPEDESC> types(count + 1);
        std::vector<ELEMDESC> elements(count + 1);
        for (size_t i = 0; i < count; ++i)
        {
            types[i].vt = method.parameters[i];
            const bool isOptional = i + method.optional >= count;
            const USHORT optional = isOptional ? PARAMFLAG_FOPT : 0;
            Point(elements[i], types[i], static_cast<USHORT>(PARAMFLAG_FIN | PARAMFLAG_FOUT | optional));
        }
        types[count].vt = method.result;
        Point(elements[count], types[count], PARAMFLAG_FOUT | PARAMFLAG_FRETVAL);
        AddFunction(method, elements, method.result == VT_EMPTY ? count : count + 1);
    }

    ComPtr<ITypeInfo> Finished() const
    {
        Check(mType->LayOut());
        ComPtr<ITypeInfo> information;
        Check(mType->QueryInterface(__uuidof(ITypeInfo), &information));
        return information;
    }

  private:
    void Check(HRESULT result) const { automation::Check(result, mName.c_str()); }

    static void Point(ELEMDESC& element, TYPEDESC& type, USHORT flags)
    {
        element.tdesc.vt = VT_PTR;
        element.tdesc.lptdesc = &type;
        element.paramdesc.wParamFlags = flags;
    }

    void AddFunction(const TypedMethod& method, std::vector<ELEMDESC>& elements, size_t count)
    {
        FUNCDESC function = {};
        function.memid = kFirstId + static_cast<DISPID>(mNext);
        function.funckind = FUNC_PUREVIRTUAL;
        function.invkind = method.isProperty ? INVOKE_PROPERTYGET : INVOKE_FUNC;
        function.callconv = CC_STDCALL;
        function.cParams = static_cast<SHORT>(count);
        function.cParamsOpt = static_cast<SHORT>(method.optional);
        function.oVft = static_cast<SHORT>(mNext * sizeof(void*));
        function.lprgelemdescParam = elements.data();
        function.elemdescFunc.tdesc.vt = VT_HRESULT;
        Check(mType->AddFuncDesc(mNext, &function));
        std::wstring name(method.name);
        LPOLESTR names[] = {name.data()};
        Check(mType->SetFuncAndParamNames(mNext, names, 1));
        ++mNext;
    }

    std::wstring mName;
    ComPtr<ICreateTypeInfo> mType;
    UINT mNext = 0;
};

// Leaves the description of a failure for whoever asks the thread for it.
HRESULT Leave(const automation::Error& error)
{
    ComPtr<ICreateErrorInfo> create;
    ComPtr<IErrorInfo> information;
    if (SUCCEEDED(CreateErrorInfo(&create)) && SUCCEEDED(create.As(&information)))
    {
        create->SetDescription(const_cast<LPOLESTR>(error.Description().c_str()));
        SetErrorInfo(0, information.Get());
    }
    return error.Code();
}

} // namespace

ComPtr<ITypeInfo> DescribeMethods(const wchar_t* name, std::span<const TypedMethod> methods)
{
    InterfaceDescription description(name);
    for (const TypedMethod& method : methods)
    {
        description.Add(method);
    }
    return description.Finished();
}

HRESULT InvokeMethod(ITypeInfo& type, void* methods, DISPID id, WORD flags, DISPPARAMS* parameters,
                     VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument)
{
    SetErrorInfo(0, nullptr);
    return type.Invoke(methods, id, flags, parameters, result, exception, wrongArgument);
}

HRESULT Forward(const automation::Object& to, const wchar_t* member, std::vector<VARIANT> arguments,
                Value& result)
{
    std::ranges::reverse(arguments);
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR name = const_cast<LPOLESTR>(member);
    HRESULT code = to.Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &id);
    if (FAILED(code))
    {
        return code;
    }
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    EXCEPINFO exception{};
    code = to.Dispatch()->Invoke(id, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                 &parameters, result.Receive(), &exception, nullptr);
    if (code != DISP_E_EXCEPTION)
    {
        return code;
    }
    const std::wstring description(exception.bstrDescription, SysStringLen(exception.bstrDescription));
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    return Leave(automation::Error(exception.scode, member, description));
}

} // namespace sandbox
