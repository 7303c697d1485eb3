#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace golf {

// Days since 30 December 1899, the fraction being the time of day.
using DateValue = double;

struct CivilTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// Whole days plus seconds / 86400, in double precision.
DateValue DateFromCivil(const CivilTime& civil);

// To the nearest second. The value must be a date: finite, in the years 100 to 9999.
CivilTime CivilFromDate(DateValue date);

// Reads "YYYY-MM-DD HH:MM:SS". False where the text has another form or names no moment.
bool ParseMoment(std::string_view text, CivilTime& moment);

// `civil` in a regional form: d dd ddd dddd M MM MMM MMMM y yy yyyy h hh H HH m mm s ss t tt, text
// in single quotes, any other character for itself. Names of days and months are English.
std::string FormatPicture(const CivilTime& civil, std::string_view picture);

// Finite, and in the years 100 to 9999.
bool IsDate(DateValue date);

// The day of `date` in a date format such as "dd.mm.yy"; empty for a value that is no date.
std::string FormatDay(DateValue date, std::string_view date_format);

// Reads a day that is written in a date format: blanks around it, a day or month of one digit and a
// year of four are taken too, and a year of two lies in 1930 to 2029. Nothing where the text has
// another form or names no day.
std::optional<DateValue> ParseDay(std::string_view text, std::string_view date_format);

}  // namespace golf
