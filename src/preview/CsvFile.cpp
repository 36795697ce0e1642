#include "preview/CsvFile.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "preview/Texts.h"
#include "resources/Strings.h"

#include <initializer_list>

namespace preview
{

using exchange::Difference;
using exchange::RecordPreview;
using exchange::Side;
using resources::Choose;

namespace
{

constexpr wchar_t kUnfinished[] = L".part";

std::wstring Line(std::initializer_list<std::wstring> cells)
{
    std::wstring line;
    for (const std::wstring& cell : cells)
    {
        line += (line.empty() ? L"" : L",") + CsvCell(cell);
    }
    return line + L"\r\n";
}

std::wstring Headers()
{
    return Line({Choose(L"写入", L"Written"), Choose(L"更改", L"Change"),
                 Choose(L"名称或主题", L"Name or subject"), Choose(L"单位或类别", L"Company or category"),
                 Choose(L"日期", L"Date"), Choose(L"位置", L"In"), Choose(L"字段", L"Field"),
                 Choose(L"现在", L"Now"), Choose(L"之后", L"After"), Choose(L"有更改", L"Changed"),
                 Choose(L"说明", L"Remark")});
}

std::wstring YesOrNo(bool yes)
{
    return yes ? Choose(L"是", L"Yes") : Choose(L"否", L"No");
}

[[noreturn]] void Fail(const std::wstring& path)
{
    throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), path);
}

RecordPreview Fields(ChangeList& list, size_t entry)
{
    try
    {
        return list.FieldsOf(entry);
    }
    catch (const automation::Error& error)
    {
        RecordPreview unreadable;
        unreadable.Remarks.push_back({.Why = state::Cause::Failed, .Words = error.Description()});
        return unreadable;
    }
}

} // namespace

std::wstring CsvCell(const std::wstring& text)
{
    const bool isFormula =
        !text.empty() && std::wstring_view(L"=+-@\t\r").find(text.front()) != std::wstring::npos;
    return L'"' + std::wstring(isFormula ? L"'" : L"") + automation::Replaced(text, L"\"", L"\"\"") + L'"';
}

CsvFile::CsvFile(std::wstring path)
    : mPath(std::move(path)),
      mFile(CreateFileW((mPath + kUnfinished).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                        FILE_ATTRIBUTE_NORMAL, nullptr))
{
    if (mFile == INVALID_HANDLE_VALUE)
    {
        Fail(mPath);
    }
    Write(L"\xFEFF" + Headers());
}

CsvFile::~CsvFile()
{
    if (mFile != INVALID_HANDLE_VALUE)
    {
        CloseHandle(mFile);
        DeleteFileW((mPath + kUnfinished).c_str());
    }
}

void CsvFile::Write(const std::wstring& line)
{
    const std::string bytes = automation::ToUtf8(line);
    DWORD written = 0;
    if (!WriteFile(mFile, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        written != bytes.size())
    {
        Fail(mPath);
    }
}

void CsvFile::Add(ChangeList& list, size_t entry)
{
    for (const Column column : kColumns)
    {
        list.Read(entry, column);
    }
    const RecordPreview preview = Fields(list, entry);
    const std::wstring notes = OnOneLine(automation::Replaced(NotesOf(preview), L"\r\n", L"; "));
    const auto add = [&](const std::wstring& side, const std::wstring& field, const std::wstring& now,
                         const std::wstring& after, const std::wstring& changed) {
        Write(Line({YesOrNo(list.IsChecked(entry)), list.TextOf(entry, Column::Change),
                    list.TextOf(entry, Column::Name), list.TextOf(entry, Column::Group),
                    list.TextOf(entry, Column::Date), side, field, now, after, changed, notes}));
    };
    for (const Difference& field : preview.Fields)
    {
        add(field.Where == Side::Outlook ? L"Outlook" : Choose(L"本系统", L"Sales system"), CaptionOf(field),
            TextOfValue(field, field.Now, Dates::Iso), TextAfter(field, Dates::Iso),
            YesOrNo(field.IsChanged()));
    }
    if (preview.Fields.empty())
    {
        add({}, {}, {}, {}, {});
    }
}

void CsvFile::Finish()
{
    CloseHandle(mFile);
    mFile = INVALID_HANDLE_VALUE;
    if (!MoveFileExW((mPath + kUnfinished).c_str(), mPath.c_str(), MOVEFILE_REPLACE_EXISTING))
    {
        const DWORD error = GetLastError();
        DeleteFileW((mPath + kUnfinished).c_str());
        SetLastError(error);
        Fail(mPath);
    }
}

} // namespace preview
