#pragma once

#include "outlets/field_values.h"
#include "outlets/results/result_values.h"
#include "scoring/team/team_class.h"

namespace golf {

namespace detail {

template <class Visitor>
void VisitTeamRecord(TeamClass* team, int round, Visitor& visitor) {
  visitor.Value("TeamName", [&]() -> ResultValue { return team->TeamName(); });
  visitor.Value("Sponsor", [&]() -> ResultValue { return team->Sponsor(); });
  visitor.Value("Flight", [&]() -> ResultValue { return team->Flight(round); });
  visitor.Value("TeeTimeValue", [&]() -> ResultValue { return team->TeeTimeValue(round); });
  visitor.Value("TeeTimeHHMMAMPM", [&]() -> ResultValue { return team->TeeTimeHHMMAMPM(round); });
  visitor.Value("TeeStartHole", [&]() -> ResultValue { return team->TeeStartHole(round); });
  visitor.Value("Cart1", [&]() -> ResultValue { return team->Cart1(round); });
  visitor.Value("Cart2", [&]() -> ResultValue { return team->Cart2(round); });
  visitor.Value("CourseNumberPlayed",
                [&]() -> ResultValue { return team->CourseNumberPlayed(round); });
  visitor.Value("CourseNamePlayed", [&]() -> ResultValue { return team->CourseNamePlayed(round); });
}

template <class Visitor>
void VisitTeamHoles(TeamClass* team, int round, Visitor& visitor) {
  const auto visit = [&](const char* name, auto member) {
    visitor.Array(name, kWholeRound,
                  [&](int hole) -> ResultValue { return (team->*member)(hole, round); });
  };
  visit("ScoreGross", &TeamClass::ScoreGross);
  visitor.Array("ScoreNet", kWholeRound, [&](int hole) -> ResultValue {
    const double score = team->ScoreNet(hole, round);
    const std::int32_t whole = team->Results(round).net[hole];
    if (score == whole) return whole;
    return static_cast<float>(score);
  });
  visit("PointsGross", &TeamClass::PointsGross);
  visit("PointsNet", &TeamClass::PointsNet);
  visit("ScrambleGross", &TeamClass::ScrambleGross);
  visit("ScrambleNet", &TeamClass::ScrambleNet);
  visit("BestBallGrossNet", &TeamClass::BestBallGrossNet);
}

template <class Visitor>
void VisitTeamSums(TeamClass* team, int round, Visitor& visitor) {
  visitor.Value("Putts", [&]() -> ResultValue { return team->Putts(round); });
  visitor.Value("Greens", [&]() -> ResultValue { return team->Greens(round); });
  visitor.Value("Fairways", [&]() -> ResultValue { return team->Fairways(round); });
  visitor.Value("Earnings", [&]() -> ResultValue {
    return static_cast<double>(team->Earnings(round)) / kCurrencyScale;
  });
  visitor.Array("QuotaResults", kRoundParts,
                [&](int part) -> ResultValue { return team->QuotaResults(part, round); });
  visitor.Array("NameofPlayersOnTeam", kTeamNames,
                [&](int i) -> ResultValue { return team->NameofPlayersOnTeam(i - 1, round); });
}

template <class Visitor>
void VisitTeamBalls(TeamClass* team, int round, Visitor& visitor) {
  const auto visit = [&](const char* name, int first_hole, auto member) {
    visitor.Arrays(name, 1, kMostBalls, kWholeRound + 1 - first_hole,
                   [&](int balls, int i) -> ResultValue {
                     return (team->*member)(balls, first_hole - 1 + i, round);
                   });
  };
  visit("BestBallGross", 1, &TeamClass::BestBallGross);
  visit("BestBallNet", 1, &TeamClass::BestBallNet);
  visit("BestBallPointsGross", 1, &TeamClass::BestBallPointsGross);
  visit("BestBallPointsNet", 1, &TeamClass::BestBallPointsNet);
  visit("BestTotalXofYGross", kFirstNine, &TeamClass::BestTotalXofYGross);
  visit("BestTotalXofYNet", kFirstNine, &TeamClass::BestTotalXofYNet);
}

template <class Visitor>
void VisitTeamTexts(TeamClass* team, int round, Visitor& visitor) {
  const auto visit = [&](const char* name, auto member) {
    visitor.Value(name, [&]() -> ResultValue { return (team->*member)(round); });
  };
  visit("Handicap", &TeamClass::Handicap);
  visit("Quota", &TeamClass::Quota);
  visit("GrossTotalTiebreakUSGA", &TeamClass::GrossTotalTiebreakUSGA);
  visit("NetTotalTiebreakUSGA", &TeamClass::NetTotalTiebreakUSGA);
  visit("GrossTotalTiebreakHandicapHole", &TeamClass::GrossTotalTiebreakHandicapHole);
  visit("NetTotalTiebreakHandicapHole", &TeamClass::NetTotalTiebreakHandicapHole);
  visit("GrossTotalTiebreak1to18", &TeamClass::GrossTotalTiebreak1to18);
  visit("NetTotalTiebreak1to18", &TeamClass::NetTotalTiebreak1to18);
  visit("GrossTotalTiebreak18to1", &TeamClass::GrossTotalTiebreak18to1);
  visit("NetTotalTiebreak18to1", &TeamClass::NetTotalTiebreak18to1);
  visit("NetScrambleTiebreakUSGA", &TeamClass::NetScrambleTiebreakUSGA);
  visit("NetScrambleTiebreakHandicapHole", &TeamClass::NetScrambleTiebreakHandicapHole);
  visit("NetScrambleTiebreak1to18", &TeamClass::NetScrambleTiebreak1to18);
  visit("NetScrambleTiebreak18to1", &TeamClass::NetScrambleTiebreak18to1);
}

// These values apply to the active round or to all rounds up to it.
template <class Visitor>
void VisitTeamActiveRound(TeamClass* team, Visitor& visitor) {
  visitor.Value("GrossScrambleTiebreakUSGA",
                [&]() -> ResultValue { return team->GrossScrambleTiebreakUSGA(); });
  visitor.Value("GrossScrambleTiebreak1to18",
                [&]() -> ResultValue { return team->GrossScrambleTiebreak1to18(); });
  visitor.Value("GrossScrambleTiebreak18to1",
                [&]() -> ResultValue { return team->GrossScrambleTiebreak18to1(); });
  visitor.Value("TotalGross", [&]() -> ResultValue { return team->TotalGross(); });
  visitor.Value("TotalNet", [&]() -> ResultValue { return team->TotalNet(); });
  visitor.Value("TotalNetScramble", [&]() -> ResultValue { return team->TotalNetScramble(); });
}

}  // namespace detail

// Passes every value of the current team for a round, 1 to 7, to the visitor. Some values apply to
// the active round instead, so the round should be the active one. Raises the errors of TeamClass.
// `team` may be null if the visitor calls no value, but only collects names.
template <class Visitor>
void VisitTeamValues(TeamClass* team, int round, Visitor& visitor) {
  detail::VisitTeamRecord(team, round, visitor);
  detail::VisitTeamHoles(team, round, visitor);
  detail::VisitTeamSums(team, round, visitor);
  detail::VisitTeamBalls(team, round, visitor);
  detail::VisitTeamTexts(team, round, visitor);
  detail::VisitTeamActiveRound(team, visitor);
}

}  // namespace golf
