#include "scoring/layouts/report_header.h"

#include <algorithm>
#include <iterator>

#include "core/text.h"

namespace golf {
namespace {

struct Placeholder {
  std::string_view text;
  std::string HeaderValues::*value;
};
constexpr Placeholder kPlaceholders[] = {{kHeaderChoices[0], &HeaderValues::tournament},
                                         {kHeaderChoices[1], &HeaderValues::course},
                                         {"<Round#>", &HeaderValues::round},
                                         {"<RoundDate>", &HeaderValues::date}};

bool StartsWith(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && EqualIgnoringCase(text.substr(0, start.size()), start);
}

// Replaces the placeholders. A placeholder in a value is not replaced.
std::string Replaced(std::string_view text, const HeaderValues& values) {
  std::string line;
  while (!text.empty()) {
    const auto* const found =
        std::find_if(std::begin(kPlaceholders), std::end(kPlaceholders),
                     [&](const Placeholder& known) { return StartsWith(text, known.text); });
    if (found == std::end(kPlaceholders)) {
      line += text.front();
      text.remove_prefix(1);
    } else {
      line += values.*(found->value);
      text.remove_prefix(found->text.size());
    }
  }
  return line;
}

}  // namespace

std::string HeaderLine(std::string_view text, const HeaderValues& values) {
  const std::string_view trimmed = Trim(text);
  const auto is = [&](std::string_view choice) { return EqualIgnoringCase(trimmed, choice); };
  if (is(kHeaderChoices[4])) return {};
  if (is(kHeaderChoices[2]) || is(kHeaderChoices[3])) {
    return Replaced(trimmed.substr(1, trimmed.size() - 2), values);
  }
  return Replaced(trimmed, values);
}

}  // namespace golf
