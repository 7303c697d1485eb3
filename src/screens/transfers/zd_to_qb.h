#pragma once

#include <array>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/league_picker.h"
#include "screens/transfers/screen_run.h"

namespace golf {

// Copies the golfers of a Zandel league into a Quenby roster.
class ZDtoQB : public Screen {
 public:
  static constexpr const char* kName = "ZDtoQB";

  explicit ZDtoQB(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  void OpenAgain() override;
  Button* LeaveButton() override { return &CancelButton; }
  Button* PanelLeaveButton() override { return picker.IsOpen() ? &picker.CancelLeague : nullptr; }

  Frame Frame2{"Frame2"};
  Button SourceButton{"SourceButton", "Find Source League"};
  TextBox LeagueRoster{"LeagueRoster"};  // the last five characters are the league's base
  Button DestButton{"DestButton", "Find Tournament Roster"};
  TextBox TournamentRoster{"TournamentRoster"};  // ends with the roster's three-digit number
  CheckBox Handicapto18{"Handicapto18", "Convert to 18 hole handicap (Double handicap)"};
  CheckBox TransferSubs{"TransferSubs", "Transfer Substitutes"};
  Button TransferButton{"TransferButton", "&Transfer Golfers"};
  Button CancelButton{"CancelButton", "E&xit"};
  TextBox Message{"Message"};
  Label Working{"Working"};
  Label WorkingCount{"WorkingCount"};
  // These are the heading of the screen and the headings of the league, the roster and the log.
  std::array<Label, 4> Label1{Label("Label1", "------>----> Transfer golfers to ------->---->"),
                              Label("Label1", "LEAGUE to Transfer"),
                              Label("Label1", "Quenby Roster"),
                              Label("Label1", "  Transfer Messages")};
  LeaguePicker picker;
  Button PreviewButton{"PreviewButton", "Pre&view..."};

 private:
  std::array<Control*, 6> Remembered();
  // Runs the transfer. If the operator has not chosen a league or a roster, shows a message and
  // returns false.
  void Start(RunEnding ending);
  bool Transfer();
  void NotifyOfLongNames(std::int32_t count);
};

}  // namespace golf
