#include "data/ContractForms.h"

#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/HostRow.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "state/Failures.h"

namespace data
{

using automation::Value;

namespace
{

constexpr long kSuccess = 0;
constexpr long kFailure = -1;

template<typename Body>
long StatusOf(Body&& body)
{
    return state::Failed(body) ? kFailure : kSuccess;
}

bool IsTruth(const std::wstring& key)
{
    const std::wstring word = automation::UpperCased(key);
    return word == L"TRUE" || word == L"FALSE";
}

std::wstring TypedLiteral(const std::wstring& key, const std::wstring& keyType)
{
    const bool isQuoted = keyType == kTextKey || keyType == kDateKey;
    const bool isWord = keyType == kFlagKey && IsTruth(key);
    return isQuoted ? QuotedText(key) : isWord ? key : NumberOrQuotedText(key);
}

} // namespace

long FormatFieldlValue(FieldCatalogue& catalogue, const std::wstring& column, Value& value)
{
    return StatusOf([&] {
        if (auto formatted = Formatted(catalogue, column, value))
        {
            value = std::move(*formatted);
        }
    });
}

long AddInsertField(FieldCatalogue& catalogue, std::wstring& fields, const std::wstring& column,
                    std::wstring& values, const Value& value)
{
    return StatusOf([&] {
        InsertRow row(catalogue, fields, values);
        row.Add(column, value);
        fields = row.Fields();
        values = row.Values();
    });
}

long AddUpdateField(FieldCatalogue& catalogue, std::wstring& setList, const std::wstring& column,
                    const Value& value)
{
    return StatusOf([&] {
        UpdateRow row(catalogue, setList);
        row.Add(column, value);
        setList = row.SetList();
    });
}

long LookupValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                 const std::wstring& resultColumn, Value& result)
{
    return StatusOf([&] { result = FindValue(table, keyColumn, key, resultColumn); });
}

long LookupTypedValue(const std::wstring& table, const std::wstring& keyColumn, const std::wstring& key,
                      const std::wstring& keyType, const std::wstring& resultColumn, Value& result)
{
    return StatusOf([&] {
        result = FindByCondition(table, keyColumn + L"=" + TypedLiteral(key, keyType), resultColumn);
    });
}

} // namespace data
