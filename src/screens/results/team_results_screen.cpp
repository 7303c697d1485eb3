#include "screens/results/team_results_screen.h"

#include <algorithm>
#include <utility>

#include "core/while_set.h"
#include "scoring/open_tournament.h"
#include "scoring/tournament_class.h"
#include "screens/results/no_tournament.h"

namespace golf {

TeamResults::TeamResults(const ScreenContext& context)
    : Screen(kName, context), tables(context, "Team results.csv"), teams(context, tables) {
  SetCaption("Team results");
  Add({&TournamentLabel, &teams.LayoutLabel, &teams.LayoutList, &RoundLabel, &RoundList,
       &tables.grid1, &tables.SortedLabel, &tables.CardLabel, &tables.grid2, &tables.SortButton,
       &tables.CopyButton, &tables.SaveButton, &ExitButton});
  ExitButton.SetCancel(true);
  teams.LayoutList.on_click = [this] {
    if (loading_) return;
    TakeLayout();
    LoadStandings();
  };
  RoundList.on_click = [this] {
    if (!loading_) LoadStandings();
  };
  tables.grid1.on_row_change = [this] { teams.ShowCard(); };
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
  teams.FillLayouts();
  const int rounds = tournament.RoundCount();
  for (int round = 1; round <= rounds; ++round) RoundList.AddItem(std::to_string(round));
  RoundList.Select(std::clamp(tournament.RoundOr({}), 1, rounds) - 1);
}

// Opens the active tournament. If there is none, shows a message and returns false.
bool TeamResults::OpenActiveTournament() {
  const std::int32_t active = ActiveTournament(state());
  if (active > 0) {
    OpenTournament(state(), active);
    return true;
  }
  host().Ask(NoActiveTournament());
  return false;
}

// Reads the chosen layout. If it cannot be read, shows a message and selects the totals.
void TeamResults::TakeLayout() {
  const std::string problem = teams.TakeLayout();
  if (problem.empty()) return;
  host().Ask(Box{.title = "Notice", .text = problem, .icon = BoxIcon::kStop});
  const WhileSet loading(loading_);
  teams.LayoutList.Select(0);
}

void TeamResults::LoadStandings() {
  state().Tournament().SetActiveRound(RoundList.index() + 1);
  const std::string problem = teams.Calculate();
  teams.Show();
  if (problem.empty()) return;
  host().Ask(Box{.title = "Notice", .text = problem, .icon = BoxIcon::kWarning});
}

void TeamResults::OnUnload() { unchanged_.reset(); }

void TeamResults::Close() {
  host().Unload(*this);
  state().InitSharedObjects();
}

}  // namespace golf
