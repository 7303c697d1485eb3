#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/held_file_changes.h"

namespace golf {

// The groups of a run with their titles: "Smith, Ann". A group gets its number with its first
// change.
class ChangeGroups {
 public:
  // The changes that follow belong to a new group; to the run as a whole where `title` is empty.
  void Begin(std::string_view title);
  // The changes that follow belong to a group that has changes already.
  void Resume(ChangeGroup group);
  // The number of the group for a change that is made now.
  ChangeGroup Current();

  // Makes one group of two. The group of the run as a whole joins no other.
  void Join(ChangeGroup a, ChangeGroup b);
  // The group that stands for all groups that were joined with this one.
  ChangeGroup Root(ChangeGroup group) const;

  // 1 to Count().
  ChangeGroup Count() const { return static_cast<ChangeGroup>(starts_.size()); }
  std::string_view Title(ChangeGroup group) const;

 private:
  std::string titles_;  // one behind the other: a run may have 300,000 of them
  std::vector<std::uint32_t> starts_;
  std::vector<ChangeGroup> joined_to_;  // the group itself where it was joined to none
  std::string pending_;
  ChangeGroup current_ = 0;
};

}  // namespace golf
