// The texts of a Windows console, without a console.

#include "cli/console_text.h"

#include <gtest/gtest.h>

#include <istream>
#include <iterator>
#include <ostream>
#include <vector>

namespace golf {
namespace {

TEST(ConsoleText, EveryCutOfATextWritesTheSameCharacters) {
  const struct {
    std::string utf8;
    std::u16string utf16;
  } kCases[] = {
      {"plain\r\n", u"plain\r\n"},
      {"H\xC3\xB6lzer", u"H\u00F6lzer"},
      {"\xE2\x82\xAC 5", u"\u20AC 5"},
      {"\xF0\x9F\x8F\x8C!", u"\U0001F3CC!"},
      {"\xF4\x8F\xBF\xBFx", u"\U0010FFFFx"},
      {"a\xFF"
       "b",
       u"a\uFFFD"
       u"b"},
      {"\xC3(", u"\uFFFD("},            // the end of a character is missing
      {"\xE2\x82x", u"\uFFFD\uFFFDx"},  // so is it here
      {"\xA9x", u"\uFFFDx"},            // the beginning is missing
      {"\xC0\x80x", u"\uFFFD\uFFFDx"},  // longer than it must be
      {"\xED\xA0\x80x", u"\uFFFDx"},    // half of a pair
      {"\xF5\x80x", u"\uFFFD\uFFFDx"},  // beyond the last character
      {std::string(9000, 'x') + "\xC3\xA9", std::u16string(9000, u'x') + u"\u00E9"},
  };
  for (const auto& c : kCases) {
    for (std::size_t cut = 0; cut <= std::min<std::size_t>(c.utf8.size(), 8); ++cut) {
      std::u16string written;
      ConsoleOutput buffer([&](std::u16string_view text) {
        EXPECT_LE(text.size(), 4096u);
        written += text;
        return true;
      });
      std::ostream stream(&buffer);
      stream << c.utf8.substr(0, cut) << std::flush << c.utf8.substr(cut) << std::flush;
      EXPECT_TRUE(written == c.utf16) << testing::PrintToString(c.utf8) << " cut at " << cut;
    }
  }
}

TEST(ConsoleText, ACharacterAtTheEndOfTheBufferIsNotCut) {
  for (std::size_t before = 4090; before <= 4098; ++before) {
    std::u16string written;
    ConsoleOutput buffer([&](std::u16string_view text) {
      written += text;
      return true;
    });
    std::ostream(&buffer) << std::string(before, 'x') << "\xF0\x9F\x8F\x8C" << std::flush;
    EXPECT_TRUE(written == std::u16string(before, u'x') + u"\U0001F3CC") << before;
  }
}

TEST(ConsoleText, AFailedConsoleFailsTheStream) {
  ConsoleOutput buffer([](std::u16string_view) { return false; });
  std::ostream stream(&buffer);
  EXPECT_FALSE(stream << "text" << std::flush);
}

TEST(ConsoleText, WhatIsTypedIsUtf8) {
  const struct {
    std::vector<std::u16string> pieces;
    std::string utf8;
  } kCases[] = {
      {{u"show\r\n", u"close\r\n"}, "show\r\nclose\r\n"},
      {{u"H\u00F6lzer \u20AC\n"}, "H\xC3\xB6lzer \xE2\x82\xAC\n"},
      {{u"\xD83C", u"\xDFCC\n"}, "\xF0\x9F\x8F\x8C\n"},  // a pair in two pieces
      {{u"\xDFCC\n"}, "\xEF\xBF\xBD\n"},
      {{u"\xD83Cx\n"}, "\xEF\xBF\xBDx\n"},
      {{u"one\n", u"\x1A\r\n", u"two\n"}, "one\n"},  // Ctrl+Z
      {{u"one ", u"\x1A\n", u"two\n"}, "one \x1A\ntwo\n"},
      {{}, ""},
  };
  for (const auto& c : kCases) {
    std::size_t next = 0;
    ConsoleInput buffer(
        [&] { return next < c.pieces.size() ? c.pieces[next++] : std::u16string(); });
    std::istream stream(&buffer);
    const std::string read{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(read, c.utf8);
  }
}

}  // namespace
}  // namespace golf
