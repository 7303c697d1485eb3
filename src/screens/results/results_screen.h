#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "outlets/pages/results_page.h"
#include "screens/results/player_standings.h"
#include "screens/results/team_standings.h"

namespace golf {

// Shows the results of one round of a tournament. Its tabs contain the standings of the players, of
// the teams, and of the teams under a layout. Each tab also shows the card of the active row, and
// the operator can save or print it as a web page. If the tournament cannot be read, the tables
// keep the last results and MessageLabel shows the reason. The screen does not write to data files.
// The chosen round and the corrected values of records are kept only in memory.
class Results : public Screen {
 public:
  static constexpr const char* kName = "Results";

  explicit Results(const ScreenContext& context);

  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }

  // These are the pages of TabMain.
  static constexpr int kPlayersPage = 0;
  static constexpr int kTeamsPage = 1;
  static constexpr int kLayoutsPage = 2;

  StandingsTables tables;
  PlayerStandings players;
  TeamStandings teams;
  Label TournamentLabel{"TournamentLabel", "&Tournament"};
  ComboBox TournamentList{"TournamentList"};
  Label RoundLabel{"RoundLabel", "&Round"};
  ComboBox RoundList{"RoundList"};
  Label TiebreakLabel{"TiebreakLabel", "Tie&break"};
  ComboBox TiebreakList{"TiebreakList"};
  Button ReadButton{"ReadButton", "Read a&gain"};
  Label MessageLabel{"MessageLabel"};
  Tab TabMain{"TabMain", {"Players", "Teams", "Layouts"}};
  Button WebPageButton{"WebPageButton", "&Web page..."};
  Button PrintButton{"PrintButton", "&Print..."};
  Button ExitButton{"ExitButton", "Close"};

 private:
  // Contains the tournament and the round that the tables show.
  struct Shown {
    std::int32_t tournament = 0;  // 0: no results were read yet
    int round = 0;
    std::string title;
  };

  void Begin();
  bool FillTournaments(std::int32_t chosen);
  void ReadAgain();
  std::int32_t ChosenTournament() const;
  Tiebreak ChosenTiebreak() const;
  void ReadChosen();
  std::string Read();
  std::string Open(std::int32_t tournament, int round);
  std::string OpenShown();
  void FillRounds();
  void ShowPage();
  void ChooseLayout();
  void SelectLayoutOfPage();
  std::string ShowTeams();
  void ShowCard();
  void ShowMessage();
  ResultsPage MakePage();
  std::string PageHtml();
  void SavePage();
  void PrintPage();
  void Close();

  std::optional<RefusedChanges> unchanged_;
  std::vector<std::int32_t> tournaments_;  // in the order of TournamentList
  Shown shown_;
  bool is_open_ = false;    // the shared objects have the shown tournament open
  int layout_ = 1;          // the last chosen item of LayoutList that is a layout
  std::string calculated_;  // the tournament, round and layout of the standings of the teams
  // MessageLabel shows these texts about the reading, the shown page and the card.
  std::string read_problem_;
  std::string page_problem_;
  std::string card_problem_;
  bool begun_ = false;
  bool loading_ = false;
};

}  // namespace golf
