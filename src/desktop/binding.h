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

// Connects the widgets of one window to the controls of its screen. A changed control is marked and
// shown at the next Refresh, so a run may change it often. The operator's events pass through
// Operate, which refuses those of a hidden or disabled control. Release disconnects all widgets,
// since a screen can exist longer than its window, and a window slightly longer than its screen.
class Binding {
 public:
  using Event = std::function<void()>;

  Binding(HostBase& host, Screen& screen) : host_(host), screen_(&screen) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;
  ~Binding() { Release(); }

  // Connects a widget to a control and gives it the control's name. Refresh then calls `show` after
  // a change and updates the widget's visibility, enabled state and focus.
  void Bind(Control& control, wxWindow& widget, std::function<void()> show);

  // Adds a function that is called after any control has changed. It is for widgets that show
  // several controls.
  void ShowAlso(std::function<void()> show) { shows_also_.push_back(std::move(show)); }

  // Moves the screen's focus to the control after `part`, a part of the control's widget, has
  // received the focus. Bind does this for the widget itself.
  void FollowFocus(Control& control, wxWindow& part);

  // Runs the waiting events, then this event of the operator, and shows the changes.
  void Operate(const Control& control, const Event& event);

  // Runs an event after the toolkit has finished with the key, the choice or the change of focus
  // that caused it. An event that may open a box must be run in this way. A box that is opened
  // within a key event may receive the same key again, on some systems endlessly. A box that is
  // opened while the focus moves disturbs the focus.
  void OperateSoon(const Control& control, Event event);
  // Does the same for an event that belongs to no control. Does nothing during a run.
  void OperateSoon(Event event);
  // Presses the button of a key in the same way. Returns false if the screen does not use the key.
  // An open menu or an edited cell can handle it then.
  bool OperateKeySoon(std::string_view key);
  // Runs the waiting events. It must be called for each new key. During fast typing a new key can
  // arrive while events of earlier keys wait, and the screen must have handled those first.
  void RunWaiting() { waiting_.Run(); }

  // Gives the focus to the first widget that can have it, unless a control of the screen has it
  // already.
  void BeginFocus();
  // Gives the focus to the control that has it in the screen if no visible widget of the window has
  // it. The toolkit loses the focus when the focused widget disappears.
  void RestoreFocus(const wxWindow& window);
  // Shows all changes.
  void Refresh();
  // Is called after widgets have appeared or disappeared.
  std::function<void()> on_rearranged;

  // Disables all widgets that accept input, or enables them again. The button that cancels a run
  // stays enabled and gets the focus.
  void HoldInput(bool held);
  // Disconnects all widgets. It must be called before the screen is destroyed, if widgets still
  // exist.
  void Release();
  bool IsReleased() const { return screen_ == nullptr; }

  HostBase& host() const { return host_; }
  // True if the system writes numbers with a decimal comma.
  bool has_decimal_comma() const { return host_.has_decimal_comma(); }

 private:
  struct BoundWidget {
    Control* control;
    wxWindow* widget;
    std::function<void()> show;
    bool changed;
  };

  // Says what Enter or Space would do, typed by accident in a control. The least effect is first.
  enum class EnterEffect { kNone, kPressesButton, kLeavesScreen };

  // True if the control accepts no input because of a run.
  bool IsHeld(const Control& control) const;
  void Mark(BoundWidget& bound);
  void Run(const Control& control, const Event& event);
  void ShowChanges();
  bool ShowState(const BoundWidget& bound);
  void ShowFocus();
  bool IsInFront() const;
  void GiveFocus(const BoundWidget& bound);
  const BoundWidget* WidgetForFocus();
  const BoundWidget* ReplacementFor(std::list<BoundWidget>::const_iterator lost);
  EnterEffect EffectOfEnter(const Control& control);

  HostBase& host_;
  Screen* screen_;
  std::vector<std::function<void()>> shows_also_;
  std::list<BoundWidget> bound_widgets_;  // the observers store the addresses of its elements
  EventQueue waiting_;
  const Control* shown_focus_ = nullptr;
  bool changed_ = false;
  wxRecursionGuardFlag showing_ = 0;
  bool held_ = false;
};

}  // namespace golf
