#include "automation/Guard.h"

#include "automation/Error.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include <oleauto.h>
#include <wrl/client.h>

namespace
{

using namespace automation;
using Microsoft::WRL::ComPtr;

// The description that the last guarded body left for its caller; empty for none.
std::wstring LeftDescription()
{
    ComPtr<IErrorInfo> info;
    BSTR text = nullptr;
    if (GetErrorInfo(0, &info) != S_OK || FAILED(info->GetDescription(&text)))
    {
        return {};
    }
    std::wstring description(text, SysStringLen(text));
    SysFreeString(text);
    return description;
}

template<typename Thrown>
HRESULT ResultOfThrowing(const Thrown& thrown)
{
    SetErrorInfo(0, nullptr);
    return Guard([&]() -> HRESULT { throw thrown; });
}

TEST(Guard, ABodyThatThrowsNothingGivesItsOwnResult)
{
    SetErrorInfo(0, nullptr);
    EXPECT_EQ(S_OK, Guard([] { return S_OK; }));
    EXPECT_EQ(S_FALSE, Guard([] { return S_FALSE; }));
    EXPECT_EQ(E_NOINTERFACE, Guard([] { return E_NOINTERFACE; }));
    EXPECT_EQ(L"", LeftDescription());
}

TEST(Guard, AnAutomationErrorGivesItsCodeAndLeavesItsWords)
{
    EXPECT_EQ(E_ACCESSDENIED, ResultOfThrowing(Error(E_ACCESSDENIED, L"Save", L"The item is read-only.")));
    EXPECT_EQ(L"Save: The item is read-only.", LeftDescription());
}

TEST(Guard, AStandardExceptionIsAFailureWithItsWords)
{
    EXPECT_EQ(E_FAIL, ResultOfThrowing(std::runtime_error("went wrong")));
    EXPECT_EQ(L"went wrong", LeftDescription());
}

TEST(Guard, ExhaustedMemoryHasACodeOfItsOwn)
{
    EXPECT_EQ(E_OUTOFMEMORY, ResultOfThrowing(std::bad_alloc()));
}

TEST(Guard, AnythingElseIsUnexpected)
{
    EXPECT_EQ(E_UNEXPECTED, ResultOfThrowing(7));
}

TEST(Error, WithoutWordsOfTheObjectItTellsTheSystemsWithoutALineBreak)
{
    const Error error(E_OUTOFMEMORY, L"Save");
    EXPECT_EQ(SystemText(E_OUTOFMEMORY), error.Description());
    EXPECT_EQ(std::wstring::npos, error.Description().find_first_of(L"\r\n"));
    EXPECT_FALSE(error.Description().empty());
}

TEST(Error, ACodeThatTheSystemDoesNotKnowIsTheDescription)
{
    EXPECT_EQ(L"0xA0001234", SystemText(static_cast<HRESULT>(0xA0001234)));
}

TEST(Error, CheckThrowsForFailuresOnly)
{
    EXPECT_NO_THROW(Check(S_OK, L"Save"));
    EXPECT_NO_THROW(Check(S_FALSE, L"Save"));
    EXPECT_THROW(Check(E_FAIL, L"Save"), Error);
}

} // namespace
