#pragma once

#include <string>

#include "core/date_value.h"

namespace golf {

// The platform's forms of dates and times, as pictures for FormatPicture.
struct RegionalForms {
  std::string short_date = "MM/dd/yy";
  std::string long_time = "HH:mm:ss";
  bool decimal_comma = false;  // true if numbers are written with a decimal comma
};

// The forms in which dates are shown and typed.
struct DateForms {
  std::string format = "mm/dd/yy";
  std::string mask = "##/##/##";
};

struct TimeForms {
  std::string separator = ":";
  std::string mask = "##:##";
};

// Detect the separator, and for dates the order of day, month and year, from a sample written in
// the platform's form. After an error DetectDateForms returns what it has found so far.
DateForms DetectDateForms(const RegionalForms& forms, DateValue now);
TimeForms DetectTimeForms(const RegionalForms& forms);

}  // namespace golf
