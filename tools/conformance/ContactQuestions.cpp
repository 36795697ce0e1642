// Contacts: names, unset dates, what follows from what.
#include "automation/Dates.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

namespace conformance
{

using automation::Object;

namespace
{

std::wstring PartsOf(Scratch& scratch, const wchar_t* fullName)
{
    const Object contact = scratch.New(Kind::Contact);
    contact.Put(L"FullName", fullName);
    return Joined({AnswerOf([&] { return contact.Get(L"FirstName"); }),
                   AnswerOf([&] { return contact.Get(L"MiddleName"); }),
                   AnswerOf([&] { return contact.Get(L"LastName"); })});
}

std::wstring WholeOf(Scratch& scratch, const wchar_t* member)
{
    const Object contact = scratch.New(Kind::Contact);
    contact.Put(L"LastName", L"Lovelace");
    contact.Put(L"FirstName", L"Ada");
    return AnswerOf([&] { return contact.Get(member); });
}

constexpr const wchar_t* kFullName = L"ContactItem.FullName property (Outlook)";

constexpr Question kContactQuestions[] = {
    {L"contact.message-class",
     [](Scratch& s) { return AnswerOf([&] { return s.New(Kind::Contact).Get(L"MessageClass"); }); },
     L"text 'IPM.Contact'", L"Item Types and Message Classes"},
    {L"contact.birthday.unset",
     [](Scratch& s) { return AnswerOf([&] { return s.New(Kind::Contact).Get(L"Birthday"); }); }},
    {L"contact.birthday.time-of-day",
     [](Scratch& s) {
         const Object contact = s.New(Kind::Contact);
         contact.Put(L"Birthday", automation::DateOf({1980, 5, 17, 13, 30, 0}));
         return AnswerOf([&] { return contact.Get(L"Birthday"); });
     }},
    {L"contact.full-name.parts", [](Scratch& s) { return PartsOf(s, L"Ada King Lovelace"); },
     L"text 'Ada'; text 'King'; text 'Lovelace'", kFullName},
    {L"contact.full-name.one-word", [](Scratch& s) { return PartsOf(s, L"Lovelace"); }},
    {L"contact.full-name.of-parts", [](Scratch& s) { return WholeOf(s, L"FullName"); }},
    {L"contact.subject", [](Scratch& s) { return WholeOf(s, L"Subject"); }},
    {L"contact.file-as", [](Scratch& s) { return WholeOf(s, L"FileAs"); }},
    {L"contact.links",
     [](Scratch& s) { return AnswerOf([&] { return s.New(Kind::Contact).Get(L"Links"); }); }, L"object",
     L"Links object (Outlook)"},
};

} // namespace

std::span<const Question> ContactQuestions()
{
    return kContactQuestions;
}

} // namespace conformance
