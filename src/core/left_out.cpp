#include "core/left_out.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace golf {
namespace {

constexpr char kTitleEnd = '\n';
constexpr std::string_view kHeading = "Left out: ";
constexpr std::string_view kIndent = "  ";

template <class Each>
void ForEachTitle(std::string_view titles, const Each& each) {
  while (!titles.empty()) {
    const std::size_t end = titles.find(kTitleEnd);
    each(titles.substr(0, end));
    titles.remove_prefix(end + 1);
  }
}

}  // namespace

LeftOut::Group& LeftOut::GroupOf(std::string_view reason) {
  std::string key(reason);
  const auto known = places_.find(key);
  if (known != places_.end()) return groups_[known->second];
  places_.emplace(key, groups_.size());
  return groups_.emplace_back(Group{.reason = std::move(key), .titles = {}});
}

// Replaces control characters, which a damaged record may contain, so that each title is one line.
void LeftOut::Add(std::string_view title, std::string_view reason) {
  std::string line = WithoutPadding(title);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c >= '\0' && c < ' '; }, '?');
  Group& group = GroupOf(reason);
  group.titles.append(line).push_back(kTitleEnd);
  ++group.count;
}

void LeftOut::Append(const LeftOut& others) {
  for (const Group& other : others.groups_) {
    Group& group = GroupOf(other.reason);
    group.titles += other.titles;
    group.count += other.count;
  }
}

std::size_t LeftOut::Count() const {
  std::size_t count = 0;
  for (const Group& group : groups_) count += group.count;
  return count;
}

void LeftOut::ForEach(const std::function<void(std::string_view, std::string_view)>& each) const {
  for (const Group& group : groups_) {
    ForEachTitle(group.titles, [&](std::string_view title) { each(title, group.reason); });
  }
}

void LeftOut::ForEachLine(const std::function<void(std::string_view)>& write) const {
  if (groups_.empty()) return;
  write(std::string(kHeading) + std::to_string(Count()));
  std::string line;
  for (const Group& group : groups_) {
    write("  " + std::to_string(group.count) + " " + group.reason);
    ForEachTitle(group.titles, [&](std::string_view title) {
      line.assign("    ").append(title);
      write(line);
    });
  }
}

std::string LeftOut::TakeSections(std::string& report) {
  std::string rest;
  std::string sections;
  bool in_section = false;
  for (std::string_view text = report; !text.empty();) {
    const std::string_view line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
    in_section = line.starts_with(kHeading) || (in_section && line.starts_with(kIndent));
    (in_section ? sections : rest) += line;
    text.remove_prefix(line.size());
  }
  report = std::move(rest);
  return sections;
}

}  // namespace golf
