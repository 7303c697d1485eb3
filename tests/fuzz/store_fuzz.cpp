// Takes arbitrary bytes as each kind of file. The first byte picks the kind, and the others are the
// file. All other files are those of a made-up club. The target shows every field and calls every
// read of the store that mends or calculates something. A NumberedError is an answer; anything else
// ends the program.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <functional>

#include "app/application.h"
#include "app/demo/demo_install.h"
#include "app/file_kinds.h"
#include "cli/field_text.h"
#include "cli/results_players.h"
#include "cli/results_teams.h"
#include "scoring/layouts/custom_standings.h"
#include "scoring/open_tournament.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_class.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_golfer_index.h"
#include "stores/kelvane/kelvane_scores.h"
#include "stores/quenby/program_class.h"
#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"
#include "support/memory_platform.h"

namespace golf {
namespace {

using Control = TournamentControl;
using Player = PlayerClass;
using Team = TeamRecords;

constexpr std::array kRecords = {-1, 0, 1, 2, 3, 10};
constexpr std::array<OptionalRound, 5> kSomeRounds = {std::nullopt, 0, 1, 7, 8};

template <class Action>
void Try(Action&& action) {
  try {
    action();
  } catch (const NumberedError&) {
  }
}

template <class Object, class... Members>
void CallEach(Object& object, Members... members) {
  (Try([&] { std::invoke(members, object); }), ...);
}
// Calls the members with the indexes `first` to `last` and one more on either side.
template <class Object, class... Members>
void CallEachFromTo(Object& object, int first, int last, Members... members) {
  for (int i = first - 1; i <= last + 1; ++i) (Try([&] { std::invoke(members, object, i); }), ...);
}
template <class Object, class... Members>
void CallEachWithRound(Object& object, Members... members) {
  for (const OptionalRound round : kSomeRounds) {
    (Try([&] { std::invoke(members, object, round); }), ...);
  }
}

void Need(bool holds) {
  if (!holds) std::abort();
}

// Shows a record in the forms for people and for programs.
void ShowRecord(const LayoutInfo& layout, std::string_view record) {
  for (const Field& field : layout.fields) {
    PlainLines(field, record);
    Need(FieldJson(field, record).dump().size() > 0);
  }
}

void WalkKelvane(SharedState& state) {
  KelvaneBuffers& buffers = state.Kelvane();
  LoadKVSystemFile(state);
  Need(OpenKVRoster(state, "club18"));
  state.files.Read(kKelvaneHeaderFile, 1, buffers.header);
  const std::int32_t places = std::min(KVGolferPlaces(state) + 1, 4);
  for (std::int32_t place = 1; place <= places; ++place) {
    state.files.Read(kKelvaneGolferFile, place, buffers.golfer);
    state.files.Read(kKelvaneScoreFile, place, buffers.history);
    const std::int32_t id = buffers.golfer.Get<"IDNum">();
    for (const int entry : {0, 1, 150, 300, 301}) {
      Try([&] { RepositionKVScore(state, entry); });
    }
    AddKVScore(state);
    BlankKVScore(state);
    AddKVScore(state);
    const std::int32_t found = KelvaneGolferIndex(state).Find(id);
    Need(found == 0 || buffers.golfer.Get<"Status">() >= 1);
    state.id_numbers.AppendNew(id);
  }
  Need(state.id_numbers.NextFree(1000) > 0);
}

void WalkProgram(SharedState& state) {
  ProgramClass& program = state.Program();
  Need(program.OpenMasterFile());
  program.GetMasterRecord();
  program.OpenRosterListFile();
  for (const int record : kRecords) {
    program.GetRosterRecord(record);
    CallEach(program, &ProgramClass::ClubName, &ProgramClass::ClubPhone);
    CallEachFromTo(program, 1, 3, &ProgramClass::ClubAddress);
  }
  CallEach(program, &ProgramClass::LastRosterViewLoaded, &ProgramClass::LastTournamentViewLoaded);
  CallEachFromTo(program, 1, 10, &ProgramClass::MiscTourTextFieldName,
                 &ProgramClass::MiscTextFieldName);
  CallEachFromTo(program, 1, 5, &ProgramClass::MiscDateFieldName, &ProgramClass::MiscCurrFieldName);
  program.SaveMasterRecord();
}

void WalkControl(SharedState& state) {
  Control& control = state.Tournament();
  control.OpenTournamentControlFile(1);
  control.GetRecord();
  CallEachWithRound(control, &Control::DateofRound, &Control::CourseNumberPlayed,
                    &Control::CourseNamePlayed);  // before anything is mended
  CallEach(control, &Control::Name, &Control::NumRounds, &Control::NumTeams, &Control::NumFlights,
           &Control::NumTeamFlights, &Control::NumTeeGroups, &Control::RoundType,
           &Control::TeamHandicapOption, &Control::PointQuotaOption, &Control::PositionOption,
           &Control::PlayerFlightsDeterminedBy, &Control::TeamFlightsDeterminedBy,
           &Control::TeamHandicapPercent, &Control::PointQuotaFromHandicap, &Control::ActiveRound,
           &Control::TeamNamesMat);
  CallEachFromTo(control, -5, 5, &Control::PointsGiven);
  CallEachFromTo(control, 0, 1, &Control::HandicapMax);
  for (const OptionalRound round : kSomeRounds) {
    for (const int group : {0, 1, 2}) {
      for (const int n : {0, 1, 5}) {
        Try([&] { control.TeeNamePlayed(group, n, round); });
      }
    }
  }
}

void WalkGolfers(SharedState& state) {
  Player& player = state.Player();
  for (const int record : kRecords) {
    if (!player.GetRecord(record, false)) continue;
    CallEach(player, &Player::RecordNumber, &Player::PrintPlayer, &Player::IDNum, &Player::NameLF,
             &Player::NameFL, &Player::SexIndice, &Player::AddressHomeFull,
             &Player::AddressWorkFull, &Player::Flight, &Player::GroupTee, &Player::PreferredTime,
             &Player::Index, &Player::IndexValue, &Player::DueDateString, &Player::DueAmount);
    CallEachFromTo(player, 0, 4, &Player::RosterNames);
    CallEachFromTo(player, 1, 5, &Player::MiscCurrency);
    CallEachFromTo(player, 1, 2, &Player::MiscDateString);
    for (const bool decimals : {false, true}) {
      player.Handicap(decimals);
      player.HandicapValue(decimals);
    }
    for (const int slot : {1, 2, 3}) player.SetRosters(slot, player.Rosters(4 - slot));
    player.SaveRecord();
  }
  std::int16_t start = 1;
  Need(player.FindAvailableRecordInRosterFile(start) >= 10);
}

void WalkEntries(SharedState& state) {
  Player& player = state.Player();
  player.TourOpenTournamentFile(1);
  for (const int record : kRecords) {
    if (!player.GetRecord(record, true)) continue;
    CallEachWithRound(player, &Player::TourTeamOn, &Player::TourLockFlag, &Player::TourFlight,
                      &Player::TourGroupTee, &Player::TourIndex, &Player::TourIndexValue,
                      &Player::TourCartString, &Player::TourPreferredTime, &Player::TourEarnings);
    CallEachFromTo(player, 1, 7, &Player::TourScoreTransferredtoKV);
    player.SaveRecord();
  }
  const std::int32_t players = state.Tournament().NumPlayersInTournament();
  Need(player.TourFindAvailableRecordInFile(1) >= 1);
  Try([&] { Need(player.TourIndexNumberofPlayersInIndex() == players); });
  for (const OptionalRound round : kSomeRounds) {
    for (const int i : {-1, 0, 1, 5, 200}) {
      Try([&] { player.TourIndex1stPlayerOnTeam(i, round); });
      Try([&] { player.TourIndexPlayerbyTeam(i, round); });
    }
  }
}

void WalkTeams(SharedState& state) {
  Team& team = state.Team1();
  team.OpenTeamFile(1);
  for (const int number : {0, 1, 2, 3, 12, 199, 200}) {
    if (!team.GetRecord(number)) continue;
    CallEach(team, &Team::TeamName, &Team::Sponsor, &Team::TeamNumber);
    CallEachWithRound(team, &Team::Flight, &Team::TeeTimeHHMMAMPM, &Team::TeeStartHole,
                      &Team::CourseNamePlayed);
    team.SaveRecord();
  }
}

void WalkLeagues(SharedState& state) {
  for (const ListedLeague& league : ListLeagues(state)) Need(LeagueBase(league.Item()).size() == 5);
  const auto batches = LoadScoreBatches(state, "00011");
  Need(batches && batches->selected < static_cast<int>(batches->list.size()));
}

// Calculates all results of the first entries and of the tournament.
void WalkScores(SharedState& state) {
  OpenTournament(state, 1);
  Player& player = state.Player();
  for (const int record : {1, 2, 3}) {
    Try([&] { player.GetRecord(record, true); });
    for (int round = 0; round <= 8; ++round) {
      Json object;
      Try([&] { AddResults(player, record == 2, round, object); });
      Need(object.dump(-1, ' ', false, Json::error_handler_t::replace).size() > 0);
    }
  }
  for (const int number : {1, 2}) {
    if (!state.Team1().GetRecord(number)) continue;
    for (int round = 0; round <= 8; ++round) {
      Json object;
      Try([&] { AddResults(state.Team1(), round, object); });
    }
    const ReportLayout layout;
    Try([&] {
      CustomStandings standings(state, layout);
      standings.AddTeam();
      Need(standings.WorkOut().size() == 1);
    });
  }
  Try([&] { state.Tournament().CalculateTotals(); });
  CallEachFromTo(state.Tournament(), 1, 21, &TournamentClass::ScoreTotalGross,
                 &TournamentClass::ScoreAverageNet);
}

void WalkCourses(SharedState& state) {
  CourseClass& course = state.Course();
  for (const int record : kRecords) {
    course.GetRecord(record);
    CallEach(course, &CourseClass::Name, &CourseClass::Phone, &CourseClass::YardsOrMeters);
    for (const int tee : {0, 1, 6, 7}) {
      for (const int hole : {0, 1, 10, 18, 19}) {
        Try([&] { course.HoleNumber(tee, hole); });
        Try([&] { course.HolePar(tee, hole); });
      }
    }
  }
  course.UpdateAllCourseLists();
  for (int i = 1; i <= course.Course18NumberofCourses(); ++i) course.Course18Name(i);
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
  WalkScores(state);
}

void WalkQuenby(SharedState& state) {
  state.StoreDataPath = state.CourseDataPath = state.QBDataPath;
  state.Course().OpenCourseFile();
  state.Player().OpenRosterFile();
  WalkProgram(state);
  WalkControl(state);
  WalkGolfers(state);
  WalkEntries(state);
  WalkTeams(state);
  WalkScores(state);
}

void WalkDefaults(SharedState& state) {
  state.Tournament().CreateBlankTournament(1);
  state.Tournament().SaveRecord();
  WalkQuenby(state);
}

struct FuzzedFile {
  const char* path;
  void (*walk)(SharedState&);
};

constexpr FuzzedFile kFiles[] = {
    {"kvdata/club18.kv5", WalkKelvane},   {"kvdata/club18.kvg", WalkKelvane},
    {"kvdata/club18.kvs", WalkKelvane},   {"kvsystem.fil", WalkKelvane},
    {"qbdata/qbmaster.q9d", WalkQuenby},  {"qbdata/qbroster.q9d", WalkQuenby},
    {"qbdata/qbgolfer.q9d", WalkQuenby},  {"qbdata/x0001.q9c", WalkQuenby},
    {"qbdata/x0001.q9g", WalkQuenby},     {"qbdata/x0001.q9t", WalkQuenby},
    {"qbdata/default.q9c", WalkDefaults}, {"qbdata/qbcrs.dat", WalkCourses},
    {"qbdata/18crsqb.inx", WalkCourses},  {"zddata/00011.zl8", WalkLeagues},
    {"zddata/00011.ze8", WalkLeagues},    {"zddata/00011.zp8", WalkLeagues},
    {"zddata/00011.zt8", WalkLeagues},
};

MemoryPlatform MadeUpClub() {
  auto platform = std::make_unique<MemoryPlatform>();
  MemoryPlatform& files = *platform;
  Application application(std::move(platform));
  application.Start(DateFromCivil({2024, 5, 13}), {});
  MakeDemoInstall(application.state());
  return files.Copy();
}

void Walk(const FuzzedFile& file, std::string_view bytes) {
  static const MemoryPlatform kClub = MadeUpClub();
  auto platform = std::make_unique<MemoryPlatform>(kClub.Copy());
  platform->Bytes(file.path) = bytes;
  Application application(std::move(platform));
  application.Start(DateFromCivil({2024, 5, 13}), {});
  SharedState& state = application.state();
  state.StoreDataPath = state.CourseDataPath = state.QBDataPath;
  if (file.walk == WalkCourses) state.Course().OpenCourseFile();
  file.walk(state);
  const auto layout = LayoutOfFile(std::string_view(file.path).substr(7));
  if (!layout) return;
  std::string record(bytes.substr(0, layout->length));
  record.resize(layout->length, '\0');
  ShowRecord(*layout, record);
}

}  // namespace
}  // namespace golf

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes(data + 1, data + size);
  golf::Walk(golf::kFiles[data[0] % std::size(golf::kFiles)], bytes);
  return 0;
}
