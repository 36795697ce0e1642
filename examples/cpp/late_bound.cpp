// A host in C++, late bound: members are called by their names, as script languages do.
// Visual C++: cl /EHsc /std:c++20 late_bound.cpp
// mingw-w64:  x86_64-w64-mingw32-g++ -std=c++20 -static late_bound.cpp -lole32 -loleaut32 -luuid
#include <comdef.h>

#include <cstdio>
#include <iterator>

using Dispatch = _com_ptr_t<_com_IIID<IDispatch, &__uuidof(IDispatch)>>;

void Check(HRESULT result)
{
    if (FAILED(result))
    {
        throw _com_error(result);
    }
}

Dispatch Create(const wchar_t* progId)
{
    Dispatch created;
    Check(created.CreateInstance(progId));
    return created;
}

_variant_t Invoke(IDispatch* object, const wchar_t* member, WORD flags, DISPPARAMS arguments)
{
    DISPID id = 0;
    LPOLESTR name = const_cast<LPOLESTR>(member);
    Check(object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
    _variant_t result;
    Check(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, &result, nullptr, nullptr));
    return result;
}

void Put(IDispatch* object, const wchar_t* property, _variant_t value)
{
    DISPID named = DISPID_PROPERTYPUT;
    Invoke(object, property, DISPATCH_PROPERTYPUT, {&value, &named, 1, 1});
}

void Run()
{
    const Dispatch access = Create(L"Scripting.Dictionary"); // your data-access object
    const Dispatch component = Create(L"TelvixOutlook.ClsSynOutlook");

    Put(component, L"CalendarStartTime", _variant_t(8.5 / 24, VT_DATE));
    Put(component, L"CalendarEndTime", _variant_t(17.5 / 24, VT_DATE));
    Put(component, L"CalendarPreviewAlarmTime", 15L);
    Put(component, L"FontName", L"Tahoma");
    Put(component, L"FontSize", 9L);

    _variant_t arguments[] = {L"Provider=MSDASQL;DSN=Sales", access.GetInterfacePtr()}; // in reverse order
    const bool refused = Invoke(component, L"SynLoad", DISPATCH_METHOD,
                                {arguments, nullptr, 2, 0}); // returns when the user closes the dialog
    std::puts(refused ? "Refused: an argument is missing." : "Accepted.");
}

int main()
{
    CoInitialize(nullptr); // a single-threaded apartment
    int status = 0;
    try
    {
        Run();
    }
    catch (const _com_error& error)
    {
        std::printf("Error 0x%08lX\n", static_cast<unsigned long>(error.Error()));
        status = 1;
    }
    CoUninitialize();
    return status;
}
