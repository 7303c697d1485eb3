#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/grid.h"

namespace golf {

class ScreenHost;
class SharedState;

// What a screen is given by the composition root.
struct ScreenContext {
  SharedState& state;
  ScreenHost& host;
};

// A screen that is shown as a message box with a memory, not as a window to work in.
struct TipView {
  int type = 0;
  std::string caption;
  std::string title;
  std::string text;
  std::vector<Button*> buttons;  // those that can be seen, the one with the focus first
};

// A class for each screen owns its controls as members, adds them in a fixed order, and says what
// each event does. A run of a screen holds its whole loop inside one event.
class Screen : public std::enable_shared_from_this<Screen> {
 public:
  Screen(std::string name, const ScreenContext& context)
      : name_(std::move(name)), context_(context) {}
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  const std::string& name() const { return name_; }

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption) { caption_ = std::move(caption); }

  // A word by which an opener tells the screen how to behave.
  const std::string& tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  const std::vector<Control*>& controls() const { return controls_; }
  // The control with this name, in any case; "Name(2)" is also the control of that name with two of
  // the same name before it. Null if there is none.
  Control* FindControl(std::string_view name) const;
  // The name by which just this control is found.
  std::string ScriptName(const Control& control) const;

  // Once, before the screen is seen or touched; each time it comes to the front; before it goes.
  virtual void OnLoad() {}
  virtual void OnActivate() {}
  virtual void OnUnload() {}
  // After a run of this screen has ended with an error and all files were closed: opens again what
  // OnLoad opens.
  virtual void OpenAgain() {}
  // A key that no control has taken, such as "Escape" or "Alt+N": the button that it presses, null
  // with none.
  const Button* ButtonOfKey(std::string_view key) const;
  // Presses that button. False with none.
  bool OnKey(std::string_view key);

  // The button that leaves the screen, and the one that leaves its open panel; null with none.
  virtual Button* LeaveButton() = 0;
  virtual Button* PanelLeaveButton() { return nullptr; }

  // Set for a screen that is a box.
  virtual const TipView* Tip() const { return nullptr; }

  // Where typed keys go; null with no control. Moving it tells the controls left and entered. A
  // control that cannot be reached does not get it, but may keep it.
  Control* focus() const { return focus_; }
  void MoveFocus(Control* control);

 protected:
  SharedState& state() const { return context_.state; }
  ScreenHost& host() const { return context_.host; }

  void Add(std::initializer_list<Control*> controls);
  // Adds controls that stand in a frame.
  void AddInto(Frame& frame, const std::vector<Control*>& controls);

 private:
  std::string name_;
  ScreenContext context_;
  std::string caption_;
  std::string tag_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
};

// The letter behind "&" in a caption, in capitals; 0 with none.
char MnemonicOf(std::string_view caption);

}  // namespace golf
