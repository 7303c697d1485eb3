#pragma once

#include <array>
#include <cstddef>

#include "core/record.h"

namespace golf {

// This header describes the files of Quenby, except its course library. Round numbers are 1 to 7.
// Group 0 is the men, and group 1 is the ladies. Scores, handicaps and indexes are in strokes. A
// negative handicap or index is a plus handicap or index.

inline constexpr int kRounds = 7;
inline constexpr int kHoles = 18;
inline constexpr int kTeeGroups = 5;
inline constexpr int kMostTeams = 200;
inline constexpr int kMostFlights = 26;
inline constexpr int kTeamDrawTrials = 24;

namespace quenby_fields {
inline constexpr Dimension kByRound{1, kRounds};
inline constexpr Dimension kByHole{1, kHoles};
inline constexpr Dimension kByGroup{0, 2};
inline constexpr Dimension kByTeeGroup{1, kTeeGroups};
inline constexpr Dimension kByFlight{1, kMostFlights};
inline constexpr Dimension kOfThree{1, 3};
inline constexpr Dimension kOfFour{1, 4};
inline constexpr Dimension kOfFive{1, 5};
inline constexpr Dimension kOfTen{1, 10};
}  // namespace quenby_fields

// Describes the only record of QBMASTER.Q9D.
struct MasterLayout {
  static constexpr std::string_view kName = "quenby master";
  static constexpr std::size_t kLength = 1042;
  static constexpr auto kFields = std::to_array<Field>({
      KeptBytes(0, 4),
      Int16Field("ActiveRoster", 4),  // -1: all rosters
      TextField("LastRosterViewLoaded", 6, 60),
      Int16Field("RosterColumnSorted", 66).By(quenby_fields::kOfThree),
      Int16Field("RosterColumnSortedHow", 72).By(quenby_fields::kOfThree),
      KeptBytes(78, 540),
      Int32Field("ActiveTournament", 618),
      TextField("LastTournamentViewLoaded", 622, 60),
      TextField("MiscTourTextFieldName", 682, 12).By(quenby_fields::kOfTen),
      TextField("MiscTextFieldName", 802, 12).By(quenby_fields::kOfTen),
      TextField("MiscDateFieldName", 922, 12).By(quenby_fields::kOfFive),
      TextField("MiscCurrFieldName", 982, 12).By(quenby_fields::kOfFive),
  });
};

// Describes a roster of QBROSTER.Q9D. Its record number is the number of the roster.
struct RosterLayout {
  static constexpr std::string_view kName = "quenby roster";
  static constexpr std::size_t kLength = 413;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("IsRosterActive", 0),  // -1: in use, 0: deleted
      KeptBytes(2, 60),
      KeptBytes(62, 5),
      TextField("ClubName", 67, 40),
      TextField("ClubAddress", 107, 30).By(quenby_fields::kOfThree),
      TextField("ClubPhone", 197, 12),
      KeptBytes(209, 204),
  });
};

// Describes the only record of a tournament's ".Q9C" file.
struct TournamentLayout {
  static constexpr std::string_view kName = "tournament";
  static constexpr std::size_t kLength = 1208;
  static constexpr auto kFields = std::to_array<Field>({
      TextField("Name", 0, 50),
      Int16Field("NumRounds", 50),
      Int16Field("NumTeams", 52),
      Int16Field("NumPlayersPerTeam", 54),
      Int16Field("NumFlights", 56),
      Int16Field("NumTeamFlights", 58),
      Int16Field("NumTeesMenPlay", 60),
      Int16Field("NumTeesLadiesPlay", 62),
      Int16Field("RoundType", 64),  // the holes of a round: 18 or 9
      Int16Field("IndextoHandicap", 66),
      Int16Field("HandicapDecimalPlaces", 68),
      Int16Field("ScoreEntryTotal", 70),
      Int16Field("RCGAESC", 72),
      Int16Field("TeamHandicapOption", 74),
      SingleField("TeamHandicapPercent", 76),
      Int16Field("PointQuotaOption", 80),
      Int16Field("PointQuotaFromHandicap", 82),
      Int16Field("PointsGiven", 84).By(Dimension{-5, 11}),  // by score minus par
      Int16Field("PositionOption", 106),
      DateField("DateofRound", 108).By(quenby_fields::kByRound),
      Int16Field("CourseNumberPlayed", 164).By(quenby_fields::kByRound),
      Int16Field("TeeNumberPlayed", 178)
          .By(quenby_fields::kByGroup, quenby_fields::kByTeeGroup, quenby_fields::kByRound),
      SingleField("TeeHandicapPercent", 318)
          .By(quenby_fields::kByGroup, quenby_fields::kByTeeGroup, quenby_fields::kByRound),
      SingleField("TeeHandicapAdjustment", 598)
          .By(quenby_fields::kByGroup, quenby_fields::kByTeeGroup, quenby_fields::kByRound),
      Int16Field("ActiveRound", 878),
      Int16Field("ShowTeamsonSheet", 880),
      Int16Field("SheetColumnSorted", 882).By(quenby_fields::kOfThree),
      Int16Field("SheetColumnSortedHow", 888).By(quenby_fields::kOfThree),
      Int16Field("TeeTimeStartOption", 894),
      SingleField("TeeTimeInc", 896),
      Int16Field("TeeTimeIncEveryXTeams", 900),
      Int16Field("PlayerFlightsDeterminedBy", 902),
      Int16Field("TeamFlightsDeterminedBy", 904),
      Int16Field("NumTrials", 906),
      Int16Field("ActiveTrial", 908),
      Int16Field("PeoriaHole", 910).By(quenby_fields::kByHole),
      Int16Field("TeamSheetColumnSorted", 946).By(quenby_fields::kOfThree),
      Int16Field("TeamSheetColumnSortedHow", 952).By(quenby_fields::kOfThree),
      SingleField("HandicapMax", 958).By(quenby_fields::kByGroup),
      TextField("Version", 966, 4),  // "2005" in a current record
      TextField("TeamNamesMat", 970, 30),
      Int32Field("PlayerFlightRange", 1000).By(quenby_fields::kByFlight),
      Int32Field("TeamFlightRange", 1104).By(quenby_fields::kByFlight),
  });
};

// Describes a golfer of QBGOLFER.Q9D.
struct PlayerLayout {
  static constexpr std::string_view kName = "quenby golfer";
  static constexpr std::size_t kLength = 1867;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("PrintPlayer", 0),  // in bit 0
      Int16Field("Cart", 2),         // in bit 0
      Int32Field("IDNum", 4),        // 1 or more: a golfer; -1: never used again; other: free
      Int16Field("Rosters", 8).By(quenby_fields::kOfFour),
      TextField("NameFirst", 16, 11),
      TextField("NameLast", 27, 16),
      ByteField("Sex", 43),  // 0: male, 1: female
      TextField("AddressHomeLine", 44, 30).By(quenby_fields::kOfFour),
      TextField("AddressWorkLine", 164, 30).By(quenby_fields::kOfFour),
      TextField("PhoneHome", 284, 20),
      TextField("PhoneWork", 304, 20),
      TextField("PhoneFax", 324, 20),
      TextField("Email", 344, 60),
      TextField("GroupText", 404, 20),
      TextField("Flight", 424, 1),
      Int16Field("GroupTee", 425),
      Int16Field("PreferredTime", 427),  // 0: none, 1: early, 2: middle, 3: late
      TextField("ReportFlags", 429, 12),
      SingleField("Index", 441),
      SingleField("Handicap", 445),
      TextField("MiscText", 449, 30).By(quenby_fields::kOfFive),
      DateField("MiscDate", 599).By(Dimension{1, 2}),
      CurrencyField("MiscCurrency", 615).By(quenby_fields::kOfFive),
      DateField("DueDate", 655),
      CurrencyField("DueAmount", 663),
      TextField("DueComment", 671, 30),
      TextField("Comments", 701, 200),
      TextField("MiscInTourText", 901, 30).By(quenby_fields::kOfFive),
      KeptBytes(1051, 816),
  });
};

// Describes a golfer's entry of a tournament's ".Q9G" file.
struct TournamentPlayerLayout {
  static constexpr std::string_view kName = "tournament player";
  static constexpr std::size_t kLength = 3052;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("TourRosterRecordPointer", 0),  // record of QBGOLFER.Q9D; 0: free
      Int16Field("TourTeamOn", 2).By(quenby_fields::kByRound),
      Int16Field("TourTeamPositionIn", 16).By(quenby_fields::kByRound),
      Int16Field("TourFlags", 30).By(quenby_fields::kByRound),  // bit 0: locked, bit 1: sent
      KeptBytes(44, 14),
      SingleField("TourIndex", 58).By(quenby_fields::kByRound),
      SingleField("TourGrossHandicap", 86).By(quenby_fields::kByRound),
      SingleField("TourQuota", 114).By(quenby_fields::kByRound),
      TextField("TourFlight", 142, 1).By(quenby_fields::kByRound),
      Int16Field("TourGroupTee", 149).By(quenby_fields::kByRound),
      Int16Field("TourPreferredTime", 163).By(quenby_fields::kByRound),
      Int16Field("TourCart", 177).By(quenby_fields::kByRound),
      TextField("TourReportFlags", 191, 12).By(quenby_fields::kByRound),
      TextField("TourGroupText", 275, 20).By(quenby_fields::kByRound),
      Int16Field("Reserved415", 415).By(quenby_fields::kByRound),
      Int16Field("Reserved429", 429).By(quenby_fields::kByRound),
      Int16Field("TourScoreGross", 443).By(quenby_fields::kByHole, quenby_fields::kByRound),
      Int16Field("TourScoreGrossTotal", 695).By(quenby_fields::kByRound),
      Int16Field("TourScoreAdjusted", 709).By(quenby_fields::kByRound),
      Int16Field("TourPutts", 723).By(quenby_fields::kByRound),
      Int16Field("TourFairways", 737).By(quenby_fields::kByRound),
      Int16Field("TourGreens", 751).By(quenby_fields::kByRound),
      CurrencyField("TourEarnings", 765).By(quenby_fields::kByRound),
      Int16Field("TourTeamOnInTrial", 821).By(Dimension{1, kTeamDrawTrials}),
      TextField("TourMiscInTourText", 869, 30).By(quenby_fields::kOfFive),
      KeptBytes(1019, 2033),
  });
};

// Describes a team of a tournament's ".Q9T" file. Its record number is the number of the team.
struct TeamLayout {
  static constexpr std::string_view kName = "team";
  static constexpr std::size_t kLength = 1339;
  static constexpr auto kFields = std::to_array<Field>({
      TextField("TeamName", 0, 40),
      TextField("Sponsor", 40, 40),
      TextField("Flight", 80, 1).By(quenby_fields::kByRound),
      Int16Field("CourseNumberPlayed", 87).By(quenby_fields::kByRound),
      SingleField("TeeTimeValue", 101).InEach(quenby_fields::kByRound, 8),  // a fraction of a day
      KeptBytes(105, 4).InEach(quenby_fields::kByRound, 8),
      TextField("TeeStartHole", 157, 3).InEach(quenby_fields::kByRound, 6),
      KeptBytes(160, 3).InEach(quenby_fields::kByRound, 6),
      TextField("Cart1", 199, 10).By(quenby_fields::kByRound),
      TextField("Cart2", 269, 10).By(quenby_fields::kByRound),
      KeptBytes(339, 1000),
  });
};

}  // namespace golf
