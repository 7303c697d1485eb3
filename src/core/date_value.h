#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace golf {

// Holds a date and time as the number of days since 30 December 1899. The fraction is the time of
// day.
using DateValue = double;

struct CivilTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// Returns the whole days plus seconds / 86400. Subtracts the fraction instead if the day is before
// day 0. The parts must form a valid date and time.
DateValue DateFromCivil(const CivilTime& civil);

// Converts a date value, rounded to the nearest second. IsDate(date) must be true.
CivilTime CivilFromDate(DateValue date);

// Reads "YYYY-MM-DD HH:MM:SS". Returns false if the text has another form or is not a valid date
// and time. It may have changed `moment` in that case.
bool ParseMoment(std::string_view text, CivilTime& moment);

// Returns `civil` in a regional form. A picture consists of the elements d dd ddd dddd M MM MMM
// MMMM y yy yyyy h hh H HH m mm s ss t tt and of text in single quotes. Any other character is
// copied. Names of days and months are English.
std::string FormatPicture(const CivilTime& civil, std::string_view picture);

// Returns true if the value is finite and in the years 100 to 9999.
bool IsDate(DateValue date);

// Returns the day of `date` in a date format such as "dd.mm.yy". Returns an empty text if
// IsDate(date) is false.
std::string FormatDay(DateValue date, std::string_view date_format);

// Reads a day written in a date format. Also accepts blanks around the day, a day or month of one
// digit, and a year of four digits. Reads a year of two digits as 1930 to 2029. Returns no value if
// the text has another form or is not a valid day.
std::optional<DateValue> ParseDay(std::string_view text, std::string_view date_format);

}  // namespace golf
