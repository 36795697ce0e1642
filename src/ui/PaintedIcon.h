// Icons painted by the program at the size at which they are shown, so that they are sharp at every
// resolution: filled shapes with smooth edges on a transparent ground, in coordinates from 0 to 16 both ways.
#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include <windows.h>

namespace ui
{

struct PicturePoint
{
    double x;
    double y;
};

// Whether a point belongs to a shape.
using Shape = std::function<bool(PicturePoint)>;

Shape Polygon(std::vector<PicturePoint> corners);
Shape Ellipse(PicturePoint center, double radiusX, double radiusY);
Shape Box(double left, double top, double right, double bottom);
// The part that both shapes cover.
Shape Within(Shape shape, Shape other);

struct BitmapDestroyer
{
    void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDestroyer>;

class PaintedIcon
{
  public:
    static constexpr double kExtent = 16;

    // size: width and height in pixels.
    explicit PaintedIcon(int size);

    // Paints over the shapes painted before.
    void Fill(const Shape& shape, COLORREF color);

    // The colour of a pixel as 0xAARRGGBB, not multiplied by its opacity.
    DWORD PixelAt(int x, int y) const;
    // The pixels with their opacity, 32 bits each, and for devices without opacity the mask, in which white
    // is transparent. Both throw std::bad_alloc when the system has no more.
    Bitmap ColorBitmap() const;
    Bitmap MaskBitmap() const;

  private:
    struct Pixel
    {
        double red = 0;
        double green = 0;
        double blue = 0;
        double opacity = 0; // the colours are multiplied by it
    };

    double CoverageOf(const Shape& shape, int x, int y) const;

    int mSize;
    std::vector<Pixel> mPixels;
};

} // namespace ui
