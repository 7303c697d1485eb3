#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// Above the codes of the events: the scores before event e have e more.
inline constexpr int kNonEventCode = 500;

// The scores of a league that are posted together: those of an event, or those that were played
// before it apart from events.
struct ScoreBatch {
  int code;  // the event's number, 500 more for the scores before it; 501 is practice
  std::string text;
  std::size_t blanks;  // that push the code out of sight

  // As a list shows it.
  std::string Item() const;
};

// The code at the end of such an item, and what of it is meant to be read.
int BatchCode(std::string_view item);
std::string BatchHeading(const std::string& item);

struct ScoreBatches {
  std::vector<ScoreBatch> list;
  int selected = 0;  // the place from 0 that is offered: the current event, else practice; -1: none
};

// Closes the league files, opens those of the league chosen from the list and reads its batches.
// Nothing, with the files closed, if its base is no number above 0 or no name of a file. Errors as
// FileTable.
std::optional<ScoreBatches> LoadScoreBatches(SharedState& state, std::string_view chosen);

}  // namespace golf
