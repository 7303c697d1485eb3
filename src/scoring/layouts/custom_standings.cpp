#include "scoring/layouts/custom_standings.h"

#include <utility>

#include "core/numbered_error.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"

namespace golf {

CustomStandings::CustomStandings(SharedState& state, const ReportLayout& layout)
    : state_(state), rounds_(state.Tournament().RoundCount()), balls_(layout) {}

void CustomStandings::AddTeam() {
  TeamClass& team = state_.Team1();
  TeamBalls table;
  team.PopulateTeamGrid(table, rounds_);
  CustomStanding standing;
  standing.TeamNumber = team.TeamNumber();
  standing.TeamName = team.TeamName();
  standing.golfers = team.NameofPlayersOnTeam(0);
  standing.Flight = team.Flight();
  tables_.push_back(std::move(table));
  teams_.push_back(std::move(standing));
}

std::vector<CustomStanding> CustomStandings::WorkOut() {
  balls_.SetTables(std::move(tables_));
  const HoleSpan played{.first_block = 1, .last_block = rounds_};
  balls_.XBallConsiderWhichScores(false, played);
  balls_.XBallCalculateTeamScore(played);
  std::vector<CustomStanding> standings = std::move(teams_);
  for (std::size_t i = 0; i < standings.size(); ++i) {
    FillSums(static_cast<int>(i) + 1, standings[i]);
  }
  FillTiebreaks(standings);
  Rank(standings, false, &CustomStanding::Positions);
  Rank(standings, true, &CustomStanding::PointsPositions);
  return standings;
}

void CustomStandings::FillSums(int row, CustomStanding& standing) const {
  for (int block = 1; block <= rounds_; ++block) {
    auto& scores = standing.Scores.emplace_back();
    auto& points = standing.Points.emplace_back();
    for (int sum = 1; sum <= kSumsOfBlock; ++sum) {
      const auto i = static_cast<std::size_t>(sum) - 1;
      scores[i] = balls_.Team(row).Score(SumColumn(block, sum));
      points[i] = balls_.Team(row).Points(SumColumn(block, sum));
    }
  }
}

void CustomStandings::FillTiebreaks(std::vector<CustomStanding>& standings) const {
  TournamentClass& tournament = state_.Tournament();
  const int round = tournament.RoundOr({});
  if (round < 1 || round > rounds_) return;
  std::vector<int> stroke_order;
  try {
    stroke_order = state_.Team1().HolesByStrokes();
  } catch (const NumberedError&) {
    // A round without a tee has no stroke order. This error is ignored, so that the teams are still
    // ranked.
  }
  for (std::size_t i = 0; i < standings.size(); ++i) {
    standings[i].tiebreaks =
        balls_.TiebreakKeys(static_cast<int>(i) + 1, round, tournament.RoundType(), stroke_order);
  }
}

void CustomStandings::Rank(std::vector<CustomStanding>& standings, bool points,
                           CustomStanding::Places CustomStanding::*places) {
  std::vector<std::string> flights;
  for (const CustomStanding& standing : standings) flights.push_back(standing.Flight);
  balls_.XBallSortTeamStandings({.points = points}, state_.Tournament().PositionOption(), flights);
  for (std::size_t i = 0; i < standings.size(); ++i) {
    for (int block = 1; block <= rounds_; ++block) {
      auto& of_block = (standings[i].*places).emplace_back();
      for (int sum = 1; sum <= kSumsOfBlock; ++sum) {
        of_block[static_cast<std::size_t>(sum) - 1] =
            balls_.position(static_cast<int>(i) + 1, sum, block);
      }
    }
  }
}

}  // namespace golf
