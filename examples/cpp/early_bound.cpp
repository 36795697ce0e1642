// A host in C++, early bound through the type library.
// Visual C++: cl /EHsc /std:c++20 early_bound.cpp (with Telvix.dll in the folder)
// mingw-w64:  x86_64-w64-mingw32-g++ -std=c++20 -static -I../../include early_bound.cpp -lole32 -loleaut32
// -luuid
#ifdef _MSC_VER
#import "Telvix.dll" no_namespace raw_interfaces_only
#else
#include "Telvix.h"
#endif

#include <comdef.h>

#include <cstdio>

void Check(HRESULT result)
{
    if (FAILED(result))
    {
        throw _com_error(result);
    }
}

template<class Interface>
_com_ptr_t<_com_IIID<Interface, &__uuidof(Interface)>> Create(const wchar_t* progId)
{
    _com_ptr_t<_com_IIID<Interface, &__uuidof(Interface)>> created;
    Check(created.CreateInstance(progId));
    return created;
}

void Run()
{
    const auto access = Create<IDispatch>(L"Scripting.Dictionary"); // your data-access object
    const auto component = Create<_ClsSynOutlook>(L"TelvixOutlook.ClsSynOutlook");

    DATE start = 8.5 / 24;
    DATE end = 17.5 / 24;
    Check(component->put_CalendarStartTime(&start));
    Check(component->put_CalendarEndTime(&end));
    Check(component->put_CalendarPreviewAlarmTime(15));
    Check(component->put_FontName(_bstr_t(L"Tahoma")));
    Check(component->put_FontSize(9));

    IDispatch* dtc = access;
    VARIANT_BOOL refused = VARIANT_TRUE;
    Check(component->SynLoad(&dtc, _bstr_t(L"Provider=MSDASQL;DSN=Sales"),
                             &refused)); // returns when the user closes the dialog
    std::puts(refused != VARIANT_FALSE ? "Refused: an argument is missing." : "Accepted.");
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
