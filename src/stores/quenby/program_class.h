#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// The program master QBMASTER.Q9D and the roster list QBROSTER.Q9D in StoreDataPath: a buffer for
// the one master record and one for a roster. Getters give texts trimmed; setters cut them to their
// field. An index outside its bounds is error 9. What is not said to swallow an error raises those
// of FileTable.
class ProgramClass {
 public:
  explicit ProgramClass(SharedState& state) : state_(state) {}
  ProgramClass(const ProgramClass&) = delete;
  ProgramClass& operator=(const ProgramClass&) = delete;

  // Writes the master buffer back to a file that is open, then opens the master file. False after
  // any error.
  bool OpenMasterFile();
  void CloseMasterFile();
  // An empty file leaves the buffer as it is.
  void GetMasterRecord();
  // A failure is swallowed.
  void SaveMasterRecord();

  std::int16_t ActiveRoster() const { return master_.Get<"ActiveRoster">(); }
  void SetActiveRoster(double value);
  std::string LastRosterViewLoaded() const;
  void SetLastRosterViewLoaded(std::string_view value);
  std::int16_t RosterColumnSorted(int i) const { return master_.Get<"RosterColumnSorted">(i); }
  void SetRosterColumnSorted(int i, double value);
  bool RosterColumnSortedHow(int i) const { return master_.Get<"RosterColumnSortedHow">(i) != 0; }
  void SetRosterColumnSortedHow(int i, bool value);
  std::int32_t ActiveTournament() const { return master_.Get<"ActiveTournament">(); }
  void SetActiveTournament(double value);
  std::string LastTournamentViewLoaded() const;
  void SetLastTournamentViewLoaded(std::string_view value);
  std::string MiscTourTextFieldName(int i) const;
  void SetMiscTourTextFieldName(int i, std::string_view value);
  std::string MiscTextFieldName(int i) const;
  void SetMiscTextFieldName(int i, std::string_view value);
  std::string MiscDateFieldName(int i) const;
  void SetMiscDateFieldName(int i, std::string_view value);
  std::string MiscCurrFieldName(int i) const;
  void SetMiscCurrFieldName(int i, std::string_view value);

  void OpenRosterListFile();
  void CloseRosterListFile();
  // Rosters ever made.
  std::int32_t RosterListFileLength();
  // A number without a record leaves the buffer as it is.
  void GetRosterRecord(std::int32_t roster);
  // Any number from 1; behind the end the file grows.
  void SaveRosterRecord(std::int32_t roster);
  // The record stays and is free for another roster.
  void DeleteRosterRecord(std::int32_t roster);

  bool IsRosterActive() const { return roster_.Get<"IsRosterActive">() != 0; }
  void SetIsRosterActive(bool value);
  std::string ClubName() const;
  void SetClubName(std::string_view value);
  std::string ClubAddress(int i) const;
  void SetClubAddress(int i, std::string_view value);
  std::string ClubPhone() const;
  void SetClubPhone(std::string_view value);

 private:
  SharedState& state_;
  int master_file_ = 0;
  int roster_file_ = 0;
  Record<MasterLayout> master_;
  Record<RosterLayout> roster_;
};

}  // namespace golf
