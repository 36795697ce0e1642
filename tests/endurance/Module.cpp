#include "tests/endurance/Module.h"

#include "automation/Error.h"
#include "tests/support/HostFont.h"

#include "TelvixIdl.h"

#include <gtest/gtest.h>

#include <ocidl.h>

namespace test_support
{

using automation::Check;
using automation::Object;
using Microsoft::WRL::ComPtr;

namespace
{

constexpr wchar_t kModule[] = L"Telvix.dll";

template<typename Function>
Function* Export(HMODULE module, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// An object without a font's members.
class NoFont : public sandbox::DispatchObject
{
    const wchar_t* ClassName() const override { return L"NoFont"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable table;
        return table;
    }
};

bool TakesFont(const Object& component, const Object& font)
{
    ComPtr<_ClsSynOutlook> early;
    Check(component.Dispatch()->QueryInterface(IID_PPV_ARGS(&early)), L"QueryInterface");
    return SUCCEEDED(early->putref_Font(static_cast<IFontDisp*>(font.Dispatch())));
}

} // namespace

// COM keeps the module of an earlier test loaded until it may free what is unused.
Module::Module() : mModule((CoFreeUnusedLibrariesEx(0, 0), LoadLibraryW(kModule)))
{
    Check(mModule != nullptr ? S_OK : HRESULT_FROM_WIN32(GetLastError()), kModule);
}

void Module::Unload()
{
    if (mModule != nullptr)
    {
        FreeLibrary(mModule);
        mModule = nullptr;
    }
}

HRESULT Module::CanUnloadNow() const
{
    return Export<HRESULT WINAPI()>(mModule, "DllCanUnloadNow")();
}

ComPtr<IClassFactory> Module::ClassObject() const
{
    ComPtr<IClassFactory> factory;
    const auto getClassObject =
        Export<HRESULT WINAPI(REFCLSID, REFIID, void**)>(mModule, "DllGetClassObject");
    Check(getClassObject(__uuidof(::ClsSynOutlook), IID_PPV_ARGS(&factory)), L"DllGetClassObject");
    return factory;
}

Object Module::NewComponent() const
{
    ComPtr<IDispatch> component;
    Check(ClassObject()->CreateInstance(nullptr, IID_PPV_ARGS(&component)), L"CreateInstance");
    return Object(component.Get());
}

bool Module::IsLoaded()
{
    return GetModuleHandleW(kModule) != nullptr;
}

void LendFont(const Object& component)
{
    const bool taken = TakesFont(component, sandbox::MakeObject<HostFont>(std::make_shared<FontValues>()));
    Check(taken ? S_OK : E_FAIL, L"Font");
}

void ThrowInside(const Object& component)
{
    EXPECT_FALSE(TakesFont(component, sandbox::MakeObject<NoFont>()));
}

} // namespace test_support
