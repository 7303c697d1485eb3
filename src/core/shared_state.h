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
class TeamRecords;
class TournamentClass;
class TournamentControl;
class TournamentPlayers;
struct KelvaneBuffers;
struct ZandelBuffers;

// The store objects that all screens work on. This room knows their names only; the composition
// root makes them.
struct StoreObjects {
  std::shared_ptr<CourseClass> SpareCourse;
  std::shared_ptr<CourseClass> Course;
  std::shared_ptr<ProgramClass> Program;
  std::shared_ptr<TournamentClass> Tournament;
  std::shared_ptr<PlayerClass> Player;
  std::shared_ptr<TeamRecords> Team1;
  std::shared_ptr<TeamRecords> Team2;
  std::shared_ptr<ESCClass> ESC;
  // The storeys of the tournament and the player that hold their records: the same objects, for
  // the rooms below their calculation.
  std::shared_ptr<TournamentControl> TournamentRecord;
  std::shared_ptr<TournamentPlayers> PlayerRecords;
  // Record buffers, which are made once and stay.
  std::shared_ptr<KelvaneBuffers> Kelvane;
  std::shared_ptr<ZandelBuffers> Zandel;
};

// Puts new objects into the place of the old ones, in the order of the members.
using StoreFactory = std::function<void(SharedState&, StoreObjects&)>;

// What every screen and store shares. Made once by the entry and handed down by reference.
class SharedState {
 public:
  SharedState(Platform& platform, StoreFactory factory);

  FileTable files;

  // Folders; each ends in a separator. CourseDataPath is where CourseClass opens its library,
  // StoreDataPath where the Quenby stores open their files; screens set both.
  std::string ProgramPath;
  std::string KVDataPath;
  std::string QBDataPath;
  std::string ZDDataPath;
  std::string CourseDataPath;
  std::string StoreDataPath;

  // Whether screens remember what was entered on them. Not where a command's arguments say it all.
  bool remembers_settings = true;

  // The Kelvane roster picked last, without folder or extension.
  std::string KVRosterName;

  std::string DateFormat;
  std::string DateMask;
  std::string TimeMask;
  std::string TimeSeparator;
  // Whether the machine writes numbers with a comma; one that is entered may have either then.
  bool decimal_comma = false;

  // The word that the calling sibling passed: "ZD", "QB" or "KV" name it, any other nobody.
  std::string CommandLine;

  // Nobody keeps these references across InitSharedObjects.
  CourseClass& SpareCourse() { return *objects_.SpareCourse; }
  CourseClass& Course() { return *objects_.Course; }
  ProgramClass& Program() { return *objects_.Program; }
  TournamentClass& Tournament() { return *objects_.Tournament; }
  PlayerClass& Player() { return *objects_.Player; }
  TeamRecords& Team1() { return *objects_.Team1; }
  TeamRecords& Team2() { return *objects_.Team2; }
  ESCClass& ESC() { return *objects_.ESC; }

  // The tournament and the player once more, as the rooms know them that are below their
  // calculation.
  TournamentControl& TournamentRecord() { return *objects_.TournamentRecord; }
  TournamentPlayers& PlayerRecords() { return *objects_.PlayerRecords; }

  KelvaneBuffers& Kelvane() { return *objects_.Kelvane; }
  ZandelBuffers& Zandel() { return *objects_.Zandel; }
  IdNumberList id_numbers;

  // The present moment, as the front end gives it.
  std::function<DateValue()> Now;

  // Closes every file of the process and makes the shared objects anew. If joined writes could not
  // reach the disk their error is raised after all of that is done.
  void InitSharedObjects();

 private:
  StoreFactory factory_;
  StoreObjects objects_;
};

}  // namespace golf
