#include "tests/hostile/StatementRecorder.h"

#include "automation/Argument.h"

#include <algorithm>
#include <iterator>

namespace test_support
{

namespace
{

using automation::ByRef;
using automation::Object;
using automation::TextOf;
using automation::Value;
using sandbox::Call;
using sandbox::DispatchObject;
using sandbox::Member;
using sandbox::MemberTable;
using sandbox::Reads;

class StatementRecorder : public DispatchObject
{
  public:
    StatementRecorder(Object dtc, Statements& statements) : mDtc(std::move(dtc)), mStatements(statements) {}

  private:
    Value Kept(const wchar_t* member, std::vector<std::wstring> arguments, const Value& result)
    {
        mStatements.push_back({member, std::move(arguments), automation::LongOf(result)});
        return result;
    }

    Value OpenRecordset(const Call& call)
    {
        Object rows;
        const std::wstring source = TextOf(call.At(1));
        const Value filter = call.At(3);
        const Value result = mDtc.Call(L"OpenRecordset", ByRef(rows), source, Value::Missing(), filter);
        call.Write(0, rows);
        return Kept(L"OpenRecordset", {source, automation::IsMissing(filter) ? L"" : TextOf(filter)}, result);
    }

    Value OpenRecordsetByString(const Call& call)
    {
        Object rows;
        const std::wstring sql = TextOf(call.At(1));
        const Value result = mDtc.Call(L"OpenRecordsetByString", ByRef(rows), sql);
        call.Write(0, rows);
        return Kept(L"OpenRecordsetByString", {sql}, result);
    }

    Value Insert(const Call& call)
    {
        const std::wstring table = TextOf(call.At(0));
        std::wstring fields = TextOf(call.At(1));
        std::wstring values = TextOf(call.At(2));
        std::wstring text = TextOf(call.At(3));
        const Value result = mDtc.Call(L"Insert", table, ByRef(fields), ByRef(values), ByRef(text));
        return Kept(L"Insert", {table, fields, values}, result);
    }

    Value Update(const Call& call)
    {
        const std::wstring table = TextOf(call.At(0));
        std::wstring setList = TextOf(call.At(1));
        const std::wstring condition = TextOf(call.At(3));
        const Value result = mDtc.Call(L"Update", table, ByRef(setList), L"", condition);
        return Kept(L"Update", {table, setList, condition}, result);
    }

    Value Delete(const Call& call)
    {
        const std::wstring table = TextOf(call.At(0));
        const std::wstring condition = TextOf(call.At(1));
        return Kept(L"Delete", {table, condition}, mDtc.Call(L"Delete", table, condition));
    }

    // The members that carry no text.
    static Member Forwarded(const wchar_t* name)
    {
        return {name,
                [name](DispatchObject& self, const Call&) {
                    return static_cast<StatementRecorder&>(self).mDtc.Get(name);
                },
                nullptr};
    }

    const wchar_t* ClassName() const override { return L"StatementRecorder"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{
            {L"OpenRecordset", Reads(&StatementRecorder::OpenRecordset), nullptr},
            {L"OpenRecordsetByString", Reads(&StatementRecorder::OpenRecordsetByString), nullptr},
            {L"Insert", Reads(&StatementRecorder::Insert), nullptr},
            {L"Update", Reads(&StatementRecorder::Update), nullptr},
            {L"Delete", Reads(&StatementRecorder::Delete), nullptr},
            Forwarded(L"NewGuid"),
            Forwarded(L"MyInfo"),
            Forwarded(L"SysDateTime"),
            Forwarded(L"BeginTrans"),
            Forwarded(L"CommitTrans"),
            Forwarded(L"RollbackTrans"),
            Forwarded(L"InTransaction"),
        };
        return table;
    }

    Object mDtc;
    Statements& mStatements;
};

} // namespace

automation::Object MakeStatementRecorder(const Object& dtc, Statements& statements)
{
    return sandbox::MakeObject<StatementRecorder>(dtc, statements);
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
