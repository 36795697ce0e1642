// The sample data: a host's database and an Outlook mailbox that have part of their records in common, made
// for being looked at; and plain numbered data of any size for measuring. Each file is written whole or not
// at all; automation::Error tells why it could not be.
#pragma once

#include "sandbox/host/Catalogue.h"
#include "tools/sample_data/SampleMaker.h"

#include <string>

namespace tools
{

// The folders that the sample host's first user has chosen, by kind of data.
inline constexpr const wchar_t* kContactsFolder = L"Mailbox\\Contacts";
inline constexpr const wchar_t* kTasksFolder = L"Mailbox\\Tasks";
inline constexpr const wchar_t* kCalendarFolder = L"Mailbox\\Calendar";

void WriteSampleHost(const std::wstring& path, sandbox::Edition edition);
void WriteSampleMailbox(const std::wstring& path);

// So many contacts, tasks and entries on each side, half of them the same on both.
void WriteNumberedHost(const std::wstring& path, sandbox::Edition edition, size_t count);
void WriteNumberedMailbox(const std::wstring& path, size_t count);

} // namespace tools
