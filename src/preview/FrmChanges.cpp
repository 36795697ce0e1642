#include "preview/FrmChanges.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "exchange/KindName.h"
#include "preview/Texts.h"
#include "preview/WindowSettings.h"
#include "preview/Work.h"
#include "resources/Strings.h"
#include "ui/CheckedListView.h"
#include "ui/Choices.h"
#include "ui/Dialog.h"
#include "ui/Handover.h"
#include "ui/ProgressBar.h"
#include "ui/ShowMessageBox.h"

#include <algorithm>
#include <array>

namespace preview
{

namespace
{

using resources::Choose;
using ui::Anchor;

constexpr ui::AnchoredControl kAnchors[] = {
    {IDC_CHANGES_LIST_LABEL, Anchor::Widens},  {IDC_CHANGES_LIST, Anchor::Fills},
    {IDC_CHANGES_COUNT, Anchor::WidensBelow},  {IDC_CHANGES_PROGRESS, Anchor::Follows},
    {IDC_CHANGES_STOP, Anchor::Follows},       {IDC_CHANGES_FIELDS_LABEL, Anchor::WidensBelow},
    {IDC_CHANGES_FIELDS, Anchor::WidensBelow}, {IDC_CHANGES_NOTES, Anchor::WidensBelow},
    {IDC_CHANGES_CHECK, Anchor::MovesDown},    {IDC_CHANGES_UNCHECK, Anchor::MovesDown},
    {IDC_CHANGES_SAVE, Anchor::MovesDown},     {IDCANCEL, Anchor::Follows},
};

// Of the list's width, in percent; the last column takes the rest.
constexpr int kWidths[] = {27, 32, 24, 0};
constexpr int kFieldWidths[] = {26, 37, 0};

constexpr UINT_PTR kNow = 1;       // work that waits until the window has been painted
constexpr UINT_PTR kSearch = 2;    // the user has stopped typing
constexpr UINT kTypingPause = 300; // milliseconds

constexpr int kFieldsShare = 40; // percent of the height that the user adds

// The marks of a field that changes and of one that does not.
constexpr wchar_t kChangedMark[] = L"\x25CF ";
constexpr wchar_t kUnchangedMark[] = L"\x2003";

class FrmChanges : public ui::Dialog
{
  public:
    FrmChanges(ChangeList& list, std::wstring categoryText)
        : Dialog(IDD_CHANGES),
          mList(list),
          mCategoryText(std::move(categoryText)),
          mSettings(LoadWindowSettings().At(ScreenDpi()))
    {
    }

  private:
    using Fields = std::vector<std::array<std::wstring, 3>>; // field, now, after

    void OnInit() override
    {
        WriteCaptions();
        FillChoices();
        PrepareLists();
        RECT client = {};
        GetClientRect(Handle(), &client);
        mFirstHeight = client.bottom;
        mWanted = {.SortedBy = mSettings.SortedBy, .IsDescending = mSettings.IsDescending};
        ShowWanted();
        ShowEntries();
        Begin(mWanted);
        SetTimer(Handle(), kNow, USER_TIMER_MINIMUM, nullptr);
    }

    void WriteCaptions()
    {
        SetCaption(Choose(L"更改 - ", L"Changes - ") + mCategoryText);
        lblSearch.SetText(Choose(L"查找(&F)：", L"&Find:"));
        lblColumn.SetText(Choose(L"于(&I)：", L"&in:"));
        lblOrder.SetText(Choose(L"排序(&O)：", L"S&ort:"));
        lblChanges.SetText(
            Choose(L"更改列表(&L)。没有勾选的记录本次不写入：",
                   L"&List of changes. Records without a check mark are left out of this run:"));
        lblFields.SetText(Choose(L"所选记录的字段(&D)：", L"Fiel&ds of the selected record:"));
        cmdStop.SetText(Choose(L"停止(&T)", L"S&top"));
        cmdCheckAll.SetText(Choose(L"全选(&A)", L"Check &all"));
        cmdUncheckAll.SetText(Choose(L"全不选(&U)", L"&Uncheck all"));
        cmdSave.SetText(Choose(L"保存列表(&S)...", L"&Save list..."));
        cmdClose.SetText(Choose(L"关闭(&C)", L"&Close"));
        // For screen readers: what a list is for.
        lvChanges.SetText(Choose(L"更改", L"Changes"));
        lvFields.SetText(Choose(L"字段", L"Fields"));
    }

    std::wstring HeaderOf(Column column) const
    {
        const bool isContact = mList.Kind().Name.TransObjectID == exchange::kContactName.TransObjectID;
        switch (column)
        {
        case Column::Change: return Choose(L"更改", L"Change");
        case Column::Name: return isContact ? Choose(L"姓名", L"Name") : Choose(L"主题", L"Subject");
        case Column::Group: return isContact ? Choose(L"单位", L"Company") : Choose(L"类别", L"Category");
        default: return isContact ? Choose(L"生日", L"Birthday") : Choose(L"开始", L"Start");
        }
    }

    void FillChoices()
    {
        cmbColumn.Add(Choose(L"所有列", L"any column"));
        cmbOrder.Add(Choose(L"原来的顺序", L"As proposed"));
        for (const Column column : kColumns)
        {
            cmbColumn.Add(HeaderOf(column));
            cmbOrder.Add(HeaderOf(column) + Choose(L"（升序）", L", ascending"));
            cmbOrder.Add(HeaderOf(column) + Choose(L"（降序）", L", descending"));
        }
    }

    void PrepareLists()
    {
        lvChanges.Prepare();
        lvChanges.UseCheckBoxes([this](int row) { return mList.IsChecked(EntryAt(row)); },
                                [this](int row) { Toggle(row); });
        const bool areKnown = mSettings.Widths.size() == kColumns.size();
        for (size_t i = 0; i < kColumns.size(); ++i)
        {
            lvChanges.AddColumn(HeaderOf(kColumns.at(i)),
                                areKnown ? mSettings.Widths[i] : PartOf(lvChanges, kWidths[i]));
        }
        lvFields.Prepare();
        const wchar_t* const headers[] = {Choose(L"字段", L"Field"), Choose(L"现在", L"Now"),
                                          Choose(L"之后", L"After")};
        for (size_t i = 0; i < std::size(headers); ++i)
        {
            lvFields.AddColumn(headers[i], PartOf(lvFields, kFieldWidths[i]));
        }
        FillLastColumns();
    }

    // The last column takes the rest, without the scroll bar.
    void FillLastColumns()
    {
        FillLastColumn(lvChanges, static_cast<int>(kColumns.size()));
        FillLastColumn(lvFields, static_cast<int>(std::size(kFieldWidths)));
    }

    static void FillLastColumn(ui::VirtualListView& list, int columns)
    {
        const RECT place = list.Place();
        int rest =
            place.right - place.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
        for (int column = 0; column < columns - 1; ++column)
        {
            rest -= list.ColumnWidth(column);
        }
        list.SetColumnWidth(columns - 1, std::max(rest, list.ColumnWidth(columns - 1)));
    }

    static int PartOf(const ui::Control& list, int percent)
    {
        const RECT place = list.Place();
        return (place.right - place.left) * percent / 100;
    }

    // --- The entries.

    size_t EntryAt(int row) const
    {
        const auto place = static_cast<size_t>(row);
        return place < mList.Shown().size() ? mList.Shown()[place] : 0;
    }

    void ShowEntries()
    {
        lvChanges.Show(static_cast<int>(mList.Shown().size()), [this](int row, int column) {
            const Column of = kColumns.at(static_cast<size_t>(column));
            if (!mList.IsRead(EntryAt(row), of))
            {
                Later(); // an answer must not call Outlook
            }
            return mList.TextOf(EntryAt(row), of);
        });
        lvChanges.SelectFirst();
        mShownFields.reset();
        ShowCount();
        Later();
    }

    void ShowCount()
    {
        lblCount.SetText(Filled(Choose(L"显示 {0} 条，共 {1} 条；将写入 {2} 条。",
                                       L"{0} of {1} changes shown, {2} will be written."),
                                {mList.Shown().size(), mList.Count(), mList.CheckedCount()}));
    }

    static std::wstring Filled(std::wstring text, std::initializer_list<size_t> numbers)
    {
        size_t place = 0;
        for (const size_t number : numbers)
        {
            text = automation::Replaced(std::move(text), L"{" + std::to_wstring(place++) + L"}",
                                        std::to_wstring(number));
        }
        return text;
    }

    // A row of the selection takes the others along.
    void Toggle(int row)
    {
        const bool checked = !mList.IsChecked(EntryAt(row));
        std::vector<int> rows = lvChanges.SelectedRows();
        if (std::ranges::find(rows, row) == rows.end())
        {
            rows = {row};
        }
        for (const int each : rows)
        {
            mList.Check(EntryAt(each), checked);
        }
        ShowChecks();
    }

    void CheckShown(bool checked)
    {
        for (const size_t entry : mList.Shown())
        {
            mList.Check(entry, checked);
        }
        ShowChecks();
    }

    void ShowChecks()
    {
        const auto [first, last] = lvChanges.RowsInSight();
        lvChanges.Redraw(first, last);
        ShowCount();
    }

    // --- Work that calls the host and Outlook: outside of painting, and never two at a time.

    void Later() { SetTimer(Handle(), kNow, USER_TIMER_MINIMUM, nullptr); }

    void OnTimer(UINT_PTR id) override
    {
        KillTimer(Handle(), id);
        if (mIsWorking)
        {
            Later();
            return;
        }
        mIsWorking = true;
        if (id == kSearch)
        {
            Wish();
        }
        ReadRowsInSight();
        ShowFields();
        GoOn();
        mIsWorking = false;
    }

    void ReadRowsInSight()
    {
        const auto [first, last] = lvChanges.RowsInSight();
        bool hasRead = false;
        for (int row = first; row <= last; ++row)
        {
            for (const Column column : kColumns)
            {
                hasRead = hasRead || !mList.IsRead(EntryAt(row), column);
                mList.Read(EntryAt(row), column);
            }
        }
        if (hasRead)
        {
            lvChanges.Redraw(first, last);
        }
    }

    void ShowFields()
    {
        const auto row = lvChanges.Focused();
        const auto entry = row ? std::optional(EntryAt(*row)) : std::nullopt;
        if (mShownFields == entry && entry)
        {
            return;
        }
        mShownFields = entry;
        // Outlook's answers let the window paint meanwhile, which shows the fields of the row before.
        Fields fields;
        const std::wstring notes = entry ? ReadFields(*entry, fields) : std::wstring();
        mFields = std::move(fields);
        lvFields.Show(static_cast<int>(mFields.size()), [this](int line, int column) {
            const auto place = static_cast<size_t>(line);
            return place < mFields.size() ? mFields[place].at(static_cast<size_t>(column)) : std::wstring();
        });
        InvalidateRect(lvFields.Handle(), nullptr, TRUE);
        txtNotes.SetText(notes);
        txtNotes.Show(!notes.empty());
    }

    // The fields that change come first. The notes on the record.
    std::wstring ReadFields(size_t entry, Fields& fields)
    {
        try
        {
            exchange::RecordPreview preview = mList.FieldsOf(entry);
            std::ranges::stable_partition(preview.Fields, &exchange::Difference::IsChanged);
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

    static void AddField(Fields& fields, const exchange::Difference& field, bool namesSide)
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

    // --- Order and search.

    void Wish()
    {
        Arrangement wanted = mWanted;
        wanted.Search = automation::Trimmed(txtSearch.Text());
        const int column = cmbColumn.Selected().value_or(0);
        wanted.SearchIn =
            column == 0 ? std::nullopt : std::optional(kColumns.at(static_cast<size_t>(column) - 1));
        const int order = cmbOrder.Selected().value_or(0);
        wanted.SortedBy =
            order == 0 ? std::nullopt : std::optional(kColumns.at(static_cast<size_t>(order - 1) / 2));
        wanted.IsDescending = order != 0 && order % 2 == 0;
        Begin(wanted);
    }

    void Begin(const Arrangement& wanted)
    {
        mWanted = wanted;
        if (mWanted == mList.Arranged() || mWork != nullptr)
        {
            return;
        }
        bool needsReading = false;
        for (size_t entry = 0; entry < mList.Count() && !needsReading; ++entry)
        {
            needsReading = mList.NeedsReading(entry, mWanted);
        }
        if (needsReading)
        {
            Start(ArrangingWork(mList, mWanted));
        }
        else
        {
            mList.Arrange(mWanted);
            ShowWanted();
            ShowEntries();
        }
    }

    // The controls as the order and the search that are in force.
    void ShowWanted()
    {
        const auto number = [](Column column) { return static_cast<int>(column); };
        const int order =
            mWanted.SortedBy ? number(*mWanted.SortedBy) * 2 + (mWanted.IsDescending ? 2 : 1) : 0;
        cmbOrder.Select(order);
        cmbColumn.Select(mWanted.SearchIn ? number(*mWanted.SearchIn) + 1 : 0);
        if (automation::Trimmed(txtSearch.Text()) != mWanted.Search)
        {
            txtSearch.SetText(mWanted.Search);
        }
        lvChanges.ShowOrder(mWanted.SortedBy ? number(*mWanted.SortedBy) : -1, mWanted.IsDescending);
    }

    void OnHeader(int column)
    {
        const Column of = kColumns.at(static_cast<size_t>(column));
        cmbOrder.Select(column * 2 + (mWanted.SortedBy == of && !mWanted.IsDescending ? 2 : 1));
        Wish();
    }

    void Start(std::unique_ptr<Work> work)
    {
        mWork = std::move(work);
        mFocusBefore = GetFocus();
        prgbarReading.Show(true);
        prgbarReading.SetFraction(0);
        cmdStop.Show(true);
        cmdStop.Focus();
        EnableChoices(false);
        Later();
    }

    void GoOn()
    {
        if (mWork == nullptr)
        {
            return;
        }
        const bool isDone = mIsStopped || StepOrTell();
        prgbarReading.SetFraction(mWork->Fraction());
        if (isDone || mIsStopped)
        {
            EndWork();
        }
        Later();
    }

    bool StepOrTell()
    {
        try
        {
            return mWork->Step();
        }
        catch (const automation::Error& error)
        {
            ui::ShowMessageBox(Choose(L"无法写入文件：", L"The file could not be written: ") +
                                   error.Description(),
                               MB_ICONERROR);
            return true;
        }
    }

    // What has been read stays read.
    void EndWork()
    {
        mWork.reset();
        mIsStopped = false;
        EnableChoices(true);
        prgbarReading.Show(false);
        if (mFocusBefore != nullptr && IsWindowEnabled(mFocusBefore))
        {
            SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(mFocusBefore), TRUE);
        }
        cmdStop.Show(false);
        mWanted = mList.Arranged();
        ShowWanted();
        ShowEntries();
    }

    void EnableChoices(bool enabled)
    {
        for (ui::Control* const control :
             std::initializer_list<ui::Control*>{&txtSearch, &cmbColumn, &cmbOrder, &cmdSave})
        {
            control->Enable(enabled);
        }
    }

    void Save()
    {
        const auto path = ui::AskForFile(Handle(), Choose(L"更改.csv", L"changes.csv"),
                                         Choose(L"CSV 文件 (*.csv)", L"CSV files (*.csv)"), L"*.csv", L"csv");
        if (path)
        {
            try
            {
                Start(SavingWork(mList, *path));
            }
            catch (const automation::Error& error)
            {
                ui::ShowMessageBox(Choose(L"无法写入文件：", L"The file could not be written: ") +
                                       error.Description(),
                                   MB_ICONERROR);
            }
        }
    }

    // --- Messages.

    LRESULT OnNotify(const NMHDR& notification) override
    {
        if (lvChanges.AnswerCell(notification) || lvFields.Answer(notification))
        {
            return 0;
        }
        if (const auto column = lvChanges.ClickedHeader(notification); column && mWork == nullptr)
        {
            OnHeader(*column);
        }
        else if (notification.hwndFrom == lvChanges.Handle())
        {
            Later(); // it may have been scrolled, or another row have the focus
        }
        return 0;
    }

    void OnCommand(int id, int notification) override
    {
        switch (id)
        {
        case IDOK: Wish(); break; // Enter: there is no button that it would press
        case IDC_CHANGES_SEARCH:
            if (notification == EN_CHANGE)
            {
                SetTimer(Handle(), kSearch, kTypingPause, nullptr);
            }
            break;
        case IDC_CHANGES_COLUMN:
        case IDC_CHANGES_ORDER:
            if (notification == CBN_SELCHANGE)
            {
                SetTimer(Handle(), kSearch, USER_TIMER_MINIMUM, nullptr);
            }
            break;
        case IDC_CHANGES_STOP:
            mIsStopped = true; // the work may be waiting for Outlook at this moment
            Later();
            break;
        case IDC_CHANGES_CHECK: CheckShown(true); break;
        case IDC_CHANGES_UNCHECK: CheckShown(false); break;
        case IDC_CHANGES_SAVE: Save(); break;
        case IDCANCEL: Leave(); break;
        default: break;
        }
    }

    std::span<const ui::AnchoredControl> AnchoredControls() const override { return kAnchors; }
    std::optional<SIZE> OpeningSize() const override { return mSettings.Size; }
    int FirstFocus() const override { return IDC_CHANGES_LIST; }

    // The fields get a part of the height that the user adds.
    void OnSize() override
    {
        RECT client = {};
        GetClientRect(Handle(), &client);
        const int share = (client.bottom - mFirstHeight) * kFieldsShare / 100;
        if (mFirstHeight == 0 || share <= 0)
        {
            return;
        }
        RECT list = lvChanges.Place();
        list.bottom -= share;
        lvChanges.MoveTo(list);
        for (ui::Control* const control :
             std::initializer_list<ui::Control*>{&lblCount, &prgbarReading, &cmdStop, &lblFields})
        {
            control->MoveBy(0, -share);
        }
        RECT fields = lvFields.Place();
        fields.top -= share;
        lvFields.MoveTo(fields);
        FillLastColumns();
        InvalidateRect(Handle(), nullptr, TRUE);
        Later();
    }

    void OnClose() override { Leave(); }

    // A list that is being saved is not saved then.
    void Leave()
    {
        RECT place = {};
        GetWindowRect(Handle(), &place);
        WindowSettings settings = mSettings;
        settings.Widths = lvChanges.ColumnWidths();
        settings.SortedBy = mList.Arranged().SortedBy;
        settings.IsDescending = mList.Arranged().IsDescending;
        if (!IsZoomed(Handle()) && !IsIconic(Handle()))
        {
            settings.Size = SIZE{place.right - place.left, place.bottom - place.top};
        }
        StoreWindowSettings(settings);
        Unload();
    }

    ui::Label lblSearch{*this, IDC_CHANGES_SEARCH_LABEL};
    ui::TextBox txtSearch{*this, IDC_CHANGES_SEARCH};
    ui::Label lblColumn{*this, IDC_CHANGES_COLUMN_LABEL};
    ui::ComboBox cmbColumn{*this, IDC_CHANGES_COLUMN};
    ui::Label lblOrder{*this, IDC_CHANGES_ORDER_LABEL};
    ui::ComboBox cmbOrder{*this, IDC_CHANGES_ORDER};
    ui::Label lblChanges{*this, IDC_CHANGES_LIST_LABEL};
    ui::CheckedListView lvChanges{*this, IDC_CHANGES_LIST};
    ui::Label lblCount{*this, IDC_CHANGES_COUNT};
    ui::ProgressBar prgbarReading{*this, IDC_CHANGES_PROGRESS};
    ui::Button cmdStop{*this, IDC_CHANGES_STOP};
    ui::Label lblFields{*this, IDC_CHANGES_FIELDS_LABEL};
    ui::VirtualListView lvFields{*this, IDC_CHANGES_FIELDS};
    ui::TextBox txtNotes{*this, IDC_CHANGES_NOTES};
    ui::Button cmdCheckAll{*this, IDC_CHANGES_CHECK};
    ui::Button cmdUncheckAll{*this, IDC_CHANGES_UNCHECK};
    ui::Button cmdSave{*this, IDC_CHANGES_SAVE};
    ui::Button cmdClose{*this, IDCANCEL};

    ChangeList& mList;
    std::wstring mCategoryText;
    WindowSettings mSettings;
    LONG mFirstHeight = 0; // pixels
    Arrangement mWanted{};
    std::unique_ptr<Work> mWork;
    HWND mFocusBefore = nullptr;
    bool mIsWorking = false;
    bool mIsStopped = false;
    std::optional<size_t> mShownFields; // the entry whose fields are shown
    Fields mFields;
};

} // namespace

void ShowChanges(const ui::Dialog& owner, ChangeList& list, const std::wstring& categoryText)
{
    FrmChanges(list, categoryText).ShowModalOver(owner);
}

} // namespace preview
