// What the sample records are composed of: names, companies, places, subjects.
#pragma once

#include <span>

namespace sandbox
{

struct Place
{
    const wchar_t* country;
    const wchar_t* province;
    const wchar_t* city;
    const wchar_t* street;
    const wchar_t* postalCode;
    const wchar_t* dialCode;
};

struct Company
{
    const wchar_t* name;
    const wchar_t* mailDomain;
};

// The words of one language.
struct Words
{
    std::span<const wchar_t* const> surnames;
    std::span<const wchar_t* const> givenNames;
    std::span<const Company> companies;
    std::span<const Place> places;
    std::span<const wchar_t* const> jobTitles;
    std::span<const wchar_t* const> departments;
    std::span<const wchar_t* const> taskSubjects;
    std::span<const wchar_t* const> entrySubjects;
    std::span<const wchar_t* const> repeatedSubjects;
    std::span<const wchar_t* const> categories;
};

const Words& EnglishWords();
const Words& ChineseWords();

} // namespace sandbox
