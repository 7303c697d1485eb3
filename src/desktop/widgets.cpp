#include "desktop/widgets.h"

#include <algorithm>
#include <utility>

#include "desktop/accessible.h"
#include "desktop/colours.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

constexpr std::size_t kMostInDropDown = 500;
constexpr int kLongListLines = 6;

// Is a text that does not label the next widget. GTK would make each text such a label, and a
// screen reader would say it before the widget.
class PlainText : public wxStaticText {
 public:
  PlainText(wxWindow* parent, const wxString& text, long style)
      : wxStaticText(parent, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, style) {}
#ifdef __WXGTK__
  bool GTKWidgetNeedsMnemonic() const override { return false; }
#endif
};

wxStaticText* NewText(wxWindow* parent, long style) { return new PlainText(parent, "", style); }

wxString TextToShow(const std::string& text, Shown shown) {
  return WxText(shown == nullptr ? text : shown(text));
}

// Connects a list control to a widget of any type.
template <class Widget>
void BindList(Binding& binding, List& control, Widget& widget,
              wxEventTypeTag<wxCommandEvent> chosen, Shown shown) {
  binding.Bind(control, widget, [&widget, &control, shown] {
    wxArrayString items;
    for (const std::string& item : control.items()) items.Add(TextToShow(item, shown));
    if (widget.GetStrings() != items) widget.Set(items);
    widget.SetSelection(control.index());
  });
  widget.Bind(chosen, [&binding, &control](wxCommandEvent& event) {
    const int index = event.GetSelection();
    binding.OperateSoon(control, [&control, index] { control.Select(index); });
  });
}

}  // namespace

wxStaticText* MakeText(wxWindow* parent, const wxString& text) {
  return new PlainText(parent, text, 0);
}

wxStaticText* MakeLabel(Binding& binding, wxWindow* parent, Label& control, Shown shown) {
  wxStaticText* text = NewText(parent, wxST_ELLIPSIZE_END);
  binding.Bind(control, *text, [text, &control, shown] {
    text->SetLabelText(TextToShow(control.caption(), shown));
    text->GetParent()->Layout();
  });
  return text;
}

wxStaticText* MakePathLabel(Binding& binding, wxWindow* parent, Label& control, int width) {
  wxStaticText* text = NewText(parent, wxST_ELLIPSIZE_START | wxST_NO_AUTORESIZE);
  text->SetMinSize({width, -1});
  binding.Bind(control, *text, [text, &control] {
    text->SetLabelText(WxText(control.caption()));
    text->SetToolTip(WxText(control.caption()));
  });
  // On Windows the shortened text would be the name.
  return NameBy(binding, text, [&control] { return WxText(control.caption()); });
}

wxStaticText* MakeFieldLabel(Binding& binding, wxWindow* parent, Label& control) {
  auto* text = new wxStaticText(parent, wxID_ANY, "");
  binding.Bind(control, *text, [text, &control] { text->SetLabel(WxText(control.caption())); });
  return text;
}

wxStaticText* MakeWrappedLabel(Binding& binding, wxWindow* parent, Label& control, int width) {
  wxStaticText* text = NewText(parent, 0);
  binding.Bind(control, *text, [text, &control, width] {
    text->SetLabelText(WxText(control.caption()));
    text->Wrap(width);
  });
  return text;
}

wxButton* MakeButton(Binding& binding, wxWindow* parent, Button& control) {
  auto* button = new wxButton(parent, wxID_ANY, WxText(control.caption()));
  binding.Bind(control, *button, [button, parent, &control] {
    const wxString caption = WxText(control.caption());
    if (button->GetLabel() != caption) {
      button->SetLabel(caption);
      parent->Layout();
    }
    if (control.is_default()) button->SetDefault();
  });
  button->Bind(wxEVT_BUTTON, [&binding, &control](wxCommandEvent&) {
    binding.Operate(control, [&control] { control.Click(); });
  });
  return button;
}

wxCheckBox* MakeCheckBox(Binding& binding, wxWindow* parent, CheckBox& control) {
  auto* box = new wxCheckBox(parent, wxID_ANY, WxText(control.caption()));
  binding.Bind(control, *box, [box, &control] {
    box->SetLabel(WxText(control.caption()));
    box->SetValue(control.value());
  });
  box->Bind(wxEVT_CHECKBOX, [&binding, &control](wxCommandEvent& event) {
    binding.Operate(control, [&control, &event] { control.Choose(event.IsChecked()); });
  });
  return box;
}

wxRadioButton* MakeOption(Binding& binding, wxWindow* parent, OptionButton& control, long style) {
  auto* button = new wxRadioButton(parent, wxID_ANY, WxText(control.caption()), wxDefaultPosition,
                                   wxDefaultSize, style);
  binding.Bind(control, *button, [button, &control] { button->SetValue(control.value()); });
  button->Bind(wxEVT_RADIOBUTTON, [&binding, &control](wxCommandEvent&) {
    binding.Operate(control, [&control] { control.Choose(true); });
  });
  return button;
}

wxListBox* MakeListBox(Binding& binding, wxWindow* parent, ListBox& control, Shown shown) {
  auto* list = new wxListBox(parent, wxID_ANY);
  BindList(binding, control, *list, wxEVT_LISTBOX, shown);
  // The event waits, since the same key would otherwise also press the button that then gets the
  // focus. One key may cause both of the following events. The list is already hidden at the second
  // one, which is refused then.
  list->Bind(wxEVT_LISTBOX_DCLICK, [&binding, &control](wxCommandEvent&) {
    if (control.on_double_click) binding.OperateSoon(control, control.on_double_click);
  });
  list->Bind(wxEVT_CHAR_HOOK, [&binding, &control](wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool enter = key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
    if (enter && control.on_key) {
      return binding.OperateSoon(control, [&control] { control.on_key("Enter"); });
    }
    if (!enter || !control.on_double_click) return event.Skip();
    binding.OperateSoon(control, control.on_double_click);
  });
  return list;
}

wxChoice* MakeChoice(Binding& binding, wxWindow* parent, ComboBox& control, Shown shown) {
  auto* choice = new wxChoice(parent, wxID_ANY);
  BindList(binding, control, *choice, wxEVT_CHOICE, shown);
  return choice;
}

wxControl* MakeLongChoice(Binding& binding, wxWindow* parent, ComboBox& control, Shown shown) {
  if (control.items().size() <= kMostInDropDown) return MakeChoice(binding, parent, control, shown);
  auto* list = new wxListBox(parent, wxID_ANY);
  list->SetMinSize({-1, kLongListLines * list->GetCharHeight()});
  BindList(binding, control, *list, wxEVT_LISTBOX, shown);
  return list;
}

namespace {

const wxColour kNotedField(255, 224, 224);
constexpr int kEntryMargin = 12;  // above and below the text of an entry, in DIPs

template <class Entry>
void ShowSelection(Entry& entry, const TextBox& control) {
  if (control.selected() > 0) entry.SetSelection(0, static_cast<long>(control.selected()));
}

// Shows the text of the control. Does not set the same text again, since that would move the
// operator's cursor.
template <class Entry>
void ShowText(Entry& entry, const TextBox& control) {
  const wxString text = WxText(control.text());
  if (entry.GetValue() != text) entry.ChangeValue(text);
  if (entry.HasFocus()) ShowSelection(entry, control);
}

// Shows a selection when the entry gets the focus, since the screen may have set it before that.
template <class Entry>
void SelectOnFocus(const Binding& binding, Entry& entry, const TextBox& control) {
  entry.Bind(wxEVT_SET_FOCUS, [&binding, &entry, &control](wxFocusEvent& event) {
    event.Skip();
    if (!binding.IsReleased()) ShowSelection(entry, control);
  });
}

template <class Entry>
void FollowText(Binding& binding, TextBox& control, Entry& entry) {
  entry.Bind(wxEVT_TEXT, [&binding, &control](wxCommandEvent& event) {
    binding.Operate(control, [&] { control.Enter(TextFromWx(event.GetString())); });
  });
}

// Colours a field with a wrong entry and shows the explanation in its tooltip.
void MarkNote(wxWindow& widget, const Control& control) {
  const bool noted = !control.note().empty();
  if (noted == (widget.GetBackgroundColour() == kNotedField)) return;
  widget.SetBackgroundColour(noted ? kNotedField : wxNullColour);
  widget.SetForegroundColour(noted ? *wxBLACK : wxNullColour);
  SetAccessibleDescription(widget, WxText(control.note()));
  if (noted) {
    widget.SetToolTip(WxText(control.note()));
  } else {
    widget.UnsetToolTip();
  }
  widget.Refresh();
}

// Filters typed keys. Pasted text is not filtered. A comma enters a point if the system writes
// numbers with a decimal comma.
void FilterKeys(const Binding& binding, wxTextCtrl& box, const TextBox& control) {
  box.Bind(wxEVT_CHAR, [&binding, &box, &control](wxKeyEvent& event) {
    const wxChar typed = event.GetUnicodeKey();
    if (typed < WXK_SPACE || typed == WXK_DELETE || event.HasModifiers()) return event.Skip();
    const bool point = typed == ',' && binding.has_decimal_comma();
    const char key = point ? '.' : TextFromWx(wxString(typed)).front();
    const char filtered = control.key_filter(key);
    if (filtered == key && !point) return event.Skip();
    if (filtered != 0) box.WriteText(WxText(std::string(1, filtered)));
  });
}

}  // namespace

wxTextCtrl* MakeTextBox(Binding& binding, wxWindow* parent, TextBox& control, long style) {
  auto* box = new wxTextCtrl(parent, wxID_ANY, WxText(control.text()), wxDefaultPosition,
                             wxDefaultSize, style);
  binding.Bind(control, *box, [box, &control] {
    ShowText(*box, control);
    box->SetEditable(!control.read_only());
    MarkNote(*box, control);
  });
  // The toolkit does not enlarge the height of an entry with the system's font.
  if (box->IsSingleLine()) {
    const int height = box->GetCharHeight() + box->FromDIP(kEntryMargin);
    box->SetMinSize({-1, std::max(box->GetBestSize().y, height)});
  }
  if (control.key_filter) FilterKeys(binding, *box, control);
  SelectOnFocus(binding, *box, control);
  FollowText(binding, control, *box);
  return box;
}

wxComboBox* MakeTextCombo(Binding& binding, wxWindow* parent, TextCombo& control) {
  wxArrayString items;
  for (const std::string& item : control.items()) items.Add(WxText(item));
  auto* combo = new wxComboBox(parent, wxID_ANY, WxText(control.text()), wxDefaultPosition,
                               wxDefaultSize, items);
  binding.Bind(control, *combo, [combo, &control] {
    ShowText(*combo, control);
    MarkNote(*combo, control);
  });
  FollowText(binding, control, *combo);
  combo->Bind(wxEVT_COMBOBOX, [&binding, &control](wxCommandEvent& event) {
    binding.Operate(control, [&control, &event] { control.Select(event.GetSelection()); });
  });
  return combo;
}

wxStaticText* MakeNote(Binding& binding, wxWindow* parent, const wxString& name,
                       std::function<std::string()> note, int width, int lines) {
  wxStaticText* text = NewText(parent, wxST_NO_AUTORESIZE);
  text->SetName(name);
  text->SetForegroundColour(WarningColour(text->GetParent()->GetBackgroundColour()));
  text->SetMinSize({width, lines * text->GetCharHeight()});
  text->Show(lines > 0);
  binding.ShowAlso([=, &binding, shown = wxString()]() mutable {
    const wxString now = WxText(note());
    if (std::exchange(shown, now) == now) return;
    text->SetLabelText(now);
    text->Wrap(width);
    if (!now.empty()) Announce(*text, now);
    if (lines > 0) return;
    text->SetMinSize(text->GetBestSize());
    text->Show(!now.empty());
    if (binding.on_rearranged) binding.on_rearranged();
  });
  return text;
}

wxPanel* MakeFrame(Binding& binding, wxWindow* parent, Frame& control) {
  auto* frame = new wxPanel(parent);
  binding.Bind(control, *frame, [] {});
  if (!control.caption().empty()) MakeAccessibleGroup(*frame, WxText(control.caption()));
  return frame;
}

wxNotebook* MakeTab(Binding& binding, wxWindow* parent, Tab& control) {
  auto* book = Named("Pages", new wxNotebook(parent, wxID_ANY));
  for (const std::string& page : control.pages()) {
    book->AddPage(new wxPanel(book), WxText(page));
  }
  binding.Bind(control, *book, [book, &control] {
    book->ChangeSelection(static_cast<std::size_t>(control.page()));
  });
  book->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [&binding, &control](wxBookCtrlEvent& event) {
    binding.Operate(control, [&control, &event] { control.Choose(event.GetSelection()); });
  });
  return book;
}

}  // namespace golf
