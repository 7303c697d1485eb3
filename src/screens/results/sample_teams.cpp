#include "screens/results/sample_teams.h"

#include <string>
#include <vector>

#include "core/number_text.h"

namespace golf {

int SampleTeams::ColumnOf(int team, BallTable table, int player) {
  const int before = kFirstColumn + (team - 1) * kWidth;
  return before + (table == BallTable::kNet ? kMostLayoutPlayers : 0) + player;
}

void SampleTeams::HeadColumns() {
  grid_.SetHeading(kFirstColumn, "+++");
  for (int team = 1; team <= kTeams; ++team) {
    const std::string sample = "SAMPLE    " + std::to_string(team);
    for (int player = 1; player <= kMostLayoutPlayers; ++player) {
      const std::string who = "Player #" + std::to_string(player);
      grid_.SetHeading(ColumnOf(team, BallTable::kGross, player), sample + "\nGROSS    \n" + who);
      grid_.SetHeading(ColumnOf(team, BallTable::kNet, player), sample + "\nNET    \n" + who);
    }
    grid_.SetHeading(TotalColumn(team), sample + "\nTOTAL ");
  }
}

void SampleTeams::HideColumns() {
  for (int team = 1; team <= kTeams; ++team) {
    for (int player = 1; player <= kMostLayoutPlayers; ++player) {
      for (const BallTable table : {BallTable::kGross, BallTable::kNet}) {
        grid_.SetHidden(ColumnOf(team, table, player), player > layout_.PlayersPerTeam);
      }
    }
  }
}

// Returns a random number from 0 to `most`.
int SampleTeams::MadeUp(std::uint32_t most) {
  random_ = random_ * 1664525 + 1013904223;
  return static_cast<int>((random_ >> 16) % (most + 1));  // the low bits have short periods
}

// Gross scores are 3 to 7. Each net score is equal to the gross score or one lower, at random.
void SampleTeams::Generate() {
  balls_.XBallInitializeTeamGrid(kTeams);
  for (int team = 1; team <= kTeams; ++team) {
    std::vector<std::vector<int>> gross(static_cast<std::size_t>(layout_.PlayersPerTeam));
    auto net = gross;
    for (std::size_t player = 0; player < gross.size(); ++player) {
      for (int hole = 1; hole <= kLayoutHoles; ++hole) {
        gross[player].push_back(3 + MadeUp(4));
        net[player].push_back(gross[player].back() - MadeUp(1));
      }
    }
    balls_.PopulateTeamGridwithManualData(team, BallTable::kGross, gross);
    balls_.PopulateTeamGridwithManualData(team, BallTable::kNet, net);
  }
  Calculate();
}

void SampleTeams::Calculate() {
  balls_.XBallConsiderWhichScores(false, {});
  balls_.XBallCalculateTeamScore({});
  grid_.SetRepainting(false);
  for (int team = 1; team <= balls_.teams(); ++team) ShowTeam(team);
  grid_.SetRepainting(true);
}

void SampleTeams::ShowTeam(int team) {
  const TeamBalls& balls = balls_.Team(team);
  for (int row = 1; row <= kTableColumns; ++row) {
    grid_.SetText(TotalColumn(team), row, TextOrEmpty(balls.Score(row)));
    for (int player = 1; player <= kMostLayoutPlayers; ++player) {
      for (const BallTable table : {BallTable::kGross, BallTable::kNet}) {
        const Ball& ball = balls.At(table, player, row);
        grid_.SetText(ColumnOf(team, table, player), row,
                      TextOrEmpty(ball.value) + (ball.selected ? " (Used)" : ""));
      }
    }
  }
}

}  // namespace golf
