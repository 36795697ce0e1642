// Where a reference to an object of another process or apartment may be released: such a reference is a
// proxy, which belongs to the apartment that obtained it and must not be touched any more once the thread has
// left COM. Part of every automation::Object; costs calls within this process only.
#pragma once

#include <optional>

#include <windows.h>

#include <objidl.h>

namespace automation
{

class ProxyHome
{
  public:
    // Call in the apartment that obtained the reference.
    explicit ProxyHome(IUnknown& reference) noexcept;

    // False for a proxy whose apartment is not the calling thread's: abandon it. COM has released the
    // server's object, or does so when the apartment ends.
    bool MayRelease() const noexcept;

  private:
    struct Apartment
    {
        APTTYPE type = APTTYPE_CURRENT;
        ULONG_PTR context = 0;

        bool operator==(const Apartment&) const = default;
    };

    // The calling thread's; nothing outside COM.
    static std::optional<Apartment> Current() noexcept;

    bool mIsProxy;
    std::optional<Apartment> mApartment;
};

} // namespace automation
