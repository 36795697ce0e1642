// A list view that keeps no texts: it asks for those of the rows that it shows. For lists of any length; its
// template has the style LVS_OWNERDATA.
#pragma once

#include "ui/ListView.h"

#include <functional>
#include <string>

namespace ui
{

class VirtualListView : public ListView
{
  public:
    using ListView::ListView;
    using TextOfCell = std::function<std::wstring(int row, int column)>;

    // Shows so many rows; the texts are asked for whenever they are painted or read.
    void Show(int rows, TextOfCell textOf);

    // Answers the control's question for a text; false for any other notification.
    bool Answer(const NMHDR& notification) const;

  private:
    TextOfCell mTextOf;
};

} // namespace ui
