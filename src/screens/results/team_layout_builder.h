#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/screen_host.h"
#include "scoring/layouts/report_layout.h"
#include "screens/results/sample_teams.h"

namespace golf {

// Edits a team report layout. The caller sets the action and the name before it shows the screen.
// The shared Program object must contain the master record. The grid's rows are the columns of the
// ball tables: the holes, and the sums of each round. Next to its codes, each hole shows the scores
// of sample teams.
class XReportsCustomTeamResults : public Screen {
 public:
  static constexpr const char* kName = "XReportsCustomTeamResults";

  static constexpr int kShow = 0;
  static constexpr int kEdit = 1;
  static constexpr int kNew = 2;

  explicit XReportsCustomTeamResults(const ScreenContext& context);

  int Action() const { return action_; }
  void SetAction(int action) { action_ = action; }
  void SetReportFileName(std::string name);
  void SetFileExtension(std::string extension) { extension_ = std::move(extension); }

  int HoleNumberUsed() const { return layout_.HoleNumberUsed; }
  int PlayersPerTeam() const { return layout_.PlayersPerTeam; }
  const std::string& BallSelectionOption() const { return layout_.BallSelectionOption; }
  const std::string& BallSelection() const { return layout_.BallSelection; }
  // These return a code of the layout. Holes count from 1 to 90; `place` is 0 or 1. They raise
  // error 9 for any other value.
  const std::string& ConsiderPlayers(int hole, int place) const;
  const std::string& GrossScoresToUse(int hole, int place) const;
  const std::string& NetScoresToUse(int hole, int place) const;
  const std::string& ReportHeaderItem(int i) const;  // i from 1 to 3
  void SetReportHeaderItem(int i, std::string text);

  // Saves the layout under the entered name and closes the screen. Returns false if the layout was
  // not saved.
  bool SaveReport();

  void OnLoad() override;
  void OnActivate() override { MoveFocus(&ReportName); }
  Button* LeaveButton() override { return &CancelButton; }

  Tab TabMain{"TabMain", {"&Scores to Use", "&Headers and Fonts"}};
  Label NameLabel{"NameLabel", "Report name"};
  TextBox ReportName{"ReportName"};
  Label DescriptionLabel{"DescriptionLabel", "Description"};
  TextBox ReportDescription{"ReportDescription"};
  Label HoleNumberLabel{"HoleNumberLabel", "Number of holes scored differently"};
  ComboBox HoleNumberUsedList{"HoleNumberUsedList"};
  Label PlayersLabel{"PlayersLabel", "Players per team"};
  ComboBox PlayerPerTeamList{"PlayerPerTeamList"};
  Frame SelectionFrame{
      "SelectionFrame",
      "When selecting both gross and net balls on same hole the following applies"};
  std::array<OptionButton, 2> BallSelectionOpt{
      OptionButton("BallSelectionOpt",
                   "Different ball(s) must be used for Gross and Net (Default)"),
      OptionButton("BallSelectionOpt",
                   "Same ball(s) can be used for when selecting both Gross and Net")};
  ComboBox BallSelectionStyle{"BallSelectionStyle"};
  Label CopyLabel{"CopyLabel", "Scoring format for each hole is copied forward to other holes."};
  Grid grid1;
  Button SampleDataGenerate{"SampleDataGenerate", "&Generate New Sample Scores"};
  Button CalculateButton{"CalculateButton", "&Re-Calculate Sample Scores"};

  Frame HeaderFrame{"HeaderFrame", "Report header"};
  std::array<TextCombo, 3> HeaderText{MakeHeader(1), MakeHeader(2), MakeHeader(3)};
  Label NumberLabel{"NumberLabel", "Report number"};
  TextBox ReportNumber{"ReportNumber"};
  std::array<CheckBox, 3> Header{CheckBox("Header(1)", "Report Number"),
                                 CheckBox("Header(2)", "Page Number"),
                                 CheckBox("Header(3)", "Report Date")};
  Frame FontFrame{"FontFrame", "Fonts"};
  std::array<Label, 3> FontLabel{Label("FontLabel"), Label("FontLabel"), Label("FontLabel")};
  std::array<Button, 3> FontButton{Button("FontButton", "Report &Header..."),
                                   Button("FontButton", "Column Headers..."),
                                   Button("FontButton", "Report &Body...")};
  CheckBox DisplayHGridLines{"DisplayHGridLines", "Display horizontal grid lines"};
  CheckBox DisplayVGridLines{"DisplayVGridLines", "Display vertical grid lines"};
  Button SaveButton{"SaveButton", "&Save Report Layout"};
  Button CancelButton{"CancelButton", "&Cancel"};
  Button Help{"Help", "Help"};
  Timer Timer1{"Timer1"};

 private:
  // Names the three codes of a place.
  enum class Code { kPlayers, kGross, kNet };
  static int ColumnOf(int place, Code code) { return place * 4 + 1 + static_cast<int>(code); }
  static std::string PlaceCodes::*FieldOf(Code code);
  static TextCombo MakeHeader(int i);

  void AddControls();
  void BindEvents();
  void LabelRows();
  void Begin();
  bool LoadLayout();
  void MakeNewLayout();

  void ShowLayout();
  void ShowLists();
  void ShowCodes();
  void ShowFonts();
  void TakeControls();
  void ChangeLayout();
  void ChangeCell(int column, int row);

  bool IsRefused(const std::string& name);
  bool HasTextThatFits();
  void GoTo(int page, Control& control);
  void AskToCancel();
  void ChooseFontOf(std::size_t i);

  int action_ = kShow;
  std::string file_name_;
  std::string extension_{kLayoutExtension};
  ReportLayout layout_;
  bool showing_ = false;  // true while the program, not the operator, sets controls
  SampleTeams sample_{layout_, grid1};
};

}  // namespace golf
