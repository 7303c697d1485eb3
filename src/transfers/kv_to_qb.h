#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "core/resume_next.h"
#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "transfers/kv_golfer_to_qb.h"

namespace golf {

// Copies the golfers of a Kelvane roster into Quenby's golfer file and onto one of its rosters. A
// golfer whom Quenby has by ID number is updated, any other is added. From the moment the files are
// open the run carries on over faults.
class KVtoQB : public Screen {
 public:
  explicit KVtoQB(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }

  // Above the rosters, and the arrow between them.
  std::array<Label, 3> Label1{Label("Label1", "Kelvane Roster"), Label("Label1", "Quenby Roster"),
                              Label("Label1", "---->--->")};
  TextBox HandicapRoster{"HandicapRoster"};
  Button SourceButton{"SourceButton", "Find Handicap Roster"};
  TextBox TournamentRoster{"TournamentRoster"};  // the last three characters are its number
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

  // The texts of the grid.
  static constexpr int kItemColumn = 1;
  static constexpr int kTickColumn = 2;
  static constexpr int kQuenbyItemColumn = 3;

 private:
  struct Counts {
    std::int32_t updated = 0;
    std::int32_t added = 0;
  };

  std::array<Control*, 6> Remembered();
  void SetUpGrid();
  void FillItemGrid();
  void ShowItem(int row, const std::string& kelvane, const std::string& quenby);
  void FindSource();
  void FindDestination();

  void Transfer();
  // The records of Quenby's golfer file; nothing if the files could not be opened, which the
  // operator has been told.
  std::optional<std::int32_t> OpenFiles();
  void CopyGolfers(std::int32_t length);
  void Report(const Counts& counts);
  void AskTournamentUpdate();
  void UpdateTournament(std::int32_t number);
  GolferToQbChoice Choice() const;
};

}  // namespace golf
