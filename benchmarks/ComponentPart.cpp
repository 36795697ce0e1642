#include "automation/Argument.h"
#include "automation/Error.h"
#include "benchmarks/DialogWatch.h"
#include "benchmarks/Parts.h"
#include "benchmarks/Sides.h"
#include "benchmarks/empty_component/EmptyComponent.h"

#include <functional>
#include <stdexcept>

#include <objbase.h>

namespace benchmarks
{

using Microsoft::WRL::ComPtr;

namespace
{

constexpr int kRepetitions = 15;
constexpr wchar_t kProgId[] = L"TelvixOutlook.ClsSynOutlook";

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// A module loaded by its path, and its class object: what COM does once the registry has named the file.
class Module
{
  public:
    Module(const std::wstring& path, const CLSID& id) : mHandle(LoadLibraryW(path.c_str()))
    {
        using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
        const auto getClassObject = reinterpret_cast<GetClassObject>(
            reinterpret_cast<void*>(GetProcAddress(mHandle, "DllGetClassObject")));
        if (getClassObject == nullptr)
        {
            throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), path);
        }
        automation::Check(getClassObject(id, __uuidof(IClassFactory), &mFactory), path.c_str());
    }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    ~Module()
    {
        mFactory.Reset();
        FreeLibrary(mHandle);
    }

    automation::Object Create() const
    {
        ComPtr<IDispatch> created;
        automation::Check(mFactory->CreateInstance(nullptr, __uuidof(IDispatch), &created),
                          L"CreateInstance");
        return automation::Object(created.Get());
    }

  private:
    HMODULE mHandle;
    ComPtr<IClassFactory> mFactory;
};

struct Subject
{
    const wchar_t* File;
    CLSID Class;
    int List; // whose first row is selected before the configuration is opened
    int Configure;
};

struct Times
{
    std::vector<double> Load; // milliseconds
    std::vector<double> Create;
    std::vector<double> Main;
    std::vector<double> Configure;
};

std::wstring FullPath(const std::string& folder, const wchar_t* file)
{
    const std::wstring path = std::wstring(folder.begin(), folder.end()) + L"/" + file;
    wchar_t full[MAX_PATH * 4] = {};
    GetFullPathNameW(path.c_str(), ARRAYSIZE(full), full, nullptr);
    return full;
}

double SizeOf(const std::string& folder, const wchar_t* file)
{
    const std::wstring path = FullPath(folder, file);
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data))
    {
        throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), path);
    }
    return static_cast<double>(data.nFileSizeLow);
}

CLSID ClassOfComponent()
{
    CLSID id{};
    automation::Check(CLSIDFromProgID(kProgId, &id), kProgId);
    return id;
}

void MeasureCreation(const std::wstring& path, const Subject& subject, Times& times)
{
    const Clock::time_point start = Clock::now();
    const Module module(path, subject.Class);
    module.Create();
    times.Load.push_back(MillisecondsSince(start));
    const Clock::time_point again = Clock::now();
    module.Create();
    times.Create.push_back(MillisecondsSince(again));
}

// Opens the main dialog, from it the configuration, and leaves both.
void MeasureDialogs(const std::wstring& path, const Subject& subject, Sides& sides, Times& times)
{
    const Module module(path, subject.Class);
    const automation::Object component = module.Create();
    automation::Object dtc = sides.HostSide().Dtc();
    HWND main = nullptr;
    bool hasConfigured = false;
    Clock::time_point start = Clock::now();
    const DialogWatch watch([&](HWND dialog) {
        if (main == nullptr)
        {
            times.Main.push_back(MillisecondsSince(start));
            main = dialog;
            DialogWatch::SelectFirstRow(dialog, subject.List);
            start = Clock::now();
            DialogWatch::Press(dialog, subject.Configure);
        }
        else if (dialog != main && !hasConfigured)
        {
            times.Configure.push_back(MillisecondsSince(start));
            hasConfigured = true;
            DialogWatch::Press(dialog, IDCANCEL);
            DialogWatch::Press(main, IDCANCEL);
        }
    });
    component.Call(L"SynLoad", automation::ByRef(dtc), sides.HostSide().ConnectionString());
    if (!hasConfigured)
    {
        throw std::runtime_error("the configuration did not open");
    }
}

double Median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// The connection to Outlook that SynLoad makes before it shows the dialog.
double MillisecondsOfConnecting()
{
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i)
    {
        const Clock::time_point start = Clock::now();
        automation::Object::Create(L"Outlook.Application").GetObject(L"GetNamespace", L"MAPI");
        times.push_back(MillisecondsSince(start));
    }
    return Median(times);
}

void Add(Report& report, Table& table, const std::string& name, double component, double empty, int decimals)
{
    const Case of{"component", "", "", "", 0};
    report.Figure(of, name, component);
    report.Figure(of, name + " empty", empty);
    table.Add({name, Text(component, decimals), Text(empty, decimals), Text(component - empty, decimals)});
}

} // namespace

void MeasureComponent(const Plan& plan, Report& report)
{
    const Subject subjects[] = {{L"Telvix.dll", ClassOfComponent(), 2002, 2007},
                                {L"EmptyComponent.dll", kEmptyClass, IDC_EMPTY_LIST, IDC_EMPTY_CONFIGURE}};
    const DataFiles files(plan.OutOfProcess.front());
    Sides sides(files, Kinds().front(), Place::OutOfProcess);
    Times times[2];
    for (int round = 0; round < kRepetitions; ++round)
    {
        for (size_t i = 0; i < std::size(subjects); ++i)
        {
            const std::wstring path = FullPath(plan.X64, subjects[i].File);
            MeasureCreation(path, subjects[i], times[i]);
            MeasureDialogs(path, subjects[i], sides, times[i]);
        }
    }
    Table table({"", "component", "empty", "difference"});
    for (const auto& [name, folder] : {std::pair{"x64", plan.X64}, std::pair{"x86", plan.X86}})
    {
        Add(report, table, std::string("size of the DLL in KB, ") + name,
            SizeOf(folder, subjects[0].File) / 1024, SizeOf(folder, subjects[1].File) / 1024, 0);
    }
    const auto add = [&](const char* name, std::vector<double> Times::*which) {
        Add(report, table, name, Median(times[0].*which), Median(times[1].*which), 3);
    };
    add("ms, loading and creating the class", &Times::Load);
    add("ms, creating it again", &Times::Create);
    add("ms, opening the main dialog", &Times::Main);
    Add(report, table, "ms, of these connecting to Outlook", MillisecondsOfConnecting(), 0, 3);
    add("ms, opening the configuration", &Times::Configure);
    report.Print("The component as a whole", table);
}

} // namespace benchmarks
