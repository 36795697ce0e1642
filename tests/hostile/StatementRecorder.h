// Keeps each statement and query that the component sends to a host, text for text: tests judge the
// statement, not how one host understands it.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"
#include "sandbox/host/Literals.h"

#include <map>
#include <string>
#include <vector>

namespace test_support
{

struct Statement
{
    std::wstring member;                 // "Insert", "Update", "Delete", "OpenRecordset", ...
    std::vector<std::wstring> arguments; // the texts among them; a missing one is the empty text
    long result;
};

using Statements = std::vector<Statement>;

// A wrapper around dtc; it writes to statements, which outlive it.
automation::Object RecordStatements(const automation::Object& dtc, Statements& statements);

// The columns that successful inserts and updates wrote to a table, each with its literal; empty for none.
std::map<std::wstring, sandbox::Literal> ColumnsWritten(const Statements& statements,
                                                        const std::wstring& table);

} // namespace test_support
