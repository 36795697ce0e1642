#include "automation/Object.h"
#include "tests/boundary/KeySecurity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include <objbase.h>
#include <olectl.h>

namespace boundary_tests
{

namespace
{

constexpr wchar_t kClasses[] = L"Software\\Classes";

// Below it, where a registration makes one key each.
constexpr const wchar_t* kPlaces[] = {L"", L"CLSID\\", L"Interface\\", L"TypeLib\\"};

constexpr const wchar_t* kThisPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* kOtherPlatform = sizeof(void*) == 8 ? L"win32" : L"win64";

// The names of all keys directly below the places where a registration writes.
using Names = std::map<std::wstring, std::set<std::wstring>>;

std::set<std::wstring> NamesBelow(HKEY root, const std::wstring& path)
{
    std::set<std::wstring> names;
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
    {
        return names;
    }
    wchar_t name[256];
    DWORD length = ARRAYSIZE(name);
    for (DWORD i = 0;
         RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i, length = ARRAYSIZE(name))
    {
        names.insert(name);
    }
    RegCloseKey(key);
    return names;
}

Names Registered(HKEY root)
{
    Names names;
    for (const wchar_t* place : kPlaces)
    {
        names[place] = NamesBelow(root, std::wstring(kClasses) + L"\\" + place);
    }
    return names;
}

// Without a key that somebody else has put there.
Names RegisteredBeside(const std::wstring& foreign, HKEY root)
{
    Names names = Registered(root);
    const size_t separator = foreign.find(L'\\') + 1;
    names[foreign.substr(0, separator)].erase(foreign.substr(separator));
    return names;
}

// The module's exports, with the component not registered, and registered again afterwards.
class Registration : public testing::Test
{
  protected:
    using Export = HRESULT(WINAPI*)();

    Registration()
    {
        // These are there on any system, but not in a fresh prefix of Wine.
        for (const wchar_t* place : kPlaces)
        {
            HKEY key = nullptr;
            RegCreateKeyExW(HKEY_CURRENT_USER, (std::wstring(kClasses) + L"\\" + place).c_str(), 0, nullptr,
                            0, KEY_READ, nullptr, &key, nullptr);
            RegCloseKey(key);
        }
        EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
        mMachine = Registered(HKEY_LOCAL_MACHINE);
        mUser = Registered(HKEY_CURRENT_USER);
    }
    ~Registration() override
    {
        EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
        ExpectNothing();
        EXPECT_EQ(S_OK, Call("DllRegisterServer"));
        EXPECT_TRUE(static_cast<bool>(automation::Object::Create(L"TelvixOutlook.ClsSynOutlook")));
        FreeLibrary(mModule);
    }

    HRESULT Call(const char* name) const
    {
        return reinterpret_cast<Export>(reinterpret_cast<void*>(GetProcAddress(mModule, name)))();
    }

    void ExpectNothing() const
    {
        EXPECT_EQ(mMachine, Registered(HKEY_LOCAL_MACHINE));
        EXPECT_EQ(mUser, Registered(HKEY_CURRENT_USER));
    }

    // The keys that a registration makes, in the order in which it does.
    std::vector<std::wstring> OwnKeys() const
    {
        EXPECT_EQ(S_OK, Call("DllRegisterServer"));
        const Names registered = Registered(HKEY_LOCAL_MACHINE);
        EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
        std::vector<std::wstring> keys;
        for (const wchar_t* place : kPlaces)
        {
            for (const std::wstring& name : registered.at(place))
            {
                if (!mMachine.at(place).contains(name))
                {
                    keys.push_back(place + name);
                }
            }
        }
        EXPECT_EQ(std::size(kPlaces), keys.size());
        return keys;
    }

    // The entry that the other architecture's registration makes in the library's key, which both share.
    static void SetOtherPlatform(const std::wstring& library)
    {
        const std::wstring path = std::wstring(kClasses) + L"\\" + library + L"\\1.0\\0\\" + kOtherPlatform;
        constexpr wchar_t kOther[] = L"C:\\Other\\Telvix.dll";
        EXPECT_EQ(ERROR_SUCCESS,
                  RegSetKeyValueW(HKEY_LOCAL_MACHINE, path.c_str(), nullptr, REG_SZ, kOther, sizeof kOther));
    }

    void ExpectPerUser() const
    {
        const Names user = Registered(HKEY_CURRENT_USER);
        for (const wchar_t* place : kPlaces)
        {
            EXPECT_EQ(mUser.at(place).size() + 1, user.at(place).size());
        }
    }

    HMODULE mModule = LoadLibraryW(L"Telvix.dll");
    Names mMachine;
    Names mUser;
};

std::wstring WithPrefix(const std::vector<std::wstring>& keys, const std::wstring& prefix)
{
    const auto found = std::ranges::find_if(keys, [&](const auto& key) { return key.starts_with(prefix); });
    return found != keys.end() ? *found : std::wstring();
}

// One of the component's own keys, put there by somebody else and not to be written.
class ForeignKey
{
  public:
    ForeignKey(HKEY root, const std::wstring& name)
        : mRoot(root), mPath(std::wstring(kClasses) + L"\\" + name)
    {
        HKEY made = nullptr;
        RegCreateKeyExW(mRoot, mPath.c_str(), 0, nullptr, 0, KEY_READ, nullptr, &made, nullptr);
        RegCloseKey(made);
        mLimited.emplace(mRoot, mPath, KEY_READ);
    }
    ForeignKey(const ForeignKey&) = delete;
    ForeignKey& operator=(const ForeignKey&) = delete;
    ~ForeignKey()
    {
        mLimited.reset();
        RegDeleteKeyW(mRoot, mPath.c_str());
    }

  private:
    HKEY mRoot;
    std::wstring mPath;
    std::optional<LimitedKey> mLimited;
};

// Keys of the machine that are denied whole: Wine removes a key that may only be read.
std::vector<std::unique_ptr<LimitedKey>> Denied(const std::vector<std::wstring>& names)
{
    std::vector<std::unique_ptr<LimitedKey>> limited;
    limited.reserve(names.size());
    for (const std::wstring& name : names)
    {
        limited.push_back(
            std::make_unique<LimitedKey>(HKEY_LOCAL_MACHINE, std::wstring(kClasses) + L"\\" + name, 0));
    }
    return limited;
}

} // namespace

TEST_F(Registration, IsPerMachineWhereTheCallerMayWrite)
{
    EXPECT_EQ(S_OK, Call("DllRegisterServer"));
    EXPECT_EQ(mUser, Registered(HKEY_CURRENT_USER));
    EXPECT_TRUE(Registered(HKEY_LOCAL_MACHINE).at(L"").contains(L"TelvixOutlook.ClsSynOutlook"));
}

TEST_F(Registration, IsPerUserWhereTheMachinesClassesAreDenied)
{
    const LimitedKey classes(HKEY_LOCAL_MACHINE, kClasses, KEY_READ);
    EXPECT_EQ(S_OK, Call("DllRegisterServer"));
    EXPECT_EQ(mMachine, Registered(HKEY_LOCAL_MACHINE));
    ExpectPerUser();
}

TEST_F(Registration, LeavesNothingOfTheMachineWhereItIsDeniedHalfway)
{
    for (const std::wstring& own : OwnKeys())
    {
        {
            const ForeignKey denied(HKEY_LOCAL_MACHINE, own);
            EXPECT_EQ(S_OK, Call("DllRegisterServer"));
            EXPECT_EQ(mMachine, RegisteredBeside(own, HKEY_LOCAL_MACHINE));
            ExpectPerUser();
            EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
        }
        ExpectNothing();
    }
}

TEST_F(Registration, FailsWithoutATraceWhereTheUsersClassesAreDeniedToo)
{
    for (const std::wstring& own : OwnKeys())
    {
        {
            const ForeignKey ofMachine(HKEY_LOCAL_MACHINE, own);
            const ForeignKey ofUser(HKEY_CURRENT_USER, own);
            EXPECT_EQ(SELFREG_E_CLASS, Call("DllRegisterServer"));
            EXPECT_EQ(mMachine, RegisteredBeside(own, HKEY_LOCAL_MACHINE));
            EXPECT_EQ(mUser, RegisteredBeside(own, HKEY_CURRENT_USER));
        }
        ExpectNothing();
    }
}

TEST_F(Registration, RemovedKeepsTheKeysThatTheOtherArchitectureShares)
{
    const std::vector<std::wstring> own = OwnKeys();
    const std::wstring library = WithPrefix(own, L"TypeLib\\");
    const std::wstring progId = WithPrefix(own, L"TelvixOutlook.");
    EXPECT_EQ(S_OK, Call("DllRegisterServer"));
    SetOtherPlatform(library);
    EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
    const std::wstring classes = std::wstring(kClasses) + L"\\";
    EXPECT_EQ((std::set<std::wstring>{L"CLSID"}), NamesBelow(HKEY_LOCAL_MACHINE, classes + progId));
    EXPECT_EQ((std::set<std::wstring>{kOtherPlatform}),
              NamesBelow(HKEY_LOCAL_MACHINE, classes + library + L"\\1.0\\0"));
    const Names left = Registered(HKEY_LOCAL_MACHINE);
    for (const wchar_t* place : {L"CLSID\\", L"Interface\\"})
    {
        EXPECT_EQ(mMachine.at(place), left.at(place)); // these are each architecture's own
    }

    // Once the other one has gone too, nothing is shared any more.
    EXPECT_EQ(S_OK, Call("DllRegisterServer"));
    EXPECT_EQ((std::set<std::wstring>{kThisPlatform, kOtherPlatform}),
              NamesBelow(HKEY_LOCAL_MACHINE, classes + library + L"\\1.0\\0"));
    RegDeleteKeyW(HKEY_LOCAL_MACHINE, (classes + library + L"\\1.0\\0\\" + kOtherPlatform).c_str());
    EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
    ExpectNothing();
}

TEST_F(Registration, OfTheMachineThatMayNotBeRemovedFailsUnlessTheUserHasOne)
{
    const std::vector<std::wstring> own = OwnKeys();
    EXPECT_EQ(S_OK, Call("DllRegisterServer"));
    const Names machine = Registered(HKEY_LOCAL_MACHINE);
    {
        const auto denied = Denied(own);
        EXPECT_EQ(SELFREG_E_CLASS, Call("DllUnregisterServer"));
        EXPECT_EQ(machine, Registered(HKEY_LOCAL_MACHINE));

        EXPECT_EQ(S_OK, Call("DllRegisterServer"));
        ExpectPerUser();
        EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
        EXPECT_EQ(machine, Registered(HKEY_LOCAL_MACHINE));
        EXPECT_EQ(mUser, Registered(HKEY_CURRENT_USER));
    }
    EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
    ExpectNothing();
}

TEST_F(Registration, TakenBackTwiceAndWithoutRightsToTheMachineIsNoFailure)
{
    EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
    const LimitedKey machine(HKEY_LOCAL_MACHINE, kClasses, KEY_READ);
    EXPECT_EQ(S_OK, Call("DllUnregisterServer"));
}

} // namespace boundary_tests
