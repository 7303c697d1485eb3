#pragma once

#include <chrono>
#include <string>

#include "forms/grid.h"

namespace golf {

// Finds a row of a grid by the first letters of a cell, which the operator types one after the
// other. A pause of more than a second begins a new text.
class TypeAhead {
 public:
  // Adds a typed character. Returns the next row, from the active row on, with a cell that begins
  // with the typed text, or 0 if there is none. Ignores case and blanks before a text. Columns on
  // the left are searched first. The same letter typed again goes to the next row that begins with
  // it. `now` is the time of the key on any clock that only advances.
  int Type(const Grid& grid, char typed, std::chrono::milliseconds now);

  // True if the next character would be added to the typed text.
  bool Continues(std::chrono::milliseconds now) const;

 private:
  std::string text_;
  std::chrono::milliseconds last_{};
};

}  // namespace golf
