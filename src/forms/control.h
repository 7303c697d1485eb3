#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

enum class ControlKind {
  kLabel,
  kTextBox,
  kCheckBox,
  kOptionButton,
  kListBox,
  kComboBox,
  kButton,
  kFrame,
  kTab,
  kGrid,
  kTimer,
};

// What a screen shows and what its user works on: a value with change notification that knows
// nothing of pixels. A screen owns its controls as members; several of them may share one name.
class Control {
 public:
  Control(ControlKind kind, std::string name) : kind_(kind), name_(std::move(name)) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }

  // The frame or tab that holds this control; null if the screen itself does.
  Control* parent() const { return parent_; }
  void SetParent(Control& parent) { parent_ = &parent; }

  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  void SetVisible(bool visible) { Assign(visible_, visible); }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled); }
  // With everything that holds it.
  bool IsShown() const { return visible_ && (parent_ == nullptr || parent_->ShowsInside(*this)); }
  bool IsUsable() const { return enabled_ && (parent_ == nullptr || parent_->IsUsable()); }
  // Whether the operator can do anything with it, by whatever means.
  bool IsReachable() const { return IsShown() && IsUsable(); }

  const std::string& tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  // What is wrong with the operator's entry, to be read beside it; empty with nothing.
  const std::string& note() const { return note_; }
  void SetNote(std::string note) { Assign(note_, std::move(note)); }

  // Called after every change of what the control shows. One view at a time.
  void Observe(std::function<void()> changed) { changed_ = std::move(changed); }

  // What happens when the operator comes to the control and when he leaves it.
  std::function<void()> on_enter;
  std::function<void()> on_leave;
  // A key pressed in the control, such as "Insert". True if the control takes it.
  std::function<bool(std::string_view)> on_key;

 protected:
  template <class T, class U>
  void Assign(T& member, U&& value) {
    if (member == value) return;
    member = std::forward<U>(value);
    Changed();
  }
  void Changed() const {
    if (changed_) changed_();
  }
  // Whether a control that this one holds can be seen.
  virtual bool ShowsInside(const Control&) const { return IsShown(); }

 private:
  ControlKind kind_;
  std::string name_;
  Control* parent_ = nullptr;
  bool visible_ = true;
  bool enabled_ = true;
  std::string tag_;
  std::string note_;
  std::function<void()> changed_;
};

// A control with a caption. "&" stands before the letter that reaches it with Alt.
class Captioned : public Control {
 public:
  Captioned(ControlKind kind, std::string name, std::string caption)
      : Control(kind, std::move(name)), caption_(std::move(caption)) {}

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }

 private:
  std::string caption_;
};

class Label : public Captioned {
 public:
  explicit Label(std::string name, std::string caption = "")
      : Captioned(ControlKind::kLabel, std::move(name), std::move(caption)) {}
};

class Frame : public Captioned {
 public:
  explicit Frame(std::string name, std::string caption = "")
      : Captioned(ControlKind::kFrame, std::move(name), std::move(caption)) {}
};

class Button : public Captioned {
 public:
  Button(std::string name, std::string caption)
      : Captioned(ControlKind::kButton, std::move(name), std::move(caption)) {}

  // The button that Enter presses, and the one that Escape presses.
  bool is_default() const { return default_; }
  bool is_cancel() const { return cancel_; }
  void SetDefault(bool is_default) { Assign(default_, is_default); }
  void SetCancel(bool is_cancel) { Assign(cancel_, is_cancel); }

  void Click() const {
    if (on_click) on_click();
  }
  std::function<void()> on_click;

 private:
  bool default_ = false;
  bool cancel_ = false;
};

// A check box or an option button: on or off.
class Toggle : public Captioned {
 public:
  Toggle(ControlKind kind, std::string name, std::string caption)
      : Captioned(kind, std::move(name), std::move(caption)) {}

  bool value() const { return value_; }
  void SetValue(bool value) { Assign(value_, value); }

  // The operator's choice: sets the value and runs the event, even when nothing changes.
  void Choose(bool value) {
    SetValue(value);
    if (on_click) on_click();
  }
  std::function<void()> on_click;

 private:
  bool value_ = false;
};

class CheckBox : public Toggle {
 public:
  explicit CheckBox(std::string name, std::string caption = "")
      : Toggle(ControlKind::kCheckBox, std::move(name), std::move(caption)) {}
};

class OptionButton : public Toggle {
 public:
  explicit OptionButton(std::string name, std::string caption = "")
      : Toggle(ControlKind::kOptionButton, std::move(name), std::move(caption)) {}
};

class TextBox : public Control {
 public:
  explicit TextBox(std::string name) : TextBox(ControlKind::kTextBox, std::move(name)) {}

  const std::string& text() const { return text_; }
  void SetText(std::string text) {
    selected_ = 0;
    if (text_ != text) Enter(std::move(text));
  }
  // What the operator enters: runs the event even where the text is the one that stood there.
  void Enter(std::string text) {
    selected_ = 0;
    Assign(text_, std::move(text));
    if (on_change) on_change();
  }

  bool read_only() const { return read_only_; }
  void SetReadOnly(bool read_only) { Assign(read_only_, read_only); }

  // How many of the first characters are selected, until the text is set.
  std::size_t selected() const { return selected_; }
  void SelectFirst(std::size_t count) { Assign(selected_, std::min(count, text_.size())); }

  // A key that the filter has let through: it takes the place of what is selected, or comes behind
  // the text.
  void TypeKey(char key) { Enter(selected_ > 0 ? key + text_.substr(selected_) : text_ + key); }

  // Runs after every change of the text, the program's own included, and after every entry.
  std::function<void()> on_change;
  // Gives the key that takes the place of a typed one; 0 refuses it.
  std::function<char(char)> key_filter;

 protected:
  TextBox(ControlKind kind, std::string name) : Control(kind, std::move(name)) {}

 private:
  std::string text_;
  std::size_t selected_ = 0;
  bool read_only_ = false;
};

// A drop-down list with free text.
class TextCombo : public TextBox {
 public:
  TextCombo(std::string name, std::vector<std::string> items)
      : TextBox(ControlKind::kComboBox, std::move(name)), items_(std::move(items)) {}

  const std::vector<std::string>& items() const { return items_; }
  // The item that is the text, from 0; -1 if none is.
  int index() const;
  // Takes an item as the text. An index beyond the list changes nothing: false.
  bool Select(int index);

 private:
  std::vector<std::string> items_;
};

// A list box, or a drop-down list.
class List : public Control {
 public:
  List(ControlKind kind, std::string name) : Control(kind, std::move(name)) {}

  const std::vector<std::string>& items() const { return items_; }
  void AddItem(std::string item);
  // Takes all items away; nothing is selected then.
  void Clear();

  // From 0; -1 with nothing selected.
  int index() const { return index_; }
  // Selects an item and runs the event. An index beyond the list changes nothing: false.
  bool Select(int index);
  // The selected item; empty with none.
  std::string text() const;

  std::function<void()> on_click;
  std::function<void()> on_double_click;

 private:
  std::vector<std::string> items_;
  int index_ = -1;
};

class ListBox : public List {
 public:
  explicit ListBox(std::string name) : List(ControlKind::kListBox, std::move(name)) {}
};

class ComboBox : public List {
 public:
  explicit ComboBox(std::string name) : List(ControlKind::kComboBox, std::move(name)) {}
};

// Pages one behind the other; the controls of a page name the tab and the page as their place.
class Tab : public Control {
 public:
  Tab(std::string name, std::vector<std::string> pages)
      : Control(ControlKind::kTab, std::move(name)), pages_(std::move(pages)) {}

  const std::vector<std::string>& pages() const { return pages_; }
  int page() const { return page_; }
  // The operator's choice, from 0. A page that is not there changes nothing: false.
  bool Choose(int page);

  // Puts a control on a page.
  void Hold(Control& control, int page);

  std::function<void()> on_click;

 protected:
  bool ShowsInside(const Control& control) const override;

 private:
  std::vector<std::string> pages_;
  std::vector<std::pair<const Control*, int>> held_;
  int page_ = 0;
};

// Fires again and again while its interval is above 0; the host tells it when it is due.
class Timer : public Control {
 public:
  explicit Timer(std::string name) : Control(ControlKind::kTimer, std::move(name)) {}

  int interval() const { return interval_; }  // milliseconds
  void SetInterval(int interval) { Assign(interval_, interval); }
  bool IsRunning() const { return enabled() && interval_ > 0; }

  std::function<void()> on_timer;

 private:
  int interval_ = 0;
};

}  // namespace golf
