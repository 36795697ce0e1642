#include "sandbox/host/FieldRows.h"

namespace sandbox
{

namespace
{

using enum FieldRule;

constexpr FieldRow kFieldRows[] = {
    // keys and links
    {L"F_CNTCTID", Text, 36},
    {L"F_ACCID", Text, 36},
    {L"F_CNTADDRID", Text, 36},
    {L"F_ADDRID", Text, 36},
    {L"F_ACTID", Text, 36},
    {L"F_AIID", Text, 36},
    {L"F_AITID", Text, 36},
    {L"F_CREATORID", Number, 0},
    {L"F_ACTORID", Number, 0},
    // contacts
    {L"F_SURNAME", Text, 40},
    {L"F_GIVENNAME", Text, 40},
    {L"F_NICKNAME", Text, 40},
    {L"F_TITLE", Text, 20},
    {L"F_SUFFIX", Text, 20},
    {L"F_SPOUSE", Text, 40},
    {L"F_BIRTHDAY", Date, 0},
    {L"F_ANNIVERSARY", Date, 0},
    {L"F_JOBTITLE", Text, 60},
    {L"F_DEPARTMENT", Text, 60},
    {L"F_EMAIL", Text, 80},
    {L"F_BUSINESSPHONE", Text, 40},
    {L"F_BUSINESSFAX", Text, 40},
    {L"F_MOBILEPHONE", Text, 40},
    {L"F_HOMEPHONE", Text, 40},
    {L"F_ASSISTANT", Text, 40},
    {L"F_ASSISTANTPHONE", Text, 40},
    {L"F_HOMECOUNTRY", Text, 40},
    {L"F_HOMEPROVINCE", Text, 40},
    {L"F_HOMECITY", Text, 40},
    {L"F_HOMESTREET", LongText, 120},
    {L"F_HOMEPOSTALCODE", Text, 16},
    // accounts and addresses
    {L"F_ACCSNAME", Text, 80},
    {L"F_ACCCURRIDX", Number, 0},
    {L"F_ADDRCOUNTRY", Text, 40},
    {L"F_ADDRPROVINCE", Text, 40},
    {L"F_ADDRCITY", Text, 40},
    {L"F_ADDRDETAIL", LongText, 120},
    {L"F_POSTALCODE", Text, 16},
    {L"F_ISPRIMARY", Flag, 0},
    // tasks and the calendar
    {L"F_ACTNAME", LongText, 255},
    {L"F_ACTTYPE", Text, 80},
    {L"F_ACTREMIND", Flag, 0},
    // tasks
    {L"F_ACTPSTIME", DateTime, 0},
    {L"F_ACTPETIME", DateTime, 0},
    {L"F_ACTCTIME", DateTime, 0},
    {L"F_ACTCREATETIME", DateTime, 0},
    {L"F_ACTSTATUS", Number, 0},
    {L"F_ACTPERCENT", Fraction, 0},
    {L"F_ACTCOMPLETED", Flag, 0},
    {L"F_ACTPRIORITY", Number, 0},
    {L"F_ACTTOTALWORK", Number, 0},
    {L"F_ACTACTUALWORK", Number, 0},
    // the calendar
    {L"F_ACTESDATE", Date, 0},
    {L"F_ACTESTIME", Time, 0},
    {L"F_ACTEEDATE", Date, 0},
    {L"F_ACTEETIME", Time, 0},
    {L"F_ACTREPTIDX", Number, 0},
    {L"F_ACTREPTEDATE", Date, 0},
};

} // namespace

std::span<const FieldRow> FieldRows()
{
    return kFieldRows;
}

} // namespace sandbox
