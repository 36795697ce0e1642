// A host in C++ that uses the component without any registration: Telvix.dll and Telvix.manifest lie in the
// folder of the program, and the manifest tells COM what the registry would.
// Visual C++: cl /EHsc /std:c++20 registration_free.cpp
// mingw-w64:  x86_64-w64-mingw32-g++ -std=c++20 -static registration_free.cpp -lole32 -loleaut32 -luuid
// A program with a manifest of its own needs no call: it takes the file element of Telvix.manifest into it.
#include <comdef.h>

#include <cstdio>
#include <string>

void Check(HRESULT result)
{
    if (FAILED(result))
    {
        throw _com_error(result);
    }
}

std::wstring ManifestBesideProgram()
{
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program = path;
    return program.substr(0, program.find_last_of(L'\\') + 1) + L"Telvix.manifest";
}

// What the manifest describes can be created by this thread from here on.
void ActivateManifest(const std::wstring& manifest)
{
    ACTCTXW request = {};
    request.cbSize = sizeof request;
    request.lpSource = manifest.c_str();
    const HANDLE context = CreateActCtxW(&request);
    ULONG_PTR cookie = 0;
    if (context == INVALID_HANDLE_VALUE || !ActivateActCtx(context, &cookie))
    {
        throw _com_error(HRESULT_FROM_WIN32(GetLastError()));
    }
}

void Run()
{
    ActivateManifest(ManifestBesideProgram());
    _com_ptr_t<_com_IIID<IDispatch, &__uuidof(IDispatch)>> component;
    Check(component.CreateInstance(L"TelvixOutlook.ClsSynOutlook"));

    DISPID id = 0;
    LPOLESTR name = const_cast<LPOLESTR>(L"FontName");
    Check(component->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id)); // asks the type library
    DISPPARAMS none = {};
    _variant_t font;
    Check(component->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &font, nullptr,
                            nullptr));
    std::printf("Created without registration; the font is %ls.\n", font.bstrVal);
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
