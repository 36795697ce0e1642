#include "config/dialogs/Pictures.h"

#include <algorithm>
#include <iterator>

namespace config
{

namespace
{

using ui::Box;
using ui::Ellipse;
using ui::PaintedIcon;
using ui::Polygon;
using ui::Within;

constexpr COLORREF kInk = RGB(55, 71, 79);
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kBlue = RGB(21, 101, 192);
constexpr COLORREF kGreen = RGB(46, 125, 50);
constexpr COLORREF kViolet = RGB(94, 53, 177);
constexpr COLORREF kRed = RGB(198, 40, 40);
constexpr COLORREF kAmber = RGB(249, 168, 37);
constexpr COLORREF kDarkAmber = RGB(217, 130, 0);
constexpr COLORREF kBrown = RGB(141, 110, 99);

void PaintContact(PaintedIcon& icon)
{
    icon.Fill(Ellipse({8, 4.75}, 3.25, 3.25), kBlue);
    icon.Fill(Within(Ellipse({8, 15}, 6.25, 6), Box(0, 0, 16, 15)), kBlue);
}

void PaintTask(PaintedIcon& icon)
{
    icon.Fill(Box(2, 2, 14, 15), kBrown);
    icon.Fill(Box(3.5, 4, 12.5, 14), kPaper);
    icon.Fill(Box(5.5, 1, 10.5, 4), kInk);
    icon.Fill(Polygon({{4.5, 9}, {5.75, 7.75}, {7.25, 9.25}, {10.5, 6}, {11.75, 7.25}, {7.25, 11.75}}),
              kGreen);
}

void PaintCalendar(PaintedIcon& icon)
{
    icon.Fill(Box(2, 3, 14, 15), kInk);
    icon.Fill(Box(3, 7, 13, 14), kPaper);
    icon.Fill(Box(2, 3, 14, 6), kRed);
    icon.Fill(Box(4, 1, 6, 4), kInk);
    icon.Fill(Box(10, 1, 12, 4), kInk);
    for (const double top : {8.0, 11.0})
    {
        for (const double left : {4.0, 7.0, 10.0})
        {
            icon.Fill(Box(left, top, left + 2, top + 2), kBlue);
        }
    }
}

void PaintLeft(PaintedIcon& icon)
{
    icon.Fill(Polygon({{1, 8}, {8, 2}, {8, 6}, {15, 6}, {15, 10}, {8, 10}, {8, 14}}), kGreen);
}

void PaintRight(PaintedIcon& icon)
{
    icon.Fill(Polygon({{15, 8}, {8, 2}, {8, 6}, {1, 6}, {1, 10}, {8, 10}, {8, 14}}), kBlue);
}

void PaintEach(PaintedIcon& icon)
{
    icon.Fill(
        Polygon({{0, 8}, {5, 3}, {5, 6}, {11, 6}, {11, 3}, {16, 8}, {11, 13}, {11, 10}, {5, 10}, {5, 13}}),
        kViolet);
}

void PaintOutlook(PaintedIcon& icon)
{
    icon.Fill(Polygon({{1, 3}, {6, 3}, {7.5, 5}, {15, 5}, {15, 14}, {1, 14}}), kDarkAmber);
    icon.Fill(Box(1, 6, 15, 14), kAmber);
}

void PaintDefault(PaintedIcon& icon)
{
    icon.Fill(Ellipse({8, 8}, 7, 7), kGreen);
    icon.Fill(Polygon({{3.75, 8.25}, {5.25, 6.75}, {7, 8.5}, {10.75, 4.75}, {12.25, 6.25}, {7, 11.5}}),
              kPaper);
}

void PaintEmpty(PaintedIcon& /*icon*/) {}

struct Picture
{
    std::wstring_view key;
    void (*paint)(PaintedIcon& icon);
};

constexpr Picture kPictures[] = {
    {L"contact", &PaintContact},      {L"task", &PaintTask},
    {L"calendar", &PaintCalendar},    {L"left", &PaintLeft},
    {L"right", &PaintRight},          {L"each", &PaintEach},
    {kOutlookPicture, &PaintOutlook}, {kDefaultPicture, &PaintDefault},
    {kEmptyPicture, &PaintEmpty},
};

} // namespace

Pictures::Pictures()
{
    for (const Picture& picture : kPictures)
    {
        mList.Add(PaintPicture(picture.key, ui::SmallPictureSize()));
    }
}

int Pictures::IndexOf(std::wstring_view key)
{
    const auto* found = std::find_if(std::begin(kPictures), std::end(kPictures),
                                     [=](const Picture& picture) { return picture.key == key; });
    return found != std::end(kPictures) ? static_cast<int>(std::distance(std::begin(kPictures), found)) : -1;
}

PaintedIcon PaintPicture(std::wstring_view key, int size)
{
    PaintedIcon icon(size);
    const int index = Pictures::IndexOf(key);
    if (index >= 0)
    {
        kPictures[index].paint(icon);
    }
    return icon;
}

} // namespace config
