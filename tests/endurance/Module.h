// The component's module as a client has it that loads it itself, without COM's own loading: when it goes is
// in the test's hands.
#pragma once

#include "automation/Object.h"

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace test_support
{

class Module
{
  public:
    Module(); // loads
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    ~Module() { Unload(); }

    void Unload();
    HRESULT CanUnloadNow() const;
    Microsoft::WRL::ComPtr<IClassFactory> ClassObject() const;
    automation::Object NewComponent() const;

    // Whether the module is in this process, whoever has loaded it.
    static bool IsLoaded();

  private:
    HMODULE mModule;
};

// Gives the component a font object of the host's, counted among the fakes: it is kept by what the
// component shares among all its objects of the thread, and outlives them.
void LendFont(const automation::Object& component);

// Inside the module an exception is thrown and caught on this thread: its font object lacks a font's members.
void ThrowInside(const automation::Object& component);

} // namespace test_support
