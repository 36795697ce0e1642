#include "preview/FrmChanges.h"

#include "automation/Error.h"
#include "preview/ArrangementBar.h"
#include "preview/EntryListView.h"
#include "preview/FieldListView.h"
#include "preview/RunningWork.h"
#include "preview/WindowSettings.h"
#include "resources/Strings.h"
#include "ui/Dialog.h"
#include "ui/Handover.h"

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

constexpr UINT_PTR kNow = 1;       // work that waits until the window has been painted
constexpr UINT_PTR kSearch = 2;    // the user has stopped typing
constexpr UINT kTypingPause = 300; // milliseconds

constexpr int kFieldsShare = 40; // percent of the height that the user adds

// Joins the parts of the window: captions, layout, commands, and when the host and Outlook are called.
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
    void OnInit() override
    {
        WriteCaptions();
        mBar.SetUp();
        mWork.SetUp();
        lvChanges.SetUp(mSettings.Widths);
        lvFields.SetUp();
        RECT client = {};
        GetClientRect(Handle(), &client);
        mFirstHeight = client.bottom;
        mWanted = {.SortedBy = mSettings.SortedBy, .IsDescending = mSettings.IsDescending};
        ShowWanted();
        ShowEntries();
        Begin(mWanted);
        Later();
    }

    void WriteCaptions()
    {
        SetCaption(Choose(L"更改 - ", L"Changes - ") + mCategoryText);
        lblChanges.SetText(
            Choose(L"更改列表(&L)。没有勾选的记录本次不写入：",
                   L"&List of changes. Records without a check mark are left out of this run:"));
        lblFields.SetText(Choose(L"所选记录的字段(&D)：", L"Fiel&ds of the selected record:"));
        cmdCheckAll.SetText(Choose(L"全选(&A)", L"Check &all"));
        cmdUncheckAll.SetText(Choose(L"全不选(&U)", L"&Uncheck all"));
        cmdSave.SetText(Choose(L"保存列表(&S)...", L"&Save list..."));
        cmdClose.SetText(Choose(L"关闭(&C)", L"&Close"));
    }

    void ShowEntries()
    {
        lvChanges.ShowEntries();
        lvFields.Forget();
        Later();
    }

    // --- Work that calls the host and Outlook: outside of painting, and never two at a time.

    // A timer that is set anew begins anew: one that asks for rows all the time, as a screen reader may,
    // would put the work off for ever.
    void Later() { mIsDue = mIsDue || SetTimer(Handle(), kNow, USER_TIMER_MINIMUM, nullptr) != 0; }

    void OnTimer(UINT_PTR id) override
    {
        KillTimer(Handle(), id);
        mIsDue = mIsDue && id != kNow;
        if (mIsWorking)
        {
            Later();
            return;
        }
        mIsWorking = true;
        if (id == kSearch)
        {
            Begin(mBar.Chosen());
        }
        lvChanges.ReadRowsInSight();
        lvFields.ShowFieldsOf(lvChanges.FocusedEntry());
        if (mWork.IsRunning())
        {
            GoOn();
        }
        mIsWorking = false;
    }

    void Start(std::unique_ptr<Work> work)
    {
        mWork.Start(std::move(work));
        Later();
    }

    void GoOn()
    {
        if (mWork.DoStep())
        {
            mWanted = mList.Arranged();
            ShowWanted();
            ShowEntries();
        }
        Later();
    }

    void EnableChoices(bool enabled)
    {
        mBar.Enable(enabled);
        cmdSave.Enable(enabled);
    }

    // --- Order and search.

    void Begin(const Arrangement& wanted)
    {
        mWanted = wanted;
        if (mWanted == mList.Arranged() || mWork.IsRunning())
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
        mBar.Show(mWanted);
        lvChanges.ShowSortedBy(mWanted);
    }

    void OnHeader(int column)
    {
        const Column of = kColumns.at(static_cast<size_t>(column));
        mBar.ChooseOrder(of, mWanted.SortedBy == of && !mWanted.IsDescending);
        Begin(mBar.Chosen());
    }

    // --- Messages.

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
                RunningWork::ShowError(error);
            }
        }
    }

    LRESULT OnNotify(const NMHDR& notification) override
    {
        if (lvChanges.AnswerCell(notification) || lvFields.Answer(notification))
        {
            return 0;
        }
        if (const auto column = lvChanges.ClickedHeader(notification); column && !mWork.IsRunning())
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
        case IDOK: Begin(mBar.Chosen()); break; // Enter: there is no button that it would press
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
            mWork.Stop();
            Later();
            break;
        case IDC_CHANGES_CHECK: lvChanges.CheckShown(true); break;
        case IDC_CHANGES_UNCHECK: lvChanges.CheckShown(false); break;
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
        lblCount.MoveBy(0, -share);
        mWork.MoveDown(-share);
        lblFields.MoveBy(0, -share);
        RECT fields = lvFields.Place();
        fields.top -= share;
        lvFields.MoveTo(fields);
        lvChanges.FillWidth();
        lvFields.FillWidth();
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

    ChangeList& mList;
    std::wstring mCategoryText;
    WindowSettings mSettings;
    LONG mFirstHeight = 0; // pixels
    Arrangement mWanted{};
    bool mIsDue = false; // the timer of the work is set
    bool mIsWorking = false;

    ArrangementBar mBar{*this, mList.Kind()};
    ui::Label lblChanges{*this, IDC_CHANGES_LIST_LABEL};
    ui::Label lblCount{*this, IDC_CHANGES_COUNT};
    EntryListView lvChanges{*this, IDC_CHANGES_LIST, mList, lblCount, [this] { Later(); }};
    RunningWork mWork{*this, [this](bool enabled) { EnableChoices(enabled); }};
    ui::Label lblFields{*this, IDC_CHANGES_FIELDS_LABEL};
    ui::TextBox txtNotes{*this, IDC_CHANGES_NOTES};
    FieldListView lvFields{*this, IDC_CHANGES_FIELDS, mList, txtNotes};
    ui::Button cmdCheckAll{*this, IDC_CHANGES_CHECK};
    ui::Button cmdUncheckAll{*this, IDC_CHANGES_UNCHECK};
    ui::Button cmdSave{*this, IDC_CHANGES_SAVE};
    ui::Button cmdClose{*this, IDCANCEL};
};

} // namespace

void ShowChanges(const ui::Dialog& owner, ChangeList& list, const std::wstring& categoryText)
{
    FrmChanges(list, categoryText).ShowModalOver(owner);
}

} // namespace preview
