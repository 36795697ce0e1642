#include "tests/support/Thoroughness.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>

#include <windows.h>

namespace test_support
{

namespace
{

std::wstring Variable(const wchar_t* name)
{
    wchar_t text[MAX_PATH];
    const DWORD length = GetEnvironmentVariableW(name, text, ARRAYSIZE(text));
    return length < ARRAYSIZE(text) ? std::wstring(text, length) : std::wstring();
}

} // namespace

bool IsLongRun()
{
    return !Variable(L"TELVIX_LONG").empty();
}

bool IsBriefRun()
{
    return !IsLongRun() && !Variable(L"TELVIX_BRIEF").empty();
}

long Times(long usual)
{
    return std::max(1L, ByThoroughness(usual / 8, usual, usual * 10));
}

void ReportFigure(const std::string& text)
{
    std::cout << "Figure: " << text << std::endl;
    if (const std::wstring file = Variable(L"TELVIX_FIGURES"); !file.empty())
    {
        std::ofstream(std::filesystem::path(file), std::ios::app) << text << '\n';
    }
}

} // namespace test_support
