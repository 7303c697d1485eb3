#include "screens/rosters/load_rosters.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "core/resume_next.h"
#include "core/text.h"
#include "forms/grid_sort.h"
#include "scoring/player/player_class.h"
#include "screens/file_changes.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

constexpr int kNumberColumn = 0;
constexpr int kNameColumn = 1;
constexpr int kAddressColumns[] = {2, 3, 4};
constexpr int kPhoneColumn = 5;
constexpr int kMemberships = 3;

}  // namespace

LoadRosters::LoadRosters(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Rosters");
  Add({&DataPathLabel, &FilterLabel, &grid1, &ButtonFrame});
  AddInto(ButtonFrame, {&LoadButton, &NewButton, &EditButton, &DeleteButton, &RepairButton, &Help,
                        &CancelButton});
  Add({&AddEditRosterFrame});
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    AddInto(AddEditRosterFrame, {&FieldName[i], &Text1[i]});
  }
  AddInto(AddEditRosterFrame, {&AddEditRosterOK, &AddRosterCancel, &EditRosterCancel});
  for (std::size_t i = 0; i < FieldName.size(); ++i) {
    grid1.SetHeading(kNameColumn + static_cast<int>(i), FieldName[i].caption());
  }
  grid1.SetHidden(kNumberColumn, true);
  grid1.LockAllColumns();
  RepairButton.SetVisible(false);
  LeavePanel();

  grid1.on_row_change = [this] { ShowRowButtons(); };
  grid1.on_double_click = [this] { Pick(); };
  LoadButton.on_click = [this] { Pick(); };
  NewButton.on_click = [this] { BeginNew(); };
  EditButton.on_click = [this] { BeginEdit(); };
  DeleteButton.on_click = [this] { AskToDelete(); };
  Help.on_click = [this] {
    host().Ask(Box{.title = "Rosters",
                   .text = "Pick the roster that the golfers are to join and press Load Roster.\r"
                           "\"(Show ALL Rosters)\" puts them on no roster.",
                   .icon = BoxIcon::kInformation,
                   .window_help = name()});
  };
  CancelButton.on_click = [this] { host().Hide(*this); };
  AddEditRosterOK.on_click = [this] { Store(); };
  AddRosterCancel.on_click = [this] { CancelNew(); };
  EditRosterCancel.on_click = [this] { CancelEdit(); };
}

void LoadRosters::OnActivate() {
  // The golfers' file must be open, since deleting a roster changes its golfers.
  if (DeleteButton.enabled() && !state().Player().IsRosterFileOpen()) {
    const ResumeNext without([this](const NumberedError&) { DeleteButton.SetEnabled(false); });
    without([this] { state().Player().OpenRosterFile(); });
  }
  DataPathLabel.SetCaption(state().StoreDataPath);
  LeavePanel();
  LoadList();
}

void LoadRosters::SetUse(RosterUse use) {
  use_ = use;
  const bool can_pick = use == RosterUse::kPick;
  const bool can_change = use != RosterUse::kView;
  for (Button* button : {&LoadButton, &Help}) button->SetVisible(can_pick);
  LoadButton.SetDefault(can_pick);
  NewButton.SetVisible(can_change);
  DeleteButton.SetEnabled(can_change);
  CancelButton.SetCaption(can_pick ? "Cancel" : "Close");
  if (use == RosterUse::kManage) SetCaption("Rosters of Quenby");
}

Button* LoadRosters::PanelLeaveButton() {
  if (!AddEditRosterFrame.visible()) return nullptr;
  return AddRosterCancel.visible() ? &AddRosterCancel : &EditRosterCancel;
}

void LoadRosters::LoadList() {
  ProgramClass& program = state().Program();
  const std::int32_t length = program.RosterListFileLength();
  grid1.SetRepainting(false);
  grid1.SetRows(1);
  for (int column = 0; column <= grid1.columns(); ++column) grid1.SetText(column, 1, "");
  grid1.SetText(kNumberColumn, 1, "-1");
  grid1.SetText(kNameColumn, 1, "(Show ALL Rosters)");
  int row = 1;
  for (std::int32_t roster = 1; roster <= length; ++roster) {
    program.GetRosterRecord(roster);
    if (!program.IsRosterActive()) continue;
    grid1.SetRows(++row);
    grid1.SetText(kNumberColumn, row, std::to_string(roster));
    grid1.SetText(kNameColumn, row, program.ClubName());
    for (int line = 1; line <= 3; ++line) {
      grid1.SetText(kAddressColumns[line - 1], row, program.ClubAddress(line));
    }
    grid1.SetText(kPhoneColumn, row, program.ClubPhone());
  }
  GridSorter sorter(state());
  sorter.SetGridToSort(grid1);
  sorter.Sort({SortKey{kNameColumn}});
  grid1.SetRepainting(true);
  grid1.SetActiveRow(1);  // runs ShowRowButtons
  Suggest();
}

void LoadRosters::Suggest() {
  int row = grid1.rows();
  while (row > 1 && NumberInRow(row) != suggested_) --row;
  if (use_ == RosterUse::kManage) row = std::max(row, std::min(grid1.rows(), 2));
  if (use_ != RosterUse::kPick) grid1.SetActiveRow(row);
  host().SuggestRow(*this, grid1, row);
}

void LoadRosters::ShowRowButtons() {
  // Row 1 is the entry for all rosters, unless a roster's name sorts before it. The number of the
  // roster is checked for that case.
  const bool is_roster = grid1.active_row() > 1 && ChosenRoster() > 0 && use_ != RosterUse::kView;
  EditButton.SetVisible(is_roster);
  DeleteButton.SetVisible(is_roster);
}

std::int32_t LoadRosters::NumberInRow(int row) const {
  return RoundToInt32(LeadingNumber(grid1.text(kNumberColumn, row)));
}

std::int32_t LoadRosters::ChosenRoster() const { return NumberInRow(grid1.active_row()); }

void LoadRosters::Pick() {
  if (use_ != RosterUse::kPick) return;
  state().Program().SetActiveRoster(ChosenRoster());
  picked_ = true;
  host().Hide(*this);
}

std::int32_t LoadRosters::FreeRosterNumber() {
  ProgramClass& program = state().Program();
  const std::int32_t length = program.RosterListFileLength();
  for (std::int32_t roster = 1; roster <= length; ++roster) {
    program.GetRosterRecord(roster);
    if (!program.IsRosterActive()) return roster;
  }
  return length + 1;
}

void LoadRosters::BeginNew() {
  const BoxButton answer = host().Ask(Box{.title = "New Roster",
                                          .text = "Start a new roster?",
                                          .buttons = {BoxButton::kYes, BoxButton::kNo},
                                          .default_button = 1});
  if (answer != BoxButton::kYes) return;
  const std::int32_t roster = FreeRosterNumber();
  grid1.SetRows(grid1.rows() + 1);
  grid1.SetText(kNumberColumn, grid1.rows(), std::to_string(roster));
  grid1.SetActiveRow(grid1.rows());
  for (TextBox& text : Text1) text.SetText("");
  EnterPanel(AddRosterCancel);
}

void LoadRosters::BeginEdit() {
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    Text1[i].SetText(grid1.text(kNameColumn + static_cast<int>(i), grid1.active_row()));
  }
  EnterPanel(EditRosterCancel);
}

// Shows the panel that edits a roster. The grid is disabled, so that the active row does not change
// until the operator leaves the panel by one of its buttons.
void LoadRosters::EnterPanel(Button& cancel) {
  ButtonFrame.SetVisible(false);
  grid1.SetEnabled(false);
  AddEditRosterFrame.SetVisible(true);
  LoadButton.SetDefault(false);
  CancelButton.SetCancel(false);
  AddEditRosterOK.SetDefault(true);
  for (Button* button : {&AddRosterCancel, &EditRosterCancel}) {
    button->SetVisible(button == &cancel);
    button->SetCancel(button == &cancel);
  }
  MoveFocus(&Text1[0]);
}

void LoadRosters::LeavePanel() {
  AddEditRosterFrame.SetVisible(false);
  AddEditRosterOK.SetDefault(false);
  for (Button* button : {&AddRosterCancel, &EditRosterCancel}) button->SetCancel(false);
  LoadButton.SetDefault(use_ == RosterUse::kPick);
  CancelButton.SetCancel(true);
  grid1.SetEnabled(true);
  ButtonFrame.SetVisible(true);
}

void LoadRosters::Store() {
  if (Trim(Text1[0].text()).empty()) {
    host().Ask(Box{.title = "Notice", .text = "You did not enter a name for your roster."});
    return;
  }
  LeavePanel();
  const std::int32_t roster = ChosenRoster();
  suggested_ = roster;
  ChangeFiles(state(), host(), "save-qb-roster", Text1[0].text(), [&] { Save(roster); });
  LoadList();
}

void LoadRosters::Save(std::int32_t roster) {
  ProgramClass& program = state().Program();
  program.GetRosterRecord(roster);
  program.SetIsRosterActive(true);
  program.SetClubName(Text1[0].text());
  for (int line = 1; line <= 3; ++line) {
    program.SetClubAddress(line, Text1[static_cast<std::size_t>(line)].text());
  }
  program.SetClubPhone(Text1[4].text());
  program.SaveRosterRecord(roster);
}

void LoadRosters::CancelNew() {
  LeavePanel();
  grid1.SetRows(grid1.rows() - 1);
  grid1.SetActiveRow(grid1.rows());
  MoveFocus(&grid1);
  Suggest();
}

void LoadRosters::CancelEdit() {
  LeavePanel();
  MoveFocus(&grid1);
}

void LoadRosters::AskToDelete() {
  ProgramClass& program = state().Program();
  const std::int32_t roster = ChosenRoster();
  program.GetRosterRecord(roster);
  const std::string answer =
      host().Ask(InputBox{.title = "DELETE Roster?",
                          .text = "Type 'YES' to DELETE roster - '" + program.ClubName() +
                                  "'.\r\rAll players in this roster will be deleted.",
                          .default_answer = "NO"});
  if (MeansYes(answer)) {
    // The roster is not deleted without its golfers.
    ChangeFilesOrNone(state(), host(), "delete-qb-roster", program.ClubName(), [&] {
      program.DeleteRosterRecord(roster);
      TakeGolfersOut(roster);
    });
  }
  LoadList();
}

// Removes all golfers from a deleted roster. A golfer who is then on no roster is deleted, too.
void LoadRosters::TakeGolfersOut(std::int32_t roster) {
  TournamentPlayers& player = state().Player();
  const std::int32_t length = player.RosterFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, false);
    for (int slot = 1; slot <= kMemberships; ++slot) {
      if (player.Rosters(slot) != roster) continue;
      player.SetRosters(slot, 0);
      if (player.Rosters(1) <= 0 && player.Rosters(2) <= 0 && player.Rosters(3) <= 0) {
        player.SetIDNum(kNeverAgain);
      }
      player.SaveRecord(record, false);
    }
  }
}

}  // namespace golf
