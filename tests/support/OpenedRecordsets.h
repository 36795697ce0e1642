// Keeps how each recordset of the component's own is opened, for the length of a scope: the arguments of
// every Open of the fake ADO but the connection, with the cursor location before them. Header only.
#pragma once

#include "tests/support/CallWatch.h"

#include <string>
#include <vector>

namespace test_support
{

class OpenedRecordsets : public CallWatch
{
  public:
    // "location 3: Select ... (cursor 1, lock 1, options 1)"; a default location is not named.
    std::vector<std::wstring> Texts;

    void OnArguments(const wchar_t* className, const wchar_t* member, const sandbox::Call& call) override
    {
        const std::wstring name = std::wstring(className) + L"." + member;
        if (name == L"Recordset.CursorLocation")
        {
            mLocation = L"location " + automation::TextOf(call.Assigned()) + L": ";
        }
        else if (name == L"Recordset.Open" && call.Count() == 5)
        {
            Texts.push_back(mLocation + automation::TextOf(call.At(0)) + L" (cursor " +
                            automation::TextOf(call.At(2)) + L", lock " + automation::TextOf(call.At(3)) +
                            L", options " + automation::TextOf(call.At(4)) + L")");
            mLocation.clear();
        }
    }

  private:
    std::wstring mLocation;
};

} // namespace test_support
