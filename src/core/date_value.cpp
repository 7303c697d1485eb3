#include "core/date_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

#include "core/text.h"

namespace golf {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;

constexpr sys_days kDayZero = sys_days(year(1899) / 12 / 30);
constexpr int kSecondsADay = 86400;

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, 7> kDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

sys_days DayOf(const CivilTime& civil) {
  return sys_days(year(civil.year) / month(static_cast<unsigned>(civil.month)) /
                  day(static_cast<unsigned>(civil.day)));
}

std::string Digits(int value, std::size_t least) {
  const std::string text = std::to_string(value);
  return text.size() >= least ? text : std::string(least - text.size(), '0') + text;
}

// Returns the number in digits if `letters` is 1 or 2, the first three letters of the name if it is
// 3, and the whole name if it is more.
std::string NumberOrName(int value, std::string_view name, std::size_t letters) {
  if (letters <= 2) return Digits(value, letters);
  return std::string(letters == 3 ? name.substr(0, 3) : name);
}

std::string Element(const CivilTime& civil, char kind, std::size_t letters) {
  const std::chrono::weekday weekday(DayOf(civil));
  const int hour12 = civil.hour % 12 == 0 ? 12 : civil.hour % 12;
  switch (kind) {
    case 'd':
      return NumberOrName(civil.day, kDays[weekday.c_encoding()], letters);
    case 'M':
      return NumberOrName(civil.month, kMonths[static_cast<std::size_t>(civil.month - 1)], letters);
    case 'y':
      return letters > 2 ? Digits(civil.year, 4) : Digits(civil.year % 100, letters);
    case 'h':
      return Digits(hour12, std::min<std::size_t>(letters, 2));
    case 'H':
      return Digits(civil.hour, std::min<std::size_t>(letters, 2));
    case 'm':
      return Digits(civil.minute, std::min<std::size_t>(letters, 2));
    case 's':
      return Digits(civil.second, std::min<std::size_t>(letters, 2));
    default:
      return std::string(civil.hour < 12 ? "AM" : "PM").substr(0, letters);
  }
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool ReadNumber(std::string_view text, std::size_t start, std::size_t length, int low, int high,
                int& value) {
  const std::string_view part = text.substr(start, length);
  const auto read = std::from_chars(part.data(), part.data() + part.size(), value);
  return read.ec == std::errc() && read.ptr == part.data() + part.size() && value >= low &&
         value <= high;
}

// Reads the digits of a day, month or year at the start of `text`. Returns the number of digits
// read, or 0 if they are not a valid day, month or year.
std::size_t ReadDatePart(std::string_view text, char kind, CivilTime& civil) {
  const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
  const auto count = static_cast<std::size_t>(end - text.begin());
  bool read = count > 0;
  if (kind == 'd') read = ReadNumber(text, 0, count, 1, 31, civil.day);
  if (kind == 'm') read = ReadNumber(text, 0, count, 1, 12, civil.month);
  if (kind == 'y' && count == 4) read = ReadNumber(text, 0, count, 100, 9999, civil.year);
  if (kind == 'y' && count != 4) {
    read = count == 2 && ReadNumber(text, 0, count, 0, 99, civil.year);
    civil.year += civil.year < 30 ? 2000 : 1900;
  }
  return read ? count : 0;
}

}  // namespace

DateValue DateFromCivil(const CivilTime& civil) {
  const auto whole = (DayOf(civil) - kDayZero).count();
  const double part =
      static_cast<double>((civil.hour * 60 + civil.minute) * 60 + civil.second) / kSecondsADay;
  // The fraction is subtracted from a day before day 0.
  return whole < 0 ? static_cast<double>(whole) - part : static_cast<double>(whole) + part;
}

CivilTime CivilFromDate(DateValue date) {
  double whole = std::trunc(date);
  auto seconds = static_cast<int>(std::lround(std::abs(date - whole) * kSecondsADay));
  if (seconds == kSecondsADay) {
    seconds = 0;
    whole += 1;
  }
  const std::chrono::year_month_day ymd(kDayZero + days(static_cast<int>(whole)));
  CivilTime civil;
  civil.year = static_cast<int>(ymd.year());
  civil.month = static_cast<int>(static_cast<unsigned>(ymd.month()));
  civil.day = static_cast<int>(static_cast<unsigned>(ymd.day()));
  civil.hour = seconds / 3600;
  civil.minute = seconds / 60 % 60;
  civil.second = seconds % 60;
  return civil;
}

bool ParseMoment(std::string_view text, CivilTime& moment) {
  constexpr std::string_view kForm = "####-##-## ##:##:##";
  if (text.size() != kForm.size()) return false;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    if (kForm[i] == '#' ? !IsDigit(text[i]) : text[i] != kForm[i]) return false;
  }
  return ReadNumber(text, 0, 4, 100, 9999, moment.year) &&
         ReadNumber(text, 5, 2, 1, 12, moment.month) && ReadNumber(text, 8, 2, 1, 31, moment.day) &&
         ReadNumber(text, 11, 2, 0, 23, moment.hour) &&
         ReadNumber(text, 14, 2, 0, 59, moment.minute) &&
         ReadNumber(text, 17, 2, 0, 59, moment.second) &&
         (year(moment.year) / moment.month / moment.day).ok();
}

std::string FormatPicture(const CivilTime& civil, std::string_view picture) {
  constexpr std::string_view kElements = "dMyhHmst";
  std::string text;
  for (std::size_t i = 0; i < picture.size();) {
    const char c = picture[i];
    if (c == '\'') {
      const std::size_t end = std::min(picture.find('\'', i + 1), picture.size());
      text += picture.substr(i + 1, end - i - 1);
      i = end + 1;
    } else if (kElements.find(c) != std::string_view::npos) {
      const std::size_t end = std::min(picture.find_first_not_of(c, i), picture.size());
      text += Element(civil, c, end - i);
      i = end;
    } else {
      text += c;
      ++i;
    }
  }
  return text;
}

bool IsDate(DateValue date) {
  static const DateValue kFirst = DateFromCivil({100, 1, 1});
  static const DateValue kBehindLast = DateFromCivil({9999, 12, 31}) + 1;
  return std::trunc(date) >= kFirst && date < kBehindLast;
}

std::string FormatDay(DateValue date, std::string_view date_format) {
  if (!IsDate(date)) return {};
  std::string picture(date_format);
  std::replace(picture.begin(), picture.end(), 'm', 'M');
  return FormatPicture(CivilFromDate(std::trunc(date)), picture);
}

std::optional<DateValue> ParseDay(std::string_view text, std::string_view date_format) {
  constexpr std::string_view kElements = "dmy";
  if (date_format.empty()) return std::nullopt;
  CivilTime civil;
  text = Trim(text);
  while (!date_format.empty()) {
    const char kind = date_format[0];
    const bool element = kElements.find(kind) != std::string_view::npos;
    const std::size_t taken =
        element ? ReadDatePart(text, kind, civil) : std::size_t{text.starts_with(kind)};
    if (taken == 0) return std::nullopt;
    text.remove_prefix(taken);
    date_format.remove_prefix(
        element ? std::min(date_format.find_first_not_of(kind), date_format.size()) : 1);
  }
  if (!text.empty() || !(year(civil.year) / civil.month / civil.day).ok()) return std::nullopt;
  return DateFromCivil(civil);
}

}  // namespace golf
