// The resources of this process at one moment, counted in a way that is true on Windows and under Wine: Wine
// answers GetGuiResources and GetProcessHandleCount with 0, so handles are counted one by one there. Used by
// tests that compare two moments; FootprintTest shows that each figure notices a leak.
#pragma once

#include <functional>
#include <string>

namespace test_support
{

struct Footprint
{
    long heapBytes = 0;     // in use in all heaps of the process, to the byte
    long residentBytes = 0; // memory of the process's own, in pages, what the database driver takes included
    long gdiObjects = 0;
    long userObjects = 0; // windows of this process, children and message windows included, and menus
    long kernelHandles = 0;
    long fakes = 0; // objects of the host, Outlook and ADO

    static Footprint Now();
    Footprint operator-(const Footprint& other) const;
    bool IsWithin(const Footprint& tolerance) const;
};

// The first of the figures alone, which is quickly had.
long BytesInHeaps();

// For every figure the smaller one.
Footprint Smaller(const Footprint& one, const Footprint& other);

// The growth over a series of the same work: of the first series that stays within the tolerance, or of the
// last of a few. A cache of the system fills at a moment of its own and shows in one series, a leak in each.
Footprint GrowthOfLevelSeries(const Footprint& tolerance, const std::function<Footprint()>& growthOfSeries);

// "heap 1234 bytes, resident ..., GDI 5, USER 6, handles 7, fakes 0".
std::string TextOf(const Footprint& footprint);

} // namespace test_support
