#include "outlets/results/score_reader.h"

namespace golf {

void ScoreReader::ReadRound(int round, ResultEntry& entry) {
  if (!IsPlayed(round)) return;
  for (const Measure measure : kMeasures) {
    ShownScore& score = entry.scores[Span::kRound][measure];
    score.parts = {Score(measure, kFirstNine, round), Score(measure, kSecondNine, round)};
    score.total = Score(measure, kWholeRound, round);
    if (HasPlaces(measure)) score.ranked = {NumberOfScore(score.total), Key(measure)};
  }
}

void ScoreReader::ReadTotals(int round, ResultEntry& entry) {
  int played = 0;
  for (int of = 1; of <= round; ++of) played += IsPlayed(of) ? 1 : 0;
  if (played == 0) return;
  for (const Measure measure : kMeasures) {
    const std::optional<std::string> total = Total(measure);
    if (!total) continue;
    ShownScore& score = entry.scores[Span::kAllRounds][measure];
    for (int of = 1; of <= round; ++of) {
      score.parts.push_back(IsPlayed(of) ? Score(measure, kWholeRound, of) : "");
    }
    score.total = *total;
    if (played < round || !HasPlaces(measure)) continue;
    score.ranked = {NumberOfScore(score.total), Key(measure)};
  }
}

}  // namespace golf
