#include "cli/results_json.h"
#include "cli/results_players.h"

namespace golf {
namespace {

using TextMember = std::string (PlayerClass::*)(OptionalRound);
using TotalMember = std::string (PlayerClass::*)(OptionalRound, OptionalRound);

constexpr Named<TextMember> kTexts[] = {
    {"TourHandicap", &PlayerClass::TourHandicap},
    {"TourHandicapValue", &PlayerClass::TourHandicapValue},
    {"TourHandicapWholeNumber", &PlayerClass::TourHandicapWholeNumber},
    {"TourScoreAdjusted", &PlayerClass::TourScoreAdjusted},
    {"TourCoursePlayedName", &PlayerClass::TourCoursePlayedName},
    {"TourCourseTeePlayedAbrv", &PlayerClass::TourCourseTeePlayedAbrv},
    {"TourCourseTeePlayedName", &PlayerClass::TourCourseTeePlayedName},
    {"TourCourseTeePlayedRating", &PlayerClass::TourCourseTeePlayedRating},
    {"TourCourseTeePlayedSlope", &PlayerClass::TourCourseTeePlayedSlope},
    {"TourTeeTime", &PlayerClass::TourTeeTime},
    {"TourTeeStartHole", &PlayerClass::TourTeeStartHole},
    {"TourGrossTotalTiebreakUSGA", &PlayerClass::TourGrossTotalTiebreakUSGA},
    {"TourNetTotalTiebreakUSGA", &PlayerClass::TourNetTotalTiebreakUSGA},
    {"TourGrossTotalTiebreakHandicapHole", &PlayerClass::TourGrossTotalTiebreakHandicapHole},
    {"TourNetTotalTiebreakHandicapHole", &PlayerClass::TourNetTotalTiebreakHandicapHole},
    {"TourGrossTotalTiebreak1to18", &PlayerClass::TourGrossTotalTiebreak1to18},
    {"TourNetTotalTiebreak1to18", &PlayerClass::TourNetTotalTiebreak1to18},
    {"TourGrossTotalTiebreak18to1", &PlayerClass::TourGrossTotalTiebreak18to1},
    {"TourNetTotalTiebreak18to1", &PlayerClass::TourNetTotalTiebreak18to1},
};

constexpr Named<TotalMember> kTotals[] = {
    {"TourTotalGross", &PlayerClass::TourTotalGross},
    {"TourTotalNet", &PlayerClass::TourTotalNet},
    {"TourTotalGrossPoints", &PlayerClass::TourTotalGrossPoints},
    {"TourTotalNetPoints", &PlayerClass::TourTotalNetPoints},
    {"TourTotalQuotaResults", &PlayerClass::TourTotalQuotaResults},
    {"TourTotalPutts", &PlayerClass::TourTotalPutts},
    {"TourTotalFairways", &PlayerClass::TourTotalFairways},
    {"TourTotalGreens", &PlayerClass::TourTotalGreens},
    {"TourTotalEarnings", &PlayerClass::TourTotalEarnings},
};

template <class ValueOf>
Json ByDifferences(ValueOf value_of) {
  Json object = Json::object();
  for (int d = -kMostDifference; d <= kMostDifference; ++d) {
    object[std::to_string(d)] = Array(kWholeRound, [&](int hole) { return value_of(d, hole); });
  }
  return object;
}

void AddByHole(PlayerClass& player, int round, Json& object) {
  const auto add = [&](const char* name, int last, auto member) {
    object[name] = Array(last, [&](int hole) { return (player.*member)(hole, round); });
  };
  // The next three values are those of the round that was calculated last, so they must be read
  // before any total.
  add("TourHoleStrokes", kHoles, &PlayerClass::TourHoleStrokes);
  add("TourHolePar", kHoles, &PlayerClass::TourHolePar);
  add("TourHoleAdjusted", kHoles, &PlayerClass::TourHoleAdjusted);
  add("TourScoreGross", kWholeRound, &PlayerClass::TourScoreGross);
  add("TourScoreGrossValue", kWholeRound, &PlayerClass::TourScoreGrossValue);
  add("TourScoreNet", kWholeRound, &PlayerClass::TourScoreNet);
  add("TourPointsGross", kWholeRound, &PlayerClass::TourPointsGross);
  add("TourPointsNet", kWholeRound, &PlayerClass::TourPointsNet);
  add("TourPointsQuotaResults", 3, &PlayerClass::TourPointsQuotaResults);
}

}  // namespace

void AddResults(PlayerClass& player, bool decimals, int round, Json& object) {
  AddByHole(player, round, object);
  object["TourPBEStatsGross"] =
      ByDifferences([&](int d, int hole) { return player.TourPBEStatsGross(d, hole, round); });
  object["TourPBEStatsNet"] =
      ByDifferences([&](int d, int hole) { return player.TourPBEStatsNet(d, hole, round); });
  object["TourGrossHandicap"] = AsJson(player.TourGrossHandicap(decimals, round));
  object["TourGrossHandicapValue"] = AsJson(player.TourGrossHandicapValue(decimals, round));
  object["TourQuota"] = AsJson(player.TourQuota(decimals, round));
  object["TourCoursePlayedNumber"] = player.TourCoursePlayedNumber(round);
  object["TourCourseTeePlayedNumber"] = player.TourCourseTeePlayedNumber(round);
  for (const auto& [name, member] : kTexts) object[name] = AsJson((player.*member)(round));
  for (const auto& [name, member] : kTotals) object[name] = AsJson((player.*member)(1, round));
}

}  // namespace golf
