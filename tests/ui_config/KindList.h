// Fixture of the dialog with the list of kinds.
#pragma once

#include "config/dialogs/FrmConfigure.h"
#include "config/dialogs/Pictures.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

namespace ui_config_tests
{

using config::Pictures;

inline constexpr int kKindList = IDC_CONFIGURE_LIST;
inline constexpr int kContact = 0;
inline constexpr int kTask = 1;
inline constexpr int kCalendar = 2;

class KindList : public testing::TestWithParam<Language>
{
  protected:
    std::wstring Caption() const { return In(GetParam(), L"Config Translation", L"配置同步传输"); }
    std::wstring ChooseCaption(const wchar_t* english, const wchar_t* chinese) const
    {
        return In(GetParam(), english, chinese);
    }

    Ground mGround{GetParam()};
};

} // namespace ui_config_tests
