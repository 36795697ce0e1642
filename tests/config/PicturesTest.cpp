#include "config/dialogs/Pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <new>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace
{

using config::PaintPicture;
using config::Pictures;

constexpr const wchar_t* kKeys[] = {L"contact", L"task", L"calendar", L"left",
                                    L"right",   L"each", L"outlook",  L"default"};
constexpr int kCount = static_cast<int>(std::size(kKeys)) + 1; // with the empty one
// Small icons from 100 % to 200 %.
constexpr int kSizes[] = {16, 20, 24, 32};

DWORD OpacityAt(const ui::PaintedIcon& icon, int x, int y)
{
    return icon.PixelAt(x, y) >> 24;
}

std::vector<DWORD> PixelsOf(const ui::PaintedIcon& icon, int size)
{
    std::vector<DWORD> pixels;
    pixels.reserve(static_cast<size_t>(size) * size);
    for (int i = 0; i < size * size; ++i)
    {
        pixels.push_back(icon.PixelAt(i % size, i / size));
    }
    return pixels;
}

TEST(Pictures, EveryKeyHasAPictureOfItsOwnAtEverySize)
{
    for (const int size : kSizes)
    {
        std::set<std::vector<DWORD>> different;
        for (const wchar_t* key : kKeys)
        {
            different.insert(PixelsOf(PaintPicture(key, size), size));
        }
        EXPECT_EQ(std::size(kKeys), different.size()) << size;
    }
}

TEST(Pictures, CornersAreTransparentAndAFairPartOfTheRestIsNot)
{
    for (const int size : kSizes)
    {
        for (const wchar_t* key : kKeys)
        {
            const auto icon = PaintPicture(key, size);
            const auto pixels = PixelsOf(icon, size);
            EXPECT_EQ(0u, OpacityAt(icon, 0, 0));
            EXPECT_EQ(0u, OpacityAt(icon, size - 1, 0));
            const auto opaque =
                std::count_if(pixels.begin(), pixels.end(), [](DWORD pixel) { return pixel >> 24 == 255; });
            EXPECT_GT(opaque, size * size / 5) << size;
        }
    }
}

TEST(Pictures, StraightEdgesFallOnWholePixelsAt100And200Percent)
{
    for (const int size : {16, 32})
    {
        const auto icon = PaintPicture(L"calendar", size);
        for (int x = 0; x < size; ++x)
        {
            const DWORD opacity = OpacityAt(icon, x, size / 2);
            EXPECT_TRUE(opacity == 0 || opacity == 255) << x;
        }
    }
}

TEST(Pictures, TheArrowsMirrorEachOther)
{
    const auto left = PaintPicture(L"left", 24);
    const auto right = PaintPicture(L"right", 24);
    const auto each = PaintPicture(L"each", 24);
    for (int i = 0; i < 24 * 24; ++i)
    {
        // A slanted edge may fall just to one side of a point that is looked at, and to the other side here.
        EXPECT_NEAR(OpacityAt(left, i % 24, i / 24), OpacityAt(right, 23 - i % 24, i / 24), 48);
        EXPECT_NEAR(OpacityAt(each, i % 24, i / 24), OpacityAt(each, 23 - i % 24, i / 24), 48);
    }
}

TEST(Pictures, TheEmptyPictureKeepsThePlaceOfOneAndShowsNothing)
{
    EXPECT_EQ(static_cast<int>(std::size(kKeys)), Pictures::IndexOf(config::kEmptyPicture));
    const auto pixels = PixelsOf(PaintPicture(config::kEmptyPicture, 16), 16);
    EXPECT_EQ(std::vector<DWORD>(size_t{16} * 16), pixels);
}

TEST(Pictures, AnUnknownKeyHasNone)
{
    EXPECT_EQ(-1, Pictures::IndexOf(L"Contact"));
    EXPECT_EQ(-1, Pictures::IndexOf(L""));
    EXPECT_EQ(0u, OpacityAt(PaintPicture(L"none", 16), 8, 8));
}

TEST(Pictures, TheListHoldsAllOfThemInTheOrderOfTheirIndexes)
{
    const Pictures pictures;
    EXPECT_EQ(kCount, ImageList_GetImageCount(pictures.List().Handle()));
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(pictures.List().Handle(), &width, &height);
    EXPECT_EQ(GetSystemMetrics(SM_CXSMICON), width);
    EXPECT_EQ(width, height);
}

// An icon as the way from a picture into a list fails under Wine now and then, while another thread is at
// work with windows.
TEST(Pictures, AreAllThereWhileAnotherThreadMakesAndDestroysWindows)
{
    std::atomic<bool> ended = false;
    std::thread other([&] {
        while (!ended)
        {
            DestroyWindow(
                CreateWindowExW(0, L"Static", L"", 0, 0, 0, 8, 8, nullptr, nullptr, nullptr, nullptr));
        }
    });
    size_t complete = 0;
    constexpr size_t kLists = 200;
    for (size_t i = 0; i < kLists; ++i)
    {
        try
        {
            const Pictures pictures;
            complete += ImageList_GetImageCount(pictures.List().Handle()) == kCount ? 1 : 0;
        }
        catch (const std::bad_alloc&) // noticed by its absence
        {
        }
    }
    ended = true;
    other.join();
    EXPECT_EQ(kLists, complete);
}

} // namespace
