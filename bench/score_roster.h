#pragma once

#include <filesystem>
#include <unordered_map>

#include "bare_file.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf::bench {

inline constexpr int kRosterGolfers = 20000;

// Makes the roster CLUB in kvdata. Its golfers have the IDs 1 to kRosterGolfers in random order.
// Each golfer has a history of 20 scores.
void MakeScoreRoster(const std::filesystem::path& folder);

// Does the work of a bare loop with that roster. The constructor reads the golfers once. Post reads
// and writes the golfer and the golfer's history for one score.
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
