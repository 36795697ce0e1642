// COM: type information, DISPIDs, conversions of what is put, by-reference arguments, failures.
#include "automation/Error.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

#include <oaidl.h>
#include <wrl/client.h>

namespace conformance
{

using automation::Object;
using automation::Value;

namespace
{

using Microsoft::WRL::ComPtr;

long DispidOf(const Object& object, const wchar_t* member)
{
    auto* name = const_cast<LPOLESTR>(member);
    DISPID id = DISPID_UNKNOWN;
    automation::Check(object.Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_SYSTEM_DEFAULT, &id),
                      member);
    return id;
}

ComPtr<ITypeInfo> TypeOf(const Object& object)
{
    ComPtr<ITypeInfo> type;
    automation::Check(object.Dispatch()->GetTypeInfo(0, LOCALE_SYSTEM_DEFAULT, &type), L"GetTypeInfo");
    return type;
}

Value NameOfType(const Object& object)
{
    BSTR name = nullptr;
    automation::Check(TypeOf(object)->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr),
                      L"type");
    const std::wstring text(name, SysStringLen(name));
    SysFreeString(name);
    return text;
}

Value KindOfType(const Object& object)
{
    const ComPtr<ITypeInfo> type = TypeOf(object);
    TYPEATTR* attributes = nullptr;
    automation::Check(type->GetTypeAttr(&attributes), L"GetTypeAttr");
    const long kind = attributes->typekind;
    type->ReleaseTypeAttr(attributes);
    return kind;
}

// What a property is after a value has been put into it.
std::wstring AfterPut(const Object& item, const wchar_t* member, const Value& value)
{
    return AnswerOf([&] {
        item.Put(member, value);
        return item.Get(member);
    });
}

// Find, with the filter as a variable of another type than a plain text.
std::wstring FoundBy(Scratch& scratch, VARTYPE type)
{
    scratch.Saved(Kind::Contact, L"Ada Lovelace");
    const Object items = scratch.Items(Kind::Contact);
    Value filter = L"[LastName] = 'Lovelace'";
    VARIANT inner = filter.Raw();
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = static_cast<VARTYPE>(VT_BYREF | type);
    type == VT_BSTR ? static_cast<void>(argument.pbstrVal = &inner.bstrVal)
                    : static_cast<void>(argument.pvarVal = &inner);
    DISPPARAMS parameters = {&argument, nullptr, 1, 0};
    return AnswerOf([&] {
        Value found;
        automation::Check(items.Dispatch()->Invoke(DispidOf(items, L"Find"), IID_NULL, LOCALE_SYSTEM_DEFAULT,
                                                   DISPATCH_METHOD, &parameters, found.Receive(), nullptr,
                                                   nullptr),
                          L"Find");
        return found;
    });
}

constexpr const wchar_t* kInterop = L"Outlook primary interop assembly reference";

constexpr Question kComQuestions[] = {
    {L"com.type.contact",
     [](Scratch& s) { return AnswerOf([&] { return NameOfType(s.New(Kind::Contact)); }); },
     L"text '_ContactItem'", kInterop},
    {L"com.type.task", [](Scratch& s) { return AnswerOf([&] { return NameOfType(s.New(Kind::Task)); }); },
     L"text '_TaskItem'", kInterop},
    {L"com.type.kind", [](Scratch& s) { return AnswerOf([&] { return KindOfType(s.New(Kind::Contact)); }); }},
    {L"com.dispid.Subject",
     [](Scratch& s) { return AnswerOf([&] { return DispidOf(s.New(Kind::Task), L"Subject"); }); },
     L"number 55", kInterop},
    {L"com.dispid.FirstName",
     [](Scratch& s) { return AnswerOf([&] { return DispidOf(s.New(Kind::Contact), L"FirstName"); }); },
     L"number 14854", kInterop},
    {L"com.name.any-case",
     [](Scratch& s) { return AnswerOf([&] { return DispidOf(s.New(Kind::Task), L"SUBJECT"); }); }},
    {L"com.name.unknown",
     [](Scratch& s) { return AnswerOf([&] { return s.New(Kind::Task).Get(L"NoSuchMember"); }); },
     L"error 0x80020006", L"IDispatch::GetIDsOfNames method (oaidl.h)"},
    {L"com.put.number-into-text", [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"Subject", 42L); }},
    {L"com.put.text-into-number",
     [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"Importance", L"2"); }},
    {L"com.put.empty-into-text", [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"Subject", Value()); }},
    {L"com.put.null-into-text",
     [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"Subject", Value::Null()); }},
    {L"com.put.empty-into-date", [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"DueDate", Value()); }},
    {L"com.put.null-into-date",
     [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"DueDate", Value::Null()); }},
    {L"com.put.word-into-date", [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"DueDate", L"soon"); }},
    {L"com.put.read-only", [](Scratch& s) { return AfterPut(s.New(Kind::Task), L"EntryID", L"1"); }},
    {L"com.byref.text", [](Scratch& s) { return FoundBy(s, VT_BSTR); }},
    {L"com.byref.variant", [](Scratch& s) { return FoundBy(s, VT_VARIANT); }},
};

} // namespace

std::span<const Question> ComQuestions()
{
    return kComQuestions;
}

} // namespace conformance
