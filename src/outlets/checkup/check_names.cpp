#include "outlets/checkup/check_names.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kFirstNameInQuenby = 11;  // characters

// Returns the key by which the transfer from Zandel to Quenby matches golfers.
std::string KeyOf(const KnownGolfer& golfer) { return UpperCase(golfer.last + golfer.first); }

std::string FoldedKeyOf(const KnownGolfer& golfer) {
  return FoldedName(golfer.last) + '/' + FoldedName(golfer.first);
}

class NameCheck {
 public:
  NameCheck(FileScan& scan, const KnownGolfers& quenby) : scan_(scan) {
    for (const KnownGolfer& golfer : quenby.golfers) {
      keys_.insert(KeyOf(golfer));
      folded_.emplace(FoldedKeyOf(golfer), &golfer);
      ids_.emplace(golfer.id, &golfer);
    }
  }

  // A transfer matches these golfers by name.
  void CheckLeague(const KnownGolfers& league) {
    for (const KnownGolfer& golfer : league.golfers) {
      if (golfer.first.size() > kFirstNameInQuenby) {
        scan_.Add(FindingCode::kNameCut, league.file, golfer.record, golfer.Title(),
                  "The first name has " + std::to_string(golfer.first.size()) +
                      " characters, but Quenby stores 11.");
      } else if (!keys_.contains(KeyOf(golfer))) {
        const auto similar = folded_.find(FoldedKeyOf(golfer));
        if (similar != folded_.end()) Add(league, golfer, "Quenby", *similar->second);
      }
    }
  }

  // A transfer matches these golfers by ID number.
  void CheckRoster(const KnownGolfers& roster) {
    for (const KnownGolfer& golfer : roster.golfers) {
      const auto same = golfer.id > 0 ? ids_.find(golfer.id) : ids_.end();
      if (same == ids_.end() || KeyOf(*same->second) == KeyOf(golfer)) continue;
      if (FoldedKeyOf(*same->second) == FoldedKeyOf(golfer)) {
        Add(roster, golfer, "Quenby", *same->second);
      }
    }
  }

  // Compares league golfers with the members of Kelvane's rosters, by ID number.
  void CheckMembers(const KnownGolfers& league,
                    const std::unordered_map<std::int64_t, const KnownGolfer*>& members) {
    for (const KnownGolfer& golfer : league.golfers) {
      const auto same = golfer.id > 0 ? members.find(golfer.id) : members.end();
      if (same == members.end() || KeyOf(*same->second) == KeyOf(golfer)) continue;
      if (FoldedKeyOf(*same->second) == FoldedKeyOf(golfer)) {
        Add(league, golfer, "Kelvane", *same->second);
      }
    }
  }

 private:
  void Add(const KnownGolfers& where, const KnownGolfer& golfer, std::string_view program,
           const KnownGolfer& other) {
    if (!reported_.insert(FoldedKeyOf(golfer)).second) return;
    scan_.Add(FindingCode::kNameSpelling, where.file, golfer.record, golfer.Title(),
              std::string(program) + " spells the name \"" + other.Title() + "\" (record " +
                  std::to_string(other.record) + ").");
  }

  FileScan& scan_;
  std::unordered_set<std::string> keys_;
  std::unordered_map<std::string, const KnownGolfer*> folded_;
  std::unordered_map<std::int64_t, const KnownGolfer*> ids_;
  std::unordered_set<std::string> reported_;  // folded names
};

}  // namespace

void CheckNames(FileScan& scan, const AllGolfers& all) {
  NameCheck check(scan, all.quenby);
  std::unordered_map<std::int64_t, const KnownGolfer*> members;
  for (const KnownGolfers& league : all.zandel) check.CheckLeague(league);
  for (const KnownGolfers& roster : all.kelvane) {
    check.CheckRoster(roster);
    for (const KnownGolfer& golfer : roster.golfers) members.emplace(golfer.id, &golfer);
  }
  for (const KnownGolfers& league : all.zandel) check.CheckMembers(league, members);
}

}  // namespace golf
