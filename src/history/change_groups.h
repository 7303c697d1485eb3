#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/held_file_changes.h"

namespace golf {

// Numbers the groups of a run and stores their titles, such as "Smith, Ann". A group gets its
// number with its first change.
class ChangeGroups {
 public:
  // Begins a new group for the following changes. They belong to the run as a whole if `title` is
  // empty.
  void Begin(std::string_view title);
  // Adds the following changes to a group that has changes already.
  void Resume(ChangeGroup group);
  // Returns the number of the group for a change that is made now, or 0 for the run as a whole.
  ChangeGroup Current();

  // Joins two groups into one. Does nothing if one of them is 0.
  void Join(ChangeGroup a, ChangeGroup b);
  // Returns the lowest number of the groups that were joined with `group`, or `group` itself.
  ChangeGroup Root(ChangeGroup group) const;

  // Returns the number of groups. Their numbers are 1 to Count().
  ChangeGroup Count() const { return static_cast<ChangeGroup>(starts_.size()); }
  std::string_view Title(ChangeGroup group) const;

 private:
  std::string titles_;                  // all titles in one string, since a run may have 300,000
  std::vector<std::uint32_t> starts_;   // index of each title in `titles_`
  std::vector<ChangeGroup> joined_to_;  // the group itself if it was joined to none
  std::string pending_;
  ChangeGroup current_ = 0;
};

}  // namespace golf
