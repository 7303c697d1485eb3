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

// Holds the store objects that all screens share. This header only declares their classes. The
// composition root makes the objects.
struct StoreObjects {
  std::shared_ptr<CourseClass> SpareCourse;
  std::shared_ptr<CourseClass> Course;
  std::shared_ptr<ProgramClass> Program;
  std::shared_ptr<TournamentClass> Tournament;
  std::shared_ptr<PlayerClass> Player;
  std::shared_ptr<TeamClass> Team1;
  std::shared_ptr<TeamClass> Team2;
  std::shared_ptr<ESCClass> ESC;
  // These are the tournament, player and first team objects above, as their record classes. Code
  // below the scoring layer uses these.
  std::shared_ptr<TournamentControl> TournamentRecord;
  std::shared_ptr<TournamentPlayers> PlayerRecords;
  std::shared_ptr<TeamRecords> Team1Records;
  // These are the record buffers. They are made once and kept.
  std::shared_ptr<KelvaneBuffers> Kelvane;
  std::shared_ptr<ZandelBuffers> Zandel;
};

// Replaces all objects by new ones, in the order of the members.
using StoreFactory = std::function<void(SharedState&, StoreObjects&)>;

// Holds the state that all screens and stores share. It is made once and passed by reference.
class SharedState {
 public:
  SharedState(Platform& platform, StoreFactory factory);

  FileTable files;

  // These are the data folders. Each ends in a separator. CourseClass opens its library in
  // CourseDataPath, and the Quenby stores open their files in StoreDataPath. Screens set both.
  std::string ProgramPath;
  std::string KVDataPath;
  std::string QBDataPath;
  std::string ZDDataPath;
  std::string CourseDataPath;
  std::string StoreDataPath;

  // True if screens save the operator's input for the next run. False if the arguments of a command
  // set all input.
  bool remembers_settings = true;

  // This is the name of the Kelvane roster selected last, without folder or extension.
  std::string KVRosterName;

  std::string DateFormat;
  std::string DateMask;
  std::string TimeMask;
  std::string TimeSeparator;
  // True if the machine writes numbers with a decimal comma. An operator may then enter a comma or
  // a point.
  bool decimal_comma = false;

  // This is the word that the calling application passed. "ZD", "QB" or "KV" is the name of that
  // application. Any other word is ignored.
  std::string CommandLine;

  // InitSharedObjects invalidates these references, so no caller keeps them across it.
  CourseClass& SpareCourse() { return *objects_.SpareCourse; }
  CourseClass& Course() { return *objects_.Course; }
  ProgramClass& Program() { return *objects_.Program; }
  TournamentClass& Tournament() { return *objects_.Tournament; }
  PlayerClass& Player() { return *objects_.Player; }
  TeamClass& Team1() { return *objects_.Team1; }
  TeamClass& Team2() { return *objects_.Team2; }
  ESCClass& ESC() { return *objects_.ESC; }

  // Return the same tournament, player and first team as their record classes, for code below the
  // scoring layer.
  TournamentControl& TournamentRecord() { return *objects_.TournamentRecord; }
  TournamentPlayers& PlayerRecords() { return *objects_.PlayerRecords; }
  TeamRecords& Team1Records() { return *objects_.Team1Records; }

  KelvaneBuffers& Kelvane() { return *objects_.Kelvane; }
  ZandelBuffers& Zandel() { return *objects_.Zandel; }
  IdNumberList id_numbers;

  // Returns the current date and time. The front end sets this function.
  std::function<DateValue()> Now;

  // Applies the file changes of each run completely or not at all. The composition root sets this
  // pointer.
  Transactions* transactions = nullptr;

  // Closes every file of the process and makes new shared objects. Then raises the first error of
  // closing.
  void InitSharedObjects();

 private:
  StoreFactory factory_;
  StoreObjects objects_;
};

}  // namespace golf
