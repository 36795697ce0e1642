// The questions: each has a name, a way to ask it, and where Microsoft's documentation answers it, that
// answer with the page that gives it.
#pragma once

#include "tools/conformance/Scratch.h"

#include <span>
#include <string>

namespace conformance
{

struct Question
{
    const wchar_t* name;
    std::wstring (*ask)(Scratch& scratch);
    const wchar_t* documented = nullptr;
    const wchar_t* page = nullptr;
};

std::span<const Question> ComQuestions();
std::span<const Question> ItemQuestions();
std::span<const Question> FilterQuestions();
std::span<const Question> ContactQuestions();
std::span<const Question> TaskQuestions();
std::span<const Question> AppointmentQuestions();
std::span<const Question> PatternQuestions();
// Without a connection of ADO none of them is asked.
std::span<const Question> RecordsetQuestions();

} // namespace conformance
