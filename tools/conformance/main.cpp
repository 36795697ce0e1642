// "Conformance [--connection TEXT [--ado-only]]": asks Outlook, ADO and COM questions whose answers the
// component depends on, and prints a line for each: its name, the answer and, where Microsoft documents one,
// the documented answer with its page. Two runs on the same software print the same.
#include "automation/Error.h"
#include "automation/Text.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

using namespace conformance;

namespace
{

constexpr int kExitUsage = 2;

void Print(const std::wstring& line)
{
    std::printf("%s\n", automation::ToUtf8(line).c_str());
    std::fflush(stdout);
}

std::wstring LineOf(const Question& question, const std::wstring& answer)
{
    const std::wstring line = question.name + (L": " + answer);
    return question.documented == nullptr
               ? line
               : line + L" | documented: " + question.documented + L" (" + question.page + L")";
}

void Ask(std::span<const Question> questions, Scratch& scratch)
{
    for (const Question& question : questions)
    {
        std::wstring answer;
        // What a question needs before it can ask may fail too: that is an answer as well.
        const std::wstring failure = AnswerOf([&] {
            answer = question.ask(scratch);
            return automation::Value();
        });
        Print(LineOf(question, failure == L"empty" ? answer : failure));
        scratch.Empty();
    }
}

void AskAll(Scratch& scratch, bool withOutlook)
{
    if (withOutlook)
    {
        for (const auto questions : {ComQuestions(), ItemQuestions(), FilterQuestions(), ContactQuestions(),
                                     TaskQuestions(), AppointmentQuestions(), PatternQuestions()})
        {
            Ask(questions, scratch);
        }
    }
    if (!scratch.Connection().empty())
    {
        Ask(RecordsetQuestions(), scratch);
    }
}

bool Succeeds(const std::function<void()>& step)
{
    try
    {
        step();
        return true;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "Conformance: %s\n", error.what());
        return false;
    }
}

// The folders go, whatever became of the questions.
bool Run(const std::wstring& connection, bool withOutlook)
{
    bool isWhole = false;
    const bool hasStarted = Succeeds([&] {
        Scratch scratch(connection);
        isWhole = Succeeds([&] { AskAll(scratch, withOutlook); });
        scratch.Delete();
    });
    return hasStarted && isWhole;
}

std::vector<std::wstring> Arguments()
{
    int count = 0;
    wchar_t** texts = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(texts + 1, texts + count);
    LocalFree(texts);
    return arguments;
}

} // namespace

int main()
{
    const std::vector<std::wstring> arguments = Arguments();
    const size_t count = arguments.size();
    const bool hasConnection = count >= 2 && arguments[0] == L"--connection";
    const bool isAdoOnly = hasConnection && count == 3 && arguments[2] == L"--ado-only";
    if (count != 0 && !isAdoOnly && !(hasConnection && count == 2))
    {
        std::fprintf(stderr, "usage: Conformance [--connection TEXT [--ado-only]]\n");
        return kExitUsage;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const bool isWhole = Run(hasConnection ? arguments[1] : L"", !isAdoOnly);
    CoUninitialize();
    return isWhole ? EXIT_SUCCESS : EXIT_FAILURE;
}
