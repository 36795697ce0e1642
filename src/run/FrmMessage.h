// The confirmation dialog between collecting a run's changes and writing them: how many records will be added
// and modified per direction. The user's answer is the shared state's gChangesAccepted.
#pragma once

#include "data/ChangeRecords.h"

#include <functional>
#include <optional>
#include <string>

namespace exchange
{
struct Kind;
struct Run;
} // namespace exchange

namespace ui
{
class Dialog;
}

namespace run
{

// Asks the user whether the run's pending changes are to be written, and lets them look at each one first.
// Changes that the user leaves out are pending no longer. The answer is that of ShowConfirmation.
void ConfirmChanges(const exchange::Kind& kind, exchange::Run& run, const std::wstring& categoryText);

// Lets the user look at the changes, over the confirmation; the changes that are left.
using ShowDetails = std::function<data::Changes(const ui::Dialog& confirmation)>;

// Shows the dialog for the direction of the loaded parameters (gSynParameter), even when every count is 0.
// Accept sets gChangesAccepted, Cancel clears it; closing the dialog any other way leaves it as it was. With
// details there is a button that shows them, and the counts follow.
void ShowConfirmation(const std::wstring& categoryText, const data::Changes& changes,
                      const ShowDetails& details = {});

// The two halves of the dialog.
enum class ConfirmSection
{
    QuenlarToOutlook,
    OutlookToQuenlar,
};

std::wstring ConfirmCaption(const std::wstring& categoryText);

// A section's heading for a direction (TransType); nothing when the section is not shown for it.
std::optional<std::wstring> ConfirmHeading(long transType, ConfirmSection section,
                                           const std::wstring& categoryText);

// "Addtions:" or "be modified:" in the interface language, followed directly by the count.
std::wstring AdditionsLine(long count);
std::wstring ModificationsLine(long count);

} // namespace run
