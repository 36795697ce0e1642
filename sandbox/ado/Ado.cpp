#include "sandbox/ado/Ado.h"

#include "sandbox/ado/Recordset.h"

#include <utility>

namespace sandbox
{

AdoInProcess::AdoInProcess() : AdoInProcess([] { return MakeRecordset(); }) {}

AdoInProcess::AdoInProcess(Creator create) : mClass(kRecordsetClass, CLSCTX_INPROC_SERVER, std::move(create))
{
    RegisterProgId(kRecordsetProgId, kRecordsetClass);
}

} // namespace sandbox
