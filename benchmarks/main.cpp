// Measures the component against the bare calls that its work consists of, and against an empty component.
// Started by the script "bench", which sets everything up.
#include "automation/Error.h"
#include "benchmarks/Parts.h"
#include "sandbox/outlook/Classes.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <set>

#include <windows.h>

#include <objbase.h>

namespace
{

using namespace benchmarks;

constexpr int kUsage = 2;

struct PartRow
{
    const char* Name;
    void (*Measure)(const Plan& plan, Report& report);
};

constexpr PartRow kParts[] = {
    {"collection", MeasureCollection}, {"apply", MeasureApply},         {"ids", MeasureIds},
    {"display", MeasureDisplay},       {"component", MeasureComponent},
};

struct Options
{
    std::vector<std::string> Names; // output, folders
    std::set<std::string> Parts;    // empty for all
    std::vector<size_t> Records;    // empty for those of the plan
    bool IsQuick = false;
    bool IsPatient = false;
};

Options Parsed(int count, char** arguments)
{
    Options options;
    for (int i = 1; i < count; ++i)
    {
        const std::string argument = arguments[i];
        if (argument == "--quick")
        {
            options.IsQuick = true;
        }
        else if (argument == "--all")
        {
            options.IsPatient = true;
        }
        else if (argument == "--part" && i + 1 < count)
        {
            options.Parts.insert(arguments[++i]);
        }
        else if (argument == "--records" && i + 1 < count)
        {
            options.Records.push_back(std::stoul(arguments[++i]));
        }
        else
        {
            options.Names.push_back(argument);
        }
    }
    return options;
}

void Run(const Options& options)
{
    Plan plan = options.IsQuick ? QuickPlan() : FullPlan();
    if (options.IsPatient)
    {
        plan.ApplyPatience = std::numeric_limits<double>::infinity();
    }
    if (!options.Records.empty())
    {
        // A round trip takes a thousand times as long as a call in process.
        const size_t most = plan.OutOfProcess.back();
        plan.OutOfProcess.clear();
        std::ranges::copy_if(options.Records, std::back_inserter(plan.OutOfProcess),
                             [&](size_t records) { return records <= most; });
        plan.InProcess = plan.ApplyInProcess = options.Records;
    }
    plan.X64 = options.Names[1];
    plan.X86 = options.Names[2];
    Report report(options.Names[0] + ".csv", options.Names[0] + ".md");
    automation::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), L"CoInitializeEx");
    {
        // Keeps the Outlook server from starting anew for every object.
        const auto control = automation::Object::Create(sandbox::outlook::kControlProgId);
        for (const PartRow& part : kParts)
        {
            if (options.Parts.empty() || options.Parts.contains(part.Name))
            {
                part.Measure(plan, report);
            }
        }
    }
    CoUninitialize();
}

} // namespace

// Writes OUTPUT.csv and OUTPUT.md; the folders have the component and the empty one, by architecture.
int main(int count, char** arguments)
{
    const Options options = Parsed(count, arguments);
    if (options.Names.size() != 3)
    {
        std::fputs(
            "usage: Bench OUTPUT X64-FOLDER X86-FOLDER [--quick | --all] [--part NAME]... [--records N]...\n",
            stderr);
        return kUsage;
    }
    try
    {
        GetDesktopWindow(); // before a second thread starts
        Run(options);
        return EXIT_SUCCESS;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "bench: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
