#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/box.h"

namespace golf {

// The names of a message box's parts, and an input box and a font choice as data.

// "none", "information", ...
std::string_view NameOf(BoxIcon icon);
// "OK", "Cancel", "Yes", ...
std::string_view NameOf(BoxButton button);

// The button of a box with this name, in any case; nothing if the box does not have it.
std::optional<BoxButton> ButtonNamed(const Box& box, std::string_view name);

// Cancel gives an empty answer.
struct InputBox {
  std::string title;
  std::string text;
  std::string default_answer;
};

// Whether an answer typed into an input box means yes: it begins with "Y" in either case.
bool MeansYes(std::string_view answer);

struct Font {
  std::string name;
  int size = 10;  // points
  bool bold = false;
  bool italic = false;
  bool operator==(const Font&) const = default;
};

// "Arial, 12, bold italic"
std::string DescribeFont(const Font& font);
// Reads such a description; nothing where it is none.
std::optional<Font> ParseFont(std::string_view description);

}  // namespace golf
