#include "desktop/binding.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "desktop/wx_text.h"

namespace golf {
namespace {

// True if the control and everything that contains it, up to a page of a tab control, is visible.
// The toolkit itself shows and hides the pages.
bool IsVisibleOnItsPage(const Control& control) {
  for (const Control* at = &control; at != nullptr; at = at->parent()) {
    if (!at->visible()) return false;
    if (at->parent() != nullptr && at->parent()->kind() == ControlKind::kTab) return true;
  }
  return true;
}

// True if the operator can enter something in the control. Labels and frames stay enabled during a
// run, so that they stay readable.
bool TakesInput(const Control& control) {
  return control.kind() != ControlKind::kLabel && control.kind() != ControlKind::kFrame;
}

bool CanHaveFocus(const Control& control) { return TakesInput(control) && control.IsReachable(); }

}  // namespace

void Binding::Bind(Control& control, wxWindow& widget, std::function<void()> show) {
  widget.SetName(WxText(control.name()));
  BoundWidget& bound =
      bound_widgets_.emplace_back(BoundWidget{&control, &widget, std::move(show), true});
  changed_ = true;
  control.Observe([this, &bound] { Mark(bound); });
  if (TakesInput(control)) FollowFocus(control, widget);
}

void Binding::FollowFocus(Control& control, wxWindow& widget) {
  widget.Bind(wxEVT_SET_FOCUS, [this, &control](wxFocusEvent& event) {
    event.Skip();
    // The toolkit moves the focus itself when a widget disappears. That is not a choice of the
    // operator.
    if (held_ || showing_ > 0) return;
    if (std::exchange(shown_focus_, &control) == &control) return;
    OperateSoon(control, [this, &control] { screen_->MoveFocus(&control); });
  });
}

void Binding::Operate(const Control& control, const Event& event) {
  RunWaiting();
  Run(control, event);
}

void Binding::OperateSoon(const Control& control, Event event) {
  if (screen_ == nullptr || IsHeld(control)) return;
  waiting_.Add([this, &control, event = std::move(event)] { Run(control, event); });
}

void Binding::OperateSoon(Event event) {
  if (screen_ == nullptr || held_) return;
  waiting_.Add([this, event = std::move(event)] {
    if (screen_ == nullptr || host_.ended()) return;
    host_.Operate(*screen_, event);
    Refresh();
  });
}

bool Binding::OperateKeySoon(std::string_view key) {
  if (screen_ == nullptr) return false;
  const Button* button = screen_->ButtonOfKey(key);
  if (button == nullptr || IsHeld(*button)) return false;
  OperateSoon(*button, [button] { button->Click(); });
  return true;
}

// Runs an event. If the control refuses it, the widget may show a value that the control does not
// have, so the widget is marked and shown again.
void Binding::Run(const Control& control, const Event& event) {
  if (screen_ == nullptr || host_.ended()) return;
  for (BoundWidget& bound : bound_widgets_) {
    if (bound.control == &control && !control.IsReachable()) Mark(bound);
  }
  host_.Operate(*screen_, control, event);
  Refresh();
}

bool Binding::IsHeld(const Control& control) const {
  return held_ && &control != screen_->RunCancelButton();
}

void Binding::Mark(BoundWidget& bound) {
  bound.changed = true;
  changed_ = true;
}

void Binding::Refresh() {
  if (screen_ == nullptr) return;
  const wxRecursionGuard showing(showing_);
  if (std::exchange(changed_, false)) ShowChanges();
  ShowFocus();
}

void Binding::ShowChanges() {
  bool rearranged = false;
  for (BoundWidget& bound : bound_widgets_) {
    if (std::exchange(bound.changed, false)) bound.show();
    // The state of every control is shown, since one control can hide or disable others.
    if (ShowState(bound)) rearranged = true;
  }
  for (const auto& show : shows_also_) show();
  if (rearranged && on_rearranged) on_rearranged();
}

bool Binding::ShowState(const BoundWidget& bound) {
  const bool held = TakesInput(*bound.control) && IsHeld(*bound.control);
  bound.widget->Enable(bound.control->IsUsable() && !held);
  return bound.widget->Show(IsVisibleOnItsPage(*bound.control));
}

// Gives the focus to the right widget. Does nothing while events wait, since the operator may have
// moved the focus since then.
void Binding::ShowFocus() {
  if (held_ || !waiting_.IsEmpty() || !IsInFront()) return;
  const BoundWidget* target = WidgetForFocus();
  if (target == nullptr) return;
  if (target->control != shown_focus_) GiveFocus(*target);
  if (target->control == screen_->focus()) return;
  OperateSoon(*target->control, [this] {
    if (const BoundWidget* now = WidgetForFocus()) screen_->MoveFocus(now->control);
  });
}

// GTK brings a window to the front when one of its widgets gets the focus. Only the window in front
// may therefore move it.
bool Binding::IsInFront() const { return host_.Top() == screen_ || screen_->Tip() != nullptr; }

void Binding::GiveFocus(const BoundWidget& bound) {
  shown_focus_ = bound.control;
  bound.widget->SetFocus();
}

// Returns the widget that must have the focus, or null if no control of the screen has the focus.
const Binding::BoundWidget* Binding::WidgetForFocus() {
  const auto focused =
      std::find_if(bound_widgets_.cbegin(), bound_widgets_.cend(),
                   [this](const BoundWidget& bound) { return bound.control == screen_->focus(); });
  if (focused == bound_widgets_.cend()) return nullptr;
  return CanHaveFocus(*focused->control) ? &*focused : ReplacementFor(focused);
}

// Returns a replacement for the focused control, which can no longer have the focus, or null if
// there is none. Chooses among the controls with the least EffectOfEnter the nearest one before it.
// The search continues from the end after the first control.
const Binding::BoundWidget* Binding::ReplacementFor(std::list<BoundWidget>::const_iterator lost) {
  const BoundWidget* best = nullptr;
  const auto before = [this](auto at) {
    return std::prev(at == bound_widgets_.cbegin() ? bound_widgets_.cend() : at);
  };
  for (auto at = before(lost); at != lost; at = before(at)) {
    if (!CanHaveFocus(*at->control)) continue;
    if (best == nullptr || EffectOfEnter(*at->control) < EffectOfEnter(*best->control)) best = &*at;
  }
  return best;
}

Binding::EnterEffect Binding::EffectOfEnter(const Control& control) {
  if (control.kind() != ControlKind::kButton) return EnterEffect::kNone;
  const bool leaves = &control == screen_->LeaveButton() || &control == screen_->PanelLeaveButton();
  return leaves ? EnterEffect::kLeavesScreen : EnterEffect::kPressesButton;
}

// The first widget is chosen here, since the toolkit would choose by position and not by order.
void Binding::BeginFocus() {
  if (screen_ == nullptr || screen_->focus() != nullptr) return;
  const auto first =
      std::find_if(bound_widgets_.begin(), bound_widgets_.end(),
                   [](const BoundWidget& bound) { return CanHaveFocus(*bound.control); });
  if (first == bound_widgets_.end()) return;
  screen_->MoveFocus(first->control);
  GiveFocus(*first);
}

void Binding::RestoreFocus(const wxWindow& window) {
  if (held_ || screen_ == nullptr || !waiting_.IsEmpty() || !IsInFront()) return;
  wxWindow* const focus = wxWindow::FindFocus();
  const bool here = focus != nullptr && window.IsDescendant(focus) && focus != &window;
  if (here && focus->IsShownOnScreen() && focus->IsEnabled()) return;
  if (const BoundWidget* target = WidgetForFocus()) return GiveFocus(*target);
  BeginFocus();
}

void Binding::HoldInput(bool held) {
  if (held_ == held) return;
  held_ = held;
  changed_ = true;
  shown_focus_ = nullptr;  // the toolkit removes it from disabled widgets
  Refresh();
  if (!held || screen_ == nullptr) return;
  for (const BoundWidget& bound : bound_widgets_) {
    if (bound.control == screen_->RunCancelButton()) bound.widget->SetFocus();
  }
}

void Binding::Release() {
  for (const BoundWidget& bound : bound_widgets_) bound.control->Observe(nullptr);
  bound_widgets_.clear();
  shows_also_.clear();
  waiting_.Clear();
  screen_ = nullptr;
}

}  // namespace golf
