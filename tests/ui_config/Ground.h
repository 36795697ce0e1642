// Fixture of the configuration dialogs: an office with known parameters of the host's first user, whose
// Outlook COM can create, a profile in the registry, and the interface of one language.
#pragma once

#include "tests/config/ProfileKey.h"
#include "tests/support/Drive.h"
#include "tests/support/TestOffice.h"
#include "tests/ui/Interface.h"

#include <string>
#include <vector>

namespace ui_config_tests
{

using resources::Language;
using test_support::Drive;
using test_support::Robot;
using test_support::ShownDialog;
using ui_tests::In;
using Texts = std::vector<std::wstring>;

class Ground : public test_support::TestOffice
{
  public:
    explicit Ground(Language language = Language::English, double scale = 1);

    // Changes the user's row of a kind; the set clause as SQL has it.
    void SetRow(const std::wstring& kind, const std::wstring& setClause);
    // One row of a query as its values joined with "|".
    std::wstring Row(const std::wstring& sql);
    // "IsTrans|TransSource|TransType|TransTypePic" of the user's row of a kind.
    std::wstring Translation(const std::wstring& kind);
    // "TransConflictOption|CalendarTransItem|CalendarPrior|CalendarAfter|TaskTransItem", likewise.
    std::wstring Options(const std::wstring& kind);
    void AddFolderRow(long kind, const std::wstring& path, bool isDefault);
    // "path|IsDefault" of the user's rows of a kind.
    Texts Folders(long kind);
    // The configuration record describes this kind.
    state::SynParameter& Record() { return state::Shared().gConfigureParameter; }
    void UseKind(const std::wstring& kind);
    // The host refuses the next statement that opens a recordset.
    void RefuseNextLoad();

    config_tests::ProfileKey& Profiles() { return mProfileKey; }

  private:
    ui_tests::Interface mInterface;
    config_tests::ProfileKey mProfileKey;
    sandbox::OutlookInProcess mServed{Mailbox};
};

// Expects the message that nothing could be loaded, and closes it.
void ReadThatNothingIsLoaded(Robot& robot);

} // namespace ui_config_tests
