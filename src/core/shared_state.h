#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/date_value.h"
#include "core/file_table.h"
#include "core/id_number_list.h"
#include "core/regional_forms.h"

namespace golf {

class CourseClass;
class ESCClass;
class PlayerClass;
class ProgramClass;
class SharedState;
class TeamClass;
class TeamRecords;
class TournamentClass;
class TournamentControl;
class TournamentPlayers;
class Transactions;
struct KelvaneBuffers;
struct ZandelBuffers;

// The store objects that all screens share. This room knows only the names of their classes; the
// composition root makes them.
struct StoreObjects {
  std::shared_ptr<CourseClass> SpareCourse;
  std::shared_ptr<CourseClass> Course;
  std::shared_ptr<ProgramClass> Program;
  std::shared_ptr<TournamentClass> Tournament;
  std::shared_ptr<PlayerClass> Player;
  std::shared_ptr<TeamClass> Team1;
  std::shared_ptr<TeamClass> Team2;
  std::shared_ptr<ESCClass> ESC;
  // The same tournament, player and first team objects by their record classes, for the rooms below
  // scoring.
  std::shared_ptr<TournamentControl> TournamentRecord;
  std::shared_ptr<TournamentPlayers> PlayerRecords;
  std::shared_ptr<TeamRecords> Team1Records;
  // Record buffers, which are made once and kept.
  std::shared_ptr<KelvaneBuffers> Kelvane;
  std::shared_ptr<ZandelBuffers> Zandel;
};

// Replaces the objects by new ones, in the order of the members.
using StoreFactory = std::function<void(SharedState&, StoreObjects&)>;

// The state that every screen and store shares. It is made once and passed on by reference.
class SharedState {
 public:
  SharedState(Platform& platform, StoreFactory factory);

  FileTable files;

  // Folders; each ends in a separator. CourseClass opens its library in CourseDataPath, and the
  // Quenby stores open their files in StoreDataPath. Screens set both.
  std::string ProgramPath;
  std::string KVDataPath;
  std::string QBDataPath;
  std::string ZDDataPath;
  std::string CourseDataPath;
  std::string StoreDataPath;

  // True if screens remember what was entered on them. False where a command's arguments set
  // everything.
  bool remembers_settings = true;

  // The Kelvane roster picked last, without folder or extension.
  std::string KVRosterName;

  std::string DateFormat;
  std::string DateMask;
  std::string TimeMask;
  std::string TimeSeparator;
  // True if the machine writes numbers with a decimal comma. An operator may then enter either
  // mark.
  bool decimal_comma = false;

  // The word that the calling application passed: "ZD", "QB" or "KV" names the sibling. Any other
  // word names none.
  std::string CommandLine;

  // No caller keeps these references across InitSharedObjects.
  CourseClass& SpareCourse() { return *objects_.SpareCourse; }
  CourseClass& Course() { return *objects_.Course; }
  ProgramClass& Program() { return *objects_.Program; }
  TournamentClass& Tournament() { return *objects_.Tournament; }
  PlayerClass& Player() { return *objects_.Player; }
  TeamClass& Team1() { return *objects_.Team1; }
  TeamClass& Team2() { return *objects_.Team2; }
  ESCClass& ESC() { return *objects_.ESC; }

  // The same tournament, player and first team by their record classes, for the rooms below
  // scoring.
  TournamentControl& TournamentRecord() { return *objects_.TournamentRecord; }
  TournamentPlayers& PlayerRecords() { return *objects_.PlayerRecords; }
  TeamRecords& Team1Records() { return *objects_.Team1Records; }

  KelvaneBuffers& Kelvane() { return *objects_.Kelvane; }
  ZandelBuffers& Zandel() { return *objects_.Zandel; }
  IdNumberList id_numbers;

  // Returns the present moment. The front end sets it.
  std::function<DateValue()> Now;

  // Makes each run that changes files happen whole or not at all. The composition root sets it.
  Transactions* transactions = nullptr;

  // Closes every file of the process and makes the shared objects anew. The first error of closing
  // is raised after all of that is done.
  void InitSharedObjects();

 private:
  StoreFactory factory_;
  StoreObjects objects_;
};

}  // namespace golf
