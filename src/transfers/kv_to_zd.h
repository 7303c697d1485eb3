#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/league_picker.h"

namespace golf {

// Carries names, addresses and handicaps of a Kelvane roster's golfers into the records that the
// same golfers have in a league, for its current event. Nobody is added to the league.
class KVtoZD : public Screen {
 public:
  explicit KVtoZD(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &CancelButton; }
  Button* PanelLeaveButton() override { return picker.IsOpen() ? &picker.CancelLeague : nullptr; }

  Frame Frame1{"Frame1"};
  // The heading, what is above the roster, the league and the log, around the percent, and beside
  // the handicap of nine holes.
  std::array<Label, 8> Label1{Label("Label1", "--->--->--->Transfer GOLFERS to--->--->--->"),
                              Label("Label1", "Kelvane Roster"),
                              Label("Label1", "LEAGUE to Transfer to..."),
                              Label("Label1", "  Transfer Messages"),
                              Label("Label1", "KV is transferring a ---"),
                              Label("Label1", "Transfer"),
                              Label("Label1", "% of handicap"),
                              Label("Label1", "(Divide by 2)")};
  Button FindKVMButton{"FindKVMButton", "Find Handicap Roster"};
  Label SourcePath{"SourcePath"};
  Button FindZDButton{"FindZDButton", "Find League"};
  Label DestLabel{"DestLabel"};  // the last five characters are its base
  std::array<OptionButton, 2> HandicapType{OptionButton("HandicapType", " 9 Hole Handicap"),
                                           OptionButton("HandicapType", "18 Hole Handicap")};
  TextBox HandicapPrct{"HandicapPrct"};
  Button TransferButton{"TransferButton", "&Transfer Golfers"};
  Button CancelButton{"CancelButton", "E&xit"};
  TextBox Message{"Message"};
  Label Working{"Working"};
  Label WorkingCount{"WorkingCount"};
  LeaguePicker picker;

 private:
  struct League;

  std::string SettingsPath() const;
  void ReadOwnSettings();
  void FindSource();
  void SelectHandicap(std::size_t type);

  void Transfer();
  // A whole number from 10 to 100, which the box then shows.
  int Percent();
  void TellUnread(const League& league);
  bool ScoresMayStand(int scores);
  // The number of golfers transferred; adds a line to the log for each.
  std::int16_t CopyGolfers(const League& league, std::string& log);
  void Report(std::string log, std::int16_t transferred);
};

}  // namespace golf
