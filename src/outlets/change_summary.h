#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "history/record_changes.h"

namespace golf {

// Counts changes by sibling and kind of record.
class ChangeSummary {
 public:
  // `kinds` must outlive this object.
  explicit ChangeSummary(const RecordKinds& kinds) : kinds_(kinds) {}

  void Add(const RecordChange& change);

  // Returns the number of changed records plus the number of changed files without records.
  std::int64_t Count() const { return static_cast<std::int64_t>(whole_files_.size()) + records_; }
  // Returns one line such as "10 golfers changed, 2 added in Quenby; 1 file". Returns
  // "Nothing" if no change was added. A derived file, such as a course index, counts only as a
  // file.
  std::string Text() const;
  // Returns the number of records of the first kind, such as "12 golfers". Returns the number of
  // files if no record has changed.
  std::string BriefText() const;

 private:
  struct Group {
    std::string sibling;
    std::string_view layout;
    std::int64_t changed = 0;
    std::int64_t added = 0;
    std::int64_t removed = 0;
  };
  Group& GroupOf(const RecordChange& change);

  const RecordKinds& kinds_;
  std::vector<Group> groups_;  // in the order of their first changes
  std::set<std::string> files_;
  std::set<std::string> whole_files_;  // files that have no change of a record
  std::int64_t records_ = 0;
  std::int64_t created_ = 0;
  std::int64_t deleted_ = 0;
};

}  // namespace golf
