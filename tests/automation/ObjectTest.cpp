#include "automation/Object.h"

#include "automation/Error.h"
#include "tests/automation/ScriptedObject.h"

#include <gtest/gtest.h>

namespace
{

using namespace automation;
using test_support::ArrivedCall;
using test_support::CodeOf;
using test_support::ScriptedObject;

// The types of a call's arguments, in the documented order.
std::vector<int> TypesOf(const ArrivedCall& call)
{
    std::vector<int> types;
    for (UINT i = 0; i < call.parameters.cArgs; ++i)
    {
        types.push_back(call.At(i).vt);
    }
    return types;
}

// The error that a call with this answer ends in.
Error ErrorOf(const std::function<HRESULT(EXCEPINFO& exception)>& answer)
{
    ScriptedObject scripted;
    scripted.OnCall = [&](const ArrivedCall& call) { return answer(*call.exception); };
    try
    {
        Object(&scripted).Call(L"Member");
    }
    catch (const Error& error)
    {
        return error;
    }
    ADD_FAILURE() << "no error";
    return {S_OK, L""};
}

TEST(Object, AnErrorThatIsNumberedWithoutACodeKeepsItsNumber)
{
    const Error error = ErrorOf([](EXCEPINFO& exception) {
        exception.wCode = 1004;
        return DISP_E_EXCEPTION;
    });
    EXPECT_EQ(static_cast<HRESULT>(0x800A03EC), error.Code());
}

TEST(Object, AsksForAMembersNumberOncePerObjectCopiesIncluded)
{
    ScriptedObject scripted;
    const Object object(&scripted);
    for (int i = 0; i < 3; ++i)
    {
        object.Get(L"Member");
        object.Put(L"Member", 1L);
        const Object copy = object; // NOLINT(performance-unnecessary-copy-initialization): tests the copy
        copy.Call(L"Member", 1L, 2L);
    }
    EXPECT_EQ(1, scripted.NamesAsked);
}

TEST(Object, AsksAgainForAnotherReferenceThatWasObtainedSeparately)
{
    ScriptedObject scripted;
    Object(&scripted).Get(L"Member");
    Object(&scripted).Get(L"Member");
    EXPECT_EQ(2, scripted.NamesAsked);
}

TEST(Object, AMemberThatIsNotThereIsAnErrorWithItsNameAndIsNotRemembered)
{
    ScriptedObject scripted;
    const Object object(&scripted);
    for (int i = 1; i <= 2; ++i)
    {
        try
        {
            object.Get(L"Other");
            FAIL();
        }
        catch (const Error& error)
        {
            EXPECT_EQ(DISP_E_UNKNOWNNAME, error.Code());
            EXPECT_EQ(L"Other", error.Member());
            EXPECT_FALSE(error.Description().empty());
        }
        EXPECT_EQ(i, scripted.NamesAsked);
    }
}

TEST(Object, ArgumentsArriveInTheDocumentedOrderWithTheirTypes)
{
    ScriptedObject scripted;
    std::vector<int> types;
    scripted.OnCall = [&](const ArrivedCall& call) {
        types = TypesOf(call);
        EXPECT_STREQ(L"text", call.At(0).bstrVal);
        EXPECT_EQ(7, call.At(1).lVal);
        EXPECT_EQ(DISP_E_PARAMNOTFOUND, call.At(6).scode);
        EXPECT_EQ(0u, call.parameters.cNamedArgs);
        return S_OK;
    };
    const Object object(&scripted);
    object.Call(L"Member", L"text", 7, short{8}, 2.5, true, Date{1.5}, Value::Missing(), Value::Null(),
                Value(), object);
    EXPECT_EQ((std::vector<int>{VT_BSTR, VT_I4, VT_I2, VT_R8, VT_BOOL, VT_DATE, VT_ERROR, VT_NULL, VT_EMPTY,
                                VT_DISPATCH}),
              types);
}

TEST(Object, ReadsMayBeServedByAMethodOrAProperty)
{
    ScriptedObject scripted;
    scripted.OnCall = [](const ArrivedCall& call) {
        EXPECT_EQ(DISPATCH_METHOD | DISPATCH_PROPERTYGET, call.flags);
        call.result->vt = VT_I4;
        call.result->lVal = 5;
        return S_OK;
    };
    EXPECT_EQ(5, LongOf(Object(&scripted).Get(L"Member")));
    EXPECT_EQ(5, LongOf(Object(&scripted).Call(L"Member", 1L)));
}

TEST(Object, AWriteNamesItsArgumentAsTheValueAndWantsNoResult)
{
    ScriptedObject scripted;
    WORD flags = 0;
    scripted.OnCall = [&](const ArrivedCall& call) {
        flags = call.flags;
        EXPECT_EQ(1u, call.parameters.cArgs);
        EXPECT_EQ(1u, call.parameters.cNamedArgs);
        EXPECT_EQ(DISPID_PROPERTYPUT, call.parameters.rgdispidNamedArgs[0]);
        EXPECT_EQ(nullptr, call.result);
        return S_OK;
    };
    const Object object(&scripted);
    object.Put(L"Member", L"text");
    EXPECT_EQ(DISPATCH_PROPERTYPUT, flags);
    object.PutRef(L"Member", object);
    EXPECT_EQ(DISPATCH_PROPERTYPUTREF, flags);
}

TEST(Object, ByReferenceArgumentsHaveTheirExactTypesAndReturnTheNewValues)
{
    ScriptedObject scripted;
    ScriptedObject given;
    scripted.OnCall = [&](const ArrivedCall& call) {
        EXPECT_EQ((std::vector<int>{VT_BYREF | VT_DISPATCH, VT_BYREF | VT_BSTR, VT_BYREF | VT_I4}),
                  TypesOf(call));
        EXPECT_EQ(nullptr, *call.At(0).ppdispVal);
        EXPECT_STREQ(L"before", *call.At(1).pbstrVal);
        EXPECT_EQ(1, *call.At(2).plVal);
        given.AddRef();
        *call.At(0).ppdispVal = &given;
        SysReAllocString(call.At(1).pbstrVal, L"after");
        *call.At(2).plVal = 2;
        return S_OK;
    };
    Object object;
    std::wstring text = L"before";
    long number = 1;
    Object(&scripted).Call(L"Member", ByRef(object), ByRef(text), ByRef(number));
    EXPECT_EQ(&given, object.Dispatch());
    EXPECT_EQ(1, given.References());
    EXPECT_EQ(L"after", text);
    EXPECT_EQ(2, number);
}

TEST(Object, AnObjectPassedByReferenceMayBeReplacedAndIsReleased)
{
    ScriptedObject scripted;
    ScriptedObject before;
    ScriptedObject after;
    Object object(&before);
    scripted.OnCall = [&](const ArrivedCall& call) {
        EXPECT_EQ(&before, *call.At(0).ppdispVal);
        (*call.At(0).ppdispVal)->Release();
        after.AddRef();
        *call.At(0).ppdispVal = &after;
        return S_OK;
    };
    Object(&scripted).Call(L"Member", ByRef(object));
    EXPECT_EQ(0, before.References());
    EXPECT_EQ(&after, object.Dispatch());
}

TEST(Object, AFailedCallLeavesItsByReferenceVariablesAlone)
{
    ScriptedObject scripted;
    scripted.OnCall = [](const ArrivedCall& call) {
        *call.At(0).plVal = 9;
        return E_FAIL;
    };
    long number = 1;
    EXPECT_EQ(E_FAIL, CodeOf([&] { Object(&scripted).Call(L"Member", ByRef(number)); }));
    EXPECT_EQ(1, number);
}

TEST(Object, AnObjectOfAScriptClassIsAskedThroughIDispatchExInAnyLetterCase)
{
    ScriptedObject scripted;
    scripted.IsOfScriptClass = true;
    long calls = 0;
    scripted.OnCall = [&](const ArrivedCall&) {
        ++calls;
        return S_OK;
    };
    const Object object(&scripted);
    object.Call(L"Member");
    object.Call(L"Member");
    EXPECT_EQ(2, calls);
    EXPECT_EQ(1, scripted.NamesAsked);
    EXPECT_EQ(static_cast<DWORD>(fdexNameCaseInsensitive), scripted.FlagsOfName);
    EXPECT_EQ(DISP_E_UNKNOWNNAME, CodeOf([&] { object.Call(L"Other"); }));
}

TEST(Object, AnErrorTellsTheObjectsOwnCodeAndWords)
{
    const Error error = ErrorOf([](EXCEPINFO& exception) {
        exception.scode = E_ACCESSDENIED;
        exception.bstrSource = SysAllocString(L"Outlook");
        exception.bstrDescription = SysAllocString(L"The item is read-only.");
        return DISP_E_EXCEPTION;
    });
    EXPECT_EQ(E_ACCESSDENIED, error.Code());
    EXPECT_EQ(L"Member", error.Member());
    EXPECT_EQ(L"The item is read-only.", error.Description());
    EXPECT_STREQ("Member: 0x80070005: The item is read-only.", error.what());
}

// A function of the system's calling convention, which a lambda has not.
HRESULT STDAPICALLTYPE FillInLater(EXCEPINFO* later)
{
    later->scode = E_INVALIDARG;
    later->bstrDescription = SysAllocString(L"Told later");
    return S_OK;
}

TEST(Object, AnErrorThatIsFilledInLaterIsFilledIn)
{
    const Error error = ErrorOf([](EXCEPINFO& exception) {
        exception.pfnDeferredFillIn = &FillInLater;
        return DISP_E_EXCEPTION;
    });
    EXPECT_EQ(E_INVALIDARG, error.Code());
    EXPECT_EQ(L"Told later", error.Description());
}

TEST(Object, AnErrorWithoutWordsOrCodeTellsTheSystems)
{
    const Error wordless = ErrorOf([](EXCEPINFO&) { return DISP_E_EXCEPTION; });
    EXPECT_EQ(DISP_E_EXCEPTION, wordless.Code());
    EXPECT_EQ(SystemText(DISP_E_EXCEPTION), wordless.Description());
    const Error plain = ErrorOf([](EXCEPINFO&) { return E_OUTOFMEMORY; });
    EXPECT_EQ(E_OUTOFMEMORY, plain.Code());
    EXPECT_EQ(SystemText(E_OUTOFMEMORY), plain.Description());
}

TEST(Object, NothingHasNoMembers)
{
    const Object nothing(nullptr);
    EXPECT_FALSE(nothing);
    EXPECT_EQ(E_POINTER, CodeOf([&] { nothing.Get(L"Member"); }));
    EXPECT_EQ(E_POINTER, CodeOf([&] { nothing.Put(L"Member", 1L); }));
}

TEST(Object, AResultThatIsNoObjectIsRefusedAndEmptyOrNullIsNothing)
{
    ScriptedObject scripted;
    VARTYPE type = VT_EMPTY;
    scripted.OnCall = [&](const ArrivedCall& call) {
        call.result->vt = type;
        call.result->lVal = 1;
        return S_OK;
    };
    const Object object(&scripted);
    EXPECT_FALSE(object.GetObject(L"Member"));
    type = VT_NULL;
    EXPECT_FALSE(object.GetObject(L"Member"));
    type = VT_I4;
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { object.GetObject(L"Member"); }));
}

TEST(Object, TheVariableThatHoldsItMayBeReplacedDuringItsOwnCall)
{
    ScriptedObject scripted;
    Object object(&scripted);
    scripted.OnCall = [&](const ArrivedCall&) {
        object = {};
        EXPECT_GT(scripted.References(), 0);
        return S_OK;
    };
    object.Call(L"Member");
    EXPECT_EQ(0, scripted.References());
}

TEST(Object, AClassThatIsNotRegisteredIsAnErrorWithItsName)
{
    try
    {
        Object::Create(L"Telvix.NoSuchClass");
        FAIL();
    }
    catch (const Error& error)
    {
        EXPECT_EQ(CO_E_CLASSSTRING, error.Code());
        EXPECT_EQ(L"Telvix.NoSuchClass", error.Member());
    }
}

} // namespace
