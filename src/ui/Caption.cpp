#include "ui/Caption.h"

#include "resources/Strings.h"

namespace ui
{

std::wstring Caption::Text() const
{
    return mEnglish == nullptr ? resources::String(mResource) : resources::Choose(mChinese, mEnglish);
}

} // namespace ui
