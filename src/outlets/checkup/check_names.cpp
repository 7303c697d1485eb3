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

  // Finds golfers who have another ID number in Quenby.
  void CheckIds(const KnownGolfers& roster) {
    for (const KnownGolfer& golfer : roster.golfers) {
      if (golfer.id < 1 || ids_.contains(golfer.id)) continue;
      const auto same = folded_.find(FoldedKeyOf(golfer));
      if (same == folded_.end() || members_.contains(same->second->id)) continue;
      scan_.Add(FindingCode::kIdDiffers, roster.file, golfer.record, golfer.Title(),
                "The ID number is " + std::to_string(golfer.id) +
                    ", but that of the same name in "
                    "Quenby is " +
                    std::to_string(same->second->id) + ".");
    }
  }

  // Finds ID numbers that belong to other names in another roster. Leaves out those that several
  // golfers of one roster have, since these are reported already.
  void AddMembers(const KnownGolfers& roster) {
    for (const KnownGolfer& golfer : roster.golfers) {
      if (golfer.id < 1) continue;
      const auto [known, is_new] = members_.emplace(golfer.id, Member{&roster, &golfer});
      const auto& [other_roster, other] = known->second;
      if (is_new || FoldedKeyOf(*other) == FoldedKeyOf(golfer)) continue;
      if (roster.ids_twice.contains(golfer.id) || other_roster->ids_twice.contains(golfer.id)) {
        continue;
      }
      scan_.Add(FindingCode::kIdTwice, roster.file, golfer.record, golfer.Title(),
                other->Title() + " has the same ID number, " + std::to_string(golfer.id) + ", in " +
                    other_roster->file + ".");
    }
  }

  // Compares league golfers with the members of Kelvane's rosters, by ID number.
  void CheckMembers(const KnownGolfers& league) {
    for (const KnownGolfer& golfer : league.golfers) {
      const auto found = golfer.id > 0 ? members_.find(golfer.id) : members_.end();
      if (found == members_.end()) continue;
      const KnownGolfer& member = *found->second.golfer;
      if (KeyOf(member) == KeyOf(golfer) || FoldedKeyOf(member) != FoldedKeyOf(golfer)) continue;
      Add(league, golfer, "Kelvane", member);
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

  struct Member {
    const KnownGolfers* roster;
    const KnownGolfer* golfer;
  };

  FileScan& scan_;
  std::unordered_map<std::int64_t, Member> members_;  // of Kelvane's rosters, by ID number
  std::unordered_set<std::string> keys_;
  std::unordered_map<std::string, const KnownGolfer*> folded_;
  std::unordered_map<std::int64_t, const KnownGolfer*> ids_;
  std::unordered_set<std::string> reported_;  // folded names
};

}  // namespace

void CheckNames(FileScan& scan, const AllGolfers& all) {
  NameCheck check(scan, all.quenby);
  for (const KnownGolfers& league : all.zandel) check.CheckLeague(league);
  for (const KnownGolfers& roster : all.kelvane) {
    check.CheckRoster(roster);
    check.AddMembers(roster);
  }
  for (const KnownGolfers& roster : all.kelvane) check.CheckIds(roster);
  for (const KnownGolfers& league : all.zandel) check.CheckMembers(league);
}

}  // namespace golf
