#pragma once

#include <string>

#include "core/date_value.h"

namespace golf {

// Contains the platform's formats of dates and times, as pictures for FormatPicture.
struct RegionalForms {
  std::string short_date = "MM/dd/yy";
  std::string long_time = "HH:mm:ss";
  bool decimal_comma = false;  // true if numbers have a decimal comma
};

// Contains the formats in which the program shows and reads dates.
struct DateForms {
  std::string format = "mm/dd/yy";
  std::string mask = "##/##/##";
};

struct TimeForms {
  std::string separator = ":";
  std::string mask = "##:##";
};

// Detect the separator from a sample in the platform's format. DetectDateForms also detects the
// order of day, month and year. After an error it returns what it has detected so far.
DateForms DetectDateForms(const RegionalForms& forms, DateValue now);
TimeForms DetectTimeForms(const RegionalForms& forms);

}  // namespace golf
