#include "sandbox/outlook/facts/TypeInformation.h"

#include "automation/Error.h"

#include <map>
#include <mutex>

#include <oleauto.h>

namespace sandbox::outlook
{

namespace
{

using Microsoft::WRL::ComPtr;

WORD FlagsOf(const PublishedMember& member)
{
    return member.isHidden ? FUNCFLAG_FHIDDEN : 0;
}

class InterfaceMaker
{
  public:
    explicit InterfaceMaker(const PublishedInterface& of) : mOf(of), mName(of.name)
    {
        ComPtr<ICreateTypeLib2> library; // in memory: it is never saved under its name
        Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, mName.c_str(), &library));
        Check(library->CreateTypeInfo(mName.data(), TKIND_DISPATCH, &mType));
        Check(mType->SetGuid(of.id));
    }

    void Add(const PublishedMember& member)
    {
        AddFunction(member, member.isMethod ? INVOKE_FUNC : INVOKE_PROPERTYGET, member.parameters,
                    TypeOfResult(mOf, member.type));
        if (member.isWritable)
        {
            auto parameters = member.parameters;
            parameters.push_back(member.type);
            AddFunction(member, INVOKE_PROPERTYPUT, parameters, VT_VOID);
        }
    }

    ComPtr<ITypeInfo> Finished() const
    {
        ComPtr<ITypeInfo> information;
        Check(mType->QueryInterface(__uuidof(ITypeInfo), &information));
        return information;
    }

  private:
    void Check(HRESULT result) const { automation::Check(result, mName.c_str()); }

    void AddFunction(const PublishedMember& member, INVOKEKIND kind,
                     const std::vector<std::wstring_view>& parameters, VARTYPE result)
    {
        std::vector<ELEMDESC> elements(parameters.size());
        for (size_t i = 0; i < parameters.size(); ++i)
        {
            elements[i].tdesc.vt = TypeOfParameter(parameters[i]);
            elements[i].paramdesc.wParamFlags = PARAMFLAG_FIN;
        }
        FUNCDESC function = {};
        function.memid = member.id;
        function.funckind = FUNC_DISPATCH;
        function.invkind = kind;
        function.callconv = CC_STDCALL;
        function.cParams = static_cast<SHORT>(elements.size());
        function.lprgelemdescParam = elements.data();
        function.elemdescFunc.tdesc.vt = result;
        function.wFuncFlags = FlagsOf(member);
        Check(mType->AddFuncDesc(mNext, &function));
        std::wstring name(member.name);
        LPOLESTR names[] = {name.data()};
        Check(mType->SetFuncAndParamNames(mNext, names, 1));
        ++mNext;
    }

    const PublishedInterface& mOf;
    std::wstring mName;
    ComPtr<ICreateTypeInfo> mType;
    UINT mNext = 0;
};

} // namespace

ComPtr<ITypeInfo> MakeTypeInformation(const PublishedInterface& of)
{
    InterfaceMaker maker(of);
    for (const PublishedMember& member : of.members)
    {
        maker.Add(member);
    }
    return maker.Finished();
}

const ComPtr<ITypeInfo>& TypeInformationOf(std::wstring_view interfaceName)
{
    static std::mutex lock;
    static std::map<std::wstring_view, ComPtr<ITypeInfo>> known;
    const PublishedInterface& of = Published(interfaceName);
    const std::lock_guard hold(lock);
    ComPtr<ITypeInfo>& information = known[of.name];
    if (information == nullptr)
    {
        information = MakeTypeInformation(of);
    }
    return information;
}

} // namespace sandbox::outlook
