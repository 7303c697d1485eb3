#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace golf {

// Returns the number at the start of a text. Blanks before it and anything behind it are ignored.
// Returns 0 if there is no number or it does not fit a double.
double LeadingNumber(std::string_view text);
// Does the same, but returns no value in that case.
std::optional<double> ReadLeadingNumber(std::string_view text);

// Returns the number in decimal, with a blank in place of the sign if it is not negative.
std::string NumberText(std::int64_t value);

// Returns `value` in a format pattern. "0" is a digit, "#" a digit if there is one, "." the decimal
// point, "," groups of three. Text in double quotes and any other character stand for themselves.
// Up to three sections separated by ";" apply to positive, negative and zero values. The value
// before rounding selects the section. The value is rounded half away from zero, from the shortest
// decimal text that identifies it, for a float the shortest among floats. NaN and the infinities
// give "NaN", "Infinity" and "-Infinity".
std::string FormatNumber(double value, std::string_view pattern);
std::string FormatNumber(float value, std::string_view pattern);
std::string FormatNumber(std::int64_t value, std::string_view pattern);
inline std::string FormatNumber(int value, std::string_view pattern) {
  return FormatNumber(std::int64_t{value}, pattern);
}

// Returns the text as a whole number. The text must be an optional minus and digits, with nothing
// else. Returns no value if it is not, or if the number exceeds 64 bits.
std::optional<std::int64_t> ReadWholeNumber(std::string_view text);

// Return a handicap in strokes as text, with two decimals or none. A negative handicap is a plus
// handicap. The plus form shows it with a plus sign, the signed form with a minus.
std::string FormatPlusHandicap(double value, bool decimals);
std::string FormatSignedHandicap(double value, bool decimals);

// Round to a whole number, half to even. Error 6 if the result does not fit, and for NaN.
std::int16_t RoundToInt16(double value);
std::int32_t RoundToInt32(double value);

// Convert to a narrower type. Error 6 if the value does not fit.
std::int16_t CheckedInt16(std::int64_t value);
float CheckedSingle(double value);  // NaN and the infinities are kept

}  // namespace golf
