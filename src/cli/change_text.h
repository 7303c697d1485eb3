#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/json_text.h"
#include "history/record_changes.h"
#include "history/undo.h"
#include "outlets/changed_fields.h"

namespace golf {

// These functions describe changes and conflicts for people and programs.

// Returns the event "change".
Json ChangeJson(const RecordChange& change);
// Writes what changed and a line for each field with the values before and after.
void WriteChange(ChangeDescriber& describer, const RecordChange& change);

// Returns the events "conflict": one for each element, or one event if there are no elements.
std::vector<Json> ConflictJson(const UndoConflict& conflict);
// Returns the conflict as lines for people.
std::string ConflictText(const UndoConflict& conflict, std::string_view date_format);

}  // namespace golf
