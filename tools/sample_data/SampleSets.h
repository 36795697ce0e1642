// The records of the sample data by where they are found, composed once.
#pragma once

#include "tools/sample_data/SampleMaker.h"

namespace tools
{

struct SampleSets
{
    SampleRecords mine;        // the host's first user
    SampleRecords theirs;      // the host's second user
    SampleRecords outlookOnly; // in Outlook's chosen folders, and not in the host
    SampleRecords elsewhere;   // in other folders of Outlook
};

const SampleSets& Samples();

// Which of the first user's records are in Outlook as well.
bool IsContactInOutlook(size_t index);
bool IsTaskInOutlook(size_t index);
bool IsEntryInOutlook(size_t index);

// How Outlook has one of these: every other one has changed there, though not in what it is matched by.
SampleContact AsInOutlook(SampleContact contact, size_t index);
SampleTask AsInOutlook(SampleTask task, size_t index);
SampleEntry AsInOutlook(SampleEntry entry, size_t index);

} // namespace tools
