#pragma once

#include <string>

#include "core/date_value.h"

namespace golf {

// The platform's way to write dates and times, as pictures of FormatPicture.
struct RegionalForms {
  std::string short_date = "MM/dd/yy";
  std::string long_time = "HH:mm:ss";
  bool decimal_comma = false;  // how numbers are written
};

// How dates are shown and typed, found out from the short date form.
struct DateForms {
  std::string format = "mm/dd/yy";
  std::string mask = "##/##/##";
};

struct TimeForms {
  std::string separator = ":";
  std::string mask = "##:##";
};

// The order of day, month and year, and the separator, read off dates that the platform has
// written. A fault leaves what was found up to there.
DateForms DetectDateForms(const RegionalForms& forms, DateValue now);
TimeForms DetectTimeForms(const RegionalForms& forms);

}  // namespace golf
