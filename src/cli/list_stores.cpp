// Lists Kelvane's rosters and Quenby's rosters and tournaments.

#include <map>

#include "cli/list_command.h"
#include "cli/plain_text.h"
#include "core/number_text.h"
#include "core/text.h"
#include "outlets/results/tournament_files.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

std::string WithoutExtension(const std::string& name) { return name.substr(0, name.rfind('.')); }

int CountKelvaneGolfers(SharedState& state) {
  auto& golfer = state.Kelvane().golfer;
  const std::int32_t places = KVGolferPlaces(state);
  int count = 0;
  for (std::int32_t place = 1; place <= places; ++place) {
    state.files.Read(kKelvaneGolferFile, place, golfer);
    if (golfer.Get<"Status">() >= 1) ++count;
  }
  return count;
}

// Returns the number of golfers of each roster, by the roster's number. A golfer counts on each of
// his rosters.
std::map<int, int> CountQuenbyGolfers(TournamentPlayers& player) {
  std::map<int, int> counts;
  player.OpenRosterFile();
  const std::int32_t length = player.RosterFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    player.GetRecord(record, false);
    if (!player.PlayerExists()) continue;
    for (int slot = 1; slot <= 3; ++slot) ++counts[player.Rosters(slot)];
  }
  return counts;
}

// Adds a tournament. Its name is empty if its control file has no record.
void AddTournament(SharedState& state, std::int32_t number, ListWriter& out) {
  const auto control = state.files.gate().Open(
      state.QBDataPath + TournamentFileName(number, ".Q9C"), FileAccess::kReadOnly);
  const bool holds_record = control->Length() > 0;
  state.InitSharedObjects();  // otherwise an empty control file would show the previous record
  TournamentControl& tournament = state.Tournament();
  state.Player().OpenRosterFile();
  tournament.OpenTournamentControlFile(number);
  tournament.GetRecord();
  state.Player().TourOpenTournamentFile(number);
  const std::int32_t players = tournament.NumPlayersInTournament();
  const std::string date = holds_record ? tournament.DateofRound(1) : "";
  const int rounds = tournament.RoundCount();
  const std::string name = holds_record ? tournament.Name() : "";
  out.Add({{"number", number},
           {"name", JsonText(name)},
           {"date", JsonText(date)},
           {"rounds", rounds},
           {"players", players}},
          {std::to_string(number), PlainCell(name), PlainCell(date), std::to_string(rounds),
           std::to_string(players)});
}

}  // namespace

void ListRosters(SharedState& state, const ListRequest&, ListWriter& out) {
  out.SetHeadings({"Roster", "Holes", "Golfers"});
  for (const std::string& file : state.files.FilesLike(state.KVDataPath, "*.KV5")) {
    const std::string name = UpperCase(WithoutExtension(file));
    const std::string base = state.KVDataPath + name;
    state.files.Open(kKelvaneHeaderFile, base + ".kv5", KelvaneHeaderLayout::kLength);
    state.files.Open(kKelvaneGolferFile, base + ".kvg", KelvaneGolferLayout::kLength);
    state.files.Read(kKelvaneHeaderFile, 1, state.Kelvane().header);
    const int holes = state.Kelvane().header.Get<"Holes">();
    const int golfers = CountKelvaneGolfers(state);
    out.Add({{"name", JsonText(name)}, {"holes", holes}, {"golfers", golfers}},
            {PlainCell(name), std::to_string(holes), std::to_string(golfers)});
  }
}

void ListQuenbyRosters(SharedState& state, const ListRequest&, ListWriter& out) {
  state.StoreDataPath = state.QBDataPath;
  out.SetHeadings({"No.", "Roster", "Golfers"});
  const std::map<int, int> golfers = CountQuenbyGolfers(state.Player());
  ProgramClass& program = state.Program();
  program.OpenRosterListFile();
  const std::int32_t length = program.RosterListFileLength();
  for (std::int32_t number = 1; number <= length; ++number) {
    program.GetRosterRecord(number);
    if (!program.IsRosterActive()) continue;
    const auto counted = golfers.find(number);
    const int count = counted == golfers.end() ? 0 : counted->second;
    out.Add({{"number", number}, {"name", JsonText(program.ClubName())}, {"golfers", count}},
            {std::to_string(number), PlainCell(program.ClubName()), std::to_string(count)});
  }
}

void ListTournaments(SharedState& state, const ListRequest&, ListWriter& out) {
  out.SetHeadings({"No.", "Tournament", "Date", "Rounds", "Players"});
  for (const std::int32_t number : TournamentNumbers(state)) AddTournament(state, number, out);
}

}  // namespace golf
