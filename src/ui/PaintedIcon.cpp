#include "ui/PaintedIcon.h"

#include <cmath>
#include <new>
#include <utility>

namespace ui
{

namespace
{

// Points looked at per pixel, each way.
constexpr int kSamples = 4;

struct BitmapDestroyer
{
    void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDestroyer>;

DWORD ByteOf(double part)
{
    return static_cast<DWORD>(std::lround(part * 255));
}

Bitmap ColorBitmap(int size, DWORD*& bits)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size;
    info.bmiHeader.biHeight = -size; // the first line is the top one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* data = nullptr;
    Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &data, nullptr, 0));
    if (bitmap == nullptr)
    {
        throw std::bad_alloc();
    }
    bits = static_cast<DWORD*>(data);
    return bitmap;
}

} // namespace

Shape Polygon(std::vector<PicturePoint> corners)
{
    return [corners = std::move(corners)](PicturePoint point) {
        bool inside = false;
        for (size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++)
        {
            const PicturePoint& a = corners[i];
            const PicturePoint& b = corners[before];
            if ((a.y > point.y) != (b.y > point.y) &&
                point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            {
                inside = !inside;
            }
        }
        return inside;
    };
}

Shape Ellipse(PicturePoint center, double radiusX, double radiusY)
{
    return [=](PicturePoint point) {
        const double x = (point.x - center.x) / radiusX;
        const double y = (point.y - center.y) / radiusY;
        return x * x + y * y <= 1;
    };
}

Shape Box(double left, double top, double right, double bottom)
{
    return [=](PicturePoint point) {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    };
}

Shape Within(Shape shape, Shape other)
{
    return [shape = std::move(shape), other = std::move(other)](PicturePoint point) {
        return shape(point) && other(point);
    };
}

PaintedIcon::PaintedIcon(int size) : mSize(size), mPixels(static_cast<size_t>(size) * size) {}

double PaintedIcon::CoverageOf(const Shape& shape, int x, int y) const
{
    const double scale = kExtent / mSize;
    int hits = 0;
    for (int i = 0; i < kSamples * kSamples; ++i)
    {
        const int column = i % kSamples;
        const int line = i / kSamples;
        const double right = (column + 0.5) / kSamples;
        const double down = (line + 0.5) / kSamples;
        hits += shape({(x + right) * scale, (y + down) * scale}) ? 1 : 0;
    }
    return static_cast<double>(hits) / (kSamples * kSamples);
}

void PaintedIcon::Fill(const Shape& shape, COLORREF color)
{
    for (int i = 0; i < mSize * mSize; ++i)
    {
        const double coverage = CoverageOf(shape, i % mSize, i / mSize);
        Pixel& pixel = mPixels[static_cast<size_t>(i)];
        const double kept = 1 - coverage;
        pixel.red = pixel.red * kept + GetRValue(color) / 255.0 * coverage;
        pixel.green = pixel.green * kept + GetGValue(color) / 255.0 * coverage;
        pixel.blue = pixel.blue * kept + GetBValue(color) / 255.0 * coverage;
        pixel.opacity = pixel.opacity * kept + coverage;
    }
}

DWORD PaintedIcon::PixelAt(int x, int y) const
{
    const Pixel& pixel = mPixels[static_cast<size_t>(y) * mSize + x];
    if (pixel.opacity <= 0)
    {
        return 0;
    }
    return ByteOf(pixel.opacity) << 24 | ByteOf(pixel.red / pixel.opacity) << 16 |
           ByteOf(pixel.green / pixel.opacity) << 8 | ByteOf(pixel.blue / pixel.opacity);
}

Icon PaintedIcon::ToIcon() const
{
    DWORD* bits = nullptr;
    const Bitmap color = ColorBitmap(mSize, bits);
    for (int i = 0; i < mSize * mSize; ++i)
    {
        bits[i] = PixelAt(i % mSize, i / mSize);
    }
    // For devices without opacity: white is transparent. Lines are padded to 16 pixels.
    const size_t lineBytes = static_cast<size_t>(mSize + 15) / 16 * 2;
    std::vector<BYTE> maskBits(lineBytes * mSize);
    for (int i = 0; i < mSize * mSize; ++i)
    {
        const bool transparent = bits[i] >> 24 < 128;
        maskBits[lineBytes * (i / mSize) + i % mSize / 8] |=
            static_cast<BYTE>((transparent ? 0x80 : 0) >> i % mSize % 8);
    }
    const Bitmap mask(CreateBitmap(mSize, mSize, 1, 1, maskBits.data()));
    ICONINFO info = {TRUE, 0, 0, mask.get(), color.get()};
    Icon icon(CreateIconIndirect(&info));
    if (icon == nullptr)
    {
        throw std::bad_alloc();
    }
    return icon;
}

} // namespace ui
