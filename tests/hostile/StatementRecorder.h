// Stands before a host's data-access object and keeps what is written and asked through it, text for text, on
// the way to the host: what a statement means is judged by what it says, not by what one host makes of it.
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

// The object before dtc; it writes to statements, which outlive it.
automation::Object MakeStatementRecorder(const automation::Object& dtc, Statements& statements);

// What the inserts and updates that succeeded have written to a table: column to literal. Empty for nothing.
std::map<std::wstring, sandbox::Literal> ColumnsWritten(const Statements& statements,
                                                        const std::wstring& table);

} // namespace test_support
