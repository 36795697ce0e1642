#include "tests/endurance/Footprint.h"

#include "sandbox/dispatch/DispatchObject.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include <windows.h>

#include <psapi.h>
#include <tlhelp32.h>
#include <winternl.h>

namespace test_support
{

namespace
{

long ResidentBytes()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<long>(counters.PagefileUsage);
}

// Wine knows a GDI object by the lower half of its handle, which is its place in the process's table.
long GdiObjectsByPlace()
{
    long count = 0;
    for (UINT_PTR place = 1; place <= MAXWORD; ++place)
    {
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(place)) != 0 ? 1 : 0;
    }
    return count;
}

long GdiObjects()
{
    const long count = static_cast<long>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    return count != 0 ? count : GdiObjectsByPlace();
}

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM count)
{
    ++*reinterpret_cast<long*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count)
{
    CountWindow(window, count);
    EnumChildWindows(window, CountWindow, count);
    return TRUE;
}

long Windows()
{
    long count = 0;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 thread = {};
    thread.dwSize = sizeof thread;
    for (BOOL more = Thread32First(snapshot, &thread); more; more = Thread32Next(snapshot, &thread))
    {
        if (thread.th32OwnerProcessID == GetCurrentProcessId())
        {
            EnumThreadWindows(thread.th32ThreadID, CountWithChildren, reinterpret_cast<LPARAM>(&count));
        }
    }
    CloseHandle(snapshot);
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr)
    {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        count += process == GetCurrentProcessId() ? 1 : 0;
    }
    return count;
}

// As with GDI objects, the lower half of a menu's handle is its place, an even one.
long Menus()
{
    long count = 0;
    for (UINT_PTR place = 0; place <= MAXWORD; place += 2)
    {
        count += IsMenu(reinterpret_cast<HMENU>(place)) ? 1 : 0;
    }
    return count;
}

long UserObjects()
{
    const long count = static_cast<long>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
    return count != 0 ? count : Windows() + Menus();
}

// The system's data about one handle; the SDK documents this structure without declaring it.
struct HandleEntry
{
    void* object;
    ULONG_PTR process;
    ULONG_PTR handle;
    ULONG access;
    USHORT creatorBackTrace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};

struct HandleTable
{
    ULONG_PTR count;
    ULONG_PTR reserved;
    HandleEntry entries[1];
};

constexpr auto kHandleTable = static_cast<SYSTEM_INFORMATION_CLASS>(64);
constexpr auto kTooShort = static_cast<NTSTATUS>(0xC0000004);
constexpr size_t kFirstLength = 1 << 16;

long CountOfTable()
{
    const auto query = reinterpret_cast<decltype(&NtQuerySystemInformation)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<std::byte> buffer(kFirstLength);
    while (query(kHandleTable, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr) == kTooShort)
    {
        buffer.resize(buffer.size() * 2);
    }
    const auto* table = reinterpret_cast<const HandleTable*>(buffer.data());
    return static_cast<long>(
        std::count_if(table->entries, table->entries + table->count,
                      [](const HandleEntry& entry) { return entry.process == GetCurrentProcessId(); }));
}

long KernelHandles()
{
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count != 0 ? static_cast<long>(count) : CountOfTable();
}

constexpr int kSeries = 4; // at most

constexpr long Footprint::*kFigures[] = {&Footprint::heapBytes,     &Footprint::residentBytes,
                                         &Footprint::gdiObjects,    &Footprint::userObjects,
                                         &Footprint::kernelHandles, &Footprint::fakes};

} // namespace

long BytesInHeaps()
{
    std::array<HANDLE, 64> heaps = {};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    SIZE_T bytes = 0;
    for (DWORD i = 0; i < std::min<DWORD>(count, static_cast<DWORD>(heaps.size())); ++i)
    {
        HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heaps[i], &entry))
        {
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        }
        HeapUnlock(heaps[i]);
    }
    return static_cast<long>(bytes);
}

Footprint Footprint::Now()
{
    Footprint now;
    now.gdiObjects = GdiObjects();
    now.userObjects = UserObjects();
    now.kernelHandles = KernelHandles();
    now.fakes = sandbox::LiveObjects();
    now.residentBytes = ResidentBytes();
    now.heapBytes = BytesInHeaps();
    return now;
}

Footprint Footprint::operator-(const Footprint& other) const
{
    Footprint difference;
    for (const auto figure : kFigures)
    {
        difference.*figure = this->*figure - other.*figure;
    }
    return difference;
}

bool Footprint::IsWithin(const Footprint& tolerance) const
{
    return std::ranges::all_of(kFigures,
                               [&](const auto figure) { return this->*figure <= tolerance.*figure; });
}

Footprint Smaller(const Footprint& one, const Footprint& other)
{
    Footprint smaller;
    for (const auto figure : kFigures)
    {
        smaller.*figure = std::min(one.*figure, other.*figure);
    }
    return smaller;
}

Footprint GrowthOfLevelSeries(const Footprint& tolerance, const std::function<Footprint()>& growthOfSeries)
{
    Footprint growth = growthOfSeries();
    for (int series = 1; series < kSeries && !growth.IsWithin(tolerance); ++series)
    {
        growth = growthOfSeries();
    }
    return growth;
}

std::string TextOf(const Footprint& footprint)
{
    return "heap " + std::to_string(footprint.heapBytes) + " bytes, resident " +
           std::to_string(footprint.residentBytes) + " bytes, GDI " + std::to_string(footprint.gdiObjects) +
           ", USER " + std::to_string(footprint.userObjects) + ", handles " +
           std::to_string(footprint.kernelHandles) + ", fakes " + std::to_string(footprint.fakes);
}

} // namespace test_support
