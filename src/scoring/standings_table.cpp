#include "scoring/standings_table.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "scoring/places.h"

namespace golf {
namespace {

constexpr int kMostBestBalls = 4;

void SortByRank(std::vector<StandingsRow>& rows) {
  std::stable_sort(rows.begin(), rows.end(), [](const StandingsRow& a, const StandingsRow& b) {
    return a.rank && (!b.rank || *a.rank < *b.rank);
  });
}

StandingsRow CustomRow(const CustomStanding& standing) {
  StandingsRow row;
  row.number = standing.TeamNumber;
  row.cells = {std::to_string(standing.TeamNumber), standing.TeamName, standing.golfers};
  for (const auto& block : standing.Scores) {
    for (std::size_t i = 0; i < 3; ++i) row.cells.push_back(TextOrEmpty(block[i]));
  }
  const TeamBalls::Sum& total = standing.Scores.back().back();
  const int place = standing.Positions.back().back();
  row.cells.push_back(TextOrEmpty(total));
  row.cells.push_back(TextOrEmpty(standing.Points.back().back()));
  row.cells.push_back(total ? std::to_string(place) : "");
  row.rank = place;
  return row;
}

}  // namespace

void AddPlaces(std::vector<StandingsRow>& rows) {
  SortByRank(rows);
  const Places places = NumberPlaces(
      rows.size(), [&](std::size_t a, std::size_t b) { return rows[a].rank == rows[b].rank; });
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].cells.push_back(rows[i].rank ? std::to_string(places.competition[i]) : "");
  }
}

// Returns only the number, name, players and handicap of a team without a score.
StandingsRow TeamTotalsRow(TeamClass& team) {
  StandingsRow row;
  row.number = team.TeamNumber();
  row.cells = {std::to_string(team.TeamNumber()), team.TeamName(), team.NameofPlayersOnTeam(0),
               team.Handicap()};
  const TeamRound& results = team.Results();
  if (results.first_scorer == 0) {
    row.cells.resize(TeamTotalsTable({}).headings.size() - 1);
    return row;
  }
  for (const int sum : {kFirstNine, kSecondNine, kWholeRound}) {
    row.cells.push_back(std::to_string(team.ScoreGross(sum)));
  }
  const auto net = static_cast<float>(team.ScoreNet(kWholeRound));
  row.rank = net;
  row.cells.push_back(FormatSignedHandicap(net, team.ShowsDecimals()));
  row.cells.push_back(std::to_string(team.PointsNet(kWholeRound)));
  for (int balls = 1; balls <= kMostBestBalls; ++balls) {
    row.cells.push_back(team.BestBallNet(balls, kWholeRound));
  }
  return row;
}

StandingsTable TeamTotalsTable(std::vector<StandingsRow> rows) {
  AddPlaces(rows);
  return {{"Team", "Name", "Players", "Handicap", "Out", "In", "Gross", "Net", "Points", "Best net",
           "2 best net", "3 best net", "4 best net", "Place"},
          std::move(rows)};
}

StandingsTable CustomTable(const std::vector<CustomStanding>& standings, int rounds) {
  StandingsTable table;
  table.headings = {"Team", "Name", "Players"};
  for (int round = 1; round <= rounds; ++round) {
    const std::string of_round = " (Rnd #" + std::to_string(round) + ")";
    for (const char* sum : {"Front", "Back", "Total"}) table.headings.push_back(sum + of_round);
  }
  const std::string to = rounds > 1 ? " for Rounds 1 to " + std::to_string(rounds) : "";
  table.headings.insert(table.headings.end(), {"Total" + to, "Total Points" + to, "Place"});
  for (const CustomStanding& standing : standings) table.rows.push_back(CustomRow(standing));
  SortByRank(table.rows);
  return table;
}

}  // namespace golf
