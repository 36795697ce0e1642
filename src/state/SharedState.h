// The state that all instances of the component's class and all its dialogs share on one thread (apartment):
// the host's and Outlook's objects while the dialog is open, the display and calendar values, the loaded
// parameters. It outlives the instances and ends with its thread, or with the module.
#pragma once

#include "automation/Object.h"
#include "state/SynParameter.h"

#include <string>

namespace state
{

class RemarkSink;

struct SharedState
{
    automation::Object gDTC; // the host's data-access object
    std::wstring gCnnString; // the host's connection string
    automation::Object gOlApplication;
    automation::Object gOlNamespace;

    automation::Date gCalendarStartTime; // time of day
    automation::Date gCalendarEndTime;   // time of day
    long gCalendarPreviewAlarmTime = 0;  // minutes

    std::wstring gFontName;
    long gFontSize = 0; // points
    automation::Object gFont;

    SynParameter gSynParameter;       // of the run
    SynParameter gConfigureParameter; // of the configuration dialogs
    bool gChangesAccepted = false;    // the user's answer to the confirmation dialog

    bool isLoading = false; // a call of SynLoad has not returned yet

    RemarkSink* remarks = nullptr; // of the run that is under way
};

// The calling thread's state, made on first use.
SharedState& Shared();
// The record that the thread's configuration dialogs edit.
SynParameter& EditedParameter();

// For the module's entry point: the thread ends, the module is unloaded.
void FreeStateOfThread() noexcept;
void FreeStateOfAllThreads() noexcept;

} // namespace state
