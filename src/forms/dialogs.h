#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/box.h"

namespace golf {

// Returns "none", "information", "question", "stop" or "warning".
std::string_view NameOf(BoxIcon icon);
// Returns "OK", "Cancel", "Yes", "No" or "Retry".
std::string_view NameOf(BoxButton button);

// Returns the button of the box that has this name, without regard to case. Returns nothing if the
// box has no such button.
std::optional<BoxButton> ButtonNamed(const Box& box, std::string_view name);

// Describes a box that asks for a line of text. The answer is an empty text if the operator presses
// Cancel.
struct InputBox {
  std::string title;
  std::string text;
  std::string default_answer;
};

// True if the answer to an input box begins with "Y" or "y".
bool MeansYes(std::string_view answer);

struct Font {
  std::string name;
  int size = 10;  // points
  bool bold = false;
  bool italic = false;
  bool operator==(const Font&) const = default;
};

// Writes a font as "Arial, 12, bold italic".
std::string DescribeFont(const Font& font);
// Reads what DescribeFont writes. Returns nothing if the text has no comma, no name or no size
// above 0.
std::optional<Font> ParseFont(std::string_view description);

}  // namespace golf
