#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "cli/json_text.h"
#include "history/record_changes.h"
#include "history/undo.h"

namespace golf {

// These functions describe changes and conflicts for people and programs. They show the elements of
// fields that differ, each in the form that `dump` uses.

// Returns the elements whose values differ. Missing bytes count as zeros.
std::vector<FieldElement> ChangedElements(const RecordChange& change);

// Returns the event "change".
Json ChangeJson(const RecordChange& change);
// Writes what changed and a line for each field with the values before and after. Consecutive
// elements of a table share a line.
void WriteChange(const RecordChange& change);

// Returns the events "conflict": one for each element, or one event if there are no elements.
std::vector<Json> ConflictJson(const UndoConflict& conflict);
// Returns the conflict as lines for people.
std::string ConflictText(const UndoConflict& conflict);

// Counts changes by file and kind.
class ChangeCounts {
 public:
  void Add(const RecordChange& change);
  // Returns the number of changed records plus the number of changed files without records.
  std::int64_t Count() const;
  // Writes a table with a line for each file.
  void Write() const;

 private:
  struct Counts {
    std::int64_t added = 0;
    std::int64_t changed = 0;
    std::int64_t removed = 0;
    std::string whole{};  // the changes of the file as a whole
  };
  std::map<std::string, Counts> files_;
};

}  // namespace golf
