#include "report/ReportTexts.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "resources/Strings.h"

#include <array>
#include <cstdio>
#include <initializer_list>
#include <iterator>

namespace report
{

using automation::Replaced;
using exchange::Change;
using exchange::ReportRow;
using resources::String;
using state::Cause;

namespace
{

constexpr wchar_t kLineEnd[] = L"\r\n";

constexpr UINT kHeaders[] = {
    IDS_REPORT_COLUMN_CHANGE, IDS_REPORT_COLUMN_RECORD, IDS_REPORT_COLUMN_REASON, IDS_REPORT_COLUMN_FIELD,
    IDS_REPORT_COLUMN_LENGTH, IDS_REPORT_COLUMN_WORDS,  IDS_REPORT_COLUMN_CODE,
};
static_assert(std::size(kHeaders) == kColumnCount);

// By exchange::Change.
constexpr UINT kChanges[] = {IDS_REPORT_TO_OUTLOOK_NEW, IDS_REPORT_TO_OUTLOOK_CHANGED, IDS_REPORT_TO_HOST_NEW,
                             IDS_REPORT_TO_HOST_CHANGED};
static_assert(std::size(kChanges) == exchange::kAllChanges.size());

// By state::Cause.
constexpr UINT kReasons[] = {
    IDS_REPORT_FAILED,         IDS_REPORT_GONE,          IDS_REPORT_EMPTY_FIELD,  IDS_REPORT_NO_DATE,
    IDS_REPORT_ENDS_TOO_EARLY, IDS_REPORT_LINK_REFUSED,  IDS_REPORT_READ_REFUSED, IDS_REPORT_UNKNOWN_VALUE,
    IDS_REPORT_TEXT_CUT,       IDS_REPORT_RIGHT_MISSING, IDS_REPORT_NO_HOST_ROWS, IDS_REPORT_NO_FOLDER,
};
static_assert(std::size(kReasons) == static_cast<size_t>(Cause::NoFolder) + 1);

std::wstring Filled(UINT textId, std::initializer_list<std::wstring> parts)
{
    std::wstring text = String(textId);
    size_t number = 0;
    for (const std::wstring& part : parts)
    {
        text = Replaced(std::move(text), L"{" + std::to_wstring(number++) + L"}", part);
    }
    return text;
}

std::wstring NameOf(Change change)
{
    return String(kChanges[static_cast<size_t>(change)]);
}

std::wstring ReasonOf(const ReportRow& row)
{
    switch (row.Remark.Why)
    {
    case Cause::Failed: return String(row.Of ? IDS_REPORT_FAILED : IDS_REPORT_RUN_FAILED);
    case Cause::TextCut:
        return Filled(IDS_REPORT_TEXT_CUT,
                      {std::to_wstring(row.Remark.Kept), std::to_wstring(row.Remark.Length)});
    case Cause::RightMissing: return Filled(IDS_REPORT_RIGHT_MISSING, {std::to_wstring(row.Times)});
    default: return String(kReasons[static_cast<size_t>(row.Remark.Why)]);
    }
}

std::wstring CodeText(HRESULT code)
{
    std::array<wchar_t, 16> text = {};
    std::swprintf(text.data(), text.size(), L"0x%08lX", static_cast<unsigned long>(code));
    return text.data();
}

std::wstring MomentText(const SYSTEMTIME& moment)
{
    std::array<wchar_t, 32> text = {};
    std::swprintf(text.data(), text.size(), L"%04u-%02u-%02u %02u:%02u:%02u", moment.wYear, moment.wMonth,
                  moment.wDay, moment.wHour, moment.wMinute, moment.wSecond);
    return text.data();
}

// Whether the words are the component's own or the system's, and so hold no value.
bool AreOwnWords(const state::Remark& remark)
{
    return remark.Why == Cause::RightMissing || remark.Words == automation::SystemText(remark.Code);
}

bool IsLeftOut(const ReportRow& row, Column column, Values values)
{
    return values == Values::LeftOut &&
           (column == kRecordColumn || (column == kWordsColumn && !AreOwnWords(row.Remark)));
}

template<typename CellText>
std::wstring Line(CellText&& textOf)
{
    std::wstring line;
    for (int column = 0; column < kColumnCount; ++column)
    {
        line += column == 0 ? L"" : L"\t";
        line += InOneLine(textOf(static_cast<Column>(column)));
    }
    return line + kLineEnd;
}

} // namespace

std::wstring InOneLine(std::wstring text)
{
    for (wchar_t& character : text)
    {
        character = character < L' ' ? L' ' : character;
    }
    return text;
}

std::wstring HeaderOf(Column column)
{
    return String(kHeaders[column]);
}

std::wstring CellOf(const ReportRow& row, Column column)
{
    const state::Remark& remark = row.Remark;
    switch (column)
    {
    case kChangeColumn: return row.Of ? NameOf(*row.Of) : String(IDS_REPORT_WHOLE_RUN);
    case kRecordColumn: return row.Name;
    case kReasonColumn: return ReasonOf(row);
    case kFieldColumn: return remark.Field;
    case kLengthColumn:
        return remark.Length == state::Remark::kNoLength ? L"" : std::to_wstring(remark.Length);
    case kWordsColumn: return remark.Words;
    case kCodeColumn: return remark.Code == S_OK ? L"" : CodeText(remark.Code);
    default: return {};
    }
}

std::wstring DetailsOf(const ReportRow& row)
{
    std::wstring details;
    for (int column = 0; column < kColumnCount; ++column)
    {
        const std::wstring text = CellOf(row, static_cast<Column>(column));
        if (!text.empty())
        {
            details += (details.empty() ? L"" : kLineEnd) + HeaderOf(static_cast<Column>(column)) +
                       resources::Choose(L"：", L": ") + text;
        }
    }
    return details;
}

std::vector<std::wstring> SummaryOf(const FinishedRun& run)
{
    std::vector<std::wstring> lines = {run.Category + L", " + MomentText(run.EndedAt), run.Outcome};
    for (const Change change : exchange::kAllChanges)
    {
        const exchange::ChangeCount& count = run.Report.CountOf(change);
        if (count.Written > 0 || count.NotWritten > 0)
        {
            lines.push_back(Filled(IDS_REPORT_COUNTS, {NameOf(change), std::to_wstring(count.Written),
                                                       std::to_wstring(count.NotWritten)}));
        }
    }
    const auto addCount = [&](UINT textId, long count) {
        if (count > 0)
        {
            lines.push_back(Filled(textId, {std::to_wstring(count)}));
        }
    };
    addCount(IDS_REPORT_NOT_REACHED, run.Report.NotReached());
    addCount(IDS_REPORT_VANISHED, run.Report.Vanished());
    addCount(IDS_REPORT_OTHER_ITEMS, run.Report.OtherItems());
    return lines;
}

std::wstring TextOf(const FinishedRun& run, Values values)
{
    std::wstring text;
    for (const std::wstring& line : SummaryOf(run))
    {
        text += line + kLineEnd;
    }
    text += kLineEnd;
    if (!run.Report.Rows().empty())
    {
        text += Line([](Column column) { return HeaderOf(column); });
    }
    for (const ReportRow& row : run.Report.Rows())
    {
        text += Line([&](Column column) {
            return IsLeftOut(row, column, values) ? std::wstring() : CellOf(row, column);
        });
    }
    return text;
}

} // namespace report
