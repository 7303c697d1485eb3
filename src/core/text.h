#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Text is single bytes in code page 1252. These functions know its letters; nothing else in the
// program changes the case of a text or compares texts without regard to case.

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// Blanks only: a NUL or a tab is content.
std::string_view Trim(std::string_view text);
std::string_view TrimRight(std::string_view text);

// "First Last", both trimmed; one of them alone where the other is blank.
std::string FullName(std::string_view first, std::string_view last);
// The full name, or "Golfer #12" for a golfer without a name whose ID number is 12.
std::string GolferTitle(std::string_view first, std::string_view last, std::int64_t id);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Below 0, 0 or above 0, by the 1252 codes of the texts in capitals.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// True where a text field holds nothing: it compares below "!".
bool IsBlankText(std::string_view text);

// `text` cut at `width` characters, or filled with blanks up to it.
std::string FitText(std::string_view text, std::size_t width);

// The last `count` characters, all of a shorter text.
std::string_view LastCharacters(std::string_view text, std::size_t count);

// A value of a line of CSV, in quotes where it needs them. UTF-8 is taken as well.
std::string CsvValue(std::string_view text);
// A line of CSV for a spreadsheet, without its end. A text that a spreadsheet would take for a
// formula (it begins with "=", "+", "-" or "@" and is no number) gets an apostrophe in front.
std::string CsvLine(const std::vector<std::string>& values);

enum class ReplaceMode : int { kDigitsToMarks = 1, kIgnoringCase = 2, kExact = 3 };

// kDigitsToMarks turns every digit into "#" and looks at neither `find` nor `replace`. The others
// replace `find` from left to right; the search goes on one character behind the start of the last
// hit, so what was put in can be found again. A pair in which `replace` holds `find` behind its
// first character would not end: that is the bad call of error 5.
std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace,
                        ReplaceMode mode);

}  // namespace golf
