#include "core/date_value.h"

#include <gtest/gtest.h>

#include "core/regional_forms.h"

namespace golf {
namespace {

constexpr char kPicture[] = "ddd d MMM yyyy HH:mm:ss";

TEST(DateValue, CountsDaysBothWays) {
  const struct {
    CivilTime civil;
    DateValue value;
    std::string text;
  } rows[] = {
      {{1899, 12, 30, 0, 0, 0}, 0, "Sat 30 Dec 1899 00:00:00"},
      {{1999, 5, 13, 12, 0, 0}, 36293.5, "Thu 13 May 1999 12:00:00"},
      {{2000, 2, 29, 18, 0, 0}, 36585.75, "Tue 29 Feb 2000 18:00:00"},
      {{1899, 12, 29, 6, 0, 0}, -1.25, "Fri 29 Dec 1899 06:00:00"},
      {{9999, 12, 31, 23, 59, 59}, 2958465 + 86399.0 / 86400, "Fri 31 Dec 9999 23:59:59"},
      {{100, 1, 1, 0, 0, 0}, -657434, "Fri 1 Jan 0100 00:00:00"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(DateFromCivil(row.civil), row.value) << row.text;
    EXPECT_EQ(FormatPicture(CivilFromDate(row.value), kPicture), row.text);
  }
  EXPECT_EQ(FormatPicture(CivilFromDate(0.999999), "d H:m:s"), "31 0:0:0");
  EXPECT_EQ(FormatPicture({2007, 3, 4, 13, 5, 9}, "dddd MMMM yy y hh h tt 'h''s'q\xE9"),
            "Sunday March 07 7 01 1 PM hsq\xE9");
  EXPECT_EQ(FormatPicture({2007, 3, 4, 0, 5, 9}, "h t 'open"), "12 A open");
}

TEST(DateValue, ParseMoment) {
  CivilTime moment;
  ASSERT_TRUE(ParseMoment("2024-02-29 23:59:07", moment));
  EXPECT_EQ(FormatPicture(moment, "yyyy-MM-dd HH:mm:ss"), "2024-02-29 23:59:07");
  for (const char* wrong :
       {"", "2024-02-29", "2023-02-29 00:00:00", "2024-02-29T23:59:07", "2024-13-01 00:00:00",
        "2024-01-01 24:00:00", "2024-01-01 00:60:00", "2024-01-01 00:00:60", "0099-01-01 00:00:00",
        "2024-01-01 00:00:0x", "2024-01-01 00:00:000", "2024-01-01 -0:00:00"}) {
    EXPECT_FALSE(ParseMoment(wrong, moment)) << wrong;
  }
}

TEST(DateValue, DaysAreReadInADateFormat) {
  const std::string rows[][3] = {
      {" 2/29/24 ", "mm/dd/yy", "2024-02-29"},
      {"31.12.29", "dd.mm.yy", "2029-12-31"},
      {"30-01-02", "yy-mm-dd", "1930-01-02"},
      {"29.02.2023", "dd.mm.yy", ""},
      {"01.02.024", "dd.mm.yy", ""},
      {"01.02.24x", "dd.mm.yy", ""},
      {"13/01/24", "mm/dd/yy", ""},
      {"", "", ""},
  };
  for (const auto& [text, format, expected] : rows) {
    const auto day = ParseDay(text, format);
    EXPECT_EQ(day ? FormatDay(*day, "yyyy-mm-dd") : "", expected) << text;
  }
}

TEST(RegionalForms, DatesAreReadOffWhatThePlatformWrites) {
  const DateValue now = DateFromCivil({2026, 11, 7, 9, 30, 0});
  const struct {
    std::string picture, format, mask;
  } rows[] = {
      {"M/d/yyyy", "mm/dd/yy", "##/##/##"},
      {"MM-dd-yy", "mm-dd-yy", "##-##-##"},
      {"dd.MM.yyyy", "dd.mm.yy", "##.##.##"},
      {"d/M/yy", "dd/mm/yy", "##/##/##"},
      {"yyyy-MM-dd", "yy-mm-dd", "##-##-##"},
      {"yy/MM/dd", "yy/mm/dd", "##/##/##"},
      {"d MMMM yyyy", "dd mm yy", "## ## ##"},
      {"ddd d.M.yy", "mmSddSyy", "##S##S##"},
      {"ddMMyyyy.", "dd/mm/yy", "##/##/##"},  // the search does not reach this separator
      {"", "mm/dd/yy", "##/##/##"},
  };
  for (const auto& row : rows) {
    const DateForms found = DetectDateForms({row.picture, ""}, now);
    EXPECT_EQ(found.format, row.format) << row.picture;
    EXPECT_EQ(found.mask, row.mask) << row.picture;
  }
}

TEST(RegionalForms, TimesAreReadOffWhatThePlatformWrites) {
  const std::pair<std::string, std::string> rows[] = {
      {"H:mm:ss", ":"}, {"H.mm.ss", "."}, {"h:mm:ss tt", ":"}, {"HH'h'mm", "h"}, {"tt h:mm", "A"},
      {"HHmmss", ":"},  {"", ":"}};
  for (const auto& [picture, separator] : rows) {
    const TimeForms found = DetectTimeForms({"", picture});
    EXPECT_EQ(found.separator, separator) << picture;
    EXPECT_EQ(found.mask, "##" + separator + "##") << picture;
  }
}

}  // namespace
}  // namespace golf
