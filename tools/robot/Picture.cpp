#include "tools/robot/Picture.h"

#include "automation/Error.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include <objidl.h>

#include <gdiplus.h>

namespace tools
{

namespace
{

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

constexpr DWORD kCaptureInterval = 20; // milliseconds
constexpr int kAlikeCaptures = 3;      // in a row
constexpr int kMostCaptures = 100;

class GdiPlus
{
  public:
    GdiPlus()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&mToken, &input, nullptr);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;
    ~GdiPlus() { Gdiplus::GdiplusShutdown(mToken); }

  private:
    ULONG_PTR mToken = 0;
};

struct DeletesObject
{
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeletesObject>;

// The window's picture, frame included.
Bitmap Capture(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    const int width = static_cast<int>(place.right - place.left);
    const int height = static_cast<int>(place.bottom - place.top);
    const HDC source = GetWindowDC(window);
    const HDC memory = CreateCompatibleDC(source);
    Bitmap bitmap(CreateCompatibleBitmap(source, width, height));
    const HGDIOBJ before = SelectObject(memory, bitmap.get());
    BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return bitmap;
}

std::vector<std::byte> PixelsOf(HBITMAP bitmap)
{
    BITMAP size = {};
    GetObjectW(bitmap, sizeof(size), &size);
    std::vector<std::byte> pixels(static_cast<size_t>(size.bmWidthBytes) *
                                  static_cast<size_t>(size.bmHeight));
    GetBitmapBits(bitmap, static_cast<LONG>(pixels.size()), pixels.data());
    return pixels;
}

// The window's own thread may be painting: what it shows counts when it has not changed for a while.
Bitmap CaptureAtRest(HWND window)
{
    Bitmap last = Capture(window);
    for (int alike = 0, tries = 0; alike < kAlikeCaptures && tries < kMostCaptures; ++tries)
    {
        Sleep(kCaptureInterval);
        Bitmap next = Capture(window);
        alike = PixelsOf(next.get()) == PixelsOf(last.get()) ? alike + 1 : 0;
        last = std::move(next);
    }
    return last;
}

// A user's own window is the active one, and his pointer is somewhere else: a button below it would look hot.
void Pose(const ShownDialog& dialog)
{
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    SetForegroundWindow(dialog.Handle());
    dialog.Ask(dialog.Handle(), WM_NCACTIVATE, TRUE); // without a window manager the first window is none
}

} // namespace

void SavePicture(const ShownDialog& dialog, const std::wstring& path)
{
    Pose(dialog);
    RedrawWindow(dialog.Handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const Bitmap captured = CaptureAtRest(dialog.Handle());
    const GdiPlus gdiPlus;
    Gdiplus::Bitmap picture(captured.get(), nullptr);
    if (picture.Save(path.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok)
    {
        throw automation::Error(E_FAIL, L"Save", L"The picture could not be written: " + path);
    }
}

} // namespace tools
