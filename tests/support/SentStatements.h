// Keeps what is sent to the sandbox's host for writing, for the length of a scope, letter for letter:
// "Insert(table|columns|values)", "Update(table|set list|condition)". Header only.
#pragma once

#include "tests/support/CallWatch.h"

#include <string>
#include <vector>

namespace test_support
{

class SentStatements : public CallWatch
{
  public:
    std::vector<std::wstring> Texts;

    // The only one that begins like this; the empty text where there is none, or more than one.
    std::wstring TheOne(const std::wstring& beginning) const
    {
        std::wstring found;
        for (const std::wstring& text : Texts)
        {
            if (text.starts_with(beginning))
            {
                if (!found.empty())
                {
                    return {};
                }
                found = text;
            }
        }
        return found;
    }

    void OnArguments(const wchar_t* /*className*/, const wchar_t* member, const sandbox::Call& call) override
    {
        const std::wstring name = member;
        if ((name == L"Insert" || name == L"Update") && call.Count() == 4)
        {
            Texts.push_back(name + L"(" + automation::TextOf(call.At(0)) + L"|" +
                            automation::TextOf(call.At(1)) + L"|" +
                            automation::TextOf(call.At(name == L"Insert" ? 2 : 3)) + L")");
        }
    }
};

} // namespace test_support
