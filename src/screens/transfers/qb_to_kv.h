#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/transfers/screen_run.h"
#include "transfers/scores_qb_to_kv.h"

namespace golf {

// Posts the scores of a tournament round to a Kelvane roster. It shows the course and the tees of
// the round beside the course and the tees of Kelvane's library whose names match best. The
// operator may choose others.
class QBtoKV : public Screen {
 public:
  static constexpr const char* kName = "QBtoKV";

  static constexpr int kTees = 5;
  using Labels = std::array<Label, kTees>;
  using Combos = std::array<ComboBox, kTees>;

  explicit QBtoKV(const ScreenContext& context);

  void OnLoad() override;
  void OnUnload() override;
  void OpenAgain() override;
  Button* LeaveButton() override { return &ExitButton; }

  std::array<Label, 2> Label1{
      Label("Label1",
            "Transfer scores from specified tournament to the specified handicap roster."),
      Label("Label1", "Corresponding course in Kelvane")};
  ListBox TournamentList{"TournamentList"};  // the name of the control file follows the last blank
  ListBox RoundList{"RoundList"};
  Button DestButton{"DestButton", "Find Handicap Roster"};
  TextBox HandicapRoster{"HandicapRoster"};
  Label QBCourse{"QBCourse"};
  ComboBox CourseCombo{"CourseCombo"};  // the last five characters are the course's number
  // These show the tees of the round and the tees of Kelvane. The last character of a Kelvane tee
  // is its number.
  Labels QBMTee{Label("QBMTee(1)"), Label("QBMTee(2)"), Label("QBMTee(3)"), Label("QBMTee(4)"),
                Label("QBMTee(5)")};
  Labels QBMTeeLabel{Label("QBMTeeLabel(1)", "Men"), Label("QBMTeeLabel(2)", "Men"),
                     Label("QBMTeeLabel(3)", "Men"), Label("QBMTeeLabel(4)", "Men"),
                     Label("QBMTeeLabel(5)", "Men")};
  Combos MTeeCombo{ComboBox("MTeeCombo(1)"), ComboBox("MTeeCombo(2)"), ComboBox("MTeeCombo(3)"),
                   ComboBox("MTeeCombo(4)"), ComboBox("MTeeCombo(5)")};
  Labels QBLTee{Label("QBLTee(1)"), Label("QBLTee(2)"), Label("QBLTee(3)"), Label("QBLTee(4)"),
                Label("QBLTee(5)")};
  Labels QBLTeeLabel{Label("QBLTeeLabel(1)", "Ladies"), Label("QBLTeeLabel(2)", "Ladies"),
                     Label("QBLTeeLabel(3)", "Ladies"), Label("QBLTeeLabel(4)", "Ladies"),
                     Label("QBLTeeLabel(5)", "Ladies")};
  Combos LTeeCombo{ComboBox("LTeeCombo(1)"), ComboBox("LTeeCombo(2)"), ComboBox("LTeeCombo(3)"),
                   ComboBox("LTeeCombo(4)"), ComboBox("LTeeCombo(5)")};
  CheckBox TCheck{"TCheck", "Transfer scores as Tournament scores"};
  CheckBox TCheck2{"TCheck2", "Transfer points won in QB to KV score value."};
  TextBox FirstTimeLoaded{"FirstTimeLoaded"};  // "NO" after the screen has been loaded once
  TextBox Message{"Message"};
  Label Working{"Working"};
  Button TransferButton{"TransferButton", "Transfer Scores"};
  Button ExitButton{"ExitButton", "Exit"};
  Button PreviewButton{"PreviewButton", "Pre&view..."};

  // These return the number at the end of an item.
  static std::int32_t TournamentOf(const std::string& item);
  static std::int32_t CourseOf(const std::string& item);
  // These return an item without the key at its end, as the operator sees it.
  static std::string TournamentHeading(const std::string& item);
  static std::string CourseHeading(const std::string& item);
  static std::string TeeHeading(const std::string& item);

 private:
  // Groups the controls of the tees for one sex. `group` is 0 for men and 1 for ladies.
  struct Sex {
    int group;
    Labels& tees;
    Labels& headings;
    Combos& partners;
    const std::string& (CourseClass::*tee_list)(std::int32_t) const;
  };
  std::array<Sex, 2> Sexes();
  std::size_t TeesPlayed(const Sex& sex);

  std::vector<Control*> Remembered();
  void ConnectEvents();
  void Match(const std::function<void()>& choose);

  void FillCourseCombo();
  void FillTournamentList();
  void ReadTournament();
  void ChooseTournament();
  void FillRoundList();
  void ChooseRound();
  void ShowTees();
  void HideTees();
  void MatchCourse();
  void ChooseCourse();
  void MatchTees();
  void GetTees();
  void FindRoster();
  void AskForPoints();
  void ShowCaption();

  void Start(RunEnding ending);
  void Transfer();
  TournamentScoreChoice Choice();
  void ShowReport(const ScoresQbToKvReport& report);
  void ShowBox(std::string title, std::string text);

  int selected_round_ = 1;
  bool round_list_ready_ = false;  // false while the program fills RoundList
};

}  // namespace golf
