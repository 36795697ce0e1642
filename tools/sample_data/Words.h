// The parts of the sample records: names, companies, places, subjects.
#pragma once

#include <span>

namespace tools
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

// A surname or given name, and how it is written in a mail address.
struct PersonName
{
    const wchar_t* text;
    const wchar_t* latin;
};

struct GivenName
{
    PersonName name;
    const wchar_t* address; // the word that goes with the whole name: before it, or behind it in Chinese
};

// The words of one language.
struct Words
{
    std::span<const PersonName> surnames;
    std::span<const GivenName> givenNames;
    std::span<const Company> companies;
    std::span<const Place> places;
    std::span<const wchar_t* const> jobTitles;
    std::span<const wchar_t* const> departments;
    std::span<const wchar_t* const> taskSubjects;
    std::span<const wchar_t* const> entrySubjects;
    std::span<const wchar_t* const> repeatedSubjects; // one for each repeat rule, in their order
    std::span<const wchar_t* const> categories;
};

const Words& EnglishWords();
const Words& ChineseWords();

} // namespace tools
