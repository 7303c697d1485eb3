#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace golf {

// Describes a message box. A run returns it as data, so every front end can show it.

enum class BoxIcon { kNone, kInformation, kQuestion, kStop, kWarning };
enum class BoxButton { kOk, kCancel, kYes, kNo, kRetry };

struct Box {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::kNone;
  std::vector<BoxButton> buttons = {BoxButton::kOk};
  std::size_t default_button = 0;  // index into `buttons`

  // These are hints for a window. Scripts do not see them.
  // Replaces `default_button`.
  std::optional<std::size_t> window_default = {};
  // Answers the box without showing it.
  std::optional<BoxButton> window_answer = {};
  // Is the id of a heading of the help, or empty. A window opens the help there instead of showing
  // the box.
  std::string window_help = {};
  // Is the golfer whom the question concerns if the text does not name him, or empty. A window
  // shows him in a line of its own.
  std::string window_golfer = {};
};

}  // namespace golf
