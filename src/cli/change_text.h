#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "cli/json_text.h"
#include "history/record_changes.h"
#include "history/undo.h"

namespace golf {

// Write changes and conflicts for people and programs: the elements of fields that differ, each in
// the form in which `dump` shows it.

// The elements whose values differ. Missing bytes count as zeros.
std::vector<FieldElement> ChangedElements(const RecordChange& change);

// The event "change".
Json ChangeJson(const RecordChange& change);
// A block: what changed, and a line for each field with the values before and after. Elements of a
// table that follow each other share a line.
void WriteChange(const RecordChange& change);

// The events "conflict": one for each element, or one where there are none.
std::vector<Json> ConflictJson(const UndoConflict& conflict);
// The conflict as lines for people.
std::string ConflictText(const UndoConflict& conflict);

// Counts changes by file and kind.
class ChangeCounts {
 public:
  void Add(const RecordChange& change);
  // Of records, and of files that have no records.
  std::int64_t Count() const;
  // A table with a line for each file.
  void Write() const;

 private:
  struct Counts {
    std::int64_t added = 0;
    std::int64_t changed = 0;
    std::int64_t removed = 0;
    std::string whole{};  // what became of the file as a whole
  };
  std::map<std::string, Counts> files_;
};

}  // namespace golf
