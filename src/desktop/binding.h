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

// Ties the widgets of one window to the controls of its screen. A control that changes is marked
// and shown at the next Refresh, so that a run may change it as often as it likes. What the
// operator does goes through Operate; what comes from a control that is hidden or disabled is
// refused there, whatever the toolkit made of it. Release unties all widgets, since a screen
// can outlive its window and a window can briefly outlive its screen.
class Binding {
 public:
  using Event = std::function<void()>;

  Binding(HostBase& host, Screen& screen) : host_(host), screen_(&screen) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;
  ~Binding() { Release(); }

  // Names the widget after its control and from now on shows, besides what `show` puts into it,
  // whether it can be seen, used, and has the focus.
  void Tie(Control& control, wxWindow& widget, std::function<void()> show);

  // Called when controls have changed, for what belongs to several of them.
  void ShowAlso(std::function<void()> show) { shows_also_.push_back(std::move(show)); }

  // When this part of a control's widget gets the focus, the control soon has it. Done for the
  // widget itself.
  void FollowFocus(Control& control, wxWindow& part);

  // Runs an event of the operator and shows what it has changed. What waits goes first.
  void Operate(const Control& control, const Event& event);

  // The same when the toolkit is done with the key, the choice or the change of focus that brings
  // the event; for the event may open a box. A box that comes up from within a key may bring the
  // same key once more, on some systems for ever, and one that comes up while the focus moves leads
  // it astray.
  void OperateSoon(const Control& control, Event event);
  // Lets the screen take a key in this way. False if it has no use for it; the key is then free for
  // others, such as an open menu or a cell that is edited.
  bool OperateKeySoon(std::string_view key);
  // Runs what waits. To be called for each new key: where keys are typed faster than they are
  // worked off, the toolkit comes to the next key before it comes to what waits, and that key must
  // find the screen as the keys before it leave it.
  void RunWaiting() { waiting_.Run(); }

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
