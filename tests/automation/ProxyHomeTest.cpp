#include "automation/ProxyHome.h"

#include "automation/Object.h"
#include "tests/automation/ScriptedObject.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <thread>

#include <objbase.h>

namespace
{

using automation::Object;
using test_support::ScriptedObject;

// The calling thread serves the objects of its apartment meanwhile.
void OnAThread(const std::function<void()>& work)
{
    HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread thread([&] {
        work();
        SetEvent(done);
    });
    constexpr DWORD kPatience = 30'000; // milliseconds
    DWORD signaled = 0;
    EXPECT_EQ(S_OK, CoWaitForMultipleHandles(0, kPatience, 1, &done, &signaled));
    thread.join();
    CloseHandle(done);
}

void InCom(const std::function<void()>& work)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    work();
    CoUninitialize();
}

TEST(ProxyHome, AProxyIsReleasedInTheApartmentThatObtainedIt)
{
    ScriptedObject scripted;
    scripted.IsProxy = true;
    {
        const Object held(&scripted);
        EXPECT_EQ(1, scripted.References());
    }
    EXPECT_EQ(0, scripted.References());
}

TEST(ProxyHome, AProxyIsAbandonedOnceTheThreadHasLeftCom)
{
    ScriptedObject scripted;
    scripted.IsProxy = true;
    OnAThread([&] {
        Object held;
        InCom([&] { held = Object(&scripted); });
        held = {};
        EXPECT_EQ(1, scripted.References());
    });
    scripted.Forget();
}

TEST(ProxyHome, AProxyOfAnotherThreadsApartmentIsAbandoned)
{
    ScriptedObject scripted;
    scripted.IsProxy = true;
    std::optional<Object> held;
    OnAThread([&] { InCom([&] { held.emplace(&scripted); }); });
    held.reset();
    EXPECT_EQ(1, scripted.References());
    scripted.Forget();
}

TEST(ProxyHome, AnObjectOfThisProcessIsReleasedAfterTheThreadHasLeftComToo)
{
    ScriptedObject scripted;
    OnAThread([&] {
        Object held;
        InCom([&] { held = Object(&scripted); });
        EXPECT_EQ(1, scripted.References());
        held = {};
        EXPECT_EQ(0, scripted.References());
    });
}

// A real proxy: what COM makes of an object of another apartment.
TEST(ProxyHome, AProxyOfAnotherApartmentKeepsItsHome)
{
    ScriptedObject scripted;
    IStream* stream = nullptr;
    ASSERT_EQ(S_OK, CoMarshalInterThreadInterfaceInStream(IID_IDispatch, static_cast<IDispatch*>(&scripted),
                                                          &stream));
    OnAThread([&] {
        std::optional<automation::ProxyHome> home;
        InCom([&] {
            IDispatch* proxy = nullptr;
            ASSERT_EQ(S_OK, CoGetInterfaceAndReleaseStream(stream, IID_PPV_ARGS(&proxy)));
            EXPECT_NE(static_cast<IDispatch*>(&scripted), proxy);
            home.emplace(*proxy);
            EXPECT_TRUE(home->MayRelease());
            OnAThread([&] { EXPECT_FALSE(home->MayRelease()); });
            proxy->Release();
        });
        EXPECT_FALSE(home->MayRelease());
    });
    CoDisconnectObject(static_cast<IDispatch*>(&scripted), 0);
}

} // namespace
