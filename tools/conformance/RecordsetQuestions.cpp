// ADO: a client's static cursor over three rows that need no table.
#include "automation/Text.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

namespace conformance
{

using automation::Object;
using automation::Value;

namespace
{

constexpr long kUseClient = 3;
constexpr long kStatic = 3;
constexpr long kReadOnly = 1;
constexpr long kCommandText = 1;
constexpr const wchar_t* kThreeRows = L"SELECT 1 AS Place, 'one' AS Word UNION ALL SELECT 2, 'two' "
                                      L"UNION ALL SELECT 3, NULL ORDER BY 1";
constexpr const wchar_t* kNoRows = L"SELECT 1 AS Place WHERE 1 = 0";

Object Closed()
{
    Object recordset = Object::Create(L"ADODB.Recordset");
    recordset.Put(L"CursorLocation", kUseClient);
    return recordset;
}

Object Opened(Scratch& scratch, const wchar_t* sql = kThreeRows)
{
    Object recordset = Closed();
    recordset.Call(L"Open", sql, scratch.Connection(), kStatic, kReadOnly, kCommandText);
    return recordset;
}

Value Cell(const Object& recordset, const wchar_t* column)
{
    return recordset.GetObject(L"Fields").GetObject(L"Item", column).Get(L"Value");
}

std::wstring After(Scratch& scratch, std::initializer_list<const wchar_t*> calls, const wchar_t* member)
{
    const Object recordset = Opened(scratch);
    return AnswerOf([&] {
        for (const wchar_t* call : calls)
        {
            recordset.Call(call);
        }
        return recordset.Get(member);
    });
}

// The place reached by moving to the bookmark of the second row.
std::wstring BackToBookmark(Scratch& scratch, bool byMove)
{
    const Object recordset = Opened(scratch);
    return AnswerOf([&] {
        recordset.Call(L"MoveNext");
        const Value bookmark = recordset.Get(L"Bookmark");
        recordset.Call(L"MoveLast");
        byMove ? static_cast<void>(recordset.Call(L"Move", 0L, bookmark))
               : recordset.Put(L"Bookmark", bookmark);
        return Cell(recordset, L"Place");
    });
}

std::wstring MovedFromPosition(Scratch& scratch)
{
    const Object recordset = Opened(scratch);
    return AnswerOf([&] {
        recordset.Call(L"Move", 0L, 2.0);
        return Cell(recordset, L"Place");
    });
}

constexpr const wchar_t* kBofEof = L"BOF, EOF properties (ADO)";

constexpr Question kRecordsetQuestions[] = {
    {L"ado.closed.state", [](Scratch&) { return AnswerOf([] { return Closed().Get(L"State"); }); },
     L"number 0", L"ObjectStateEnum (ADO)"},
    {L"ado.closed.close", [](Scratch&) { return AnswerOf([] { return Closed().Call(L"Close"); }); },
     L"error 0x800A0E78", L"ErrorValueEnum (ADO)"},
    {L"ado.open.state", [](Scratch& s) { return After(s, {}, L"State"); }, L"number 1",
     L"ObjectStateEnum (ADO)"},
    {L"ado.open.again",
     [](Scratch& s) {
         const Object recordset = Opened(s);
         return AnswerOf([&] {
             return recordset.Call(L"Open", kThreeRows, s.Connection(), kStatic, kReadOnly, kCommandText);
         });
     },
     L"error 0x800A0E79", L"ErrorValueEnum (ADO)"},
    {L"ado.count", [](Scratch& s) { return After(s, {}, L"RecordCount"); }, L"number 3",
     L"RecordCount property (ADO)"},
    {L"ado.empty",
     [](Scratch& s) {
         const Object recordset = Opened(s, kNoRows);
         return Joined({AnswerOf([&] { return recordset.Get(L"BOF"); }),
                        AnswerOf([&] { return recordset.Get(L"EOF"); })});
     },
     L"true; true", kBofEof},
    {L"ado.position.first", [](Scratch& s) { return After(s, {}, L"AbsolutePosition"); }, L"number 1",
     L"AbsolutePosition property (ADO)"},
    {L"ado.position.end",
     [](Scratch& s) {
         return After(s, {L"MoveLast", L"MoveNext"}, L"AbsolutePosition");
     },
     L"number -3", L"PositionEnum (ADO)"},
    {L"ado.move.past-end",
     [](Scratch& s) {
         return After(s, {L"MoveLast", L"MoveNext", L"MoveNext"}, L"EOF");
     },
     L"error 0x800A0BCD", L"MoveFirst, MoveLast, MoveNext, and MovePrevious methods (ADO)"},
    {L"ado.move.before-start", [](Scratch& s) { return After(s, {L"MovePrevious"}, L"BOF"); }, L"true",
     kBofEof},
    {L"ado.bookmark.type", [](Scratch& s) { return After(s, {}, L"Bookmark"); }},
    {L"ado.bookmark.put", [](Scratch& s) { return BackToBookmark(s, false); }, L"number 2",
     L"Bookmark property (ADO)"},
    {L"ado.bookmark.move", [](Scratch& s) { return BackToBookmark(s, true); }, L"number 2",
     L"Move method (ADO)"},
    {L"ado.bookmark.position-as-double", MovedFromPosition},
    {L"ado.field.any-case", [](Scratch& s) { return AnswerOf([&] { return Cell(Opened(s), L"WORD"); }); }},
    {L"ado.field.unknown", [](Scratch& s) { return AnswerOf([&] { return Cell(Opened(s), L"Nowhere"); }); },
     L"error 0x800A0CC1", L"ErrorValueEnum (ADO)"},
    {L"ado.field.null",
     [](Scratch& s) {
         const Object recordset = Opened(s);
         recordset.Call(L"MoveLast");
         return AnswerOf([&] { return Cell(recordset, L"Word"); });
     }},
    {L"ado.field.at-end",
     [](Scratch& s) {
         const Object recordset = Opened(s);
         recordset.Call(L"MoveLast");
         recordset.Call(L"MoveNext");
         return AnswerOf([&] { return Cell(recordset, L"Word"); });
     },
     L"error 0x800A0BCD", L"ErrorValueEnum (ADO)"},
};

} // namespace

std::span<const Question> RecordsetQuestions()
{
    return kRecordsetQuestions;
}

} // namespace conformance
