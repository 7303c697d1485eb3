#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// The code of the scores before event e is this number plus e.
inline constexpr int kNonEventCode = 500;

// The scores of a league that are posted together: those of an event, or the non-event scores that
// were played before it.
struct ScoreBatch {
  int code;  // the event's number, or 500 more for the scores before it; 501 is practice
  std::string text;
  std::size_t blanks;  // between text and code, so that a list does not show the code

  // Returns the item for a list: text, blanks and code.
  std::string Item() const;
};

// Return the code at the end of such an item, and the text in front of it.
int BatchCode(std::string_view item);
std::string BatchHeading(const std::string& item);

struct ScoreBatches {
  std::vector<ScoreBatch> list;
  // Index of the batch that is selected first: the current event, or practice. -1: none.
  int selected = 0;
};

// Closes the league files, opens those of the league chosen from the list and reads its batches. If
// the base is not a valid file name or LeadingNumber of it is 0, returns no value and leaves the
// files closed. Raises the errors of FileTable.
std::optional<ScoreBatches> LoadScoreBatches(SharedState& state, std::string_view chosen);

}  // namespace golf
