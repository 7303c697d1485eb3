#include "app/demo/demo_zandel.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "app/demo/demo_golfers.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

using Golfers = std::vector<DemoGolfer>;

constexpr int kTeamSize = 2;
constexpr int kEvents = 12;
constexpr int kDaysBetweenEvents = 7;
constexpr int kGuestTeam = 1;  // the team that has substitutes

// These golfers play in the leagues but are not in Kelvane.
constexpr DemoGolfer kGuests[] = {{0, "Rosa", "Tiller", true, 17.0f, 19, 'C'},
                                  {0, "Max", "Underhill", false, 10.3f, 11, 'B'}};

struct DemoLeague {
  std::string league;
  std::string name;
  int holes;
  int course;  // its number in Zandel's library
  int par;
  int mens_tee;
  int ladies_tee;
  CivilTime first_event;
  int current_event;
  bool current_begun;              // the first team has played the current event
  int teams;                       // places for teams in a division, two golfers each
  std::vector<Golfers> divisions;  // the first is division 1
  Golfers substitutes;
};

Golfers Members(std::size_t first, std::size_t count) {
  const auto members = DemoMembers().subspan(first, count);
  return {members.begin(), members.end()};
}

Golfers NineHolersAndGuest() {
  Golfers golfers(DemoNineHolers().begin(), DemoNineHolers().end());
  golfers.push_back(kGuests[0]);
  return golfers;
}

std::vector<DemoLeague> Leagues() {
  return {{"0001",
           "Thursday Twilight Nine",
           9,
           2,
           36,
           1,
           2,
           {2024, 5, 2},
           6,
           false,
           3,
           {NineHolersAndGuest(), Members(0, 6)},
           Members(8, 2)},
          {"0002",
           "Saturday Eighteen",
           18,
           1,
           73,
           2,
           3,
           {2024, 5, 4},
           4,
           true,
           5,
           {Members(4, 8)},
           {kGuests[1], Members(0, 1)[0], Members(11, 1)[0]}}};
}

template <class Layout>
Record<Layout> BlankRecord() {
  Record<Layout> record;
  for (const Field& field : Layout::kFields) {
    if (!field.name.empty()) FillField(field, record.MutableBytes(), 0);
  }
  return record;
}

float HandicapIn(const DemoLeague& league, const DemoGolfer& golfer) {
  const bool of_nine = golfer.id > 200;
  if ((league.holes == 9) == of_nine) return golfer.handicap;
  return of_nine ? golfer.handicap * 2 : golfer.handicap / 2;
}

void FillName(Record<LeaguePlayerLayout>& player, const DemoGolfer& golfer) {
  player.Set<"GolferID">(golfer.id);
  player.Set<"FirstName">(std::string(golfer.first));
  player.Set<"LastName">(std::string(golfer.last));
  player.Set<"AddressLine1">(std::to_string(golfer.id % 90 + 1) + " Fairway Road");
  player.Set<"AddressLine2">("Larkfield, OH");
  player.Set<"Sex">(golfer.lady ? 1 : 0);
  player.Set<"PhoneHome">("555-0" + std::to_string(golfer.id));
}

void AddScore(Record<LeaguePlayerLayout>& player, const DemoLeague& league, int event, int team) {
  const float handicap = player.Get<"EventHandicap">(event);
  const int wobble = (player.Get<"GolferID">() * 13 + event * 7) % 9 - 3;
  const int score = league.par + static_cast<int>(std::lround(handicap)) + wobble;
  player.Set<"EventTeam">({event}, static_cast<std::int16_t>(team));
  player.Set<"EventScore">({event}, static_cast<std::int16_t>(score));
  // Stroke control lowers a high score before it is posted.
  player.Set<"EventPostScore">({event}, static_cast<std::int16_t>(score - std::max(0, wobble - 3)));
}

void AddNonEventScore(Record<LeaguePlayerLayout>& player, const DemoLeague& league, int slot,
                      int before) {
  const auto score = std::lround(player.Get<"EventHandicap">(1)) + league.par + slot;
  player.Set<"NonEventBefore">({slot}, static_cast<std::uint8_t>(before));
  player.Set<"NonEventScore">({slot}, static_cast<std::int16_t>(score));
  player.Set<"NonEventRating10">({slot}, league.holes == 9 ? 351 : 712);
  player.Set<"NonEventSlope">({slot}, league.holes == 9 ? 118 : 124);
}

Record<LeaguePlayerLayout> PlayerOf(const DemoLeague& league, const DemoGolfer& golfer, int team) {
  auto player = BlankRecord<LeaguePlayerLayout>();
  FillName(player, golfer);
  for (int event = 1; event <= league.current_event; ++event) {
    player.Set<"EventHandicap">({event}, HandicapIn(league, golfer));
    const bool played = event < league.current_event || (league.current_begun && team == 1);
    player.Set<"EventTeam">({event}, static_cast<std::int16_t>(team));
    if (played) AddScore(player, league, event, team);
  }
  if (golfer.id % 3 == 0) AddNonEventScore(player, league, 1, 1);  // practice
  if (golfer.id % 4 == 0) AddNonEventScore(player, league, 2, 3);
  return player;
}

Record<LeaguePlayerLayout> SubstituteOf(const DemoLeague& league, const DemoGolfer& golfer,
                                        int event) {
  auto player = BlankRecord<LeaguePlayerLayout>();
  FillName(player, golfer);
  for (int e = 1; e <= league.current_event; ++e) {
    player.Set<"EventHandicap">({e}, HandicapIn(league, golfer));
  }
  AddScore(player, league, event, kGuestTeam);
  return player;
}

void WriteControl(FileTable& files, const DemoLeague& league) {
  auto control = BlankRecord<LeagueControlLayout>();
  control.Set<"LeagueName">(league.name);
  control.Set<"LastSubRecord">(
      static_cast<std::int16_t>(kFirstSubstitute + league.substitutes.size() - 1));
  control.Set<"PlayerFactor1">(static_cast<std::int16_t>(league.teams));
  control.Set<"PlayerFactor2">(kTeamSize);
  control.Set<"EventCount">(kEvents);
  control.Set<"CurrentEvent">(static_cast<std::int16_t>(league.current_event));
  control.Set<"LeagueHoles">(static_cast<std::int16_t>(league.holes));
  files.Write(kLeagueControlFile, 1, control);
}

void WritePlayers(FileTable& files, const DemoLeague& league, const Golfers& golfers) {
  for (int place = 0; place < league.teams * kTeamSize; ++place) {
    const auto i = static_cast<std::size_t>(place);
    files.Write(kLeaguePlayerFile, place + 1,
                i < golfers.size() ? PlayerOf(league, golfers[i], place / kTeamSize + 1)
                                   : BlankRecord<LeaguePlayerLayout>());
  }
}

void WriteSubstitutes(FileTable& files, const DemoLeague& league) {
  int record = 1;
  for (; record < kFirstSubstitute; ++record) {
    files.Write(kLeagueSubstituteFile, record, BlankRecord<LeaguePlayerLayout>());
  }
  int event = 1;
  for (const DemoGolfer& golfer : league.substitutes) {
    files.Write(kLeagueSubstituteFile, record++, SubstituteOf(league, golfer, event++));
  }
}

void WriteTeams(FileTable& files, const DemoLeague& league) {
  auto team = BlankRecord<LeagueTeamLayout>();
  for (int event = 1; event <= kEvents; ++event) {
    team.Set<"EventCourse">({event}, static_cast<std::int16_t>(league.course));
    team.Set<"EventTee">({event, 1}, static_cast<std::uint8_t>(league.mens_tee));
    team.Set<"EventTee">({event, 2}, static_cast<std::uint8_t>(league.ladies_tee));
  }
  for (int number = 1; number <= league.teams; ++number) {
    files.Write(kLeagueTeamFile, number, team);
  }
}

void WriteEvents(FileTable& files, const DemoLeague& league) {
  for (int number = 1; number <= kEvents; ++number) {
    auto event = BlankRecord<LeagueEventLayout>();
    const DateValue date = DateFromCivil(league.first_event) + (number - 1) * kDaysBetweenEvents;
    event.Set<"EventDate">(static_cast<float>(date));
    files.Write(kLeagueEventFile, number, event);
  }
}

void MakeLeague(SharedState& state, const DemoLeague& league) {
  int division = 0;
  for (const Golfers& golfers : league.divisions) {
    OpenLeague(state, league.league + std::to_string(++division));
    WriteControl(state.files, league);
    WritePlayers(state.files, league, golfers);
    if (division == 1) WriteSubstitutes(state.files, league);
    WriteTeams(state.files, league);
    WriteEvents(state.files, league);
  }
  CloseLeague(state);
}

}  // namespace

void MakeDemoLeagues(SharedState& state) {
  for (const DemoLeague& league : Leagues()) MakeLeague(state, league);
}

}  // namespace golf
