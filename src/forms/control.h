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

// An element of a screen: a value that announces its changes. It knows nothing about drawing. A
// screen owns its controls as members. Several controls may share one name.
class Control {
 public:
  Control(ControlKind kind, std::string name) : kind_(kind), name_(std::move(name)) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }

  // Returns the frame or tab that holds this control, or null if the screen holds it directly.
  Control* parent() const { return parent_; }
  void SetParent(Control& parent) { parent_ = &parent; }

  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  void SetVisible(bool visible) { Assign(visible_, visible); }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled); }
  // IsShown and IsUsable also consider the frames and tabs that hold the control.
  bool IsShown() const { return visible_ && (parent_ == nullptr || parent_->ShowsInside(*this)); }
  bool IsUsable() const { return enabled_ && (parent_ == nullptr || parent_->IsUsable()); }
  // True if the operator can act on the control with the mouse, a key or a script.
  bool IsReachable() const { return IsShown() && IsUsable(); }

  const std::string& tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  // Returns the explanation of a wrong entry, which the window shows beside it. Empty for a right
  // entry.
  const std::string& note() const { return note_; }
  void SetNote(std::string note) { Assign(note_, std::move(note)); }

  // Sets the function that is called after each change of what the control shows. There is one
  // observer.
  void Observe(std::function<void()> changed) { changed_ = std::move(changed); }

  // Events: the control gets the focus, and the control loses it.
  std::function<void()> on_enter;
  std::function<void()> on_leave;
  // Event: a key such as "Insert" is pressed in the control. Returns true if the control takes it.
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
  // True if this control shows the given control, which it holds.
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

// A control with a caption. In a caption, "&" precedes the letter that reaches the control with
// Alt.
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

  // The default button is pressed by Enter, the cancel button by Escape.
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

// A check box or an option button.
class Toggle : public Captioned {
 public:
  Toggle(ControlKind kind, std::string name, std::string caption)
      : Captioned(kind, std::move(name), std::move(caption)) {}

  bool value() const { return value_; }
  void SetValue(bool value) { Assign(value_, value); }

  // Enters the operator's choice: sets the value and runs the event, even if the value is the same.
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
  // Enters the operator's text: sets it and runs the event, even if the text is the same.
  void Enter(std::string text) {
    selected_ = 0;
    Assign(text_, std::move(text));
    if (on_change) on_change();
  }

  bool read_only() const { return read_only_; }
  void SetReadOnly(bool read_only) { Assign(read_only_, read_only); }

  // Returns how many characters from the start are selected. Setting the text clears the selection.
  std::size_t selected() const { return selected_; }
  void SelectFirst(std::size_t count) { Assign(selected_, std::min(count, text_.size())); }

  // Enters a key that the filter has passed. The key replaces the selected characters, or follows
  // the text if none are selected.
  void TypeKey(char key) { Enter(selected_ > 0 ? key + text_.substr(selected_) : text_ + key); }

  // Event: the program has changed the text, or the operator has entered one.
  std::function<void()> on_change;
  // Returns the key to enter in place of a typed one, or 0 to refuse it.
  std::function<char(char)> key_filter;

 protected:
  TextBox(ControlKind kind, std::string name) : Control(kind, std::move(name)) {}

 private:
  std::string text_;
  std::size_t selected_ = 0;
  bool read_only_ = false;
};

// A drop-down list that also takes free text.
class TextCombo : public TextBox {
 public:
  TextCombo(std::string name, std::vector<std::string> items)
      : TextBox(ControlKind::kComboBox, std::move(name)), items_(std::move(items)) {}

  const std::vector<std::string>& items() const { return items_; }
  // Returns the index of the first item equal to the text, from 0, or -1.
  int index() const;
  // Enters the item as the text. Returns false and changes nothing if there is no such index.
  bool Select(int index);

 private:
  std::vector<std::string> items_;
};

// A list box or a drop-down list.
class List : public Control {
 public:
  List(ControlKind kind, std::string name) : Control(kind, std::move(name)) {}

  const std::vector<std::string>& items() const { return items_; }
  void AddItem(std::string item);
  // Removes all items and the selection.
  void Clear();

  // Returns the index of the selected item, from 0, or -1.
  int index() const { return index_; }
  // Selects an item, or none with -1, and runs the event. Returns false and changes nothing if
  // there is no such index.
  bool Select(int index);
  // Returns the selected item, or an empty text.
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

// Pages behind each other. Each control that Hold has put on a page shows only while that page is
// in front.
class Tab : public Control {
 public:
  Tab(std::string name, std::vector<std::string> pages)
      : Control(ControlKind::kTab, std::move(name)), pages_(std::move(pages)) {}

  const std::vector<std::string>& pages() const { return pages_; }
  int page() const { return page_; }
  // Brings a page to the front and runs the event. Pages count from 0. Returns false and changes
  // nothing if there is no such page.
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

// A timer that fires repeatedly while its interval is above 0. The host calls on_timer.
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
