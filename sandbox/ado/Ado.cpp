#include "sandbox/ado/Ado.h"

#include "sandbox/ado/Recordset.h"

namespace sandbox
{

AdoInProcess::AdoInProcess() : mClass(kRecordsetClass, CLSCTX_INPROC_SERVER, [] { return MakeRecordset(); })
{
    RegisterProgId(kRecordsetProgId, kRecordsetClass);
}

} // namespace sandbox
