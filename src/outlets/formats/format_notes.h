#pragma once

#include <string_view>

namespace golf {

// Describes in words what the files of one layout contain.
struct FormatNote {
  std::string_view layout;  // the name of the layout
  std::string_view title;
  std::string_view contents;  // sentences
};

// Returns the note of a layout. Every layout of FileKinds has one.
const FormatNote& NoteOfLayout(std::string_view layout);

}  // namespace golf
