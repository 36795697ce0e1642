// Each figure of the footprint notices what it is there for; one that cannot change would prove nothing.
#include "tests/endurance/Footprint.h"

#include "sandbox/outlook/Outlook.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include <windows.h>

using test_support::Footprint;

namespace
{

constexpr size_t kBlock = size_t{64} * 1024;
constexpr int kSmallBlocks = 100;
constexpr size_t kSmallBlock = 40;

// The figure's change while the leak is there, and after it has been mended; the system may keep a little of
// its own meanwhile.
template<typename Leak, typename Mend>
void ExpectNoticed(long Footprint::*figure, long atLeast, Leak&& leak, Mend&& mend)
{
    const long before = Footprint::Now().*figure;
    leak();
    EXPECT_GE(Footprint::Now().*figure - before, atLeast);
    mend();
    EXPECT_LT(Footprint::Now().*figure - before, atLeast);
}

} // namespace

TEST(AFootprint, NoticesALeakedBlockOfMemory)
{
    HANDLE heap = GetProcessHeap();
    void* block = nullptr;
    ExpectNoticed(
        &Footprint::heapBytes, kBlock, [&] { block = HeapAlloc(heap, 0, kBlock); },
        [&] { HeapFree(heap, 0, block); });
}

TEST(AFootprint, NoticesManySmallBlocksOfTheRunTimeLibrary)
{
    std::vector<std::unique_ptr<char[]>> blocks(kSmallBlocks);
    ExpectNoticed(
        &Footprint::heapBytes, kSmallBlocks * static_cast<long>(kSmallBlock),
        [&] {
            for (auto& block : blocks)
            {
                block = std::make_unique<char[]>(kSmallBlock);
            }
        },
        [&] {
            for (auto& block : blocks)
            {
                block.reset();
            }
        });
}

TEST(AFootprint, NoticesPagesThatNoHeapKnows)
{
    void* pages = nullptr;
    const long before = Footprint::Now().residentBytes;
    pages = VirtualAlloc(nullptr, 16 * kBlock, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    FillMemory(pages, 16 * kBlock, 1);
    EXPECT_GE(Footprint::Now().residentBytes - before, static_cast<long>(8 * kBlock));
    VirtualFree(pages, 0, MEM_RELEASE);
}

TEST(AFootprint, NoticesALeakedBrush)
{
    HBRUSH brush = nullptr;
    ExpectNoticed(
        &Footprint::gdiObjects, 1, [&] { brush = CreateSolidBrush(RGB(1, 2, 3)); },
        [&] { DeleteObject(brush); });
}

TEST(AFootprint, NoticesALeakedIconByItsBitmaps)
{
    const HICON shared = LoadIconW(nullptr, IDI_ERROR);
    HICON icon = nullptr;
    ExpectNoticed(
        &Footprint::gdiObjects, 1, [&] { icon = CopyIcon(shared); }, [&] { DestroyIcon(icon); });
}

TEST(AFootprint, NoticesALeakedWindowChildAndMenu)
{
    HWND window = nullptr;
    HMENU menu = nullptr;
    ExpectNoticed(
        &Footprint::userObjects, 3,
        [&] {
            window = CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
            CreateWindowW(L"STATIC", L"", WS_CHILD, 0, 0, 9, 9, window, nullptr, nullptr, nullptr);
            menu = CreateMenu();
        },
        [&] {
            DestroyMenu(menu);
            DestroyWindow(window);
        });
}

TEST(AFootprint, NoticesALeakedMessageWindow)
{
    HWND window = nullptr;
    ExpectNoticed(
        &Footprint::userObjects, 1,
        [&] {
            window = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        },
        [&] { DestroyWindow(window); });
}

TEST(AFootprint, NoticesALeakedKernelHandle)
{
    HANDLE event = nullptr;
    ExpectNoticed(
        &Footprint::kernelHandles, 1, [&] { event = CreateEventW(nullptr, FALSE, FALSE, nullptr); },
        [&] { CloseHandle(event); });
}

TEST(AFootprint, NoticesALeakedFakeObject)
{
    automation::Object outlook;
    ExpectNoticed(
        &Footprint::fakes, 1, [&] { outlook = sandbox::MakeOutlook(sandbox::MakeMailbox()); },
        [&] { outlook = {}; });
}
