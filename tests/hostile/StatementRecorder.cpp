#include "tests/hostile/StatementRecorder.h"

#include "tests/support/Interceptor.h"

#include <algorithm>
#include <iterator>

namespace test_support
{

namespace
{

using automation::TextOf;
using sandbox::Call;

// The places of the texts among a member's arguments.
const std::map<std::wstring, std::vector<size_t>> kTexts = {
    {L"OpenRecordset", {1, 3}}, {L"OpenRecordsetByString", {1}},
    {L"Insert", {0, 1, 2}},     {L"Update", {0, 1, 3}},
    {L"Delete", {0, 1}},
};

class StatementRecorder : public Interceptor
{
  public:
    explicit StatementRecorder(Statements& statements) : mStatements(statements) {}

    void After(const InterceptedCall& call) override
    {
        const auto texts = kTexts.find(call.member);
        if (texts == kTexts.end())
        {
            return;
        }
        const Call arguments(call.arguments, DISPATCH_METHOD);
        Statement statement{call.member, {}, automation::LongOf(automation::Value(call.result))};
        for (const size_t place : texts->second)
        {
            const automation::Value text = arguments.At(place);
            statement.arguments.push_back(automation::IsMissing(text) ? L"" : TextOf(text));
        }
        mStatements.push_back(std::move(statement));
    }

  private:
    Statements& mStatements;
};

} // namespace

automation::Object RecordStatements(const automation::Object& dtc, Statements& statements)
{
    return Intercept(dtc, std::make_shared<StatementRecorder>(statements));
}

std::map<std::wstring, sandbox::Literal> ColumnsWritten(const Statements& statements,
                                                        const std::wstring& table)
{
    std::map<std::wstring, sandbox::Literal> written;
    for (const Statement& statement : statements)
    {
        if (statement.arguments[0] != table)
        {
            continue;
        }
        if (statement.member == L"Insert" && statement.result >= 0)
        {
            const auto columns = sandbox::ParseColumns(statement.arguments[1]);
            const auto literals = sandbox::ParseLiterals(statement.arguments[2]);
            std::ranges::transform(columns, literals, std::inserter(written, written.end()),
                                   [](const auto& name, const auto& one) { return std::pair(name, one); });
        }
        else if (statement.member == L"Update" && statement.result == 0)
        {
            for (const sandbox::Assignment& one : sandbox::ParseAssignments(statement.arguments[1]))
            {
                written.emplace(one.column, one.literal);
            }
        }
    }
    return written;
}

} // namespace test_support
