#pragma once

#include <filesystem>
#include <unordered_map>

#include "bare_file.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf::bench {

inline constexpr int kRosterGolfers = 20000;

// Makes the roster CLUB in kvdata. Its golfers have the IDs 1 to kRosterGolfers in no order, and
// each has a history of 20 scores.
void MakeScoreRoster(const std::filesystem::path& folder);

// What a bare loop does with that roster: it reads the golfers once, and for each score reads and
// writes the golfer and his history.
class BareRoster {
 public:
  explicit BareRoster(const std::filesystem::path& folder);
  void Post(int id);

 private:
  BareFile<KelvaneGolferLayout> golfers_;
  BareFile<KelvaneHistoryLayout> histories_;
  std::unordered_map<int, int> places_;
};

}  // namespace golf::bench
