// Tests every control of every screen with the events of its own widget. An event must reach the
// screen exactly if the operator can reach the control.

#include <wx/app.h>
#include <wx/dataview.h>
#include <wx/dialog.h>

#include "desktop/demo_desktop.h"
#include "desktop/grid_widget.h"
#include "desktop/widgets.h"

namespace golf {
namespace {

using Controls = std::vector<Control*>;

// Describes an action of the operator on a widget, as the toolkit reports it.
struct Deed {
  std::string what;
  std::function<void()> done;
};

template <class Event>
void Send(wxWindow& widget, Event event) {
  event.SetEventObject(&widget);
  widget.HandleWindowEvent(event);
  wxTheApp->ProcessPendingEvents();
}

void SendKey(wxWindow& widget, const wxEventTypeTag<wxKeyEvent>& type, int key) {
  wxKeyEvent event(type);
  event.m_keyCode = key;
  Send(widget, event);
}

// Describes a command event of a widget. It chooses the first item or enters a text.
struct Command {
  const wxClassInfo* widget;
  const wxEventTypeTag<wxCommandEvent>& type;
  const char* what;
};
const Command kCommands[] = {
    {wxCLASSINFO(wxButton), wxEVT_BUTTON, "click"},
    {wxCLASSINFO(wxCheckBox), wxEVT_CHECKBOX, "tick"},
    {wxCLASSINFO(wxRadioButton), wxEVT_RADIOBUTTON, "click"},
    {wxCLASSINFO(wxListBox), wxEVT_LISTBOX, "choice"},
    {wxCLASSINFO(wxListBox), wxEVT_LISTBOX_DCLICK, "double click"},
    {wxCLASSINFO(wxComboBox), wxEVT_COMBOBOX, "choice"},
    {wxCLASSINFO(wxComboBox), wxEVT_TEXT, "text"},
    {wxCLASSINFO(wxChoice), wxEVT_CHOICE, "choice"},
    {wxCLASSINFO(wxTextCtrl), wxEVT_TEXT, "text"},
};

void AddDeeds(wxDataViewCtrl& list, std::vector<Deed>& deeds) {
  auto& model = dynamic_cast<wxDataViewVirtualListModel&>(*list.GetModel());
  deeds.push_back(
      {"row", [&list, &model] {
         list.SetCurrentItem(model.GetItem(1));
         list.Select(model.GetItem(1));
         Send(list, wxDataViewEvent(wxEVT_DATAVIEW_SELECTION_CHANGED, &list, model.GetItem(1)));
       }});
  for (const auto& [what, type] : {std::pair("double click", wxEVT_DATAVIEW_ITEM_ACTIVATED),
                                   std::pair("heading", wxEVT_DATAVIEW_COLUMN_HEADER_CLICK)}) {
    wxDataViewEvent event(type, &list, list.GetColumn(0), model.GetItem(0));
    deeds.push_back({what, [&list, event] { Send(list, event); }});
  }
  for (unsigned i = 0; i < list.GetColumnCount(); ++i) {
    const unsigned column = list.GetColumn(i)->GetModelColumn();
    if (list.GetColumn(i)->GetRenderer()->GetVariantType() != "bool") continue;
    deeds.push_back({"tick", [&model, column] { model.SetValueByRow(true, 1, column); }});
  }
  for (const int key : {WXK_RETURN, WXK_INSERT, WXK_DELETE}) {
    deeds.push_back(
        {"key " + std::to_string(key), [&list, key] { SendKey(list, wxEVT_CHAR_HOOK, key); }});
  }
}

std::vector<Deed> DeedsOf(wxWindow& widget) {
  std::vector<Deed> deeds = {{"focus", [&widget] { Send(widget, wxFocusEvent(wxEVT_SET_FOCUS)); }}};
  const auto add_key = [&](wxWindow& window, const wxEventTypeTag<wxKeyEvent>& type, int key) {
    deeds.push_back(
        {"key " + std::to_string(key), [&window, &type, key] { SendKey(window, type, key); }});
  };
  for (const Command& command : kCommands) {
    if (!widget.IsKindOf(command.widget)) continue;
    // A combo box may also have the class of a choice.
    if (command.type == wxEVT_CHOICE && widget.IsKindOf(wxCLASSINFO(wxComboBox))) continue;
    deeds.push_back({command.what, [&widget, &command] {
                       wxCommandEvent event(command.type, widget.GetId());
                       event.SetString("typed");
                       Send(widget, event);
                     }});
  }
  // Escape does nothing in the main window.
  if (widget.IsKindOf(wxCLASSINFO(wxButton)) &&
      wxGetTopLevelParent(&widget)->IsKindOf(wxCLASSINFO(wxDialog))) {
    add_key(*wxGetTopLevelParent(&widget), wxEVT_CHAR_HOOK, WXK_ESCAPE);
  }
  if (widget.IsKindOf(wxCLASSINFO(wxListBox))) add_key(widget, wxEVT_CHAR_HOOK, WXK_RETURN);
  if (widget.IsKindOf(wxCLASSINFO(wxNotebook))) {
    const wxBookCtrlEvent turned(wxEVT_NOTEBOOK_PAGE_CHANGED, widget.GetId(), 0);
    deeds.push_back({"page", [&widget, turned] { Send(widget, turned); }});
  }
  if (auto* grid = dynamic_cast<wxGrid*>(&widget)) {
    const wxGridEvent event(grid->GetId(), wxEVT_GRID_SELECT_CELL, grid, 1, 0);
    deeds.push_back({"row", [grid, event] { Send(*grid, event); }});
    deeds.push_back({"text", [grid] { grid->GetTable()->SetValue(0, 0, "typed"); }});
  }
  if (auto* list = dynamic_cast<wxDataViewCtrl*>(&widget)) AddDeeds(*list, deeds);
  return deeds;
}

// Returns the outermost control that contains a control, or the control itself.
const Control& OutermostHolder(const Control& control) {
  return control.parent() == nullptr ? control : OutermostHolder(*control.parent());
}

// Replaces the event handlers of a screen by ones that only count their calls.
class CountingScreen {
 public:
  CountingScreen(Screen& screen, BoxlessHost& host) : screen_(screen), host_(host) {
    for (Control* control : screen.controls()) {
      Count(*control);
      named_[control->name()].push_back(control);
    }
  }

  void TryAll(wxWindow& window) {
    for (const auto& [name, controls] : named_) {
      if (!TakesInput(*controls.front())) continue;
      SCOPED_TRACE(screen_.name() + " " + name);
      Try(controls, WidgetsNamed(window, name));
    }
  }
  int tried() const { return tried_; }

 private:
  template <class Event>
  void CountEvent(Event& event) {
    event = [this](auto&&...) { ++ran_; };
  }

  void Count(Control& control) {
    CountEvent(control.on_enter);
    CountEvent(control.on_leave);
    control.on_key = [this](std::string_view) { return ++ran_ > 0; };
    if (auto* button = dynamic_cast<Button*>(&control)) CountEvent(button->on_click);
    if (auto* toggle = dynamic_cast<Toggle*>(&control)) CountEvent(toggle->on_click);
    if (auto* text = dynamic_cast<TextBox*>(&control)) CountEvent(text->on_change);
    if (auto* tab = dynamic_cast<Tab*>(&control)) CountEvent(tab->on_click);
    if (auto* list = dynamic_cast<List*>(&control)) {
      CountEvent(list->on_click);
      CountEvent(list->on_double_click);
      list->AddItem("the last");
    }
    if (auto* grid = dynamic_cast<Grid*>(&control)) {
      CountEvent(grid->on_row_change);
      CountEvent(grid->on_double_click);
      CountEvent(grid->on_change);
      CountEvent(grid->on_heading_click);
      grid->SetRows(std::max(grid->rows(), 2));
    }
  }

  static bool TakesInput(const Control& control) {
    return control.kind() != ControlKind::kLabel && control.kind() != ControlKind::kFrame &&
           control.kind() != ControlKind::kTimer;
  }

  // Makes a control and everything that contains it reachable.
  static void Reach(Control& control) {
    if (control.parent() != nullptr) Reach(*control.parent());
    control.SetVisible(true);
    control.SetEnabled(true);
    auto* tab = dynamic_cast<Tab*>(control.parent());
    for (int page = 0; !control.IsShown(); ++page) ASSERT_TRUE(tab->Choose(page));
  }
  static void Reach(const Controls& controls) {
    for (Control* control : controls) Reach(*control);
  }

  // Returns a control that can keep the focus while the given controls appear and disappear.
  Control& Elsewhere(const Controls& controls) {
    const auto stays = [&](const auto& named) {
      const Control& other = *named.second.front();
      return TakesInput(other) &&
             std::none_of(controls.begin(), controls.end(), [&](auto* control) {
               return &OutermostHolder(other) == &OutermostHolder(*control);
             });
    };
    return *std::find_if(named_.begin(), named_.end(), stays)->second.front();
  }

  // Clears all controls, since an action that changes nothing causes no event.
  void Blank() {
    for (Control* control : screen_.controls()) {
      if (auto* text = dynamic_cast<TextBox*>(control)) text->SetText("");
      auto* grid = dynamic_cast<Grid*>(control);
      if (grid == nullptr) continue;
      grid->SetActiveRow(1);
      for (int column = 0; column <= grid->columns(); ++column) grid->SetText(column, 1, "");
    }
  }

  // True if the action has run an event handler or moved the focus.
  bool GetsThrough(const Deed& deed, Control& elsewhere) {
    Blank();
    Reach(elsewhere);
    screen_.MoveFocus(&elsewhere);
    host_.PaintNow();
    ran_ = 0;
    deed.done();
    return ran_ > 0 || screen_.focus() != &elsewhere;
  }

  void Try(const Controls& controls, const std::vector<wxWindow*>& widgets) {
    for (Control* control : screen_.controls()) {  // Escape presses these buttons and no others
      auto* button = dynamic_cast<Button*>(control);
      const bool tried = std::find(controls.begin(), controls.end(), control) != controls.end();
      if (button != nullptr) button->SetCancel(tried);
    }
    Control& elsewhere = Elsewhere(controls);
    Reach(elsewhere);
    const bool leaves = controls.front() == screen_.LeaveButton() && !screen_.PanelLeaveButton();
    for (wxWindow* widget : widgets) {
      std::vector<Deed> deeds = DeedsOf(*widget);
      if (leaves) deeds.push_back({"close", [widget] { wxGetTopLevelParent(widget)->Close(); }});
      for (const Deed& deed : deeds) {
        SCOPED_TRACE(deed.what);
        Try(deed, controls, elsewhere);
      }
    }
  }

  void Try(const Deed& deed, const Controls& controls, Control& elsewhere) {
    Reach(controls);
    EXPECT_TRUE(GetsThrough(deed, elsewhere));
    ++tried_;
    Controls holders;
    for (const Control* control : controls) {
      if (control->parent() != nullptr) holders.push_back(control->parent());
    }
    for (const Controls& gone : {controls, holders}) {
      for (void (Control::*set)(bool) : {&Control::SetVisible, &Control::SetEnabled}) {
        for (Control* control : gone) (control->*set)(false);
        EXPECT_EQ(GetsThrough(deed, elsewhere), gone.empty());
        Reach(controls);
      }
    }
  }

  Screen& screen_;
  BoxlessHost& host_;
  std::map<std::string, Controls> named_;
  int ran_ = 0;
  int tried_ = 0;
};

TEST(ReachTest, OnlyWhatCanBeReachedHasEvents) {
  for (const auto& view : Views()) {
    Demo<BoxlessHost> demo;
    wxTopLevelWindow& window = demo.Show(view.first);
    CountingScreen counting(demo.host.Load(view.first), demo.host);
    counting.TryAll(window);
    EXPECT_GE(counting.tried(), 6) << view.first;
  }
}

}  // namespace
}  // namespace golf
