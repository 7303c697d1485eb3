#include "outlets/results/score_reader.h"

namespace golf {

void ScoreReader::ReadScores(ResultEntry& entry) {
  ReadRound(entry);
  ReadTotals(entry);
}

void ScoreReader::AddScoreRows(RoundCard& card) {
  const auto add = [&](const char* heading, Measure measure) {
    card.rows.push_back(
        CardRowOf(heading, [&](int hole) { return Score(measure, hole, card.round); }));
  };
  add("Gross", Measure::kGross);
  add("Net", Measure::kNet);
  add("Points", Measure::kPoints);
}

// Points and quota results have no places if the tournament has only totals of rounds.
bool ScoreReader::HasPlaces(Measure measure) const {
  return RanksLowestFirst(measure) || tournament_.ScoreEntryTotal() == 0;
}

void ScoreReader::ReadRound(ResultEntry& entry) {
  if (!IsPlayed(round_)) return;
  for (const Measure measure : kMeasures) {
    ShownScore& score = entry.scores[Span::kRound][measure];
    score.parts = {Score(measure, kFirstNine, round_), Score(measure, kSecondNine, round_)};
    score.total = Score(measure, kWholeRound, round_);
    if (HasPlaces(measure)) score.ranked = {NumberOfScore(score.total), Key(measure)};
  }
}

void ScoreReader::ReadTotals(ResultEntry& entry) {
  int played = 0;
  for (int of = 1; of <= round_; ++of) played += IsPlayed(of) ? 1 : 0;
  if (played == 0) return;
  for (const Measure measure : kMeasures) {
    const std::optional<std::string> total = Total(measure);
    if (!total) continue;
    ShownScore& score = entry.scores[Span::kAllRounds][measure];
    for (int of = 1; of <= round_; ++of) {
      score.parts.push_back(IsPlayed(of) ? Score(measure, kWholeRound, of) : "");
    }
    score.total = *total;
    if (played < round_ || !HasPlaces(measure)) continue;
    score.ranked = {NumberOfScore(score.total), Key(measure)};
  }
}

}  // namespace golf
