// A font object of the host's own: unlike the system's, it keeps the name of a font that is not installed,
// and it is counted. Header only; for programs of tests that link sandbox_dispatch.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <memory>
#include <string>

namespace test_support
{

struct FontValues
{
    std::wstring name = L"Tahoma";
    double size = 9;
};

class HostFont : public sandbox::DispatchObject
{
  public:
    explicit HostFont(std::shared_ptr<FontValues> values) : mValues(std::move(values)) {}

  private:
    automation::Value GetName(const sandbox::Call&) { return mValues->name; }
    void PutName(const sandbox::Call& call) { mValues->name = automation::TextOf(call.Assigned()); }
    automation::Value GetSize(const sandbox::Call&) { return mValues->size; }
    void PutSize(const sandbox::Call& call) { mValues->size = automation::DoubleOf(call.Assigned()); }

    const wchar_t* ClassName() const override { return L"Font"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable table{
            {L"Name", sandbox::Reads(&HostFont::GetName), sandbox::Writes(&HostFont::PutName)},
            {L"Size", sandbox::Reads(&HostFont::GetSize), sandbox::Writes(&HostFont::PutSize)},
        };
        return table;
    }

    std::shared_ptr<FontValues> mValues;
};

} // namespace test_support
