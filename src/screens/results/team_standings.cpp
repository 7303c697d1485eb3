#include "screens/results/team_standings.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "outlets/results/tournament_walk.h"

namespace golf {
namespace {

constexpr int kTeamColumn = 1;
constexpr int kNameColumn = 2;
constexpr int kPlayersColumn = 3;
constexpr int kHandicapHeading = 4;
constexpr const char* kTotals = "Team totals";

// Breaks a long heading into lines, so that its column stays narrow.
std::string OnLines(std::string heading) {
  for (const char* part : {" (", " for ", " 1 to "}) {
    const std::size_t end = heading.find(part);
    if (end != std::string::npos) heading[end] = '\n';
  }
  return heading;
}

StandingsColumn ColumnOf(int column, const std::string& heading) {
  if (column == kNameColumn || column == kPlayersColumn) {
    return {OnLines(heading), false, SortKind::kText};
  }
  const bool is_handicap = column == kHandicapHeading && heading == "Handicap";
  return {OnLines(heading), true, is_handicap ? SortKind::kPlusBelowZero : SortKind::kValue};
}

}  // namespace

struct TeamStandings::Calculated {
  Calculated(SharedState& state, ReportLayout used, int of_round, bool is_by_layout)
      : layout(std::move(used)),
        standings(state, layout),
        round(of_round),
        by_layout(is_by_layout) {}

  const ReportLayout layout;
  CustomStandings standings;
  std::vector<int> teams;  // the team numbers, in the order of the tables
  StandingsTable table;
  int round;
  bool by_layout;
};

TeamStandings::TeamStandings(const ScreenContext& context, StandingsTables& tables)
    : context_(context), tables_(tables) {}

void TeamStandings::FillLayouts() {
  LayoutList.AddItem(kTotals);
  for (const std::string& name :
       ListReportLayouts(context_.state.files, context_.state.StoreDataPath)) {
    LayoutList.AddItem(name);
  }
  LayoutList.Select(0);
}

std::string TeamStandings::TakeLayout() {
  layout_ = {};
  if (!HasLayout()) return {};
  SharedState& state = context_.state;
  ReadLayout read = ReadReportLayout(state.files, state.StoreDataPath, LayoutList.text());
  if (!read.layout) return read.problem;
  layout_ = *std::move(read.layout);
  LimitToChoices(layout_);
  return {};
}

std::string TeamStandings::Calculate() {
  TournamentClass& tournament = context_.state.Tournament();
  const auto calculated =
      std::make_shared<Calculated>(context_.state, layout_, tournament.RoundOr({}), HasLayout());
  std::vector<StandingsRow> totals;
  std::string problems;
  const auto note = [&](int team, const std::string& problem) {
    problems += "\rTeam " + std::to_string(team) + ": " + problem;
  };
  const auto add = [&](int team) {
    try {
      StandingsRow row = TeamTotalsRow(context_.state.Team1());
      calculated->standings.AddTeam();
      calculated->teams.push_back(team);
      totals.push_back(std::move(row));
    } catch (const NumberedError& error) {
      note(team, error.description());
    }
  };
  ForEachTeam(context_.state, add, [&](int team) {
    const bool has_golfers = context_.state.Player().TourIndex1stPlayerOnTeam(team) > 0;
    if (has_golfers) note(team, "the record of this team cannot be read.");
  });
  const auto worked_out = calculated->standings.WorkOut();
  calculated->table = calculated->by_layout ? CustomTable(worked_out, tournament.RoundCount())
                                            : TeamTotalsTable(std::move(totals));
  calculated_ = calculated;
  return problems.empty() ? "" : "These teams could not be worked out:" + problems;
}

void TeamStandings::Show() {
  std::vector<StandingsColumn> columns;
  std::vector<std::vector<std::string>> rows;
  if (calculated_) {
    for (const std::string& heading : calculated_->table.headings) {
      columns.push_back(ColumnOf(static_cast<int>(columns.size()) + 1, heading));
    }
    for (const StandingsRow& row : calculated_->table.rows) rows.push_back(row.cells);
  }
  tables_.SetCardColumns("Player", kHoles);
  tables_.ShowStandings(columns, rows);
  tables_.ForgetSort();
  tables_.grid1.SetActiveRow(std::min(tables_.grid1.rows(), 1));
}

void TeamStandings::ShowCard() {
  const Grid& standings = tables_.grid1;
  Grid& card = tables_.grid2;
  const int row = standings.active_row();
  tables_.CardLabel.SetCaption("");
  if (row < 1 || !calculated_) return card.SetRows(0);
  TeamClass& team = context_.state.Team1();
  const int number = RoundToInt32(LeadingNumber(standings.text(kTeamColumn, row)));
  team.GetRecord(number);
  const std::int32_t golfers =
      std::min<std::int32_t>(team.Results().golfers, kMostGolfersWithBalls);
  const std::vector<int>& teams = calculated_->teams;
  const auto place = std::ranges::find(teams, number) - teams.begin();
  const TeamBalls& balls = calculated_->standings.balls().Team(static_cast<int>(place) + 1);
  card.SetRepainting(false);
  card.SetRows(0);
  const bool by_layout = calculated_->by_layout;
  card.SetRows(2 * golfers + (by_layout ? 1 : 0));
  for (int golfer = 1; golfer <= golfers; ++golfer) {
    const std::string name =
        golfer <= 8 ? team.NameofPlayersOnTeam(golfer) : "Player #" + std::to_string(golfer);
    ShowCardLine(balls, 2 * golfer - 1, name + ", gross", golfer, BallTable::kGross);
    ShowCardLine(balls, 2 * golfer, name + ", net", golfer, BallTable::kNet);
  }
  if (by_layout) ShowCardSums(balls, 2 * golfers + 1);
  card.SetRepainting(true);
  const std::string of_round = ", round " + std::to_string(calculated_->round);
  tables_.CardLabel.SetCaption(standings.text(kNameColumn, row) + of_round +
                               (by_layout ? ": a ball that counts is marked *" : ""));
}

void TeamStandings::ShowCardLine(const TeamBalls& balls, int row, const std::string& name,
                                 int golfer, BallTable table) {
  tables_.grid2.SetText(1, row, name);
  const int round = calculated_->round;
  const ByHole<TeamBalls::Sum> values = balls.Values(table, golfer, round);
  for (int hole = 1; hole <= kHoles; ++hole) {
    const Ball& ball = balls.At(table, golfer, HoleColumn((round - 1) * kHoles + hole));
    tables_.SetCardText(HoleColumn(hole), row,
                        TextOrEmpty(values[hole]) + (ball.selected ? "*" : ""));
  }
  for (int sum = 1; sum <= 3; ++sum) {
    tables_.SetCardText(SumColumn(1, sum), row, TextOrEmpty(values[kHoles + sum]));
  }
}

void TeamStandings::ShowCardSums(const TeamBalls& balls, int row) {
  tables_.grid2.SetText(1, row, "Counted");
  for (int column = 1; column < kBlockWidth; ++column) {
    const int in_tables = (calculated_->round - 1) * kBlockWidth + column;
    tables_.SetCardText(column, row, TextOrEmpty(balls.Score(in_tables)));
  }
}

}  // namespace golf
