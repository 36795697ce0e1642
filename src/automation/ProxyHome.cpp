#include "automation/ProxyHome.h"

#include <objbase.h>
#include <wrl/client.h>

namespace automation
{

namespace
{

// Every proxy offers this interface, and answers for it without asking its server.
bool IsProxy(IUnknown& reference) noexcept
{
    Microsoft::WRL::ComPtr<IClientSecurity> security;
    return SUCCEEDED(reference.QueryInterface(__uuidof(IClientSecurity),
                                              reinterpret_cast<void**>(security.GetAddressOf())));
}

} // namespace

ProxyHome::ProxyHome(IUnknown& reference) noexcept
    : mIsProxy(IsProxy(reference)), mApartment(mIsProxy ? Current() : std::nullopt)
{
}

bool ProxyHome::MayRelease() const noexcept
{
    return !mIsProxy || (mApartment && mApartment == Current());
}

std::optional<ProxyHome::Apartment> ProxyHome::Current() noexcept
{
    // By the type as well: a thread outside COM gets the context of the process's other threads.
    Apartment current;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    const bool isInside = SUCCEEDED(CoGetApartmentType(&current.type, &qualifier)) &&
                          SUCCEEDED(CoGetContextToken(&current.context));
    return isInside ? std::optional(current) : std::nullopt;
}

} // namespace automation
