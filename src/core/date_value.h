#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace golf {

// Days since 30 December 1899. The fraction is the time of day.
using DateValue = double;

struct CivilTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// Returns the whole days plus seconds / 86400. Before day 0 the fraction is subtracted instead. The
// parts must form a valid date and time.
DateValue DateFromCivil(const CivilTime& civil);

// Converts to the nearest second. IsDate(date) must be true.
CivilTime CivilFromDate(DateValue date);

// Reads "YYYY-MM-DD HH:MM:SS". Returns false if the text has another form or is not a valid date
// and time; `moment` may have changed then.
bool ParseMoment(std::string_view text, CivilTime& moment);

// Returns `civil` in a regional form. A picture holds the elements d dd ddd dddd M MM MMM MMMM y yy
// yyyy h hh H HH m mm s ss t tt and text in single quotes. Any other character stands for itself.
// Names of days and months are English.
std::string FormatPicture(const CivilTime& civil, std::string_view picture);

// Returns true if the value is finite and lies in the years 100 to 9999.
bool IsDate(DateValue date);

// Returns the day of `date` in a date format such as "dd.mm.yy", or an empty text if IsDate(date)
// is false.
std::string FormatDay(DateValue date, std::string_view date_format);

// Reads a day written in a date format. Blanks around it, a day or month of one digit and a year of
// four digits are accepted too. A year of two digits lies in 1930 to 2029. Returns no value if the
// text has another form or is not a valid day.
std::optional<DateValue> ParseDay(std::string_view text, std::string_view date_format);

}  // namespace golf
