#include "tests/preview/RandomSides.h"

#include "run/ChangeCollection.h"
#include "run/FrmMessage.h"

namespace test_support
{

using automation::Date;
using automation::Value;
using sandbox::ItemKind;

namespace
{

using enum RandomField::Sort;

constexpr const wchar_t* kTexts[] = {
    L"",           L"Smith & Sons",
    L"O'Neill",    L"=cmd()",
    L"李明",       L"  x",
    L"Größe",      L"\"q\"",
    L"line\nline", L"A rather long text that no column of forty characters can hold"};

// A Tuesday.
constexpr double kDay = 37747;

} // namespace

Value RandomSides::RandomValue(RandomField::Sort sort)
{
    switch (sort)
    {
    case Text: return Below(4) == 0 ? std::to_wstring(Below(100000)) : kTexts[Below(std::size(kTexts))];
    case Day: return Below(4) == 0 ? Value() : Value(Date{kDay + static_cast<double>(Below(400)) - 200});
    case Flag: return Below(2) == 0;
    case Percent: return static_cast<long>(Below(5) * 25);
    case Status: return static_cast<long>(Below(5));
    case Priority: return static_cast<long>(Below(3));
    default: return static_cast<long>(Below(600));
    }
}

namespace
{

// The host's form of a value of Outlook.
Value OfHost(const RandomField& field, const Value& value)
{
    switch (field.Is)
    {
    case Percent: return automation::DoubleOf(value) / 100;
    case Priority: return automation::LongOf(value) + 1;
    case Flag: return automation::TruthOf(value) ? 1L : 0L;
    case Day:
        return automation::IsAbsent(value)
                   ? Value::Null()
                   : Value(automation::Formatted(automation::DateOf(value), L"yyyy-mm-dd 00:00:00"));
    case Text: return automation::TextOf(value).substr(0, 16);
    default: return value;
    }
}

std::wstring Numbered(const wchar_t* name, size_t number)
{
    return name + std::to_wstring(number);
}

std::wstring CompanyOf(size_t number)
{
    return Numbered(L"Company ", number);
}

Value TextOrNull(const std::wstring& text)
{
    return text.empty() ? Value::Null() : Value(text);
}

} // namespace

void RandomSides::Add(size_t rows, size_t items, size_t pairs)
{
    for (size_t i = 0; i < rows + items + pairs; ++i)
    {
        ++mNumber;
        const bool isPair = i >= rows + items;
        if (i < rows || isPair)
        {
            AddRow(mNumber);
        }
        if (i >= rows)
        {
            AddItem(mNumber);
        }
    }
}

// Every third record has a company, and every sixth row's company an address.
std::wstring RandomSides::AddCompany(size_t number)
{
    if (number % 3 != 0)
    {
        return {};
    }
    std::wstring key = Numbered(L"A", number);
    sandbox::AddRows(TheHost.Database(), L"TBLACCOUNT", L"F_ACCID,F_CREATORID,F_ACCSNAME",
                     {{key, 1L, CompanyOf(number)}});
    if (number % 2 == 0)
    {
        sandbox::AddRows(TheHost.Database(), L"TBLADDRESS", L"F_ADDRID,F_ACCID,F_ADDRCITY,F_ISPRIMARY",
                         {{Numbered(L"D", number), key, L"Harbin", 1L}});
    }
    return key;
}

// Every fourth activity has a contact.
std::wstring RandomSides::AddLinkedContact(size_t number)
{
    if (number % 4 != 0)
    {
        return {};
    }
    std::wstring key = Numbered(L"P", number);
    sandbox::AddRows(TheHost.Database(), L"TBLCONTACT", L"F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME",
                     {{key, 1L, Numbered(L"Linked", number), L"Ann"}});
    return key;
}

RandomSides::Values RandomSides::OwnColumns(size_t number)
{
    if (Kind.itemKind == ItemKind::Contact)
    {
        return {{L"F_CNTCTID", Numbered(L"C", number)},
                {L"F_SURNAME", Numbered(L"Last", number)},
                {L"F_GIVENNAME", Numbered(L"First", number)}};
    }
    Values columns{{L"F_ACTID", Numbered(L"T", number)},
                   {L"F_ACTORID", 1L},
                   {L"F_ACTNAME", Numbered(L"Subject ", number)},
                   {L"F_ACTTYPE", L"Phone"},
                   {L"F_CNTCTID", TextOrNull(AddLinkedContact(number))}};
    if (Kind.itemKind == ItemKind::Task)
    {
        columns.emplace_back(L"F_ACTPSTIME", L"2003-05-06 00:00:00");
        return columns;
    }
    columns.emplace_back(L"F_ACTESDATE", L"2003-05-06 00:00:00");
    columns.emplace_back(L"F_ACTESTIME", L"1899-12-30 09:30:00");
    columns.emplace_back(L"F_ACTEETIME", Numbered(L"1899-12-30 1", Below(8)) + L":15:00");
    if (Below(2) == 0)
    {
        columns.emplace_back(L"F_ACTREPTIDX", static_cast<long>(1 + Below(6)));
        columns.emplace_back(L"F_ACTREPTEDATE", L"2004-05-06 00:00:00");
    }
    return columns;
}

void RandomSides::AddRow(size_t number)
{
    Values columns = OwnColumns(number);
    columns.emplace_back(L"F_ACCID", TextOrNull(AddCompany(number)));
    columns.emplace_back(L"F_CREATORID", 1L);
    for (const RandomField& field : Kind.Fields)
    {
        if (field.Column != nullptr)
        {
            columns.emplace_back(field.Column,
                                 Below(6) == 0 ? Value::Null() : OfHost(field, RandomValue(field.Is)));
        }
    }
    std::wstring names;
    sandbox::Row values;
    for (const auto& [name, value] : columns)
    {
        names += (names.empty() ? L"" : L",") + name;
        values.push_back(value);
    }
    sandbox::AddRows(TheHost.Database(), Kind.table, names, {values});
}

RandomSides::Values RandomSides::OwnProperties(size_t number)
{
    const std::wstring company = number % 3 == 0 ? CompanyOf(number) : L"";
    if (Kind.itemKind == ItemKind::Contact)
    {
        return {{L"LastName", Numbered(L"Last", number)},
                {L"FirstName", Numbered(L"First", number)},
                {L"CompanyName", company}};
    }
    Values properties{
        {L"Subject", Numbered(L"Subject ", number)}, {L"Categories", L"Phone"}, {L"Companies", company}};
    if (Kind.itemKind == ItemKind::Task)
    {
        properties.emplace_back(L"StartDate", Date{kDay});
        return properties;
    }
    properties.emplace_back(L"Start", automation::DateOf(automation::Moment{2003, 5, 6, 9, 30}));
    properties.emplace_back(
        L"End", automation::DateOf(automation::Moment{2003, 5, 6, 10 + static_cast<int>(Below(9))}));
    return properties;
}

void RandomSides::AddItem(size_t number)
{
    Values properties = OwnProperties(number);
    for (const RandomField& field : Kind.Fields)
    {
        const Value value = RandomValue(field.Is);
        const bool isAllDay = std::wstring_view(field.Property) == L"AllDayEvent";
        if (Below(6) != 0 && !(field.Is == RandomField::Sort::Day && automation::IsAbsent(value)) &&
            !isAllDay)
        {
            properties.emplace_back(field.Property, value);
        }
    }
    Mailbox->AddItem(Kind.folder, properties);
}

void RandomSides::SetParameter(long transType)
{
    state::SynParameter& parameter = state::Shared().gSynParameter;
    parameter.TransType = transType;
    parameter.TransConflictOption = state::kNotifyMe;
    parameter.CurrentFolder = Kind.folder;
}

bool RandomSides::Run(long transType)
{
    SetParameter(transType);
    Display.Ask = run::ConfirmChanges;
    return Kind.run(Display);
}

exchange::Run& RandomSides::Collect(long transType)
{
    SetParameter(transType);
    mRun = std::make_unique<exchange::Run>(OpenRun(Kind, Display));
    run::ChangeCollection collection(Kind.tested, *mRun);
    EXPECT_FALSE(transType != state::kOutlookToQuenlar && collection.CollectToOutlook());
    EXPECT_FALSE(transType != state::kQuenlarToOutlook && collection.CollectFromOutlook());
    return *mRun;
}

void RandomSides::Confirm()
{
    run::ConfirmChanges(Kind.tested, *mRun, L"Task");
}

void RandomSides::Apply(long transType)
{
    const bool toOutlook = transType != state::kOutlookToQuenlar;
    const bool fromOutlook = transType != state::kQuenlarToOutlook;
    if (fromOutlook && Kind.tested.AppliesFromOutlookFirst)
    {
        EXPECT_FALSE(Kind.tested.FromOutlook(*mRun));
    }
    if (toOutlook)
    {
        EXPECT_FALSE(Kind.tested.ToOutlook(*mRun));
    }
    if (fromOutlook && !Kind.tested.AppliesFromOutlookFirst)
    {
        EXPECT_FALSE(Kind.tested.FromOutlook(*mRun));
    }
}

void RandomSides::ReopenRows()
{
    automation::CloseRecordset(mRun->HostRows);
    mRun->HostRows = OpenRows(Kind.tested);
}

} // namespace test_support
