#include "forms/dialogs.h"

#include <algorithm>
#include <iterator>

#include "core/number_text.h"
#include "core/text.h"

namespace golf {

std::string_view NameOf(BoxIcon icon) {
  constexpr std::string_view kNames[] = {"none", "information", "question", "stop", "warning"};
  return kNames[static_cast<std::size_t>(icon)];
}

std::string_view NameOf(BoxButton button) {
  constexpr std::string_view kNames[] = {"OK", "Cancel", "Yes", "No", "Retry"};
  return kNames[static_cast<std::size_t>(button)];
}

std::optional<BoxButton> ButtonNamed(const Box& box, std::string_view name) {
  const auto found = std::find_if(box.buttons.begin(), box.buttons.end(), [&](BoxButton button) {
    return EqualIgnoringCase(NameOf(button), name);
  });
  if (found == box.buttons.end()) return std::nullopt;
  return *found;
}

bool MeansYes(std::string_view answer) { return EqualIgnoringCase(answer.substr(0, 1), "Y"); }

std::string DescribeFont(const Font& font) {
  std::string description = font.name + ", " + std::to_string(font.size);
  if (font.bold || font.italic) description += ",";
  if (font.bold) description += " bold";
  if (font.italic) description += " italic";
  return description;
}

std::optional<Font> ParseFont(std::string_view description) {
  const std::size_t name_end = description.find(',');
  if (name_end == std::string_view::npos) return std::nullopt;
  const std::string_view rest = description.substr(name_end + 1);
  const std::string style = LowerCase(rest);
  Font font{std::string(Trim(description.substr(0, name_end)))};
  font.size = RoundToInt16(std::clamp(LeadingNumber(rest), 0.0, 999.0));
  font.bold = style.find("bold") != std::string::npos;
  font.italic = style.find("italic") != std::string::npos;
  if (font.name.empty() || font.size < 1) return std::nullopt;
  return font;
}

}  // namespace golf
