#include "automation/Guard.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <new>

#include <oleauto.h>
#include <wrl/client.h>

namespace automation
{

namespace
{

void LeaveErrorInfo(const std::wstring& description)
{
    using Microsoft::WRL::ComPtr;
    ComPtr<ICreateErrorInfo> create;
    ComPtr<IErrorInfo> info;
    if (SUCCEEDED(CreateErrorInfo(&create)) &&
        SUCCEEDED(create->SetDescription(const_cast<LPOLESTR>(description.c_str()))) &&
        SUCCEEDED(create.As(&info)))
    {
        SetErrorInfo(0, info.Get());
    }
}

} // namespace

HRESULT ResultOfCurrentException() noexcept
{
    try
    {
        throw;
    }
    catch (const Error& error)
    {
        LeaveErrorInfo(error.Member() + L": " + error.Description());
        return error.Code();
    }
    catch (const std::bad_alloc&)
    {
        return E_OUTOFMEMORY;
    }
    catch (const std::exception& error)
    {
        LeaveErrorInfo(FromUtf8(error.what()));
        return E_FAIL;
    }
    catch (...)
    {
        return E_UNEXPECTED;
    }
}

} // namespace automation
