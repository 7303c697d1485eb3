#include "outlets/results/custom_entries.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/number_text.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

// Adds the scores of a measure. `sums` contains the sums of each round. A team has no place by its
// total if it did not play each round up to the shown one.
void AddScores(const CustomStanding::Sums& sums, int round, Measure measure, const std::string& key,
               ResultEntry& entry) {
  const auto last = static_cast<std::size_t>(round) - 1;
  if (last >= sums.size()) return;
  const auto& of_round = sums[last];
  const auto ranked = [&](const TeamBalls::Sum& sum, bool has_place) {
    return has_place && sum ? RankedScore{*sum, key} : RankedScore{};
  };
  entry.scores[Span::kRound][measure] = {{TextOrEmpty(of_round[0]), TextOrEmpty(of_round[1])},
                                         TextOrEmpty(of_round[2]),
                                         ranked(of_round[2], true)};
  ShownScore& total = entry.scores[Span::kAllRounds][measure];
  bool is_complete = true;
  for (std::size_t i = 0; i <= last; ++i) {
    total.parts.push_back(TextOrEmpty(sums[i][2]));
    is_complete = is_complete && sums[i][2];
  }
  total.total = TextOrEmpty(of_round[3]);
  total.ranked = ranked(of_round[3], is_complete);
}

// Reads the cards of a team from its tables.
class CardReader {
 public:
  CardReader(const TeamBalls& balls, int round) : balls_(balls), round_(round) {}

  // Returns a card without rows if the team has no ball in the round.
  RoundCard Read() const {
    RoundCard card{.round = round_, .facts = {}, .rows = {}};
    for (int golfer = 1; golfer <= kMostGolfersWithBalls; ++golfer) {
      for (const BallTable table : {BallTable::kGross, BallTable::kNet}) {
        AddGolfer(golfer, table, card);
      }
    }
    if (card.rows.empty()) return card;
    card.rows.push_back(SumsRow("Counted", &TeamBalls::Score));
    card.rows.push_back(SumsRow("Points", &TeamBalls::Points));
    return card;
  }

 private:
  int ColumnOf(int hole) const {
    return hole > kHoles ? SumColumn(round_, hole - kHoles)
                         : HoleColumn((round_ - 1) * kHoles + hole);
  }

  // Adds the scores of a golfer on the holes. Adds nothing if the golfer has played no hole.
  void AddGolfer(int golfer, BallTable table, RoundCard& card) const {
    CardRow row{
        balls_.Golfer(round_, golfer) + (table == BallTable::kGross ? ", gross" : ", net"), {}, {}};
    const ByHole<TeamBalls::Sum> values = balls_.Values(table, golfer, round_);
    if (!values[kWholeRound]) return;
    for (int hole = 1; hole <= kWholeRound; ++hole) {
      const bool is_hole = hole <= kHoles;
      const bool is_unfinished =
          is_hole && table == BallTable::kGross && values[hole].value_or(0) >= kUnfinished;
      row.cells[hole] = is_unfinished ? "F" : TextOrEmpty(values[hole]);
      row.counts[static_cast<std::size_t>(hole)] =
          is_hole && balls_.At(table, golfer, ColumnOf(hole)).selected;
    }
    card.rows.push_back(std::move(row));
  }

  CardRow SumsRow(const char* heading, TeamBalls::Sum (TeamBalls::*sum)(int) const) const {
    return CardRowOf(heading, [&](int hole) { return TextOrEmpty((balls_.*sum)(ColumnOf(hole))); });
  }

  const TeamBalls& balls_;
  int round_;
};

}  // namespace

std::string KeyOf(const CustomStanding& standing, Tiebreak tiebreak) {
  switch (tiebreak) {
    case Tiebreak::kNone:
      break;
    case Tiebreak::kUsga:
      return standing.tiebreaks[0];
    case Tiebreak::kHandicap:
      return standing.tiebreaks[1];
    case Tiebreak::k1To18:
      return standing.tiebreaks[2];
    case Tiebreak::k18To1:
      return standing.tiebreaks[3];
  }
  return {};
}

std::vector<ResultEntry> CustomEntries(SharedState& state, const CustomStandings& tables,
                                       const std::vector<CustomStanding>& standings,
                                       Tiebreak tiebreak, bool with_cards) {
  const int round = state.Tournament().RoundOr({});
  std::vector<ResultEntry> entries;
  for (const CustomStanding& standing : standings) {
    ResultEntry& entry = entries.emplace_back();
    entry.number = standing.TeamNumber;
    entry.name = standing.TeamName;
    entry.golfers = standing.golfers;
    entry.flight = standing.Flight;
    const std::string key = KeyOf(standing, tiebreak);
    AddScores(standing.Scores, round, Measure::kGross, key, entry);
    AddScores(standing.Points, round, Measure::kPoints, {}, entry);
    if (!with_cards) continue;
    const TeamBalls& balls = tables.balls().Team(static_cast<int>(entries.size()));
    for (int of = 1; of <= std::min(round, static_cast<int>(standing.Scores.size())); ++of) {
      RoundCard card = CardReader(balls, of).Read();
      if (!card.rows.empty()) entry.cards.push_back(std::move(card));
    }
  }
  return entries;
}

}  // namespace golf
