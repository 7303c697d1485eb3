#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Text is single bytes in code page 1252. All changes of case and all comparisons without regard to
// case in the program use these functions.

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// Remove blanks only. A NUL or a tab is content.
std::string_view Trim(std::string_view text);
std::string_view TrimRight(std::string_view text);

// Returns "First Last", both trimmed, or one of them alone if the other is blank.
std::string FullName(std::string_view first, std::string_view last);
// Returns the full name, or "Golfer #12" for a golfer without a name whose ID is 12.
std::string GolferTitle(std::string_view first, std::string_view last, std::int64_t id);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Compares the 1252 codes of the texts in capitals. Returns a number below 0, 0, or above 0.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// Returns true if a text field counts as blank: it compares below "!".
bool IsBlankText(std::string_view text);

// Returns `text` cut at `width` characters, or filled with blanks up to it.
std::string FitText(std::string_view text, std::size_t width);

// Returns the last `count` characters, or the whole of a shorter text.
std::string_view LastCharacters(std::string_view text, std::size_t count);

// Returns a value for a line of CSV, in quotes if it needs them. The text may also be UTF-8.
std::string CsvValue(std::string_view text);
// Returns a line of CSV for a spreadsheet, without a line end. A text that a spreadsheet would read
// as a formula gets an apostrophe in front: it begins with "=", "+", "-" or "@" and is not a
// number.
std::string CsvLine(const std::vector<std::string>& values);

enum class ReplaceMode : int { kDigitsToMarks = 1, kIgnoringCase = 2, kExact = 3 };

// kDigitsToMarks turns every digit into "#" and ignores `find` and `replace`. The other modes
// replace `find` from left to right. The search continues one character behind the start of the
// last hit, so replaced text can be found again. If `replace` holds `find` behind its first
// character, the search would not end: a hit then raises error 5.
std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace,
                        ReplaceMode mode);

}  // namespace golf
