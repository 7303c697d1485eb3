#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/box.h"

namespace golf {

// Names for the parts of a message box, and the data of an input box and of a font choice.

// Returns "none", "information", "question", "stop" or "warning".
std::string_view NameOf(BoxIcon icon);
// Returns "OK", "Cancel", "Yes", "No" or "Retry".
std::string_view NameOf(BoxButton button);

// Returns the button of the box with this name, in any case. Nothing if the box does not have it.
std::optional<BoxButton> ButtonNamed(const Box& box, std::string_view name);

// A box that takes a line of text. Cancel answers with an empty text.
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
// Reads what DescribeFont writes. Nothing if the text has no comma.
std::optional<Font> ParseFont(std::string_view description);

}  // namespace golf
