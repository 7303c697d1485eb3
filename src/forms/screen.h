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

// Holds what each screen gets when it is created.
struct ScreenContext {
  SharedState& state;
  ScreenHost& host;
};

// Describes what a host shows of a tip box. A tip box is a message box that the operator can switch
// off; see screens/tip_box.h.
struct TipView {
  int type = 0;
  std::string caption;
  std::string title;
  std::string text;
  std::vector<Button*> buttons;  // the visible ones, the one with the focus first
};

// Is the base class of all screens. A screen owns its controls as members, adds them in a fixed
// order, and handles their events. A whole run takes place inside one event.
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

  // The caller that opens a screen sets this word to control the behaviour of the screen.
  const std::string& tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  const std::vector<Control*>& controls() const { return controls_; }
  // Returns the first control with this name, without regard to case, or null. "Name(2)" finds the
  // third control with the name "Name".
  Control* FindControl(std::string_view name) const;
  // Returns the name by which FindControl finds exactly this control.
  std::string ScriptName(const Control& control) const;

  // OnLoad runs once, before the screen is shown or used. OnActivate runs each time the screen is
  // shown. OnUnload runs before the screen is unloaded.
  virtual void OnLoad() {}
  virtual void OnActivate() {}
  virtual void OnUnload() {}
  // Opens again the files that OnLoad opened. The caller calls it after an error has ended a run of
  // this screen and has closed all files.
  virtual void OpenAgain() {}
  // Returns the button that a key such as "Escape" or "Alt+N" presses if no control handles the
  // key. Returns null if there is none.
  const Button* ButtonOfKey(std::string_view key) const;
  // Presses the button of the key. Returns false if the key has none.
  bool OnKey(std::string_view key);

  // These return the button that leaves the screen, and the button that leaves its open panel. They
  // return null if there is none.
  virtual Button* LeaveButton() = 0;
  virtual Button* PanelLeaveButton() { return nullptr; }

  // Returns the button that the operator can press also during a run of the screen, or null if
  // there is none. Its event must only note that the run is to end.
  virtual Button* RunCancelButton() { return nullptr; }

  // Returns what to show if the screen is a tip box, and null for any other screen.
  virtual const TipView* Tip() const { return nullptr; }

  // Returns the control that receives typed keys, or null. MoveFocus calls on_leave of the old
  // control and on_enter of the new one. It does nothing if the new control cannot be reached. A
  // control that has the focus keeps it when it becomes unreachable.
  Control* focus() const { return focus_; }
  void MoveFocus(Control* control);

 protected:
  SharedState& state() const { return context_.state; }
  ScreenHost& host() const { return context_.host; }

  void Add(std::initializer_list<Control*> controls);
  // Adds controls as part of a frame.
  void AddInto(Frame& frame, const std::vector<Control*>& controls);

 private:
  std::string name_;
  ScreenContext context_;
  std::string caption_;
  std::string tag_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
};

// Returns the letter after "&" in a caption, in capitals, or 0 if there is none.
char MnemonicOf(std::string_view caption);

}  // namespace golf
