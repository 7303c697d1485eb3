#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// The batch code of the scores before event e is this number plus e.
inline constexpr int kNonEventCode = 500;

// Describes the scores of a league that are posted together. They are the scores of one event, or
// the non-event scores played before it.
struct ScoreBatch {
  int code;  // number of the event; plus 500 for the scores before it; 501: practice
  std::string text;
  std::size_t blanks;  // blanks between text and code; they keep the code out of sight in a list

  // Returns the list item, which consists of text, blanks and code.
  std::string Item() const;
};

// Return the code at the end of such an item, and the text before it.
int BatchCode(std::string_view item);
std::string BatchHeading(const std::string& item);

struct ScoreBatches {
  std::vector<ScoreBatch> list;
  // This is the index of the batch that is selected first: the current event, or practice. -1 means
  // none.
  int selected = 0;
};

// Closes the league files, opens those of the league chosen from the list, and reads its batches.
// Returns no value and leaves the files closed if the base is not a valid file name or its
// LeadingNumber is 0. Raises the errors of FileTable.
std::optional<ScoreBatches> LoadScoreBatches(SharedState& state, std::string_view chosen);

}  // namespace golf
