#pragma once

#include <array>
#include <cstddef>

#include "core/record.h"

namespace golf {

// This header describes the files of a Zandel league. Event numbers are 1 to 50. Only Zandel uses
// the bytes without a name. Scores and handicaps are in strokes.

inline constexpr int kLeagueEvents = 50;
inline constexpr int kNonEventScores = 100;

namespace zandel_fields {
inline constexpr Dimension kByEvent{1, kLeagueEvents};
inline constexpr Dimension kBySlot{1, kNonEventScores};
}  // namespace zandel_fields

// Describes the only record of a division's ".ZL8" file.
struct LeagueControlLayout {
  static constexpr std::string_view kName = "league control";
  static constexpr std::size_t kLength = 405;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 2),
      TextField("LeagueName", 2, 40),
      KeptBytes(42, 40),
      Int16Field("LastSubRecord", 82),  // substitutes use records 6 to this one
      KeptBytes(84, 4),
      Int16Field("PlayerFactor1", 88),  // times PlayerFactor2: number of players
      Int16Field("PlayerFactor2", 90),
      Int16Field("EventCount", 92),
      Int16Field("CurrentEvent", 94),  // the next event to be played
      KeptBytes(96, 20),
      KeptBytes(116, 8),
      KeptBytes(124, 8),
      KeptBytes(132, 60),
      Int16Field("LeagueHoles", 192),  // holes of a round: 9 or 18
      KeptBytes(194, 120),
      KeptBytes(314, 12),
      KeptBytes(326, 20),
      KeptBytes(346, 20),
      KeptBytes(366, 6),
      KeptBytes(372, 1),
      KeptBytes(373, 32),
  });
};

// Describes a player of a division's ".ZP8" file, or a substitute of a league's ".ZS8" file.
struct LeaguePlayerLayout {
  static constexpr std::string_view kName = "league player";
  static constexpr std::size_t kLength = 8012;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 4),
      Int32Field("GolferID", 4),  // IDNum of the golfer in Kelvane; below 1: none
      TextField("FirstName", 8, 15),
      TextField("LastName", 23, 15),  // blank: an empty record
      TextField("AddressLine1", 38, 30),
      TextField("AddressLine2", 68, 30),
      TextField("AddressLine3", 98, 30),
      TextField("Email", 128, 40),
      KeptBytes(168, 16),
      KeptBytes(184, 30),
      KeptBytes(214, 150),
      KeptBytes(364, 2),
      KeptBytes(366, 16),
      Int16Field("Sex", 382),  // 0 men, 1 ladies
      TextField("PhoneHome", 384, 12),
      TextField("PhoneWork", 396, 12),
      KeptBytes(408, 50),
      KeptBytes(458, 12),
      Int16Field("EventTeam", 470).By(zandel_fields::kByEvent),  // valid values are 1 to 100
      KeptBytes(570, 300),
      Int16Field("EventScore", 870).By(zandel_fields::kByEvent),      // above 0: a score is entered
      Int16Field("EventPostScore", 970).By(zandel_fields::kByEvent),  // the score for the handicap
      KeptBytes(1070, 200),
      SingleField("EventHandicap", 1270).By(zandel_fields::kByEvent),
      KeptBytes(1470, 100),
      KeptBytes(1570, 100),
      KeptBytes(1670, 200),
      KeptBytes(1870, 8),
      KeptBytes(1878, 1800),
      KeptBytes(3678, 200),
      // These tables contain the non-event scores by slot. NonEventBefore is the number of the next
      // event. A score before event 1 is practice.
      ByteField("NonEventBefore", 3878).By(zandel_fields::kBySlot),
      Int16Field("NonEventScore", 3978).By(zandel_fields::kBySlot),
      Int16Field("NonEventRating10", 4178).By(zandel_fields::kBySlot),  // tenths of a stroke
      Int16Field("NonEventSlope", 4378).By(zandel_fields::kBySlot),
      KeptBytes(4578, 16),
      KeptBytes(4594, 450),
      KeptBytes(5044, 18),
      KeptBytes(5062, 450),
      KeptBytes(5512, 1),
      KeptBytes(5513, 32),
      KeptBytes(5545, 2467),
  });
};

// Describes a team of a division's ".ZT8" file. Its record number is the number of the team.
struct LeagueTeamLayout {
  static constexpr std::string_view kName = "league team";
  static constexpr std::size_t kLength = 4400;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 50),
      KeptBytes(50, 2),
      KeptBytes(52, 48),
      KeptBytes(100, 2000),
      KeptBytes(2100, 200),
      Int16Field("EventCourse", 2300).By(zandel_fields::kByEvent),  // in Zandel's library
      KeptBytes(2400, 800),
      KeptBytes(3200, 200),
      // This table is by event and column, of which the column varies fastest. Column 1 is the
      // men's tee, and column 2 is the ladies' tee.
      ByteField("EventTee", 3400).By(Dimension{1, 4}).InEach(zandel_fields::kByEvent, 4),
      KeptBytes(3600, 800),
  });
};

// Describes an event of a division's ".ZE8" file. Its record number is the number of the event.
struct LeagueEventLayout {
  static constexpr std::string_view kName = "league event";
  static constexpr std::size_t kLength = 222;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 2),
      SingleField("EventDate", 2),  // a whole number of days since 30 December 1899
      KeptBytes(6, 8),
      KeptBytes(14, 2),
      KeptBytes(16, 6),
      KeptBytes(22, 10),
      KeptBytes(32, 2),
      KeptBytes(34, 188),
  });
};

}  // namespace golf
