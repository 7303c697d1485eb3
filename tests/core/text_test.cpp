#include "core/text.h"

#include <gtest/gtest.h>

#include "core/code_page.h"
#include "core/file_name.h"
#include "support/error_of.h"

namespace golf {
namespace {

TEST(Text, CaseOfTheLettersOfTheCodePage) {
  // The multiplication and division signs, sharp s and the undefined bytes have no case.
  const std::string lower = "az\xE0\xE9\xFE\xFF\x9A\x9C\x9E \xDF\xF7\xD7\x81@[`{1";
  const std::string upper = "AZ\xC0\xC9\xDE\x9F\x8A\x8C\x8E \xDF\xF7\xD7\x81@[`{1";
  EXPECT_EQ(UpperCase(lower), upper);
  EXPECT_EQ(LowerCase(upper), lower);
  EXPECT_TRUE(EqualIgnoringCase(lower, upper));
  EXPECT_FALSE(EqualIgnoringCase("ab", "abc"));
  EXPECT_LT(CompareIgnoringCase("Zoe", "\xE9va"), 0);  // compared by codes, not by the alphabet
  EXPECT_GT(CompareIgnoringCase("ab", "A"), 0);
  EXPECT_LT(CompareIgnoringCase("a", "_"), 0);  // compared as capitals
}

TEST(Text, BlanksAndWidths) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim(std::string("\0 \t ", 4)), std::string("\0 \t", 3));
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimRight("  a "), "  a");
  for (const std::string blank : {"", "   ", " x", "\t"}) EXPECT_TRUE(IsBlankText(blank)) << blank;
  EXPECT_TRUE(IsBlankText(std::string(3, '\0')));
  for (const std::string full : {"!", "!a", "x ", "\xE9"}) EXPECT_FALSE(IsBlankText(full)) << full;
  EXPECT_EQ(FitText("abc", 5), "abc  ");
  EXPECT_EQ(FitText("abc", 2), "ab");
  EXPECT_EQ(LastCharacters("name  00012", 5), "00012");
  EXPECT_EQ(LastCharacters("12", 5), "12");
}

TEST(Text, ASpreadsheetTakesNoTextForAFormula) {
  for (const std::string plain : {"+1", "-12.5", "1=2", ""}) {
    EXPECT_EQ(CsvLine({plain, "x"}), plain + ",x");
  }
  for (const std::string formula : {"=1+1", "@x", "-", "+A1", "-1-2", "+1.2.3"}) {
    EXPECT_EQ(CsvLine({formula, "x"}), "'" + formula + ",x");
  }
  EXPECT_EQ(CsvLine({"-1,5", "=\"a\""}), "\"-1,5\",\"'=\"\"a\"\"\"");
}

TEST(FileName, OneRuleForAllSystems) {
  for (const char* good : {"Club 18", "\xC9t\xE9.99", "CONTRACT", "COM", "LPT10", ".."}) {
    EXPECT_EQ(FileNameFault(good), "") << good;
  }
  for (const char* wrong : {"../../evil", "a:b", "x*", "a\nb"}) {
    EXPECT_EQ(FileNameFault(wrong), "cannot hold any of the characters \\ / : * ? \" < > |")
        << wrong;
  }
  const std::pair<const char*, std::string> devices[] = {{"con", "CON"},
                                                         {"Nul .txt", "NUL"},
                                                         {"com1", "COM1"},
                                                         {"LPT\xB2", "LPT\xB2"},
                                                         {"conin$.x", "CONIN$"}};
  for (const auto& [name, device] : devices) {
    EXPECT_EQ(FileNameFault(name), "cannot be " + device + ", which Windows keeps for a device");
  }
}

TEST(Text, ReplaceText) {
  constexpr auto kDigits = ReplaceMode::kDigitsToMarks;
  constexpr auto kFolded = ReplaceMode::kIgnoringCase;
  constexpr auto kExact = ReplaceMode::kExact;
  const struct {
    std::string text, find, replace;
    ReplaceMode mode;
    std::string result;
  } rows[] = {
      {"13.05.99 at 7", "1", "x", kDigits, "##.##.## at #"},
      {"a\xE9-A\xC9", "A\xE9", "x", kFolded, "x-x"},
      {"a\xE9-A\xC9", "A\xC9", "x", kExact, "a\xE9-x"},
      {"abc", "", "x", kExact, "abc"},
      {"none", "x", "axx", kExact, "none"},
      // The search continues one character after the start of the last match.
      {"aaaa", "a", "", kExact, "aa"},
      {"abab", "ab", "aba", kExact, "abaaba"},
      {"xaab", "ab", "b", kExact, "xab"},
      {"abb", "ab", "xa", kExact, "xxa"},  // the replacement and the text after it match together
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ReplaceText(row.text, row.find, row.replace, row.mode), row.result) << row.text;
  }
  EXPECT_EQ(ErrorOf([] { ReplaceText("a", "a", "ba", kExact); }), 5);
  EXPECT_EQ(ErrorOf([] { ReplaceText("A", "a", "bA", kFolded); }), 5);
  EXPECT_EQ(ErrorOf([] { ReplaceText("a", "a", "bA", kExact); }), 0);
}

TEST(CodePage, ComesBackFromUtf8) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    EXPECT_EQ(TextFromUtf8(Utf8FromText(byte)), byte) << code;
  }

  const struct {
    std::string utf8, text;
  } rows[] = {
      {"\u20AC\u00E9\u0178", "\x80\xE9\x9F"},
      {"\u0081\u009D", "\x81\x9D"},
      {"a\u0142\u2192\u0905\U0001F3CC", "a????"},
      {"\u0080", "?"},  // that byte is the Euro sign
      // These texts are invalid UTF-8: a single byte, a truncated sequence, and overlong sequences.
      {"caf\xE9 x\xE2\x82", "caf\xE9 x\xE2\x82"},
      {"\xE0\x80\xAF\xC0\xAF", "\xE0\x80\xAF\xC0\xAF"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(TextFromUtf8(row.utf8), row.text) << row.utf8;
  }
}

}  // namespace
}  // namespace golf
