#include "screens/rosters/load_roster.h"

#include <algorithm>

#include "core/file_name.h"
#include "core/general_routines.h"
#include "core/resume_next.h"
#include "core/text.h"
#include "screens/file_changes.h"
#include "stores/kelvane/kelvane_files.h"

namespace golf {
namespace {

constexpr int kListedFile = 99;
constexpr std::string_view kExtension = ".KV5";
constexpr int kTypeColumn = 1;
constexpr int kNameColumn = 2;

// Reads the header of a roster into the buffer and returns its number of holes, or 0 if the header
// cannot be read.
int HolesOf(SharedState& state, const std::string& file_name) {
  auto& header = state.Kelvane().header;
  header = {};
  const ResumeNext anyway(nullptr);
  anyway([&] {
    state.files.Open(kListedFile, state.KVDataPath + file_name, KelvaneHeaderLayout::kLength,
                     FileAccess::kDefault);
    state.files.Read(kListedFile, 1, header);
  });
  state.files.Close(kListedFile);
  return header.Get<"Holes">();
}

}  // namespace

LoadRoster::LoadRoster(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Rosters");
  Add({&Label1, &DataPathLabel, &grid1, &LoadButton, &NewButton, &DeleteButton, &RepairButton,
       &CancelButton, &NewRosterFrame});
  AddInto(NewRosterFrame, {&InputTitle, &NameLabel, &NewRosterName, &OK2Button, &Cancel2Button});
  grid1.MakeList({"Type", "  Roster Name"});
  RepairButton.SetVisible(false);
  ShowNewRosterFrame(false);
  NewRosterName.key_filter = [](char key) { return FilterKey(key, kKeyAllowsBlank); };
  grid1.on_double_click = [this] { Pick(); };
  LoadButton.on_click = [this] { Pick(); };
  NewButton.on_click = [this] { AskForNew(); };
  DeleteButton.on_click = [this] { AskToDelete(); };
  CancelButton.on_click = [this] { host().Unload(*this); };
  OK2Button.on_click = [this] { MakeNew(); };
  Cancel2Button.on_click = [this] { ShowNewRosterFrame(false); };
}

void LoadRoster::OnLoad() {
  DataPathLabel.SetCaption(state().KVDataPath);
  FillList();
}

void LoadRoster::OnActivate() {
  int row = RowOf(suggested_);
  if (use_ == RosterUse::kManage) row = std::max(row, std::min(grid1.rows(), 1));
  if (!CanPick() && row > 0) grid1.SetActiveRow(row);
  host().SuggestRow(*this, grid1, row);
  ShowButtons(!NewRosterFrame.visible());
}

void LoadRoster::SetUse(RosterUse use) {
  use_ = use;
  if (!CanPick()) CancelButton.SetCaption("Close");
  if (use == RosterUse::kManage) SetCaption("Rosters of Kelvane");
}

Button* LoadRoster::PanelLeaveButton() {
  return NewRosterFrame.visible() ? &Cancel2Button : nullptr;
}

void LoadRoster::FillList() {
  const auto names = state().files.FilesLike(state().KVDataPath, "*" + std::string(kExtension));
  grid1.SetRepainting(false);
  grid1.SetRows(0);
  grid1.SetRows(static_cast<int>(names.size()));
  int row = 0;
  for (const std::string& file_name : names) {
    const std::string name = UpperCase(file_name);
    ++row;
    grid1.SetText(kTypeColumn, row, std::to_string(HolesOf(state(), name)) + " hole");
    grid1.SetText(kNameColumn, row, name.substr(0, name.size() - kExtension.size()));
  }
  grid1.SetRepainting(true);
}

std::string LoadRoster::SelectedName() const {
  return grid1.active_row() == 0 ? std::string() : grid1.text(kNameColumn, grid1.active_row());
}

void LoadRoster::Pick() {
  if (!CanPick()) return;
  const std::string name = SelectedName();
  if (IsBlankText(name)) {
    const bool none = grid1.active_row() == 0;
    host().Ask(Box{.title = "Load Roster",
                   .text = none ? "Select Roster to Load." : "Select a roster to load"});
    return;
  }
  state().KVRosterName = name;
  LoadKVSystemFile(state());
  state().Kelvane().system.Set<"RosterName">(name);
  CloseKVFiles(state());
  picked_ = true;
  host().Unload(*this);
}

int LoadRoster::RowOf(std::string_view name) const {
  int row = grid1.rows();
  while (row > 0 && !EqualIgnoringCase(grid1.text(kNameColumn, row), name)) --row;
  return row;
}

std::string HeldRosterText(const std::string& roster) {
  return "Another program has the roster " + roster +
         " open. Close Kelvane, or choose another roster.";
}

std::string HeldRosterText(const std::string& roster, const NumberedError& error) {
  return error.Is(ErrorNumber::kPermissionDenied) ? HeldRosterText(roster) : error.description();
}

std::string AskForKelvaneRoster(SharedState& state, ScreenHost& host, const std::string& before) {
  const auto screen = Load<LoadRoster>(host).shared_from_this();
  auto& picker = dynamic_cast<LoadRoster&>(*screen);
  picker.SetTag("OPENONLY");
  picker.SuggestRoster(before);
  host.ShowModal(picker);
  return picker.picked() ? state.KVRosterName : host.AfterCancel(before, state.KVRosterName);
}

void LoadRoster::AskForNew() {
  const BoxButton answer = host().Ask(Box{.title = "New Roster",
                                          .text = "Start a new roster?",
                                          .buttons = {BoxButton::kYes, BoxButton::kNo},
                                          .default_button = 1});
  if (answer != BoxButton::kYes) return;
  NewRosterName.SetText("");
  ShowNewRosterFrame(true);
  MoveFocus(&NewRosterName);
}

void LoadRoster::ShowNewRosterFrame(bool shown) {
  NewRosterFrame.SetVisible(shown);
  grid1.SetVisible(!shown);
  ShowButtons(!shown);
  OK2Button.SetDefault(shown);
  Cancel2Button.SetCancel(shown);
}

// Shows or hides the buttons beside the list.
void LoadRoster::ShowButtons(bool shown) {
  LoadButton.SetVisible(shown && CanPick());
  CancelButton.SetVisible(shown);
  NewButton.SetVisible(shown && CanChange());
  DeleteButton.SetVisible(shown && CanChange());
  LoadButton.SetDefault(shown && CanPick());
  CancelButton.SetCancel(shown);
}

void LoadRoster::MakeNew() {
  const std::string& name = NewRosterName.text();
  if (name.empty()) {
    host().Ask(Box{.title = "Notice", .text = "You did not enter a name for your roster."});
    return;
  }
  const std::string fault = FileNameFault(name);
  if (!fault.empty()) {
    host().Ask(Box{.title = "Notice", .text = "A roster name " + fault});
    return;
  }
  const std::string path = state().KVDataPath + name + ".kv5";
  if (state().files.FileExists(path)) {
    host().Ask(Box{.title = "Can't Replace Roster",
                   .text = "First DELETE roster " + name + "\rif you what to replace it."});
    return;
  }
  const std::string kind =
      host().Ask(InputBox{.title = "What kind of roster?",
                          .text = "Type '18' if you are using this roster to calculate 18 hole "
                                  "handicaps.\rType '9' if you are using this roster to calculate "
                                  "9 hole handicaps.",
                          .default_answer = "18"});
  if (kind != "18" && kind != "9") {
    host().Ask(Box{.title = "Message", .text = "Invalid type roster.  Cannot create."});
    return;
  }
  const bool made = ChangeFiles(state(), host(), "new-kv-roster", name, [&] {
    state().KVRosterName = name;
    CloseKVFiles(state());
    state().files.Open(kKelvaneHeaderFile, path, KelvaneHeaderLayout::kLength);
    BuildBlankKVHeader(state(), kind == "9" ? 9 : 18);
    state().files.Write(kKelvaneHeaderFile, 1, state().Kelvane().header);
  });
  if (!made) return;
  ShowNewRosterFrame(false);
  FillList();
  const int row = RowOf(name);
  if (row > 0) grid1.SetActiveRow(row);
  host().SuggestRow(*this, grid1, row);
}

void LoadRoster::AskToDelete() {
  const std::string name = SelectedName();
  if (grid1.active_row() == 0) {
    host().Ask(Box{.title = "DELETE Roster", .text = "Select roster to delete."});
    return;
  }
  const std::string answer =
      host().Ask(InputBox{.title = "DELETE Roster?",
                          .text = "Type 'YES' to DELETE roster - '" + name + "'.",
                          .default_answer = "NO"});
  if (MeansYes(answer)) Delete(name);
}

void LoadRoster::Delete(const std::string& name) {
  const bool current = EqualIgnoringCase(name, state().KVRosterName);
  if (current) {
    const BoxButton sure =
        host().Ask(Box{.title = "Delete roster?",
                       .text = "Your are currently viewing this roster.  Are you sure you want to "
                               "delete it?",
                       .buttons = {BoxButton::kYes, BoxButton::kNo},
                       .default_button = 1});
    if (sure != BoxButton::kYes) return;
  }
  CloseKVFiles(state());
  const auto tell = [this](const std::string& text) {
    if (use_ == RosterUse::kManage) {
      host().Ask(Box{.title = "Rosters", .text = text, .icon = BoxIcon::kStop});
    }
  };
  bool is_held = false;
  try {
    ChangeFiles(state(), host(), "delete-kv-roster", name, [&] {
      for (const char* extension : {".kvg", ".kvx", ".kvs", ".kv5"}) {
        const std::string path = state().KVDataPath + name + extension;
        state().files.DeleteFile(path);
        // The file could not be deleted, since another program has it open. The other files are not
        // deleted then.
        is_held = state().files.FileExists(path);
        if (is_held) return state().transactions->Drop();
      }
    });
    if (is_held) tell(HeldRosterText(name));
  } catch (const CommitFailed& error) {
    // A transfer needs no message here: the list still shows the roster.
    tell(HeldRosterText(name, error));
  }
  FillList();
  if (current) CancelButton.Click();
}

}  // namespace golf
