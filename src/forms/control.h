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

// Represents an element of a screen, without drawing it. It calls its observer after each change. A
// screen owns its controls as members. Several controls may have the same name.
class Control {
 public:
  Control(ControlKind kind, std::string name) : kind_(kind), name_(std::move(name)) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }

  // Returns the frame or tab that contains this control, or null if there is none.
  Control* parent() const { return parent_; }
  void SetParent(Control& parent) { parent_ = &parent; }

  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  void SetVisible(bool visible) { Assign(visible_, visible); }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled); }
  // True if the control, and each frame or tab that contains it, is visible or enabled.
  bool IsShown() const { return visible_ && (parent_ == nullptr || parent_->ShowsInside(*this)); }
  bool IsUsable() const { return enabled_ && (parent_ == nullptr || parent_->IsUsable()); }
  // True if the operator can act on the control with the mouse, a key or a script.
  bool IsReachable() const { return IsShown() && IsUsable(); }

  const std::string& tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  // Returns the explanation of a wrong entry, which the window shows beside the control. The note
  // of a right entry is empty.
  const std::string& note() const { return note_; }
  void SetNote(std::string note) { Assign(note_, std::move(note)); }

  // Sets the function that is called after each change of what the control shows. It replaces the
  // previous function.
  void Observe(std::function<void()> changed) { changed_ = std::move(changed); }

  // These run when the control gets the focus and when it loses it.
  std::function<void()> on_enter;
  std::function<void()> on_leave;
  // Runs when a key such as "Insert" is pressed in the control. Returns true if the control has
  // handled the key.
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
  // True if this control, which contains the given control, shows it.
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

// Represents a control with a caption. In a caption, "&" precedes the letter that selects the
// control together with Alt.
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

  // Enter presses the default button, and Escape presses the cancel button.
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

// Represents a check box or an option button.
class Toggle : public Captioned {
 public:
  Toggle(ControlKind kind, std::string name, std::string caption)
      : Captioned(kind, std::move(name), std::move(caption)) {}

  bool value() const { return value_; }
  void SetValue(bool value) { Assign(value_, value); }

  // Enters the operator's choice: sets the value and calls on_click, even if the value does not
  // change.
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
  // Enters the operator's text: sets it and calls on_change, even if the text does not change.
  void Enter(std::string text) {
    selected_ = 0;
    Assign(text_, std::move(text));
    if (on_change) on_change();
  }

  bool read_only() const { return read_only_; }
  void SetReadOnly(bool read_only) { Assign(read_only_, read_only); }

  // Returns how many characters are selected, from the start of the text. A new text clears the
  // selection.
  std::size_t selected() const { return selected_; }
  void SelectFirst(std::size_t count) { Assign(selected_, std::min(count, text_.size())); }

  // Enters a character that the filter has passed. It replaces the selected characters. It is
  // appended if none are selected.
  void TypeKey(char key) { Enter(selected_ > 0 ? key + text_.substr(selected_) : text_ + key); }

  // Runs when the program has changed the text or the operator has entered one.
  std::function<void()> on_change;
  // Returns the character to enter in place of a typed one, or 0 to refuse it.
  std::function<char(char)> key_filter;

 protected:
  TextBox(ControlKind kind, std::string name) : Control(kind, std::move(name)) {}

 private:
  std::string text_;
  std::size_t selected_ = 0;
  bool read_only_ = false;
};

// Represents a drop-down list that also accepts free text.
class TextCombo : public TextBox {
 public:
  TextCombo(std::string name, std::vector<std::string> items)
      : TextBox(ControlKind::kComboBox, std::move(name)), items_(std::move(items)) {}

  const std::vector<std::string>& items() const { return items_; }
  // Returns the index, from 0, of the first item that equals the text, or -1.
  int index() const;
  // Enters the item as the text. Returns false and changes nothing if there is no such index.
  bool Select(int index);

 private:
  std::vector<std::string> items_;
};

// Represents a list box or a drop-down list.
class List : public Control {
 public:
  List(ControlKind kind, std::string name) : Control(kind, std::move(name)) {}

  const std::vector<std::string>& items() const { return items_; }
  void AddItem(std::string item);
  // Removes all items and the selection.
  void Clear();

  // Returns the index of the selected item, from 0, or -1 if none is selected.
  int index() const { return index_; }
  // Selects an item, or none with -1, and calls on_click. Returns false and changes nothing if
  // there is no such index.
  bool Select(int index);
  // Returns the selected item, or an empty text if none is selected.
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

// Represents a tab control with several pages, of which it shows one. A control that Hold has added
// to a page is visible only while the tab shows that page.
class Tab : public Control {
 public:
  Tab(std::string name, std::vector<std::string> pages)
      : Control(ControlKind::kTab, std::move(name)), pages_(std::move(pages)) {}

  const std::vector<std::string>& pages() const { return pages_; }
  int page() const { return page_; }
  // Shows a page and calls on_click. Pages count from 0. Returns false and changes nothing if there
  // is no such page.
  bool Choose(int page);

  // Adds a control to a page.
  void Hold(Control& control, int page);

  std::function<void()> on_click;

 protected:
  bool ShowsInside(const Control& control) const override;

 private:
  std::vector<std::string> pages_;
  std::vector<std::pair<const Control*, int>> held_;
  int page_ = 0;
};

// Represents a timer. The host calls on_timer repeatedly while the interval is above 0.
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
