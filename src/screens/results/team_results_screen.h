#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "scoring/standings_table.h"

namespace golf {

// The standings of the teams in the active tournament: over all scores, or under a report layout.
// Below them a card shows the active row's team hole by hole and marks the balls that count. The
// chosen round becomes active in memory only, and mended values of records stay in memory, too.
class TeamResults : public Screen {
 public:
  static constexpr const char* kName = "TeamResults";

  explicit TeamResults(const ScreenContext& context);

  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }

  Label TournamentLabel{"TournamentLabel"};
  Label LayoutLabel{"LayoutLabel", "Standings"};
  ComboBox LayoutList{"LayoutList"};
  Label RoundLabel{"RoundLabel", "Round"};
  ComboBox RoundList{"RoundList"};
  Grid grid1;
  Label SortedLabel{"SortedLabel"};
  Label CardLabel{"CardLabel"};
  Grid grid2;
  Button SortButton{"SortButton", "&Sort..."};
  Button CopyButton{"CopyButton", "C&opy"};
  Button SaveButton{"SaveButton", "Save as CS&V..."};
  Button ExitButton{"ExitButton", "Close"};

 private:
  void Begin();
  void FillLists();
  bool OpenActiveTournament();
  void TakeLayout();
  void LoadStandings();
  std::string AddTeam(int team, std::vector<StandingsRow>& totals);
  void ShowStandings(const StandingsTable& table);
  void ShowCard();
  void ShowCardLine(int row, const std::string& name, int golfer, BallTable table);
  void ShowCardSums(int row, int team);
  const TeamBalls& BallsOf(int team) const;
  void Sort();
  std::vector<std::vector<std::string>> Lines() const;
  void Copy();
  void SaveAsCsv();
  void Close();

  std::optional<RefusedChanges> unchanged_;
  bool begun_ = false;
  bool loading_ = false;
  ReportLayout layout_;
  std::optional<CustomStandings> standings_;
  std::vector<int> teams_;  // by their order in the tables
};

}  // namespace golf
