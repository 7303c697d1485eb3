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
inline constexpr Dimension kByEvent{1, kLeagueEvents, "event"};
inline constexpr Dimension kBySlot{1, kNonEventScores, "slot"};
}  // namespace zandel_fields

// Describes the only record of a division's ".ZL8" file.
struct LeagueControlLayout {
  static constexpr std::string_view kName = "league control";
  static constexpr std::size_t kLength = 405;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 2),
      TextField("LeagueName", 2, 40),
      KeptBytes(42, 40),
      Int16Field("LastSubRecord", 82).Means("substitutes are in records 6 to this one"),
      KeptBytes(84, 4),
      Int16Field("PlayerFactor1", 88).Means("times `PlayerFactor2`: the number of players"),
      Int16Field("PlayerFactor2", 90).Means("times `PlayerFactor1`: the number of players"),
      Int16Field("EventCount", 92).Means("events in the schedule"),
      Int16Field("CurrentEvent", 94).Means("the event to be played next"),
      KeptBytes(96, 20),
      KeptBytes(116, 8),
      KeptBytes(124, 8),
      KeptBytes(132, 60),
      Int16Field("LeagueHoles", 192).Means("holes of a round: 9 or 18"),
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
      Int32Field("GolferID", 4).Means("`IDNum` of the golfer in Kelvane; below 1: no link"),
      TextField("FirstName", 8, 15),
      TextField("LastName", 23, 15).Means("blank: an empty record"),
      TextField("AddressLine1", 38, 30),
      TextField("AddressLine2", 68, 30),
      TextField("AddressLine3", 98, 30),
      TextField("Email", 128, 40),
      KeptBytes(168, 16),
      KeptBytes(184, 30),
      KeptBytes(214, 150),
      KeptBytes(364, 2),
      KeptBytes(366, 16),
      Int16Field("Sex", 382).Means("0: male; 1: female"),
      TextField("PhoneHome", 384, 12),
      TextField("PhoneWork", 396, 12),
      KeptBytes(408, 50),
      KeptBytes(458, 12),
      Int16Field("EventTeam", 470)
          .By(zandel_fields::kByEvent)
          .Means("number of the team played on, 1 to 100"),
      KeptBytes(570, 300),
      Int16Field("EventScore", 870)
          .By(zandel_fields::kByEvent)
          .Means("strokes; above 0: a score was entered"),
      Int16Field("EventPostScore", 970)
          .By(zandel_fields::kByEvent)
          .Means("strokes that count for the handicap"),
      KeptBytes(1070, 200),
      SingleField("EventHandicap", 1270)
          .By(zandel_fields::kByEvent)
          .Means("strokes carried into the event; below 0: a plus handicap"),
      KeptBytes(1470, 100),
      KeptBytes(1570, 100),
      KeptBytes(1670, 200),
      KeptBytes(1870, 8),
      KeptBytes(1878, 1800),
      KeptBytes(3678, 200),
      ByteField("NonEventBefore", 3878)
          .By(zandel_fields::kBySlot)
          .Means("the event that the score was played before; 1: practice"),
      Int16Field("NonEventScore", 3978).By(zandel_fields::kBySlot).Means("strokes"),
      Int16Field("NonEventRating10", 4178)
          .By(zandel_fields::kBySlot)
          .Means("course rating in tenths of a stroke"),
      Int16Field("NonEventSlope", 4378).By(zandel_fields::kBySlot).Means("slope rating"),
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
      Int16Field("EventCourse", 2300)
          .By(zandel_fields::kByEvent)
          .Means("number of the course in Zandel's library"),
      KeptBytes(2400, 800),
      KeptBytes(3200, 200),
      // The column varies fastest.
      ByteField("EventTee", 3400)
          .By(Dimension{1, 4, "column"})
          .InEach(zandel_fields::kByEvent, 4)
          .Means("tee number; column 1: men, 2: ladies; 3 and 4 are not used"),
      KeptBytes(3600, 800),
  });
};

// Describes an event of a division's ".ZE8" file. Its record number is the number of the event.
struct LeagueEventLayout {
  static constexpr std::string_view kName = "league event";
  static constexpr std::size_t kLength = 222;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 2),
      SingleField("EventDate", 2).Means("whole days since 30 December 1899"),
      KeptBytes(6, 8),
      KeptBytes(14, 2),
      KeptBytes(16, 6),
      KeptBytes(22, 10),
      KeptBytes(32, 2),
      KeptBytes(34, 188),
  });
};

}  // namespace golf
