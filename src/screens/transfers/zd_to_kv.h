#pragma once

#include <array>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/league_picker.h"
#include "screens/transfers/screen_run.h"
#include "transfers/scores_zd_to_kv.h"

namespace golf {

// Posts the scores of a Zandel league to a Kelvane roster. The operator chooses the league, one of
// its batches of scores, and the roster. The league's files stay open while its batches are listed.
class ZDtoKV : public Screen {
 public:
  static constexpr const char* kName = "ZDtoKV";

  explicit ZDtoKV(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  void OpenAgain() override;
  Button* LeaveButton() override { return &ExitButton; }
  Button* PanelLeaveButton() override { return picker.IsOpen() ? &picker.CancelLeague : nullptr; }

  Frame Frame2{"Frame2"};
  Button SourceButton{"SourceButton", "Find League to transfer scores from"};
  TextBox LeagueRoster{"LeagueRoster"};  // the last five characters are the league's base
  ComboBox EventList{"EventList"};       // the last three characters are the batch's code
  Button DestButton{"DestButton", "Find Handicap Roster to transfer score to"};
  TextBox HandicapRoster{"HandicapRoster"};
  Button TransferButton{"TransferButton", "Transfer Scores"};
  Button ExitButton{"ExitButton", "Exit"};
  TextBox Message{"Message"};
  Label Working{"Working"};
  // These are the headings of the log, the roster and the league.
  std::array<Label, 3> Label1{Label("Label1", "  Transfer Messages"),
                              Label("Label1", "To Kelvane ROSTER..."),
                              Label("Label1", "Transfer scores from LEAGUE ...")};
  LeaguePicker picker;
  Button PreviewButton{"PreviewButton", "Pre&view..."};

 private:
  std::array<Control*, 5> Remembered();
  void TakeLeague(std::string league);
  void LoadEventList();
  void FindDestination();

  void Start(RunEnding ending);
  void Transfer();
  void PostScores(ScoresZdToKvReport& report);

  std::string listed_league_;  // the league whose files are open for the list, or empty
};

}  // namespace golf
