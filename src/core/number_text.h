#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace golf {

// Returns the number at the start of a text. Ignores blanks before it and all text after it.
// Returns 0 if there is no number or it does not fit a double.
double LeadingNumber(std::string_view text);
// Does the same, but returns no value instead of 0 in that case.
std::optional<double> ReadLeadingNumber(std::string_view text);

// Returns the number in decimal. The first character is a minus sign or a blank.
std::string NumberText(std::int64_t value);
// Returns the number in decimal, or an empty text if there is no number.
inline std::string TextOrEmpty(const std::optional<std::int32_t>& number) {
  return number ? std::to_string(*number) : "";
}

// Returns `value` as text in a format pattern. In a pattern "0" is a digit that is always shown,
// "#" is a digit that is shown if the number has it, "." is the decimal point, and "," separates
// groups of three digits. Text in double quotes and any other character are copied. Up to three
// sections separated by ";" apply to positive, negative and zero values. The value before rounding
// selects the section. The value is rounded half away from zero, starting from the shortest decimal
// text that identifies it. For a float this is the shortest text among floats. NaN and the
// infinities become "NaN", "Infinity" and "-Infinity".
std::string FormatNumber(double value, std::string_view pattern);
std::string FormatNumber(float value, std::string_view pattern);
std::string FormatNumber(std::int64_t value, std::string_view pattern);
inline std::string FormatNumber(int value, std::string_view pattern) {
  return FormatNumber(std::int64_t{value}, pattern);
}

// Returns the text as a whole number. The text must consist of an optional minus sign and digits.
// Returns no value if it does not, or if the number exceeds 64 bits.
std::optional<std::int64_t> ReadWholeNumber(std::string_view text);

// Return a handicap in strokes as text, with two decimals or none. A negative handicap is a plus
// handicap. FormatPlusHandicap shows it with a plus sign, FormatSignedHandicap with a minus sign.
std::string FormatPlusHandicap(double value, bool decimals);
std::string FormatSignedHandicap(double value, bool decimals);

// Round to a whole number, half to even. Raise error 6 if the result does not fit or the value is
// NaN.
std::int16_t RoundToInt16(double value);
std::int32_t RoundToInt32(double value);

// Convert to a narrower type. Raise error 6 if the value does not fit.
std::int16_t CheckedInt16(std::int64_t value);
float CheckedSingle(double value);  // NaN and the infinities are kept

}  // namespace golf
