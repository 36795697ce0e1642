#include "run/FrmMessage.h"

#include "preview/FrmChanges.h"
#include "resources/Strings.h"
#include "state/SharedState.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/FitText.h"

namespace run
{

namespace
{

constexpr ui::CaptionRow kConfirmCaptions[] = {
    {IDC_MESSAGE_TITLE, IDS_CONFIRM_INSTRUCTION},
    {IDOK, {L"接受(&A)", L"&Accept"}},
    {IDCANCEL, {L"取消(&C)", L"&Cancel"}},
    {IDC_MESSAGE_DETAILS, {L"详细(&D)...", L"&Details..."}},
    // The sections' texts for a direction that is neither.
    {IDC_MESSAGE_TO_OL_TITLE, {L"Quenlar To Outlook", L"Quenlar To Outlook"}},
    {IDC_MESSAGE_TO_OL_NEW, {L"Add New", L"Add New"}},
    {IDC_MESSAGE_TO_OL_MODIFY, {L"Modify", L"Modify"}},
    {IDC_MESSAGE_TO_SYN_TITLE, {L"Outlook To Quenlar", L"Outlook To Quenlar"}},
    {IDC_MESSAGE_TO_SYN_NEW, {L"Add New", L"Add New"}},
    {IDC_MESSAGE_TO_SYN_MODIFY, {L"Modify", L"Modify"}},
};

class FrmMessage : public ui::Dialog
{
  public:
    FrmMessage(const std::wstring& categoryText, const data::Changes& changes, const ShowDetails& details)
        : Dialog(IDD_MESSAGE, kConfirmCaptions),
          mCategoryText(categoryText),
          mChanges(&changes),
          mDetails(details)
    {
    }

  private:
    // A heading and two lines of counts.
    struct Section
    {
        ConfirmSection Which;
        ui::Label& Title;
        ui::Label& New;
        ui::Label& Modify;
    };

    void OnInit() override
    {
        ui::FitLabels(*this, {&LblTitle});
        SetCaption(ConfirmCaption(mCategoryText));
        cmdDetails.Show(static_cast<bool>(mDetails));
        ShowSections(state::Shared().gSynParameter.TransType);
    }

    void ShowSections(long transType)
    {
        const auto [toOutlook, toHost] = FillSections(transType);
        if (toOutlook != toHost)
        {
            KeepOneSection(toOutlook);
        }
    }

    // Which of the two are shown.
    std::pair<bool, bool> FillSections(long transType)
    {
        const bool toOutlook =
            Fill({ConfirmSection::QuenlarToOutlook, LblSynToOlTitle, LblSynToOlNew, LblSynToOlModify},
                 transType, mChanges->NewHostRecords.Count(), mChanges->ChangedHostRecords.Count());
        const bool toHost =
            Fill({ConfirmSection::OutlookToQuenlar, LblOlToSynTitle, LblOlToSynNew, LblOlToSynModify},
                 transType, mChanges->NewOutlookItems.Count(), mChanges->ChangedOutlookItems.Count());
        return {toOutlook, toHost};
    }

    // True when the section is shown for this direction.
    bool Fill(const Section& section, long transType, long additions, long modifications)
    {
        const auto heading = ConfirmHeading(transType, section.Which, mCategoryText);
        if (!heading)
        {
            return false;
        }
        section.Title.SetText(*heading);
        section.New.SetText(AdditionsLine(additions));
        section.Modify.SetText(ModificationsLine(modifications));
        return true;
    }

    // The section that stays takes the first place, and the dialog closes up below it.
    void KeepOneSection(bool toOutlook)
    {
        const int height = LblOlToSynTitle.Place().top - LblSynToOlTitle.Place().top;
        for (ui::Label* const label : {&LblSynToOlTitle, &LblSynToOlNew, &LblSynToOlModify})
        {
            label->Show(toOutlook);
        }
        for (ui::Label* const label : {&LblOlToSynTitle, &LblOlToSynNew, &LblOlToSynModify})
        {
            label->Show(!toOutlook);
            label->MoveBy(0, -height);
        }
        RECT frame = Picture1.Place();
        frame.bottom -= height;
        Picture1.MoveTo(frame);
        cmdAccept.MoveBy(0, -height);
        cmdCancel.MoveBy(0, -height);
        cmdDetails.MoveBy(0, -height);
        GrowBy(-height);
    }

    void OnCommand(int id, int /*notification*/) override
    {
        if (id == IDOK || id == IDCANCEL)
        {
            state::Shared().gChangesAccepted = id == IDOK;
            Unload(id);
        }
        else if (id == IDC_MESSAGE_DETAILS)
        {
            mKept = mDetails(*this);
            mChanges = &mKept;
            FillSections(state::Shared().gSynParameter.TransType);
        }
    }

    ui::Label LblTitle{*this, IDC_MESSAGE_TITLE};
    ui::Frame Picture1{*this, IDC_MESSAGE_PICTURE};
    ui::Label LblSynToOlTitle{*this, IDC_MESSAGE_TO_OL_TITLE};
    ui::Label LblSynToOlNew{*this, IDC_MESSAGE_TO_OL_NEW};
    ui::Label LblSynToOlModify{*this, IDC_MESSAGE_TO_OL_MODIFY};
    ui::Label LblOlToSynTitle{*this, IDC_MESSAGE_TO_SYN_TITLE};
    ui::Label LblOlToSynNew{*this, IDC_MESSAGE_TO_SYN_NEW};
    ui::Label LblOlToSynModify{*this, IDC_MESSAGE_TO_SYN_MODIFY};
    ui::Button cmdAccept{*this, IDOK};
    ui::Button cmdCancel{*this, IDCANCEL};
    ui::Button cmdDetails{*this, IDC_MESSAGE_DETAILS};

    const std::wstring& mCategoryText;
    const data::Changes* mChanges;
    const ShowDetails& mDetails;
    data::Changes mKept; // after the details
};

} // namespace

void ShowConfirmation(const std::wstring& categoryText, const data::Changes& changes,
                      const ShowDetails& details)
{
    FrmMessage(categoryText, changes, details).ShowModal();
}

void ConfirmChanges(const exchange::Kind& kind, exchange::Run& run, const std::wstring& categoryText)
{
    std::optional<preview::ChangeList> list;
    ShowConfirmation(categoryText, run.Pending, [&](const ui::Dialog& confirmation) {
        if (!list)
        {
            list.emplace(kind, run, state::Shared().gSynParameter.TransType);
        }
        preview::ShowChanges(confirmation, *list, categoryText);
        return list->Kept();
    });
    if (list && state::Shared().gChangesAccepted)
    {
        run.Pending = list->Kept();
    }
}

} // namespace run
