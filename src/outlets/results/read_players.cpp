#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "outlets/results/entry_reader.h"
#include "outlets/results/score_reader.h"
#include "outlets/results/tournament_walk.h"

namespace golf {
namespace {

constexpr TiebreakTable<PlayerClass> kTiebreaks = {{
    {&PlayerClass::TourGrossTotalTiebreakUSGA, &PlayerClass::TourNetTotalTiebreakUSGA},
    {&PlayerClass::TourGrossTotalTiebreakHandicapHole,
     &PlayerClass::TourNetTotalTiebreakHandicapHole},
    {&PlayerClass::TourGrossTotalTiebreak18to1, &PlayerClass::TourNetTotalTiebreak18to1},
    {&PlayerClass::TourGrossTotalTiebreak1to18, &PlayerClass::TourNetTotalTiebreak1to18},
}};

// Reads the results of the shared player's current entry.
class PlayerReader : public ScoreReader {
 public:
  explicit PlayerReader(const EntryQuestion& question)
      : ScoreReader(question), player_(question.state.Player()) {}

  ResultEntry Read(std::int32_t record) {
    ResultEntry entry;
    entry.number = record;
    entry.name = player_.NameLF();
    entry.flight = player_.TourFlight(round_);
    entry.handicap = player_.TourHandicap(round_);
    entry.sex = player_.sex();  // the calculation corrects it
    entry.quota = player_.TourQuota(UsesDecimals(), round_);
    entry.exact_net = ExactNet();
    if (question_.with_cards) entry.cards = Cards(1);
    ReadScores(entry);
    entry.holes_played = HolesPlayed();
    return entry;
  }

  // Reads the cards of the rounds `first` to the shown one.
  PlayerCards ReadCards(int first) {
    PlayerCards read;
    read.cards = Cards(first);
    for (const RoundCard& card : read.cards) {
      const RoundResults& results = player_.Results(card.round);
      Count(results.gross_statistics, read.gross);
      Count(results.net_statistics, read.net);
    }
    read.putts = player_.TourTotalPutts(first, round_);
    read.fairways = player_.TourTotalFairways(first, round_);
    read.greens = player_.TourTotalGreens(first, round_);
    return read;
  }

 private:
  static void Count(const ByDifference<ByHole<std::int32_t>>& statistics, HoleCounts& counts) {
    for (int difference = -kMostDifference; difference <= kMostDifference; ++difference) {
      const std::int32_t holes = statistics[difference][kWholeRound];
      if (difference <= -2) counts.eagles += holes;
      if (difference == -1) counts.birdies += holes;
      if (difference == 0) counts.pars += holes;
      if (difference == 1) counts.bogeys += holes;
      if (difference >= 2) counts.double_bogeys += holes;
    }
  }

  bool UsesDecimals() const { return tournament_.HandicapDecimalPlaces() > 0; }

  bool IsPlayed(int round) override { return player_.Results(round).gross[kWholeRound] >= 1; }

  std::string Score(Measure measure, int hole, int round) override {
    switch (measure) {
      case Measure::kGross:
        return TextOf(player_.TourScoreGross(hole, round));
      case Measure::kNet:
        return player_.TourScoreNet(hole, round);
      case Measure::kPoints:
        return player_.TourPointsNet(hole, round);
      case Measure::kQuota:
        break;
    }
    return player_.TourPointsQuotaResults(hole - kFirstNine + 1, round);
  }

  std::optional<std::string> Total(Measure measure) override {
    switch (measure) {
      case Measure::kGross:
        return player_.TourTotalGross(1, round_);
      case Measure::kNet:
        return player_.TourTotalNet(1, round_);
      case Measure::kPoints:
        return player_.TourTotalNetPoints(1, round_);
      case Measure::kQuota:
        break;
    }
    return player_.TourTotalQuotaResults(1, round_);
  }

  std::string Key(Measure measure) override {
    return TiebreakKey(player_, kTiebreaks, question_.tiebreak, measure, round_);
  }

  int HolesPlayed() {
    int played = 0;
    for (int hole = 1; hole <= tournament_.RoundType(); ++hole) {
      played += player_.TourScoreGrossValue(hole, round_) >= 1 ? 1 : 0;
    }
    return played;
  }

  std::optional<double> ExactNet() {
    if (!IsPlayed(round_)) return std::nullopt;
    const RoundResults& results = player_.Results(round_);
    const double whole = results.net[kWholeRound];
    const double net = UsesDecimals() ? results.decimal_net : whole;
    return std::isfinite(net) ? std::optional(net) : std::nullopt;
  }

  // Returns the cards of the played rounds from `first` to the shown one. The strokes and pars of
  // the holes are those of the round that was calculated last. Reading the quota of an earlier
  // round can calculate the shown round, so the shown round is read first.
  std::vector<RoundCard> Cards(int first) {
    std::vector<RoundCard> cards;
    if (tournament_.ScoreEntryTotal() != 0) return cards;
    std::vector<RoundCard> shown;
    if (IsPlayed(round_)) shown.push_back(Card(round_));
    for (int round = first; round < round_; ++round) {
      if (IsPlayed(round)) cards.push_back(Card(round));
    }
    std::ranges::move(shown, std::back_inserter(cards));
    return cards;
  }

  RoundCard Card(int round) {
    RoundCard card{.round = round, .facts = {}, .rows = {}};
    card.rows.push_back(
        SummedCardRow("Par", [&](int hole) { return player_.TourHolePar(hole, round); }));
    card.rows.push_back(
        SummedCardRow("Strokes", [&](int hole) { return player_.TourHoleStrokes(hole, round); }));
    AddScoreRows(card);
    card.facts = {player_.TourCoursePlayedName(round), player_.TourCourseTeePlayedName(round),
                  "Handicap " + player_.TourHandicap(round)};
    return card;
  }

  PlayerClass& player_;
};

}  // namespace

std::vector<ResultEntry> ReadPlayers(const EntryQuestion& question) {
  std::vector<ResultEntry> entries;
  PlayerReader reader(question);
  ForEachPlayer(
      question.state, [&](std::int32_t record) { entries.push_back(reader.Read(record)); },
      [&](int, const std::string& who, const NumberedError& error) {
        question.failed(who, error);
      });
  return entries;
}

PlayerCards ReadPlayerCards(SharedState& state, std::int32_t record, Span span) {
  state.Player().GetRecord(record, true);
  const EntryQuestion question{state, Tiebreak::kNone, true, {}, {}};
  const int shown = state.Tournament().RoundOr({});
  return PlayerReader(question).ReadCards(span == Span::kRound ? shown : 1);
}

}  // namespace golf
