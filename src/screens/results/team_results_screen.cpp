#include "screens/results/team_results_screen.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "core/while_set.h"
#include "scoring/open_tournament.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "screens/results/grid_sort_screen.h"
#include "screens/table_export.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

constexpr int kTeamColumn = 1;
constexpr int kNameColumn = 2;
constexpr int kPlayersColumn = 3;
constexpr int kHandicapHeading = 4;
constexpr int kStandingsColumns = 21;  // three for each of five rounds, and six more
constexpr int kCardColumns = kBlockWidth;
constexpr const char* kTotals = "Team totals";

// Returns the column of the card that shows a column of a block.
constexpr int CardColumn(int in_block) { return in_block + 1; }

std::string Shown(const TeamBalls::Sum& sum) { return sum ? std::to_string(*sum) : ""; }

// Breaks a long heading into lines, so that its column stays narrow.
std::string OnLines(std::string heading) {
  for (const char* part : {" (", " for ", " 1 to "}) {
    const std::size_t end = heading.find(part);
    if (end != std::string::npos) heading[end] = '\n';
  }
  return heading;
}

}  // namespace

TeamResults::TeamResults(const ScreenContext& context)
    : Screen(kName, context), grid1("grid1", kStandingsColumns), grid2("grid2", kCardColumns) {
  SetCaption("Team results");
  Add({&TournamentLabel, &LayoutLabel, &LayoutList, &RoundLabel, &RoundList, &grid1, &SortedLabel,
       &CardLabel, &grid2, &SortButton, &CopyButton, &SaveButton, &ExitButton});
  for (Grid* grid : {&grid1, &grid2}) {
    grid->SetHidden(0, true);
    for (int column = 0; column <= grid->columns(); ++column) grid->LockColumn(column, true);
  }
  for (int column = 2; column <= grid2.columns(); ++column) grid2.SetCentred(column, true);
  grid2.SetHeading(1, "Player");
  for (int hole = 1; hole <= kHoles; ++hole) {
    grid2.SetHeading(CardColumn(HoleColumn(hole)), std::to_string(hole));
  }
  constexpr const char* kSums[] = {"Out", "In", "Total"};
  for (int sum = 1; sum <= 3; ++sum) {
    grid2.SetHeading(CardColumn(SumColumn(1, sum)), kSums[sum - 1]);
  }
  ExitButton.SetCancel(true);
  LayoutList.on_click = [this] {
    if (loading_) return;
    TakeLayout();
    LoadStandings();
  };
  RoundList.on_click = [this] {
    if (!loading_) LoadStandings();
  };
  grid1.on_row_change = [this] { ShowCard(); };
  SortButton.on_click = [this] { Sort(); };
  CopyButton.on_click = [this] { Copy(); };
  SaveButton.on_click = [this] { SaveAsCsv(); };
  ExitButton.on_click = [this] { Close(); };
}

void TeamResults::OnActivate() {
  if (!std::exchange(begun_, true)) Begin();
}

void TeamResults::Begin() {
  unchanged_.emplace(state().files.gate());
  if (!OpenActiveTournament()) return host().Unload(*this);
  TournamentLabel.SetCaption(state().Tournament().Name());
  FillLists();
  LoadStandings();
}

void TeamResults::FillLists() {
  const WhileSet loading(loading_);
  TournamentClass& tournament = state().Tournament();
  LayoutList.AddItem(kTotals);
  for (const std::string& name : ListReportLayouts(state().files, state().StoreDataPath)) {
    LayoutList.AddItem(name);
  }
  LayoutList.Select(0);
  const int rounds = tournament.RoundCount();
  for (int round = 1; round <= rounds; ++round) RoundList.AddItem(std::to_string(round));
  RoundList.Select(std::clamp(tournament.RoundOr({}), 1, rounds) - 1);
}

// Opens the active tournament. If there is none, shows a message and returns false. It checks first
// that the control file exists, since opening a missing file would create it.
bool TeamResults::OpenActiveTournament() {
  state().StoreDataPath = state().QBDataPath;
  ProgramClass& program = state().Program();
  program.OpenMasterFile();
  program.GetMasterRecord();
  const std::int32_t active = program.ActiveTournament();
  program.CloseMasterFile();
  const bool there = active > 0 && state().files.FileExists(state().StoreDataPath +
                                                            TournamentFileName(active, ".Q9C"));
  if (there) {
    OpenTournament(state(), active);
    return true;
  }
  host().Ask(Box{.title = "No active tournament",
                 .text = "You must have an 'active' tournament to access this report"});
  return false;
}

// Reads the chosen layout. If it cannot be read, shows a message and selects the totals.
void TeamResults::TakeLayout() {
  layout_ = {};
  if (LayoutList.index() <= 0) return;
  ReadLayout read = ReadReportLayout(
      state().files, state().StoreDataPath + LayoutList.text() + std::string(kLayoutExtension));
  if (read.layout) {
    layout_ = *std::move(read.layout);
    LimitToChoices(layout_);
    return;
  }
  host().Ask(Box{.title = "Notice", .text = read.problem, .icon = BoxIcon::kStop});
  const WhileSet loading(loading_);
  LayoutList.Select(0);
}

void TeamResults::LoadStandings() {
  const bool by_layout = LayoutList.index() > 0;
  TournamentClass& tournament = state().Tournament();
  tournament.SetActiveRound(RoundList.index() + 1);
  standings_.emplace(state(), layout_);
  teams_.clear();
  std::vector<StandingsRow> totals;
  std::string problems;
  const int teams = tournament.TeamCount();
  for (int team = 1; team <= teams; ++team) {
    const std::string problem = AddTeam(team, totals);
    if (!problem.empty()) problems += "\rTeam " + std::to_string(team) + ": " + problem;
  }
  const auto worked_out = standings_->WorkOut();
  ShowStandings(by_layout ? CustomTable(worked_out, tournament.RoundCount())
                          : TeamTotalsTable(std::move(totals)));
  if (!problems.empty()) {
    host().Ask(Box{.title = "Notice",
                   .text = "These teams could not be worked out:" + problems,
                   .icon = BoxIcon::kWarning});
  }
}

// Adds a team to the standings. Returns the reason if it is left out because of an error. Returns
// an empty text if it was added or has no golfers.
std::string TeamResults::AddTeam(int team, std::vector<StandingsRow>& totals) {
  if (!state().Team1().GetRecord(team)) {
    const bool has_golfers = state().Player().TourIndex1stPlayerOnTeam(team) > 0;
    return has_golfers ? "the record of this team cannot be read." : "";
  }
  try {
    StandingsRow row = TeamTotalsRow(state().Team1());
    standings_->AddTeam();
    teams_.push_back(team);
    totals.push_back(std::move(row));
  } catch (const NumberedError& error) {
    return error.description();
  }
  return "";
}

void TeamResults::ShowStandings(const StandingsTable& table) {
  grid1.SetRepainting(false);
  grid1.SetRows(static_cast<int>(table.rows.size()));
  for (int column = 1; column <= grid1.columns(); ++column) {
    const auto i = static_cast<std::size_t>(column) - 1;
    const bool used = i < table.headings.size();
    const std::string heading = used ? table.headings[i] : "";
    const bool text = column == kNameColumn || column == kPlayersColumn;
    grid1.SetHeading(column, OnLines(heading));
    grid1.SetHidden(column, !used);
    grid1.SetCentred(column, !text);
    grid1.SetSortKind(column, text ? SortKind::kText
                              : column == kHandicapHeading && heading == "Handicap"
                                  ? SortKind::kPlusBelowZero
                                  : SortKind::kValue);
    for (int row = 1; row <= grid1.rows(); ++row) {
      const auto& cells = table.rows[static_cast<std::size_t>(row) - 1].cells;
      grid1.SetText(column, row, i < cells.size() ? cells[i] : "");
    }
  }
  grid1.SetRepainting(true);
  SortedLabel.SetCaption("");
  grid1.SetActiveRow(std::min(grid1.rows(), 1));
}

void TeamResults::ShowCard() {
  const int row = grid1.active_row();
  CardLabel.SetCaption("");
  if (row < 1 || !standings_) return grid2.SetRows(0);
  TeamClass& team = state().Team1();
  const int number = RoundToInt32(LeadingNumber(grid1.text(kTeamColumn, row)));
  team.GetRecord(number);
  const std::int32_t golfers =
      std::min<std::int32_t>(team.Results().golfers, kMostGolfersWithBalls);
  grid2.SetRepainting(false);
  grid2.SetRows(0);
  const bool by_layout = LayoutList.index() > 0;
  grid2.SetRows(2 * golfers + (by_layout ? 1 : 0));
  for (int golfer = 1; golfer <= golfers; ++golfer) {
    const std::string name =
        golfer <= 8 ? team.NameofPlayersOnTeam(golfer) : "Player #" + std::to_string(golfer);
    ShowCardLine(2 * golfer - 1, name + ", gross", golfer, BallTable::kGross);
    ShowCardLine(2 * golfer, name + ", net", golfer, BallTable::kNet);
  }
  if (by_layout) ShowCardSums(2 * golfers + 1, number);
  grid2.SetRepainting(true);
  const std::string of_round = ", round " + RoundList.text();
  CardLabel.SetCaption(grid1.text(kNameColumn, row) + of_round +
                       (by_layout ? ": a ball that counts is marked *" : ""));
}

const TeamBalls& TeamResults::BallsOf(int team) const {
  const auto place = std::find(teams_.begin(), teams_.end(), team);
  return standings_->balls().Team(static_cast<int>(place - teams_.begin()) + 1);
}

void TeamResults::ShowCardLine(int row, const std::string& name, int golfer, BallTable table) {
  const int number = state().Team1().TeamNumber();
  const TeamBalls& balls = BallsOf(number);
  grid2.SetText(1, row, name);
  const int block = RoundList.index();
  std::array<TeamBalls::Sum, 3> sums;  // the two nines and the total
  for (int hole = 1; hole <= kHoles; ++hole) {
    const Ball& ball = balls.At(table, golfer, HoleColumn(block * kHoles + hole));
    grid2.SetText(CardColumn(HoleColumn(hole)), row,
                  Shown(ball.value) + (ball.selected ? "*" : ""));
    for (const std::size_t sum : {hole > 9 ? 1U : 0U, 2U}) {
      sums[sum] = AddSums(sums[sum], ball.value);
    }
  }
  for (int sum = 1; sum <= 3; ++sum) {
    grid2.SetText(CardColumn(SumColumn(1, sum)), row,
                  Shown(sums[static_cast<std::size_t>(sum) - 1]));
  }
}

void TeamResults::ShowCardSums(int row, int team) {
  const TeamBalls& balls = BallsOf(team);
  grid2.SetText(1, row, "Counted");
  for (int column = 1; column < kBlockWidth; ++column) {
    const int in_tables = RoundList.index() * kBlockWidth + column;
    grid2.SetText(CardColumn(column), row, Shown(balls.Score(in_tables)));
  }
}

void TeamResults::Sort() {
  GridSort& dialog = SharedGridSort(host());
  dialog.SetGridToSort(grid1);
  dialog.GridSetSortParameters();
  host().ShowModal(dialog);
  if (dialog.Action() == "OK") SortedLabel.SetCaption(dialog.HowSortedDescription());
}

// Returns the rows of the standings as the grid shows them, after a row of headings.
void TeamResults::Copy() { CopyLines(host(), GridLines(grid1)); }

void TeamResults::SaveAsCsv() {
  SaveText(state(), host(), {"Save as CSV", "Team results.csv", ".csv", "The standings were"},
           CsvText(GridLines(grid1)));
}

void TeamResults::OnUnload() { unchanged_.reset(); }

void TeamResults::Close() {
  host().Unload(*this);
  state().InitSharedObjects();
}

}  // namespace golf
