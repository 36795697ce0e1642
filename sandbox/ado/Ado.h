// The fake ADO for programs of the sandbox and tests: served in this process, or registered as a DLL.
#pragma once

#include "sandbox/dispatch/ClassObject.h"

namespace sandbox
{

inline constexpr CLSID kRecordsetClass = {
    0x2f6d0c14, 0x0a5e, 0x4f0e, {0x8f, 0x43, 0x7c, 0x1b, 0x5e, 0x09, 0x33, 0x6a}};
inline constexpr const wchar_t* kRecordsetProgId = L"ADODB.Recordset";

// As long as this lives, "ADODB.Recordset" is the fake in this process, for objects created on this
// thread. COM must have been initialised on the thread. Throws automation::Error.
class AdoInProcess
{
  public:
    AdoInProcess();
    // With recordsets that are made like this.
    explicit AdoInProcess(Creator create);

  private:
    RegisteredClass mClass;
};

} // namespace sandbox
