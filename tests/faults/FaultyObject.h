// A wrapper around every automation object that the component meets: the objects that come out of a wrapped
// one are wrapped too, so one chosen call of a whole run can be made to fail, whichever object it reaches.
#pragma once

#include "automation/Object.h"

#include <memory>
#include <string>

namespace test_support
{

enum class Fault
{
    Raises,     // the call is not made; it ends with an error
    AnswerLost, // the call is made, and its answer is an error, as when a connection breaks
    Refuses,    // one of the host's writes and queries is not made and answers a negative number
};

// Which call is to fail, and what has happened so far. Shared by all wrappers of a run.
struct Faults
{
    Fault Kind = Fault::Raises;
    long At = 0;    // the call that fails, counted from 1 among those that the kind can strike; 0: none
    long Calls = 0; // calls that the kind can strike, so far
    std::wstring StruckMember; // empty as long as none has failed
};

using FaultsRef = std::shared_ptr<Faults>;

// A wrapped object; nothing stays nothing. isHost: the host's data-access object, whose numbers are a status.
automation::Object WithFaults(const automation::Object& object, const FaultsRef& faults, bool isHost = false);

// For class objects: the creation of an object is a call too. Throws automation::Error when it is struck.
void CountCreation(Faults& faults);

// Wrappers alive in this process.
long LiveWrappers() noexcept;

} // namespace test_support
