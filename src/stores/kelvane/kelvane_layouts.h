#pragma once

#include <array>
#include <cstddef>

#include "core/record.h"

namespace golf {

// This header describes the files of a Kelvane roster, and Kelvane's system file. Only Kelvane uses
// a field named "Setting" with a number. The field gets its default in a new roster and is
// otherwise left unchanged. The one exception is Setting153 of the header, which becomes 1 when
// scores are posted. In a table by sex, index 0 is men and index 1 is ladies. Handicaps, indexes
// and ratings are in strokes. A negative handicap or index is a plus handicap or index.

inline constexpr int kKelvaneScores = 300;
inline constexpr std::size_t kKelvaneScoreLength = 49;

// Describes the only record of a ".kv5" file.
struct KelvaneHeaderLayout {
  static constexpr std::string_view kName = "kelvane header";
  static constexpr std::size_t kLength = 781;
  static constexpr Dimension kSexes{0, 2, "sex"};
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("Version", 0).Means("5000 in a new roster; never tested"),
      TextField("Title", 2, 40),
      TextField("Address", 42, 30).By(Dimension{1, 3, "line"}),
      TextField("Phone", 132, 20),
      ByteField("Holes", 152).Means("18: handicaps for 18 holes; any other value: for 9"),
      ByteField("Setting153", 153).Means("1 after a score transfer has posted"),
      Int32Field("Setting154", 154),
      Int16Field("Setting158", 158),
      Int16Field("Setting160", 160).By(kSexes),
      Int16Field("Setting164", 164).By(Dimension{1, 5}),
      Int16Field("Setting174", 174).By(kSexes, Dimension{1, 5, "position"}),
      TextField("Code194", 194, 1).By(kSexes),
      SingleField("Setting196", 196),
      ByteField("Slope200", 200).Means("113 in a new roster"),
      Int16Field("Setting201", 201),
      Int16Field("Setting203", 203).By(kSexes),
      TextField("Code207", 207, 1).By(kSexes),
      SingleField("Setting209", 209),
      ByteField("Slope213", 213).Means("113 in a new roster"),
      Int16Field("Setting214", 214),
      Int16Field("Setting216", 216).By(kSexes),
      DateField("CounterDate", 220)
          .By(Dimension{1, 4})
          .Means("score counter 3 uses the first, 4 the second, 2 the third"),
      ByteField("HandicapMethod", 252).Means("100 or more: handicaps without an index"),
      SingleField("Setting253", 253),
      Int16Field("Setting257", 257),
      Int16Field("Setting259", 259),
      Int16Field("Table261", 261).By(Dimension{1, 30}),
      Int16Field("Table321", 321).By(Dimension{1, 30}),
      Int16Field("MaximumHandicap", 381).By(kSexes).Means("strokes; sex 0: men, 1: ladies"),
      Int16Field("Setting385", 385),
      Int16Field("Setting387", 387),
      Int16Field("Setting389", 389),
      Int16Field("Setting391", 391),
      Int16Field("Setting393", 393),
      Int16Field("Setting395", 395).By(Dimension{1, 3}),
      SingleField("MaximumIndex", 401).By(kSexes).Means("strokes; sex 0: men, 1: ladies"),
      Int16Field("Setting409", 409).By(Dimension{1, 3}),
      Int16Field("Setting415", 415).By(Dimension{1, 3}),
      TextField("MiscTextName", 421, 12)
          .By(Dimension{1, 20})
          .Means("caption of the user's own text"),
      TextField("MiscDateName", 661, 12)
          .By(Dimension{1, 5})
          .Means("caption of the user's own date"),
      TextField("MiscCurrName", 721, 12)
          .By(Dimension{1, 5})
          .Means("caption of the user's own amount"),
  });
};

// Describes a place of a ".kvg" file. It contains one golfer or is free.
struct KelvaneGolferLayout {
  static constexpr std::string_view kName = "kelvane golfer";
  static constexpr std::size_t kLength = 2804;
  static constexpr Dimension kLines{1, 4, "line"};
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("Status", 0)
          .Means("1 or more: a golfer; else the place is free and may contain a former golfer's "
                 "bytes"),
      ByteField("MarkedToPrint", 2).Means("0: not marked"),
      ByteField("Reserved3", 3),
      Int32Field("IDNum", 4).Means("number of the golfer; transfers match golfers by it"),
      TextField("NameFirst", 8, 11),
      TextField("NameLast", 19, 16),
      ByteField("Sex", 35).Means("1: female; any other value: male"),
      TextField("AddressHomeLine", 36, 30).By(kLines),
      TextField("AddressWorkLine", 156, 30).By(kLines),
      TextField("PhoneHome", 276, 20),
      TextField("PhoneWork", 296, 20),
      TextField("PhoneFax", 316, 20),
      TextField("Email", 336, 60),
      TextField("GroupText", 396, 20),
      TextField("Flight", 416, 1),
      ByteField("GroupNumber", 417),
      SingleField("Index", 418).Means("handicap index in strokes; below 0: a plus index"),
      TextField("IndexText", 422, 5).Means("the index as it is shown"),
      SingleField("Handicap", 427).Means("strokes; below 0: a plus handicap"),
      TextField("HandicapText", 431, 6).Means("the handicap as it is shown; blank or `*`: none"),
      ByteField("Setting437", 437),
      SingleField("Value438", 438),
      SingleField("Value442", 442),
      Int16Field("HalfCourse", 446).Means("a nine that waits for its other half: course number"),
      ByteField("HalfTee", 448).Means("the waiting nine: tee number"),
      SingleField("HalfRating", 449).Means("the waiting nine: course rating in strokes"),
      ByteField("HalfSlope", 453).Means("the waiting nine: slope rating"),
      ByteField("HalfScore", 454).Means("the waiting nine: strokes; 0: no nine is waiting"),
      Int16Field("ScoreCounter", 455)
          .By(Dimension{1, 4, "counter"})
          .Means("1: scores in the history; 2: those on or after its date in the header; 3 and 4: "
                 "those after their dates; each counts up to 300"),
      TextField("MiscText1", 463, 30),
      TextField("MiscText2", 493, 20),
      TextField("MiscText3", 513, 20),
      TextField("MiscText4", 533, 10),
      TextField("MiscText5", 543, 10),
      DateField("MiscDate", 553).By(Dimension{1, 2}),
      CurrencyField("MiscCurrency", 569).By(Dimension{1, 5}),
      CurrencyField("Value609", 609),
      CurrencyField("Value617", 617),
      TextField("Text625", 625, 30),
      TextField("Comments", 655, 200),
      TextField("Reserved855", 855, 1949),
  });
};

namespace kelvane_fields {

// Describes an entry of a score history.
inline constexpr auto kScore = std::to_array<Field>({
    Int16Field("CourseNumber", 0).Means("in Kelvane's course library; 0: an away course"),
    ByteField("TeeNumber", 2).Means("0: none"),
    SingleField("Rating", 3).Means("course rating in strokes"),
    ByteField("Slope", 7).Means("slope rating"),
    DateField("Date", 8).Means("date of play"),
    ByteField("HoleScore", 16).By(Dimension{1, 18, "hole"}).Means("strokes"),
    ByteField("Gross", 34).Means("strokes"),
    ByteField("Adjusted", 35).Means("strokes that count for the handicap"),
    ByteField("ScoreType", 36).Means("0: plain; 2: tournament; 4: two nines joined"),
    Int16Field("HandicapPlayed", 37).Means("handicap played off, in strokes"),
    ByteField("Putts", 39).Means("number of putts"),
    ByteField("Fairways", 40).Means("number of fairways hit"),
    ByteField("Greens", 41).Means("number of greens hit"),
    TextField("Label", 42, 7),
});

constexpr auto InEachEntry() {
  auto fields = kScore;
  for (Field& field : fields) {
    field = field.InEach(Dimension{1, kKelvaneScores, "score"}, kKelvaneScoreLength);
  }
  return fields;
}

}  // namespace kelvane_fields

struct KelvaneScoreLayout {
  static constexpr std::string_view kName = "kelvane score";
  static constexpr std::size_t kLength = kKelvaneScoreLength;
  static constexpr auto kFields = kelvane_fields::kScore;
};

// Describes a record of a ".kvs" file. It contains the score history, newest first, of the golfer
// with the same record number.
struct KelvaneHistoryLayout {
  static constexpr std::string_view kName = "kelvane history";
  static constexpr std::size_t kLength = kKelvaneScores * kKelvaneScoreLength;
  static constexpr auto kFields = kelvane_fields::InEachEntry();
};

// Describes the only record of KVSYSTEM.FIL.
struct KelvaneSystemLayout {
  static constexpr std::string_view kName = "kelvane system";
  static constexpr std::size_t kLength = 733;
  static constexpr auto kFields = std::to_array<Field>({
      Int16Field("Version", 0)
          .Means("500; a file with any other value is replaced by the defaults"),
      TextField("RosterName", 2, 128),
      TextField("Setting130", 130, 60),
      Int16Field("Setting190", 190),
      ByteField("Setting192", 192),
      TextField("FontName", 193, 60).By(Dimension{1, 9}),
  });
};

// Describes a record of REPORTS.CFG, which is opened with a roster but never read or written.
struct KelvaneReportsLayout {
  static constexpr std::string_view kName = "kelvane reports";
  static constexpr std::size_t kLength = 4744;
  static constexpr auto kFields = std::to_array<Field>({KeptBytes(0, 4744)});
};

}  // namespace golf
