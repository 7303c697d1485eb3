#include "core/regional_forms.h"

#include <string_view>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr CivilTime kThirteenthOfMay{1999, 5, 13};
constexpr DateValue kAnyTime = 0.111;

std::string SeparatorOf(std::string_view marks, std::size_t looked_at) {
  const std::string_view head = marks.substr(0, looked_at);
  const std::size_t first = head.find_first_not_of('#');
  return first == std::string_view::npos ? "/" : std::string(1, head[first]);
}

std::string Joined(std::string_view a, std::string_view b, std::string_view c,
                   std::string_view separator) {
  std::string text(a);
  return text.append(separator).append(b).append(separator).append(c);
}

}  // namespace

DateForms DetectDateForms(const RegionalForms& forms, DateValue now) {
  DateForms found;
  try {
    const std::string marks = ReplaceText(FormatPicture(CivilFromDate(now), forms.short_date), "",
                                          "", ReplaceMode::kDigitsToMarks);
    // The search covers only as many characters as the default mask has, even if the date is
    // longer.
    const std::string separator = SeparatorOf(marks, found.mask.size());
    found.format = Joined("mm", "dd", "yy", separator);
    found.mask = Joined("##", "##", "##", separator);
    const std::string date = FormatPicture(kThirteenthOfMay, forms.short_date);
    const double first = LeadingNumber(std::string_view(date).substr(0, 2));
    if (first == 13) found.format = Joined("dd", "mm", "yy", separator);
    if (first >= 98 || first == 19) found.format = Joined("yy", "mm", "dd", separator);
  } catch (const NumberedError&) {
    // `found` contains the results detected before the error.
  }
  return found;
}

TimeForms DetectTimeForms(const RegionalForms& forms) {
  TimeForms found;
  const std::string time = FormatPicture(CivilFromDate(kAnyTime), forms.long_time);
  const std::size_t other = time.find_first_not_of("0123456789");
  if (other != std::string::npos) found.separator = time.substr(other, 1);
  found.mask = "##" + found.separator + "##";
  return found;
}

}  // namespace golf
