#include "sandbox/robot/Picture.h"

#include "automation/Error.h"

#include <memory>

#include <objidl.h>

#include <gdiplus.h>

namespace sandbox
{

namespace
{

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

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

// What the window shows, frame included.
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

} // namespace

void SavePicture(const ShownDialog& dialog, const std::wstring& path)
{
    RedrawWindow(dialog.Handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const Bitmap captured = Capture(dialog.Handle());
    const GdiPlus gdiPlus;
    Gdiplus::Bitmap picture(captured.get(), nullptr);
    if (picture.Save(path.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok)
    {
        throw automation::Error(E_FAIL, L"Save", L"The picture could not be written: " + path);
    }
}

} // namespace sandbox
