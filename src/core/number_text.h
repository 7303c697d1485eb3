#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace golf {

// The number at the start of a text: blanks before it are passed over, anything behind it is left
// alone. 0 where there is none, or where it is too large for a double.
double LeadingNumber(std::string_view text);
// The same for a caller that must tell no number from 0.
std::optional<double> ReadLeadingNumber(std::string_view text);

// The platform's number-to-text form: a blank stands before a number that is not negative.
std::string NumberText(std::int64_t value);

// `value` in a format pattern: "0" a digit, "#" a digit if there is one, "." the point, "," groups
// of three, text in double quotes and any other character stand for themselves. Up to three
// sections parted by ";" serve positive, negative and zero values; the section goes by the value
// before it is rounded. Rounds half away from zero on the shortest decimal text that names the
// value, for a single the shortest among singles. NaN and the infinities give their names.
std::string FormatNumber(double value, std::string_view pattern);
std::string FormatNumber(float value, std::string_view pattern);
std::string FormatNumber(std::int64_t value, std::string_view pattern);
inline std::string FormatNumber(int value, std::string_view pattern) {
  return FormatNumber(std::int64_t{value}, pattern);
}

// The text as a whole number: an optional minus and digits, nothing else. Nothing where it is none,
// or one beyond 64 bits.
std::optional<std::int64_t> ReadWholeNumber(std::string_view text);

// The two forms in which handicaps are shown, with two decimals or none. One below zero is better
// than par: the plus form shows it with a plus sign, the signed form with its minus.
std::string FormatPlusHandicap(double value, bool decimals);
std::string FormatSignedHandicap(double value, bool decimals);

// Whole numbers by rounding half to even. Error 6 where the result leaves the width, and for NaN.
std::int16_t RoundToInt16(double value);
std::int32_t RoundToInt32(double value);

// Error 6 where the value leaves the width.
std::int16_t CheckedInt16(std::int64_t value);
float CheckedSingle(double value);  // NaN and the infinities pass

}  // namespace golf
