#pragma once

#include <string_view>

// Contains the reasons why a transfer leaves out a golfer, a score, a course or a record. Each one
// continues a name, as in "Smith, Ann: not in this league", and a number, as in "10 not in this
// league".
namespace golf::left_out {

// The record cannot be transferred, or the run did not get to it.
inline constexpr std::string_view kStopped =
    "stopped by an error: ";  // and the error's description
inline constexpr std::string_view kNotReached = "not reached before the run ended";

// An option excludes the golfer.
inline constexpr std::string_view kNotMarked = "not marked to print";
inline constexpr std::string_view kSubstitute = "among the substitutes, who were not asked for";

// The golfer cannot be found in the other program.
inline constexpr std::string_view kNoIdNumber = "without an ID number";
inline constexpr std::string_view kNoLastName = "without a last name";
inline constexpr std::string_view kNotInLeague = "not in this league";
inline constexpr std::string_view kNotInRoster = "not in this roster";

// The golfer has no score to transfer.
inline constexpr std::string_view kNoScore = "without a score";
inline constexpr std::string_view kIncomplete = "without a complete round";
inline constexpr std::string_view kNoHoleScores = "without hole scores, so without points";
inline constexpr std::string_view kNoTeam = "without a team in this event";
inline constexpr std::string_view kNoRound = "with a score that is not between 21 and 199";

// The other program already has the data.
inline constexpr std::string_view kTransferredBefore =
    "already transferred, and not in this roster";
inline constexpr std::string_view kNotAgain = "already transferred, and not transferred again";
inline constexpr std::string_view kUnchanged = "with the same handicap and index already";

}  // namespace golf::left_out
