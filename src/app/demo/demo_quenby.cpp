#include "app/demo/demo_quenby.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "app/demo/demo_golfers.h"
#include "scoring/layouts/report_layout.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

constexpr std::int32_t kTournament = 1;
constexpr int kRoundsPlayed = 2;
constexpr int kTeamSize = 4;
constexpr std::int32_t kFirstGolfer = 10;     // lower records are never given to a golfer
constexpr std::size_t kMembersInQuenby = 10;  // the other members are still to be transferred
constexpr int kTeams = 3;
constexpr CivilTime kFirstRound{2024, 9, 14};

void MakeMaster(ProgramClass& program) {
  program.OpenMasterFile();
  program.SetActiveRoster(1);
  program.SetActiveTournament(kTournament);
  program.SetLastRosterViewLoaded("");
  program.SetLastTournamentViewLoaded("");
  for (int i = 1; i <= 10; ++i) {
    program.SetMiscTourTextFieldName(i, "Note " + std::to_string(i));
    program.SetMiscTextFieldName(i, "Text " + std::to_string(i));
  }
  for (int i = 1; i <= 5; ++i) {
    program.SetMiscDateFieldName(i, "Date " + std::to_string(i));
    program.SetMiscCurrFieldName(i, "Amount " + std::to_string(i));
  }
  program.SaveMasterRecord();
}

void MakeRosterList(ProgramClass& program) {
  program.OpenRosterListFile();
  int number = 0;
  for (int line = 2; line <= 3; ++line) program.SetClubAddress(line, "");
  for (const char* name : {"Larkfield Members", "Invitation Guests"}) {
    program.SetIsRosterActive(true);
    program.SetClubName(name);
    program.SetClubAddress(1, "1 Club House Lane");
    program.SetClubPhone("555-0100");
    program.SaveRosterRecord(++number);
  }
}

// Returns the golfers of Quenby, members first. Their records and their tournament entries have the
// same order.
std::vector<DemoGolfer> GolfersInQuenby() {
  const auto members = DemoMembers().first(kMembersInQuenby);
  const auto guests = DemoGuests();
  std::vector<DemoGolfer> golfers(members.begin(), members.end());
  golfers.insert(golfers.end(), guests.begin(), guests.end());
  return golfers;
}

bool IsGuest(const DemoGolfer& golfer) { return golfer.id >= DemoGuests().front().id; }

void MakeGolfers(TournamentPlayers& player) {
  player.OpenRosterFile();
  std::int32_t record = kFirstGolfer;
  for (const DemoGolfer& golfer : GolfersInQuenby()) {
    player.BlankPlayerRecord();
    player.SetIDNum(golfer.id);
    player.SetNameFirst(golfer.first);
    player.SetNameLast(golfer.last);
    player.Setsex(golfer.lady ? "F" : "M");
    player.SetFlight(std::string(1, golfer.flight));
    double group = 1;
    player.SetGroupTee(group);
    player.SetIndex(golfer.index);
    player.SetHandicap(golfer.handicap);
    player.SetRosters(1, IsGuest(golfer) || golfer.id % 5 == 0 ? 2 : 1);
    player.SaveRecord(record++, false);
  }
}

void MakeControl(TournamentControl& tournament) {
  tournament.CreateBlankTournament(kTournament);
  tournament.SetName("Autumn Medal");
  tournament.SetNumRounds(kRoundsPlayed);
  tournament.SetNumTeams(kTeams);
  tournament.SetHandicapMax(0, 36);
  tournament.SetHandicapMax(1, 40);
  tournament.SetShowTeamsonSheet(true);
  for (int round = 1; round <= kRoundsPlayed; ++round) {
    tournament.SetDateofRound(round, DateFromCivil(kFirstRound) + round - 1);
    tournament.SetCourseNumberPlayed(round, 3 - round);
    tournament.SetTeeNumberPlayed(0, 1, round, 2);
    tournament.SetTeeNumberPlayed(1, 1, round, 3);
  }
  tournament.SaveRecord();
}

void FillScores(TournamentPlayers& player, const DemoGolfer& golfer, int place, int round) {
  const int over = static_cast<int>(std::lround(golfer.handicap / 18));
  for (int hole = 1; hole <= kHoles; ++hole) {
    const int wobble = (place * 5 + hole * 3 + (round - 1) * (place + hole)) % 4 - 1;
    player.SetTourScoreGross(hole, round, std::max(2, 4 + over + wobble / 2));
  }
  player.SetTourPutts(round, 30 + place % 6);
}

void FillEntry(TournamentPlayers& player, const DemoGolfer& golfer, int place) {
  player.TourBlankPlayerRecord();
  player.SetTourRosterRecordPointer(kFirstGolfer + place);
  for (int round = 1; round <= kRoundsPlayed; ++round) {
    player.SetTourTeamOn(round, place / kTeamSize + 1);
    player.SetTourTeamPositionIn(round, place % kTeamSize + 1);
    player.SetTourIndex(round, golfer.index);
    player.SetTourGrossHandicap(round, golfer.handicap);
    player.SetTourFlight(round, std::string(1, golfer.flight));
    FillScores(player, golfer, place, round);
  }
}

void MakeEntries(TournamentPlayers& player) {
  player.TourOpenTournamentFile(kTournament);
  int place = 0;
  for (const DemoGolfer& golfer : GolfersInQuenby()) {
    FillEntry(player, golfer, place);
    player.SaveRecord(++place, true);
  }
}

void MakeLayout(SharedState& state, const std::string& name, const std::string& description,
                const std::string& selection, const PlaceCodes& codes) {
  ReportLayout layout;
  layout.ReportDescription = description;
  layout.BallSelection = selection;
  layout.HeaderText = {name, "(Tournament Name)", "(Date - <RoundDate>)"};
  layout.fonts[0].size = "16";
  for (auto& hole : layout.places) hole[0] = codes;
  WriteReportLayout(state.files, state.StoreDataPath + name + std::string(kLayoutExtension),
                    layout);
}

void MakeLayouts(SharedState& state) {
  MakeLayout(state, "Two best nets", "The two lowest net scores of each hole", "G",
             {"12345678", "NONE", "L12"});
  MakeLayout(state, "Gross and net", "One gross and one net ball of two golfers", "B",
             {"12345678", "L1", "L1"});
}

}  // namespace

void MakeDemoQuenby(SharedState& state) {
  state.StoreDataPath = state.QBDataPath;
  MakeMaster(state.Program());
  MakeRosterList(state.Program());
  MakeGolfers(state.Player());
  MakeControl(state.Tournament());
  MakeEntries(state.Player());
  MakeLayouts(state);
  state.InitSharedObjects();
}

}  // namespace golf
