#pragma once

#include <string>
#include <string_view>

namespace golf {

// These texts are the choices for a header line of a layout.
inline constexpr std::string_view kHeaderChoices[] = {
    "(Tournament Name)", "(Course Name Played)", "(Date - <RoundDate>)",
    "(Current Round - <Round#> on <RoundDate>)", "(No line)"};

// Contains the values for the placeholders of a header line.
struct HeaderValues {
  std::string tournament;
  std::string course;  // of the round
  std::string round;   // its number
  std::string date;    // of the round
};

// Returns a header line as a report shows it. Replaces "(Tournament Name)", "(Course Name Played)",
// "<Round#>" and "<RoundDate>" by their values anywhere in the text, and removes the parentheses
// around a choice. Upper and lower case are equal in these texts. Returns an empty text for the
// choice "(No line)".
std::string HeaderLine(std::string_view text, const HeaderValues& values);

}  // namespace golf
