// A host in a file of its own and a late-bound client of its data-access object, for tests.
#pragma once

#include "automation/Recordset.h"
#include "sandbox/host/Host.h"
#include "sandbox/host/Rejection.h"

#include <gtest/gtest.h>

#include <vector>

namespace test_support
{

using automation::ByRef;
using automation::LongOf;
using automation::Object;
using automation::Recordset;
using automation::TextOf;
using automation::Value;

// A refusal as its caller sees it.
inline constexpr long Refused(sandbox::Refusal refusal)
{
    return static_cast<long>(refusal);
}

class HostFixture : public testing::Test
{
  protected:
    sandbox::Host mHost;

    long Insert(const std::wstring& table, std::wstring fields, std::wstring values)
    {
        std::wstring text;
        return LongOf(mHost.Dtc().Call(L"Insert", table, ByRef(fields), ByRef(values), ByRef(text)));
    }
    long Update(const std::wstring& table, std::wstring setList, const std::wstring& condition)
    {
        return LongOf(mHost.Dtc().Call(L"Update", table, ByRef(setList), L"", condition));
    }
    long Delete(const std::wstring& table, const std::wstring& condition)
    {
        return LongOf(mHost.Dtc().Call(L"Delete", table, condition));
    }

    long Open(Recordset& rows, const std::wstring& source, const std::wstring& filter = {})
    {
        Object filled;
        const Value status = filter.empty() ? mHost.Dtc().Call(L"OpenRecordset", ByRef(filled), source)
                                            : mHost.Dtc().Call(L"OpenRecordset", ByRef(filled), source,
                                                               Value::Missing(), filter);
        rows = Recordset(filled);
        return LongOf(status);
    }
    long OpenByString(Recordset& rows, const std::wstring& sql)
    {
        Object filled;
        const Value status = mHost.Dtc().Call(L"OpenRecordsetByString", ByRef(filled), sql);
        rows = Recordset(filled);
        return LongOf(status);
    }

    // One column of a source's rows; Null is "NULL".
    std::vector<std::wstring> ColumnOf(const std::wstring& source, const std::wstring& column,
                                       const std::wstring& filter = {})
    {
        Recordset rows;
        EXPECT_EQ(0, Open(rows, source, filter)) << Reason();
        std::vector<std::wstring> texts;
        for (; rows && !rows.AtEnd(); rows.MoveNext())
        {
            const Value value = rows.ValueOf(column);
            texts.push_back(automation::IsEmptyOrNull(value) ? L"NULL" : TextOf(value));
        }
        return texts;
    }

    // What the database file holds, as text whatever the column's type.
    std::wstring Stored(const std::wstring& table, const std::wstring& column)
    {
        return automation::TextOrEmpty(
            mHost.Database().QueryValue(L"SELECT CAST(" + column + L" AS TEXT) FROM " + table));
    }
    long Count(const std::wstring& table)
    {
        return LongOf(mHost.Database().QueryValue(L"SELECT count(*) FROM " + table));
    }
    std::string Reason() { return testing::PrintToString(mHost.LastRejection()); }
};

} // namespace test_support
