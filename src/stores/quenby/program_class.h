#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// Reads and writes the program master QBMASTER.Q9D and the roster list QBROSTER.Q9D in
// StoreDataPath. The object has one buffer for the master record and one for a roster. Getters trim
// texts. Setters cut them to the width of their field. An index out of its range raises error 9. A
// number too large for its field raises error 6. Functions on files raise the errors of FileTable
// unless their comment differs.
class ProgramClass {
 public:
  explicit ProgramClass(SharedState& state) : state_(state) {}
  ProgramClass(const ProgramClass&) = delete;
  ProgramClass& operator=(const ProgramClass&) = delete;

  // Opens the master file. First writes the master buffer to the file if it is open. Returns false
  // if an error occurs. Only the error of a delayed write is raised.
  bool OpenMasterFile();
  void CloseMasterFile();
  // Reads the master record. An empty file leaves the buffer unchanged.
  void GetMasterRecord();
  // Writes the master record. Ignores an error of this write.
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
  // Returns the number of roster records, including those of deleted rosters.
  std::int32_t RosterListFileLength();
  // Reads a roster. Leaves the buffer unchanged if there is no such record.
  void GetRosterRecord(std::int32_t roster);
  // Writes a roster, numbered from 1. A number beyond the end extends the file.
  void SaveRosterRecord(std::int32_t roster);
  // Marks a roster as deleted. Keeps its record, which can be used for another roster.
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
