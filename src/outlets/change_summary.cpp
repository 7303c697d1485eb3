#include "outlets/change_summary.h"

#include <algorithm>
#include <iterator>

#include "core/text.h"
#include "stores/course/course_layout.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

struct Noun {
  std::string_view layout;
  std::string_view one;
  std::string_view many;
};

constexpr Noun kNouns[] = {
    {KelvaneGolferLayout::kName, "golfer", "golfers"},
    {KelvaneHistoryLayout::kName, "score history", "score histories"},
    {KelvaneHeaderLayout::kName, "roster", "rosters"},
    {PlayerLayout::kName, "golfer", "golfers"},
    {RosterLayout::kName, "roster", "rosters"},
    {TournamentLayout::kName, "tournament", "tournaments"},
    {TournamentPlayerLayout::kName, "tournament entry", "tournament entries"},
    {TeamLayout::kName, "team", "teams"},
    {CourseLayout::kName, "course", "courses"},
    {LeaguePlayerLayout::kName, "golfer", "golfers"},
    {LeagueControlLayout::kName, "league", "leagues"},
    {LeagueEventLayout::kName, "event", "events"},
    {LeagueTeamLayout::kName, "team", "teams"}};

std::string Counted(std::int64_t count, std::string_view one, std::string_view many) {
  return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string Counted(std::int64_t count, std::string_view layout) {
  const auto noun = std::find_if(std::begin(kNouns), std::end(kNouns),
                                 [&](const Noun& known) { return known.layout == layout; });
  return noun == std::end(kNouns) ? Counted(count, "record", "records")
                                  : Counted(count, noun->one, noun->many);
}

// Returns the sibling to which the folder of a file belongs.
std::string SiblingOf(std::string_view file) {
  constexpr std::pair<std::string_view, std::string_view> kSiblings[] = {
      {"KVDATA/", "Kelvane"}, {"QBDATA/", "Quenby"}, {"ZDDATA/", "Zandel"}};
  const std::string folder = UpperCase(file.substr(0, file.rfind('/') + 1));
  for (const auto& [name, sibling] : kSiblings) {
    if (folder == name) return std::string(sibling);
  }
  return "the install";
}

void Join(std::string& text, std::string_view separator, std::string_view part) {
  if (!text.empty()) text += separator;
  text += part;
}

}  // namespace

ChangeSummary::Group& ChangeSummary::GroupOf(const RecordChange& change) {
  const std::string sibling = SiblingOf(change.file);
  const auto group = std::find_if(groups_.begin(), groups_.end(), [&](const Group& known) {
    return known.sibling == sibling && known.layout == change.layout->name;
  });
  if (group != groups_.end()) return *group;
  groups_.push_back({sibling, change.layout->name});
  return groups_.back();
}

void ChangeSummary::Add(const RecordChange& change) {
  const bool is_new_file = files_.insert(change.file).second;
  if (change.kind == ChangeKind::kFileCreated) ++created_;
  if (change.kind == ChangeKind::kFileDeleted) ++deleted_;
  if (change.record == 0) {
    if (is_new_file) whole_files_.insert(change.file);
    return;
  }
  whole_files_.erase(change.file);
  ++records_;
  if (!kinds_.derived_from(change.file).empty()) return;
  Group& group = GroupOf(change);
  ++(change.kind == ChangeKind::kAdded     ? group.added
     : change.kind == ChangeKind::kRemoved ? group.removed
                                           : group.changed);
}

std::string ChangeSummary::BriefText() const {
  if (groups_.empty()) return Counted(static_cast<std::int64_t>(files_.size()), "file", "files");
  const Group& first = groups_.front();
  return Counted(first.changed + first.added + first.removed, first.layout);
}

std::string ChangeSummary::Text() const {
  if (files_.empty()) return "Nothing";
  std::string text;
  for (const Group& group : groups_) {
    std::string counts;
    for (const auto& [count, verb] :
         {std::pair(group.changed, " changed"), std::pair(group.added, " added"),
          std::pair(group.removed, " removed")}) {
      if (count == 0) continue;
      Join(counts, ", ", counts.empty() ? Counted(count, group.layout) : std::to_string(count));
      counts += verb;
    }
    Join(text, "; ", counts + " in " + group.sibling);
  }
  Join(text, "; ", Counted(static_cast<std::int64_t>(files_.size()), "file", "files"));
  std::string whole;
  if (created_ > 0) Join(whole, ", ", std::to_string(created_) + " created");
  if (deleted_ > 0) Join(whole, ", ", std::to_string(deleted_) + " deleted");
  return whole.empty() ? text : text + " (" + whole + ")";
}

}  // namespace golf
