#include <oleacc.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/gauge.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "desktop/accessible_tree.h"

namespace golf {
namespace {

// Holds the accessible object of a window. It must exist while a window is read.
class Object {
 public:
  explicit Object(const wxWindow& window) {
    AccessibleObjectFromWindow(window.GetHWND(), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               reinterpret_cast<void**>(&object_));
  }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  ~Object() {
    if (object_ != nullptr) object_->Release();
  }

  // `child` counts from 1; 0 is the window itself.
  std::string Name(long child) const { return Text(&IAccessible::get_accName, child); }
  std::string Value() const { return Text(&IAccessible::get_accValue, CHILDID_SELF); }
  long Children() const {
    long count = 0;
    if (object_ != nullptr) object_->get_accChildCount(&count);
    return count;
  }

 private:
  using Getter = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

  std::string Text(Getter getter, long child) const {
    VARIANT id;
    id.vt = VT_I4;
    id.lVal = child;
    BSTR text = nullptr;
    if (object_ == nullptr || (object_->*getter)(id, &text) != S_OK || text == nullptr) return "";
    const std::string utf8 = wxString(text).utf8_string();
    SysFreeString(text);
    return utf8;
  }

  IAccessible* object_ = nullptr;
};

bool IsControl(const wxWindow& widget) {
  for (const wxClassInfo* type :
       {wxCLASSINFO(wxButton), wxCLASSINFO(wxCheckBox), wxCLASSINFO(wxRadioButton),
        wxCLASSINFO(wxChoice), wxCLASSINFO(wxComboBox), wxCLASSINFO(wxListBox),
        wxCLASSINFO(wxNotebook), wxCLASSINFO(wxTextCtrl), wxCLASSINFO(wxGauge),
        wxCLASSINFO(wxDataViewCtrl)}) {
    if (widget.IsKindOf(type)) return true;
  }
  return false;
}

}  // namespace

AccessibleNode NodeOf(wxWindow& widget) {
  const Object object(widget);
  AccessibleNode node{.name = object.Name(CHILDID_SELF), .is_control = IsControl(widget)};
  if (widget.IsKindOf(wxCLASSINFO(wxTextCtrl))) node.value = object.Value();
  return node;
}

AccessibleNode TreeOf(wxWindow& window) {
  AccessibleNode node = NodeOf(window);
  if (window.IsKindOf(wxCLASSINFO(wxDataViewCtrl))) return node;
  for (wxWindow* child : window.GetChildren()) {
    if (child->IsShownOnScreen() && !child->IsTopLevel()) node.children.push_back(TreeOf(*child));
  }
  return node;
}

std::vector<std::string> RowsOf(wxDataViewCtrl& list) {
  const Object object(list);
  std::vector<std::string> rows;
  for (long row = 1; row <= object.Children(); ++row) rows.push_back(object.Name(row));
  return rows;
}

std::string ReadRow(int row, const std::vector<std::string>& headings,
                    const std::vector<std::string>& cells) {
  std::string first;
  std::string others;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (cells[i].empty()) continue;
    const bool is_tick = headings[i] == "Copy to >>";
    if (first.empty() && !is_tick) {
      first = cells[i];
    } else {
      const std::string text = !is_tick ? cells[i] : cells[i] == "1" ? "checked" : "unchecked";
      others += (others.empty() ? "" : ", ") + headings[i] + ": " + text;
    }
  }
  if (first.empty()) first = "Row " + std::to_string(row);
  return others.empty() ? first : first + ", " + others;
}

}  // namespace golf
