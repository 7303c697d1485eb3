#include "forms/screen.h"

#include <utility>

#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

const Button* AsReachableButton(const Control* control) {
  const bool reachable = control->kind() == ControlKind::kButton && control->IsReachable();
  return reachable ? static_cast<const Button*>(control) : nullptr;
}

}  // namespace

std::string Screen::ScriptName(const Control& control) const {
  int before = 0;
  int of_this_name = 0;
  for (const Control* other : controls_) {
    if (other == &control) before = of_this_name;
    if (EqualIgnoringCase(other->name(), control.name())) ++of_this_name;
  }
  return of_this_name < 2 ? control.name() : control.name() + "(" + std::to_string(before) + ")";
}

char MnemonicOf(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return UpperCase(caption.substr(i + 1, 1))[0];
    ++i;
  }
  return 0;
}

void Screen::Add(std::initializer_list<Control*> controls) {
  controls_.insert(controls_.end(), controls);
}

void Screen::AddInto(Frame& frame, const std::vector<Control*>& controls) {
  for (Control* control : controls) {
    Add({control});
    control->SetParent(frame);
  }
}

Control* Screen::FindControl(std::string_view name) const {
  for (Control* control : controls_) {
    if (EqualIgnoringCase(control->name(), name)) return control;
  }
  const std::size_t open = name.rfind('(');
  if (open == std::string_view::npos || !name.ends_with(')')) return nullptr;
  const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
  std::optional<std::int64_t> before = ReadWholeNumber(digits);
  if (!before) return nullptr;
  for (Control* control : controls_) {
    if (EqualIgnoringCase(control->name(), name.substr(0, open)) && (*before)-- == 0) {
      return control;
    }
  }
  return nullptr;
}

const Button* Screen::ButtonOfKey(std::string_view key) const {
  constexpr std::string_view kAlt = "ALT+";
  const std::string pressed = UpperCase(key);
  for (const Control* control : controls_) {
    const Button* button = AsReachableButton(control);
    if (button == nullptr) continue;
    const bool mnemonic = pressed.size() == kAlt.size() + 1 && pressed.starts_with(kAlt) &&
                          MnemonicOf(button->caption()) == pressed.back();
    if (mnemonic || (button->is_default() && pressed == "ENTER") ||
        (button->is_cancel() && pressed == "ESCAPE")) {
      return button;
    }
  }
  return nullptr;
}

bool Screen::OnKey(std::string_view key) {
  const Button* button = ButtonOfKey(key);
  if (button != nullptr) button->Click();
  return button != nullptr;
}

void Screen::MoveFocus(Control* control) {
  if (control == focus_ || (control != nullptr && !control->IsReachable())) return;
  Control* left = std::exchange(focus_, control);
  if (left != nullptr && left->on_leave) left->on_leave();
  if (focus_ == control && control != nullptr && control->on_enter) control->on_enter();
}

}  // namespace golf
