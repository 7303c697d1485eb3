#pragma once

#include <wx/recguard.h>
#include <wx/window.h>

#include <functional>
#include <list>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/event_queue.h"
#include "forms/host_base.h"

namespace golf {

// Ties the widgets of one window to the controls of its screen. A changed control is marked and
// shown at the next Refresh, so a run may change it often. The operator's events go through
// Operate, which refuses those of a hidden or disabled control. Release unties all widgets, since a
// screen can outlive its window, and a window can briefly outlive its screen.
class Binding {
 public:
  using Event = std::function<void()>;

  Binding(HostBase& host, Screen& screen) : host_(host), screen_(&screen) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;
  ~Binding() { Release(); }

  // Names the widget after its control. From now on Refresh calls `show` after a change and keeps
  // the widget's visibility, enabled state and focus up to date.
  void Tie(Control& control, wxWindow& widget, std::function<void()> show);

  // Adds a function to call after any control has changed, for widgets that show several controls.
  void ShowAlso(std::function<void()> show) { shows_also_.push_back(std::move(show)); }

  // Moves the screen's focus to the control soon after this part of its widget gets the focus. Tie
  // does this for the widget itself.
  void FollowFocus(Control& control, wxWindow& part);

  // Runs the waiting events, then this event of the operator, and shows the changes.
  void Operate(const Control& control, const Event& event);

  // Runs an event once the toolkit has finished with the key, the choice or the change of focus
  // that caused it. An event that may open a box must not run earlier. A box opened within a key
  // event may receive the same key again, on some systems endlessly. A box opened while the focus
  // moves misdirects the focus.
  void OperateSoon(const Control& control, Event event);
  // Presses the button of a key in the same way. Returns false if the screen has no use for the
  // key; an open menu or an edited cell may then take it.
  bool OperateKeySoon(std::string_view key);
  // Runs the waiting events. Must be called for each new key: fast typing brings the next key
  // before the toolkit comes to the waiting events, and the key must find the screen as the earlier
  // keys leave it.
  void RunWaiting() { waiting_.Run(); }

  // Gives the focus to the first widget that can have it, unless the screen has placed it already.
  void BeginFocus();
  // Shows all changes.
  void Refresh();
  // Called when widgets have appeared or disappeared.
  std::function<void()> on_rearranged;

  // Disables all widgets that take input, or enables them again.
  void HoldInput(bool held);
  // Unties all widgets, since the screen goes before they do. Its controls must not be used after
  // that.
  void Release();
  bool IsReleased() const { return screen_ == nullptr; }

 private:
  struct Tied {
    Control* control;
    wxWindow* widget;
    std::function<void()> show;
    bool changed;
  };

  void Mark(Tied& tied);
  void Run(const Control& control, const Event& event);
  void ShowChanges();
  bool ShowState(const Tied& tied);
  void ShowFocus();
  void GiveFocus(const Tied& tied);
  const Tied* PlaceOfFocus();
  const Tied* PlaceInsteadOf(std::list<Tied>::const_iterator lost);
  int Harm(const Control& control);

  HostBase& host_;
  Screen* screen_;
  std::vector<std::function<void()>> shows_also_;
  std::list<Tied> ties_;  // observers keep the addresses of its elements
  EventQueue waiting_;
  const Control* shown_focus_ = nullptr;
  bool changed_ = false;
  wxRecursionGuardFlag showing_ = 0;
  bool held_ = false;
};

}  // namespace golf
