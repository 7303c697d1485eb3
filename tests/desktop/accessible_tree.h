#pragma once

#include <wx/dataview.h>
#include <wx/window.h>

#include <optional>
#include <string>
#include <vector>

namespace golf {

// Describes what a screen reader learns about a widget. Texts are UTF-8.
struct AccessibleNode {
  std::string name;
  // Have no value if the system does not tell them in process. On Windows it tells only the texts
  // of entries.
  std::optional<std::string> value = {};  // the text of an entry, or the selected item of a list
  std::optional<bool> is_checked = {};
  bool is_control = false;  // the operator can use it, so it must have a name
  std::string label = {};   // the name of the label that belongs to it, if there is one
  std::vector<AccessibleNode> children = {};
};

// Returns the node of a widget without its children.
AccessibleNode NodeOf(wxWindow& widget);

// Returns the node of a window and of everything that is visible in it.
AccessibleNode TreeOf(wxWindow& window);

// Returns the rows of a list as a screen reader reads them.
std::vector<std::string> RowsOf(wxDataViewCtrl& list);

// Returns how a screen reader must read a row with this number, from 1, and with these headings and
// cells. A tick is "1" or "0".
std::string ReadRow(int row, const std::vector<std::string>& headings,
                    const std::vector<std::string>& cells);

}  // namespace golf
