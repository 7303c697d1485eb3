#include <algorithm>
#include <set>

#include "core/number_text.h"
#include "outlets/results/entry_reader.h"
#include "outlets/results/result_values.h"
#include "outlets/results/score_reader.h"
#include "outlets/results/tournament_walk.h"

namespace golf {
namespace {

constexpr TiebreakTable<TeamClass> kTiebreaks = {{
    {&TeamClass::GrossTotalTiebreakUSGA, &TeamClass::NetTotalTiebreakUSGA},
    {&TeamClass::GrossTotalTiebreakHandicapHole, &TeamClass::NetTotalTiebreakHandicapHole},
    {&TeamClass::GrossTotalTiebreak18to1, &TeamClass::NetTotalTiebreak18to1},
    {&TeamClass::GrossTotalTiebreak1to18, &TeamClass::NetTotalTiebreak1to18},
}};

// Reads the results of the team in the first team object.
class TeamReader : public ScoreReader {
 public:
  explicit TeamReader(const EntryQuestion& question)
      : ScoreReader(question), team_(question.state.Team1()) {}

  ResultEntry Read(int number) {
    ResultEntry entry;
    entry.number = number;
    entry.name = team_.TeamName();
    entry.golfers = team_.NameofPlayersOnTeam(0, round_);
    entry.flight = team_.Flight(round_);
    entry.handicap = team_.Handicap(round_);
    entry.quota = team_.Quota(round_);
    ReadCards(entry.cards);
    ReadScores(entry);
    return entry;
  }

 private:
  bool IsPlayed(int round) override { return team_.Results(round).first_scorer != 0; }

  std::string Score(Measure measure, int hole, int round) override {
    switch (measure) {
      case Measure::kGross:
        return std::to_string(team_.ScoreGross(hole, round));
      case Measure::kNet:
        return FormatSignedHandicap(team_.ScoreNet(hole, round),
                                    hole > kHoles && team_.ShowsDecimals());
      case Measure::kPoints:
        return std::to_string(team_.PointsNet(hole, round));
      case Measure::kQuota:
        break;
    }
    return team_.QuotaResults(hole - kFirstNine + 1, round);
  }

  std::optional<std::string> Total(Measure measure) override {
    if (measure == Measure::kGross) return team_.TotalGross();
    if (measure == Measure::kNet) return team_.TotalNet();
    return std::nullopt;
  }

  std::string Key(Measure measure) override {
    return TiebreakKey(team_, kTiebreaks, question_.tiebreak, measure, round_);
  }

  // Adds the cards of the played rounds. Makes each round the active one while its card is read,
  // because the team's golfers are those of the active round. The shown round is active afterwards.
  void ReadCards(std::vector<RoundCard>& cards) {
    if (!question_.with_cards || tournament_.ScoreEntryTotal() != 0) return;
    if (round_ <= tournament_.RoundCount()) {
      for (int round = 1; round < round_; ++round) {
        MakeActive(round);
        if (IsPlayed(round)) cards.push_back(Card(round));
      }
      MakeActive(round_);
    }
    if (IsPlayed(round_)) cards.push_back(Card(round_));
  }

  void MakeActive(int round) {
    tournament_.SetActiveRound(round);
    team_.GetRecord(team_.TeamNumber());  // calculates the results again
  }

  RoundCard Card(int round) {
    RoundCard card{.round = round, .facts = {}, .rows = {}};
    AddPars(round, card);
    card.rows.push_back(CardRowOf("Strokes", [&](int hole) { return Strokes(hole, round); }));
    AddScoreRows(card);
    const int balls = std::min(kMostBalls, team_.Results(round).golfers);
    for (int ball = 1; ball <= balls; ++ball) {
      card.rows.push_back(
          CardRowOf(ball == 1 ? "Best net" : std::to_string(ball) + " best net",
                    [&](int hole) { return team_.BestBallNet(ball, hole, round); }));
    }
    card.facts = {tournament_.CourseNamePlayed(round), "Handicap " + team_.Handicap(round)};
    for (int i = 1; i < kTeamNames; ++i) {
      const std::string golfer = team_.NameofPlayersOnTeam(i, round);
      if (!golfer.empty()) card.facts.push_back(golfer);
    }
    return card;
  }

  // Returns the handicap strokes of the team: the gross score minus the net score. They have the
  // decimals of the net score.
  std::string Strokes(int hole, int round) {
    const double net = team_.ScoreNet(hole, round);
    return FormatSignedHandicap(team_.ScoreGross(hole, round) - net,
                                hole > kHoles && team_.ShowsDecimals());
  }

  // Adds the row of the pars. The round must be the active one. Golfers who play from different
  // tees may have different pars. A cell then contains all of them, as in "3/4".
  void AddPars(int round, RoundCard& card) {
    PlayerClass& player = question_.state.Player();
    const int team = team_.TeamNumber();
    const std::int32_t golfers = player.TourIndexNumberofPlayersInIndex();
    ByHole<std::set<std::int32_t>> pars;
    std::int32_t i = player.TourIndex1stPlayerOnTeam(team, round);
    for (; i >= 1 && i <= golfers; ++i) {
      player.GetRecord(player.TourIndexPlayerbyTeam(i, round), true);
      if (player.TourTeamOn(round) != team) break;
      ByHole<std::int32_t> of_golfer;
      for (int hole = 1; hole <= kHoles; ++hole) {
        for (const int entry : {hole, NineOf(hole), kWholeRound}) {
          of_golfer[entry] += player.TourHolePar(hole, round);
        }
      }
      for (int entry = 1; entry <= kWholeRound; ++entry) pars[entry].insert(of_golfer[entry]);
    }
    card.rows.push_back(CardRowOf("Par", [&](int hole) {
      std::string text;
      for (const std::int32_t par : pars[hole]) {
        text += (text.empty() ? "" : "/") + std::to_string(par);
      }
      return text;
    }));
  }

  TeamClass& team_;
};

}  // namespace

std::vector<ResultEntry> ReadTeams(const EntryQuestion& question) {
  std::vector<ResultEntry> entries;
  TeamReader reader(question);
  ForEachTeam(
      question.state, [&](int team) { entries.push_back(reader.Read(team)); },
      [&](int, const std::string& who, const NumberedError& error) { question.failed(who, error); },
      question.note);
  return entries;
}

}  // namespace golf
