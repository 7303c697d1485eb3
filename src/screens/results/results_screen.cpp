#include "screens/results/results_screen.h"

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <utility>

#include "core/code_page.h"
#include "core/while_set.h"
#include "outlets/pages/page_file.h"
#include "outlets/pages/tournament_pages.h"
#include "outlets/results/tournament_files.h"
#include "scoring/open_tournament.h"
#include "scoring/tournament_class.h"
#include "screens/open_page.h"
#include "screens/results/no_tournament.h"
#include "screens/table_export.h"

namespace golf {
namespace {

// These are in the order of Tiebreak.
constexpr const char* kTiebreaks[] = {"None", "Last 9, 6, 3 and 1 holes",
                                      "Holes by handicap strokes", "Holes 18 to 1",
                                      "Holes 1 to 18"};
static_assert(std::size(kTiebreaks) == std::size(kTiebreakNames));

// Returns the first lines of a text, so that a window has space for them.
std::string FirstLines(const std::string& text) {
  constexpr int kMostLines = 6;
  std::size_t end = text.find('\r');
  for (int line = 1; line < kMostLines && end != std::string::npos; ++line) {
    end = text.find('\r', end + 1);
  }
  return end == std::string::npos ? text : text.substr(0, end) + "\rand more";
}

// Calls `work`, which may return the text of a problem. Returns this text, the report of the error
// that `work` raises, or an empty text.
template <class Work>
std::string ProblemOf(Work work) {
  try {
    if constexpr (!std::is_void_v<decltype(work())>) return work();
    work();
    return {};
  } catch (const NumberedError& error) {
    return error.Report();
  }
}

}  // namespace

Results::Results(const ScreenContext& context)
    : Screen(kName, context),
      tables(context, "Results.csv"),
      players(context, tables),
      teams(context, tables) {
  SetCaption("Results");
  Add({&TournamentLabel, &TournamentList, &RoundLabel, &RoundList, &TiebreakLabel, &TiebreakList,
       &ReadButton, &MessageLabel, &TabMain});
  Add({&players.MeasureLabel, &players.MeasureList, &players.SpanList, &players.FlightLabel,
       &players.FlightList, &players.SexLabel, &players.SexList, &players.SearchLabel,
       &players.SearchText, &teams.LayoutLabel, &teams.LayoutList});
  Add({&tables.grid1, &tables.SortedLabel, &tables.CardLabel, &tables.grid2, &players.grid3,
       &players.StatisticsLabel});
  Add({&WebPageButton, &PrintButton, &tables.SortButton, &tables.CopyButton, &tables.SaveButton,
       &ExitButton});
  for (const char* tiebreak : kTiebreaks) TiebreakList.AddItem(tiebreak);
  TiebreakList.Select(0);
  ExitButton.SetCancel(true);
  for (ComboBox* list : {&TournamentList, &RoundList, &TiebreakList}) {
    list->on_click = [this] {
      if (!loading_) ReadChosen();
    };
  }
  ReadButton.on_click = [this] { ReadAgain(); };
  TabMain.on_click = [this] { ShowPage(); };
  teams.LayoutList.on_click = [this] {
    if (!loading_) ChooseLayout();
  };
  tables.grid1.on_row_change = [this] { ShowCard(); };
  WebPageButton.on_click = [this] { SavePage(); };
  PrintButton.on_click = [this] { PrintPage(); };
  ExitButton.on_click = [this] { Close(); };
}

void Results::OnActivate() {
  if (!std::exchange(begun_, true)) Begin();
}

void Results::Begin() {
  unchanged_.emplace(state().files.gate());
  std::int32_t active = 0;
  const std::string problem = ProblemOf([&] { active = ActiveTournament(state()); });
  if (!FillTournaments(active)) {
    host().Ask(NoActiveTournament());
    return host().Unload(*this);
  }
  {
    const WhileSet loading(loading_);
    teams.FillLayouts();
  }
  ReadChosen();
  if (problem.empty()) return;
  read_problem_ = "The active tournament is not known, because QBMASTER.Q9D cannot be read." +
                  std::string(read_problem_.empty() ? "" : "\r") + read_problem_;
  ShowMessage();
}

// Fills the list and selects a tournament, or the first one if there is no tournament of this
// number. Changes nothing and returns false if there are no tournaments.
bool Results::FillTournaments(std::int32_t chosen) {
  const WhileSet loading(loading_);
  const std::vector<TournamentTitle> titles = TournamentTitles(state());
  if (titles.empty()) return false;
  tournaments_.clear();
  TournamentList.Clear();
  int index = 0;
  for (const auto& [number, title] : titles) {
    if (number == chosen) index = static_cast<int>(tournaments_.size());
    tournaments_.push_back(number);
    TournamentList.AddItem(title);
  }
  TournamentList.Select(index);
  return true;
}

// Reads the list of the tournaments and the chosen round again.
void Results::ReadAgain() {
  // ReadChosen reports the error if it remains.
  ProblemOf([this] { FillTournaments(ChosenTournament()); });
  ReadChosen();
}

std::int32_t Results::ChosenTournament() const {
  return tournaments_[static_cast<std::size_t>(TournamentList.index())];
}

Tiebreak Results::ChosenTiebreak() const {
  return static_cast<Tiebreak>(std::max(TiebreakList.index(), 0));
}

// Reads the chosen round from the files. If it cannot be read, the tables keep their results.
void Results::ReadChosen() {
  is_open_ = false;
  read_problem_ = ProblemOf([this] { return Read(); });
  if (!is_open_) {
    read_problem_ = "The results cannot be read. " + read_problem_;
    if (shown_.tournament > 0) {
      read_problem_ += "\rThe tables still show " + shown_.title + ", round " +
                       std::to_string(shown_.round) + ", as it was read before.";
    }
  }
  if (is_open_ || shown_.tournament == 0) return ShowPage();
  ShowMessage();
}

// Returns a text about a damaged file or about players that are left out, or an empty text. Opens
// the tournament if the results can be read.
std::string Results::Read() {
  const std::int32_t tournament = ChosenTournament();
  const bool is_other = tournament != shown_.tournament;
  std::string problem = Open(tournament, is_other ? 0 : RoundList.index() + 1);
  if (!problem.empty() || !players.Read(ChosenTiebreak(), problem)) return problem;
  shown_ = {tournament, state().Tournament().RoundOr({}), TournamentList.text()};
  FillRounds();
  is_open_ = true;
  return problem;
}

// Opens a tournament and makes a round active. If the round is 0, it is the active round of the
// record. Returns a sentence about a damaged file, or an empty text. Raises the errors of
// OpenTournament.
std::string Results::Open(std::int32_t tournament, int round) {
  state().InitSharedObjects();
  std::string fault = FaultOfTournamentFiles(state(), tournament);
  if (!fault.empty()) return fault;
  OpenTournament(state(), tournament);
  TournamentClass& control = state().Tournament();
  control.SetActiveRound(round > 0 ? round : control.RoundOr({}));
  return {};
}

// Opens the shown tournament again if a failed reading has closed it.
std::string Results::OpenShown() {
  if (is_open_) return {};
  if (shown_.tournament == 0) return "There are no results to show.";
  std::string fault = Open(shown_.tournament, shown_.round);
  is_open_ = fault.empty();
  return fault;
}

void Results::FillRounds() {
  const WhileSet loading(loading_);
  RoundList.Clear();
  const int rounds = state().Tournament().RoundCount();
  for (int round = 1; round <= rounds; ++round) RoundList.AddItem(std::to_string(round));
  RoundList.Select(shown_.round - 1);
}

void Results::ShowPage() {
  const bool is_players = TabMain.page() == kPlayersPage;
  players.SetVisible(is_players);
  teams.LayoutLabel.SetVisible(!is_players);
  teams.LayoutList.SetVisible(!is_players);
  if (is_players) {
    page_problem_.clear();
    players.Show();
  } else {
    SelectLayoutOfPage();
    page_problem_ = ShowTeams();
  }
  ShowMessage();
}

// Shows the page of the chosen layout, or the page of the totals.
void Results::ChooseLayout() {
  if (teams.HasLayout()) layout_ = teams.LayoutList.index();
  TabMain.Choose(teams.HasLayout() ? kLayoutsPage : kTeamsPage);
}

void Results::SelectLayoutOfPage() {
  const WhileSet loading(loading_);
  const bool has_layouts = teams.LayoutList.items().size() > 1;
  teams.LayoutList.Select(TabMain.page() == kLayoutsPage && has_layouts ? layout_ : 0);
}

// Shows the standings of the teams. If they cannot be calculated, shows the last ones of the same
// round. Returns a text about what cannot be calculated.
std::string Results::ShowTeams() {
  const std::string wanted = std::to_string(shown_.tournament) + "/" +
                             std::to_string(shown_.round) + "/" + teams.LayoutList.text();
  if (std::exchange(calculated_, wanted) != wanted) teams.Forget();
  std::string problem;
  if (TabMain.page() == kLayoutsPage && !teams.HasLayout()) {
    teams.Forget();
    problem = "There are no layouts. The menu Tools has \"Team results layouts...\".";
  } else if (shown_.tournament > 0) {
    problem = ProblemOf([this] {
      std::string text = OpenShown();
      if (text.empty()) text = teams.TakeLayout();
      return text.empty() ? teams.Calculate() : text;
    });
  }
  teams.Show();
  return problem;
}

void Results::ShowCard() {
  card_problem_ = ProblemOf([this] {
    std::string fault = tables.grid1.active_row() > 0 ? OpenShown() : "";
    if (!fault.empty()) return fault;
    if (TabMain.page() == kPlayersPage) {
      players.ShowCard();
    } else {
      teams.ShowCard();
    }
    return fault;
  });
  ShowMessage();
}

void Results::ShowMessage() {
  std::string message;
  for (const std::string& problem : {read_problem_, page_problem_, card_problem_}) {
    if (!problem.empty()) message += (message.empty() ? "" : "\r") + FirstLines(problem);
  }
  MessageLabel.SetVisible(!message.empty());
  MessageLabel.SetCaption(std::move(message));
}

// Makes the web page of the shown tab. The page itself names the players and teams that it leaves
// out.
ResultsPage Results::MakePage() {
  const PageQuestion question{state(), ChosenTiebreak(), false,
                              [](const std::string&, const NumberedError&) {},
                              [](const std::string&) {}};
  if (TabMain.page() == kPlayersPage) return MakePlayersPage(question);
  return teams.HasLayout() ? MakeCustomPage(question, teams.layout()) : MakeTeamsPage(question);
}

// Returns an empty text after a message if there is no page.
std::string Results::PageHtml() {
  std::string html;
  const std::string problem = ProblemOf([&] {
    std::string text = OpenShown();
    if (text.empty() && TabMain.page() == kLayoutsPage) text = teams.TakeLayout();
    if (!text.empty()) return text;
    WrittenPage written = WriteResultsPage(MakePage());
    if (written.html.empty()) return TooLargeRefusal(written);
    html = std::move(written.html);
    return text;
  });
  if (!problem.empty()) {
    host().Ask(Box{.title = "Notice", .text = problem, .icon = BoxIcon::kStop});
  }
  return html;
}

void Results::SavePage() {
  const std::string html = PageHtml();
  if (html.empty()) return;
  SaveText(state(), host(), {"Web page", "Results.html", ".html", "The page was"}, html);
}

// Opens the page in the browser, which prints it.
void Results::PrintPage() {
  const std::string html = PageHtml();
  if (html.empty()) return;
  OpenPage(host(), [&html] { return WriteTemporaryPage("golf-transfer-results-", html); });
}

void Results::OnUnload() { unchanged_.reset(); }

void Results::Close() {
  host().Unload(*this);
  state().InitSharedObjects();
}

}  // namespace golf
