#include "stores/quenby/program_class.h"

#include <utility>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"

namespace golf {
namespace {

std::string Trimmed(const std::string& text) { return std::string(Trim(text)); }

}  // namespace

bool ProgramClass::OpenMasterFile() {
  try {
    if (master_file_ > 0) SaveMasterRecord();
    CloseMasterFile();
    const int number = state_.files.FreeNumber();
    state_.files.Open(number, state_.StoreDataPath + "QBMASTER.Q9D", MasterLayout::kLength);
    master_file_ = number;
  } catch (const NumberedError&) {
    return false;
  }
  return true;
}

void ProgramClass::CloseMasterFile() { state_.files.Close(std::exchange(master_file_, 0)); }

void ProgramClass::GetMasterRecord() {
  if (state_.files.Length(master_file_) > 0) state_.files.Read(master_file_, 1, master_);
}

void ProgramClass::SaveMasterRecord() {
  try {
    state_.files.Write(master_file_, 1, master_);
  } catch (const NumberedError&) {
    // This error is ignored. The file keeps its old content.
  }
}

void ProgramClass::SetActiveRoster(double value) {
  master_.Set<"ActiveRoster">(RoundToInt16(value));
}
std::string ProgramClass::LastRosterViewLoaded() const {
  return Trimmed(master_.Get<"LastRosterViewLoaded">());
}
void ProgramClass::SetLastRosterViewLoaded(std::string_view value) {
  master_.Set<"LastRosterViewLoaded">(value);
}
void ProgramClass::SetRosterColumnSorted(int i, double value) {
  master_.Set<"RosterColumnSorted">({i}, RoundToInt16(value));
}
void ProgramClass::SetRosterColumnSortedHow(int i, bool value) {
  master_.Set<"RosterColumnSortedHow">({i}, value ? -1 : 0);
}
void ProgramClass::SetActiveTournament(double value) {
  master_.Set<"ActiveTournament">(RoundToInt32(value));
}
std::string ProgramClass::LastTournamentViewLoaded() const {
  return Trimmed(master_.Get<"LastTournamentViewLoaded">());
}
void ProgramClass::SetLastTournamentViewLoaded(std::string_view value) {
  master_.Set<"LastTournamentViewLoaded">(value);
}
std::string ProgramClass::MiscTourTextFieldName(int i) const {
  return Trimmed(master_.Get<"MiscTourTextFieldName">(i));
}
void ProgramClass::SetMiscTourTextFieldName(int i, std::string_view value) {
  master_.Set<"MiscTourTextFieldName">({i}, value);
}
std::string ProgramClass::MiscTextFieldName(int i) const {
  return Trimmed(master_.Get<"MiscTextFieldName">(i));
}
void ProgramClass::SetMiscTextFieldName(int i, std::string_view value) {
  master_.Set<"MiscTextFieldName">({i}, value);
}
std::string ProgramClass::MiscDateFieldName(int i) const {
  return Trimmed(master_.Get<"MiscDateFieldName">(i));
}
void ProgramClass::SetMiscDateFieldName(int i, std::string_view value) {
  master_.Set<"MiscDateFieldName">({i}, value);
}
std::string ProgramClass::MiscCurrFieldName(int i) const {
  return Trimmed(master_.Get<"MiscCurrFieldName">(i));
}
void ProgramClass::SetMiscCurrFieldName(int i, std::string_view value) {
  master_.Set<"MiscCurrFieldName">({i}, value);
}

void ProgramClass::OpenRosterListFile() {
  state_.files.Close(roster_file_);
  roster_file_ = state_.files.FreeNumber();
  state_.files.Open(roster_file_, state_.StoreDataPath + "QBROSTER.Q9D", RosterLayout::kLength);
}

void ProgramClass::CloseRosterListFile() { state_.files.Close(std::exchange(roster_file_, 0)); }

std::int32_t ProgramClass::RosterListFileLength() {
  return state_.files.RecordCount<RosterLayout>(roster_file_);
}

void ProgramClass::GetRosterRecord(std::int32_t roster) {
  if (roster > 0 && roster <= RosterListFileLength()) {
    state_.files.Read(roster_file_, roster, roster_);
  }
}

void ProgramClass::SaveRosterRecord(std::int32_t roster) {
  state_.files.Write(roster_file_, roster, roster_);
}

void ProgramClass::DeleteRosterRecord(std::int32_t roster) {
  GetRosterRecord(roster);
  SetIsRosterActive(false);
  SaveRosterRecord(roster);
}

void ProgramClass::SetIsRosterActive(bool value) { roster_.Set<"IsRosterActive">(value ? -1 : 0); }
std::string ProgramClass::ClubName() const { return Trimmed(roster_.Get<"ClubName">()); }
void ProgramClass::SetClubName(std::string_view value) { roster_.Set<"ClubName">(value); }
std::string ProgramClass::ClubAddress(int i) const {
  return Trimmed(roster_.Get<"ClubAddress">(i));
}
void ProgramClass::SetClubAddress(int i, std::string_view value) {
  roster_.Set<"ClubAddress">({i}, value);
}
std::string ProgramClass::ClubPhone() const { return Trimmed(roster_.Get<"ClubPhone">()); }
void ProgramClass::SetClubPhone(std::string_view value) { roster_.Set<"ClubPhone">(value); }

}  // namespace golf
