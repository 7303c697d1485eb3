#pragma once

#include <array>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/league_picker.h"
#include "screens/transfers/screen_run.h"

namespace golf {

// Updates the golfers of a Zandel league from a Kelvane roster. The operator chooses the roster,
// the league and how the handicaps are calculated.
class KVtoZD : public Screen {
 public:
  static constexpr const char* kName = "KVtoZD";

  explicit KVtoZD(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &CancelButton; }
  Button* PanelLeaveButton() override { return picker.IsOpen() ? &picker.CancelLeague : nullptr; }

  Frame Frame1{"Frame1"};
  // These are the heading of the screen, the headings of the roster, the league and the log, the
  // words around the percentage, and the text beside the handicap of nine holes.
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
  Label DestLabel{"DestLabel"};  // the last five characters are the league's base
  std::array<OptionButton, 2> HandicapType{OptionButton("HandicapType", " 9 Hole Handicap"),
                                           OptionButton("HandicapType", "18 Hole Handicap")};
  TextBox HandicapPrct{"HandicapPrct"};
  Button TransferButton{"TransferButton", "&Transfer Golfers"};
  Button CancelButton{"CancelButton", "E&xit"};
  TextBox Message{"Message"};
  Label Working{"Working"};
  Label WorkingCount{"WorkingCount"};
  LeaguePicker picker;
  Button PreviewButton{"PreviewButton", "Pre&view..."};

 private:
  std::string SettingsPath() const;
  void ReadOwnSettings();
  void FindSource();
  void SelectHandicap(std::size_t type);

  void Start(RunEnding ending);
  void Transfer();
  // Returns a whole number from 10 to 100. The box shows it after the copying has begun.
  int Percent() const;
};

}  // namespace golf
