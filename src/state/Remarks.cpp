#include "state/Remarks.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "resources/Strings.h"
#include "state/SharedState.h"

#include <utility>

namespace state
{

CollectsRemarks::CollectsRemarks(RemarkSink& sink) : mBefore(std::exchange(Shared().remarks, &sink)) {}

CollectsRemarks::~CollectsRemarks()
{
    Shared().remarks = mBefore;
}

void Tell(Remark remark) noexcept
{
    try
    {
        if (Shared().remarks != nullptr)
        {
            Shared().remarks->Take(std::move(remark));
        }
    }
    catch (const std::exception&)
    {
        LogError();
    }
}

void TellFailure(const std::exception& error, const std::wstring& field, long length) noexcept
{
    try
    {
        Remark remark{.Why = Cause::Failed, .Field = field, .Length = length};
        if (const auto* const raised = dynamic_cast<const automation::Error*>(&error))
        {
            remark.Field = field.empty() ? raised->Member() : field;
            remark.Words = raised->Description();
            remark.Code = raised->Code();
        }
        else
        {
            remark.Words = automation::FromUtf8(error.what());
            remark.Code = E_UNEXPECTED;
        }
        Tell(std::move(remark));
    }
    catch (const std::exception&)
    {
        LogError();
    }
}

} // namespace state
