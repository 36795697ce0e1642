// Where the questions are asked: folders of their own below the user's default folders, made when they are
// first needed and deleted at the end with everything in them. Nothing else in the mailbox is read or
// changed.
#pragma once

#include "automation/Object.h"

#include <map>
#include <string>
#include <utility>

namespace conformance
{

enum class Kind
{
    Contact,
    Task,
    Appointment,
};

class Scratch
{
  public:
    // connection: of ADO; empty for none.
    explicit Scratch(std::wstring connection) : mConnection(std::move(connection)) {}
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    // Outlook's, which is started when it is first asked for. Throws automation::Error where it cannot be.
    const automation::Object& Session();
    const std::wstring& Connection() const noexcept { return mConnection; }

    const automation::Object& Folder(Kind kind);
    automation::Object Items(Kind kind) { return Folder(kind).GetObject(L"Items"); }
    // A new item, not saved; saved, with this subject (contacts: this full name).
    automation::Object New(Kind kind) { return Items(kind).GetObject(L"Add"); }
    automation::Object Saved(Kind kind, const std::wstring& name);
    // Removes every item of the folders.
    void Empty();
    // Deletes the folders. Throws automation::Error where one cannot be deleted.
    void Delete();

  private:
    std::wstring mConnection;
    automation::Object mSession;
    std::map<Kind, automation::Object> mFolders;
};

} // namespace conformance
