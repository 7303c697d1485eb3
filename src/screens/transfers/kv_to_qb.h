#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/history/preview.h"
#include "screens/transfers/screen_run.h"
#include "transfers/golfers_kv_to_qb.h"

namespace golf {

// Copies golfers from a Kelvane roster to a Quenby roster. The operator chooses the rosters and the
// data to copy. After the transfer the screen offers to update the active tournament.
class KVtoQB : public Screen {
 public:
  static constexpr const char* kName = "KVtoQB";

  explicit KVtoQB(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }

  // These are the headings of the two rosters and the arrow between them.
  std::array<Label, 3> Label1{Label("Label1", "Kelvane Roster"), Label("Label1", "Quenby Roster"),
                              Label("Label1", "---->--->")};
  TextBox HandicapRoster{"HandicapRoster"};
  Button SourceButton{"SourceButton", "Find Handicap Roster"};
  TextBox TournamentRoster{"TournamentRoster"};  // ends with the roster's three-digit number
  Button DestButton{"DestButton", "Find Tournament Roster"};
  CheckBox MarkedtoPrint{"MarkedtoPrint",
                         "Transfer only golfers in the handicap roster who are marked to print."};
  CheckBox Convert18Hcpto9Hcp{"Convert18Hcpto9Hcp",
                              "Convert 18 hole handicap to 9 hole handicap (Divide by 2)"};
  CheckBox Convert9Hcpto18Hcp{"Convert9Hcpto18Hcp",
                              "Convert 9 hole handicap to 18 hole handicap (Multiply by 2)"};
  Grid grid1{"grid1", 3};
  Label Working{"Working"};
  Button TransferButton{"TransferButton", ">> &Transfer Golfers >>"};
  Button ExitButton{"ExitButton", "Cancel"};
  Button PreviewButton{"PreviewButton", "Pre&view..."};

  // These are the columns of the grid.
  static constexpr int kItemColumn = 1;
  static constexpr int kTickColumn = 2;
  static constexpr int kQuenbyItemColumn = 3;

 private:
  std::array<Control*, 6> Remembered();
  void SetUpGrid();
  void ReadRosterHeader();
  void ReadRememberedHeader();
  void FillItemGrid();
  void ShowItem(int row, const std::string& kelvane, const std::string& quenby);
  void FindSource();
  void FindDestination();

  GolferToQbChoice Choice() const;
  void Start(RunEnding ending);
  void Transfer(RunEnding ending);
  bool CopyGolfers(const GolfersKvToQbRequest& request, RunEnding ending,
                   GolfersKvToQbReport& report);
  std::string PreviewWithUpdate(const GolfersKvToQbReport& golfers);
  void CommitPreview(const PreviewNotes& notes);
  void ShowReport(const std::string& log);
  void ShowNotice(std::string text);
  std::string UpdateTournament(LeftOut& left_out);
};

}  // namespace golf
