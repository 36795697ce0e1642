// The row of controls above the list of changes by which the user searches and sorts it.
#pragma once

#include "preview/ChangeList.h"
#include "ui/Choices.h"
#include "ui/Control.h"

namespace preview
{

class ArrangementBar
{
  public:
    ArrangementBar(const ui::Dialog& dialog, const exchange::Kind& kind) noexcept;

    // Writes the captions and fills the combo boxes with the columns. Call once.
    void SetUp();

    // The arrangement that the controls ask for.
    Arrangement Chosen() const;
    void Show(const Arrangement& arrangement);
    // Chooses an order and leaves the search.
    void ChooseOrder(Column column, bool isDescending);

    void Enable(bool enabled);

  private:
    const exchange::Kind& mKind;
    ui::Label lblSearch;
    ui::TextBox txtSearch;
    ui::Label lblColumn;
    ui::ComboBox cmbColumn;
    ui::Label lblOrder;
    ui::ComboBox cmbOrder;
};

} // namespace preview
