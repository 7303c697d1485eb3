#pragma once

#include "outlets/results/result_values.h"
#include "scoring/player/player_class.h"

namespace golf {

namespace detail {

template <class Visitor>
void VisitPlayerHoles(PlayerClass* player, int round, Visitor& visitor) {
  const auto visit = [&](const char* name, int count, auto member) {
    visitor.Array(name, count, [&](int i) -> ResultValue { return (player->*member)(i, round); });
  };
  const auto visit_differences = [&](const char* name, auto member) {
    visitor.Arrays(name, -kMostDifference, kMostDifference, kWholeRound,
                   [&](int difference, int hole) -> ResultValue {
                     return (player->*member)(difference, hole, round);
                   });
  };
  // The next three values are those of the round that was calculated last, so they must be read
  // before any total.
  visit("TourHoleStrokes", kHoles, &PlayerClass::TourHoleStrokes);
  visit("TourHolePar", kHoles, &PlayerClass::TourHolePar);
  visit("TourHoleAdjusted", kHoles, &PlayerClass::TourHoleAdjusted);
  visitor.Array("TourScoreGross", kWholeRound, [&](int hole) {
    return std::visit([](const auto& score) -> ResultValue { return score; },
                      player->TourScoreGross(hole, round));
  });
  visit("TourScoreGrossValue", kWholeRound, &PlayerClass::TourScoreGrossValue);
  visit("TourScoreNet", kWholeRound, &PlayerClass::TourScoreNet);
  visit("TourPointsGross", kWholeRound, &PlayerClass::TourPointsGross);
  visit("TourPointsNet", kWholeRound, &PlayerClass::TourPointsNet);
  visit("TourPointsQuotaResults", kRoundParts, &PlayerClass::TourPointsQuotaResults);
  visit_differences("TourPBEStatsGross", &PlayerClass::TourPBEStatsGross);
  visit_differences("TourPBEStatsNet", &PlayerClass::TourPBEStatsNet);
}

template <class Visitor>
void VisitPlayerRound(PlayerClass* player, int round, Visitor& visitor) {
  const auto visit = [&](const char* name, auto member) {
    visitor.Value(name, [&]() -> ResultValue { return (player->*member)(round); });
  };
  visit("TourCoursePlayedNumber", &PlayerClass::TourCoursePlayedNumber);
  visit("TourCourseTeePlayedNumber", &PlayerClass::TourCourseTeePlayedNumber);
  visit("TourHandicap", &PlayerClass::TourHandicap);
  visit("TourHandicapValue", &PlayerClass::TourHandicapValue);
  visit("TourHandicapWholeNumber", &PlayerClass::TourHandicapWholeNumber);
  visit("TourScoreAdjusted", &PlayerClass::TourScoreAdjusted);
  visit("TourCoursePlayedName", &PlayerClass::TourCoursePlayedName);
  visit("TourCourseTeePlayedAbrv", &PlayerClass::TourCourseTeePlayedAbrv);
  visit("TourCourseTeePlayedName", &PlayerClass::TourCourseTeePlayedName);
  visit("TourCourseTeePlayedRating", &PlayerClass::TourCourseTeePlayedRating);
  visit("TourCourseTeePlayedSlope", &PlayerClass::TourCourseTeePlayedSlope);
  visit("TourTeeTime", &PlayerClass::TourTeeTime);
  visit("TourTeeStartHole", &PlayerClass::TourTeeStartHole);
  visit("TourGrossTotalTiebreakUSGA", &PlayerClass::TourGrossTotalTiebreakUSGA);
  visit("TourNetTotalTiebreakUSGA", &PlayerClass::TourNetTotalTiebreakUSGA);
  visit("TourGrossTotalTiebreakHandicapHole", &PlayerClass::TourGrossTotalTiebreakHandicapHole);
  visit("TourNetTotalTiebreakHandicapHole", &PlayerClass::TourNetTotalTiebreakHandicapHole);
  visit("TourGrossTotalTiebreak1to18", &PlayerClass::TourGrossTotalTiebreak1to18);
  visit("TourNetTotalTiebreak1to18", &PlayerClass::TourNetTotalTiebreak1to18);
  visit("TourGrossTotalTiebreak18to1", &PlayerClass::TourGrossTotalTiebreak18to1);
  visit("TourNetTotalTiebreak18to1", &PlayerClass::TourNetTotalTiebreak18to1);
}

template <class Visitor>
void VisitPlayerTotals(PlayerClass* player, int round, Visitor& visitor) {
  const auto visit = [&](const char* name, auto member) {
    visitor.Value(name, [&]() -> ResultValue { return (player->*member)(1, round); });
  };
  visit("TourTotalGross", &PlayerClass::TourTotalGross);
  visit("TourTotalNet", &PlayerClass::TourTotalNet);
  visit("TourTotalGrossPoints", &PlayerClass::TourTotalGrossPoints);
  visit("TourTotalNetPoints", &PlayerClass::TourTotalNetPoints);
  visit("TourTotalQuotaResults", &PlayerClass::TourTotalQuotaResults);
  visit("TourTotalPutts", &PlayerClass::TourTotalPutts);
  visit("TourTotalFairways", &PlayerClass::TourTotalFairways);
  visit("TourTotalGreens", &PlayerClass::TourTotalGreens);
  visit("TourTotalEarnings", &PlayerClass::TourTotalEarnings);
}

}  // namespace detail

// Passes every calculated value of the player's current entry for a round, 1 to 7, to the visitor.
// The totals are those of round 1 to this round. Gross handicaps and the quota have decimals if
// `decimals` is true. Raises the errors of PlayerClass. `player` may be null if the visitor calls
// no value, but only collects names.
template <class Visitor>
void VisitPlayerValues(PlayerClass* player, bool decimals, int round, Visitor& visitor) {
  detail::VisitPlayerHoles(player, round, visitor);
  visitor.Value("TourGrossHandicap",
                [&]() -> ResultValue { return player->TourGrossHandicap(decimals, round); });
  visitor.Value("TourGrossHandicapValue",
                [&]() -> ResultValue { return player->TourGrossHandicapValue(decimals, round); });
  visitor.Value("TourQuota", [&]() -> ResultValue { return player->TourQuota(decimals, round); });
  detail::VisitPlayerRound(player, round, visitor);
  detail::VisitPlayerTotals(player, round, visitor);
}

}  // namespace golf
