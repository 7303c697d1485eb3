#include "screens/transfers/quenby_rosters.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/text.h"
#include "screens/rosters/load_rosters.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

constexpr std::size_t kNumberWidth = 3;
constexpr std::size_t kBlanksBeforeNumber = 25;

}  // namespace

void OpenQuenbyRosters(SharedState& state) {
  ProgramClass& program = state.Program();
  if (!program.OpenMasterFile()) {
    const std::string master = state.StoreDataPath + "QBMASTER.Q9D";
    // Opening a missing file raises an error of its own if a folder or a device has its name.
    if (!state.files.FileExists(master)) {
      state.files.platform().Open(master, FileAccess::kReadWriteShared);
    }
    throw NumberedError(ErrorNumber::kPermissionDenied,
                        master +
                            " cannot be opened: another program holds it, or it may not be "
                            "written to.");
  }
  program.OpenRosterListFile();
  program.GetMasterRecord();
}

std::string AskForQuenbyRoster(SharedState& state, ScreenHost& host, bool may_delete,
                               const std::string& before) {
  auto& picker = Load<LoadRosters>(host);
  picker.DeleteButton.SetEnabled(may_delete);
  picker.SuggestRoster(RoundToInt32(QuenbyRosterNumber(before)));
  host.ShowModal(picker);
  const bool picked = picker.picked();
  host.Unload(picker);  // the next caller sets DeleteButton itself
  ProgramClass& program = state.Program();
  const std::int16_t roster = std::max<std::int16_t>(program.ActiveRoster(), 0);
  std::string name = "Show ALL Rosters";
  if (roster > 0) {
    program.GetRosterRecord(roster);
    name = program.ClubName();
  }
  name += std::string(kBlanksBeforeNumber, ' ') + FormatNumber(roster, "000");
  return picked ? name : host.AfterCancel(before, name);
}

std::string QuenbyRosterTitle(std::string_view roster) {
  const std::string_view name =
      roster.substr(0, roster.size() - std::min(roster.size(), kNumberWidth));
  return std::string(Trim(name)) + " (" + std::to_string(RoundToInt32(QuenbyRosterNumber(roster))) +
         ")";
}

double QuenbyRosterNumber(std::string_view roster) {
  return LeadingNumber(LastCharacters(roster, kNumberWidth));
}

}  // namespace golf
