#include "history/change_groups.h"

#include <algorithm>

namespace golf {

void ChangeGroups::Begin(std::string_view title) {
  pending_ = title;
  current_ = 0;
}

void ChangeGroups::Resume(ChangeGroup group) {
  pending_.clear();
  current_ = group;
}

ChangeGroup ChangeGroups::Current() {
  if (current_ == 0 && !pending_.empty()) {
    starts_.push_back(static_cast<std::uint32_t>(titles_.size()));
    titles_ += pending_;
    current_ = Count();
    joined_to_.push_back(current_);
  }
  return current_;
}

void ChangeGroups::Join(ChangeGroup a, ChangeGroup b) {
  if (a == 0 || b == 0) return;
  const auto [first, last] = std::minmax({Root(a), Root(b)});
  joined_to_[last - 1] = first;
}

ChangeGroup ChangeGroups::Root(ChangeGroup group) const {
  while (group != 0 && joined_to_[group - 1] != group) group = joined_to_[group - 1];
  return group;
}

std::string_view ChangeGroups::Title(ChangeGroup group) const {
  const std::size_t start = starts_[group - 1];
  const std::size_t end = group < starts_.size() ? starts_[group] : titles_.size();
  return std::string_view(titles_).substr(start, end - start);
}

}  // namespace golf
