// Find and Restrict: quotes, case, and filters that are refused.
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

namespace conformance
{

using automation::Object;

namespace
{

std::wstring FoundAmong(Scratch& scratch, const wchar_t* company, const wchar_t* filter)
{
    const Object contact = scratch.New(Kind::Contact);
    contact.Put(L"CompanyName", company);
    contact.Call(L"Save");
    return AnswerOf([&] { return scratch.Items(Kind::Contact).Get(L"Find", filter); });
}

constexpr const wchar_t* kFind = L"Items.Find method (Outlook)";

constexpr Question kFilterQuestions[] = {
    {L"find.single-quotes", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[CompanyName] = 'Acme'"); },
     L"object", kFind},
    {L"find.double-quotes", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[CompanyName] = \"Acme\""); },
     L"object", kFind},
    {L"find.doubled-apostrophe",
     [](Scratch& s) { return FoundAmong(s, L"O'Neill", L"[CompanyName] = 'O''Neill'"); }, L"object", kFind},
    {L"find.apostrophe-in-double-quotes",
     [](Scratch& s) { return FoundAmong(s, L"O'Neill", L"[CompanyName] = \"O'Neill\""); }, L"object", kFind},
    {L"find.doubled-double-quote",
     [](Scratch& s) { return FoundAmong(s, L"6\" pipes", L"[CompanyName] = \"6\"\" pipes\""); }, L"object",
     kFind},
    {L"find.single-double-quote",
     [](Scratch& s) { return FoundAmong(s, L"6\" pipes", L"[CompanyName] = \"6\" pipes\""); }},
    {L"find.open-quote", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[CompanyName] = 'Acme"); }},
    {L"find.other-case", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[CompanyName] = 'ACME'"); }},
    {L"find.trailing-blank", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[CompanyName] = 'Acme '"); }},
    {L"find.none", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[CompanyName] = 'Other'"); }, L"nothing",
     kFind},
    {L"find.unknown-property",
     [](Scratch& s) { return FoundAmong(s, L"Acme", L"[NoSuchProperty] = 'Acme'"); }},
    {L"find.companies", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[Companies] = 'Acme'"); },
     L"an error", kFind},
    {L"find.entry-id", [](Scratch& s) { return FoundAmong(s, L"Acme", L"[EntryID] = '00'"); }, L"an error",
     kFind},
    {L"restrict.count",
     [](Scratch& s) {
         s.Saved(Kind::Contact, L"Ada Lovelace");
         s.Saved(Kind::Contact, L"Alan Turing");
         return AnswerOf([&] {
             return s.Items(Kind::Contact).GetObject(L"Restrict", L"[LastName] = 'Turing'").Get(L"Count");
         });
     },
     L"number 1", L"Items.Restrict method (Outlook)"},
};

} // namespace

std::span<const Question> FilterQuestions()
{
    return kFilterQuestions;
}

} // namespace conformance
