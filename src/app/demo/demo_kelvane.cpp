#include "app/demo/demo_kelvane.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "app/demo/demo_golfers.h"
#include "core/number_text.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_scores.h"

namespace golf {
namespace {

constexpr int kPar18 = 73;
constexpr int kRoundsASeason = 9;
constexpr CivilTime kSeasonStarts[] = {{2023, 4, 8}, {2024, 4, 6}};
constexpr int kDaysBetweenRounds = 21;

// Returns the strokes of a golfer on a hole. The same arguments give the same strokes.
int HoleScore(int golfer, int round, int hole, float handicap) {
  const int wobble = (golfer * 31 + round * 17 + hole * 7) % 5 - 2;
  return std::max(2, 4 + static_cast<int>(std::lround(handicap / 18)) + wobble / 2);
}

void FillScore(SharedState& state, const DemoGolfer& golfer, int holes, int round, DateValue date) {
  BlankKVScore(state);
  auto& score = state.Kelvane().score;
  const float handicap = holes == 9 ? golfer.handicap * 2 : golfer.handicap;
  int gross = 0;
  for (int hole = 1; hole <= holes; ++hole) {
    const int strokes = HoleScore(golfer.id, round, hole, handicap);
    score.Set<"HoleScore">({hole}, static_cast<std::uint8_t>(strokes));
    gross += strokes;
  }
  score.Set<"CourseNumber">(static_cast<std::int16_t>(holes == 9 ? 3 : 1 + round % 2));
  const int ladies_tee = holes == 9 ? 2 : 3;
  score.Set<"TeeNumber">(static_cast<std::uint8_t>(golfer.lady ? ladies_tee : ladies_tee - 1));
  score.Set<"Rating">(holes == 9 ? 35.1f : 70.6f);
  score.Set<"Slope">(holes == 9 ? 118 : 126);
  score.Set<"Date">(date);
  score.Set<"Gross">(static_cast<std::uint8_t>(gross));
  score.Set<"Adjusted">(static_cast<std::uint8_t>(std::min(gross, kPar18 + 36)));
  score.Set<"HandicapPlayed">(static_cast<std::int16_t>(golfer.handicap));
  score.Set<"Putts">(static_cast<std::uint8_t>(holes == 9 ? 17 : 33));
}

void AddTwoSeasons(SharedState& state, const DemoGolfer& golfer, int holes) {
  state.Kelvane().history = {};
  int round = 0;
  for (const CivilTime& start : kSeasonStarts) {
    for (int i = 0; i < kRoundsASeason; ++i, ++round) {
      FillScore(state, golfer, holes, round, DateFromCivil(start) + i * kDaysBetweenRounds);
      AddKVScore(state);
    }
  }
}

void FillGolfer(Record<KelvaneGolferLayout>& record, const DemoGolfer& golfer) {
  record = {};
  for (const Field& field : KelvaneGolferLayout::kFields) {
    FillField(field, record.MutableBytes(), 0);
  }
  record.Set<"Status">(1);
  record.Set<"MarkedToPrint">(golfer.id % 2 == 0 ? 1 : 0);
  record.Set<"IDNum">(golfer.id);
  record.Set<"NameFirst">(std::string(golfer.first));
  record.Set<"NameLast">(std::string(golfer.last));
  record.Set<"Sex">(golfer.lady ? 1 : 0);
  record.Set<"AddressHomeLine">({1}, std::to_string(golfer.id % 90 + 1) + " Fairway Road");
  record.Set<"AddressHomeLine">({2}, "Larkfield, OH");
  record.Set<"PhoneHome">("555-0" + std::to_string(golfer.id));
  record.Set<"Flight">(std::string(1, golfer.flight));
  record.Set<"GroupNumber">(1);
  record.Set<"Index">(golfer.index);
  record.Set<"IndexText">(FormatNumber(golfer.index, "#0.0;+0.0"));
  record.Set<"Handicap">(golfer.handicap);
  record.Set<"HandicapText">(FormatNumber(golfer.handicap, "0;+0"));
}

void MakeRoster(SharedState& state, const std::string& name, int holes,
                std::span<const DemoGolfer> golfers) {
  FileTable& files = state.files;
  files.Open(kKelvaneHeaderFile, state.KVDataPath + name + ".kv5", KelvaneHeaderLayout::kLength);
  BuildBlankKVHeader(state, static_cast<std::uint8_t>(holes));
  auto& header = state.Kelvane().header;
  header.Set<"Title">("Larkfield Golf Club");
  header.Set<"CounterDate">({1}, DateFromCivil(kSeasonStarts[1]));
  files.Write(kKelvaneHeaderFile, 1, header);
  OpenKVRoster(state, name);
  int place = 0;
  for (const DemoGolfer& golfer : golfers) {
    ++place;
    FillGolfer(state.Kelvane().golfer, golfer);
    AddTwoSeasons(state, golfer, holes);
    files.Write(kKelvaneGolferFile, place, state.Kelvane().golfer);
    files.Write(kKelvaneScoreFile, place, state.Kelvane().history);
  }
  CloseKVFiles(state);
}

}  // namespace

void MakeDemoKelvaneRosters(SharedState& state) {
  LoadKVSystemFile(state);
  MakeRoster(state, "CLUB18", 18, DemoMembers());
  MakeRoster(state, "NINE9", 9, DemoNineHolers());
  state.InitSharedObjects();
}

}  // namespace golf
