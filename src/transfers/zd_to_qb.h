#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// Brings the golfers of a league, and its substitutes if that is wanted, into Quenby's golfer file.
// A golfer whom Quenby has by name is updated, any other joins the roster chosen. An operation on
// a file that fails is tried again as long as the operator wants.
class ZDtoQB : public Screen {
 public:
  explicit ZDtoQB(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  void OpenAgain() override;
  Button* LeaveButton() override { return &CancelButton; }
  Button* PanelLeaveButton() override { return picker.IsOpen() ? &picker.CancelLeague : nullptr; }

  Frame Frame2{"Frame2"};
  Button SourceButton{"SourceButton", "Find Source League"};
  TextBox LeagueRoster{"LeagueRoster"};  // the last five characters are its base
  Button DestButton{"DestButton", "Find Tournament Roster"};
  TextBox TournamentRoster{"TournamentRoster"};  // the last three characters are its number
  CheckBox Handicapto18{"Handicapto18", "Convert to 18 hole handicap (Double handicap)"};
  CheckBox TransferSubs{"TransferSubs", "Transfer Substitutes"};
  Button TransferButton{"TransferButton", "&Transfer Golfers"};
  Button CancelButton{"CancelButton", "E&xit"};
  TextBox Message{"Message"};
  Label Working{"Working"};
  Label WorkingCount{"WorkingCount"};
  // The heading, and what is above the league, the roster and the log.
  std::array<Label, 4> Label1{Label("Label1", "------>----> Transfer golfers to ------->---->"),
                              Label("Label1", "LEAGUE to Transfer"),
                              Label("Label1", "Quenby Roster"),
                              Label("Label1", "  Transfer Messages")};
  LeaguePicker picker;

 private:
  struct Counts {
    std::int16_t updated = 0;
    std::int16_t added = 0;
  };
  struct Run;

  std::array<Control*, 6> Remembered();
  // False if the operator was told what is missing.
  bool Transfer();
  // These give false once the operator has given up on an operation.
  bool CopyGolfers(Counts& counts);
  bool ReadQuenby(Run& run);
  bool CopyRecords(Run& run, int file, std::int32_t first, std::int32_t last);
  bool CopyGolfer(Run& run);
  bool Update(Run& run, std::int32_t record);
  bool AddNew(Run& run);
  void CopyFields();
  // Runs an operation, again as long as a disk error comes and the operator wants to go on.
  bool Try(const std::function<void()>& operation);
  void Report(const Counts& counts);
};

}  // namespace golf
