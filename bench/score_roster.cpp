#include "score_roster.h"

#include <algorithm>
#include <fstream>
#include <numeric>
#include <random>
#include <vector>

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kScoresBefore = 20;

Record<KelvaneHistoryLayout> HistoryBefore() {
  Record<KelvaneHistoryLayout> history;
  for (int i = 1; i <= kScoresBefore; ++i) {
    history.Set<"Date">({i}, 45000.0 - i);
    history.Set<"Adjusted">({i}, 90);
  }
  return history;
}

}  // namespace

void MakeScoreRoster(const fs::path& folder) {
  const fs::path kelvane = folder / "kvdata";
  fs::create_directories(kelvane);
  Record<KelvaneHeaderLayout> header;
  header.Set<"Holes">(18);
  std::ofstream(kelvane / "CLUB.KV5", std::ios::binary) << header.Bytes();
  std::vector<int> ids(kRosterGolfers);
  std::iota(ids.begin(), ids.end(), 1);
  std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
  std::ofstream golfers(kelvane / "CLUB.KVG", std::ios::binary);
  std::ofstream histories(kelvane / "CLUB.KVS", std::ios::binary);
  const auto history = HistoryBefore();
  for (const int id : ids) {
    Record<KelvaneGolferLayout> golfer;
    golfer.Set<"Status">(1);
    golfer.Set<"IDNum">(id);
    golfer.Set<"ScoreCounter">({1}, kScoresBefore);
    golfers << golfer.Bytes();
    histories << history.Bytes();
  }
}

BareRoster::BareRoster(const fs::path& folder)
    : golfers_(folder / "kvdata" / "CLUB.KVG"), histories_(folder / "kvdata" / "CLUB.KVS") {
  BareFile<KelvaneHeaderLayout>(folder / "kvdata" / "CLUB.KV5").ReadAll();
  for (int place = 0, count = golfers_.Count(); place < count; ++place) {
    golfers_.Read(place);
    places_.emplace(golfers_.buffer.Get<"IDNum">(), place);
  }
}

void BareRoster::Post(int id) {
  const int place = places_.at(id);
  golfers_.Read(place);
  histories_.Read(place);
  golfers_.Write(place);
  histories_.Write(place);
}

}  // namespace golf::bench
