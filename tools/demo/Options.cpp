#include "tools/demo/Options.h"

#include "automation/Text.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace tools::demo
{

Options ParseOptions(const std::vector<std::wstring>& arguments)
{
    Options options;
    const std::map<std::wstring, std::function<void(const std::wstring&)>> withValue{
        {L"--host", [&](const auto& value) { options.HostFile = value; }},
        {L"--mailbox", [&](const auto& value) { options.MailboxFile = value; }},
        {L"--category", [&](const auto& value) { options.Categories.push_back(value); }},
        {L"--direction", [&](const auto& value) { options.TransType = std::stol(value); }},
        {L"--conflict", [&](const auto& value) { options.ConflictOption = std::stol(value); }},
        {L"--screens", [&](const auto& value) { options.ScreensFolder = value; }},
    };
    const std::map<std::wstring, bool Options::*> flags{
        {L"--prepare", &Options::Prepare},         {L"--decline", &Options::Decline},
        {L"--interactive", &Options::Interactive}, {L"--tour", &Options::Tour},
        {L"--details", &Options::Details},
    };
    for (size_t i = 0; i < arguments.size(); ++i)
    {
        const auto valued = withValue.find(arguments[i]);
        const auto flag = flags.find(arguments[i]);
        if (valued != withValue.end() && i + 1 < arguments.size())
        {
            valued->second(arguments[++i]);
        }
        else if (flag != flags.end())
        {
            options.*flag->second = true;
        }
        else
        {
            throw std::invalid_argument("unknown argument: " + automation::ToUtf8(arguments[i]));
        }
    }
    return options;
}

} // namespace tools::demo
