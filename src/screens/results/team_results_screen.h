#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "scoring/standings_table.h"

namespace golf {

// Shows the standings of the teams in the active tournament, either over all scores or under a
// report layout. A card below shows the team of the active row hole by hole and marks the balls
// that count. The screen changes no data file: the chosen round and corrected values of records
// stay in memory.
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
  void Copy();
  void SaveAsCsv();
  void Close();

  std::optional<RefusedChanges> unchanged_;
  bool begun_ = false;
  bool loading_ = false;
  ReportLayout layout_;
  std::optional<CustomStandings> standings_;
  std::vector<int> teams_;  // the team numbers, in the order of the tables
};

}  // namespace golf
