#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Text consists of single bytes in code page 1252. All changes of case and all comparisons without
// regard to case in the program use these functions.

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// Remove leading and trailing blanks, or only trailing ones. A NUL or a tab is not a blank.
std::string_view Trim(std::string_view text);
std::string_view TrimRight(std::string_view text);

// Returns the text without the blanks and NULs that pad a field.
std::string WithoutPadding(std::string_view text);

// Returns "First Last", both trimmed, or only one of them if the other is blank.
std::string FullName(std::string_view first, std::string_view last);
// Returns the full name, or a text such as "Golfer #12" with the ID if the name is blank.
std::string GolferTitle(std::string_view first, std::string_view last, std::int64_t id);
// Returns "Last, First", or for example "Golfer #12" if the golfer has no full name.
std::string GolferTitleLF(std::string_view first, std::string_view last, std::int64_t id);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Compares the 1252 codes of the texts in capitals. Returns a negative number, 0, or a positive
// number.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// Returns true if a text field counts as blank, which means that it compares below "!".
bool IsBlankText(std::string_view text);

// Returns `text` cut at `width` characters, or filled with blanks to that width.
std::string FitText(std::string_view text, std::size_t width);

// Returns the last `count` characters, or the whole text if it is shorter.
std::string_view LastCharacters(std::string_view text, std::size_t count);

// Returns a value for a line of CSV, in quotes if necessary. The text may also be UTF-8.
std::string CsvValue(std::string_view text);
// Returns true for a text that a spreadsheet would read as a formula. Such a text begins with "=",
// "+", "-" or "@" and is not a number.
bool LooksLikeFormula(std::string_view text);
// Returns a line of CSV for a spreadsheet, without a line end. Puts an apostrophe before a text
// that looks like a formula.
std::string CsvLine(const std::vector<std::string>& values);

enum class ReplaceMode : int { kDigitsToMarks = 1, kIgnoringCase = 2, kExact = 3 };

// Returns the text with replacements. kDigitsToMarks replaces every digit by "#" and ignores `find`
// and `replace`. The other modes replace `find` from left to right. The search continues one
// character after the start of the last match, so it can also match replaced text. Raises error 5
// on a match if `replace` contains `find` after its first character, since the search would never
// end.
std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace,
                        ReplaceMode mode);

}  // namespace golf
