#include <wx/access.h>
#include <wx/dataview.h>

#include <memory>
#include <utility>

#include "desktop/accessible.h"

namespace golf {
namespace {

// Holds what a screen reader says about a widget.
struct Spoken {
  wxString name;
  wxString description;
  wxAccRole role = wxROLE_NONE;  // the widget's own role
};

// Answers the questions about the widget itself that `Spoken` answers. `Base` answers all others.
template <class Base, class Widget>
class Speaking : public Base {
 public:
  explicit Speaking(Widget* widget) : Base(widget) {}

  wxAccStatus GetName(int child, wxString* name) override {
    if (child != wxACC_SELF || spoken.name.empty()) return Base::GetName(child, name);
    *name = spoken.name;
    return wxACC_OK;
  }
  wxAccStatus GetDescription(int child, wxString* description) override {
    if (child != wxACC_SELF) return Base::GetDescription(child, description);
    *description = spoken.description;
    return wxACC_OK;
  }
  wxAccStatus GetRole(int child, wxAccRole* role) override {
    if (child != wxACC_SELF || spoken.role == wxROLE_NONE) return Base::GetRole(child, role);
    *role = spoken.role;
    return wxACC_OK;
  }

  Spoken spoken;
};

using SpeakingWidget = Speaking<wxAccessible, wxWindow>;

// Says the whole row as its name, each cell after its heading. The toolkit's own object says only
// the first cell, and many rows can have the same first cell.
class SpeakingList : public Speaking<wxDataViewCtrlAccessible, wxDataViewCtrl> {
 public:
  using Speaking::Speaking;

  wxAccStatus GetName(int child, wxString* name) override {
    if (child == wxACC_SELF) return Speaking::GetName(child, name);
    wxString first;
    wxString others;
    const wxAccStatus status = Speaking::GetName(child, &first);
    if (status != wxACC_OK) return status;
    Speaking::GetDescription(child, &others);
    *name = others.empty() ? first : first + ", " + others;
    return wxACC_OK;
  }
  wxAccStatus GetDescription(int child, wxString* description) override {
    if (child == wxACC_SELF) return Speaking::GetDescription(child, description);
    description->clear();
    return wxACC_OK;
  }
};

Spoken& SpokenOf(wxWindow& widget) {
  if (auto* list = dynamic_cast<wxDataViewCtrl*>(&widget)) {
    if (dynamic_cast<SpeakingList*>(list->GetAccessible()) == nullptr) {
      list->SetAccessible(new SpeakingList(list));
    }
    return dynamic_cast<SpeakingList&>(*list->GetAccessible()).spoken;
  }
  if (dynamic_cast<SpeakingWidget*>(widget.GetAccessible()) == nullptr) {
    widget.SetAccessible(new SpeakingWidget(&widget));
  }
  return dynamic_cast<SpeakingWidget&>(*widget.GetAccessible()).spoken;
}

}  // namespace

void SetAccessibleName(wxWindow& widget, const wxString& name) {
  SpokenOf(widget).name = name;
  wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, &widget, wxOBJID_CLIENT, wxACC_SELF);
}

void SetAccessibleDescription(wxWindow& widget, const wxString& description) {
  SpokenOf(widget).description = description;
}

void SetAccessibleCellName(wxDataViewCtrl&, int, int, const wxString&) {}

void MakeAccessibleGroup(wxWindow& panel, const wxString& heading) {
  SpokenOf(panel).role = wxROLE_SYSTEM_GROUPING;
  SetAccessibleName(panel, heading);
}

void Announce(wxWindow& widget, const wxString& text) {
  SpokenOf(widget).role = wxROLE_SYSTEM_ALERT;
  SetAccessibleName(widget, text);
  wxAccessible::NotifyEvent(wxACC_EVENT_SYSTEM_ALERT, &widget, wxOBJID_CLIENT, wxACC_SELF);
}

}  // namespace golf
