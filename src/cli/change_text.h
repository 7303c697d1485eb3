#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/json_text.h"
#include "core/shared_state.h"
#include "history/record_changes.h"
#include "history/record_kinds.h"
#include "history/undo.h"
#include "outlets/changed_fields.h"

namespace golf {

// These functions describe changes and conflicts for people and programs.

// Returns the event "change".
Json ChangeJson(const RecordChange& change);
// Returns what changed, and a line for each field with the values before and after.
std::string ChangeText(ChangeDescriber& describer, const RecordChange& change);

// Writes the changes with an empty line before those of each golfer, course or roster. The records
// of one group follow each other, in the order of the groups' first changes. Omits derived files.
void WriteChanges(SharedState& state, const RecordKinds& kinds, const EachChange& for_each);

// Returns the events "conflict": one for each element, or one event if there are no elements.
std::vector<Json> ConflictJson(const UndoConflict& conflict);
// Returns the conflict as lines for people.
std::string ConflictText(const UndoConflict& conflict, std::string_view date_format);

}  // namespace golf
