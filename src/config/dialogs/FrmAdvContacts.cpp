#include "config/dialogs/FrmAdvanced.h"

#include "state/SharedState.h"

namespace config
{

namespace
{

constexpr ui::CaptionRow kContactOptionCaptions[] = {
    {ui::kDialogCaption, {L"联系人高级设置", L"Advanced settings for contact"}},
};

// The conflict rule alone.
class FrmAdvContacts : public FrmAdvanced
{
  public:
    FrmAdvContacts() : FrmAdvanced(IDD_ADVCONTACTS, exchange::kContactName, kContactOptionCaptions) {}

  private:
    void Store() override
    {
        UpdateRow(ContactSetClause(ConflictCode()));
        state::EditedParameter().TransConflictOption = ConflictCode().value_or(kNoCode);
    }
};

} // namespace

void ShowAdvContacts()
{
    FrmAdvContacts().ShowModal();
}

} // namespace config
