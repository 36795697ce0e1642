#include "automation/Error.h"
#include "automation/Recordset.h"
#include "sandbox/ado/Ado.h"
#include "tests/support/DatabaseFile.h"

#include <gtest/gtest.h>

#include <memory>

#include <unknwn.h>
#include <wrl/client.h>

namespace
{

using automation::Object;
using Microsoft::WRL::ComPtr;

// The DLL beside the program of tests, loaded as COM would load it.
class SandboxAdoDll : public testing::Test
{
  protected:
    void SetUp() override
    {
        mModule.reset(LoadLibraryW(L"SandboxAdo.dll"));
        ASSERT_NE(nullptr, mModule);
    }

    template<typename Function>
    Function* Export(const char* name)
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(mModule.get(), name)));
    }

    HRESULT GetClassObject(const CLSID& id, IClassFactory** factory)
    {
        auto* const getClassObject = Export<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject");
        return getClassObject(id, __uuidof(IClassFactory), reinterpret_cast<void**>(factory));
    }

    struct Unload
    {
        void operator()(HMODULE module) const { FreeLibrary(module); }
    };

    std::unique_ptr<std::remove_pointer_t<HMODULE>, Unload> mModule;
};

TEST_F(SandboxAdoDll, ExportsTheFourEntryPointsOfAServer)
{
    for (const char* name :
         {"DllGetClassObject", "DllCanUnloadNow", "DllRegisterServer", "DllUnregisterServer"})
    {
        EXPECT_NE(nullptr, GetProcAddress(mModule.get(), name)) << name;
    }
}

TEST_F(SandboxAdoDll, ServesRecordsetsAndMayUnloadWhenTheLastOneIsGone)
{
    auto* const canUnloadNow = Export<HRESULT WINAPI()>("DllCanUnloadNow");
    EXPECT_EQ(S_OK, canUnloadNow());
    {
        ComPtr<IClassFactory> factory;
        ASSERT_EQ(S_OK, GetClassObject(sandbox::kRecordsetClass, &factory));
        ComPtr<IDispatch> recordset;
        ASSERT_EQ(S_OK, factory->CreateInstance(nullptr, __uuidof(IDispatch),
                                                reinterpret_cast<void**>(recordset.GetAddressOf())));
        EXPECT_EQ(0, automation::LongOf(Object(recordset.Get()).Get(L"State")));
        EXPECT_EQ(S_FALSE, canUnloadNow());
    }
    EXPECT_EQ(S_OK, canUnloadNow());
}

TEST_F(SandboxAdoDll, ServesNoOtherClass)
{
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, GetClassObject(__uuidof(IDispatch), &factory));
}

TEST(AdoInProcess, ServesTheProgrammaticIdentifierAsLongAsItLives)
{
    {
        const sandbox::AdoInProcess ado;
        EXPECT_EQ(0, automation::LongOf(Object::Create(L"ADODB.Recordset").Get(L"State")));
    }
    CLSID id;
    ASSERT_EQ(S_OK, CLSIDFromProgID(L"ADODB.Recordset", &id));
    EXPECT_EQ(sandbox::kRecordsetClass, id);
}

} // namespace
