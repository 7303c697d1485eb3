// This file contains the getters and setters of the entry of a tournament player in the buffer.

#include <algorithm>

#include "core/number_text.h"
#include "core/text.h"
#include "stores/quenby/tournament_players.h"

namespace golf {
namespace {

constexpr int kMostPutts = 200;
constexpr double kMostAdjusted = 250;

// These are the bits of the flag word. Clearing one of them also clears bits 9 to 15.
constexpr int kLocked = 1;
constexpr int kSentToKelvane = 2;
constexpr int kLowBits = 0x1FF;

std::int16_t WithFlag(int word, int bit, bool set) {
  return static_cast<std::int16_t>(set ? word | bit : word & (kLowBits & ~bit));
}

}  // namespace

void TournamentPlayers::TourBlankPlayerRecord() {
  constexpr Field kKept = TournamentPlayerLayout::kFields[4];  // these bytes are kept
  for (const Field& field : TournamentPlayerLayout::kFields) {
    if (field.offset != kKept.offset) FillField(field, entry_.MutableBytes(), 0);
  }
  static_assert(kKept.offset == 44 && kKept.name.empty());
  for (int round = 1; round <= kRounds; ++round) {
    entry_.Set<"TourFlight">({round}, "A");
    entry_.Set<"TourGroupTee">({round}, 1);
    entry_.Set<"TourReportFlags">({round}, "0");
  }
}

void TournamentPlayers::SetTourRosterRecordPointer(double value) {
  entry_.Set<"TourRosterRecordPointer">(RoundToInt16(value));
}

std::int16_t TournamentPlayers::TourTeamOn(OptionalRound round) const {
  return entry_.Get<"TourTeamOn">(RoundOr(round));
}
void TournamentPlayers::SetTourTeamOn(OptionalRound round, double value) {
  entry_.Set<"TourTeamOn">({RoundOr(round)}, RoundToInt16(value));
}
std::int16_t TournamentPlayers::TourTeamPositionIn(OptionalRound round) const {
  return entry_.Get<"TourTeamPositionIn">(RoundOr(round));
}
void TournamentPlayers::SetTourTeamPositionIn(OptionalRound round, double value) {
  entry_.Set<"TourTeamPositionIn">({RoundOr(round)}, RoundToInt16(value));
}
void TournamentPlayers::SetTourTeamOnInTrial(int trial, double value) {
  entry_.Set<"TourTeamOnInTrial">({trial}, RoundToInt16(value));
}

int TournamentPlayers::TourLockFlag(OptionalRound round) const {
  return entry_.Get<"TourFlags">(RoundOr(round)) & kLocked;
}
void TournamentPlayers::SetTourLockFlag(OptionalRound round, std::string_view value) {
  const int of = RoundOr(round);
  const bool locked = EqualIgnoringCase(value, "Y") || value == "1";
  entry_.Set<"TourFlags">({of}, WithFlag(entry_.Get<"TourFlags">(of), kLocked, locked));
}
bool TournamentPlayers::TourScoreTransferredtoKV(int round) const {
  return (entry_.Get<"TourFlags">(round) & kSentToKelvane) != 0;
}
void TournamentPlayers::SetTourScoreTransferredtoKV(int round, bool value) {
  entry_.Set<"TourFlags">({round}, WithFlag(entry_.Get<"TourFlags">(round), kSentToKelvane, value));
}

std::string TournamentPlayers::TourFlight(OptionalRound round) {
  const int of = RoundOr(round);
  const int flight = static_cast<unsigned char>(entry_.Get<"TourFlight">(of)[0]);
  const int last = 64 + state().TournamentRecord().FlightCount();
  if (flight < 'A' || flight > last) entry_.Set<"TourFlight">({of}, "A");
  return entry_.Get<"TourFlight">(of);
}
void TournamentPlayers::SetTourFlight(OptionalRound round, std::string_view value) {
  entry_.Set<"TourFlight">({RoundOr(round)}, value);
}

std::int16_t TournamentPlayers::TourGroupTee(OptionalRound round) {
  const int of = RoundOr(round);
  TournamentControl& tournament = state().TournamentRecord();
  const int groups = tournament.TeeCount(sex() == "F" ? 1 : 0);
  const int group = entry_.Get<"TourGroupTee">(of);
  if (group < 1 || group > groups) entry_.Set<"TourGroupTee">({of}, 1);
  return entry_.Get<"TourGroupTee">(of);
}
void TournamentPlayers::SetTourGroupTee(OptionalRound round, double value) {
  entry_.Set<"TourGroupTee">({RoundOr(round)}, RoundToInt16(value));
}

std::string TournamentPlayers::TourIndex(OptionalRound round) const {
  return FormatNumber(entry_.Get<"TourIndex">(RoundOr(round)), "#0.0;+0.0");
}
std::string TournamentPlayers::TourIndexValue(OptionalRound round) const {
  return FormatNumber(entry_.Get<"TourIndex">(RoundOr(round)), "#0.0");
}
void TournamentPlayers::SetTourIndex(OptionalRound round, double value) {
  entry_.Set<"TourIndex">({RoundOr(round)}, CheckedSingle(value));
}
void TournamentPlayers::SetTourGrossHandicap(OptionalRound round, double value) {
  entry_.Set<"TourGrossHandicap">({RoundOr(round)}, CheckedSingle(value));
}
void TournamentPlayers::SetTourQuota(OptionalRound round, double value) {
  entry_.Set<"TourQuota">({RoundOr(round)}, CheckedSingle(value));
}

std::string TournamentPlayers::TourReportFlags(OptionalRound round) const {
  return entry_.Get<"TourReportFlags">(RoundOr(round));
}
void TournamentPlayers::SetTourReportFlags(OptionalRound round, std::string_view value) {
  entry_.Set<"TourReportFlags">({RoundOr(round)}, Trim(value));
}
std::string TournamentPlayers::TourCartString(OptionalRound round) const {
  return TourCart(round) != 0 ? "Y" : " ";
}
int TournamentPlayers::TourCart(OptionalRound round) const {
  return entry_.Get<"TourCart">(RoundOr(round)) != 0 ? 1 : 0;
}
void TournamentPlayers::SetTourCart(OptionalRound round, double value) {
  entry_.Set<"TourCart">({RoundOr(round)}, RoundToInt16(value));
}
std::int16_t TournamentPlayers::TourPreferredTimeNumber(OptionalRound round) const {
  return entry_.Get<"TourPreferredTime">(RoundOr(round));
}
std::string TournamentPlayers::TourPreferredTime(OptionalRound round) const {
  return PreferredTimeName(TourPreferredTimeNumber(round));
}
void TournamentPlayers::SetTourPreferredTime(OptionalRound round, std::string_view value) {
  entry_.Set<"TourPreferredTime">({RoundOr(round)}, PreferredTimeNumber(value));
}
std::string TournamentPlayers::TourGroupText(OptionalRound round) const {
  return std::string(Trim(entry_.Get<"TourGroupText">(RoundOr(round))));
}
void TournamentPlayers::SetTourGroupText(OptionalRound round, std::string_view value) {
  entry_.Set<"TourGroupText">({RoundOr(round)}, Trim(value));
}
std::string TournamentPlayers::TourMiscInTourText(int n) const {
  return std::string(Trim(entry_.Get<"TourMiscInTourText">(n)));
}
void TournamentPlayers::SetTourMiscInTourText(int n, std::string_view value) {
  entry_.Set<"TourMiscInTourText">({n}, Trim(value));
}

std::int16_t TournamentPlayers::TourPutts(OptionalRound round) const {
  return entry_.Get<"TourPutts">(RoundOr(round));
}
void TournamentPlayers::SetTourPutts(OptionalRound round, double value) {
  const std::int16_t putts = RoundToInt16(value);
  entry_.Set<"TourPutts">({RoundOr(round)}, std::min<std::int16_t>(putts, kMostPutts));
}
std::int16_t TournamentPlayers::TourFairways(OptionalRound round) const {
  return entry_.Get<"TourFairways">(RoundOr(round));
}
void TournamentPlayers::SetTourFairways(OptionalRound round, double value) {
  entry_.Set<"TourFairways">({RoundOr(round)}, RoundToInt16(value));
}
std::int16_t TournamentPlayers::TourGreens(OptionalRound round) const {
  return entry_.Get<"TourGreens">(RoundOr(round));
}
void TournamentPlayers::SetTourGreens(OptionalRound round, double value) {
  entry_.Set<"TourGreens">({RoundOr(round)}, RoundToInt16(value));
}
std::string TournamentPlayers::TourEarnings(OptionalRound round) const {
  return FormatCurrency(entry_.Get<"TourEarnings">(RoundOr(round)));
}
void TournamentPlayers::SetTourEarnings(OptionalRound round, std::int64_t value) {
  entry_.Set<"TourEarnings">({RoundOr(round)}, value);
}
void TournamentPlayers::SetTourScoreAdjusted(OptionalRound round, double& value) {
  value = std::min(value, kMostAdjusted);
  entry_.Set<"TourScoreAdjusted">({RoundOr(round)}, RoundToInt16(value));
}
void TournamentPlayers::SetTourScoreGross(int hole, OptionalRound round, double value) {
  constexpr int kTotal = 21;
  const std::int16_t score = RoundToInt16(value);
  const int of = RoundOr(round);
  if (hole >= 1 && hole <= kHoles) entry_.Set<"TourScoreGross">({hole, of}, score);
  if (hole == kTotal) entry_.Set<"TourScoreGrossTotal">({of}, score);
}

}  // namespace golf
