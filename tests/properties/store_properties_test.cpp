// These tests check properties of every possible record, with random bytes.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

#include "app/application.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/quenby/program_class.h"
#include "support/failing_platform.h"
#include "support/memory_platform.h"

namespace golf {
namespace {

std::string AnyBytes(std::size_t size) {
  std::mt19937 random(*rc::gen::arbitrary<unsigned>());
  std::string bytes(size, '\0');
  std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
  return bytes;
}

// Holds a setter of any signature and the name of the field that it sets. The parameters of the
// setter are the indexes and then the value.
template <class Object>
struct Setter {
  template <class... Arguments>
  Setter(std::string_view name, void (Object::*setter)(Arguments...))
      : field(name), call([setter](Object& object, const std::vector<int>& indexes, int value) {
          std::size_t next = 0;
          // Braces evaluate the arguments from left to right.
          std::tuple<Arguments...> arguments{Argument<Arguments>(indexes, next, value)...};
          std::apply([&](auto... each) { (object.*setter)(each...); }, arguments);
        }) {}

  template <class Type>
  static Type Argument(const std::vector<int>& indexes, std::size_t& next, int value) {
    if constexpr (std::is_same_v<Type, int> || std::is_same_v<Type, OptionalRound>) {
      return indexes.at(next++);
    } else if constexpr (std::is_same_v<Type, std::string_view>) {
      return value % 2 == 0 ? "Y" : "a text that is longer than most of the fields are";
    } else {
      return static_cast<Type>(value);
    }
  }

  std::string_view field;
  std::function<void(Object&, const std::vector<int>&, int)> call;
};

class StoreProperties : public testing::Test {
 protected:
  StoreProperties() {
    player.OpenRosterFile();
    player.TourOpenTournamentFile(1);
    tournament.OpenTournamentControlFile(1);
    team.OpenTeamFile(1);
    program.OpenMasterFile();
  }

  // Checks that a random record is unchanged after it was read and saved. Then checks that each
  // setter changes its own element, whose indexes are random, and no other bytes.
  template <class Layout, class Object>
  void TouchesItsElementOnly(Object& object, const std::vector<Setter<Object>>& setters,
                             std::string file, const std::function<void()>& load,
                             const std::function<void()>& save) {
    std::string& bytes = memory.Bytes("qbdata/" + file);
    bytes = AnyBytes(Layout::kLength);
    state.files.Synchronize();
    if (file == "X0001.Q9C") bytes.replace(966, 4, "2005");  // reading changes other versions
    const std::string before = bytes;
    for (const auto& setter : setters) {
      const auto field = std::find_if(Layout::kFields.begin(), Layout::kFields.end(),
                                      [&](const Field& each) { return each.name == setter.field; });
      RC_ASSERT(field != Layout::kFields.end());
      std::vector<int> indexes;
      for (std::size_t i = 0; i < field->rank; ++i) {
        const Dimension& dimension = field->dimensions[i];
        indexes.push_back(*rc::gen::inRange(dimension.base, dimension.base + dimension.count));
      }
      load();
      save();
      RC_ASSERT((bytes == before));
      RC_LOG() << "Set" << setter.field;
      bool changes = false;
      for (const int value : {*rc::gen::inRange(-32768, 32768), 0, 1}) {
        setter.call(object, indexes, value);
        save();
        const std::size_t at = field->OffsetOf(indexes);
        changes = changes || bytes != before;
        bytes.replace(at, field->width, before, at, field->width);
        RC_ASSERT((bytes == before));
      }
      RC_ASSERT(changes);
      state.files.Synchronize();
    }
  }

  SharedState& Started() {
    memory.CreateFolder(TestPass(), "/qbdata");
    application.Start(DateFromCivil({2024, 5, 13}), {});
    application.state().StoreDataPath = application.state().QBDataPath;
    return application.state();
  }

  MemoryPlatform& memory = *new MemoryPlatform;  // owned by the application
  Application application{std::unique_ptr<Platform>(&memory)};
  SharedState& state = Started();
  ProgramClass& program = state.Program();
  TournamentControl& tournament = state.Tournament();
  TournamentPlayers& player = state.Player();
  TeamRecords& team = state.Team1();
};

template <class... Setters>
auto All(const Setters&... setters) {
  return std::vector{setters...};
}

#define SET(Field) Setter<Object>(#Field, &Object::Set##Field)

RC_GTEST_FIXTURE_PROP(StoreProperties, SettersOfAGolfer, ()) {
  using Object = RosterPlayers;
  static const auto kSetters =
      All(SET(PrintPlayer), SET(Cart), SET(IDNum), SET(NameFirst), SET(NameLast),
          Setter<Object>("Sex", &Object::Setsex), SET(AddressHomeLine), SET(AddressWorkLine),
          SET(PhoneHome), SET(PhoneWork), SET(PhoneFax), SET(Email), SET(GroupText),
          SET(ReportFlags), SET(MiscText), SET(DueComment), SET(Comments), SET(MiscInTourText),
          SET(Flight), SET(PreferredTime), SET(Index), SET(Handicap), SET(MiscDate), SET(DueDate),
          SET(MiscCurrency), SET(DueAmount));
  TouchesItsElementOnly<PlayerLayout, Object>(
      player, kSetters, "QBGOLFER.Q9D", [&] { player.GetRecord(1, false); },
      [&] { player.SaveRecord(); });
}

RC_GTEST_FIXTURE_PROP(StoreProperties, SettersOfAnEntry, ()) {
  using Object = TournamentPlayers;
  static const auto kSetters =
      All(SET(TourRosterRecordPointer), SET(TourTeamOn), SET(TourTeamPositionIn),
          SET(TourTeamOnInTrial), Setter<Object>("TourFlags", &Object::SetTourLockFlag),
          Setter<Object>("TourFlags", &Object::SetTourScoreTransferredtoKV), SET(TourFlight),
          SET(TourGroupTee), SET(TourIndex), SET(TourGrossHandicap), SET(TourQuota),
          SET(TourReportFlags), SET(TourCart), SET(TourPreferredTime), SET(TourGroupText),
          SET(TourMiscInTourText), SET(TourPutts), SET(TourFairways), SET(TourGreens),
          SET(TourEarnings), SET(TourScoreGross));
  TouchesItsElementOnly<TournamentPlayerLayout, Object>(
      player, kSetters, "X0001.Q9G", [&] { player.GetRecord(1, true); },
      [&] { player.SaveRecord(1, true); });
}

RC_GTEST_FIXTURE_PROP(StoreProperties, SettersOfATournament, ()) {
  using Object = TournamentControl;
  static const auto kSetters =
      All(SET(Name), SET(NumRounds), SET(NumTeams), SET(NumFlights), SET(NumTeamFlights),
          SET(NumTeesMenPlay), SET(NumTeesLadiesPlay), SET(NumPlayersPerTeam), SET(RoundType),
          SET(TeamHandicapOption), SET(PointQuotaOption), SET(PositionOption),
          SET(PlayerFlightsDeterminedBy), SET(TeamFlightsDeterminedBy), SET(IndextoHandicap),
          SET(HandicapDecimalPlaces), SET(ScoreEntryTotal), SET(RCGAESC), SET(ShowTeamsonSheet),
          SET(TeamHandicapPercent), SET(PointQuotaFromHandicap), SET(PointsGiven), SET(DateofRound),
          SET(CourseNumberPlayed), SET(TeeNumberPlayed), SET(TeeHandicapPercent),
          SET(TeeHandicapAdjustment), SET(ActiveRound), SET(ActiveTrial), SET(NumTrials),
          SET(TeeTimeStartOption), SET(TeeTimeIncEveryXTeams), SET(TeeTimeInc), SET(PeoriaHole),
          SET(SheetColumnSorted), SET(SheetColumnSortedHow), SET(TeamSheetColumnSorted),
          SET(TeamSheetColumnSortedHow), SET(HandicapMax), SET(TeamNamesMat),
          SET(PlayerFlightRange), SET(TeamFlightRange));
  TouchesItsElementOnly<TournamentLayout, Object>(
      tournament, kSetters, "X0001.Q9C", [&] { tournament.GetRecord(); },
      [&] { tournament.SaveRecord(); });
}

RC_GTEST_FIXTURE_PROP(StoreProperties, SettersOfATeam, ()) {
  using Object = TeamRecords;
  static const auto kSetters =
      All(SET(TeamName), SET(Sponsor), SET(Flight), SET(TeeTimeValue), SET(TeeStartHole),
          SET(Cart1), SET(Cart2), SET(CourseNumberPlayed));
  TouchesItsElementOnly<TeamLayout, Object>(
      team, kSetters, "X0001.Q9T", [&] { team.GetRecord(1); }, [&] { team.SaveRecord(); });
}

RC_GTEST_FIXTURE_PROP(StoreProperties, SettersOfTheMaster, ()) {
  using Object = ProgramClass;
  static const auto kSetters =
      All(SET(ActiveRoster), SET(LastRosterViewLoaded), SET(RosterColumnSorted),
          SET(RosterColumnSortedHow), SET(ActiveTournament), SET(LastTournamentViewLoaded),
          SET(MiscTourTextFieldName), SET(MiscTextFieldName), SET(MiscDateFieldName),
          SET(MiscCurrFieldName));
  TouchesItsElementOnly<MasterLayout, Object>(
      program, kSetters, "QBMASTER.Q9D", [&] { program.GetMasterRecord(); },
      [&] { program.SaveMasterRecord(); });
}

}  // namespace
}  // namespace golf
