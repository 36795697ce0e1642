// The list of changes with the fields of every record as a file of comma-separated values, for the record:
// UTF-8 with its mark, every cell in quotes. It is there whole or not at all: what is not finished is
// removed.
#pragma once

#include "preview/ChangeList.h"

#include <string>

#include <windows.h>

namespace preview
{

// A cell in quotes. A spreadsheet takes a text that begins with =, +, -, @, a tab or a carriage return for a
// formula, so an apostrophe goes before it.
std::wstring CsvCell(const std::wstring& text);

class CsvFile
{
  public:
    // Begins the file with a line of headers. Throws automation::Error when it cannot be written.
    explicit CsvFile(std::wstring path);
    CsvFile(const CsvFile&) = delete;
    CsvFile& operator=(const CsvFile&) = delete;
    ~CsvFile();

    // Adds a line for each field of an entry, or one line for an entry without fields; reads what it needs.
    // Throws automation::Error when the file cannot be written; a record that cannot be read is a note.
    void Add(ChangeList& list, size_t entry);
    // Gives the file its name. Throws as above.
    void Finish();

  private:
    void Write(const std::wstring& line);

    std::wstring mPath;
    HANDLE mFile;
};

} // namespace preview
