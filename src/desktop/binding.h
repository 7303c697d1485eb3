#pragma once

#include <wx/window.h>

#include <functional>
#include <list>
#include <utility>
#include <vector>

#include "forms/host_base.h"

namespace golf {

// Ties the widgets of one window to the controls of its screen. A control that changes is marked
// and shown at the next Refresh, so that a run may change it as often as it likes. What the
// operator does goes through Operate. Release cuts all ties: a screen may live longer than its
// window, and a window, for a moment, longer than its screen.
class Binding {
 public:
  Binding(HostBase& host, Screen& screen) : host_(host), screen_(&screen) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;
  ~Binding() { Release(); }

  // Names the widget after its control and from now on shows, besides what `show` puts into it,
  // whether it can be seen, used, and has the focus.
  void Tie(Control& control, wxWindow& widget, std::function<void()> show);

  // Called when controls have changed, for what belongs to several of them.
  void ShowAlso(std::function<void()> show) { shows_also_.push_back(std::move(show)); }

  // When this part of a control's widget gets the focus, the control has it. Done for the widget
  // itself.
  void FollowFocus(Control& control, wxWindow& part);

  // Runs an event of the operator and shows what it has changed.
  void Operate(const std::function<void()>& event);
  // Lets the screen take a key. False if it does not.
  bool OperateKey(std::string_view key);

  // Where the screen has not put the focus, it goes to the first widget that can have it.
  void BeginFocus();
  // Shows all that has changed.
  void Refresh();
  // Called when widgets have come or gone.
  std::function<void()> on_rearranged;

  // While input is held off no widget can be used.
  void HoldInput(bool held);
  // The screen goes before its widgets; none of its controls may be touched from then on.
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
  bool ShowState(const Tied& tied);
  void ShowFocus();

  HostBase& host_;
  Screen* screen_;
  std::vector<std::function<void()>> shows_also_;
  std::list<Tied> ties_;  // observers keep the addresses of its elements
  const Control* shown_focus_ = nullptr;
  bool changed_ = false;
  bool held_ = false;
};

}  // namespace golf
