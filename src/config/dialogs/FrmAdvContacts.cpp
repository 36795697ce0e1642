#include "config/dialogs/FrmAdvContacts.h"

#include "config/store/AdvancedOptions.h"
#include "resources/Strings.h"
#include "state/SharedState.h"

namespace config
{

FrmAdvContacts::FrmAdvContacts() : FrmAdvanced(IDD_ADVCONTACTS, L"Contact") {}

const wchar_t* FrmAdvContacts::Caption() const
{
    return resources::Choose(L"联系人高级设置", L"Advanced settings for contact");
}

void FrmAdvContacts::Store()
{
    UpdateRow(ContactSetClause(ConflictCode()));
    state::EditedParameter().TransConflictOption = ConflictCode().value_or(kNoCode);
}

} // namespace config
