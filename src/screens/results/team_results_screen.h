#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "scoring/standings_table.h"

namespace golf {

// The teams of the active tournament as they stand: over all scores, or under a report layout. The
// team whose row is active is shown hole by hole below, with the balls that count marked. The round
// that is chosen is the active one in memory only, and so is what is mended in records that are
// read.
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
  std::vector<int> teams_;  // in the order of the tables
};

}  // namespace golf
