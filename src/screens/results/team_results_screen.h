#pragma once

#include <optional>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "screens/results/team_standings.h"

namespace golf {

// Shows the standings of the teams in the active tournament. The screen does not write to data
// files. The chosen round and the corrected values of records are kept only in memory.
class TeamResults : public Screen {
 public:
  static constexpr const char* kName = "TeamResults";

  explicit TeamResults(const ScreenContext& context);

  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }

  StandingsTables tables;
  TeamStandings teams;
  Label TournamentLabel{"TournamentLabel"};
  Label RoundLabel{"RoundLabel", "Round"};
  ComboBox RoundList{"RoundList"};
  Button ExitButton{"ExitButton", "Close"};

 private:
  void Begin();
  void FillLists();
  bool OpenActiveTournament();
  void TakeLayout();
  void LoadStandings();
  void Close();

  std::optional<RefusedChanges> unchanged_;
  bool begun_ = false;
  bool loading_ = false;
};

}  // namespace golf
