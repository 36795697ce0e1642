#include "preview/FieldListView.h"

#include "automation/Error.h"
#include "preview/ListColumns.h"
#include "preview/Texts.h"
#include "resources/Strings.h"

#include <algorithm>
#include <utility>

namespace preview
{

namespace
{

using resources::Choose;

// Of the list's width, in percent; the last column takes the rest.
constexpr int kFieldWidths[] = {26, 37, 0};

// The marks of a field that changes and of one that does not.
constexpr wchar_t kChangedMark[] = L"\x25CF ";
constexpr wchar_t kUnchangedMark[] = L"\x2003";

} // namespace

FieldListView::FieldListView(const ui::Dialog& dialog, int id, ChangeList& list, ui::TextBox& notes)
    : VirtualListView(dialog, id), mList(list), txtNotes(notes)
{
}

void FieldListView::SetUp()
{
    Prepare();
    SetText(Choose(L"字段", L"Fields")); // for screen readers: the list's name
    const wchar_t* const headers[] = {Choose(L"字段", L"Field"), Choose(L"现在", L"Now"),
                                      Choose(L"之后", L"After")};
    static_assert(std::size(headers) == std::size(kFieldWidths));
    for (size_t i = 0; i < std::size(headers); ++i)
    {
        AddColumn(headers[i], PartOfWidth(*this, kFieldWidths[i]));
    }
    FillWidth();
}

void FieldListView::FillWidth()
{
    FillLastColumn(*this, static_cast<int>(std::size(kFieldWidths)));
}

void FieldListView::ShowFieldsOf(std::optional<size_t> entry)
{
    if (mShown == entry && entry)
    {
        return;
    }
    mShown = entry;
    // Outlook's answers let the window paint meanwhile, which shows the fields of the row before.
    Fields fields;
    const std::wstring notes = entry ? ReadFields(*entry, fields) : std::wstring();
    mFields = std::move(fields);
    Show(static_cast<int>(mFields.size()), [this](int line, int column) {
        const auto place = static_cast<size_t>(line);
        return place < mFields.size() ? mFields[place].at(static_cast<size_t>(column)) : std::wstring();
    });
    InvalidateRect(Handle(), nullptr, TRUE);
    txtNotes.SetText(notes);
    txtNotes.Show(!notes.empty());
}

// The fields that change come first. The notes on the record.
std::wstring FieldListView::ReadFields(size_t entry, Fields& fields)
{
    try
    {
        exchange::RecordPreview preview = mList.FieldsOf(entry);
        std::stable_partition(preview.Fields.begin(), preview.Fields.end(),
                              [](const exchange::Difference& field) { return field.IsChanged(); });
        for (const exchange::Difference& field : preview.Fields)
        {
            AddField(fields, field, mList.At(entry).IsInBoth());
        }
        return NotesOf(preview);
    }
    catch (const automation::Error& error)
    {
        return Choose(L"无法读取该记录：", L"The record cannot be read: ") + error.Description();
    }
}

void FieldListView::AddField(Fields& fields, const exchange::Difference& field, bool namesSide)
{
    const std::wstring now = OnOneLine(TextOfValue(field, field.Now));
    const std::wstring after = OnOneLine(TextAfter(field));
    if (now.empty() && after.empty())
    {
        return;
    }
    const wchar_t* const side = field.Where == exchange::Side::Outlook
                                    ? Choose(L"Outlook：", L"Outlook: ")
                                    : Choose(L"本系统：", L"Sales system: ");
    fields.push_back({(field.IsChanged() ? kChangedMark : kUnchangedMark) +
                          std::wstring(namesSide ? side : L"") + CaptionOf(field),
                      now, after});
}

} // namespace preview
