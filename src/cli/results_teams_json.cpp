#include "cli/results_json.h"
#include "cli/results_teams.h"

namespace golf {
namespace {

constexpr double kCurrencyUnit = 10000;
constexpr int kMostBalls = 4;

using TextMember = std::string (TeamClass::*)(OptionalRound);
using BallsMember = std::string (TeamClass::*)(int, int, OptionalRound);

constexpr Named<TextMember> kTexts[] = {
    {"Handicap", &TeamClass::Handicap},
    {"Quota", &TeamClass::Quota},
    {"GrossTotalTiebreakUSGA", &TeamClass::GrossTotalTiebreakUSGA},
    {"NetTotalTiebreakUSGA", &TeamClass::NetTotalTiebreakUSGA},
    {"GrossTotalTiebreakHandicapHole", &TeamClass::GrossTotalTiebreakHandicapHole},
    {"NetTotalTiebreakHandicapHole", &TeamClass::NetTotalTiebreakHandicapHole},
    {"GrossTotalTiebreak1to18", &TeamClass::GrossTotalTiebreak1to18},
    {"NetTotalTiebreak1to18", &TeamClass::NetTotalTiebreak1to18},
    {"GrossTotalTiebreak18to1", &TeamClass::GrossTotalTiebreak18to1},
    {"NetTotalTiebreak18to1", &TeamClass::NetTotalTiebreak18to1},
    {"NetScrambleTiebreakUSGA", &TeamClass::NetScrambleTiebreakUSGA},
    {"NetScrambleTiebreakHandicapHole", &TeamClass::NetScrambleTiebreakHandicapHole},
    {"NetScrambleTiebreak1to18", &TeamClass::NetScrambleTiebreak1to18},
    {"NetScrambleTiebreak18to1", &TeamClass::NetScrambleTiebreak18to1},
};

// Lists the members that apply to the active round or to all rounds up to it.
constexpr Named<std::string (TeamClass::*)()> kWithoutRound[] = {
    {"GrossScrambleTiebreakUSGA", &TeamClass::GrossScrambleTiebreakUSGA},
    {"GrossScrambleTiebreak1to18", &TeamClass::GrossScrambleTiebreak1to18},
    {"GrossScrambleTiebreak18to1", &TeamClass::GrossScrambleTiebreak18to1},
    {"TotalGross", &TeamClass::TotalGross},
    {"TotalNet", &TeamClass::TotalNet},
    {"TotalNetScramble", &TeamClass::TotalNetScramble},
};

constexpr Named<BallsMember> kBestBalls[] = {
    {"BestBallGross", &TeamClass::BestBallGross},
    {"BestBallNet", &TeamClass::BestBallNet},
    {"BestBallPointsGross", &TeamClass::BestBallPointsGross},
    {"BestBallPointsNet", &TeamClass::BestBallPointsNet},
};

constexpr Named<BallsMember> kBestTotals[] = {
    {"BestTotalXofYGross", &TeamClass::BestTotalXofYGross},
    {"BestTotalXofYNet", &TeamClass::BestTotalXofYNet},
};

// Returns an object with a key for each number of balls. Each value is an array for the indexes
// `first` to 21.
Json ByBalls(TeamClass& team, BallsMember member, int first, int round) {
  Json object = Json::object();
  for (int balls = 1; balls <= kMostBalls; ++balls) {
    object[std::to_string(balls)] = Array(kWholeRound + 1 - first, [&](int i) {
      return (team.*member)(balls, first - 1 + i, round);
    });
  }
  return object;
}

void AddRecord(TeamClass& team, int round, Json& object) {
  object["TeamName"] = JsonText(team.TeamName());
  object["Sponsor"] = JsonText(team.Sponsor());
  object["Flight"] = JsonText(team.Flight(round));
  object["TeeTimeValue"] = JsonSingle(team.TeeTimeValue(round));
  object["TeeTimeHHMMAMPM"] = JsonText(team.TeeTimeHHMMAMPM(round));
  object["TeeStartHole"] = JsonText(team.TeeStartHole(round));
  object["Cart1"] = JsonText(team.Cart1(round));
  object["Cart2"] = JsonText(team.Cart2(round));
  object["CourseNumberPlayed"] = team.CourseNumberPlayed(round);
  object["CourseNamePlayed"] = JsonText(team.CourseNamePlayed(round));
}

void AddByHole(TeamClass& team, int round, Json& object) {
  const auto add = [&](const char* name, auto member) {
    object[name] = Array(kWholeRound, [&](int hole) { return (team.*member)(hole, round); });
  };
  add("ScoreGross", &TeamClass::ScoreGross);
  Json& net = object["ScoreNet"] = Json::array();
  for (int hole = 1; hole <= kWholeRound; ++hole) {
    const double score = team.ScoreNet(hole, round);
    const std::int32_t whole = team.Results(round).net[hole];
    net.push_back(score == whole ? Json(whole) : JsonSingle(static_cast<float>(score)));
  }
  add("PointsGross", &TeamClass::PointsGross);
  add("PointsNet", &TeamClass::PointsNet);
  add("ScrambleGross", &TeamClass::ScrambleGross);
  add("ScrambleNet", &TeamClass::ScrambleNet);
  add("BestBallGrossNet", &TeamClass::BestBallGrossNet);
}

}  // namespace

void AddResults(TeamClass& team, int round, Json& object) {
  AddRecord(team, round, object);
  AddByHole(team, round, object);
  object["Putts"] = team.Putts(round);
  object["Greens"] = team.Greens(round);
  object["Fairways"] = team.Fairways(round);
  object["Earnings"] = static_cast<double>(team.Earnings(round)) / kCurrencyUnit;
  object["QuotaResults"] = Array(3, [&](int part) { return team.QuotaResults(part, round); });
  object["NameofPlayersOnTeam"] =
      Array(9, [&](int i) { return team.NameofPlayersOnTeam(i - 1, round); });
  for (const auto& [name, member] : kBestBalls) object[name] = ByBalls(team, member, 1, round);
  for (const auto& [name, member] : kBestTotals) {
    object[name] = ByBalls(team, member, kFirstNine, round);
  }
  for (const auto& [name, member] : kTexts) object[name] = AsJson((team.*member)(round));
  for (const auto& [name, member] : kWithoutRound) object[name] = AsJson((team.*member)());
}

}  // namespace golf
