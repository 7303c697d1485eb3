#include "desktop/binding.h"

#include <utility>

#include "desktop/wx_text.h"

namespace golf {
namespace {

// A page of a tab comes and goes with all that it holds; the toolkit sees to that.
bool IsVisibleOnItsPage(const Control& control) {
  for (const Control* at = &control; at != nullptr; at = at->parent()) {
    if (!at->visible()) return false;
    if (at->parent() != nullptr && at->parent()->kind() == ControlKind::kTab) return true;
  }
  return true;
}

// Labels stay as readable in a run as they were before.
bool TakesInput(const Control& control) {
  return control.kind() != ControlKind::kLabel && control.kind() != ControlKind::kFrame;
}

}  // namespace

void Binding::Tie(Control& control, wxWindow& widget, std::function<void()> show) {
  widget.SetName(WxText(control.name()));
  Tied& tied = ties_.emplace_back(Tied{&control, &widget, std::move(show), true});
  changed_ = true;
  control.Observe([this, &tied] { Mark(tied); });
  FollowFocus(control, widget);
}

void Binding::FollowFocus(Control& control, wxWindow& widget) {
  widget.Bind(wxEVT_SET_FOCUS, [this, &control](wxFocusEvent& event) {
    event.Skip();
    if (held_ || screen_ == nullptr) return;
    shown_focus_ = &control;
    Operate([this, &control] { screen_->MoveFocus(&control); });
  });
}

void Binding::Operate(const std::function<void()>& event) {
  if (screen_ == nullptr || host_.ended()) return;
  host_.Operate(*screen_, event);
  Refresh();
}

bool Binding::OperateKey(std::string_view key) {
  bool taken = false;
  Operate([&] { taken = screen_->OnKey(key); });
  return taken;
}

void Binding::Mark(Tied& tied) {
  tied.changed = true;
  changed_ = true;
}

void Binding::Refresh() {
  if (screen_ == nullptr) return;
  if (std::exchange(changed_, false)) {
    bool rearranged = false;
    for (Tied& tied : ties_) {
      if (std::exchange(tied.changed, false)) tied.show();
      // All of them, since one control can take others with it.
      if (ShowState(tied)) rearranged = true;
    }
    for (const auto& show : shows_also_) show();
    if (rearranged && on_rearranged) on_rearranged();
  }
  ShowFocus();
}

bool Binding::ShowState(const Tied& tied) {
  const bool held = held_ && TakesInput(*tied.control);
  tied.widget->Enable(tied.control->IsUsable() && !held);
  return tied.widget->Show(IsVisibleOnItsPage(*tied.control));
}

void Binding::ShowFocus() {
  if (held_ || shown_focus_ == screen_->focus()) return;
  shown_focus_ = screen_->focus();
  for (const Tied& tied : ties_) {
    if (tied.control == shown_focus_) tied.widget->SetFocus();
  }
}

// The toolkit's own choice would follow the places of the widgets, not their order.
void Binding::BeginFocus() {
  if (screen_ == nullptr || screen_->focus() != nullptr) return;
  for (const Tied& tied : ties_) {
    if (tied.widget->CanAcceptFocus()) return tied.widget->SetFocus();
  }
}

void Binding::HoldInput(bool held) {
  if (held_ == held) return;
  held_ = held;
  changed_ = true;
  shown_focus_ = nullptr;  // the toolkit takes the focus from a widget that cannot be used
  Refresh();
}

void Binding::Release() {
  for (const Tied& tied : ties_) tied.control->Observe(nullptr);
  ties_.clear();
  shows_also_.clear();
  screen_ = nullptr;
}

}  // namespace golf
