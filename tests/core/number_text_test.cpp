#include "core/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "support/error_of.h"

namespace golf {
namespace {

TEST(NumberText, FormatNumber) {
  const struct {
    std::string pattern;
    std::vector<std::pair<double, std::string>> values_and_texts;
  } rows[] = {
      {"0", {{0, "0"}, {0.5, "1"}, {-2.5, "-3"}, {1e22, "10000000000000000000000"}}},
      {"000", {{7, "007"}, {123456, "123456"}}},
      {"00.0", {{71.25, "71.3"}, {9.96, "10.0"}, {-3.2, "-03.2"}}},
      {"0.0", {{0.049, "0.0"}, {0.05, "0.1"}}},
      // The decimal text is rounded, not the binary value. The value before rounding determines the
      // sign.
      {"0.00", {{1.005, "1.01"}, {2.675, "2.68"}, {-0.001, "-0.00"}}},
      {" 0", {{3, " 3"}, {12, " 12"}}},
      {"#0.0;+0.0", {{5.25, "5.3"}, {0.4, "0.4"}, {-1.5, "+1.5"}}},
      {"0.00;-0.00", {{-0.04, "-0.04"}, {12.49501, "12.50"}}},
      {"$#,##0.00", {{1234567.891, "$1,234,567.89"}, {-999.999, "-$1,000.00"}, {0.5, "$0.50"}}},
      {"#0; ; ", {{4, "4"}, {0, " "}, {-4, " "}}},  // a section without digits shows no digits
      {"0;;", {{0, ""}, {-17, ""}, {17, "17"}}},
      {"0.##", {{0.199, "0.2"}}},
      {"0 \"of; 9\"", {{3, "3 of; 9"}}},
  };
  for (const auto& [pattern, values_and_texts] : rows) {
    for (const auto& [value, text] : values_and_texts) {
      EXPECT_EQ(FormatNumber(value, pattern), text) << value << " " << pattern;
    }
  }
  // A float is rounded by its shortest text. As a double this value is 2.3499999.
  EXPECT_EQ(FormatNumber(2.35f, "0.0"), "2.4");
  EXPECT_EQ(FormatNumber(-0.05f, "0.0;+0.0"), "+0.1");
  EXPECT_EQ(FormatNumber(std::numeric_limits<std::int64_t>::min(), "0"), "-9223372036854775808");
  EXPECT_EQ(FormatNumber(120, "#,##0.0"), "120.0");
  EXPECT_EQ(FormatNumber(std::nan(""), "0.0"), "NaN");
  EXPECT_EQ(FormatNumber(-INFINITY, "000"), "-Infinity");
}

TEST(NumberText, LeadingNumber) {
  const std::pair<std::string, double> rows[] = {
      {"", 0},       {"   ", 0},  {"  12 holes", 12}, {"-3.5x", -3.5}, {"+4", 4},    {".5", 0.5},
      {"5.", 5},     {"- 5", 0},  {"--5", 0},         {"abc1", 0},     {"inf", 0},   {"nan", 0},
      {"1e3", 1000}, {"1e", 1},   {"0x10", 0},        {"00012 ", 12},  {"1,234", 1}, {"1e999", 0},
      {".", 0},      {"5/13", 5}, {"\t5", 0}};
  for (const auto& [text, value] : rows) EXPECT_EQ(LeadingNumber(text), value) << text;
  EXPECT_EQ(NumberText(7), " 7");
  EXPECT_EQ(NumberText(0), " 0");
  EXPECT_EQ(NumberText(-7), "-7");
}

TEST(NumberText, WholeNumbersRoundHalfToEvenAndFit) {
  const std::pair<double, int> rows[] = {{0.5, 0},         {1.5, 2},          {2.5, 2},
                                         {-0.5, 0},        {-1.5, -2},        {2.500001, 3},
                                         {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& [value, whole] : rows) {
    EXPECT_EQ(RoundToInt16(value), whole) << value;
    EXPECT_EQ(RoundToInt32(value), whole) << value;
  }
  EXPECT_EQ(RoundToInt32(2147483647.4), 2147483647);
  for (const double value : {32767.5, -32768.6, 1e300, std::nan(""), double{INFINITY}}) {
    EXPECT_EQ(ErrorOf([&] { RoundToInt16(value); }), 6) << value;
  }
  EXPECT_EQ(ErrorOf([] { RoundToInt32(2147483647.5); }), 6);
  EXPECT_EQ(CheckedInt16(-32768), -32768);
  EXPECT_EQ(ErrorOf([] { CheckedInt16(32768); }), 6);
}

}  // namespace
}  // namespace golf
