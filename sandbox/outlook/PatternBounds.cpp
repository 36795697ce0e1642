// From what a pattern takes its times where it does not state them: the appointment's start and end, or the
// day of the task.
#include "sandbox/outlook/PatternRules.h"

#include "sandbox/outlook/Clock.h"

namespace sandbox::outlook
{

automation::Date OwnStart(const ItemDraft& item)
{
    if (item.Kind() == ItemKind::Task)
    {
        const automation::Date due = item.Date(PropertyId::DueDate);
        const automation::Date start =
            due != automation::kOutlookNoDate ? due : item.Date(PropertyId::StartDate);
        return start != automation::kOutlookNoDate ? start : Today();
    }
    const Value* own = item.Find(PropertyId::Start);
    return own != nullptr ? automation::DateOf(*own) : automation::kOutlookNoDate;
}

automation::Date OwnEnd(const ItemDraft& item)
{
    if (item.Kind() == ItemKind::Task)
    {
        return OwnStart(item);
    }
    if (const Value* own = item.Find(PropertyId::End))
    {
        return automation::DateOf(*own);
    }
    const Value* duration = item.Find(PropertyId::Duration);
    return automation::PlusMinutes(
        OwnStart(item),
        automation::LongOf(duration != nullptr ? *duration : DefaultOf(PropertyId::Duration)));
}

} // namespace sandbox::outlook
