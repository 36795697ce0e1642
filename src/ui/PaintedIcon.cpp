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

DWORD ByteOf(double part)
{
    return static_cast<DWORD>(std::lround(part * 255));
}

Bitmap Checked(HBITMAP made)
{
    if (made == nullptr)
    {
        throw std::bad_alloc();
    }
    return Bitmap(made);
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

PaintedIcon::PaintedIcon(int size)
    : mSize(size), mPixels(static_cast<size_t>(size) * static_cast<size_t>(size))
{
}

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
    const size_t line = static_cast<size_t>(y) * static_cast<size_t>(mSize);
    const Pixel& pixel = mPixels[line + static_cast<size_t>(x)];
    if (pixel.opacity <= 0)
    {
        return 0;
    }
    return ByteOf(pixel.opacity) << 24 | ByteOf(pixel.red / pixel.opacity) << 16 |
           ByteOf(pixel.green / pixel.opacity) << 8 | ByteOf(pixel.blue / pixel.opacity);
}

Bitmap PaintedIcon::ColorBitmap() const
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = mSize;
    info.bmiHeader.biHeight = -mSize; // the first line is the top one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    Bitmap bitmap = Checked(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    for (int i = 0; i < mSize * mSize; ++i)
    {
        static_cast<DWORD*>(bits)[i] = PixelAt(i % mSize, i / mSize);
    }
    return bitmap;
}

Bitmap PaintedIcon::MaskBitmap() const
{
    const auto size = static_cast<size_t>(mSize);
    const size_t lineBytes = (size + 15) / 16 * 2; // lines are padded to 16 pixels
    std::vector<BYTE> bits(lineBytes * size);
    for (size_t i = 0; i < size * size; ++i)
    {
        const bool transparent = PixelAt(static_cast<int>(i % size), static_cast<int>(i / size)) >> 24 < 128;
        bits[lineBytes * (i / size) + i % size / 8] |=
            static_cast<BYTE>((transparent ? 0x80 : 0) >> i % size % 8);
    }
    return Checked(CreateBitmap(mSize, mSize, 1, 1, bits.data()));
}

} // namespace ui
