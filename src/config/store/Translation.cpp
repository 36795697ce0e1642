#include "config/store/Translation.h"

#include "automation/Text.h"
#include "config/store/ParameterStore.h"
#include "config/store/UserRows.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "resources/Strings.h"
#include "state/Failures.h"

#include <algorithm>

namespace config
{

namespace
{

using automation::LongOf;
using automation::Recordset;
using automation::TextOrEmpty;
using automation::Value;

constexpr Direction kDirections[] = {
    {state::kOutlookToQuenlar, L"left", IDS_DIRECTION_IMPORT},
    {state::kQuenlarToOutlook, L"right", IDS_DIRECTION_EXPORT},
    {state::kBothWays, L"each", IDS_DIRECTION_BOTH},
};

template<typename Predicate>
const Direction* FirstDirection(Predicate&& fits)
{
    const auto* found = std::find_if(std::begin(kDirections), std::end(kDirections), fits);
    return found != std::end(kDirections) ? found : nullptr;
}

Translation TranslationOf(const Recordset& rows)
{
    Translation row;
    row.TransObject = TextOrEmpty(rows.ValueOf(L"TransObject"));
    row.Name = TextOrEmpty(rows.ValueOf(L"TransName" + resources::String(IDS_LANGUAGE)));
    row.TransObjectPic = TextOrEmpty(rows.ValueOf(L"TransObjectPic"));
    row.Translator = HasTranslator(rows.ValueOf(L"TransSource"));
    row.Checked = row.Translator && IsSet(rows.ValueOf(L"IsTrans"));
    const Value type = rows.ValueOf(L"TransType");
    row.TransType = automation::IsEmptyOrNull(type) ? 0 : LongOf(type);
    row.TransTypePic = TextOrEmpty(rows.ValueOf(L"TransTypePic"));
    return row;
}

void OpenTranslations(Recordset& rows)
{
    const data::Host host;
    const std::wstring sql =
        L"Select * From " + std::wstring(kParameterTable) + L" Where F_UID=" + host.UserIdLiteral();
    data::ThrowUnless(host.OpenRecordsetByString(rows, sql) >= 0, L"OpenRecordsetByString");
    if (rows.HasNoRows())
    {
        automation::CloseRecordset(rows);
        rows = CreateDefaultParameters();
    }
}

} // namespace

std::span<const Direction> Directions()
{
    return kDirections;
}

const Direction* FindDirection(long transType)
{
    return FirstDirection([=](const Direction& direction) { return direction.TransType == transType; });
}

const Direction* FindDirection(const std::wstring& transTypePic)
{
    return FirstDirection([&](const Direction& direction) { return transTypePic == direction.TransTypePic; });
}

bool HasTranslator(const Value& transSource)
{
    return !automation::IsEmptyOrNull(transSource) &&
           automation::UpperCased(automation::TextOf(transSource)) != L"NULL";
}

std::optional<std::vector<Translation>> LoadTranslations()
{
    using Result = std::optional<std::vector<Translation>>;
    Recordset rows;
    const automation::RecordsetCloser closer(rows);
    return state::Trapped(Result(), [&] {
        OpenTranslations(rows);
        if (!rows)
        {
            state::LogError();
            return Result();
        }
        std::vector<Translation> translations;
        for (; !rows.AtEnd(); rows.MoveNext())
        {
            translations.push_back(TranslationOf(rows));
        }
        return Result(std::move(translations));
    });
}

void SetChecked(Translation& row, bool checked)
{
    row.Checked = checked;
    row.Translator = row.Translator || checked;
}

void ApplyTo(state::SynParameter& record, const Translation& row)
{
    record.IsTrans = row.Checked;
    record.TransSource = row.Translator ? L"Outlook" : L"";
    record.TransType = row.TransType;
    record.TransTypePic = row.TransTypePic;
}

void TakeFrom(Translation& row, const state::SynParameter& record)
{
    row.Checked = record.IsTrans;
    row.Translator = !record.TransSource.empty();
    row.TransType = record.TransType;
    row.TransTypePic = record.TransTypePic;
}

std::wstring TranslationSetClause(const Translation& row)
{
    // The picture decides; a row whose picture is none of the three keeps the code that it was loaded with.
    const Direction* direction = FindDirection(row.TransTypePic);
    const long type = direction != nullptr ? direction->TransType : row.TransType;
    std::wstring clause = std::wstring(L"IsTrans=") + (row.Checked ? L"1" : L"0") + L",TransSource=" +
                          data::QuotedText(row.Translator ? L"Outlook" : L"Null");
    if (type != 0)
    {
        clause +=
            L",TransType=" + std::to_wstring(type) + L",TransTypePic=" + data::QuotedText(row.TransTypePic);
    }
    return clause;
}

} // namespace config
