#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace golf {

// Lists the golfers, scores, courses and records that a run was asked to transfer and did not
// transfer, each with the reason. Groups them by reason, in the order in which the reasons first
// occur. Stores each reason once, so that a long list needs little memory. All texts are in code
// page 1252.
class LeftOut {
 public:
  // Adds an entry. `title` is the name, for example "Smith, Ann". `reason` continues the sentence,
  // for example "not in this league".
  void Add(std::string_view title, std::string_view reason);
  // Adds the entries of another list.
  void Append(const LeftOut& others);

  std::size_t Count() const;

  // Calls `each` with the title and the reason of each entry.
  void ForEach(const std::function<void(std::string_view, std::string_view)>& each) const;
  // Formats the list as a section of a report, and calls `write` with each line. An empty list has
  // no lines.
  void ForEachLine(const std::function<void(std::string_view)>& write) const;
  // Removes such sections from a report, and returns them.
  static std::string TakeSections(std::string& report);

 private:
  struct Group {
    std::string reason;
    std::string titles;  // with a line feed after each
    std::size_t count = 0;
  };

  Group& GroupOf(std::string_view reason);

  std::vector<Group> groups_;
  std::unordered_map<std::string, std::size_t> places_;  // of the groups, by reason
};

}  // namespace golf
