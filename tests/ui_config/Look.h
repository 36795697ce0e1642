// Reads and operates the controls that only the configuration dialogs have.
#pragma once

#include "tools/robot/ShownDialog.h"

#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

namespace ui_config_tests
{

using tools::ShownDialog;

// List views: the check box before a row; the picture's index in a cell, -1 for none.
bool IsChecked(const ShownDialog& dialog, int list, int row);
int PictureOf(const ShownDialog& dialog, int list, int row, int column);
int SelectedRow(const ShownDialog& dialog, int list);

// Option buttons and check boxes.
bool IsSet(const ShownDialog& dialog, int button);

// List boxes.
std::vector<std::wstring> Entries(const ShownDialog& dialog, int list);
// Chooses an entry as a user does, with its notification.
void ChooseEntry(const ShownDialog& dialog, int list, int entry);

// Lists and trees: whether the control has been given the looks of the system's own ones.
bool HasExplorerTheme(HWND control);
// Labels: the lines of room that the text leaves in the control.
int EmptyLines(const ShownDialog& dialog, int label);

// Tree views. The texts of the nodes below a node (null: at the top), those not opened yet excluded.
HTREEITEM FindNode(const ShownDialog& dialog, int tree, HTREEITEM parent, const std::wstring& text);
std::vector<std::wstring> NodesBelow(const ShownDialog& dialog, int tree, HTREEITEM parent);
std::wstring NodeText(const ShownDialog& dialog, int tree, HTREEITEM node);
void SelectNode(const ShownDialog& dialog, int tree, HTREEITEM node);
HTREEITEM SelectedNode(const ShownDialog& dialog, int tree);
// A double click of the mouse on a node's text.
void DoubleClickNode(const ShownDialog& dialog, int tree, HTREEITEM node);

} // namespace ui_config_tests
