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
inline constexpr Dimension kByRound{1, kRounds, "round"};
inline constexpr Dimension kByHole{1, kHoles, "hole"};
inline constexpr Dimension kByGroup{0, 2, "group"};
inline constexpr Dimension kByTeeGroup{1, kTeeGroups, "tee group"};
inline constexpr Dimension kByFlight{1, kMostFlights, "flight"};
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
      Int16Field("ActiveRoster", 4).Means("record of `QBROSTER.Q9D`; -1: all rosters"),
      TextField("LastRosterViewLoaded", 6, 60),
      Int16Field("RosterColumnSorted", 66)
          .By(quenby_fields::kOfThree)
          .Means("columns that the roster grid is sorted by"),
      Int16Field("RosterColumnSortedHow", 72)
          .By(quenby_fields::kOfThree)
          .Means("direction, 0 or -1"),
      KeptBytes(78, 540),
      Int32Field("ActiveTournament", 618).Means("the number in the names of its files"),
      TextField("LastTournamentViewLoaded", 622, 60),
      TextField("MiscTourTextFieldName", 682, 12)
          .By(quenby_fields::kOfTen)
          .Means("captions of a tournament player's texts"),
      TextField("MiscTextFieldName", 802, 12)
          .By(quenby_fields::kOfTen)
          .Means("captions of a golfer's own texts"),
      TextField("MiscDateFieldName", 922, 12)
          .By(quenby_fields::kOfFive)
          .Means("captions of a golfer's own dates"),
      TextField("MiscCurrFieldName", 982, 12)
          .By(quenby_fields::kOfFive)
          .Means("captions of a golfer's own amounts"),
  });
};

// Describes a roster of QBROSTER.Q9D. Its record number is the number of the roster.
struct RosterLayout {
  static constexpr std::string_view kName = "quenby roster";
  static constexpr std::size_t kLength = 413;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("IsRosterActive", 0).Means("-1: in use; 0: deleted, free for another roster"),
      KeptBytes(2, 60),
      KeptBytes(62, 5),
      TextField("ClubName", 67, 40).Means("name of the roster"),
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
      Int16Field("NumRounds", 50).Means("1 to 5; corrected if out of range"),
      Int16Field("NumTeams", 52).Means("1 to 200; corrected if out of range"),
      Int16Field("NumPlayersPerTeam", 54),
      Int16Field("NumFlights", 56).Means("1 to 26; corrected if out of range"),
      Int16Field("NumTeamFlights", 58).Means("1 to 26; corrected if out of range"),
      Int16Field("NumTeesMenPlay", 60).Means("men's tee groups, 0 to 5; corrected if out of range"),
      Int16Field("NumTeesLadiesPlay", 62)
          .Means("ladies' tee groups, 0 to 5; corrected if out of range"),
      Int16Field("RoundType", 64).Means("holes of a round: 9 or 18; corrected to 18"),
      Int16Field("IndextoHandicap", 66)
          .Means("-1: the slope converts an index to a handicap; 0: it does not"),
      Int16Field("HandicapDecimalPlaces", 68).Means("-1: handicaps have two decimals; 0: none"),
      Int16Field("ScoreEntryTotal", 70).Means("-1: totals are entered; 0: holes are entered"),
      Int16Field("RCGAESC", 72).Means("-1: stroke control by the RCGA table; 0: not"),
      Int16Field("TeamHandicapOption", 74)
          .Means("1 or 3: the average of the players' handicaps; 2: a percentage of their sum; "
                 "corrected to 1"),
      SingleField("TeamHandicapPercent", 76).Means("percent"),
      Int16Field("PointQuotaOption", 80)
          .Means("1: `PointQuotaFromHandicap` minus the handicap; 2: the handicap; 3: the quota of "
                 "the entry; corrected to 1"),
      Int16Field("PointQuotaFromHandicap", 82).Means("points"),
      Int16Field("PointsGiven", 84)
          .By(Dimension{-5, 11, "difference"})
          .Means("points for a hole, by score minus par"),
      Int16Field("PositionOption", 106).Means("1 or 2; corrected to 1"),
      DateField("DateofRound", 108).By(quenby_fields::kByRound),
      Int16Field("CourseNumberPlayed", 164)
          .By(quenby_fields::kByRound)
          .Means("in Quenby's course library; 0: an away course"),
      Int16Field("TeeNumberPlayed", 178)
          .By(quenby_fields::kByGroup, quenby_fields::kByTeeGroup, quenby_fields::kByRound)
          .Means("tee number; group 0: men, 1: ladies"),
      SingleField("TeeHandicapPercent", 318)
          .By(quenby_fields::kByGroup, quenby_fields::kByTeeGroup, quenby_fields::kByRound)
          .Means("handicap allowance in percent; group 0: men, 1: ladies"),
      SingleField("TeeHandicapAdjustment", 598)
          .By(quenby_fields::kByGroup, quenby_fields::kByTeeGroup, quenby_fields::kByRound)
          .Means("strokes added to the handicap; group 0: men, 1: ladies"),
      Int16Field("ActiveRound", 878).Means("the round to use if none is given"),
      Int16Field("ShowTeamsonSheet", 880).Means("0 or -1"),
      Int16Field("SheetColumnSorted", 882)
          .By(quenby_fields::kOfThree)
          .Means("columns that the sheet of players is sorted by"),
      Int16Field("SheetColumnSortedHow", 888)
          .By(quenby_fields::kOfThree)
          .Means("direction, 0 or -1"),
      Int16Field("TeeTimeStartOption", 894),
      SingleField("TeeTimeInc", 896).Means("interval between tee times"),
      Int16Field("TeeTimeIncEveryXTeams", 900).Means("teams that start together"),
      Int16Field("PlayerFlightsDeterminedBy", 902).Means("0 to 4; corrected to 0"),
      Int16Field("TeamFlightsDeterminedBy", 904).Means("0 to 4; corrected to 0"),
      Int16Field("NumTrials", 906).Means("trials of the team draw"),
      Int16Field("ActiveTrial", 908).Means("the trial in use"),
      Int16Field("PeoriaHole", 910)
          .By(quenby_fields::kByHole)
          .Means("marks the holes of a Peoria draw"),
      Int16Field("TeamSheetColumnSorted", 946)
          .By(quenby_fields::kOfThree)
          .Means("columns that the sheet of teams is sorted by"),
      Int16Field("TeamSheetColumnSortedHow", 952)
          .By(quenby_fields::kOfThree)
          .Means("direction, 0 or -1"),
      SingleField("HandicapMax", 958)
          .By(quenby_fields::kByGroup)
          .Means("highest handicap of a round in strokes; group 0: men, 1: ladies"),
      TextField("Version", 966, 4)
          .Means("`2005`; reading a record with another version gives it a new `HandicapMax`, "
                 "`TeamNamesMat` and new flight ranges"),
      TextField("TeamNamesMat", 970, 30)
          .Means("pattern of new team names, or `[Player's Last Names]`"),
      Int32Field("PlayerFlightRange", 1000)
          .By(quenby_fields::kByFlight)
          .Means("upper bound of the flight"),
      Int32Field("TeamFlightRange", 1104)
          .By(quenby_fields::kByFlight)
          .Means("upper bound of the flight"),
  });
};

// Describes a golfer of QBGOLFER.Q9D.
struct PlayerLayout {
  static constexpr std::string_view kName = "quenby golfer";
  static constexpr std::size_t kLength = 1867;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("PrintPlayer", 0).Means("bit 0: is printed"),
      Int16Field("Cart", 2).Means("bit 0: takes a cart"),
      Int32Field("IDNum", 4)
          .Means("1 or more: a golfer; -1: never used again; any other value: free"),
      Int16Field("Rosters", 8)
          .By(quenby_fields::kOfFour)
          .Means("roster numbers, packed to the front; 0: none; nothing fills the fourth"),
      TextField("NameFirst", 16, 11),
      TextField("NameLast", 27, 16),
      ByteField("Sex", 43).Means("0: male; 1: female; corrected to 0"),
      TextField("AddressHomeLine", 44, 30).By(quenby_fields::kOfFour),
      TextField("AddressWorkLine", 164, 30).By(quenby_fields::kOfFour),
      TextField("PhoneHome", 284, 20),
      TextField("PhoneWork", 304, 20),
      TextField("PhoneFax", 324, 20),
      TextField("Email", 344, 60),
      TextField("GroupText", 404, 20),
      TextField("Flight", 424, 1).Means("`A` to `Z`; corrected to `A`"),
      Int16Field("GroupTee", 425).Means("tee group, 1 to 5; corrected to 1"),
      Int16Field("PreferredTime", 427).Means("0: none; 1: early; 2: middle; 3: late"),
      TextField("ReportFlags", 429, 12).Means("Quenby's own; copied unchanged"),
      SingleField("Index", 441).Means("handicap index in strokes; below 0: a plus index"),
      SingleField("Handicap", 445).Means("strokes; below 0: a plus handicap"),
      TextField("MiscText", 449, 30).By(quenby_fields::kOfFive),
      DateField("MiscDate", 599).By(Dimension{1, 2}),
      CurrencyField("MiscCurrency", 615).By(quenby_fields::kOfFive),
      DateField("DueDate", 655).Means("date of the dues"),
      CurrencyField("DueAmount", 663).Means("amount of the dues"),
      TextField("DueComment", 671, 30).Means("comment about the dues"),
      TextField("Comments", 701, 200),
      TextField("MiscInTourText", 901, 30)
          .By(quenby_fields::kOfFive)
          .Means("copied into a tournament entry with the golfer"),
      KeptBytes(1051, 816),
  });
};

// Describes a golfer's entry of a tournament's ".Q9G" file.
struct TournamentPlayerLayout {
  static constexpr std::string_view kName = "tournament player";
  static constexpr std::size_t kLength = 3052;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("TourRosterRecordPointer", 0)
          .Means(
              "record of `QBGOLFER.Q9D`; 0, or a record that the file does not have: a free entry"),
      Int16Field("TourTeamOn", 2).By(quenby_fields::kByRound).Means("team number; 0: none"),
      Int16Field("TourTeamPositionIn", 16).By(quenby_fields::kByRound).Means("place on the team"),
      Int16Field("TourFlags", 30)
          .By(quenby_fields::kByRound)
          .Means("bit 0: locked; bit 1: the score was transferred to Kelvane"),
      KeptBytes(44, 14),
      SingleField("TourIndex", 58)
          .By(quenby_fields::kByRound)
          .Means("handicap index in strokes; below 0: a plus index"),
      SingleField("TourGrossHandicap", 86)
          .By(quenby_fields::kByRound)
          .Means("strokes; below 0: a plus handicap"),
      SingleField("TourQuota", 114).By(quenby_fields::kByRound).Means("points"),
      TextField("TourFlight", 142, 1)
          .By(quenby_fields::kByRound)
          .Means("`A` to the last of `NumFlights`; corrected to `A`"),
      Int16Field("TourGroupTee", 149)
          .By(quenby_fields::kByRound)
          .Means("1 to the tee groups of the golfer's sex; corrected to 1"),
      Int16Field("TourPreferredTime", 163)
          .By(quenby_fields::kByRound)
          .Means("0: none; 1: early; 2: middle; 3: late"),
      Int16Field("TourCart", 177).By(quenby_fields::kByRound).Means("not 0: takes a cart"),
      TextField("TourReportFlags", 191, 12)
          .By(quenby_fields::kByRound)
          .Means("Quenby's own; copied unchanged"),
      TextField("TourGroupText", 275, 20).By(quenby_fields::kByRound),
      Int16Field("Reserved415", 415).By(quenby_fields::kByRound).Means("0 in a new entry"),
      Int16Field("Reserved429", 429).By(quenby_fields::kByRound).Means("0 in a new entry"),
      Int16Field("TourScoreGross", 443)
          .By(quenby_fields::kByHole, quenby_fields::kByRound)
          .Means("strokes; 0: not played"),
      Int16Field("TourScoreGrossTotal", 695)
          .By(quenby_fields::kByRound)
          .Means("strokes, if totals are entered"),
      Int16Field("TourScoreAdjusted", 709)
          .By(quenby_fields::kByRound)
          .Means("strokes for the handicap, if totals are entered; at most 250"),
      Int16Field("TourPutts", 723)
          .By(quenby_fields::kByRound)
          .Means("number of putts; at most 200"),
      Int16Field("TourFairways", 737).By(quenby_fields::kByRound).Means("number of fairways hit"),
      Int16Field("TourGreens", 751).By(quenby_fields::kByRound).Means("number of greens hit"),
      CurrencyField("TourEarnings", 765).By(quenby_fields::kByRound).Means("amount won"),
      Int16Field("TourTeamOnInTrial", 821)
          .By(Dimension{1, kTeamDrawTrials, "trial"})
          .Means("team number in the team draw"),
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
      TextField("Flight", 80, 1)
          .By(quenby_fields::kByRound)
          .Means("flight letter; corrected to `A`"),
      Int16Field("CourseNumberPlayed", 87)
          .By(quenby_fields::kByRound)
          .Means("in Quenby's course library; 0: an away course"),
      SingleField("TeeTimeValue", 101)
          .InEach(quenby_fields::kByRound, 8)
          .Means("fraction of a day"),
      KeptBytes(105, 4).InEach(quenby_fields::kByRound, 8),
      TextField("TeeStartHole", 157, 3)
          .InEach(quenby_fields::kByRound, 6)
          .Means("such as `01` or `10B`; corrected if invalid"),
      KeptBytes(160, 3).InEach(quenby_fields::kByRound, 6),
      TextField("Cart1", 199, 10).By(quenby_fields::kByRound),
      TextField("Cart2", 269, 10).By(quenby_fields::kByRound),
      KeptBytes(339, 1000),
  });
};

}  // namespace golf
