#include "forms/control.h"

#include <algorithm>

namespace golf {

void List::AddItem(std::string item) {
  items_.push_back(std::move(item));
  Changed();
}

void List::Clear() {
  items_.clear();
  index_ = -1;
  Changed();
}

bool List::Select(int index) {
  if (index < -1 || index >= static_cast<int>(items_.size())) return false;
  index_ = index;
  Changed();
  if (on_click) on_click();
  return true;
}

std::string List::text() const {
  return index_ < 0 ? std::string() : items_[static_cast<std::size_t>(index_)];
}

int TextCombo::index() const {
  const auto item = std::find(items_.begin(), items_.end(), text());
  return item == items_.end() ? -1 : static_cast<int>(item - items_.begin());
}

bool TextCombo::Select(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) return false;
  SetText(items_[static_cast<std::size_t>(index)]);
  return true;
}

bool Tab::Choose(int page) {
  if (page < 0 || page >= static_cast<int>(pages_.size())) return false;
  Assign(page_, page);
  if (on_click) on_click();
  return true;
}

void Tab::Hold(Control& control, int page) {
  control.SetParent(*this);
  held_.emplace_back(&control, page);
}

bool Tab::ShowsInside(const Control& control) const {
  const auto held = std::find_if(held_.begin(), held_.end(),
                                 [&](const auto& entry) { return entry.first == &control; });
  return IsShown() && (held == held_.end() || held->second == page_);
}

}  // namespace golf
